// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PickTool.h"

#include "ViewInput.h"
#include "ViewSight.h"

#include <utility>

PickTool::PickTool(const ViewSight &sight, Picked picked)
    : m_sight(sight)
    , m_picked(std::move(picked))
{}

bool PickTool::press(const ViewInput &input)
{
    m_isClick = input.buttons == Qt::LeftButton && (input.modifiers & Qt::AltModifier) == 0;
    return false;
}

bool PickTool::release(const ViewInput &input)
{
    if (input.button != Qt::LeftButton || !std::exchange(m_isClick, false) || input.isDrag())
        return false;
    const HitMarks marks = m_sight.marksAt(input.pressPosition);
    if (m_bonePicked) {
        if (marks.bone != HitMarks::None)
            std::exchange(m_bonePicked, {})(marks.bone);
    } else if (marks.hotPoint != HitMarks::None) {
        m_picked(Kind::HotPoint, marks.hotPoint);
    } else if (marks.bone != HitMarks::None) {
        m_picked(Kind::Bone, marks.bone);
    } else {
        const int surface = m_sight.surfaceAt(input.pressPosition);
        m_picked(surface != HitMarks::None ? Kind::Surface : Kind::Nothing, surface);
    }
    return false;
}
