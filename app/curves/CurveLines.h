// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPolygonF>
#include <QVector>

#include <cmath>

/// The lines of a curve through its frames from `first` to `last`. Where several of them share a column of
/// pixels only the first, the lowest, the highest and the last of the column are points: what is drawn is the
/// same, and takes as long as the picture is wide. A key without a number makes a gap.
///
/// `xOf(frame)` in pixels, rising; `yOf(frame)` in pixels, or no number.
template <typename XOf, typename YOf>
QVector<QPolygonF> curveLines(int first, int last, XOf xOf, YOf yOf)
{
    QVector<QPolygonF> lines;
    QPolygonF line;
    double column = 0;
    struct Point
    {
        int frame;
        QPointF place;
    };
    Point ends[2], extremes[2]; // of the column: first and last, lowest and highest
    bool isOpen = false;
    const auto add = [&line](const QPointF &place) {
        if (line.isEmpty() || line.last() != place)
            line.append(place);
    };
    const auto closeColumn = [&] {
        if (!isOpen)
            return;
        const bool isUpFirst = extremes[0].frame > extremes[1].frame;
        add(ends[0].place);
        add(extremes[isUpFirst ? 1 : 0].place);
        add(extremes[isUpFirst ? 0 : 1].place);
        add(ends[1].place);
        isOpen = false;
    };
    const auto closeLine = [&] {
        closeColumn();
        if (!line.isEmpty())
            lines.append(line);
        line.clear();
    };
    for (int frame = first; frame <= last; ++frame) {
        const Point point{frame, {xOf(frame), yOf(frame)}};
        if (!std::isfinite(point.place.y())) {
            closeLine();
            continue;
        }
        if (!isOpen || std::floor(point.place.x()) != column) {
            closeColumn();
            column = std::floor(point.place.x());
            ends[0] = extremes[0] = extremes[1] = point;
            isOpen = true;
        }
        ends[1] = point;
        if (point.place.y() > extremes[0].place.y())
            extremes[0] = point;
        if (point.place.y() < extremes[1].place.y())
            extremes[1] = point;
    }
    closeLine();
    return lines;
}
