// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewInput.h"
#include "ViewTool.h"

#include <memory>
#include <utility>
#include <vector>

/// The tools of a view, in the order in which they are offered an input.
class ToolChain
{
public:
    /// Makes another tool, behind all others.
    template <typename Tool, typename... Arguments>
    Tool &add(Arguments &&...arguments)
    {
        auto tool = std::make_unique<Tool>(std::forward<Arguments>(arguments)...);
        Tool &added = *tool;
        m_tools.push_back(std::move(tool));
        return added;
    }

    // Walk the chain until a tool takes the input. True when one did; of a move, when the hand moved in it.
    bool press(ViewInput input);
    bool move(ViewInput input);
    bool wheel(ViewInput input);
    bool keyPress(ViewInput input);
    bool keyRelease(ViewInput input);

    // Reach every tool.

    /// The last tool first: what a click has hit is told after the mouse is given back.
    void release(ViewInput input);
    bool tick(float dt);
    void cancel();
    void leave();

    ViewCursor cursor() const;
    /// Whether one of them wants all keys.
    bool takesKeys() const;

private:
    using Offer = bool (ViewTool::*)(const ViewInput &);
    bool offer(ViewInput &input, Offer what);
    void complete(ViewInput &input) const;

    std::vector<std::unique_ptr<ViewTool>> m_tools;
    QPoint m_pressPosition;
    int m_travel = 0;
};
