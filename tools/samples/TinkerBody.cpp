// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Tinker.h"

#include <algorithm>
#include <cmath>

namespace Tinker {
using namespace Palette;

namespace {
/// The body is flatter than round.
constexpr float Flatness = 0.88f;

/// Alternating radii give a bellows.
std::vector<QVector2D> bellows(float top, float bottom, float radius, int folds)
{
    std::vector<QVector2D> profile{{0.0f, top}};
    for (int i = 0; i <= 2 * folds; ++i) {
        const float z = top + (bottom - top) * float(i) / float(2 * folds);
        profile.emplace_back(i % 2 == 0 ? radius * 0.84f : radius, z);
    }
    profile.emplace_back(0.0f, bottom);
    return profile;
}

/// Small dark dots in a row around a lathe, with a light edge below.
float rivet(float around, float fromRow)
{
    const float across = around - std::round(around);
    return 1.0f - smoothStep(0.8f, 1.5f, std::hypot(across * 9.0f, fromRow));
}

Surfacing shirt(const PaintPoint &point)
{
    // A cream yoke over teal, parted by a dark line, with a row of rivets under it.
    const float z = point.position.z();
    const float edge = 9.5f + 3.0f * std::abs(point.position.x()) / 26.0f;
    Surfacing result{z > edge ? Cream : Teal, 0.18f};
    const float seam = 1.0f - smoothStep(0.5f, 1.1f, std::abs(z - edge));
    result.colour = mixed(result.colour, DarkTeal * 0.6f, seam);
    const float around = std::atan2(point.position.x(), -point.position.y()) / 6.2831853f * 14.0f;
    result.colour = mixed(result.colour, DarkTeal * 0.75f, rivet(around, z - edge + 4.0f));
    return result;
}

Surfacing tunic(const PaintPoint &point)
{
    // Panel lines down the tunic and a lighter hem.
    const float around = std::atan2(point.position.x(), -point.position.y()) / 6.2831853f * 8.0f + 0.5f;
    const float line = std::abs(around - std::round(around)) * 20.0f;
    Surfacing result{Teal, 0.15f};
    result.colour = mixed(result.colour, DarkTeal * 0.8f, 0.8f * (1.0f - smoothStep(0.3f, 0.8f, line)));
    return result;
}

Surfacing shinGuard(const PaintPoint &point)
{
    const float z = point.position.z();
    Surfacing result{Cream, 0.22f};
    result.colour = mixed(result.colour, Teal, smoothStep(-12.2f, -12.8f, z));
    return result;
}

Surfacing gauntlet(const PaintPoint &point)
{
    const float z = point.position.z();
    Surfacing result{Cream, 0.22f};
    result.colour = mixed(result.colour, Teal, smoothStep(-10.8f, -11.4f, z) * smoothStep(-18.0f, -17.4f, z));
    return result;
}

Surfacing boot(const PaintPoint &point)
{
    // A brass toe cap, and stitches where it meets the leather.
    const float y = point.position.y();
    Surfacing result{Leather, 0.12f};
    result.colour = mixed(result.colour, Leather * 1.25f, smoothStep(2.0f, 6.0f, point.position.z()) * 0.6f);
    if (y < -13.0f)
        result = {Brass, 0.5f};
    result.colour = mixed(result.colour, Sole * 0.8f, 1.0f - smoothStep(0.4f, 1.0f, std::abs(y + 13.0f)));
    return result;
}

Surfacing glove(const PaintPoint &point)
{
    Surfacing result{Leather, 0.1f};
    result.colour = mixed(result.colour, Leather * 1.2f, smoothStep(-6.0f, -1.0f, point.position.z()));
    return result;
}

void addGauge(Figure &figure)
{
    const auto dial = [](const PaintPoint &point) {
        // A needle, a ring of ticks and a red last quarter on a warm lit dial.
        const float x = point.position.x(), z = point.position.z();
        const float radius = std::hypot(x, z);
        const float angle = std::atan2(z, x);
        Surfacing result{mixed(Light, rgb(255, 240, 200), 0.45f), 0.0f, 1.0f};
        const float tick = angle / 0.5235988f;
        if (radius > 4.2f && radius < 5.6f && std::abs(tick - std::round(tick)) < 0.16f)
            result.colour = Night;
        if (radius > 4.2f && angle > 0.05f && angle < 0.95f)
            result.colour = mixed(result.colour, Scarf, 0.85f);
        const QVector2D needle(std::cos(2.2f), std::sin(2.2f));
        const float alongNeedle = x * needle.x() + z * needle.y();
        const float aside = std::abs(x * needle.y() - z * needle.x());
        if ((alongNeedle > -1.0f && alongNeedle < 4.6f && aside < 0.55f) || radius < 1.1f)
            result.colour = Night;
        return result;
    };
    // Painted before it is put in place, so that the dial lies in the plane y = 0.
    const auto place = [](Shape &shape) { shape.turn(-8, 0, 0).move(0, -24.4f, 2.0f); };
    Shape rim = lathe(ringProfile(7.4f, 1.7f, 2.4f, 6), 20).turn(90, 0, 0);
    place(rim);
    figure.add(UpperTorso, rim.finish(70), plain(Brass, 0.6f), 0.8f);
    Shape glass = plate({7.0f, 7.0f, 2.0f, 1.0f, 1.0f}, 20, 2);
    place(glass);
    figure.add(
        UpperTorso, glass.finish(),
        [dial](const PaintPoint &point) {
            PaintPoint local = point;
            local.position.setZ(point.position.z() - 2.0f);
            return dial(local);
        },
        2.4f, GlowMaterial);
}
} // namespace

void addTorso(Figure &figure)
{
    figure.add(Pelvis,
               lathe({{0, 10}, {16, 10}, {22, 6}, {23.5f, 0}, {22, -6}, {17, -11}, {9, -13}, {0, -13.5f}}, 18,
                     1, Flatness)
                   .finish(),
               plain(Navy, 0.08f));
    figure.add(
        LowerTorso,
        lathe(
            divided({{0, 14}, {24, 14}, {26.5f, 10}, {26, 3}, {24.5f, -4}, {25.5f, -9}, {20, -10}, {0, -10}},
                    4),
            24, 1, Flatness)
            .finish(),
        tunic);
    // Belt and buckle.
    figure.add(
        LowerTorso,
        lathe({{22, 1}, {26.4f, 1}, {27.2f, 0}, {26.8f, -6}, {26, -7}, {22, -7}}, 20, 1, Flatness).finish(),
        plain(Leather, 0.12f));
    figure.add(LowerTorso, roundedBox({6.5f, 2.2f, 5}, 1.4f, 1).move(0, -23.6f, -3).finish(),
               plain(Brass, 0.6f));
    figure.add(LowerTorso, roundedBox({3.6f, 2.2f, 2.4f}, 0.8f, 1).move(0, -24.5f, -3).finish(),
               plain(Leather * 0.7f));
    figure.add(
        UpperTorso,
        lathe(
            divided(
                {{0, 24.5f}, {9, 24}, {16, 22}, {22, 17}, {26, 10}, {28, 2}, {27.5f, -5}, {24, -6}, {0, -6}},
                3.5f),
            28, 1, Flatness)
            .finish(),
        shirt, 1.2f);
    figure.add(UpperTorso,
               lathe(ringProfile(27.2f, 1.8f, 1.8f, 6), 20, 1, Flatness).move(0, 0, -4.5f).finish(70),
               plain(Brass, 0.6f), 0.7f);
    addGauge(figure);
    figure.add(Neck, lathe(bellows(8, -6, 12, 3), 14).finish(75), plain(Navy, 0.1f), 0.6f);
}

void addLimbs(Figure &figure)
{
    const auto both = [&](int left, int right, Shape shape, const Paint &paint, float detail) {
        figure.addTwin(right, figure.add(left, std::move(shape), paint, detail));
    };
    const auto dome = [](float radius, float height) {
        return std::vector<QVector2D>{{0, height},
                                      {radius * 0.5f, height * 0.87f},
                                      {radius * 0.86f, height * 0.5f},
                                      {radius, 0},
                                      {radius, -2},
                                      {radius * 0.8f, -3.0f},
                                      {0, -3.0f}};
    };
    // Arms.
    both(LeftShoulder, RightShoulder, lathe(dome(12.5f, 10), 16).turn(0, 32, 0).move(6, 0, 1).finish(60),
         plain(Cream, 0.3f), 0.8f);
    both(LeftShoulder, RightShoulder,
         lathe(ringProfile(11.8f, 1.6f, 1.6f, 6), 16).turn(0, 32, 0).move(5.4f, 0, 0).finish(70),
         plain(Brass, 0.6f), 0.6f);
    both(LeftUpperArm, RightUpperArm, lathe(bellows(3, -22, 7, 4), 10).finish(75), plain(Navy, 0.1f), 0.6f);
    both(LeftLowerArm, RightLowerArm, ball(7.6f, 10, 6).finish(), plain(Brass, 0.6f), 0.6f);
    both(
        LeftLowerArm, RightLowerArm,
        lathe(
            {{0, -3}, {6.5f, -3}, {8, -5}, {9.6f, -11}, {10.8f, -18}, {11.2f, -22}, {9.5f, -22.6f}, {0, -21}},
            14)
            .finish(),
        gauntlet, 0.9f);
    both(LeftLowerArm, RightLowerArm, lathe(ringProfile(10.6f, 1.8f, 1.8f, 6), 14).move(0, 0, -22).finish(70),
         plain(Brass, 0.6f), 0.6f);
    Shape fist = roundedBox({7.6f, 8.6f, 7.8f}, 5.5f, 2).move(0, 0, -7);
    both(LeftHand, RightHand, fist.finish(), glove, 0.8f);
    for (const float y : {-5.4f, 0.0f, 5.4f}) {
        both(LeftHand, RightHand,
             roundedBox({6.2f, 2.7f, 4.4f}, 2.2f, 1).turn(0, 12, 0).move(1.2f, y, -12).finish(60),
             plain(Leather, 0.1f), 0.6f);
    }
    both(LeftHand, RightHand,
         roundedBox({3.2f, 3.2f, 5}, 2.6f, 1).turn(18, 0, 0).move(-6.5f, -5.5f, -8).finish(60),
         plain(Leather, 0.1f), 0.6f);
    // Legs.
    both(LeftUpperLeg, RightUpperLeg, lathe(bellows(4, -21, 9.6f, 4), 12).finish(30), plain(Navy, 0.1f),
         0.6f);
    both(LeftLowerLeg, RightLowerLeg, ball(8.6f, 12, 6).finish(), plain(Brass, 0.6f), 0.6f);
    both(LeftLowerLeg, RightLowerLeg,
         lathe({{0, -2}, {8, -2.5f}, {9.4f, -6}, {10.8f, -13}, {11.6f, -17}, {10.5f, -18.5f}, {0, -18}}, 14)
             .finish(),
         shinGuard, 0.9f);
    Shape foot = roundedBox({11.6f, 17.5f, 10}, 7.5f, 2);
    foot.deform([](const QVector3D &p) {
        // Lower and wider towards the toes.
        const float forward = smoothStep(4.0f, -17.0f, p.y());
        return QVector3D(p.x() * (0.92f + 0.16f * forward), p.y(),
                         p.z() > -4.0f ? -4.0f + (p.z() + 4.0f) * (1.0f - 0.42f * forward) : p.z());
    });
    both(LeftFoot, RightFoot, foot.move(0, -5, -1).finish(), boot, 0.9f);
    Shape sole = roundedBox({12.4f, 18.6f, 2.4f}, 1.6f, 1);
    sole.deform([](const QVector3D &p) {
        const float corner = smoothStep(6.0f, 18.0f, std::abs(p.y()));
        return QVector3D(p.x() * (1.0f - 0.3f * corner * corner), p.y(), p.z());
    });
    both(LeftFoot, RightFoot, sole.move(0, -5, -9.6f).finish(), plain(Sole), 0.5f);
}
} // namespace Tinker
