// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "StillPicture.h"

#include "BoundingSphere.h"
#include "OffscreenScene.h"
#include "PlannedScene.h"
#include "Validation.h"

#include <algorithm>
#include <utility>

MeshSource sourceOf(const PosedModel &model, const MaterialFolders &folders, const ReadProgress *progress)
{
    return model.rigid() ? MeshSource::from(*model.rigid(), folders.gamePath, folders.outputDir, progress)
                         : MeshSource::from(*model.skinned(), folders.gamePath, folders.outputDir, progress);
}

Playback stateOf(const PosedModel &model, const PictureWishes &wishes)
{
    Playback state;
    state.mesh = model.skinned();
    state.anim = model.animFile();
    state.blockIndex = wishes.block;
    return state;
}

std::vector<QVector3D> visibleCorners(const OffscreenScene &scene, const SceneFrame &frame, int &strays)
{
    std::vector<QVector3D> corners = scene.corners(frame);
    strays = std::max(strays, dropStrays(corners));
    return corners;
}

QImage paintStill(OffscreenScene &scene, MeshSource source, const PosedModel &model,
                  const PictureWishes &wishes, int &strays)
{
    scene.setModel(std::move(source));
    SceneFrame frame;
    frame.look = wishes.look;
    frame.skinned = model.skinned() != nullptr;
    PoseEvaluator poses;
    poseFrame(scene.model(), frame, stateOf(model, wishes), wishes.frame, poses);
    const std::vector<QVector3D> corners = visibleCorners(scene, frame, strays);
    const Framing framing = frameAll(corners, wishes.yaw, wishes.pitch, wishes.size, wishes.lens);
    frame.view = framing.view;
    frame.projection = framing.projection;
    return scene.paint(frame, wishes.size, wishes.background);
}
