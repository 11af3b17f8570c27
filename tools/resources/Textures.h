// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QImage>

/// A plain colour, 8 x 8 texels: the blank texture of surfaces without one, the axes and the markers.
QImage makePlainTexture(const QColor &colour);

/// The ground: one seamless tile of 512 x 512 texels, meant for 200 x 200 units, with a line every 50 units
/// and a stronger one around the tile. It is drawn without mipmaps, so its lines are wide and soft.
QImage makeGroundTexture();
