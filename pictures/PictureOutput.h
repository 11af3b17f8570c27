// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QImage;

/// Writes a picture in one step, in the format that the name's extension says; PNG where it says none.
/// Returns what went wrong, without the file's name.
[[nodiscard]] QString writePicture(const QImage &image, const QString &path);

/// "walk.png" as the picture of this number among those up to `largest`: "walk-0012.png". Names stand in the
/// order of their numbers.
QString numberedPicture(const QString &path, int number, int largest);
