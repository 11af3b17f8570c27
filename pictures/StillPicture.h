// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Framing.h"
#include "MeshSource.h"
#include "Playback.h"
#include "PosedModel.h"
#include "SceneFrame.h"

#include <QColor>
#include <QImage>
#include <QSize>

class OffscreenScene;
struct MaterialFolders;

/// What is wanted of a picture.
struct PictureWishes
{
    /// Where the camera stands unless somebody says otherwise, degrees.
    static constexpr float UsualYaw = 30.0f;
    static constexpr float UsualPitch = 15.0f;

    QSize size;
    QColor background{0, 0, 0, 0};
    float yaw = UsualYaw;     ///< degrees
    float pitch = UsualPitch; ///< degrees
    float lens = UsualStillLens;
    SurfaceLook look = SurfaceLook::Textured;
    QString anim; ///< the file to pose by; empty for the one that belongs to the mesh
    int block = 0;
    int frame = 0;
    bool isPoseNamed = false; ///< a model without an animation has no such pose
};

/// What a copy on the graphics card is made of, and the state that poses the model.
MeshSource sourceOf(const PosedModel &model, const MaterialFolders &folders,
                    const ReadProgress *progress = nullptr);
Playback stateOf(const PosedModel &model, const PictureWishes &wishes);

/// Where the corners of a posed model stand, without the few that stand far away from all others; how many
/// those are goes into `strays`, if they are more.
std::vector<QVector3D> visibleCorners(const OffscreenScene &scene, const SceneFrame &frame, int &strays);

/// Paints a model that has a mesh, whole, with a camera that stands still. What textures are missing is
/// logged. Null when the graphics driver has no memory for it.
QImage paintStill(OffscreenScene &scene, MeshSource source, const PosedModel &model,
                  const PictureWishes &wishes, int &strays);
