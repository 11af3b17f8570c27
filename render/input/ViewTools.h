// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "HoverTool.h"
#include "PickTool.h"
#include "ToolChain.h"

class BoxTool;
class Camera;
class FlightTool;
class GizmoTool;
class OrbitTool;
class PointTool;
class TurntableTool;

/// All that mouse and keys do in the 3D view.
class ViewTools : public ToolChain
{
public:
    /// Camera and sight outlive the tools.
    ViewTools(Camera &camera, const ViewSight &sight, PickTool::Picked picked, HoverTool::ShowTip showTip);

    /// Whether something is held by its handle.
    bool isHandleHeld() const;

    // Those that can be told something.
    TurntableTool *turntable;
    GizmoTool *gizmo;
    PointTool *point;
    BoxTool *box;
    PickTool *pick;
    OrbitTool *orbit;
    FlightTool *flight;
    HoverTool *hover;
};
