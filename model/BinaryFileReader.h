// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>
#include <QString>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>
#include <QtEndian>

#include <atomic>
#include <memory>
#include <utility>
#include <vector>

/// How another thread follows a read, and ends it: the file then seems to end early.
struct ReadProgress
{
    std::atomic_bool isCancelled{false};
    std::atomic_int permille{0}; ///< of the file's bytes
};

/// Typed little-endian reads over the bytes of one file, with a sticky error text instead of exceptions.
///
/// The first read that needs more bytes than are left sets the error text; from then on every read yields
/// zero. No read allocates more than the bytes that are left can fill.
class BinaryFileReader
{
public:
    /// Opens the file or toolkit resource at `path`, in a folder or an archive, for as long as the reader
    /// lives. Anything else (a folder, a pipe) is not opened, and the error text stays empty; it says why
    /// where an archive does not give the file. A file of 2 GiB or more is not opened
    /// either; that sets the error text. A file cut off while it is read ends where it was cut.
    explicit BinaryFileReader(const QString &path);

    /// Reads bytes that outlive the reader.
    BinaryFileReader(const uchar *bytes, qint64 size);

    bool isOpen() const { return m_open; }
    /// Tells of the read of a file there, and looks there whether it is to end; it outlives the reader.
    void setProgress(ReadProgress *progress) { m_progress = progress; }
    bool hasError() const { return !m_errorText.isEmpty(); }
    QString errorText() const { return m_errorText; }

    /// Records a failure found by a format reader. Only the first failure of a file is kept.
    void setErrorText(const QString &text);

    /// How many bytes were not read; none after a failure.
    qint64 bytesLeft() const { return m_end - m_cursor + m_unread; }

    /// True when `count` records of `recordBytes` bytes each are left. Decided by division: no count from a
    /// file can overflow it.
    bool holds(qint64 count, qint64 recordBytes) const
    {
        return count <= 0 || recordBytes <= 0 || count <= bytesLeft() / recordBytes;
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

    /// Records that the file ends within a value of the type named.
    void failAtEnd(const char *typeName);

    /// Reads `count` floats into `values`; those that the file no longer holds become 0.
    void readFloats(float *values, qint64 count)
    {
        if (m_end - m_cursor < count * qint64(sizeof(float)))
            return readFloatsBeyondWindow(values, count);
        qFromLittleEndian<float>(m_cursor, count, values);
        m_cursor += count * qint64(sizeof(float));
    }

    /// Reads `count` values (none for a negative count) into `values`, which is left empty on failure.
    void readUInt16s(std::vector<quint16> &values, qint64 count);

    /// Reads values up to `terminator`, which is consumed and not kept.
    void readUInt16sUntil(std::vector<quint16> &values, quint16 terminator);

private:
    template <typename T>
    T readScalar(const char *typeName)
    {
        if (m_end - m_cursor < qint64(sizeof(T)) && !fillWindow(sizeof(T))) {
            failAtEnd(typeName);
            return T(0);
        }
        T value;
        qFromLittleEndian<T>(m_cursor, 1, &value);
        m_cursor += sizeof(T);
        return value;
    }

    bool fillWindow(qint64 bytes);
    qint64 readFile(uchar *to, qint64 bytes);
    qint64 readBytes(uchar *to, qint64 bytes);
    void readFloatsBeyondWindow(float *values, qint64 count);

    // Reading goes through a small window, since a second copy of a big file costs more than parsing it;
    // long arrays go straight to their place. Mapping would be as quick, but a file cut off meanwhile
    // would then end the program.
    std::unique_ptr<QIODevice> m_file;
    std::unique_ptr<uchar[]> m_window;
    qint64 m_windowBytes = 0;
    qint64 m_size = 0;   ///< of the file
    qint64 m_unread = 0; ///< bytes of the file beyond the window
    const uchar *m_cursor = nullptr;
    const uchar *m_end = nullptr;
    bool m_open = false;
    ReadProgress *m_progress = nullptr;
    QString m_errorText;
    QString m_failure; ///< of the device
};

/// Appends `count` records to `records` (none for a negative count), each made by `readRecord(reader)`, and
/// stops at the first failure. `recordBytes` is the least that a record takes in the file, here or further
/// on. When the file cannot hold that many, the read is bound to fail: the records are then only walked
/// through, to fail where the file ends, and none is kept.
template <typename Record, typename ReadRecord>
void readRecords(BinaryFileReader &reader, qint64 count, qint64 recordBytes, std::vector<Record> &records,
                 ReadRecord readRecord)
{
    const bool held = reader.holds(count, recordBytes);
    if (held && count > 0)
        records.reserve(size_t(count));
    for (qint64 i = 0; i < count && !reader.hasError(); ++i) {
        Record record = readRecord(reader);
        if (held)
            records.push_back(std::move(record));
    }
}

/// Reads the file at `path` into a fresh model. Returns true on failure; `errorText`, if given, then says
/// why and is empty when the file could not be opened.
template <typename Model>
[[nodiscard]] bool readModelFile(Model &model, const QString &path, QString *errorText)
{
    BinaryFileReader reader(path);
    const bool failed = !reader.isOpen() || model.read(reader);
    if (errorText)
        *errorText = reader.errorText();
    return failed;
}
