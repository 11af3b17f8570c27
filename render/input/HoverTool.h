// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewSight.h"
#include "ViewTool.h"

#include <QString>

#include <functional>

/// Names the mark under the mouse while no button is held.
class HoverTool : public ViewTool
{
public:
    /// What the tip of a mark says, by its index.
    using MarkName = std::function<QString(int)>;
    /// Shows a tip beside a pixel; an empty text hides the one that is shown.
    using ShowTip = std::function<void(const QPoint &pixel, const QString &text)>;

    HoverTool(const ViewSight &sight, ShowTip showTip);

    void setNames(MarkName bone, MarkName hotPoint);

    std::optional<int> move(const ViewInput &input) override;
    void leave() override { m_hovered = {}; }

private:
    const ViewSight &m_sight;
    ShowTip m_showTip;
    MarkName m_boneName;
    MarkName m_hotPointName;
    HitMarks m_hovered;
};
