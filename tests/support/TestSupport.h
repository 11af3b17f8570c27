// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtTest>

#include <optional>

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

/// Those of the three kinds of models.
inline QStringList allModelFiles()
{
    return modelFiles("skinnedmesh") + modelFiles("anim") + modelFiles("staticmesh");
}
} // namespace TestSupport

/// A folder for the files of one test.
class TestFolder
{
public:
    const QTemporaryDir &folder() const { return m_folder; }
    QString path(const QString &name = {}) const { return m_folder.filePath(name); }
    /// The path of a file with these bytes; its folder is made.
    QString put(const QString &name, const QByteArray &bytes) const
    {
        QDir(path()).mkpath(QFileInfo(name).path());
        if (!TestSupport::writeFile(path(name), bytes))
            qFatal("cannot write %s", qPrintable(name));
        return path(name);
    }
    /// The path of a file with this model.
    template <typename Model>
    QString save(const QString &name, const Model &model) const
    {
        QDir(path()).mkpath(QFileInfo(name).path());
        if (model.write(path(name)))
            qFatal("cannot write %s", qPrintable(name));
        return path(name);
    }

private:
    QTemporaryDir m_folder;
};

/// Skips the test function when the folder of real models is not there.
#define SKIP_WITHOUT_SHARED(relativePath)                                                                    \
    if (TestSupport::shared(QStringLiteral(relativePath)).isEmpty())                                         \
    QSKIP("needs " relativePath " in the folder of real models beside the project")
