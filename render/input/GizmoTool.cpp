// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GizmoTool.h"

#include "ViewInput.h"
#include "ViewSight.h"

#include <QCoreApplication>

#include <utility>

namespace {
using Side = Camera::Side;

QString nameOf(Side side)
{
    switch (side) {
    case Side::Front:
        return QCoreApplication::translate("AxisGizmo", "Front (-Y)");
    case Side::Back:
        return QCoreApplication::translate("AxisGizmo", "Back (+Y)");
    case Side::Left:
        return QCoreApplication::translate("AxisGizmo", "Left (-X)");
    case Side::Right:
        return QCoreApplication::translate("AxisGizmo", "Right (+X)");
    case Side::Top:
        return QCoreApplication::translate("AxisGizmo", "Top (+Z)");
    case Side::Bottom:
        return QCoreApplication::translate("AxisGizmo", "Bottom (-Z)");
    }
    return {};
}

Side opposite(Side side)
{
    switch (side) {
    case Side::Front:
        return Side::Back;
    case Side::Back:
        return Side::Front;
    case Side::Left:
        return Side::Right;
    case Side::Right:
        return Side::Left;
    case Side::Top:
        return Side::Bottom;
    case Side::Bottom:
        break;
    }
    return Side::Top;
}
} // namespace

GizmoTool::GizmoTool(Camera &camera, const ViewSight &sight, HoverTool::ShowTip showTip)
    : m_camera(camera)
    , m_sight(sight)
    , m_showTip(std::move(showTip))
{}

GizmoHover GizmoTool::hoverAt(const ViewInput &input) const
{
    if (!m_sight.showsGizmo() || !AxisGizmo::covers(input.position, input.size))
        return {};
    const auto ball = AxisGizmo::ballAt(input.position, m_camera.viewMatrix(), input.size);
    return {true, ball ? std::make_optional(ball->side) : std::nullopt};
}

void GizmoTool::hover(const QPoint &pixel, const GizmoHover &hover)
{
    const GizmoHover before = std::exchange(m_hover, hover);
    if (before == hover)
        return;
    if (before.isOver != hover.isOver || before.side != hover.side) // nor that of what is behind
        m_showTip(pixel, hover.side ? nameOf(*hover.side) : QString());
    if (m_follower)
        m_follower(hover);
}

bool GizmoTool::press(const ViewInput &input)
{
    if (m_isPressed)
        return true;
    if (input.mouseHeld || input.buttons != Qt::LeftButton || (input.modifiers & Qt::AltModifier) != 0)
        return false;
    hover(input.position, hoverAt(input));
    if (!m_hover.isOver)
        return false;
    m_isPressed = true;
    m_isDrag = false;
    m_start = m_last = input.position;
    m_pivot = m_sight.pivot();
    return true;
}

std::optional<int> GizmoTool::move(const ViewInput &input)
{
    if (!m_isPressed) {
        hover(input.position, input.buttons == Qt::NoButton ? hoverAt(input) : GizmoHover());
        return m_hover.isOver ? std::make_optional(0) : std::nullopt;
    }
    const QPoint moved = input.position - m_last;
    m_last = input.position;
    // What is no click any more turns, from then on.
    m_isDrag = m_isDrag || input.travel + moved.manhattanLength() >= input.dragDistance;
    if (m_isDrag) {
        hover(input.position, {true, {}});
        m_camera.orbitDrag(m_pivot, float(moved.x()), float(moved.y()));
    }
    return moved.manhattanLength();
}

bool GizmoTool::release(const ViewInput &input)
{
    if (!m_isPressed || input.button != Qt::LeftButton)
        return false;
    m_isPressed = false;
    if (!m_isDrag && !input.isDrag()) {
        if (const auto ball = AxisGizmo::ballAt(m_start, m_camera.viewMatrix(), input.size)) {
            constexpr float Facing = 0.9995f; // the top is looked at a little askew
            m_camera.lookFrom(ball->nearness > Facing ? opposite(ball->side) : ball->side, m_pivot);
            m_hasTurned = true;
        }
    }
    hover(input.position, hoverAt(input));
    return true;
}

ViewCursor GizmoTool::cursor() const
{
    return m_isPressed ? ViewCursor::ClosedHand : m_hover.isOver ? ViewCursor::OpenHand : ViewCursor::Arrow;
}
