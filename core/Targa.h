// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QImage>

/// The picture in the bytes of a .tga file, of any of its kinds: with a palette, true colors or grays, packed
/// or not. Without alpha where the file has none, which is also where all of it is nothing. A null one when
/// the header is none, or tells of more than the bytes can hold or `mostPixels`.
[[nodiscard]] QImage readTarga(const QByteArray &bytes, qint64 mostPixels);
/// Whether readTarga() reads it, from the beginning of the file and its size in bytes.
[[nodiscard]] bool isTarga(const QByteArray &beginning, qint64 size, qint64 mostPixels);
/// The most bytes of such a file, from its beginning, that tell of its picture.
[[nodiscard]] qint64 targaBytes(const QByteArray &beginning);
/// The size that the beginning of such a file tells of.
[[nodiscard]] QSize targaSize(const QByteArray &beginning);
