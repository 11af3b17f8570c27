// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Tinker.h"

#include <algorithm>
#include <cmath>

namespace Tinker {
using namespace Palette;

namespace {
Surfacing knit(const PaintPoint &)
{
    return {Scarf, 0.05f};
}

/// The tail's end carries two cream stripes.
Surfacing tailEnd(const PaintPoint &point)
{
    const float z = point.position.z();
    const bool stripe = (z < -6.0f && z > -9.0f) || (z < -11.5f && z > -14.5f);
    return {stripe ? Cream : Scarf, 0.05f};
}

void addScarf(Figure &figure)
{
    Shape collar = lathe(ringProfile(16.5f, 7.2f, 6.6f, 10), 20, 1, 0.94f);
    collar.deform([](const QVector3D &p) {
        // Folds, and lower at the front.
        const float angle = std::atan2(p.x(), -p.y());
        return QVector3D(p.x(), p.y(),
                         p.z() * (1.0f + 0.10f * std::sin(5.0f * angle)) - 2.4f * std::cos(angle));
    });
    figure.add(UpperTorso, collar.move(0, 0, 21).finish(70), knit, 1.0f, ScarfMaterial);
    figure.add(UpperTorso, roundedBox({6.0f, 4.4f, 5.6f}, 3.6f, 2).move(15, 17.5f, 19).finish(), knit, 1.0f,
               ScarfMaterial);
    const auto strip = [](float top, float bottom, float topWidth, float bottomWidth) {
        Shape shape = roundedBox({1.0f, 1.7f, (top - bottom) / 2}, 0.95f, 1);
        shape.move(0, 0, (top + bottom) / 2);
        return shape.deform([=](const QVector3D &p) {
            const float along = (top - p.z()) / (top - bottom);
            return QVector3D(p.x() * (topWidth + (bottomWidth - topWidth) * along), p.y(), p.z());
        });
    };
    figure.add(Scarf1, strip(3, -19, 5.5f, 7.5f).finish(70), knit, 1.0f, ScarfMaterial);
    figure.add(Scarf2, strip(2, -19, 7.5f, 8.8f).finish(70), knit, 1.0f, ScarfMaterial);
    figure.add(Scarf3, strip(2, -17, 8.8f, 9.8f).finish(70), tailEnd, 1.0f, ScarfMaterial);
}

void addWindKey(Figure &figure)
{
    // The shaft points back, the key's two rings stand upright beside each other.
    figure.add(WindKey,
               lathe({{0, 13}, {2.6f, 13}, {2.6f, 4}, {5.4f, 3.4f}, {6, 0}, {6, -4}, {0, -4}}, 12)
                   .turn(-90, 0, 0)
                   .finish(40),
               plain(Brass, 0.6f), 0.6f);
    for (const float side : {-1.0f, 1.0f}) {
        figure.add(
            WindKey,
            lathe(ringProfile(7.0f, 2.3f, 2.1f, 6), 16).turn(90, 0, 0).move(side * 8.2f, 14, 0).finish(70),
            plain(Brass, 0.65f), 0.7f);
    }
    figure.add(WindKey, roundedBox({4.2f, 2.4f, 4.2f}, 1.8f, 1).move(0, 14, 0).finish(), plain(Brass, 0.65f),
               0.6f);
}

void addLantern(Figure &figure)
{
    // Hangs from the belt by its ring; the bone is the hook.
    figure.add(Lantern, lathe(ringProfile(3.2f, 0.9f, 0.9f, 6), 12).turn(0, 90, 0).move(0, 0, -2).finish(70),
               plain(Steel, 0.5f), 0.4f);
    figure.add(
        Lantern,
        lathe({{0, -5}, {1.6f, -5}, {2.4f, -6.2f}, {6.6f, -8.6f}, {7, -9.8f}, {0, -9.8f}}, 12).finish(40),
        plain(Brass, 0.6f), 0.6f);
    figure.add(
        Lantern,
        lathe({{0, -9}, {4.6f, -9.4f}, {5.8f, -13}, {5.8f, -17}, {4.6f, -20.4f}, {0, -21}}, 12).finish(),
        [](const PaintPoint &point) {
            const float heart = std::abs(point.position.z() + 16.0f) / 6.0f;
            return Surfacing{mixed(rgb(255, 244, 196), rgb(250, 158, 48), std::min(1.0f, heart)), 0.0f, 1.0f};
        },
        1.0f, GlowMaterial);
    for (int i = 0; i < 4; ++i) {
        figure.add(Lantern,
                   roundedBox({0.8f, 0.8f, 6.6f}, 0.5f, 1)
                       .move(0, -6.2f, -15)
                       .turn(0, 0, 45.0f + 90.0f * float(i))
                       .finish(),
                   plain(Brass * 0.85f, 0.5f), 0.4f);
    }
    figure.add(Lantern, lathe({{0, -20}, {6.8f, -20}, {7.2f, -21}, {7, -23.4f}, {0, -23.8f}}, 12).finish(40),
               plain(Brass, 0.6f), 0.6f);
}

void addWrench(Figure &figure)
{
    // Held in the right hand: the shaft goes forward through the fist, the jaw opens ahead.
    const auto grip = [](const PaintPoint &point) {
        const float y = point.position.y();
        if (y < -11.0f)
            return Surfacing{Steel, 0.55f};
        const float band = std::abs(std::fmod(y + 40.0f, 4.0f) - 2.0f);
        return Surfacing{mixed(DarkTeal * 0.8f, Teal, smoothStep(0.3f, 0.8f, band)), 0.15f};
    };
    const auto lengthwise = [](Shape shape) { return shape.turn(90, 0, 0); };
    figure.add(Wrench,
               lengthwise(lathe({{0, 38}, {2.9f, 38}, {3.0f, 11}, {3.9f, 10.8f}, {3.9f, -13}, {0, -13}}, 12))
                   .finish(40),
               grip, 0.9f);
    figure.add(Wrench, lengthwise(ball(5.2f, 12, 6)).move(0, 15, 0).finish(), plain(Brass, 0.6f), 0.6f);
    const Paint steel = plain(Steel, 0.6f);
    figure.add(Wrench, roundedBox({4.4f, 6.5f, 13}, 3.2f, 2).move(0, -40, 0).finish(), steel, 0.7f);
    // The fixed jaw is longer than the sliding one, and both lean inwards.
    figure.add(Wrench, roundedBox({4.2f, 12, 4.8f}, 3.0f, 2).turn(-10, 0, 0).move(0, -52, 10.5f).finish(),
               steel, 0.7f);
    figure.add(Wrench, roundedBox({3.8f, 9.5f, 4.4f}, 2.8f, 2).turn(10, 0, 0).move(0, -50, -10).finish(),
               steel, 0.7f);
    figure.add(Wrench,
               lathe({{0, 5.6f}, {3.4f, 5.6f}, {4.2f, 4.8f}, {4.2f, -4.8f}, {3.4f, -5.6f}, {0, -5.6f}}, 12)
                   .turn(0, 90, 0)
                   .move(0, -40, 0)
                   .finish(40),
               plain(Brass, 0.6f), 0.6f);
}
} // namespace

void addGear(Figure &figure)
{
    addScarf(figure);
    addWindKey(figure);
    addLantern(figure);
    addWrench(figure);
}
} // namespace Tinker
