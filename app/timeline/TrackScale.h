// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

/// Where the frames of an animation stand in a row of pixels, all of them or, zoomed, a part.
class TrackScale
{
public:
    /// The most pixels from one frame to the next.
    static constexpr double MostPixels = 160.0;

    /// `count` frames between two pixels. What is zoomed stays so as far as it can be.
    void fit(int left, int right, int count);
    int frameCount() const { return m_count; }
    int lastFrame() const { return m_count > 0 ? m_count - 1 : 0; }

    double xOf(double frame) const { return m_left - m_scroll + frame * pixelsPerFrame(); }
    /// The nearest frame that there is.
    int frameAt(double x) const;
    double pixelsPerFrame() const;

    bool isZoomed() const { return m_zoom > 1.0; }
    /// So many times as wide as at first; the frame at the pixel stays there. Returns whether it is another
    /// zoom than before.
    bool zoom(double factor, double x);
    /// Has two frames, and those between, take all the room as far as they can.
    void show(int first, int last);
    void showAll();
    /// Pixels, of `length()` all together.
    double scrolled() const { return m_scroll; }
    void scrollTo(double pixels);
    double length() const { return (m_right - m_left) * m_zoom; }
    double room() const { return m_right - m_left; }

private:
    double mostZoom() const;

    double m_left = 0.0;
    double m_right = 1.0;
    int m_count = 0;
    double m_zoom = 1.0;
    double m_scroll = 0.0;
};
