// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ViewTools.h"

#include "BoxTool.h"
#include "FlightTool.h"
#include "GizmoTool.h"
#include "OrbitTool.h"
#include "PointTool.h"
#include "TurntableTool.h"

#include <utility>

ViewTools::ViewTools(Camera &camera, const ViewSight &sight, PickTool::Picked picked,
                     HoverTool::ShowTip showTip)
{
    turntable = &add<TurntableTool>(camera, sight);
    gizmo = &add<GizmoTool>(camera, sight, showTip);
    // What is taken by its handle is neither picked nor flown around.
    point = &add<PointTool>(sight);
    box = &add<BoxTool>(sight);
    pick = &add<PickTool>(sight, std::move(picked));
    orbit = &add<OrbitTool>(camera, sight);
    flight = &add<FlightTool>(camera);
    hover = &add<HoverTool>(sight, std::move(showTip));
}

bool ViewTools::isHandleHeld() const
{
    return point->isDragging() || box->isDragging();
}
