// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ToolChain.h"

#include <algorithm>
#include <iterator>

void ToolChain::complete(ViewInput &input) const
{
    input.pressPosition = m_pressPosition;
    input.travel = m_travel;
    input.mouseHeld = cursor() > ViewCursor::Cross;
}

bool ToolChain::offer(ViewInput &input, Offer what)
{
    complete(input);
    return std::any_of(m_tools.begin(), m_tools.end(),
                       [&](const auto &tool) { return ((*tool).*what)(input); });
}

bool ToolChain::press(ViewInput input)
{
    m_pressPosition = input.position;
    m_travel = 0;
    return offer(input, &ViewTool::press);
}

bool ToolChain::move(ViewInput input)
{
    complete(input);
    for (auto tool = m_tools.begin(); tool != m_tools.end(); ++tool) {
        if (const std::optional<int> travelled = (*tool)->move(input)) {
            // Those behind it have nothing under the mouse.
            if (input.buttons == Qt::NoButton)
                std::for_each(std::next(tool), m_tools.end(), [](const auto &behind) { behind->leave(); });
            m_travel += *travelled;
            return *travelled > 0;
        }
    }
    return false;
}

bool ToolChain::wheel(ViewInput input)
{
    return offer(input, &ViewTool::wheel);
}

bool ToolChain::keyPress(ViewInput input)
{
    return offer(input, &ViewTool::keyPress);
}

bool ToolChain::keyRelease(ViewInput input)
{
    return offer(input, &ViewTool::keyRelease);
}

void ToolChain::release(ViewInput input)
{
    complete(input);
    for (auto tool = m_tools.rbegin(); tool != m_tools.rend(); ++tool) {
        if ((*tool)->release(input))
            cancel();
    }
}

bool ToolChain::tick(float dt)
{
    bool moved = false;
    for (const auto &tool : m_tools)
        moved = tool->tick(dt) || moved;
    return moved;
}

void ToolChain::cancel()
{
    for (const auto &tool : m_tools)
        tool->cancel();
}

void ToolChain::leave()
{
    for (const auto &tool : m_tools)
        tool->leave();
}

bool ToolChain::takesKeys() const
{
    return std::any_of(m_tools.begin(), m_tools.end(), [](const auto &tool) { return tool->takesKeys(); });
}

ViewCursor ToolChain::cursor() const
{
    ViewCursor shown = ViewCursor::Arrow;
    for (const auto &tool : m_tools)
        shown = std::max(shown, tool->cursor());
    return shown;
}
