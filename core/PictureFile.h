// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

class QIODevice;

/// What a picture's header is believed, in pixels: 256 MiB as RGBA.
constexpr qint64 MostPixels = 64 * 1024 * 1024;

/// The kinds that are read, as they are called: a file's content says which it is, not its name.
constexpr char PictureKinds[] = "PNG, JPEG, TGA, BMP, GIF";

/// Whether a file is called as pictures of these kinds are.
[[nodiscard]] bool isPictureName(const QString &path);

struct Picture
{
    QImage image;      ///< null when there is none that can be read, or one of more than MostPixels
    QByteArray format; ///< as its content seems: "png", "jpeg", "tga", …
};

/// Reads a picture of the PictureKinds; one that does not say beforehand how large it is is none.
[[nodiscard]] Picture readPicture(QIODevice &device);
[[nodiscard]] Picture readPicture(const QString &path);
/// What a file says of itself before it is read: the size is none where there is no picture of the kinds.
[[nodiscard]] QSize pictureSize(QIODevice &device);
[[nodiscard]] QSize pictureSize(const QString &path);
/// Whether the file begins as a picture that can be read. A pipe does not, and is not opened.
[[nodiscard]] bool isPicture(const QString &path);
