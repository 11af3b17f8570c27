// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>
#include <QtEndian>

#include <vector>

/// Typed little-endian writes into one buffer that becomes a file whole or not at all.
class BinaryFileWriter
{
public:
    /// Expects about `bytes` bytes; a wrong guess costs only time.
    explicit BinaryFileWriter(qint64 bytes);

    void writeInt8(qint8 value) { writeScalar(value); }
    void writeUInt8(quint8 value) { writeScalar(value); }
    void writeUInt16(quint16 value) { writeScalar(value); }
    void writeInt32(qint32 value) { writeScalar(value); }
    void writeFloat(float value) { writeScalar(value); }
    void writeVec2(const QVector2D &value);
    void writeVec3(const QVector3D &value);
    void writeVec4(const QVector4D &value);

    /// Latin-1 bytes and a 0 byte. A character outside Latin-1 becomes "?".
    void writeString(const QString &text);

    void writeFloats(const float *values, size_t count) { writeArray(values, count); }
    void writeUInt16s(const std::vector<quint16> &values) { writeArray(values.data(), values.size()); }

    /// Replaces the file at `path` in one step and returns true when that failed; the old file is then
    /// untouched.
    [[nodiscard]] bool commit(const QString &path) const;

private:
    template <typename T>
    void writeScalar(T value)
    {
        writeArray(&value, 1);
    }

    template <typename T>
    void writeArray(const T *values, size_t count)
    {
        uchar *to = grow(count * sizeof(T));
        qToLittleEndian<T>(values, qsizetype(count), to);
    }

    uchar *grow(size_t bytes)
    {
        if (m_size + bytes > m_bytes.size())
            m_bytes.resize(std::max(m_size + bytes, 2 * m_bytes.size()));
        uchar *to = m_bytes.data() + m_size;
        m_size += bytes;
        return to;
    }

    std::vector<uchar> m_bytes;
    size_t m_size = 0;
};
