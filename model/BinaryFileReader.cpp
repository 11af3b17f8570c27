// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BinaryFileReader.h"

#include <QFile>
#include <QFileInfo>

#include <new>

BinaryFileReader::BinaryFileReader(const QString &path)
{
    // Opening a pipe would wait for a writer for ever.
    if (!QFileInfo(path).isFile())
        return;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const qint64 size = file.size();
    if (size > 0)
        m_bytes.reset(new (std::nothrow) uchar[size_t(size)]);
    if (size > 0 && !m_bytes)
        return;
    qint64 got = 0;
    while (got < size) {
        const qint64 chunk = file.read(reinterpret_cast<char *>(m_bytes.get()) + got, size - got);
        if (chunk <= 0)
            break;
        got += chunk;
    }
    m_cursor = m_bytes.get();
    m_end = m_cursor + got;
    m_open = true;
}

void BinaryFileReader::setErrorText(const QString &text)
{
    if (hasError())
        return;
    m_errorText = text;
    // Nothing is left to read after a failure.
    m_cursor = m_end;
}

void BinaryFileReader::failAtEnd(const char *typeName)
{
    setErrorText(QStringLiteral("Attempting to read %1 value from file, but reached end of file.")
                     .arg(QLatin1String(typeName)));
}

QVector2D BinaryFileReader::readVec2()
{
    float v[2];
    readFloats(v, 2);
    return {v[0], v[1]};
}

QVector3D BinaryFileReader::readVec3()
{
    float v[3];
    readFloats(v, 3);
    return {v[0], v[1], v[2]};
}

QVector4D BinaryFileReader::readVec4()
{
    float v[4];
    readFloats(v, 4);
    return {v[0], v[1], v[2], v[3]};
}

QString BinaryFileReader::readString()
{
    const qint64 left = m_end - m_cursor;
    const auto *terminator =
        left > 0 ? static_cast<const uchar *>(std::memchr(m_cursor, 0, size_t(left))) : nullptr;
    const uchar *stop = terminator ? terminator : m_end;
    const QString text = QString::fromLatin1(reinterpret_cast<const char *>(m_cursor), int(stop - m_cursor));
    m_cursor = terminator ? terminator + 1 : m_end;
    if (!terminator)
        failAtEnd("uint8");
    return text;
}

void BinaryFileReader::readFloats(float *values, qint64 count)
{
    const qint64 whole = std::min<qint64>(count, (m_end - m_cursor) / qint64(sizeof(float)));
    qFromLittleEndian<float>(m_cursor, whole, values);
    m_cursor += whole * qint64(sizeof(float));
    if (whole < count) {
        std::fill(values + whole, values + count, 0.0f);
        failAtEnd("float");
    }
}

void BinaryFileReader::readUInt16s(std::vector<quint16> &values, qint64 count)
{
    values.clear();
    if (count <= 0)
        return;
    if (!holds(count, sizeof(quint16))) {
        failAtEnd("uint16");
        return;
    }
    values.resize(size_t(count));
    qFromLittleEndian<quint16>(m_cursor, count, values.data());
    m_cursor += count * qint64(sizeof(quint16));
}

void BinaryFileReader::readUInt16sUntil(std::vector<quint16> &values, quint16 terminator)
{
    values.clear();
    for (const uchar *probe = m_cursor; m_end - probe >= qint64(sizeof(quint16)); probe += sizeof(quint16)) {
        if (qFromLittleEndian<quint16>(probe) == terminator) {
            readUInt16s(values, (probe - m_cursor) / qint64(sizeof(quint16)));
            m_cursor += sizeof(quint16);
            return;
        }
    }
    failAtEnd("uint16");
}
