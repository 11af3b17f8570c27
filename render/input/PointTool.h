// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "HandleTool.h"

#include <QPointF>

#include <optional>

class ScreenMap;

/// Drags a place in the plane that the view looks at. X, Y and Z lock it to an axis of the model, again to
/// one of its bone, again to none; while B is held the bone under the mouse takes it over.
class PointTool : public HandleTool
{
public:
    explicit PointTool(const ViewSight &sight);

private:
    void hoverAt(const QPoint &pixel) override { m_isHovered = isAt(pixel); }
    void unhover() override { m_isHovered = false; }
    bool isHovered() const override { return m_isHovered; }
    ViewDrags::Handle grab() override;
    void follow() override;
    bool takeKey(int key, bool isDown) override;

    bool isAt(const QPoint &pixel) const;
    void lockNext(int axis);
    std::optional<QVector3D> offset(const ScreenMap &map, double step) const;

    bool m_isHovered = false;
    bool m_takesOver = false;
    PointDrag::Lock m_lock = PointDrag::Lock::Free;
    int m_axis = 0;
    PointHandle m_start;
    QPointF m_grabbed; ///< from the mouse to the place, in pixels
    QPoint m_pressed;
};
