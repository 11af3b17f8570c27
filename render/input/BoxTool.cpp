// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BoxTool.h"

#include "BoxFaces.h"
#include "ViewSight.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
constexpr double GripReach = 10.0; // pixels

/// Where the mouse is along the axis that a face moves on, from its middle.
std::optional<float> alongAxis(const BoxHandle &handle, int face, const ScreenMap &map, const QPointF &pixel)
{
    QVector3D axis;
    axis[BoxFaces::axisOf(face)] = 1.0f;
    return alongLine(handle.toModel.map(BoxFaces::middle(handle.box, face)), handle.toModel.mapVector(axis),
                     map.ray(pixel));
}
} // namespace

BoxTool::BoxTool(const ViewSight &sight)
    : HandleTool(sight)
{}

int BoxTool::faceAt(const QPoint &pixel) const
{
    const std::optional<BoxHandle> handle = sight().boxHandle();
    if (!handle)
        return NoFace;
    const ScreenMap map = sight().screenMap();
    int best = NoFace;
    double bestDistance = GripReach;
    float bestDepth = 0.0f;
    for (int face = 0; face < BoxFaces::Count; ++face) {
        const auto grip = BoxFaces::grip(handle->box, face, handle->toModel, map);
        if (!grip)
            continue;
        const double distance = std::hypot(grip->x() - pixel.x(), grip->y() - pixel.y());
        const float depth = map.toEye(handle->toModel.map(BoxFaces::middle(handle->box, face))).z();
        // Of grips in one place the one nearer to the eye.
        if (distance < bestDistance - 1.0 || (distance < bestDistance + 1.0 && distance < GripReach &&
                                              (best == NoFace || depth > bestDepth))) {
            best = face;
            bestDistance = distance;
            bestDepth = depth;
        }
    }
    return best;
}

void BoxTool::hover(int face)
{
    if (std::exchange(m_hovered, face) != face && receiver())
        receiver()->hovered(face);
}

ViewDrags::Handle BoxTool::grab()
{
    m_face = m_hovered;
    m_start = *sight().boxHandle();
    m_grabbed = alongAxis(m_start, m_face, sight().screenMap(), mouse()).value_or(0.0f);
    return ViewDrags::Handle::Box;
}

void BoxTool::follow()
{
    const ScreenMap map = sight().screenMap();
    const auto along = alongAxis(m_start, m_face, map, mouse());
    if (!along || !std::isfinite(*along))
        return;
    const int axis = BoxFaces::axisOf(m_face);
    const double step = snapStep(m_start.toModel.map(BoxFaces::middle(m_start.box, m_face)), map);
    Box box = m_start.box;
    float &moved = (BoxFaces::isUpper(m_face) ? box.max : box.min)[axis];
    const float from = moved;
    moved = from + *along - m_grabbed;
    if (snaps())
        moved = snapped(moved, step);
    moved = BoxFaces::isUpper(m_face) ? std::max(moved, box.min[axis]) : std::min(moved, box.max[axis]);
    receiver()->dragged(
        BoxDrag{box, m_face, BoxFaces::isUpper(m_face) != m_start.isTurned[size_t(axis)], step});
}
