// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "WholeFile.h"

#include <QString>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>
#include <QtEndian>

#include <algorithm>
#include <vector>

/// Typed little-endian writes that become a file whole or not at all.
class BinaryFileWriter
{
public:
    /// Writes into memory, see bytes(). Room for `expectedBytes` is made at once.
    explicit BinaryFileWriter(size_t expectedBytes = 64);

    /// Writes a new file beside the one at `path`, which commit() puts in its place. Nothing on disk is
    /// touched before the first bytes go out.
    explicit BinaryFileWriter(const QString &path);

    void writeInt8(qint8 value) { writeArray(&value, 1); }
    void writeUInt8(quint8 value) { writeArray(&value, 1); }
    void writeUInt16(quint16 value) { writeArray(&value, 1); }
    void writeInt32(qint32 value) { writeArray(&value, 1); }
    void writeFloat(float value) { writeArray(&value, 1); }
    void writeVec2(const QVector2D &value);
    void writeVec3(const QVector3D &value);
    void writeVec4(const QVector4D &value);

    /// Latin-1 bytes and a 0 byte. A character outside Latin-1 becomes "?"; a null character ends the text,
    /// as it would when read back.
    void writeString(const QString &text);
    /// Whether it reads back as it was.
    static bool canWrite(const QString &text);

    void writeFloats(const float *values, size_t count) { writeArray(values, count); }
    void writeUInt16s(const std::vector<quint16> &values) { writeArray(values.data(), values.size()); }

    /// Replaces the file in one step and returns true when that, or any write before it, failed; the old
    /// file is then untouched.
    [[nodiscard]] bool commit();

    /// Why commit() failed.
    const QString &reason() const { return m_file.reason(); }

    /// What was written into memory.
    const std::vector<uchar> &bytes();
    /// The same, handed over; the writer is empty then.
    std::vector<uchar> takeBytes();

private:
    template <typename T>
    void writeArray(const T *values, size_t count)
    {
        if (count * sizeof(T) <= m_buffer.size() - m_used)
            append(values, count);
        else
            writeInParts(values, count);
    }

    template <typename T>
    void writeInParts(const T *values, size_t count)
    {
        while (count > 0) {
            makeRoom();
            const size_t part = std::min(count, (m_buffer.size() - m_used) / sizeof(T));
            append(values, part);
            values += part;
            count -= part;
        }
    }

    template <typename T>
    void append(const T *values, size_t count)
    {
        if (count == 0)
            return;
        qToLittleEndian<T>(values, qsizetype(count), m_buffer.data() + m_used);
        m_used += count * sizeof(T);
    }

    void makeRoom();
    void flush();

    WholeFile m_file;
    bool m_toFile;
    std::vector<uchar> m_buffer;
    size_t m_used = 0;
};

/// Writes a model to `path` in one step. Returns true on failure; `reason`, if given, then says why.
template <typename Model>
[[nodiscard]] bool writeModelFile(const Model &model, const QString &path, QString *reason)
{
    // Before a save file is opened.
    QString failure = model.refusal();
    if (failure.isEmpty()) {
        BinaryFileWriter writer(path);
        if (!model.write(writer) && !writer.commit())
            return false;
        failure = writer.reason();
    }
    if (reason)
        *reason = failure;
    return true;
}
