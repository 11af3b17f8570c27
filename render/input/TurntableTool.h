// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Camera.h"
#include "ViewTool.h"

class ViewSight;

/// Turns the camera around what is looked at, at a steady speed, until a button or the wheel is used over the
/// view, anything else moves the camera, or Escape is pressed. Never in the way of another tool.
class TurntableTool : public ViewTool
{
public:
    static constexpr float Speed = 30.0f; ///< degrees a second

    TurntableTool(Camera &camera, const ViewSight &sight);

    void start();
    void stop() { m_isOn = false; }
    bool isOn() const { return m_isOn; }
    /// `dt` seconds went by. Whether it has turned: at other times than its fellows' ticks, which are as many
    /// as a flight wants.
    bool turn(float dt);

    bool press(const ViewInput &) override;
    bool wheel(const ViewInput &) override;
    bool keyPress(const ViewInput &input) override;

private:
    struct Stand
    {
        QVector3D position;
        float yaw = 0.0f;
        float pitch = 0.0f;
        float lens = 0.0f;
        bool isOrthographic = false;
    };
    Stand stand() const;
    bool isWhereItWasLeft() const;

    Camera &m_camera;
    const ViewSight &m_sight;
    bool m_isOn = false;
    QVector3D m_pivot;
    Stand m_left; ///< how it left the camera
};
