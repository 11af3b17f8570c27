// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "Bench.h"
#include "Pose.h"
#include "SkinnedMesh.h"

#include <QQuaternion>

#include <cstdlib>
#include <new>

// One pose of 100 bones, every one with a translation and a rotation track, and what it allocates.
namespace {
constexpr int Bones = 100;
constexpr int Frames = 60;
constexpr int PosesAtATime = 100;
size_t allocations = 0;

/// Every bone has up to three children.
SkinnedMesh makeMesh()
{
    SkinnedMesh mesh;
    mesh.nodes.resize(Bones);
    for (int bone = 1; bone < Bones; ++bone)
        mesh.nodes[size_t((bone - 1) / 3)].childNodes.push_back(quint16(bone));
    return mesh;
}

AnimBlock makeBlock()
{
    AnimBlock block;
    block.speed = 30.0f;
    block.loopFrame = 0;
    block.nodes.resize(Bones);
    block.setFrameCount(Frames);
    block.setTranslationCount(Bones);
    block.setRotationCount(Bones);
    for (int bone = 0; bone < Bones; ++bone) {
        block.nodes[size_t(bone)].translationIndex = quint16(bone);
        block.nodes[size_t(bone)].rotationIndex = quint16(bone);
        for (int frame = 0; frame < Frames; ++frame) {
            block.translations.at(bone, frame) = {float(bone), float(frame), 1.0f};
            const QQuaternion turn =
                QQuaternion::fromEulerAngles(float(bone), float(7 * frame), float(frame));
            block.rotations.at(bone, frame) = turn.toVector4D();
        }
    }
    return block;
}
} // namespace

// Counts what the program allocates from the heap.
void *operator new(size_t size)
{
    ++allocations;
    if (void *memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, size_t) noexcept
{
    std::free(memory);
}

int main(int argc, char **argv)
{
    const SkinnedMesh mesh = makeMesh();
    const AnimBlock block = makeBlock();
    BonePalette palette(Bones);
    PoseEvaluator poses;
    Playback state;
    state.playState = PlayState::Playing;
    QQuaternion yaw;
    const auto pose = [&] {
        state.time += 0.0123f;
        poses.evaluateAnimatedPose(palette, mesh, block, state, yaw);
        benchmark::DoNotOptimize(palette.data());
    };

    pose();
    const size_t before = allocations;
    for (int i = 0; i < PosesAtATime; ++i)
        pose();
    const size_t allocated = allocations - before;
    Bench::addLimitLine("pose_100_bones_allocations", double(allocated), 0.0, "");
    // A single pose is too short for the clock.
    Bench::limit("pose_100_bones_x100", PosesAtATime * 20e-6, 50, [&] {
        for (int i = 0; i < PosesAtATime; ++i)
            pose();
    });
    return Bench::run(argc, argv);
}
