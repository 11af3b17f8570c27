// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

/// What the user sees of an animation command, apart from its numbers.
struct MotionKind
{
    enum Name {
        Resample,
        Reverse,
        Trim,
        Shift,
        CloseLoop,
        Mirror,
        ExtractYaw,
        ApplyYaw,
        RemoveUnusedTracks,
        JoinEqualTracks,
        RenumberIds,
        Count
    };

    const char *action; ///< its object name
    QString text;       ///< in menus
    QString step;       ///< the undo step, and the title of the dialog
    QString tip;        ///< what it does
    const char *page;   ///< of the dialog, with its numbers
};

const std::array<MotionKind, MotionKind::Count> &motionKinds();
