// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BinaryFileWriter.h"

#include <utility>

namespace {
// Small enough to stay in the processor's cache: a buffer of the whole file costs more than the writing.
constexpr size_t BufferBytes = 256 * 1024;
} // namespace

BinaryFileWriter::BinaryFileWriter(size_t expectedBytes)
    : m_file(QString())
    , m_toFile(false)
    , m_buffer(expectedBytes)
{}

BinaryFileWriter::BinaryFileWriter(const QString &path)
    : m_file(path)
    , m_toFile(true)
    , m_buffer(BufferBytes)
{}

void BinaryFileWriter::writeVec2(const QVector2D &value)
{
    const float v[2] = {value.x(), value.y()};
    writeFloats(v, 2);
}

void BinaryFileWriter::writeVec3(const QVector3D &value)
{
    const float v[3] = {value.x(), value.y(), value.z()};
    writeFloats(v, 3);
}

void BinaryFileWriter::writeVec4(const QVector4D &value)
{
    const float v[4] = {value.x(), value.y(), value.z(), value.w()};
    writeFloats(v, 4);
}

bool BinaryFileWriter::canWrite(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar each) { return each.unicode() > 0 && each.unicode() < 256; });
}

void BinaryFileWriter::writeString(const QString &text)
{
    const QByteArray latin1 = text.toLatin1();
    writeArray(latin1.constData(), size_t(qstrlen(latin1.constData())) + 1);
}

bool BinaryFileWriter::commit()
{
    flush();
    return m_file.commit();
}

const std::vector<uchar> &BinaryFileWriter::bytes()
{
    m_buffer.resize(m_used);
    return m_buffer;
}

std::vector<uchar> BinaryFileWriter::takeBytes()
{
    m_buffer.resize(std::exchange(m_used, 0));
    return std::exchange(m_buffer, {});
}

void BinaryFileWriter::makeRoom()
{
    if (m_toFile)
        flush();
    else
        m_buffer.resize(std::max<size_t>(64, 2 * m_buffer.size()));
}

void BinaryFileWriter::flush()
{
    // A failure stays with the file.
    static_cast<void>(m_file.write(reinterpret_cast<const char *>(m_buffer.data()), qint64(m_used)));
    m_used = 0;
}
