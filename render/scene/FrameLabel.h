// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Playback.h"

#include <QString>

/// The text beside the track slider: "Initial Pose", "Frame: 3 / 16" or "Invalid Animation". It shows the
/// nearest frame, while the pose stands between two: the label may run half a frame ahead of the picture.
class FrameLabel
{
public:
    /// Follows `state`. Returns true when the text has to be shown anew.
    bool update(const Playback &state);
    const QString &text() const { return m_text; }

    /// The nearest frame to a time in seconds, halves up; 0 when their product is no number.
    static int nearestFrame(float time, float rate);

private:
    static constexpr int Nothing = -1;
    static constexpr int Invalid = -2;

    int m_shownFrame = Nothing;
    int m_shownState = Nothing;
    int m_shownCount = Nothing;
    QString m_text;
};
