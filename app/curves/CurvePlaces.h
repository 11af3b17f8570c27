// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CurveData.h"
#include "CurveSelection.h"
#include "TrackScale.h"
#include "ValueScale.h"

#include <QFont>
#include <QRect>

/// Where curves stand in their view: a ruler of frames above, an axis of values at the left, and one at the
/// right where there are two units.
class CurvePlaces
{
public:
    static constexpr double Reach = 7.0; ///< pixels from a key within which a press takes it
    static constexpr int RowPixels = 22; ///< least from one line of values to the next

    explicit CurvePlaces(const CurveData &data)
        : m_data(data)
    {}

    /// Finds all places in so many pixels.
    void arrange(const QFont &font, const QSize &size);

    const CurveData &data() const { return m_data; }
    TrackScale &time() { return m_time; }
    const TrackScale &time() const { return m_time; }
    ValueScale &values(CurveUnit unit) { return m_values[size_t(unit)]; }
    const ValueScale &values(CurveUnit unit) const { return m_values[size_t(unit)]; }
    const QFont &font() const { return m_font; }
    const QRect &plot() const { return m_plot; }
    QRect ruler() const { return {m_plot.left(), 0, m_plot.width(), m_plot.top()}; }

    /// The frames that are in sight.
    int firstFrame() const;
    int lastFrame() const;
    QPointF placeOf(const CurveKey &key) const;
    /// The key that a press takes; none where there is none.
    CurveKey keyAt(const QPointF &place) const;
    /// Where a press takes a frame of the ruler.
    QPoint rulerPlace(int frame) const { return {int(m_time.xOf(frame)), m_plot.top() / 2}; }

    /// Selects the keys within a band, beside what is selected.
    void selectIn(const QRect &band, CurveSelection &selection) const;

    /// All of the curves, or what is selected of them.
    void showAll();
    void showSelected(const CurveSelection &selection);
    /// Brings all values of a unit in sight, unless they were zoomed or moved by hand.
    void fitValues(CurveUnit unit);
    void fitAll();
    /// Forgets that they were.
    void forgetZoom();
    void zoomValues(double factor, double y);
    void scroll(const QPoint &by);
    /// A tenth of what the lines of values are apart.
    double roundStep(CurveUnit unit) const;
    /// How far a key moves to the round number that is nearest to where it would be.
    double roundMove(const CurveKey &key, double by) const;

private:
    const CurveData &m_data;
    TrackScale m_time;
    ValueScale m_values[CurveUnitCount];
    bool m_isZoomed[CurveUnitCount] = {false, false}; ///< the values, by hand
    QFont m_font;
    QRect m_plot{0, 0, 1, 1};
};
