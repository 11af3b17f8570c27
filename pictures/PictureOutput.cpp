// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PictureOutput.h"

#include "WholeFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>

#include <algorithm>

namespace {
constexpr int LeastDigits = 4; // blocks of up to 10,000 frames are named alike
} // namespace

QString writePicture(const QImage &image, const QString &path)
{
    // Thumbnailers are given names without an extension.
    QByteArray format = QFileInfo(path).suffix().toLower().toLatin1();
    if (!QImageWriter::supportedImageFormats().contains(format))
        format = "png";
    QBuffer bytes;
    QImageWriter writer(&bytes, format);
    return writer.write(image) ? writeWholeFile(path, bytes.data()) : writer.errorString();
}

QString numberedPicture(const QString &path, int number, int largest)
{
    const int digits = std::max(LeastDigits, QString::number(largest).size());
    const QString tail = QStringLiteral("-%1").arg(number, digits, 10, QLatin1Char('0'));
    const int suffix = QFileInfo(path).suffix().size();
    return suffix > 0 ? path.chopped(suffix + 1) + tail + path.right(suffix + 1) : path + tail;
}
