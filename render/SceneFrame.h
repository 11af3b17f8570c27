// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AxisGizmo.h"
#include "OnionSkin.h"
#include "SceneMarks.h"

#include <QColor>
#include <QMatrix4x4>
#include <QQuaternion>
#include <QSize>
#include <QVector3D>

/// How the selected surface is outlined, in the order of its combo box. The hidden kinds show through the
/// model.
enum class SurfaceOverlay { None, Lines, LinesHidden, Points, PointsHidden };

/// What is drawn of the model's surfaces, in the order of their menu.
enum class Shading { Shaded, Wireframe, ShadedWireframe };

/// What gives the surfaces their colors, in the order of their menu.
enum class SurfaceLook { Textured, Lit, Normals };

/// A place on the model that the user has selected.
struct HighlightPoint
{
    bool on = false;
    QVector3D position;
    bool standing = false; ///< the square stands on its corner
    int bone = -1;         ///< what the position is relative to; the model when there is no such bone
};

/// Everything a painted frame depends on beside the meshes.
struct SceneFrame
{
    QMatrix4x4 projection;
    QMatrix4x4 view;
    QSize viewport;  ///< in the widget's own pixels
    QQuaternion yaw; ///< turn of the whole model about its z
    bool skinned = false;
    bool backCull = false; ///< clockwise triangles are front faces, and the others are not seen
    bool showGround = false;
    bool showAxisGizmo = false;
    GizmoHover gizmoHover;
    float brightness = 1.0f;
    float groundHeight = 0.0f; ///< model z, 0 or below
    Shading shading = Shading::Shaded;
    SurfaceLook look = SurfaceLook::Textured;
    bool showVertexNormals = false; ///< of the selected surface, or all where none is selected
    bool sortsTransparency = false; ///< what is half transparent comes last, from back to front
    bool sharpTexels = false;       ///< the model's textures are not smoothed
    bool smoothEdges = false;       ///< several samples a pixel, in a view
    bool fadingGround = false;      ///< the ground ends in nothing, and is calm where it is far
    bool showSurfaceTint = true;    ///< with its outline
    SurfaceOverlay overlay = SurfaceOverlay::None;
    int selectedBone = -1;
    HighlightPoint highlight;
    MarkedRecords marks;
    OnionSkin onionSkin;
    std::vector<QRgb> boneColors; ///< laid over the vertices of each bone; none: nothing is
};
