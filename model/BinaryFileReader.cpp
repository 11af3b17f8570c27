// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BinaryFileReader.h"

#include "Files.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstring>
#include <limits>

namespace {
// Texts and lists of the toolkit count in ints.
constexpr qint64 MaxFileBytes = std::numeric_limits<int>::max();
constexpr qint64 MaxWindowBytes = 256 * 1024;
constexpr qint64 MaxChunkBytes = 4 * 1024 * 1024; // between two looks whether the read is to end
} // namespace

BinaryFileReader::BinaryFileReader(const QString &path)
{
    QString reason;
    m_file = Files::open(path, &reason, QIODevice::ReadOnly | QIODevice::Unbuffered);
    if (!m_file) {
        if (!Files::archiveOf(path).isEmpty())
            setErrorText(reason);
        return;
    }
    const qint64 size = m_file->size();
    if (size > MaxFileBytes) {
        setErrorText(QCoreApplication::translate("ModelFiles", "The file is 2 GiB or larger."));
        return;
    }
    m_windowBytes = std::min(size, MaxWindowBytes);
    m_window.reset(new uchar[size_t(m_windowBytes)]);
    m_cursor = m_end = m_window.get();
    m_unread = m_size = size;
    m_open = true;
}

BinaryFileReader::BinaryFileReader(const uchar *bytes, qint64 size)
    : m_cursor(bytes)
    , m_end(bytes + size)
    , m_open(true)
{}

void BinaryFileReader::setErrorText(const QString &text)
{
    if (hasError())
        return;
    m_errorText = text;
    // Nothing is left to read after a failure.
    m_cursor = m_end;
    m_unread = 0;
}

void BinaryFileReader::failAtEnd(const char *typeName)
{
    if (!m_failure.isEmpty())
        return setErrorText(m_failure);
    setErrorText(QCoreApplication::translate(
                     "ModelFiles", "Attempting to read %1 value from file, but reached end of file.")
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
    QByteArray text;
    while (m_cursor < m_end || fillWindow(1)) {
        const auto length = size_t(m_end - m_cursor);
        const auto *terminator = static_cast<const uchar *>(std::memchr(m_cursor, 0, length));
        const uchar *stop = terminator ? terminator : m_end;
        text.append(reinterpret_cast<const char *>(m_cursor), int(stop - m_cursor));
        m_cursor = terminator ? terminator + 1 : m_end;
        if (terminator)
            return QString::fromLatin1(text);
    }
    failAtEnd("uint8");
    return QString::fromLatin1(text);
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
    const qint64 bytes = count * qint64(sizeof(quint16));
    if (readBytes(reinterpret_cast<uchar *>(values.data()), bytes) < bytes) {
        values.clear();
        failAtEnd("uint16");
        return;
    }
    qFromLittleEndian<quint16>(values.data(), count, values.data());
}

void BinaryFileReader::readUInt16sUntil(std::vector<quint16> &values, quint16 terminator)
{
    values.clear();
    while (m_end - m_cursor >= qint64(sizeof(quint16)) || fillWindow(sizeof(quint16))) {
        const uchar *stop = m_cursor;
        while (m_end - stop >= qint64(sizeof(quint16)) && qFromLittleEndian<quint16>(stop) != terminator)
            stop += sizeof(quint16);
        const qint64 count = (stop - m_cursor) / qint64(sizeof(quint16));
        if (count > 0) {
            const size_t before = values.size();
            values.resize(before + size_t(count));
            qFromLittleEndian<quint16>(m_cursor, count, values.data() + before);
        }
        m_cursor = stop;
        if (m_end - stop >= qint64(sizeof(quint16))) {
            m_cursor += sizeof(quint16);
            return;
        }
    }
    values.clear();
    failAtEnd("uint16");
}

/// Brings at least `bytes` (at most a window full) to the cursor, keeping those already there. False when
/// the file ends before.
bool BinaryFileReader::fillWindow(qint64 bytes)
{
    if (bytes > bytesLeft())
        return false;
    const qint64 kept = m_end - m_cursor;
    std::memmove(m_window.get(), m_cursor, size_t(kept));
    const qint64 got = readFile(m_window.get() + kept, std::min(m_unread, m_windowBytes - kept));
    m_cursor = m_window.get();
    m_end = m_cursor + kept + got;
    return m_end - m_cursor >= bytes;
}

/// Reads from the file itself, past the window. Returns how many bytes there were.
qint64 BinaryFileReader::readFile(uchar *to, qint64 bytes)
{
    qint64 got = 0;
    while (got < bytes && !(m_progress && m_progress->isCancelled)) {
        const qint64 chunk =
            m_file->read(reinterpret_cast<char *>(to) + got, std::min(bytes - got, MaxChunkBytes));
        if (chunk < 0)
            m_failure = m_file->errorString();
        if (chunk <= 0)
            break;
        got += chunk;
        m_unread -= chunk;
        if (m_progress)
            m_progress->permille = int((m_size - m_unread) * 1000 / m_size);
    }
    return got;
}

qint64 BinaryFileReader::readBytes(uchar *to, qint64 bytes)
{
    qint64 got = 0;
    while (got < bytes && (m_cursor < m_end || fillWindow(1))) {
        const qint64 part = std::min(bytes - got, qint64(m_end - m_cursor));
        std::memcpy(to + got, m_cursor, size_t(part));
        m_cursor += part;
        got += part;
        if (bytes - got >= m_windowBytes)
            got += readFile(to + got, std::min(bytes - got, m_unread));
    }
    return got;
}

void BinaryFileReader::readFloatsBeyondWindow(float *values, qint64 count)
{
    const qint64 bytes = std::min(count * qint64(sizeof(float)), bytesLeft());
    const qint64 whole = readBytes(reinterpret_cast<uchar *>(values), bytes) / qint64(sizeof(float));
    qFromLittleEndian<float>(values, whole, values);
    if (whole < count) {
        std::fill(values + whole, values + count, 0.0f);
        failAtEnd("float");
    }
}
