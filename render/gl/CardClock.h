// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QOpenGLTimerQuery>

#include <array>
#include <memory>
#include <optional>

/// Tells how long the graphics card takes for frames. The card's answers come some frames later and are never
/// waited for. Made with the context current.
class CardClock
{
public:
    CardClock();

    /// Around the frame.
    void begin();
    void end();
    /// Milliseconds a frame, the mean of those that were answered since the last time this was asked; none
    /// where there is none, as where the driver cannot tell.
    std::optional<float> takeMean();

private:
    struct Question
    {
        std::unique_ptr<QOpenGLTimerQuery> query; ///< null where the driver cannot tell
        bool isAsked = false;
    };

    void collect();

    std::array<Question, 4> m_ring;
    size_t m_next = 0;
    bool m_isMeasuring = false;
    double m_sum = 0.0; ///< milliseconds
    int m_answers = 0;
};
