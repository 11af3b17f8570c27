// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

class QColor;
class ScenePainter;
struct SceneFrame;

/// Paints a frame with soft edges over `background`, which may be transparent, into a picture of this size;
/// the frame's projection is that of such a picture. Needs the painter's context current, and leaves it with
/// this background, another view port and its default framebuffer. Null when the graphics driver has no
/// memory for it.
QImage paintPicture(ScenePainter &painter, const SceneFrame &frame, const QSize &size,
                    const QColor &background);
