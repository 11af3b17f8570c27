// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Playback.h"

#include <QVector3D>

#include <vector>

/// A key frame action that is marked in the picture.
struct MarkedEvent
{
    int action;
    int type;
    int bone; ///< what `offset` is relative to; the model when there is no such bone
    QVector3D offset;
    float damageRadius; ///< units; 0 of what does no damage
    float strength;     ///< 1 as it happens, less as it fades
    bool selected;
};

/// The key frame actions that a picture marks: those that have just happened, and those that are selected.
/// Keeps its memory.
class MarkedEvents
{
public:
    /// How long an event that plays is seen, in seconds of play time: a frame alone would be too short.
    static constexpr float Glow = 0.35f;
    /// A file may say anything; more than this cannot be told apart.
    static constexpr size_t Most = 64;

    bool wanted = false;
    // What is selected: actions, ascending, of a block.
    int selectedBlock = -1;
    std::vector<int> selected;

    /// Finds them for the frame that is shown of what plays; that may be none. Costs nothing where they are
    /// not wanted.
    void follow(const Playback &state, int frame);
    const std::vector<MarkedEvent> &shown() const { return m_shown; }

    /// Whether they still fade though the clock stands on the last frame.
    bool isFading() const { return m_isFading; }
    /// Lets them fade then, by so many seconds of play time.
    void fade(float seconds) { m_stood += m_isFading ? seconds : 0.0f; }

private:
    std::vector<MarkedEvent> m_shown;
    bool m_isFading = false;
    float m_stood = 0.0f; ///< how long the clock has stood, in seconds
};
