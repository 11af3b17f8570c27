// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

/// Where values stand in a column of pixels, the larger above.
class ValueScale
{
public:
    /// Between two pixels; what stood there before still does.
    void fit(int top, int bottom);

    double yOf(double value) const { return m_bottom - (value - m_least) / perPixel(); }
    double valueAt(double y) const { return m_least + (m_bottom - y) * perPixel(); }
    double perPixel() const { return (m_most - m_least) / (m_bottom - m_top); }
    double least() const { return m_least; }
    double most() const { return m_most; }

    /// Has these values in sight, with some room around.
    void show(double least, double most);
    /// So many times as large as before; the value at the pixel stays there.
    void zoom(double factor, double y);
    void scroll(double pixels);

    /// 1, 2, 5, 10, 20 and so on, or a part of that: the least that takes so many pixels.
    double step(int pixels) const;

private:
    double m_top = 0.0;
    double m_bottom = 1.0;
    double m_least = -1.0;
    double m_most = 1.0;
};
