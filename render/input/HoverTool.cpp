// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "HoverTool.h"

#include "ViewInput.h"

#include <utility>

HoverTool::HoverTool(const ViewSight &sight, ShowTip showTip)
    : m_sight(sight)
    , m_showTip(std::move(showTip))
{}

void HoverTool::setNames(MarkName bone, MarkName hotPoint)
{
    m_boneName = std::move(bone);
    m_hotPointName = std::move(hotPoint);
}

std::optional<int> HoverTool::move(const ViewInput &input)
{
    if (input.buttons != Qt::NoButton)
        return std::nullopt;
    const HitMarks marks = m_sight.marksAt(input.position);
    if (marks.hotPoint == m_hovered.hotPoint && marks.bone == m_hovered.bone)
        return 0;
    m_hovered = marks;
    QString name;
    if (marks.hotPoint != HitMarks::None && m_hotPointName)
        name = m_hotPointName(marks.hotPoint);
    else if (marks.bone != HitMarks::None && m_boneName)
        name = m_boneName(marks.bone);
    m_showTip(input.position, name);
    return 0;
}
