// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PictureFile.h"

#include "Targa.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

namespace {
constexpr qint64 Beginning = 64;      ///< bytes
constexpr qint64 MostBytes = 1 << 29; ///< of a .tga file; more than MostPixels take

/// The toolkit takes some for icons, which begin alike. A plug-in of its own for them may know few kinds.
bool isTargaIn(QIODevice &device, const QImageReader &reader)
{
    const QByteArray format = reader.canRead() ? reader.format() : QByteArray();
    return (format.isEmpty() || format == "tga" || format == "ico") && device.isOpen() &&
           isTarga(device.peek(Beginning), device.size(), MostPixels);
}
} // namespace

Picture readPicture(QIODevice &device)
{
    QImageReader reader(&device);
    if (isTargaIn(device, reader))
        return {readTarga(device.read(MostBytes), MostPixels), "tga"};
    const QSize size = reader.size();
    if (size.isValid() && qint64(size.width()) * size.height() > MostPixels)
        return {};
    const QByteArray format = reader.format();
    return {reader.read(), format};
}

Picture readPicture(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? readPicture(file) : Picture();
}

bool isPicture(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return false;
    QImageReader reader(&file);
    if (isTargaIn(file, reader))
        return true;
    return reader.canRead() && (reader.format() != "ico" || !reader.read().isNull());
}
