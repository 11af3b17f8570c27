// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "OrbitTool.h"

#include "Camera.h"
#include "ViewInput.h"
#include "ViewSight.h"

#include <cmath>
#include <utility>

namespace {
constexpr double WheelNotch = 120.0; // eighths of a degree
} // namespace

OrbitTool::OrbitTool(Camera &camera, const ViewSight &sight)
    : m_camera(camera)
    , m_sight(sight)
{}

bool OrbitTool::isMeant(const ViewInput &input) const
{
    return m_always || (input.modifiers & Qt::AltModifier) != 0;
}

bool OrbitTool::press(const ViewInput &input)
{
    if (m_drag != Drag::None)
        return true;
    if (input.mouseHeld || !isMeant(input))
        return false;
    if (input.button != Qt::LeftButton && input.button != Qt::MiddleButton)
        return false;
    m_drag = input.button == Qt::LeftButton ? Drag::Orbit : Drag::Pan;
    m_button = input.button;
    m_last = input.position;
    m_pivot = m_sight.pivot();
    return true;
}

std::optional<int> OrbitTool::move(const ViewInput &input)
{
    if (m_drag == Drag::None)
        return std::nullopt;
    const QPoint moved = input.position - std::exchange(m_last, input.position);
    if (m_drag == Drag::Orbit)
        m_camera.orbitDrag(m_pivot, float(moved.x()), float(moved.y()));
    else
        m_camera.pan(m_pivot, float(moved.x()), float(moved.y()), input.size.height());
    return moved.manhattanLength();
}

bool OrbitTool::release(const ViewInput &input)
{
    return m_drag != Drag::None && input.button == m_button;
}

bool OrbitTool::wheel(const ViewInput &input)
{
    // With Alt held many systems turn the wheel sideways.
    const bool sideways = input.wheelTurn.y() == 0 && (input.modifiers & Qt::AltModifier) != 0;
    const int turn = sideways ? input.wheelTurn.x() : input.wheelTurn.y();
    if (turn != 0)
        m_camera.dolly(m_sight.pivot(),
                       float(std::pow(double(Camera::DollyPerNotch), double(turn) / WheelNotch)));
    return true;
}

ViewCursor OrbitTool::cursor() const
{
    return m_drag == Drag::None ? ViewCursor::Arrow : ViewCursor::ClosedHand;
}
