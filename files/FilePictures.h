// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PictureFile.h"

/// The same as in PictureFile.h, of a file in a folder or in an archive.
namespace Files {
[[nodiscard]] Picture readPicture(const QString &path);
[[nodiscard]] QSize pictureSize(const QString &path);
[[nodiscard]] bool isPicture(const QString &path);
} // namespace Files
