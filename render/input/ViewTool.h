// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

struct ViewInput;

/// What the cursor over a view is to be. An open hand could take
/// something, a cross aims, and both hold nothing; a captured one is not seen, and is
/// brought back to the middle after each move.
enum class ViewCursor { Arrow, OpenHand, Cross, ClosedHand, Captured };

/// One way of using mouse and keyboard in a view. Knows no window: it changes the camera, or says what it
/// found, when a `ToolChain` hands it an input.
class ViewTool
{
public:
    virtual ~ViewTool() = default;

    /// True takes the press: the tools behind this one do not get it.
    virtual bool press(const ViewInput &) { return false; }
    /// How many pixels the hand has moved, where the tool takes the move.
    virtual std::optional<int> move(const ViewInput &) { return std::nullopt; }
    /// Every tool gets every release. True lets go of all that is held besides: the others are cancelled.
    virtual bool release(const ViewInput &) { return false; }
    virtual bool wheel(const ViewInput &) { return false; }
    virtual bool keyPress(const ViewInput &) { return false; }
    virtual bool keyRelease(const ViewInput &) { return false; }
    /// Whether all keys are its own now, those of commands too.
    virtual bool takesKeys() const { return false; }
    /// `dt` seconds went by. True when the camera moved.
    virtual bool tick(float) { return false; }
    /// No releases will come: lets go of everything.
    virtual void cancel() {}
    /// The mouse has left the view.
    virtual void leave() {}
    virtual ViewCursor cursor() const { return ViewCursor::Arrow; }
};
