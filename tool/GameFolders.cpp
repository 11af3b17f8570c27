// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GameFolders.h"

#include "CommandLine.h"
#include "Settings.h"

#include <QDir>
#include <QFileInfo>

namespace {
QString folderAround(const QString &file)
{
    QDir folder = QFileInfo(file).absoluteDir();
    while (!QFileInfo(folder.filePath(QStringLiteral("materials"))).isDir()) {
        if (!folder.cdUp())
            return {};
    }
    return folder.path();
}
} // namespace

MaterialFolders chosenFolders(const CommandLine &line)
{
    const auto folder = [&line](const QString &option, const SettingKey<QString> &key) {
        return line.isSet(option) ? line.value(option) : key.value();
    };
    return {folder(QStringLiteral("game-path"), Settings::GamePath),
            folder(QStringLiteral("mod-path"), Settings::OutputDir)};
}

MaterialFolders foldersAround(const QString &file, MaterialFolders chosen)
{
    if (chosen.gamePath.isEmpty())
        chosen.gamePath = folderAround(file);
    return chosen;
}
