// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CardClock.h"

#include <utility>

CardClock::CardClock()
{
    for (Question &question : m_ring) {
        auto query = std::make_unique<QOpenGLTimerQuery>();
        if (query->create())
            question.query = std::move(query);
    }
}

void CardClock::begin()
{
    collect();
    // A card that is far behind gets no further question.
    m_isMeasuring = m_ring[m_next].query && !m_ring[m_next].isAsked;
    if (m_isMeasuring)
        m_ring[m_next].query->begin();
}

void CardClock::end()
{
    if (!std::exchange(m_isMeasuring, false))
        return;
    m_ring[m_next].query->end();
    m_ring[m_next].isAsked = true;
    m_next = (m_next + 1) % m_ring.size();
}

void CardClock::collect()
{
    for (Question &question : m_ring) {
        if (!question.isAsked || !question.query->isResultAvailable())
            continue;
        m_sum += double(question.query->waitForResult()) * 1e-6; // which is there
        ++m_answers;
        question.isAsked = false;
    }
}

std::optional<float> CardClock::takeMean()
{
    const double sum = std::exchange(m_sum, 0.0);
    const int answers = std::exchange(m_answers, 0);
    return answers > 0 ? std::optional(float(sum / answers)) : std::nullopt;
}
