// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TrackPainter.h"

#include "AnimFile.h"

#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace {
constexpr int FewestPixels = 8; ///< between two numbers of the ruler

struct Paint
{
    QPainter &painter;
    const TrackLayout &places;
    const TrackLook &look;
    const QPalette &palette;
    /// The colour of links stands out from the window, as that of a selection need not.
    QColor marks() const { return palette.color(QPalette::Link); }
    QColor quiet() const { return palette.color(QPalette::PlaceholderText); }
    QColor faint(QColor color, int alpha) const
    {
        color.setAlpha(alpha);
        return color;
    }
    void line(double x, int top, int bottom) const { painter.drawLine(QPointF(x, top), QPointF(x, bottom)); }
};

/// 1, 2, 5, 10, 20 and so on frames, as many as one number needs.
int frameStep(const TrackScale &scale, int width)
{
    for (int power = 1;; power *= 10) {
        for (const int factor : {1, 2, 5}) {
            if (power * factor * scale.pixelsPerFrame() >= width || power >= 100000)
                return power * factor;
        }
    }
}

void paintRuler(const Paint &paint)
{
    const TrackScale &scale = paint.places.scale();
    const QRect ruler = paint.places.ruler();
    const QFontMetrics metrics(paint.places.font());
    const int step =
        frameStep(scale, metrics.horizontalAdvance(QString::number(scale.lastFrame())) + FewestPixels);
    const int bottom = paint.places.lanes().bottom();
    const int first = scale.frameAt(paint.places.gutter()) / step * step;
    for (int frame = first; frame <= scale.lastFrame() && scale.xOf(frame) <= ruler.right(); frame += step) {
        const double x = std::round(scale.xOf(frame)) + 0.5;
        paint.painter.setPen(paint.faint(paint.palette.color(QPalette::WindowText), 40));
        paint.line(x, ruler.bottom() - 2, bottom);
        paint.painter.setPen(paint.quiet());
        paint.painter.drawText(QRectF(x - 50, ruler.top(), 100, ruler.height() - 2),
                               Qt::AlignHCenter | Qt::AlignVCenter, QString::number(frame));
    }
    if (paint.look.rangeFirst < paint.look.rangeLast) {
        const double left = scale.xOf(paint.look.rangeFirst), right = scale.xOf(paint.look.rangeLast);
        const QColor color = paint.palette.color(QPalette::Highlight);
        paint.painter.fillRect(QRectF(left - 0.5, ruler.top(), right - left + 1.0, bottom - ruler.top() + 1),
                               paint.faint(color, 60));
        paint.painter.fillRect(QRectF(left - 0.5, ruler.top(), right - left + 1.0, 2.0), color);
    }
}

void paintMark(QPainter &painter, EventFamily family, const QRectF &place)
{
    const QPointF middle = place.center();
    switch (family) {
    case EventFamily::Sound:
        painter.drawPolygon(QPolygonF({place.topLeft(), {place.right(), middle.y()}, place.bottomLeft()}));
        return;
    case EventFamily::Particle:
        painter.drawPolygon(QPolygonF({{middle.x(), place.top()},
                                       {place.right(), middle.y()},
                                       {middle.x(), place.bottom()},
                                       {place.left(), middle.y()}}));
        return;
    case EventFamily::Damage:
        painter.drawEllipse(place);
        return;
    case EventFamily::Other:
        painter.drawRect(place.adjusted(1, 1, -1, -1));
    }
}

void paintMarks(const Paint &paint)
{
    const TrackScale &scale = paint.places.scale();
    QPainter &painter = paint.painter;
    // What is selected lies on top.
    for (const bool selected : {false, true}) {
        for (const TrackMarks::Mark &mark : paint.places.marks().marks()) {
            const QVector<int> &selection = paint.look.selection;
            if (std::binary_search(selection.begin(), selection.end(), mark.action) != selected)
                continue;
            QRectF place = paint.places.markRect(mark);
            if (selected && paint.look.movedBy != 0) {
                painter.setPen(paint.quiet());
                painter.setBrush(Qt::NoBrush);
                paintMark(painter, mark.family, place);
                place.translate(paint.look.movedBy * scale.pixelsPerFrame(), 0.0);
            }
            painter.setPen(QPen(paint.palette.color(selected ? QPalette::WindowText : QPalette::Window),
                                selected ? 1.5 : 1.0));
            painter.setBrush(selected ? paint.palette.color(QPalette::Highlight) : paint.marks());
            paintMark(painter, mark.family, place);
        }
    }
}

