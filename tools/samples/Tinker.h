// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Figure.h"

struct AnimFile;
struct SkinnedMesh;

/// The sample character: Tinker, a clockwork adventurer of 200 units with a scarf, a lantern and a big
/// wrench.
namespace Tinker {
enum BoneIndex {
    Root,
    Pelvis,
    LowerTorso,
    UpperTorso,
    Neck,
    Head,
    Face,
    Antenna,
    AntennaTip,
    Scarf1,
    Scarf2,
    Scarf3,
    WindKey,
    Lantern,
    LeftShoulder,
    LeftUpperArm,
    LeftLowerArm,
    LeftHand,
    RightShoulder,
    RightUpperArm,
    RightLowerArm,
    RightHand,
    Wrench,
    LeftUpperLeg,
    LeftLowerLeg,
    LeftFoot,
    RightUpperLeg,
    RightLowerLeg,
    RightFoot,
    BoneCount
};

enum Material { BodyMaterial, GlowMaterial, ScarfMaterial, MaterialCount };

namespace Palette {
inline const QVector3D Cream = rgb(244, 230, 200);
inline const QVector3D Teal = rgb(46, 150, 144);
inline const QVector3D DarkTeal = rgb(31, 110, 110);
inline const QVector3D Brass = rgb(222, 164, 66);
inline const QVector3D Navy = rgb(52, 66, 86);
inline const QVector3D Night = rgb(27, 35, 50);
inline const QVector3D Leather = rgb(146, 90, 54);
inline const QVector3D Sole = rgb(74, 54, 46);
inline const QVector3D Steel = rgb(160, 174, 188);
inline const QVector3D Scarf = rgb(214, 72, 58);
inline const QVector3D Light = rgb(255, 214, 116);
} // namespace Palette

/// Lengths of the leg's bones and the height of the ankle at rest.
constexpr float ThighLength = 23.0f;
constexpr float ShinLength = 23.0f;
constexpr float AnkleHeight = 12.0f;

std::vector<Bone> makeBones();
void addTorso(Figure &figure);
void addLimbs(Figure &figure);
void addHead(Figure &figure);
void addGear(Figure &figure);
Figure makeFigure();

/// Hot points, head tracking and the like, on a mesh that has the figure's geometry.
void addGameData(SkinnedMesh &mesh);
/// The blocks: idle, walk, attack, cheer and fall.
AnimFile makeAnimations(const Figure &figure);
} // namespace Tinker
