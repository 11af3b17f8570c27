// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PointTool.h"

#include "BoxFaces.h"
#include "ViewSight.h"

#include <cmath>

namespace {
constexpr double PointReach = 10.0; // pixels
/// Of the step, which is one to ten pixels: no hand moves by so little.
constexpr double UnseenShare = 1.0e-3;

std::optional<QPointF> pixelOf(const PointHandle &handle, const ScreenMap &map)
{
    const QVector3D inEye = map.toEye(handle.toModel.map(handle.place));
    if (!map.isVisible(inEye))
        return {};
    return map.pixel(inEye);
}
} // namespace

PointTool::PointTool(const ViewSight &sight)
    : HandleTool(sight)
{}

bool PointTool::isAt(const QPoint &pixel) const
{
    const std::optional<PointHandle> handle = sight().pointHandle();
    if (!handle)
        return false;
    const auto place = pixelOf(*handle, sight().screenMap());
    return place && std::hypot(place->x() - pixel.x(), place->y() - pixel.y()) < PointReach;
}

ViewDrags::Handle PointTool::grab()
{
    m_start = *sight().pointHandle();
    m_grabbed = *pixelOf(m_start, sight().screenMap()) - mouse();
    m_pressed = mouse();
    m_takesOver = false;
    m_lock = PointDrag::Lock::Free;
    return ViewDrags::Handle::Point;
}

void PointTool::lockNext(int axis)
{
    using Lock = PointDrag::Lock;
    if (m_lock == Lock::Free || m_axis != axis)
        m_lock = Lock::ModelAxis;
    else if (m_lock == Lock::ModelAxis && m_start.bone != PointHandle::NoBone)
        m_lock = Lock::OwnAxis;
    else
        m_lock = Lock::Free;
    m_axis = axis;
}

/// From where it was, in the space of its bone: as deep in the picture, or along an axis.
std::optional<QVector3D> PointTool::offset(const ScreenMap &map, double step) const
{
    if (mouse() == m_pressed)
        return QVector3D();
    const Ray ray = map.ray(QPointF(mouse()) + m_grabbed);
    const QVector3D start = m_start.toModel.map(m_start.place);
    if (m_lock == PointDrag::Lock::Free) {
        // The ray's direction is 1 deep.
        const float depth = map.toEye(ray.origin).z() - map.toEye(start).z();
        return m_start.toModel.inverted().mapVector(ray.origin + depth * ray.direction - start);
    }
    QVector3D axis;
    axis[m_axis] = 1.0f;
    const bool isOwn = m_lock == PointDrag::Lock::OwnAxis;
    const auto along = alongLine(start, isOwn ? m_start.toModel.mapVector(axis) : axis, ray);
    if (!along)
        return {};
    if (isOwn)
        return *along * axis;
    // The numbers of a bone that stands askew have no round values on an axis of the model.
    return m_start.toModel.inverted().mapVector((snaps() ? snapped(*along, step) : *along) * axis);
}

void PointTool::follow()
{
    const ScreenMap map = sight().screenMap();
    const double step = snapStep(m_start.toModel.map(m_start.place), map);
    const auto moved = offset(map, step);
    if (!moved)
        return;
    PointDrag drag{m_start.place, m_start.bone, false, m_lock, m_axis, step};
    for (int axis = 0; axis < 3; ++axis) {
        // A number that does not move stays as it is, whatever the rounding of the others.
        if (std::fabs(double((*moved)[axis])) < UnseenShare * step)
            continue;
        drag.place[axis] += (*moved)[axis];
        if (snaps() && m_lock != PointDrag::Lock::ModelAxis)
            drag.place[axis] = snapped(drag.place[axis], step);
    }
    const int taker = m_takesOver ? sight().boneAt(mouse()) : HitMarks::None;
    const auto takerToModel = sight().boneToModel(taker);
    if (taker != m_start.bone && takerToModel) {
        drag.place = takerToModel->inverted().map(m_start.toModel.map(drag.place));
        drag.bone = taker;
        drag.isTaken = true;
    }
    if (isFinite(drag.place))
        receiver()->dragged(drag);
}

bool PointTool::takeKey(int key, bool isDown)
{
    if (key == Qt::Key_B)
        m_takesOver = isDown;
    else if (isDown && key >= Qt::Key_X && key <= Qt::Key_Z)
        lockNext(key - Qt::Key_X);
    else
        return false;
    return true;
}
