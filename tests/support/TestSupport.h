// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#ifdef __clang__
// QSKIP() leaves its variable arguments out.
#pragma clang diagnostic ignored "-Wgnu-zero-variadic-macro-arguments"
#endif

/// What several tests need: a settings home of their own, files read and written whole, the folder of real
/// models.
namespace TestSupport {
/// Points the settings store at `home` and empties it. Call before the first settings access of a test.
inline void useSettingsHome(const QTemporaryDir &home)
{
    QCoreApplication::setOrganizationName(QStringLiteral("KorvaneTest"));
    QCoreApplication::setApplicationName(QStringLiteral("Korvane"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
    QSettings().clear();
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// A path below the folder of real models that may stand beside the project; empty when it is not there.
inline QString shared(const QString &relativePath)
{
    const QString path = QStringLiteral(KORVANE_SOURCE_DIR "/../shared/") + relativePath;
    return QFile::exists(path) ? QDir::cleanPath(path) : QString();
}

/// A path below the project.
inline QString source(const QString &relativePath)
{
    return QStringLiteral(KORVANE_SOURCE_DIR "/") + relativePath;
}

/// Every file of one kind ("skinnedmesh", "anim", ...) among the real models and the samples, in a fixed
/// order. Either folder may be missing.
inline QStringList modelFiles(const QString &suffix)
{
    QStringList files;
    for (const QString &folder : {shared(QStringLiteral("gamedata")), source(QStringLiteral("samples"))}) {
        if (folder.isEmpty())
            continue;
        QDirIterator walk(folder, {QStringLiteral("*.") + suffix}, QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext())
            files += walk.next();
    }
    files.sort();
    return files;
}
} // namespace TestSupport

/// Skips the test function when the folder of real models is not there.
#define SKIP_WITHOUT_SHARED(relativePath)                                                                    \
    if (TestSupport::shared(QStringLiteral(relativePath)).isEmpty())                                         \
    QSKIP("needs " relativePath " in the folder of real models beside the project")
