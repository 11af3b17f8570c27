// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

/// How far keys are dragged: as far as the mouse, or a tenth of that from where it was when that was wanted.
class KeyDrag
{
public:
    KeyDrag() = default;
    /// From a pixel.
    KeyDrag(int y, bool fine)
        : m_anchor(y)
        , m_last(y)
        , m_fine(fine)
    {}

    /// To a pixel; `perPixel` is what one of them stands for. Exactly 0 where it began.
    void move(int y, bool fine, double perPixel)
    {
        const auto way = [&](int to) { return (m_anchor - to) * perPixel * (m_fine ? 0.1 : 1.0); };
        if (fine != m_fine) {
            m_before += way(m_last);
            m_anchor = m_last;
            m_fine = fine;
        }
        m_last = y;
        m_by = m_before + way(y);
    }
    double by() const { return m_by; }

private:
    int m_anchor = 0;
    int m_last = 0;
    bool m_fine = false;
    double m_before = 0.0; ///< up to the anchor
    double m_by = 0.0;
};
