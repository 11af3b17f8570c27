// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewTool.h"

#include <functional>
#include <utility>

class ViewSight;

/// Says what a click of the left button has hit, be it nothing. It takes nothing, so the other tools get the
/// same press; one that drags, or has Alt held, is no click. While somebody waits for a bone, clicks hit
/// nothing else.
class PickTool : public ViewTool
{
public:
    enum class Kind { Surface, Bone, HotPoint, Nothing };
    using Picked = std::function<void(Kind kind, int index)>;

    using BonePicked = std::function<void(int bone)>;

    PickTool(const ViewSight &sight, Picked picked);

    /// Tells this one bone, and nobody else; null: nobody waits for one.
    void waitForBone(BonePicked picked) { m_bonePicked = std::move(picked); }

    bool press(const ViewInput &input) override;
    bool release(const ViewInput &input) override;
    ViewCursor cursor() const override { return m_bonePicked ? ViewCursor::Cross : ViewCursor::Arrow; }

private:
    const ViewSight &m_sight;
    Picked m_picked;
    BonePicked m_bonePicked;
    bool m_isClick = false; ///< so far
};
