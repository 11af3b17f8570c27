// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// A file of a mod that goes into its archive.
struct PackedFile
{
    QString path;
    QString name; ///< below the mod's folder, which is its path in the archive
    qint64 bytes = 0;
    bool replacesGame = false;
    bool isDeflated = true; ///< no format that is packed already
};

/// One that does not.
struct LeftOutFile
{
    QString name;
    QString reason; ///< what it is
};

/// What of a mod's folder belongs into the mod's archive: all that is there but for hidden files, backups,
/// files that other programs make models and pictures of, archives, programs, and what Korvane and the
/// desktop keep beside files. What the game does with a file of another kind nobody here knows, so it
/// belongs.
struct PackList
{
    std::vector<PackedFile> files; ///< ascending by the UTF-8 of their names, whatever the system
    std::vector<LeftOutFile> leftOut;
    /// Sentences on names that cannot go into one archive, and on folders of which something is missing.
    QStringList problems;
};

/// Why a file is none of the mod's, by its path below the mod's folder; empty when it belongs.
QString reasonToLeaveOut(const QString &name);

/// Walks through the mod's folder. `leftOut` are patterns with * and ?, of paths below it or, without a
/// slash, of names; `gamePath`, if any, is where replaced files are looked for. Ends early, with what it has,
/// when `goesOn` returns false.
PackList listForPacking(const QString &modFolder, const QString &gamePath, const QStringList &leftOut = {},
                        const std::function<bool()> &goesOn = {});

/// How the writing of an archive ended.
struct PackEnd
{
    bool isFailed = false;
    QString path;   ///< of what could not be read or written
    QString reason; ///< empty where somebody gave up
};

/// Writes the archive of these files, whole or not at all, in the place of what stands there. `goesOn`, which
/// is asked every now and then with the bytes that are done, ends it by returning false.
[[nodiscard]] PackEnd writePack(const PackList &list, const QString &target,
                                const std::function<bool(qint64 done)> &goesOn);
