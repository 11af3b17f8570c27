// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "OwnFolders.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

namespace {
/// Empty where the program is not carried around.
QString portableFolder()
{
    const QString beside = QCoreApplication::applicationDirPath();
    return QFileInfo::exists(beside + QStringLiteral("/portable.txt")) ? beside + QStringLiteral("/data")
                                                                       : QString();
}

QString folderOf(QStandardPaths::StandardLocation location)
{
    const QString portable = portableFolder();
    return portable.isEmpty() ? QStandardPaths::writableLocation(location) : portable;
}
} // namespace

void OwnFolders::useForSettings()
{
    const QString portable = portableFolder();
    if (!portable.isEmpty())
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, portable);
    // Nobody can look into a registry, copy it or see that it is damaged.
    const bool isRegistry = QSettings().fileName().startsWith(QLatin1Char('\\'));
    if (!portable.isEmpty() || isRegistry)
        QSettings::setDefaultFormat(QSettings::IniFormat);
}

QString OwnFolders::local()
{
    return folderOf(QStandardPaths::AppLocalDataLocation);
}

QString OwnFolders::cache()
{
    return folderOf(QStandardPaths::CacheLocation);
}

QString OwnFolders::data()
{
    return folderOf(QStandardPaths::AppDataLocation);
}
