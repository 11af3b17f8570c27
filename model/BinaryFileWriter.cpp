// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BinaryFileWriter.h"

#include <QSaveFile>

BinaryFileWriter::BinaryFileWriter(qint64 bytes)
    : m_bytes(size_t(bytes))
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

void BinaryFileWriter::writeString(const QString &text)
{
    const QByteArray latin1 = text.toLatin1();
    // A QByteArray ends with a 0 byte beyond its size.
    writeArray(latin1.constData(), size_t(latin1.size()) + 1);
}

bool BinaryFileWriter::commit(const QString &path) const
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return true;
    const auto size = qint64(m_size);
    if (file.write(reinterpret_cast<const char *>(m_bytes.data()), size) != size)
        return true;
    return !file.commit();
}
