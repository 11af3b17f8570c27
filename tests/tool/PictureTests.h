// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ToolRun.h"

#include <QImage>

/// For tests of pictures that korvane-tool draws.
namespace PictureTests {
inline const QString Crate = "game/models/crate/crate.staticmesh";
inline const QString Tinker = "game/models/tinker/tinker.skinnedmesh";
inline const QString TinkerAnim = "game/anims/tinker/tinker.anim";

/// The smallest rectangle around what is not transparent.
inline QRect covered(const QImage &image)
{
    QRect rectangle;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 40)
                rectangle |= QRect(x, y, 1, 1);
        }
    }
    return rectangle;
}

inline int distinctColours(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 255)
                colours.insert(image.pixel(x, y));
        }
    }
    return colours.size();
}

/// Whether hardly anything differs but by rounding.
inline bool isAlike(const QImage &image, const QImage &other)
{
    if (image.isNull() || image.size() != other.size())
        return false;
    int off = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb one = image.pixel(x, y), two = other.pixel(x, y);
            off += qAbs(qRed(one) - qRed(two)) + qAbs(qGreen(one) - qGreen(two)) +
                       qAbs(qBlue(one) - qBlue(two)) + qAbs(qAlpha(one) - qAlpha(two)) >
                   24;
        }
    }
    return off * 100 <= image.width() * image.height();
}

/// The words, of which those with a point name samples.
inline QStringList withSamples(const QString &words)
{
    QStringList found = words.split(' ');
    for (QString &word : found) {
        if (word.contains('.'))
            word = TestSupport::source("samples/" + word);
    }
    return found;
}
} // namespace PictureTests
