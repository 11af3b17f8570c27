// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialFaults.h"

#include "BinaryFileWriter.h"
#include "FilePictures.h"
#include "Files.h"
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
                    MaterialFaults &materials)
{
    QSet<QString> seen;
    QSet<QString> unreadFiles; // said once a file
    for (int s = 0; s < materialPaths.size() && seen.size() < MostMaterials; ++s) {
        const QString &path = materialPaths[s];
        if (seen.contains(path))
            continue;
        seen.insert(path);
        const MaterialFaults::Fault &fault = materials.of(path);
        if (!fault.text || unreadFiles.contains(fault.unreadFile))
            continue;
        if (!fault.unreadFile.isEmpty())
            unreadFiles.insert(fault.unreadFile);
        found.add(fault.rule, {surfaceKind, {s, 0, 0}}, [&] { return fault.text(number(s)); });
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

MaterialFaults::MaterialFaults(const MaterialFolders &folders)
    : m_isSearching(!folders.gamePath.isEmpty())
    , m_files(folders.gamePath, folders.outputDir)
{}

const MaterialFaults::Fault &MaterialFaults::of(const QString &materialPath)
{
    const auto known = m_faults.constFind(materialPath);
    if (known != m_faults.constEnd())
        return *known;
    return *m_faults.insert(materialPath, m_isSearching ? look(materialPath) : Fault());
}

MaterialFaults::Fault MaterialFaults::look(const QString &path)
{
    using namespace Validation;
    const QString file = QFileInfo(path).path() + QStringLiteral(".kmat");
    const MaterialFiles::Lookup material = m_files.find(path);
    if (!material.error.isEmpty())
        m_errors.insert(file, material.error);
    const QString error = m_errors.value(file);
    if (!error.isEmpty() && material.texture.isEmpty()) {
        const QStringList tried = m_files.candidates(file);
        const bool isThere = std::any_of(tried.begin(), tried.end(), Files::isFile);
        return {Rule::MaterialNotFound, file, [path, error, tried, isThere](const QString &surface) {
                    return isThere
                               ? Texts::tr("Surface %1 is drawn white: the file of its material '%2' cannot "
                                           "be read. %3")
                                     .arg(surface, path, error)
                               : Texts::tr("Surface %1 is drawn white: there is no file of its material "
                                           "'%2'. Tried: %3. Correct the surface's material path, or put "
                                           "the file into one of these places.")
                                     .arg(surface, path, list(tried));
                }};
    }
    if (!material.warning.isEmpty()) {
        return {Rule::MaterialNotFound, {}, [warning = material.warning](const QString &surface) {
                    return Texts::tr("Surface %1 is drawn white: %2. Correct the surface's material path, or "
                                     "add the material to the file.")
                        .arg(surface, warning);
                }};
    }
    if (material.isThere && material.texture.isEmpty()) {
        return {Rule::TextureNotFound, {}, [path](const QString &surface) {
                    return Texts::tr("Surface %1 is drawn white: its material '%2' names no texture. Add a "
                                     "sampler with the path of a picture to it, or name another material.")
                        .arg(surface, path);
                }};
    }
    if (material.texture.isEmpty() || material.texture == MaterialFiles::Blank)
        return {};
    const QStringList tried = m_files.candidates(material.texture);
    if (!std::any_of(tried.begin(), tried.end(), Files::isPicture)) {
        return {Rule::TextureNotFound, {}, [path, texture = material.texture, tried](const QString &surface) {
                    return Texts::tr("Surface %1 is drawn white: the texture '%2' of its material '%3' is no "
                                     "picture that can be read. Tried: %4. Put the picture into one of these "
                                     "places, or name another one in the material's file.")
                        .arg(surface, texture, path, list(tried));
                }};
    }
    const OtherCase other(m_files.search(), {file, material.texture});
    if (other.spelled.isEmpty())
        return {};
    return {Rule::NameCase, {}, [other](const QString &surface) {
                return other.text(Texts::tr("Surface %1").arg(surface));
            }};
}

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
