// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CurvePlaces.h"

#include <QFontMetrics>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {
constexpr int Gap = 6;
constexpr int EndRoom = 8; ///< before the first frame and behind the last

struct Extent
{
    double least;
    double most;
};
void widen(std::optional<Extent> &extent, double least, double most)
{
    extent =
        extent ? Extent{std::min(extent->least, least), std::max(extent->most, most)} : Extent{least, most};
}
} // namespace

void CurvePlaces::arrange(const QFont &font, const QSize &size)
{
    m_font = font;
    const QFontMetrics metrics(font);
    const int gutter = metrics.horizontalAdvance(QStringLiteral("-0000.00")) + Gap;
    const bool hasTwo = m_data.has(CurveUnit::Degrees) && m_data.has(CurveUnit::Units);
    const int ruler = metrics.height() + Gap;
    m_plot = QRect(gutter, ruler, std::max(1, size.width() - gutter - (hasTwo ? gutter : 0)),
                   std::max(1, size.height() - ruler));
    m_time.fit(m_plot.left() + EndRoom, m_plot.right() - EndRoom, m_data.frameCount());
    for (ValueScale &scale : m_values)
        scale.fit(m_plot.top() + Gap, m_plot.bottom() - Gap);
}

int CurvePlaces::firstFrame() const
{
    return std::max(0, m_time.frameAt(m_plot.left()) - 1);
}

int CurvePlaces::lastFrame() const
{
    return std::min(m_time.lastFrame(), m_time.frameAt(m_plot.right()) + 1);
}

QPointF CurvePlaces::placeOf(const CurveKey &key) const
{
    const CurveUnit unit = unitOf(m_data.curves()[size_t(key.curve)].channel);
    return {m_time.xOf(key.frame), values(unit).yOf(m_data.value(key.curve, key.frame))};
}

CurveKey CurvePlaces::keyAt(const QPointF &place) const
{
    if (!m_plot.contains(place.toPoint()) || m_data.frameCount() == 0)
        return {};
    CurveKey nearest;
    double least = Reach * Reach;
    const int first = m_time.frameAt(place.x() - Reach);
    const int last = m_time.frameAt(place.x() + Reach);
    for (int curve = 0; curve < m_data.count(); ++curve) {
        for (int frame = first; frame <= last; ++frame) {
            const QPointF way = placeOf({curve, frame}) - place;
            const double squared = QPointF::dotProduct(way, way);
            if (squared < least) { // which no number is not
                least = squared;
                nearest = {curve, frame};
            }
        }
    }
    return nearest;
}

void CurvePlaces::selectIn(const QRect &band, CurveSelection &selection) const
{
    const int first = int(std::ceil((band.left() - m_time.xOf(0)) / m_time.pixelsPerFrame()));
    const int last = int(std::floor((band.right() - m_time.xOf(0)) / m_time.pixelsPerFrame()));
    for (int curve = 0; curve < m_data.count(); ++curve) {
        for (int frame = std::max(0, first); frame <= std::min(last, m_data.frameCount() - 1); ++frame) {
            const double y = placeOf({curve, frame}).y();
            if (!(y >= band.top() && y <= band.bottom()))
                continue;
            selection.set({curve, frame}, true);
            if (selection.current().isNone())
                selection.setCurrent({curve, frame});
        }
    }
}

void CurvePlaces::forgetZoom()
{
    std::fill(std::begin(m_isZoomed), std::end(m_isZoomed), false);
}

void CurvePlaces::zoomValues(double factor, double y)
{
    for (ValueScale &scale : m_values)
        scale.zoom(factor, y);
    std::fill(std::begin(m_isZoomed), std::end(m_isZoomed), true);
}

void CurvePlaces::scroll(const QPoint &by)
{
    m_time.scrollTo(m_time.scrolled() - by.x());
    for (int unit = 0; unit < CurveUnitCount && by.y() != 0; ++unit) {
        m_values[unit].scroll(by.y());
        m_isZoomed[unit] = true;
    }
}

double CurvePlaces::roundStep(CurveUnit unit) const
{
    return values(unit).step(RowPixels) / 10;
}

double CurvePlaces::roundMove(const CurveKey &key, double by) const
{
    const double value = m_data.value(key.curve, key.frame);
    const double step = roundStep(unitOf(m_data.curves()[size_t(key.curve)].channel));
    return std::round((value + by) / step) * step - value;
}

void CurvePlaces::showAll()
{
    m_time.showAll();
    forgetZoom();
    fitAll();
}

void CurvePlaces::fitAll()
{
    for (const CurveUnit unit : {CurveUnit::Degrees, CurveUnit::Units})
        fitValues(unit);
}

void CurvePlaces::fitValues(CurveUnit unit)
{
    if (m_isZoomed[size_t(unit)])
        return;
    std::optional<Extent> extent;
    for (int curve = 0; curve < m_data.count(); ++curve) {
        Extent own{};
        if (unitOf(m_data.curves()[size_t(curve)].channel) == unit &&
            m_data.extent(curve, 0, m_data.frameCount() - 1, own.least, own.most))
            widen(extent, own.least, own.most);
    }
    if (extent)
        values(unit).show(extent->least, extent->most);
}

void CurvePlaces::showSelected(const CurveSelection &selection)
{
    std::optional<Extent> extents[CurveUnitCount];
    int first = m_time.lastFrame();
    int last = 0;
    for (int curve = 0; curve < m_data.count(); ++curve) {
        if (!selection.hasOf(curve))
            continue;
        for (int frame = 0; frame < m_data.frameCount(); ++frame) {
            const double value = m_data.value(curve, frame);
            if (!selection.contains(curve, frame) || !std::isfinite(value))
                continue;
            widen(extents[size_t(unitOf(m_data.curves()[size_t(curve)].channel))], value, value);
            first = std::min(first, frame);
            last = std::max(last, frame);
        }
    }
    if (first > last)
        return showAll();
    m_time.show(std::max(0, first - 1), std::min(m_time.lastFrame(), last + 1));
    for (int unit = 0; unit < CurveUnitCount; ++unit) {
        if (extents[unit])
            m_values[unit].show(extents[unit]->least, extents[unit]->most);
        m_isZoomed[unit] = true;
    }
}
