// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "HandleTool.h"

#include "ViewInput.h"

#include <utility>

HandleTool::HandleTool(const ViewSight &sight)
    : m_sight(sight)
{}

bool HandleTool::press(const ViewInput &input)
{
    if (m_isDragging)
        return true;
    if (input.mouseHeld || input.buttons != Qt::LeftButton || (input.modifiers & Qt::AltModifier) != 0 ||
        !m_receiver)
        return false;
    hoverAt(input.position);
    if (!isHovered())
        return false;
    m_mouse = input.position;
    m_size = input.size;
    m_snaps = (input.modifiers & Qt::ControlModifier) != 0;
    m_hasMoved = false;
    m_isDragging = true;
    m_receiver->grabbed(grab());
    return true;
}

std::optional<int> HandleTool::move(const ViewInput &input)
{
    if (!m_isDragging) {
        if (m_receiver && input.buttons == Qt::NoButton)
            hoverAt(input.position);
        else
            unhover();
        return std::nullopt;
    }
    const QPoint moved = input.position - std::exchange(m_mouse, input.position);
    m_snaps = (input.modifiers & Qt::ControlModifier) != 0;
    m_hasMoved = m_hasMoved || input.travel + moved.manhattanLength() >= input.dragDistance;
    if (!moved.isNull())
        drag(input);
    return moved.manhattanLength();
}

void HandleTool::drag(const ViewInput &input)
{
    // What was pressed would stand elsewhere in a view of another size.
    if (input.size != m_size)
        return cancel();
    if (m_hasMoved)
        follow();
}

bool HandleTool::release(const ViewInput &input)
{
    if (!m_isDragging || input.button != Qt::LeftButton)
        return false;
    m_isDragging = false;
    if (m_receiver)
        m_receiver->dropped();
    return true;
}

bool HandleTool::keyPress(const ViewInput &input)
{
    if (!m_isDragging)
        return false;
    if (input.autoRepeat)
        return true;
    if (input.key == Qt::Key_Escape) {
        cancel();
    } else if (input.key == Qt::Key_Control) {
        m_snaps = true;
        drag(input);
    } else if (takeKey(input.key, true)) {
        drag(input);
    }
    return true;
}

bool HandleTool::keyRelease(const ViewInput &input)
{
    if (!m_isDragging || input.autoRepeat)
        return false;
    const bool isControl = input.key == Qt::Key_Control;
    if (isControl)
        m_snaps = false;
    if (isControl || takeKey(input.key, false))
        drag(input);
    return false;
}

bool HandleTool::takeKey(int, bool)
{
    return false;
}

void HandleTool::cancel()
{
    if (std::exchange(m_isDragging, false) && m_receiver)
        m_receiver->givenUp();
}

ViewCursor HandleTool::cursor() const
{
    return m_isDragging ? ViewCursor::ClosedHand : isHovered() ? ViewCursor::OpenHand : ViewCursor::Arrow;
}
