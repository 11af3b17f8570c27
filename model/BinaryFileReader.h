// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>
#include <QtEndian>

#include <cstring>
#include <memory>
#include <vector>

/// Typed little-endian reads over the bytes of one file, with a sticky error text instead of exceptions.
///
/// The file is taken into memory whole when the reader is made (it may change on disk afterwards) and
/// closed again at once. The first read that needs more bytes than are left sets the error text; from then
/// on every read yields zero. No read allocates more than the bytes that are left can fill.
class BinaryFileReader
{
public:
    /// Opens `path`, which may be a file or a toolkit resource. Anything else (a folder, a pipe) is not
    /// opened. The error text stays empty in either case.
    explicit BinaryFileReader(const QString &path);

    bool isOpen() const { return m_open; }
    bool hasError() const { return !m_errorText.isEmpty(); }
    QString errorText() const { return m_errorText; }

    /// Records a failure found by a format reader. Only the first failure of a file is kept.
    void setErrorText(const QString &text);

    /// True when `count` records of `recordBytes` bytes each are left. Decided by division: no count from a
    /// file can overflow it.
    bool holds(qint64 count, qint64 recordBytes) const
    {
        return count <= 0 || recordBytes <= 0 || count <= (m_end - m_cursor) / recordBytes;
    }

    qint8 readInt8() { return readScalar<qint8>("int8"); }
    quint8 readUInt8() { return readScalar<quint8>("uint8"); }
    quint16 readUInt16() { return readScalar<quint16>("uint16"); }
    qint32 readInt32() { return readScalar<qint32>("int32"); }
    float readFloat() { return readScalar<float>("float"); }
    QVector2D readVec2();
    QVector3D readVec3();
    QVector4D readVec4();

    /// Latin-1 bytes up to a 0 byte, which is consumed and not kept.
    QString readString();

    /// Reads `count` floats into `values`; those that the file no longer holds become 0.
    void readFloats(float *values, qint64 count);

    /// Reads `count` values (none for a negative count) into `values`, which is left empty on failure.
    void readUInt16s(std::vector<quint16> &values, qint64 count);

    /// Reads values up to `terminator`, which is consumed and not kept.
    void readUInt16sUntil(std::vector<quint16> &values, quint16 terminator);

private:
    template <typename T>
    T readScalar(const char *typeName)
    {
        if (m_end - m_cursor < qint64(sizeof(T))) {
            failAtEnd(typeName);
            return T(0);
        }
        T value;
        qFromLittleEndian<T>(m_cursor, 1, &value);
        m_cursor += sizeof(T);
        return value;
    }

    void failAtEnd(const char *typeName);

    std::unique_ptr<uchar[]> m_bytes;
    const uchar *m_cursor = nullptr;
    const uchar *m_end = nullptr;
    bool m_open = false;
    QString m_errorText;
};

/// Appends `count` records to `records` (none for a negative count), each made by `readRecord(reader)`, and
/// stops at the first failure. `recordBytes` is the least a record takes in the file: a count that the file
/// cannot hold reserves nothing.
template <typename Record, typename ReadRecord>
void readRecords(BinaryFileReader &reader, qint64 count, qint64 recordBytes, std::vector<Record> &records,
                 ReadRecord readRecord)
{
    if (count > 0 && reader.holds(count, recordBytes))
        records.reserve(size_t(count));
    for (qint64 i = 0; i < count && !reader.hasError(); ++i)
        records.push_back(readRecord(reader));
}