void paintHandles(const Paint &paint)
{
    QPainter &painter = paint.painter;
    const auto xOf = [&](TrackHandle handle) {
        return std::round(paint.places.handleX(paint.look.dragged == handle
                                                   ? paint.look.draggedTo
                                                   : frameOf(*paint.places.block(), handle))) +
               0.5;
    };
    const QRect loop = paint.places.row(TrackHandle::LoopFrame);
    const double at = xOf(TrackHandle::LoopFrame);
    const bool loops = at <= paint.places.scale().xOf(paint.places.scale().lastFrame()) + 1.0;
    const int middle = loop.center().y();
    painter.setPen(QPen(paint.marks(), 1.5));
    painter.setBrush(loops ? QBrush(paint.marks()) : Qt::NoBrush);
    painter.drawPolygon(
        QPolygonF({{at + 4.0, middle - 4.0}, {at - 4.0, double(middle)}, {at + 4.0, middle + 4.0}}));
    if (loops) {
        // From the end back to that frame.
        painter.setPen(QPen(paint.faint(paint.marks(), 120), 1.5));
        const double end = paint.places.scale().xOf(paint.places.scale().lastFrame());
        painter.drawLine(QPointF(at + 4.0, middle), QPointF(std::max(at + 4.0, end), middle));
    }

    const QRect blend = paint.places.row(TrackHandle::BlendEnd);
    const double start = xOf(TrackHandle::BlendStart), end = xOf(TrackHandle::BlendEnd);
    painter.fillRect(QRectF(std::min(start, end), blend.center().y() - 1, std::abs(end - start), 3.0),
                     paint.faint(paint.marks(), 120));
    painter.setPen(QPen(paint.marks(), 2.0));
    for (const auto &[x, inwards] : {std::pair(start, 4.0), std::pair(end, -4.0)}) {
        const double top = blend.top() + 2.0, bottom = blend.bottom() - 1.0;
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(QPolygonF({{x + inwards, top}, {x, top}, {x, bottom}, {x + inwards, bottom}}));
    }
}

void paintNames(const Paint &paint)
{
    const QRect rows[] = {paint.places.lanes(), paint.places.row(TrackHandle::LoopFrame),
                          paint.places.row(TrackHandle::BlendStart)};
    const QStringList names = trackRowNames();
    const QRect gutter(0, 0, paint.places.gutter() - 8, paint.places.height());
    paint.painter.fillRect(gutter, paint.palette.color(QPalette::Window));
    paint.painter.setPen(paint.quiet());
    for (int i = 0; i < 3; ++i)
        paint.painter.drawText(QRect(4, rows[i].top(), gutter.width(), rows[i].height()),
                               Qt::AlignLeft | Qt::AlignVCenter, names[i]);
}
} // namespace

void paintTrack(QPainter &painter, const TrackLayout &places, const TrackLook &look, const QPalette &palette)
{
    const Paint paint{painter, places, look, palette};
    painter.setFont(places.font());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(places.lanes().adjusted(places.gutter() - 8, 0, 0, 0), palette.color(QPalette::Base));
    if (places.block()) {
        paintRuler(paint);
        const double x = places.scale().xOf(look.frame);
        painter.setPen(QPen(palette.color(look.hasFocus ? QPalette::Highlight : QPalette::WindowText), 1.5));
        paint.line(x, 0, places.row(TrackHandle::BlendEnd).bottom());
        paintMarks(paint);
        paintHandles(paint);
    }
    if (!look.band.isNull()) {
        painter.setPen(palette.color(QPalette::Highlight));
        painter.setBrush(paint.faint(palette.color(QPalette::Highlight), 50));
        painter.drawRect(QRectF(look.band).adjusted(0.5, 0.5, -0.5, -0.5));
    }
    paintNames(paint);
}
