// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModFiles.h"

#include "Files.h"
#include "PackList.h"
#include "PictureFile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

ModFileKind modFileKind(const QString &path)
{
    static const QHash<QString, ModFileKind> kinds{
        {QStringLiteral("skinnedmesh"), ModFileKind::SkinnedMesh},
        {QStringLiteral("anim"), ModFileKind::Anim},
        {QStringLiteral("staticmesh"), ModFileKind::StaticMesh},
        {QStringLiteral("kmat"), ModFileKind::Material},
    };
    return kinds.value(QFileInfo(path).suffix().toLower(),
                       isPictureName(path) ? ModFileKind::Picture : ModFileKind::Other);
}

ModFiles::ModFiles(Whose whose, const QString &folder, const std::function<bool()> &goesOn)
    : m_folder(QDir::cleanPath(folder))
{
    const int start = m_folder.endsWith(QLatin1Char('/')) ? m_folder.size() : m_folder.size() + 1;
    const auto lookForGaps = [&](const QString &path, const QString &name) {
        const QString reason = whose == Whose::Mod ? reasonOfGaps(path) : QString();
        if (!reason.isEmpty())
            m_gaps.insert(name, reason);
    };
    lookForGaps(m_folder, QStringLiteral("."));
    Files::walk(m_folder, [&](const FolderEntry &entry) {
        const QString name = entry.path.mid(start);
        if (entry.isFolder) {
            m_folders.append(name);
            lookForGaps(entry.path, name);
        } else if (whose == Whose::Game || reasonToLeaveOut(name).isEmpty()) {
            m_files.push_back({entry.path, name, modFileKind(name)});
        }
        return !goesOn || goesOn();
    });
    m_folders.sort();
    std::sort(m_files.begin(), m_files.end(),
              [](const ModFile &a, const ModFile &b) { return a.name < b.name; });
    m_paths.reserve(int(m_files.size()));
    for (const ModFile &file : m_files)
        m_paths.insert(file.name.toCaseFolded(), file.path);
}
