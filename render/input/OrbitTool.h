// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewTool.h"

#include <QPoint>
#include <QVector3D>
#include <Qt>

class Camera;
class ViewSight;

/// Turns the camera around what it looks at, with Alt held or always: the left button turns, the middle one
/// takes what is looked at along. The wheel goes nearer and farther in any case.
class OrbitTool : public ViewTool
{
public:
    OrbitTool(Camera &camera, const ViewSight &sight);

    void setAlways(bool on) { m_always = on; } ///< without Alt, too

    bool press(const ViewInput &input) override;
    std::optional<int> move(const ViewInput &input) override;
    bool release(const ViewInput &input) override;
    bool wheel(const ViewInput &input) override;
    void cancel() override { m_drag = Drag::None; }
    ViewCursor cursor() const override;

private:
    enum class Drag { None, Orbit, Pan };

    bool isMeant(const ViewInput &input) const;

    Camera &m_camera;
    const ViewSight &m_sight;
    bool m_always = false;
    Drag m_drag = Drag::None;
    Qt::MouseButton m_button = Qt::NoButton; ///< of the drag
    QVector3D m_pivot;
    QPoint m_last; ///< where the mouse was
};
