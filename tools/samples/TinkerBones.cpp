// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Tinker.h"

#include "SkinnedMesh.h"

namespace Tinker {
namespace {
/// Of the left arm at rest, in degrees away from the body.
constexpr float ArmSpread = 24.0f;
} // namespace

std::vector<Bone> makeBones()
{
    const auto about = [](float x, float y, float z, float degrees) {
        return QQuaternion::fromAxisAndAngle(x, y, z, degrees);
    };
    const QQuaternion straight;
    std::vector<Bone> bones{
        {-1, {0, 0, 0}, straight, BoneType::Body, 0},
        {Root, {0, 0, 64}, straight, BoneType::Body, 3},
        {Pelvis, {0, 0, 8}, straight, BoneType::Body, 2},
        {LowerTorso, {0, 0, 16}, straight, BoneType::Body, 1},
        {UpperTorso, {0, 0, 22}, straight, BoneType::Head, 3},
        {Neck, {0, -1, 6}, straight, BoneType::Head, 0},
        {Head, {0, -30, 29}, straight, BoneType::Head, 1},
        {Head, {-43, 3, 40}, about(0, 1, 0, -9), BoneType::Head, 0, true},
        {Antenna, {0, 0, 32}, straight, BoneType::Head, 0, true},
        {UpperTorso, {15, 18, 17}, about(1, 0, 0, 24), BoneType::Body, 1},
        {Scarf1, {0, 0, -17}, about(1, 0, 0, -8), BoneType::Body, 1},
        {Scarf2, {0, 0, -17}, about(1, 0, 0, -6), BoneType::Body, 1},
        {UpperTorso, {0, 23, -3}, straight, BoneType::Body, 1},
        {Pelvis, {24, -4, 3}, about(0, 1, 0, -6), BoneType::Body, 3},
    };
    for (const bool right : {false, true}) {
        const float side = right ? -1.0f : 1.0f;
        const int first = int(bones.size());
        bones.push_back({UpperTorso, {side * 25, 0, 15}, straight, BoneType::Arm, 0, right});
        bones.push_back(
            {first, {side * 6, 0, -2}, about(0, 1, 0, -side * ArmSpread), BoneType::Arm, 1, right});
        bones.push_back({first + 1, {0, 0, -24}, about(1, 0, 0, -10), BoneType::Arm, 2, right});
        bones.push_back({first + 2, {0, 0, -25}, straight, BoneType::Arm, 3, right});
        if (right)
            bones.push_back({first + 3, {0, 0, -8}, straight, BoneType::Arm, 3, right});
    }
    for (const bool right : {false, true}) {
        const float side = right ? -1.0f : 1.0f;
        const int first = int(bones.size());
        bones.push_back({Pelvis, {side * 12, 0, -6}, straight, BoneType::Leg, 1, right});
        bones.push_back({first, {0, 0, -ThighLength}, straight, BoneType::Leg, 2, right});
        bones.push_back({first + 1, {0, 0, -ShinLength}, straight, BoneType::Leg, 3, right});
    }
    return bones;
}

Figure makeFigure()
{
    Figure figure;
    figure.bones = makeBones();
    addTorso(figure);
    addLimbs(figure);
    addHead(figure);
    addGear(figure);
    return figure;
}

void addGameData(SkinnedMesh &mesh)
{
    mesh.headTrackStart = Neck;
    mesh.headTrackEnd = Head;
    mesh.headTrackFactor = 64;
    // A muzzle flash at the antenna's bulb, sparks at the lantern, and the wrench's jaw, which deals 24
    // damage.
    mesh.hotPoints.push_back({{0.0f, 0.0f, 4.0f}, 1, AntennaTip, 12, 0});
    mesh.hotPoints.push_back({{0.0f, 0.0f, -15.0f}, 2, Lantern, 40, 41});
    mesh.hotPoints.push_back({{0.0f, -46.0f, 0.0f}, 4, Wrench, 0xFFFF, 24});
    mesh.nodes[Head].damageScale = 10.0f;
    mesh.nodes[Neck].damageScale = 5.0f;
    for (const int bone : {LeftUpperArm, LeftLowerArm, RightUpperArm, RightLowerArm, LeftUpperLeg,
                           LeftLowerLeg, RightUpperLeg, RightLowerLeg})
        mesh.nodes[size_t(bone)].damageScale = 0.5f;
    for (const int bone : {LeftHand, RightHand, LeftFoot, RightFoot})
        mesh.nodes[size_t(bone)].damageScale = 0.25f;
}
} // namespace Tinker
