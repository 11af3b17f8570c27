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

GameFolders GameFolders::of(const CommandLine &line, const QString &file)
{
    const auto chosen = [&line](const QString &option, const SettingKey<QString> &key) {
        return line.isSet(option) ? line.value(option) : key.value();
    };
    GameFolders folders{chosen(QStringLiteral("game-path"), Settings::GamePath),
                        chosen(QStringLiteral("mod-path"), Settings::OutputDir)};
    if (folders.gamePath.isEmpty())
        folders.gamePath = folderAround(file);
    return folders;
}
