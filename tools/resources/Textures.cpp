// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Textures.h"

#include <algorithm>
#include <cstdlib>

namespace {
constexpr int GroundSize = 512;

/// 1 in the middle of a line at every multiple of `spacing` texels, falling to 0 over `halfWidth` + 0.5
/// texels.
double lineCoverage(int texel, int spacing, double halfWidth)
{
    const int half = spacing / 2;
    const int offset = (texel + half) % spacing - half;
    const double distance = std::abs(offset + 0.5);
    return std::clamp(1.5 * (halfWidth + 0.5 - distance) / (halfWidth + 0.5), 0.0, 1.0);
}

double gridCoverage(int x, int y, int spacing, double halfWidth)
{
    return std::max(lineCoverage(x, spacing, halfWidth), lineCoverage(y, spacing, halfWidth));
}

int mix(int from, int to, double weight)
{
    return int(from + (to - from) * weight + 0.5);
}
} // namespace

QImage makePlainTexture(const QColor &colour)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

QImage makeGroundTexture()
{
    QImage image(GroundSize, GroundSize, QImage::Format_RGB32);
    for (int y = 0; y < GroundSize; ++y) {
        for (int x = 0; x < GroundSize; ++x) {
            const bool lightSquare = ((x / 128) + (y / 128)) % 2 == 0;
            int red = lightSquare ? 82 : 78;
            int green = lightSquare ? 91 : 87;
            int blue = lightSquare ? 102 : 98;
            const double minor = 0.4 * gridCoverage(x, y, GroundSize / 4, 2.0);
            const double major = 0.85 * gridCoverage(x, y, GroundSize, 4.0);
            red = mix(mix(red, 112, minor), 138, major);
            green = mix(mix(green, 123, minor), 151, major);
            blue = mix(mix(blue, 136, minor), 167, major);
            image.setPixel(x, y, qRgb(red, green, blue));
        }
    }
    return image;
}
