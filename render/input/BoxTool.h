// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "HandleTool.h"

/// Drags faces of a box along their axes, by the grips in their middles; no face passes the one across from
/// it.
class BoxTool : public HandleTool
{
public:
    static constexpr int NoFace = -1;

    explicit BoxTool(const ViewSight &sight);

private:
    void hoverAt(const QPoint &pixel) override { hover(faceAt(pixel)); }
    void unhover() override { hover(NoFace); }
    bool isHovered() const override { return m_hovered != NoFace; }
    ViewDrags::Handle grab() override;
    void follow() override;

    int faceAt(const QPoint &pixel) const;
    void hover(int face);

    int m_hovered = NoFace;
    int m_face = NoFace;
    BoxHandle m_start;
    float m_grabbed = 0.0f; ///< along the axis, from the face to where it was pressed
};
