// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialFiles.h"

#include "Files.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

const QString MaterialFiles::Blank = QStringLiteral("_white");

MaterialFiles::MaterialFiles(const QString &gamePath, const QString &outputDir)
    : m_search(gamePath, outputDir)
{}

MaterialFiles::MaterialFile &MaterialFiles::file(const QString &relativePath)
{
    const auto known = m_files.find(relativePath);
    if (known != m_files.end())
        return *known;

    MaterialFile made;
    const QStringList paths = candidates(relativePath);
    if (paths.isEmpty()) {
        made.error =
            QCoreApplication::translate("ModelFiles", "Unable to read .kMat file at %1").arg(relativePath);
    } else {
        made.error = readKMat(paths, made.table);
        const auto found = std::find_if(paths.begin(), paths.end(), Files::isFile);
        made.path = found != paths.end() ? *found : paths.last();
    }
    return *m_files.insert(relativePath, made);
}

QString MaterialFiles::fileOf(const QString &materialPath)
{
    return QFileInfo(materialPath).path() + QStringLiteral(".kmat");
}

MaterialFiles::Lookup MaterialFiles::find(const QString &materialPath)
{
    const QString material = QFileInfo(materialPath).fileName();
    MaterialFile &from = file(fileOf(materialPath));

    const auto entry = from.table.find(material);
    if (entry != from.table.end())
        return {entry->second, {}, {}, true};
    // Imported surfaces without a texture and the program's own meshes are named so and have no file.
    if (material.endsWith(Blank))
        return {Blank, {}, {}};
    if (!from.error.isEmpty()) {
        Lookup failed{{}, {}, from.error};
        from.error.clear();
        from.path.clear();
        return failed;
    }
    if (from.path.isEmpty())
        return {};
    return {{}, QStringLiteral("No material '%1' in '%2'").arg(material, from.path), {}};
}
