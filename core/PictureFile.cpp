// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PictureFile.h"

#include "Targa.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QSet>

namespace {
constexpr qint64 Beginning = 64; ///< bytes

/// The toolkit takes some for icons, which begin alike. A plug-in of its own for them may know few kinds.
bool isTargaIn(QIODevice &device, const QImageReader &reader)
{
    const QByteArray format = reader.canRead() ? reader.format() : QByteArray();
    return (format.isEmpty() || format == "tga" || format == "ico") && device.isOpen() &&
           isTarga(device.peek(Beginning), device.size(), MostPixels);
}

bool isOfKind(const QByteArray &format)
{
    // Icons hold whole pictures, whose sizes they do not tell.
    static const QSet<QByteArray> kinds{"png", "jpeg", "bmp", "gif"};
    return kinds.contains(format);
}

QSize sizeIn(const QImageReader &reader)
{
    return isOfKind(reader.format()) ? reader.size() : QSize();
}

bool fits(const QSize &size)
{
    return !size.isEmpty() && qint64(size.width()) * size.height() <= MostPixels;
}
} // namespace

bool isPictureName(const QString &path)
{
    static const QSet<QString> suffixes{QStringLiteral("png"),  QStringLiteral("tga"), QStringLiteral("jpg"),
                                        QStringLiteral("jpeg"), QStringLiteral("bmp"), QStringLiteral("gif")};
    return suffixes.contains(path.mid(path.lastIndexOf(QLatin1Char('.')) + 1).toLower());
}

Picture readPicture(QIODevice &device)
{
    QImageReader reader(&device);
    if (isTargaIn(device, reader))
        return {readTarga(device.read(targaBytes(device.peek(Beginning))), MostPixels), "tga"};
    const QByteArray format = reader.format();
    return fits(sizeIn(reader)) ? Picture{reader.read(), format} : Picture();
}

Picture readPicture(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? readPicture(file) : Picture();
}

QSize pictureSize(QIODevice &device)
{
    const QImageReader reader(&device);
    return isTargaIn(device, reader) ? targaSize(device.peek(Beginning)) : sizeIn(reader);
}

QSize pictureSize(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? pictureSize(file) : QSize();
}

bool isPicture(const QString &path)
{
    return fits(pictureSize(path));
}
