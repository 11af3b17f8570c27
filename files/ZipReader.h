// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <memory>

/// An entry of a zip archive as its directory tells of it.
struct ZipEntry
{
    QString path;      ///< below the archive, in the case that it has there
    qint64 size = 0;   ///< bytes, unpacked
    qint64 packed = 0; ///< bytes in the archive
    quint32 checksum = 0;
    quint64 place = 0; ///< in the directory, and its number there: how it is found again
    quint64 number = 0;
    int method = 0; ///< 0 as it is, 8 deflated
    bool isEncrypted = false;
};

/// One way into an archive, for one thread at a time. Many may be open at once.
class ZipReader
{
public:
    /// What stands in an entry of the directory.
    struct Listed
    {
        ZipEntry entry; ///< without its path
        QByteArray name;
        bool isUtf8 = false;
        bool isLink = false;
    };

    /// Takes a device that is open, may be read anywhere, and holds an archive. Null when it holds none.
    static std::unique_ptr<ZipReader> open(std::unique_ptr<QIODevice> device);
    ~ZipReader();
    ZipReader(const ZipReader &) = delete;
    ZipReader &operator=(const ZipReader &) = delete;

    /// How many entries the archive says it has, which may be a lie; bytes of all of it.
    quint64 count() const;
    qint64 size() const;

    /// Goes through the directory, from its beginning. False at its end, and then `isWhole` says whether that
    /// is where it should be.
    bool next(Listed &listed, bool &isWhole);

    /// Goes to the contents of an entry. False when what stands there has not its size and checksum.
    bool enter(const ZipEntry &entry);
    /// The next bytes of the contents, as many as wanted. -1 when they cannot be unpacked.
    int read(char *to, int bytes);
    /// How many bytes of the archive were read for them, or a little more.
    qint64 taken() const;
    /// Ends that; false when all was read and does not have the entry's checksum.
    bool leave();

private:
    ZipReader();

    struct Handle;
    std::unique_ptr<Handle> m_handle;
};
