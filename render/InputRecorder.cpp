// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "InputRecorder.h"

#include "ToolChain.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>
#include <QWidget>

InputRecorder::InputRecorder(QWidget &view, ToolChain &tools)
    : m_view(view)
    , m_tools(tools)
    , m_cursor(view)
{}

InputRecorder::Outcome InputRecorder::handle(QEvent &event)
{
    switch (event.type()) {
    case QEvent::Leave:
        m_tools.leave();
        return Outcome::Passed;
    case QEvent::FocusOut: // the camera would fly on
        cancel();
        return Outcome::Passed;
    default:
        return m_view.isEnabled() ? handleInput(event) : Outcome::Passed;
    }
}

InputRecorder::Outcome InputRecorder::handleInput(QEvent &event)
{
    const auto record = [this](const auto &what) { return ViewInput::of(what, m_view.size()); };
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        QToolTip::hideText();
        m_cursor.follow(static_cast<QMouseEvent &>(event).pos());
        m_tools.press(record(static_cast<QMouseEvent &>(event)));
        showCursor();
        return Outcome::Used;
    case QEvent::MouseButtonRelease:
        m_tools.release(record(static_cast<QMouseEvent &>(event)));
        showCursor();
        return Outcome::Taken;
    case QEvent::MouseMove: {
        ViewInput input = record(static_cast<QMouseEvent &>(event));
        input.step = m_cursor.follow(input.position);
        const bool isChanged = m_tools.move(input);
        showCursor();
        return isChanged ? Outcome::Changed : Outcome::Taken;
    }
    case QEvent::Wheel:
        if (!m_tools.wheel(record(static_cast<QWheelEvent &>(event))))
            return Outcome::Passed;
        event.accept();
        return Outcome::Changed;
    case QEvent::ShortcutOverride: // a command would have it otherwise
        if (!m_tools.takesKeys())
            return Outcome::Passed;
        event.accept();
        return Outcome::Taken;
    case QEvent::KeyPress: {
        const auto &key = static_cast<QKeyEvent &>(event);
        if (!m_tools.keyPress(record(key)))
            return Outcome::Passed;
        showCursor();
        return key.isAutoRepeat() ? Outcome::Taken : Outcome::Changed;
    }
    case QEvent::KeyRelease:
        return m_tools.keyRelease(record(static_cast<QKeyEvent &>(event))) ? Outcome::Used : Outcome::Passed;
    default:
        return Outcome::Passed;
    }
}

void InputRecorder::cancel()
{
    m_tools.cancel();
    showCursor();
}

void InputRecorder::showCursor()
{
    m_cursor.show(m_tools.cursor());
}
