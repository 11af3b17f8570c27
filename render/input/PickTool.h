// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewTool.h"

#include <functional>

class ViewSight;

/// Says what a click of the left button has hit, be it nothing. It takes nothing, so the other tools get the
/// same press; one that drags, or has Alt held, is no click.
class PickTool : public ViewTool
{
public:
    enum class Kind { Surface, Bone, HotPoint, Nothing };
    using Picked = std::function<void(Kind kind, int index)>;

    PickTool(const ViewSight &sight, Picked picked);

    bool press(const ViewInput &input) override;
    bool release(const ViewInput &input) override;

private:
    const ViewSight &m_sight;
    Picked m_picked;
    bool m_isClick = false; ///< so far
};
