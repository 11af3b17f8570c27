// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Figure.h"

#include <QImage>

/// Lays the charts of all parts of one material out in a square texture and paints them, with soft light,
/// shadow in the corners and highlights painted in: the editor's viewport draws without lighting. Changes the
/// parts' uv from their chart to the texture (v from the top).
QImage bakeTexture(Figure &figure, int material, int texels);
