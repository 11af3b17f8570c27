// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TurntableTool.h"

#include "ViewInput.h"
#include "ViewSight.h"

#include <cmath>
#include <utility>

TurntableTool::TurntableTool(Camera &camera, const ViewSight &sight)
    : m_camera(camera)
    , m_sight(sight)
{}

void TurntableTool::start()
{
    m_pivot = m_sight.pivot();
    m_left = stand();
    m_isOn = true;
}

TurntableTool::Stand TurntableTool::stand() const
{
    return {m_camera.position(), m_camera.yaw(), m_camera.pitch(), m_camera.lens(),
            m_camera.isOrthographic()};
}

/// Another lens puts the camera elsewhere, so that what is looked at stays as large: nobody has moved it.
bool TurntableTool::isWhereItWasLeft() const
{
    const Stand now = stand();
    const bool hasOtherLens = now.lens != m_left.lens || now.isOrthographic != m_left.isOrthographic;
    return now.yaw == m_left.yaw && now.pitch == m_left.pitch &&
           (hasOtherLens || now.position == m_left.position);
}

bool TurntableTool::turn(float dt)
{
    m_isOn = m_isOn && isWhereItWasLeft();
    if (!m_isOn)
        return false;
    m_camera.orbit(m_pivot, std::fmod(m_camera.yaw() + Speed * dt, 360.0f), m_camera.pitch());
    m_left = stand();
    return true;
}

bool TurntableTool::press(const ViewInput &)
{
    stop();
    return false;
}

bool TurntableTool::wheel(const ViewInput &)
{
    stop();
    return false;
}

bool TurntableTool::keyPress(const ViewInput &input)
{
    return input.key == Qt::Key_Escape && std::exchange(m_isOn, false);
}
