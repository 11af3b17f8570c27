// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BinaryFileWriter.h"
#include "FilePictures.h"
#include "Files.h"
#include "MaterialFiles.h"
#include "ValidationParts.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace Validation {
namespace {
/// Looking up more materials than any model has would only keep the user waiting.
constexpr int MostMaterials = 1000;

QString list(const QStringList &paths)
{
    QStringList shown;
    for (const QString &path : paths)
        shown << QDir::toNativeSeparators(path);
    return shown.join(QLatin1String(", "));
}

/// The first of the files that are named in another case than they have.
struct OtherCase
{
    QString named, spelled;

    OtherCase(const FileSearch &search, const QStringList &names)
    {
        for (const QString &name : names) {
            if (!spelled.isEmpty() || name.isEmpty() || name == MaterialFiles::Blank)
                continue;
            spelled = search.otherCase(name);
            named = name;
        }
    }
    QString text(const QString &where) const
    {
        return Texts::tr(
                   "%1 names '%2', which is called '%3' where it stands. The game on Windows finds it all "
                   "the same, other systems do not. Spell both alike.")
            .arg(where, named, spelled);
    }
};
} // namespace

void checkMaterials(FindingCollector &found, const QStringList &materialPaths, RecordKind surfaceKind,
                    const MaterialFolders &folders)
{
    if (folders.gamePath.isEmpty())
        return;
    MaterialFiles files(folders.gamePath, folders.outputDir);
    QSet<QString> seen;
    for (int s = 0; s < materialPaths.size() && seen.size() < MostMaterials; ++s) {
        const QString &path = materialPaths[s];
        const QString surface = number(s);
        if (seen.contains(path))
            continue;
        seen.insert(path);
        const RecordRef place{surfaceKind, {s, 0, 0}};
        const MaterialFiles::Lookup material = files.find(path);
        if (!material.error.isEmpty()) {
            const QStringList tried = files.candidates(QFileInfo(path).path() + QStringLiteral(".kmat"));
            const bool isThere = std::any_of(tried.begin(), tried.end(), Files::isFile);
            found.add(Rule::MaterialNotFound, place, [&] {
                return isThere
                           ? Texts::tr("Surface %1 is drawn white: the file of its material '%2' cannot be "
                                       "read. %3")
                                 .arg(surface, path, material.error)
                           : Texts::tr("Surface %1 is drawn white: there is no file of its material '%2'. "
                                       "Tried: %3. Correct the surface's material path, or put the file "
                                       "into one of these places.")
                                 .arg(surface, path, list(tried));
            });
        } else if (!material.warning.isEmpty()) {
            found.add(Rule::MaterialNotFound, place, [&] {
                return Texts::tr("Surface %1 is drawn white: %2. Correct the surface's material path, or "
                                 "add the material to the file.")
                    .arg(surface, material.warning);
            });
        } else if (material.isThere && material.texture.isEmpty()) {
            found.add(Rule::TextureNotFound, place, [&] {
                return Texts::tr(
                           "Surface %1 is drawn white: its material '%2' names no texture. Add a sampler "
                           "with the path of a picture to it, or name another material.")
                    .arg(surface, path);
            });
        } else if (!material.texture.isEmpty() && material.texture != MaterialFiles::Blank) {
            const QStringList tried = files.candidates(material.texture);
            if (std::any_of(tried.begin(), tried.end(), Files::isPicture)) {
                const OtherCase other(files.search(),
                                      {QFileInfo(path).path() + QStringLiteral(".kmat"), material.texture});
                if (!other.spelled.isEmpty())
                    found.add(Rule::NameCase, place,
                              [&] { return other.text(Texts::tr("Surface %1").arg(surface)); });
                continue;
            }
            found.add(Rule::TextureNotFound, place, [&] {
                return Texts::tr("Surface %1 is drawn white: the texture '%2' of its material '%3' is no "
                                 "picture that can be read. Tried: %4. Put the picture into one of these "
                                 "places, or name another one in the material's file.")
                    .arg(surface, material.texture, path, list(tried));
            });
        }
    }
}

void checkTexts(FindingCollector &found, const QStringList &materialPaths, RecordKind surfaceKind)
{
    for (int s = 0; s < materialPaths.size(); ++s) {
        const QString &path = materialPaths[s];
        if (BinaryFileWriter::canWrite(path))
            continue;
        found.add(Rule::TextNotKept, {surfaceKind, {s, 0, 0}}, [&] {
            return Texts::tr(
                       "The material path '%2' of surface %1 holds characters outside of Latin-1, which "
                       "the file cannot: saving makes question marks of them. Give the material and its "
                       "file another name.")
                .arg(number(s), path);
        });
    }
}
} // namespace Validation

std::vector<Finding> validate(const MaterialTable &materials, const MaterialFolders &folders, int listed)
{
    using namespace Validation;
    FindingCollector found(listed);
    if (folders.gamePath.isEmpty())
        return {};
    const MaterialFiles files(folders.gamePath, folders.outputDir);
    for (const auto &[name, texture] : materials) {
        const QStringList tried = files.candidates(texture);
        if (texture == MaterialFiles::Blank)
            continue;
        if (!texture.isEmpty() && std::any_of(tried.begin(), tried.end(), Files::isPicture)) {
            const OtherCase other(files.search(), {texture});
            if (!other.spelled.isEmpty())
                found.add(Rule::NameCase, {},
                          [&, &name = name] { return other.text(Texts::tr("Material '%1'").arg(name)); });
            continue;
        }
        found.add(Rule::TextureNotFound, {}, [&name = name, &texture = texture, &tried] {
            return texture.isEmpty()
                       ? Texts::tr(
                             "Material '%1' names no texture: what has it is drawn white. Add a sampler "
                             "with the path of a picture to it.")
                             .arg(name)
                       : Texts::tr(
                             "Material '%1' is drawn white: its texture '%2' is no picture that can be "
                             "read. Tried: %3. Put the picture into one of these places, or name another "
                             "one.")
                             .arg(name, texture, list(tried));
        });
    }
    return found.take();
}
