// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ViewTools.h"

#include "FlightTool.h"
#include "OrbitTool.h"

#include <utility>

ViewTools::ViewTools(Camera &camera, const ViewSight &sight, PickTool::Picked picked,
                     HoverTool::ShowTip showTip)
{
    pick = &add<PickTool>(sight, std::move(picked));
    orbit = &add<OrbitTool>(camera, sight);
    flight = &add<FlightTool>(camera);
    hover = &add<HoverTool>(sight, std::move(showTip));
}
