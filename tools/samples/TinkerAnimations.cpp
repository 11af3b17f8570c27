// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Animation.h"
#include "Tinker.h"

#include <algorithm>
#include <cmath>

// Signs: turning about x leans the top of a bone forward and swings a hanging limb back; about y it leans the
// top to the figure's left; about z it turns the front to the left.
namespace Tinker {
namespace {
constexpr float Pi = 3.14159265f;

const Leg LeftLeg{LeftUpperLeg, LeftLowerLeg, LeftFoot, ThighLength, ShinLength};
const Leg RightLeg{RightUpperLeg, RightLowerLeg, RightFoot, ThighLength, ShinLength};

/// A wave of `cycles` a block, `phase` running from 0 to 1 over the block.
float wave(float phase, float cycles = 1.0f, float delay = 0.0f)
{
    return std::sin(2.0f * Pi * cycles * (phase - delay));
}

/// How high the ankle must be over the floor for the foot, turned by `pitch` degrees, to touch it with its
/// toes or its heel.
float ankleOver(float pitch)
{
    const float radians = pitch * Pi / 180.0f;
    const float beyond = pitch > 0.0f ? 21.0f : 12.0f;
    return AnkleHeight * std::cos(radians) + beyond * std::abs(std::sin(radians));
}

void plant(const Figure &figure, Pose &pose, bool right, float x, float y, float lift = 0.0f,
           float pitch = 0.0f)
{
    placeFoot(figure, pose, right ? RightLeg : LeftLeg, {right ? -x : x, y, ankleOver(pitch) + lift}, pitch);
}

/// The arms as they hang at ease, the wrench up before the right shoulder.
void holdWrench(Pose &pose)
{
    pose.turn(RightUpperArm, 6, 4, 0);
    pose.turn(RightLowerArm, -58, -30, 0);
    pose.turn(RightHand, -6, 0, 0);
    pose.turn(LeftLowerArm, -14, 0, 0);
}

/// What hangs or stands loosely swings `x` degrees to the back and `y` to the left.
void swingLoose(Pose &pose, float x, float y)
{
    pose.turn(Antenna, -0.5f * x, -0.5f * y, 0);
    pose.turn(AntennaTip, -x, -y, 0);
    pose.turn(Lantern, x, -y, 0);
}

void fly(Pose &pose, float first, float second, float third, float aside)
{
    pose.turn(Scarf1, first, aside, 0);
    pose.turn(Scarf2, second, aside, 0);
    pose.turn(Scarf3, third, aside, 0);
}

/// The eyes go dark while they are behind the glass.
void shutEyes(Pose &pose, float amount)
{
    pose.move(Face, 0, 6.0f * amount, 0);
}

Pose idlePose(const Figure &figure, float phase)
{
    Pose pose(figure.bones.size());
    const float breath = wave(phase, 2);
    const float sway = wave(phase);
    pose.move(Pelvis, 1.6f * sway, 0.5f, -2.0f + 0.7f * breath);
    pose.turn(Pelvis, 0, 1.2f * sway, 2.0f * sway);
    pose.turn(LowerTorso, 1.2f, -1.2f * sway, 0);
    pose.turn(UpperTorso, 1.2f - 1.8f * breath, -0.8f * sway, -3.0f * sway);
    holdWrench(pose);
    pose.turn(LeftShoulder, 0, -1.5f * breath, 0);
    pose.turn(RightShoulder, 0, 1.5f * breath, 0);
    pose.turn(LeftUpperArm, 2.0f * wave(phase, 1, 0.1f), -1.5f * breath, 0);
    pose.turn(RightUpperArm, -3.0f * wave(phase, 1, 0.15f), 1.5f * breath, 0);
    pose.turn(RightLowerArm, 4.0f * wave(phase, 2, 0.1f), 0, 0);
    // Looks to the left, then to the right, tilting the head.
    const float look = curve(
        {{0.0f, 0}, {0.14f, 0}, {0.22f, 24}, {0.42f, 24}, {0.52f, -20}, {0.70f, -20}, {0.80f, 0}}, phase);
    pose.turn(Neck, 0, 0, 0.3f * look);
    pose.turn(Head, 2.0f * wave(phase, 2, 0.08f), -0.22f * look + 1.2f * sway, 0.7f * look);
    shutEyes(pose, std::max(curve({{0.19f, 0}, {0.21f, 1}, {0.23f, 1}, {0.25f, 0}}, phase),
                            curve({{0.74f, 0}, {0.76f, 1}, {0.78f, 1}, {0.80f, 0}}, phase)));
    swingLoose(pose, 2.5f * wave(phase, 2, 0.12f), 2.5f * wave(phase, 1, 0.1f) + 0.12f * look);
    fly(pose, 2.0f * wave(phase, 2, 0.1f), 4.0f * wave(phase, 2, 0.2f), 6.0f * wave(phase, 2, 0.3f),
        2.0f * wave(phase, 1, 0.1f));
    pose.turn(WindKey, 0, 360.0f * phase, 0);
    plant(figure, pose, false, 13, -2);
    plant(figure, pose, true, 13, 3);
    return pose;
}

/// One foot of the walk; `phase` 0 is its heel's landing. The foot then goes back with the floor, pushes off
/// and swings forward.
void stepFoot(const Figure &figure, Pose &pose, bool right, float phase)
{
    constexpr float Stride = 18.0f, Stance = 0.56f;
    const float swing = std::max(0.0f, (phase - Stance) / (1.0f - Stance));
    const float y = phase < Stance ? -Stride + 2.0f * Stride * phase / Stance
                                   : Stride - 2.0f * Stride * smoothStep(0.0f, 1.0f, swing);
    const float pitch =
        curve({{0.0f, -22}, {0.10f, 0}, {0.38f, 0}, {0.60f, 40}, {0.82f, -6}, {1.0f, -22}}, phase);
    plant(figure, pose, right, 11, y, 9.0f * std::sin(Pi * swing) * std::sin(Pi * swing), pitch);
}

Pose walkPose(const Figure &figure, float phase)
{
    Pose pose(figure.bones.size());
    const float stride = wave(phase, 1, -0.25f); // 1: the left leg is ahead
    const float side = wave(phase);              // 1: the left leg carries
    const float bob = -wave(phase, 2, -0.18f);   // -1: just after a landing
    pose.move(Pelvis, 3.2f * side, 0, -5.2f + 2.0f * bob);
    pose.turn(Pelvis, 3, -4.0f * side, -8.0f * stride);
    pose.turn(LowerTorso, 2, 3.5f * side, 5.0f * stride);
    pose.turn(UpperTorso, 2.0f - 1.5f * bob, 3.5f * side, 12.0f * stride);
    pose.turn(Neck, -2, -1.5f * side, -4.0f * stride);
    pose.turn(Head, -4.0f + 3.0f * wave(phase, 2, -0.06f), -4.0f * wave(phase, 1, 0.06f), -5.0f * stride);
    holdWrench(pose);
    const float late = wave(phase, 1, -0.21f); // arms lag behind the legs
    pose.turn(LeftShoulder, 0, 0, 6.0f * stride);
    pose.turn(LeftUpperArm, 34.0f * late - 4.0f, -2, 0);
    pose.turn(LeftLowerArm, -16.0f + 16.0f * late, 0, 0);
    pose.turn(LeftHand, 8.0f * wave(phase, 1, -0.14f), 0, 0);
    pose.turn(RightShoulder, 0, 0, 4.0f * stride);
    pose.turn(RightUpperArm, -18.0f * late - 4.0f, 3, 0);
    pose.turn(RightLowerArm, 10.0f * wave(phase, 1, -0.14f), 0, 0);
    swingLoose(pose, 6.0f * wave(phase, 2, 0.0f) - 4.0f, 7.0f * wave(phase, 1, 0.12f));
    fly(pose, 16.0f + 5.0f * wave(phase, 2, 0.05f), 7.0f + 9.0f * wave(phase, 2, 0.15f),
        4.0f + 13.0f * wave(phase, 2, 0.25f), 5.0f * wave(phase, 1, 0.15f));
    pose.turn(WindKey, 0, 180.0f * phase, 0);
    stepFoot(figure, pose, false, phase);
    stepFoot(figure, pose, true, std::fmod(phase + 0.5f, 1.0f));
    return pose;
}

/// Winds up, steps in and brings the wrench down; lands on frame 17.
Pose attackPose(const Figure &figure, float f)
{
    Pose pose(figure.bones.size());
    const auto at = [&](std::initializer_list<std::pair<float, float>> keys) { return curve(keys, f); };
    pose.move(Pelvis, at({{0, 0}, {12, -4}, {17, 3}, {26, 3}, {38, 0}}),
              at({{0, 0.5f}, {11, 8}, {17, -15}, {26, -14}, {38, 0.5f}}),
              at({{0, -2}, {6, -6}, {12, -3}, {17, -13}, {20, -11}, {26, -11}, {38, -2}}));
    pose.turn(Pelvis, at({{0, 0}, {12, -5}, {17, 12}, {26, 10}, {38, 0}}), 0,
              at({{0, 0}, {12, -16}, {17, 18}, {26, 16}, {38, 0}}));
    pose.turn(LowerTorso, at({{0, 1}, {12, -6}, {17, 12}, {26, 10}, {38, 1}}), 0,
              at({{0, 0}, {12, -10}, {17, 8}, {26, 8}, {38, 0}}));
    pose.turn(UpperTorso, at({{0, 1}, {12, -10}, {17, 17}, {19, 13}, {26, 12}, {38, 1}}), 0,
              at({{0, 0}, {12, -16}, {17, 16}, {26, 14}, {38, 0}}));
    pose.turn(Neck, at({{0, 0}, {12, 6}, {17, -10}, {26, -8}, {38, 0}}), 0,
              at({{0, 0}, {12, 16}, {17, -14}, {26, -12}, {38, 0}}));
    pose.turn(Head, at({{0, 0}, {12, 9}, {17, -18}, {20, -10}, {26, -10}, {38, 0}}), 0,
              at({{0, 0}, {12, 22}, {17, -20}, {26, -18}, {38, 0}}));
    pose.turn(RightShoulder, 0, at({{0, 0}, {12, 16}, {17, -4}, {26, -2}, {38, 0}}), 0);
    pose.turn(RightUpperArm,
              at({{0, 6}, {5, 16}, {12, -152}, {14, -150}, {17, -44}, {19, -36}, {26, -38}, {38, 6}}),
              at({{0, 4}, {12, -34}, {14, -30}, {17, -14}, {26, -12}, {38, 4}}), 0);
    pose.turn(RightLowerArm, at({{0, -62}, {5, -70}, {12, -66}, {14, -72}, {17, -14}, {26, -18}, {38, -62}}),
              0, 0);
    pose.turn(RightHand, at({{0, -6}, {12, -28}, {14, -30}, {17, 36}, {26, 34}, {38, -6}}), 0, 0);
    pose.turn(LeftUpperArm, at({{0, 0}, {12, -52}, {17, 44}, {26, 36}, {38, 0}}),
              at({{0, 0}, {12, -16}, {17, -26}, {26, -22}, {38, 0}}), 0);
    pose.turn(LeftLowerArm, at({{0, -14}, {12, -36}, {17, -26}, {26, -30}, {38, -14}}), 0, 0);
    const float push = at({{0, 0}, {12, -10}, {15, 26}, {19, -14}, {24, 6}, {30, 0}});
    swingLoose(pose, push, at({{0, 0}, {12, 8}, {17, -14}, {21, 8}, {26, 0}}));
    fly(pose, at({{0, 0}, {12, -8}, {17, 46}, {24, 8}, {38, 0}}),
        at({{0, 0}, {13, -10}, {19, 34}, {26, -4}, {38, 0}}),
        at({{0, 0}, {14, -12}, {21, 32}, {28, -10}, {38, 0}}), at({{0, 0}, {12, 10}, {18, -14}, {28, 0}}));
    pose.turn(WindKey, 0, at({{0, 0}, {40, 360}}), 0);
    // The left foot steps in with the blow and back again.
    plant(figure, pose, false, 13, at({{0, -2}, {11, -2}, {16, -26}, {29, -26}, {37, -2}}),
          at({{10, 0}, {13.5f, 9}, {16, 0}, {29, 0}, {33, 6}, {37, 0}}), at({{10, 0}, {14, -16}, {17, 0}}));
    plant(figure, pose, true, 13, 5, 0, at({{0, 0}, {13, 0}, {17, 24}, {26, 22}, {36, 0}}));
    return pose;
}

/// A crouch, a jump with a whole turn, and the wrench held high.
Pose cheerPose(const Figure &figure, float f)
{
    Pose pose(figure.bones.size());
    const auto at = [&](std::initializer_list<std::pair<float, float>> keys) { return curve(keys, f); };
    const float up = f > 10.0f && f < 26.0f ? std::sin(Pi * (f - 10.0f) / 16.0f) : 0.0f;
    pose.yaw = 2.0f * Pi * smoothStep(9.0f, 27.0f, f);
    pose.move(Pelvis, 0, 0.5f,
              at({{0, -2}, {8, -15}, {12, -1}, {24, -2}, {28, -12}, {34, -1}, {46, -1}, {56, -2}}) +
                  34.0f * up);
    pose.turn(Pelvis, at({{0, 0}, {8, 10}, {13, -3}, {28, 8}, {34, 0}}), 0, 0);
    pose.turn(UpperTorso, at({{0, 1}, {8, 12}, {13, -10}, {28, 8}, {34, -8}, {46, -8}, {56, 1}}), 0, 0);
    pose.turn(Head, at({{0, 0}, {8, 10}, {14, -14}, {28, 10}, {34, -10}, {46, -10}, {56, 0}}),
              at({{28, 0}, {36, 9}, {46, 9}, {56, 0}}), 0);
    pose.turn(RightUpperArm, at({{0, 6}, {8, 24}, {13, -120}, {26, -130}, {34, -158}, {46, -158}, {56, 6}}),
              at({{0, 4}, {13, -24}, {34, -50}, {46, -50}, {56, 4}}), 0);
    pose.turn(RightLowerArm, at({{0, -62}, {8, -70}, {14, -24}, {34, -8}, {40, -16}, {46, -8}, {56, -62}}), 0,
              0);
    pose.turn(RightHand, at({{0, -6}, {14, 60}, {34, 84}, {46, 84}, {56, -6}}), 0, 0);
    pose.turn(LeftUpperArm, at({{0, 0}, {8, 30}, {13, -40}, {26, -20}, {34, -4}, {56, 0}}),
              at({{0, 0}, {8, -6}, {14, -74}, {26, -52}, {34, -14}, {56, 0}}), 0);
    pose.turn(LeftLowerArm, at({{0, -14}, {14, -20}, {34, -76}, {46, -76}, {56, -14}}), 0, 0);
    shutEyes(pose,
             std::max(at({{6, 0}, {8, 1}, {10, 1}, {12, 0}}), at({{38, 0}, {40, 1}, {42, 1}, {44, 0}})));
    swingLoose(pose, at({{0, 0}, {8, -10}, {13, 24}, {24, -22}, {29, 18}, {34, -8}, {40, 0}}), 0);
    fly(pose, at({{0, 0}, {8, -6}, {14, -10}, {22, 56}, {30, 4}, {40, 0}}),
        at({{0, 0}, {14, -8}, {24, 30}, {32, -6}, {42, 0}}),
        at({{0, 0}, {14, -8}, {25, 30}, {34, -10}, {44, 0}}), at({{0, 0}, {16, 20}, {28, -10}, {36, 0}}));
    pose.turn(WindKey, 0, 720.0f * smoothStep(0.0f, 56.0f, f), 0);
    const float lift = 30.0f * up;
    const float toes = at({{8, 0}, {11, 34}, {20, 26}, {25, 0}});
    plant(figure, pose, false, 13.0f - 4.0f * up, -2, lift, toes);
    plant(figure, pose, true, 13.0f - 4.0f * up, 3, lift + 8.0f * up, toes);
    return pose;
}

/// The spring runs down: the head sinks in ticks, the knees give way, Tinker sits down and goes dark.
Pose fallPose(const Figure &figure, float f)
{
    Pose pose(figure.bones.size());
    const auto at = [&](std::initializer_list<std::pair<float, float>> keys) { return curve(keys, f); };
    pose.move(Pelvis, 0, at({{0, 0.5f}, {22, 2}, {34, 16}, {60, 16}}),
              at({{0, -2}, {12, -4}, {22, -8}, {33, -44}, {36, -41.5f}, {39, -44}, {60, -44}}));
    pose.turn(Pelvis, at({{0, 0}, {22, 6}, {33, -14}, {60, -12}}), 0, 0);
    pose.turn(LowerTorso, at({{0, 1}, {22, 6}, {33, 4}, {38, 12}, {60, 12}}), 0, 0);
    pose.turn(UpperTorso, at({{0, 1}, {8, 5}, {14, 5}, {18, 10}, {30, 4}, {38, 18}, {41, 15}, {60, 15}}), 0,
              at({{0, 0}, {38, 5}, {60, 5}}));
    pose.turn(Head,
              at({{0, 0},
                  {5, 5},
                  {10, 5},
                  {13, 11},
                  {18, 11},
                  {21, 17},
                  {28, 2},
                  {38, 26},
                  {41, 21},
                  {45, 24},
                  {60, 24}}),
              at({{0, 0}, {20, 4}, {40, 9}, {60, 9}}), at({{0, 0}, {40, -8}, {60, -8}}));
    pose.turn(RightUpperArm, at({{0, 6}, {16, 0}, {30, -18}, {38, 4}, {60, 2}}),
              at({{0, 4}, {38, 10}, {60, 10}}), 0);
    pose.turn(RightLowerArm, at({{0, -62}, {10, -48}, {20, -40}, {36, -18}, {60, -18}}), 0, 0);
    pose.turn(RightHand, at({{0, -6}, {20, 4}, {37, -16}, {60, -16}}), 0, 0);
    pose.turn(LeftUpperArm, at({{0, 0}, {30, -22}, {38, 4}, {60, 2}}),
              at({{0, 0}, {30, -22}, {38, -8}, {60, -8}}), 0);
    pose.turn(LeftLowerArm, at({{0, -14}, {30, -30}, {38, -16}, {60, -16}}), 0, 0);
    // A flicker before the eyes stay dark.
    shutEyes(pose, at({{10, 0}, {12, 1}, {14, 0}, {40, 0}, {42, 1}, {44, 1}, {46, 0.2f}, {50, 1}, {60, 1}}));
    swingLoose(pose, at({{0, 0}, {22, 4}, {33, -26}, {38, 16}, {44, -6}, {50, 0}}),
               at({{0, 0}, {40, 6}, {60, 6}}));
    pose.turn(Antenna, at({{34, 0}, {46, 24}, {60, 24}}), 0, 0);
    fly(pose, at({{0, 0}, {30, 30}, {38, -6}, {60, -6}}), at({{0, 0}, {31, 26}, {40, 22}, {60, 22}}),
        at({{0, 0}, {32, 24}, {42, 30}, {60, 30}}), 0);
    pose.turn(WindKey, 0, at({{0, 0}, {8, 60}, {12, 60}, {18, 95}, {24, 95}, {34, 115}, {60, 115}}), 0);
    const float forward = at({{24, 0}, {34, -30}, {60, -30}});
    const float heels = at({{26, 0}, {35, -34}, {60, -30}});
    plant(figure, pose, false, 17, -2 + forward, 0, heels);
    plant(figure, pose, true, 16, 3 + forward, 0, heels);
    return pose;
}

AnimAction action(int frame, int eventType, int node, const std::array<float, 8> &args,
                  const QVector3D &offset = {})
{
    return {quint16(frame), quint16(eventType), quint16(node), offset, args};
}

constexpr int PlaySound = 0, NormalDamage = 2, ShakeScreen = 12, TurnOnHotPoint = 26, TurnOffHotPoint = 27,
              PlayVoice = 30;
constexpr int NoBone = 0xFFFF;
constexpr float StepSound = 412.0f, SwingSound = 77.0f, LandingSound = 413.0f;
} // namespace

AnimFile makeAnimations(const Figure &figure)
{
    AnimFile file;
    file.version = 2;
    constexpr float IdleFrames = 90.0f, WalkFrames = 24.0f;

    // The walk comes first: what opens first plays first.
    AnimBlock walk = makeBlock(figure, 1, int(WalkFrames) + 1,
                               [&](int frame) { return walkPose(figure, float(frame) / WalkFrames); });
    walk.loopFrame = 0;
    // The heels land at the start and half-way.
    walk.actions = {action(0, PlaySound, LeftFoot, {StepSound}),
                    action(12, PlaySound, RightFoot, {StepSound})};
    file.blocks.push_back(walk);

    AnimBlock idle = makeBlock(figure, 0, int(IdleFrames) + 1,
                               [&](int frame) { return idlePose(figure, float(frame) / IdleFrames); });
    idle.loopFrame = 0;
    file.blocks.push_back(idle);

    AnimBlock attack = makeBlock(figure, 10, 41, [&](int frame) { return attackPose(figure, float(frame)); });
    const QVector3D jaw(0.0f, -46.0f, 0.0f);
    // 24 points of damage are stored times 256.
    attack.actions = {action(13, TurnOnHotPoint, Wrench, {2}),
                      action(14, PlaySound, Wrench, {SwingSound}),
                      action(16, PlaySound, LeftFoot, {StepSound}),
                      action(17, NormalDamage, Wrench, {64, 24 * 256, 0, 0.5f, -1, 0.25f}, jaw),
                      action(17, ShakeScreen, NoBone, {2, 2, 8, 512}),
                      action(22, TurnOffHotPoint, Wrench, {2})};
    file.blocks.push_back(attack);

    AnimBlock cheer = makeBlock(figure, 40, 61, [&](int frame) { return cheerPose(figure, float(frame)); });
    cheer.actions = {action(10, PlayVoice, NoBone, {310}), action(26, PlaySound, LeftFoot, {LandingSound}),
                     action(26, PlaySound, RightFoot, {LandingSound})};
    file.blocks.push_back(cheer);

    AnimBlock fall = makeBlock(figure, 50, 61, [&](int frame) { return fallPose(figure, float(frame)); });
    fall.loopFrame = 60;
    fall.actions = {action(34, PlaySound, Pelvis, {LandingSound})};
    file.blocks.push_back(fall);
    return file;
}
} // namespace Tinker
