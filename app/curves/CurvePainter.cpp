// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CurvePainter.h"

#include "AnimFile.h"
#include "CurveLines.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {
constexpr int FewestBetweenLabels = 10; ///< pixels
constexpr double RoomForKeys = 5.0;     ///< least pixels from frame to frame where keys are drawn
constexpr int MostSingleKeys = 300;     ///< of those that are selected where the others have no room
constexpr int DimAlpha = 120;           ///< of the bones beside the first

QColor faintly(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

struct Drawing
{
    QPainter &painter;
    const CurvePlaces &places;
    const CurveLook &look;
    const QPalette &palette;

    const CurveData &data() const { return places.data(); }
    CurveUnit unitOfCurve(int curve) const { return unitOf(data().curves()[size_t(curve)].channel); }
    bool isDim(int curve) const { return data().curves()[size_t(curve)].source > 0; }
    bool isSparse() const { return places.time().pixelsPerFrame() >= RoomForKeys; }
    /// Where a key is while it is dragged.
    double yOf(int curve, int frame) const
    {
        const CurveUnit unit = unitOfCurve(curve);
        const bool isMoved =
            look.movedBy != 0.0 && unit == look.movedUnit && look.selection.contains(curve, frame);
        return places.values(unit).yOf(data().value(curve, frame) + (isMoved ? look.movedBy : 0.0));
    }
};

/// 1, 2, 5, 10 and so on frames.
int labelledFrames(const TrackScale &time, int width)
{
    for (int power = 1;; power *= 10) {
        for (const int factor : {1, 2, 5}) {
            if (power * factor * time.pixelsPerFrame() >= width || power >= 1000000)
                return power * factor;
        }
    }
}

void paintFrames(const Drawing &on)
{
    const TrackScale &time = on.places.time();
    const QRect plot = on.places.plot();
    const QFontMetrics metrics(on.places.font());
    const int step = labelledFrames(time, metrics.horizontalAdvance(QString::number(time.lastFrame())) +
                                              FewestBetweenLabels);
    for (int frame = on.places.firstFrame() / step * step; frame <= on.places.lastFrame(); frame += step) {
        const double x = std::round(time.xOf(frame)) + 0.5;
        if (x < plot.left() || x > plot.right())
            continue;
        on.painter.setPen(faintly(on.palette.color(QPalette::Text), 26));
        on.painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
        on.painter.setPen(on.palette.color(QPalette::PlaceholderText));
        on.painter.drawText(QRectF(x - 60, 0, 120, plot.top()), Qt::AlignCenter, QString::number(frame));
    }
}

void paintValues(const Drawing &on, CurveUnit unit, bool isLeft)
{
    const QRect plot = on.places.plot();
    const ValueScale &scale = on.places.values(unit);
    const double step = scale.step(CurvePlaces::RowPixels);
    const int height = QFontMetrics(on.places.font()).height();
    const double first = std::ceil(scale.valueAt(plot.bottom()) / step);
    // Far from nought the next number may be the same one: lines are counted.
    for (int line = 0; line <= plot.height() / CurvePlaces::RowPixels + 1; ++line) {
        const double at = first + line;
        const double value = at * step;
        if (!(value <= scale.valueAt(plot.top())))
            break;
        const double y = std::round(scale.yOf(value)) + 0.5;
        if (isLeft) {
            on.painter.setPen(faintly(on.palette.color(QPalette::Text), at == 0.0 ? 90 : 26));
            on.painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        }
        const QRectF room = isLeft ? QRectF(0, y - height / 2.0, plot.left() - 4, height)
                                   : QRectF(plot.right() + 5, y - height / 2.0, plot.left(), height);
        if (room.top() < plot.top() - 4)
            continue;
        on.painter.setPen(on.palette.color(QPalette::PlaceholderText));
        on.painter.drawText(room, int((isLeft ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter),
                            curveNumber(value, unit));
    }
}

QPen penOf(const Drawing &on, int curve)
{
    const CurveChannel channel = on.data().curves()[size_t(curve)].channel;
    QPen pen(channelColor(channel, on.palette), on.isSparse() && !on.isDim(curve) ? 1.6 : 1.0);
    if (on.isDim(curve))
        pen.setColor(faintly(pen.color(), DimAlpha));
    // Dashes tell translations from rotations; where there is a point each pixel they would tell nothing.
    if (kindOf(channel) == CurveKind::Translation && on.isSparse())
        pen.setDashPattern({6, 3});
    return pen;
}

void paintLines(const Drawing &on, int curve, int first, int last)
{
    const TrackScale &time = on.places.time();
    const double start = time.xOf(0);
    const double width = time.pixelsPerFrame();
    const QVector<QPolygonF> lines = curveLines(
        first, last, [&](int frame) { return start + frame * width; },
        [&](int frame) { return std::clamp(on.yOf(curve, frame), -1e6, 1e6); });
    for (const QPolygonF &line : lines) {
        if (line.size() == 1)
            on.painter.drawPoint(line.first());
        else
            on.painter.drawPolyline(line);
    }
}

/// Squares for translations, circles for angles.
void paintKey(const Drawing &on, int curve, int frame, double radius)
{
    const QPointF middle(on.places.time().xOf(frame), on.yOf(curve, frame));
    if (!std::isfinite(middle.y()))
        return;
    if (on.unitOfCurve(curve) == CurveUnit::Units)
        on.painter.drawRect(QRectF(middle.x() - radius, middle.y() - radius, 2 * radius, 2 * radius));
    else
        on.painter.drawEllipse(middle, radius, radius);
}

void paintKeys(const Drawing &on, int curve)
{
    const QColor color = penOf(on, curve).color();
    on.painter.setPen(QPen(on.palette.color(QPalette::Base), 1.0));
    on.painter.setBrush(color);
    for (int frame = on.places.firstFrame(); frame <= on.places.lastFrame(); ++frame)
        paintKey(on, curve, frame, 3.0);
}

void paintSelected(const Drawing &on, int curve)
{
    const CurveSelection &selection = on.look.selection;
    if (!selection.hasOf(curve))
        return;
    const int first = on.places.firstFrame();
    const int last = on.places.lastFrame();
    QVector<int> frames;
    for (int frame = first; frame <= last; ++frame) {
        if (selection.contains(curve, frame))
            frames.append(frame);
    }
    const QColor highlight = on.palette.color(QPalette::Highlight);
    if (!on.isSparse()) {
        // Rows of them are bold.
        on.painter.setPen(QPen(highlight, 3.0));
        for (int i = 0; i < frames.size();) {
            int end = i;
            while (end + 1 < frames.size() && frames[end + 1] == frames[end] + 1)
                ++end;
            paintLines(on, curve, frames[i], frames[end]);
            i = end + 1;
        }
        if (frames.size() > MostSingleKeys)
            return;
    }
    on.painter.setBrush(highlight);
    on.painter.setPen(QPen(on.palette.color(QPalette::Text), 1.2));
    for (const int frame : qAsConst(frames))
        paintKey(on, curve, frame, on.isSparse() ? 4.0 : 3.0);
}
} // namespace

void paintCurves(QPainter &painter, const CurvePlaces &places, const CurveLook &look, const QPalette &palette)
{
    const Drawing on{painter, places, look, palette};
    const CurveData &data = places.data();
    const QRect plot = places.plot();
    painter.setFont(places.font());
    painter.fillRect(plot, palette.color(QPalette::Base));
    if (data.frameCount() == 0)
        return;
    paintFrames(on);
    const bool hasDegrees = data.has(CurveUnit::Degrees);
    if (hasDegrees)
        paintValues(on, CurveUnit::Degrees, true);
    if (data.has(CurveUnit::Units))
        paintValues(on, CurveUnit::Units, !hasDegrees);
    painter.setClipRect(plot);
    painter.setRenderHint(QPainter::Antialiasing, on.isSparse());
    // The bone that counts most lies on top.
    for (int curve = data.count() - 1; curve >= 0; --curve) {
        painter.setPen(penOf(on, curve));
        painter.setBrush(Qt::NoBrush);
        paintLines(on, curve, places.firstFrame(), places.lastFrame());
        if (on.isSparse() && !on.isDim(curve))
            paintKeys(on, curve);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    for (int curve = data.count() - 1; curve >= 0; --curve)
        paintSelected(on, curve);
    painter.setClipping(false);
    if (look.hasFocus) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(palette.color(QPalette::Highlight));
        painter.drawRect(plot.adjusted(0, 0, -1, -1));
    }
}

void CurvePicture::paint(QPainter &painter, const CurvePlaces &places, const CurveLook &look,
                         const QWidget &on)
{
    const double ratio = on.devicePixelRatioF();
    if (m_isStale || m_pixels.size() != on.size() * ratio) {
        m_pixels = QPixmap(on.size() * ratio);
        m_pixels.setDevicePixelRatio(ratio);
        m_pixels.fill(on.palette().color(QPalette::Window));
        QPainter still(&m_pixels);
        paintCurves(still, places, look, on.palette());
        m_isStale = false;
    }
    painter.drawPixmap(0, 0, m_pixels);
}

void paintCurveBand(QPainter &painter, const QRect &band, const QPalette &palette)
{
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(palette.color(QPalette::Highlight));
    painter.setBrush(faintly(palette.color(QPalette::Highlight), 50));
    painter.drawRect(band);
}

void paintCurveFrame(QPainter &painter, const CurvePlaces &places, int frame, const QPalette &palette)
{
    const double x = std::round(places.time().xOf(frame)) + 0.5;
    const QRect plot = places.plot();
    if (places.data().frameCount() == 0 || x < plot.left() || x > plot.right())
        return;
    painter.setPen(QPen(palette.color(QPalette::Highlight), 1.0));
    painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
    painter.setFont(places.font());
    const QString number = QString::number(frame);
    const int width = painter.fontMetrics().horizontalAdvance(number) + 8;
    const QRectF label(x - width / 2.0, 1, width, plot.top() - 2);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(QPalette::Highlight));
    painter.drawRoundedRect(label, 3, 3);
    painter.setPen(palette.color(QPalette::HighlightedText));
    painter.drawText(label, Qt::AlignCenter, number);
}

void paintCurveSample(QPainter &painter, const QRect &room, CurveChannel channel, const QPalette &palette)
{
    QPen pen(channelColor(channel, palette), 2.0);
    if (kindOf(channel) == CurveKind::Translation)
        pen.setDashPattern({3, 2});
    painter.setPen(pen);
    const int y = room.center().y() + 1;
    painter.drawLine(room.left(), y, room.right(), y);
}
