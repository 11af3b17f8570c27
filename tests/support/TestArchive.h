// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDirIterator>
#include <QFile>
#include <QtEndian>

#include <array>

/// Makes the bytes of a zip archive, also such as no tool would make.
class TestArchive
{
public:
    /// An entry; what is not given is what it should be.
    struct Entry
    {
        QByteArray name;
        QByteArray bytes;
        bool isDeflated = true;
        quint16 flags = 0;
        quint16 method = 0xffff; ///< another one than it is packed by
        qint64 size = -1;        ///< that it says it has, unpacked
        quint32 checksumError = 0;
        quint32 attributes = 0;
        qint64 packed = -1; ///< that it says it takes
    };

    void add(const Entry &entry)
    {
        const QByteArray packed = entry.isDeflated ? deflated(entry.bytes) : entry.bytes;
        const quint16 method = entry.method == 0xffff ? quint16(entry.isDeflated ? 8 : 0) : entry.method;
        const quint32 size = quint32(entry.size < 0 ? entry.bytes.size() : entry.size);
        QByteArray common;
        put<quint16>(common, 20);
        put<quint16>(common, entry.flags);
        put<quint16>(common, method);
        put<quint32>(common, 0x5a214000); // of the clock
        put<quint32>(common, crc32(entry.bytes) ^ entry.checksumError);
        put<quint32>(common, quint32(entry.packed < 0 ? packed.size() : entry.packed));
        put<quint32>(common, size);
        put<quint16>(common, quint16(entry.name.size()));
        put<quint16>(common, 0);
        m_directory += QByteArray("PK\1\2\x14\3", 6) + common;
        put<quint16>(m_directory, 0);
        put<quint16>(m_directory, 0);
        put<quint16>(m_directory, 0);
        put<quint32>(m_directory, entry.attributes);
        put<quint32>(m_directory, quint32(m_contents.size()));
        m_directory += entry.name;
        m_contents += QByteArray("PK\3\4", 4) + common + entry.name + packed;
        ++m_count;
    }
    void add(const QByteArray &name, const QByteArray &bytes) { add(Entry{name, bytes}); }
    /// All files below a folder.
    void addFolder(const QString &folder, bool isDeflated = true)
    {
        QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            const QString path = walk.next();
            QFile file(path);
            if (file.open(QIODevice::ReadOnly))
                add(Entry{path.mid(folder.size() + 1).toUtf8(), file.readAll(), isDeflated});
        }
    }

    /// `count` is how many entries it says it has; with `isZip64` it says all of that in the larger numbers.
    QByteArray bytes(qint64 count = -1, bool isZip64 = false) const
    {
        const quint64 said = count < 0 ? quint64(m_count) : quint64(count);
        QByteArray all = m_contents + m_directory;
        if (isZip64 || said > 0xffff) {
            const quint64 end = quint64(all.size());
            all += QByteArray("PK\6\6", 4);
            put<quint64>(all, 44);
            put<quint16>(all, 45);
            put<quint16>(all, 45);
            put<quint64>(all, 0);
            put<quint64>(all, said);
            put<quint64>(all, said);
            put<quint64>(all, quint64(m_directory.size()));
            put<quint64>(all, quint64(m_contents.size()));
            all += QByteArray("PK\6\7", 4);
            put<quint32>(all, 0);
            put<quint64>(all, end);
            put<quint32>(all, 1);
        }
        const bool isLarge = isZip64 || said > 0xffff;
        all += QByteArray("PK\5\6\0\0\0\0", 8);
        put<quint16>(all, isLarge ? quint16(0xffff) : quint16(said));
        put<quint16>(all, isLarge ? quint16(0xffff) : quint16(said));
        put<quint32>(all, isLarge ? 0xffffffff : quint32(m_directory.size()));
        put<quint32>(all, isLarge ? 0xffffffff : quint32(m_contents.size()));
        put<quint16>(all, 0);
        return all;
    }
    bool write(const QString &path) const
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes()) > 0;
    }

private:
    template <typename T>
    static void put(QByteArray &to, T value)
    {
        char bytes[sizeof(T)];
        qToLittleEndian<T>(value, bytes);
        to.append(bytes, int(sizeof(T)));
    }

    /// The toolkit's packed bytes without what stands around them.
    static QByteArray deflated(const QByteArray &bytes)
    {
        const QByteArray packed = qCompress(bytes, 6);
        return bytes.isEmpty() ? QByteArray("\3\0", 2) : packed.mid(6, packed.size() - 10);
    }

    static quint32 crc32(const QByteArray &bytes)
    {
        static const std::array<quint32, 256> table = [] {
            std::array<quint32, 256> made{};
            for (quint32 i = 0; i < 256; ++i) {
                quint32 value = i;
                for (int bit = 0; bit < 8; ++bit)
                    value = (value & 1) != 0 ? (value >> 1) ^ 0xedb88320 : value >> 1;
                made[i] = value;
            }
            return made;
        }();
        quint32 sum = 0xffffffff;
        for (const char c : bytes)
            sum = table[(sum ^ uchar(c)) & 0xff] ^ (sum >> 8);
        return ~sum;
    }

    QByteArray m_contents, m_directory;
    qint64 m_count = 0;
};
