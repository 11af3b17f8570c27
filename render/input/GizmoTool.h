// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AxisGizmo.h"
#include "HoverTool.h"

#include <QPoint>

#include <functional>

/// The axes in the corner of a view, while they are shown: a click on the end of one looks from that side,
/// or from the one across where that is looked from; a drag turns the camera around what is looked at.
class GizmoTool : public ViewTool
{
public:
    /// Told when the gizmo is to look different.
    using Follower = std::function<void(const GizmoHover &hover)>;

    GizmoTool(Camera &camera, const ViewSight &sight, HoverTool::ShowTip showTip);

    void setFollower(Follower follower) { m_follower = std::move(follower); }

    bool press(const ViewInput &input) override;
    std::optional<int> move(const ViewInput &input) override;
    bool release(const ViewInput &input) override;
    bool tick(float) override { return std::exchange(m_hasTurned, false); }
    void cancel() override { m_isPressed = false; }
    void leave() override { hover({}, {}); }
    ViewCursor cursor() const override;

private:
    void hover(const QPoint &pixel, const GizmoHover &hover);
    GizmoHover hoverAt(const ViewInput &input) const;

    Camera &m_camera;
    const ViewSight &m_sight;
    HoverTool::ShowTip m_showTip;
    Follower m_follower;
    GizmoHover m_hover;
    bool m_isPressed = false;
    bool m_isDrag = false;    ///< what was pressed; the input counts anew from a second button on
    bool m_hasTurned = false; ///< by a click
    QPoint m_start;           ///< where it was pressed
    QPoint m_last;            ///< where the mouse was
    QVector3D m_pivot;
};
