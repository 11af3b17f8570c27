// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

/// The decoded texture files, shared by every model that the program shows. Decoding takes most of the time
/// that opening a model takes, and models of one game share many of their textures.
namespace TextureImages {
/// As much is kept, in bytes: 32 textures of 1024 by 1024.
constexpr qint64 Room = 128 * 1024 * 1024;

/// The picture in a file, RGBA, row 0 at the top; null when there is none or it is too large. It is kept
/// until the file changes or the room is needed. Any thread may ask; one that asks for what another thread
/// decodes waits for that.
QImage load(const QString &path);
/// The same for what may be asked for soon. Of such files as much is kept as AheadRoom, apart from the
/// others, so they push out only one another. Gives the bytes of the picture.
qint64 loadAhead(const QString &path);
constexpr qint64 AheadRoom = 64 * 1024 * 1024;
} // namespace TextureImages
