// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ZipReader.h"

#include <QDateTime>
#include <QHash>
#include <QMutex>
#include <QStringList>
#include <QVector>

#include <memory>
#include <vector>

/// A zip archive whose directory was read once. Nothing of it is believed: a name that leads elsewhere is
/// left out, sizes are what the contents have to come up to, and what would unpack to much more than anything
/// a game has is refused. Names are found in any case, as the game finds them. All functions may be called by
/// any thread at once.
class ZipArchive : public std::enable_shared_from_this<ZipArchive>
{
public:
    /// More entries make it none that is read.
    static constexpr int MostEntries = 200000;
    /// An entry may have this many bytes, and beyond FreeBytes be unpacked to no more than MostRatio times
    /// what is read of the archive for it, whatever that says.
    static constexpr qint64 MostBytes = qint64(1) << 30;
    static constexpr qint64 FreeBytes = 64 * 1024 * 1024;
    static constexpr qint64 MostRatio = 200;
    /// Of the names of files and folders in all, each with those around it; more make it none that is read.
    static constexpr qint64 MostNameBytes = 64 * 1024 * 1024;

    struct Folder
    {
        QString path; ///< below the archive; empty for all of it
        std::vector<int> folders;
        std::vector<int> files;
    };

    /// Reads the directory of the archive in a file. Null on failure; `reason` then says why.
    static std::shared_ptr<const ZipArchive> open(const QString &path, QString &reason);
    /// The same of one that is in memory.
    static std::shared_ptr<const ZipArchive> open(const QByteArray &bytes, QString &reason);

    /// By the path below the archive, in any case; null when there is none.
    const ZipEntry *file(const QString &path) const;
    const Folder *folder(const QString &path) const;
    const ZipEntry &fileAt(int number) const { return m_files[size_t(number)]; }
    const Folder &folderAt(int number) const { return m_folders[size_t(number)]; }
    int count() const { return int(m_files.size()); }
    /// What all names take in memory, about.
    qint64 nameBytes() const { return m_nameBytes; }
    /// Entries whose names lead elsewhere, links, and what stands where a folder is: how many, and the first
    /// of their names.
    int leftOutCount() const { return m_leftOutCount; }
    const QStringList &leftOut() const { return m_leftOut; }

    /// A device, open and with random access, that unpacks as far as it is read; it keeps the archive. Null
    /// when the entry is none that is unpacked; `reason` then says why. Damage met later fails the read, with
    /// an error text.
    std::unique_ptr<QIODevice> read(const ZipEntry &entry, QString &reason) const;

private:
    friend class ZipEntryDevice;

    static std::shared_ptr<const ZipArchive> take(std::shared_ptr<ZipArchive> archive, QString &reason);
    std::unique_ptr<ZipReader> makeReader() const;
    std::unique_ptr<ZipReader> borrow() const;
    void giveBack(std::unique_ptr<ZipReader> reader) const;
    void index(ZipReader &reader, QString &reason);
    void add(const ZipReader::Listed &listed);
    void leaveOut(const QByteArray &name);
    int folderFor(const QString &path);
    void countName(const QString &path);

    QString m_path;
    QByteArray m_bytes; ///< where there is no path
    qint64 m_size = 0;
    qint64 m_nameBytes = 0;
    QDateTime m_changed;
    std::vector<ZipEntry> m_files;
    std::vector<Folder> m_folders;
    QHash<QString, int> m_fileByPath; ///< in one case, as the next
    QHash<QString, int> m_folderByPath;
    QStringList m_leftOut;
    int m_leftOutCount = 0;
    mutable QMutex m_mutex;
    mutable std::vector<std::unique_ptr<ZipReader>> m_idle;
};
