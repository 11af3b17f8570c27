// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CursorKeeper.h"

class QEvent;
class QWidget;
class ToolChain;

/// Records what mouse and keys do over a widget, hands it to its tools and shows the cursor that they want.
class InputRecorder
{
public:
    /// What has become of an event.
    enum class Outcome {
        Passed,  ///< it is for the toolkit to deal with
        Taken,   ///< the tools have it, and nothing comes of it by itself
        Used,    ///< they have something to do at the next ticks
        Changed, ///< and the view looks different
    };

    /// Both outlive the recorder.
    InputRecorder(QWidget &view, ToolChain &tools);

    Outcome handle(QEvent &event);
    /// No releases will come: lets go of everything.
    void cancel();
    void showCursor();

private:
    Outcome handleInput(QEvent &event);

    QWidget &m_view;
    ToolChain &m_tools;
    CursorKeeper m_cursor;
};
