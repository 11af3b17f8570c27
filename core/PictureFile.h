// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

class QIODevice;

/// What a picture's header is believed, in pixels: 256 MiB as RGBA.
constexpr qint64 MostPixels = 64 * 1024 * 1024;

struct Picture
{
    QImage image;      ///< null when there is none that can be read, or one of more than MostPixels
    QByteArray format; ///< as its content seems: "png", "jpeg", "tga", …
};

/// Reads whatever the toolkit and its plug-ins do, and .tga.
[[nodiscard]] Picture readPicture(QIODevice &device);
[[nodiscard]] Picture readPicture(const QString &path);
/// Whether the file begins as a picture that can be read. A pipe does not, and is not opened.
[[nodiscard]] bool isPicture(const QString &path);
