// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Camera.h"

#include <functional>

class ViewSight;

/// What commands do to the camera of a view. All that turns or comes nearer does so around what is looked at.
class CameraCommands
{
public:
    /// As the settings want the camera at first. Camera and sight outlive this; `moved` is called whenever
    /// the picture has changed.
    CameraCommands(Camera &camera, const ViewSight &sight, std::function<void()> moved);

    void lookFrom(Camera::Side side);
    /// The vertical field of view, in degrees.
    void setLens(float degrees);
    /// Whether lookFrom() shows the side orthographic.
    void setOrthographicSides(bool on);
    /// Orthographic or in perspective, whichever it is not now.
    void toggleOrthographic();
    /// Turns by so many degrees: to the right of what is looked at, and up.
    void orbit(float right, float up);
    /// As far as so many notches of a wheel; below 0 it goes farther away.
    void zoom(int notches);

private:
    Camera &m_camera;
    const ViewSight &m_sight;
    std::function<void()> m_moved;
};
