// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CameraCommands.h"

#include "Settings.h"
#include "ViewSight.h"

#include <cmath>
#include <utility>

CameraCommands::CameraCommands(Camera &camera, const ViewSight &sight, std::function<void()> moved)
    : m_camera(camera)
    , m_sight(sight)
    , m_moved(std::move(moved))
{
    m_camera.setLens(float(Settings::Lens.value()), {});
    m_camera.setOrthographicSides(Settings::OrthographicSides.value());
    m_camera.reset(); // which stands in the same place whatever the lens
}

void CameraCommands::lookFrom(Camera::Side side)
{
    m_camera.lookFrom(side, m_sight.pivot());
    m_moved();
}

void CameraCommands::setLens(float degrees)
{
    m_camera.setLens(degrees, m_sight.pivot());
    m_moved();
}

void CameraCommands::setOrthographicSides(bool on)
{
    m_camera.setOrthographicSides(on);
}

void CameraCommands::toggleOrthographic()
{
    m_camera.setOrthographic(!m_camera.isOrthographic(), m_sight.pivot());
    m_moved();
}

void CameraCommands::orbit(float right, float up)
{
    m_camera.orbit(m_sight.pivot(), m_camera.yaw() + right, m_camera.pitch() - up);
    m_moved();
}

void CameraCommands::zoom(int notches)
{
    m_camera.dolly(m_sight.pivot(), std::pow(Camera::DollyPerNotch, float(notches)));
    m_moved();
}
