// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Props.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {
const QVector3D Brass = rgb(222, 164, 66);
const QVector3D Iron = rgb(62, 74, 92);

/// Planks across the chart's height, each of a tone of its own, with a little grain.
Paint planks(int count, bool upright)
{
    return [=](const PaintPoint &point) {
        const float across =
            (upright ? point.position.x() + point.position.y() : point.position.z()) + 100.0f;
        const float along = upright ? point.position.z() : point.position.x() + point.position.y();
        const float width = 72.0f / float(count);
        const float plank = std::floor(across / width);
        const float inPlank = across / width - plank;
        const float tone = 0.92f + 0.16f * std::abs(std::sin(plank * 2.4f + float(point.chart)));
        const float grain = 1.0f + 0.035f * std::sin(across * 2.1f + 1.3f * std::sin(along * 0.11f + plank));
        const float gap = smoothStep(0.0f, 0.06f, std::min(inPlank, 1.0f - inPlank));
        return Surfacing{rgb(176, 122, 74) * (tone * grain * (0.45f + 0.55f * gap)), 0.05f};
    };
}

Surfacing beam(const PaintPoint &point)
{
    const float along = point.position.x() + point.position.y() + point.position.z();
    return {rgb(132, 86, 52) * (1.0f + 0.03f * std::sin(along * 0.6f)), 0.08f};
}

/// Moves a shape made for the front (-y) to one of the four sides, or to the top or bottom.
Shape onSide(Shape shape, int side)
{
    if (side < 4)
        return shape.turn(0, 0, 90.0f * float(side));
    return shape.turn(side == 4 ? -90.0f : 90.0f, 0, 0);
}
} // namespace

Figure makeCrate()
{
    constexpr float Half = 40.0f;
    Figure crate;
    crate.bones = {{-1, {}, {}, BoneType::Body, 0}};
    const auto add = [&](Shape shape, const Paint &paint, float detail) {
        crate.add(0, shape.move(0, 0, Half).finish(), paint, detail);
    };
    add(roundedBox({36, 36, 36}, 1, 1, 12), planks(5, false), 1.0f);
    // A frame of beams around each side and a brace across it.
    for (int side = 0; side < 4; ++side)
        add(onSide(roundedBox({4.5f, 4.5f, Half - 2}, 1.6f, 1, 20).move(Half - 5.5f, -Half + 5.5f, 0), side),
            beam, 0.7f);
    for (const float z : {-Half + 5.5f, Half - 5.5f}) {
        for (int side = 0; side < 4; ++side)
            add(onSide(roundedBox({Half - 9.5f, 4.0f, 4.5f}, 1.4f, 1, 20).move(0, -Half + 5.5f, z), side),
                beam, 0.7f);
    }
    for (int side = 0; side < 4; ++side)
        add(onSide(roundedBox({41, 1.6f, 4}, 1.2f, 1, 20)
                       .turn(0, side % 2 == 0 ? 45.0f : -45.0f, 0)
                       .move(0, -Half + 3.2f, 0),
                   side),
            beam, 0.7f);
    // Brass corners with a rivet each way.
    for (const float x : {-1.0f, 1.0f}) {
        for (const float y : {-1.0f, 1.0f}) {
            for (const float z : {-1.0f, 1.0f}) {
                add(roundedBox({7, 7, 7}, 2, 1).move(x * (Half - 7), y * (Half - 7), z * (Half - 7)),
                    plain(Brass, 0.6f), 0.6f);
            }
        }
    }
    // The mark of a maker of clockwork: a cog on the front.
    Shape cog = plate({13, 13, 2, 0.6f, 2.0f}, 36, 3);
    cog.deform([](const QVector3D &p) {
        const float radius = std::hypot(p.x(), p.z());
        const float tooth = std::sin(8.0f * std::atan2(p.z(), p.x())) > 0.0f ? 1.0f : 0.8f;
        const float scale = radius > 9.0f ? tooth : 1.0f;
        return QVector3D(p.x() * scale, p.y() - Half - 0.4f, p.z() * scale);
    });
    add(
        cog,
        [](const PaintPoint &point) {
            const float radius = std::hypot(point.position.x(), point.position.z() - Half);
            return Surfacing{radius < 4.5f ? rgb(60, 44, 36) : Brass, 0.5f};
        },
        1.0f);
    return crate;
}

Figure makeStreetLantern()
{
    Figure lantern;
    lantern.bones = {{-1, {}, {}, BoneType::Body, 0}};
    const Paint iron = plain(Iron, 0.35f);
    const Paint brass = plain(Brass, 0.6f);
    lantern.add(0,
                lathe({{0, 22}, {7, 22}, {8, 19}, {13, 14}, {14, 8}, {20, 5}, {21, 0}, {0, 0}}, 8).finish(30),
                plain(rgb(140, 146, 152), 0.05f));
    lantern.add(0, lathe({{0, 160}, {3, 160}, {3.4f, 100}, {4.4f, 22}, {0, 22}}, 10).finish(), iron, 0.6f);
    for (const float z : {24.0f, 92.0f, 152.0f})
        lantern.add(0, lathe(ringProfile(4.2f, 2.4f, 2.2f, 8), 12).move(0, 0, z).finish(70), brass, 0.6f);
    // The arm reaches forward in a curl and holds the light.
    std::vector<QVector3D> arm;
    for (int i = 0; i <= 14; ++i) {
        const float angle = 3.14159265f * (1.0f - float(i) / 14.0f * 0.92f);
        arm.emplace_back(0.0f, -22.0f - 22.0f * std::cos(angle), 158.0f + 26.0f * std::sin(angle));
    }
    lantern.add(0, tube(arm, 2.4f, 8).finish(), iron, 0.6f);
    const float y = -43.4f;
    const auto hang = [&](Shape shape) { return shape.move(0, y, 0).finish(40); };
    lantern.add(0, hang(lathe(ringProfile(3.4f, 1.0f, 1.0f, 6), 12).turn(0, 90, 0).move(0, 0, 160)), brass,
                0.5f);
    lantern.add(
        0, hang(lathe({{0, 158}, {2.4f, 158}, {3.2f, 155}, {13, 147}, {15, 144.5f}, {14, 143}, {0, 143}}, 6)),
        iron, 0.8f);
    for (int i = 0; i < 6; ++i)
        lantern.add(0,
                    hang(roundedBox({0.9f, 0.9f, 11.5f}, 0.6f, 1)
                             .turn(4, 0, 0)
                             .move(0, -9.4f, 132)
                             .turn(0, 0, 60.0f * float(i))),
                    iron, 0.5f);
    lantern.add(
        0, hang(lathe({{0, 122}, {9.4f, 122}, {10, 120.5f}, {9, 118}, {3, 115}, {1.6f, 112}, {0, 112}}, 6)),
        brass, 0.8f);
    lantern.add(
        0, hang(lathe({{0, 143.5f}, {10.4f, 143.5f}, {8.2f, 121.5f}, {0, 121.5f}}, 6)),
        [](const PaintPoint &point) {
            // A flame behind frosted glass.
            const float across = std::hypot(point.position.x(), point.position.y() - -43.4f);
            const float z = (point.position.z() - 129.0f) / 11.0f;
            const float heart = smoothStep(1.2f, 0.1f, std::abs(z)) * smoothStep(0.0f, 4.0f, across);
            return Surfacing{mixed(rgb(246, 150, 50), rgb(255, 240, 184), heart), 0.0f, 1.0f};
        },
        1.0f, 1);
    return lantern;
}
