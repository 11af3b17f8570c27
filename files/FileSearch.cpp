// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileSearch.h"

#include "Files.h"

namespace {
QString withoutTrailingSeparators(QString folder)
{
    while (folder.endsWith(QLatin1Char('/')) || folder.endsWith(QLatin1Char('\\')))
        folder.chop(1);
    return folder;
}
} // namespace

FileSearch::FileSearch(const QString &gamePath, const QString &outputDir)
{
    for (const QString &folder : {gamePath, outputDir}) {
        if (!folder.isEmpty())
            m_folders.append(withoutTrailingSeparators(folder));
    }
}

QStringList FileSearch::candidates(const QString &relativePath) const
{
    QStringList paths;
    for (const QString &folder : m_folders)
        paths.append(Files::trueCase(folder + QLatin1Char('/') + relativePath, folder.size()));
    return paths;
}

QString FileSearch::find(const QString &relativePath) const
{
    for (const QString &folder : m_folders) {
        const QString path = Files::trueCase(folder + QLatin1Char('/') + relativePath, folder.size());
        if (Files::isFile(path))
            return path;
    }
    return {};
}

QString FileSearch::otherCase(const QString &relativePath) const
{
    const QString found = find(relativePath);
    for (const QString &folder : m_folders) {
        const bool isHere = found.startsWith(folder + QLatin1Char('/'), Qt::CaseInsensitive);
        const QString spelled = isHere ? found.mid(folder.size() + 1) : QString();
        if (isHere && spelled.compare(relativePath, Qt::CaseInsensitive) == 0)
            return spelled == relativePath ? QString() : spelled;
    }
    return {};
}
