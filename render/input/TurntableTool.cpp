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

bool TurntableTool::turn(float dt)
{
    m_isOn = m_isOn && m_left == stand();
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
