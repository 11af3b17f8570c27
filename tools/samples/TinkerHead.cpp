// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Tinker.h"

#include <algorithm>
#include <cmath>

namespace Tinker {
using namespace Palette;

namespace {
/// Height of the face's middle above the head's bone.
constexpr float FaceZ = 28.0f;
constexpr float EyeX = 13.0f;
constexpr float EyeZ = 2.0f; ///< above the face's middle

const QVector3D HeadHalfSize(39.0f, 33.0f, 30.0f);
constexpr float HeadRadius = 23.0f;
constexpr float HeadZ = 31.0f; ///< height of the head's middle above its bone

/// Moves a point of the flat face, y = 0, onto the front of the head.
QVector3D ontoHead(const QVector3D &p)
{
    const float dx = std::max(0.0f, std::abs(p.x()) - (HeadHalfSize.x() - HeadRadius));
    const float dz = std::max(0.0f, std::abs(p.z() + FaceZ - HeadZ) - (HeadHalfSize.z() - HeadRadius));
    const float bulge = std::sqrt(std::max(0.0f, HeadRadius * HeadRadius - dx * dx - dz * dz));
    return {p.x(), p.y() - (HeadHalfSize.y() - HeadRadius) - bulge, p.z() + FaceZ};
}

Surfacing facePaint(const PaintPoint &point)
{
    const float x = std::abs(point.position.x());
    const float z = point.position.z() - FaceZ;
    // Dark glass, lighter towards the top, with a slanting reflection.
    Surfacing result{mixed(Night * 0.85f, Night * 1.7f, smoothStep(-16.0f, 18.0f, z)), 0.0f, 0.75f};
    const float slant = point.position.x() + 0.55f * z;
    const float reflection = smoothStep(-25.5f, -24.5f, slant) * (1.0f - smoothStep(-19.5f, -18.5f, slant)) +
                             smoothStep(-17.0f, -16.2f, slant) * (1.0f - smoothStep(-15.2f, -14.4f, slant));
    result.colour += QVector3D(0.10f, 0.12f, 0.15f) * reflection;
    // Cheeks.
    const float cheek = std::hypot((x - 21.5f) / 4.6f, (z + 7.6f) / 3.0f);
    result.colour = mixed(result.colour, rgb(240, 110, 90), 0.75f * (1.0f - smoothStep(0.5f, 1.1f, cheek)));
    // A smile, and under the eyes the arcs that show while they are shut.
    const auto arc = [](float px, float pz, float radius, float halfAngle) {
        const float angle = std::atan2(px, -pz);
        const float inAngle = 1.0f - smoothStep(halfAngle, halfAngle + 0.08f, std::abs(angle));
        return inAngle * (1.0f - smoothStep(0.75f, 1.25f, std::abs(std::hypot(px, pz) - radius)));
    };
    const float smile = arc(x, z + 3.6f, 5.6f, 1.0f);
    const float shut = arc(x - EyeX, z - EyeZ + 1.0f, 5.2f, 1.05f);
    result.colour = mixed(result.colour, Light, std::max(smile, shut));
    result.glow = std::max(result.glow, std::max(smile, shut));
    return result;
}

Surfacing eyePaint(const PaintPoint &point)
{
    const float x = std::abs(point.position.x()) - EyeX;
    const float z = point.position.z();
    Surfacing result{mixed(rgb(255, 176, 62), rgb(255, 236, 170), smoothStep(-9.0f, 6.0f, z)), 0.0f, 1.0f};
    const float rim = std::hypot(x / 6.6f, z / 9.2f);
    result.colour = mixed(result.colour, rgb(244, 140, 40), smoothStep(0.72f, 1.0f, rim) * 0.8f);
    // Both catch the light on the same side.
    const float glint =
        std::hypot((x * (point.position.x() < 0.0f ? -1.0f : 1.0f) + 1.9f) / 2.1f, (z - 3.6f) / 2.6f);
    result.colour = mixed(result.colour, QVector3D(1, 1, 1), 1.0f - smoothStep(0.75f, 1.1f, glint));
    return result;
}

Surfacing shellPaint(const PaintPoint &point)
{
    const float z = point.position.z();
    Surfacing result{Cream, 0.3f};
    // The goggles' strap around the head, and a seam over the crown.
    const float strap = smoothStep(46.2f, 46.8f, z + 0.09f * point.position.y()) *
                        (1.0f - smoothStep(53.2f, 53.8f, z + 0.09f * point.position.y()));
    const float seam =
        (1.0f - smoothStep(0.35f, 0.8f, std::abs(point.position.x()))) * smoothStep(53.0f, 55.0f, z);
    result.colour = mixed(result.colour, Cream * 0.62f, seam);
    if (strap > 0.0f) {
        result.colour = mixed(result.colour, Leather * 0.85f, strap);
        result.gloss *= 1.0f - strap;
    }
    return result;
}

Surfacing lensPaint(const PaintPoint &point)
{
    const float down = smoothStep(60.0f, 50.0f, point.position.z());
    Surfacing result{mixed(rgb(66, 190, 186), rgb(24, 84, 104), down), 0.8f, 0.3f};
    const float slant = std::abs(point.position.x()) * 0.7f + point.position.z() - 64.0f;
    result.colour = mixed(result.colour, rgb(214, 246, 240),
                          0.7f * smoothStep(-1.6f, -1.0f, slant) * (1.0f - smoothStep(0.6f, 1.2f, slant)));
    return result;
}

void addFace(Figure &figure)
{
    const PlateSize glass{30.0f, 18.5f, 3.2f, 0.8f, 3.0f};
    figure.add(Head, plate(glass, 32, 6).move(0, -0.6f, 0).deform(ontoHead).finish(), facePaint, 3.2f);
    // The rim is a ring bent to the plate's border.
    Shape rim = lathe(ringProfile(1.0f, 0.11f, 2.4f, 6), 40).turn(90, 0, 0);
    rim.deform([&](const QVector3D &p) {
        const float reach = std::hypot(p.x(), p.z());
        const float c = std::abs(p.x()) / reach, s = std::abs(p.z()) / reach;
        const float border =
            std::pow(std::pow(c, glass.exponent) + std::pow(s, glass.exponent), -1.0f / glass.exponent);
        const float thick = (reach - 1.0f) * 17.0f;
        return ontoHead({p.x() / reach * (border * glass.halfWidth + thick), p.y() - 0.3f,
                         p.z() / reach * (border * glass.halfHeight + thick)});
    });
    rim.charts[0] = {150.0f, 9.0f};
    figure.add(Head, rim.finish(70), plain(Brass, 0.65f), 0.8f);
    for (const float side : {-1.0f, 1.0f}) {
        Shape eye = plate({6.6f, 9.2f, 2.4f, 2.4f, 1.5f}, 20, 4);
        eye.deform([&](const QVector3D &p) {
            const float x = p.x() + side * EyeX;
            return QVector3D(x, p.y() - 2.6f, p.z());
        });
        figure.add(Face, eye.move(0, -1.4f, EyeZ - 1.0f).finish(), eyePaint, 3.0f, GlowMaterial);
    }
}

void addGoggles(Figure &figure)
{
    const auto place = [](Shape shape, float detail, Figure &to, const Paint &paint) {
        const int left =
            to.add(Head, shape.turn(-40, 0, 10).move(12.2f, -26.4f, 54.5f).finish(60), paint, detail);
        to.addTwin(Head, left);
    };
    place(lathe({{8.6f, -4}, {8.6f, 2.2f}, {9.4f, 3.2f}, {10.6f, 2.6f}, {11.2f, 0.5f}, {10.8f, -4}}, 18)
              .turn(90, 0, 0),
          0.7f, figure, plain(Brass, 0.6f));
    place(plate({9.0f, 9.0f, 2.0f, 2.4f, 1.0f}, 18, 3), 1.4f, figure, lensPaint);
    figure.add(Head, roundedBox({3.4f, 1.8f, 2.2f}, 1.2f, 1).turn(-40, 0, 0).move(0, -28.6f, 54.8f).finish(),
               plain(Brass * 0.9f, 0.4f), 0.6f);
}

void addEars(Figure &figure)
{
    const std::vector<QVector2D> profile{{0, 6.6f},  {3.4f, 6.4f}, {4.2f, 5.2f}, {8.4f, 4.6f},
                                         {10.6f, 3}, {11.4f, 0},   {11.4f, -4},  {0, -4}};
    const auto ear = [](const PaintPoint &point) {
        const float radius = std::hypot(point.position.y() - 3.0f, point.position.z() - 30.0f);
        Surfacing result{radius < 4.4f ? Teal : Brass, 0.6f};
        result.colour =
            mixed(result.colour, Brass * 0.55f, 1.0f - smoothStep(0.3f, 0.8f, std::abs(radius - 4.6f)));
        return result;
    };
    const int left =
        figure.add(Head, lathe(profile, 18).turn(0, 90, 0).move(39.0f, 3, 30).finish(40), ear, 0.9f);
    figure.addTwin(Head, left);
    // The aerial stands on the right ear.
    figure.add(Antenna, lathe({{0, 2}, {2.6f, 2}, {3.4f, 0}, {3.8f, -3}, {0, -3}}, 12).finish(),
               plain(Brass, 0.6f), 0.5f);
    figure.add(Antenna, lathe({{0, 34}, {1.1f, 34}, {1.5f, 0}, {0, 0}}, 8).finish(), plain(Steel, 0.5f),
               0.5f);
    figure.add(AntennaTip, lathe({{0, 1}, {2.4f, 0.6f}, {2.8f, -1}, {2, -2}, {0, -2}}, 10).finish(),
               plain(Brass, 0.6f), 0.5f);
    figure.add(
        AntennaTip, ball(4.6f, 12, 8).move(0, 0, 4.4f).finish(),
        [](const PaintPoint &point) {
            const float up = smoothStep(0.0f, 9.0f, point.position.z());
            return Surfacing{mixed(rgb(240, 84, 52), rgb(255, 160, 96), up), 0.9f, 0.85f};
        },
        1.0f, GlowMaterial);
}
} // namespace

void addHead(Figure &figure)
{
    Shape shell = roundedBox(HeadHalfSize, HeadRadius, 4, 8);
    shell.deform([](const QVector3D &p) {
        // A little narrower at the top, as a loaf is.
        const float up = (p.z() + 30.0f) / 60.0f;
        return QVector3D(p.x() * (1.02f - 0.07f * up * up), p.y(), p.z());
    });
    figure.add(Head, shell.move(0, 0, HeadZ).finish(), shellPaint, 1.3f);
    addFace(figure);
    addGoggles(figure);
    addEars(figure);
}
} // namespace Tinker
