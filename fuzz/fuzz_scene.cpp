// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "BinaryFileReader.h"
#include "FrameLabel.h"
#include "Log.h"
#include "MeshSource.h"
#include "PlayClock.h"
#include "Pose.h"
#include "PosedVertices.h"
#include "ReferenceIds.h"
#include "Require.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "Validation.h"

#include <QSettings>

#include <cmath>
#include <cstring>

namespace {
using Fuzz::require;

/// What stands before the models in an input.
struct Controls
{
    quint8 isStatic;
    quint8 playState;
    quint8 forceLoop;
    quint8 block;
    float time;
    float step; ///< seconds between two poses
};
static_assert(sizeof(Controls) == 12, "the controls are a plain header");

/// Everything that is uploaded stays within the model, whatever its indexes say.
template <typename Model>
MeshSource checkedSource(const Model &model)
{
    MeshSource source = MeshSource::from(model);
    require(source.vertices.vertices.size() == model.vertices.size(), "every vertex is copied");
    require(source.indexes.size() == model.surfaces.size() && source.images.size() == model.surfaces.size(),
            "a list and a picture for each surface");
    for (size_t surface = 0; surface < source.indexes.size(); ++surface) {
        const std::vector<quint16> &list = source.indexes[surface];
        require(list.size() <= model.surfaces[surface].triangleIndexes.size(), "triangles only go missing");
        for (quint16 index : list)
            require(index < model.vertices.size(), "no index points beyond the vertices");
        require(!source.images[surface].isNull(), "a surface without a texture is blank");
    }
    for (const GLVertex &vertex : source.vertices.vertices) {
        for (int axis = 0; axis < 3; ++axis) {
            // Positions beyond the box's start, and NaN, do not widen it.
            const float at = vertex.position[axis];
            require(!(at < source.vertices.boxMin[axis]) && !(at > source.vertices.boxMax[axis]),
                    "the box holds every vertex");
        }
    }
    return source;
}

bool same(const QMatrix4x4 &a, const QMatrix4x4 &b)
{
    // By bits, since a NaN is to be the same NaN.
    const auto bytes = [](const QMatrix4x4 &matrix) {
        return QByteArray::fromRawData(reinterpret_cast<const char *>(matrix.constData()),
                                       16 * sizeof(float));
    };
    return bytes(a) == bytes(b);
}

/// The bones that the child lists reach from bone 0.
std::vector<bool> reached(const SkinnedMesh &mesh, size_t bones)
{
    std::vector<bool> seen(bones, false);
    std::vector<size_t> open;
    if (bones > 0) {
        seen[0] = true;
        open.push_back(0);
    }
    while (!open.empty()) {
        const size_t bone = open.back();
        open.pop_back();
        for (size_t child : mesh.nodes[bone].childNodes) {
            if (child < bones && !seen[child]) {
                seen[child] = true;
                open.push_back(child);
            }
        }
    }
    return seen;
}

void checkPoses(const SkinnedMesh &mesh, const AnimFile &anim, const Controls &controls)
{
    Playback state;
    state.mesh = &mesh;
    state.anim = &anim;
    state.blockIndex = controls.block;
    state.playState = PlayState(controls.playState % 3);
    state.forceLoop = controls.forceLoop & 1;
    state.time = controls.time;
    FrameLabel label;
    label.update(state);
    if (size_t(state.blockIndex) >= anim.blocks.size()) {
        require(!playableBlock(state), "a block that is not there does not play");
        return;
    }
    const AnimBlock &block = anim.blocks[size_t(state.blockIndex)];

    PoseEvaluator evaluator;
    QMatrix4x4 untouched;
    untouched.fill(12345.0f);
    for (int pose = 0; pose < 3; ++pose) {
        BonePalette palette(mesh.nodes.size(), untouched);
        QQuaternion yaw;
        if (pose == 0)
            evaluator.evaluateInitialPose(palette, mesh, block);
        else
            evaluator.evaluateAnimatedPose(palette, mesh, block, state, yaw);
        require(palette.size() == mesh.nodes.size(), "one matrix per bone");
        require(pose == 0 || block.frameCount() < 2 || (state.time >= 0.0f && std::isfinite(state.time)),
                "the time is set to one within the block");
        const std::vector<bool> posed = reached(mesh, std::min(mesh.nodes.size(), block.nodes.size()));
        for (size_t bone = 0; bone < palette.size(); ++bone) {
            require(bone < posed.size() && posed[bone] ? true : same(palette[bone], untouched),
                    "a bone that is not reached keeps its entry");
        }

        // The time stands within the block now: the same pose again, by an evaluator with a history.
        if (pose > 0 && block.frameCount() >= 2) {
            Playback paused = state;
            paused.playState = PlayState::Paused;
            BonePalette first(mesh.nodes.size());
            BonePalette second(mesh.nodes.size());
            PoseEvaluator fresh;
            evaluator.evaluateAnimatedPose(first, mesh, block, paused, yaw);
            fresh.evaluateAnimatedPose(second, mesh, block, paused, yaw);
            for (size_t bone = 0; bone < first.size(); ++bone)
                require(same(first[bone], second[bone]), "a pose depends on the time alone");
        }
        advanceClock(state, controls.step);
        label.update(state);
    }
}

void checkSkinned(BinaryFileReader &reader, const Controls &controls)
{
    SkinnedMesh mesh;
    if (mesh.read(reader))
        return;
    const MeshSource source = checkedSource(mesh);
    require(source.boneCount == mesh.nodes.size(), "as many bones as nodes");
    AnimFile anim;
    validate(mesh);
    if (!anim.read(reader)) {
        checkPoses(mesh, anim, controls);
        validate(anim, &mesh, ReferenceIds());
    }

    std::vector<GLVertex> posed;
    const BonePalette palette(source.boneCount);
    for (const std::vector<quint16> &list : source.indexes)
        poseVertices(posed, source.vertices.vertices, list, palette);
    require(source.indexes.empty() || posed.size() == source.vertices.vertices.size(),
            "posed vertices keep their indexes");
}
} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    // Without the settings of whoever runs this, materials are looked up in no folder.
    for (const QSettings::Scope scope : {QSettings::UserScope, QSettings::SystemScope})
        QSettings::setPath(QSettings::NativeFormat, scope, QStringLiteral("/dev/null"));
    Log::setSink([](LogSeverity, const QString &) {});
    return 0;
}

/// A header of controls, then a model, and behind a skinned mesh its animation.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Controls controls;
    if (size < sizeof controls)
        return 0;
    std::memcpy(&controls, data, sizeof controls);
    BinaryFileReader reader(data + sizeof controls, qint64(size - sizeof controls));
    if (controls.isStatic & 1) {
        StaticMesh mesh;
        if (!mesh.read(reader)) {
            checkedSource(mesh);
            validate(mesh);
        }
    } else {
        checkSkinned(reader, controls);
    }
    return 0;
}
