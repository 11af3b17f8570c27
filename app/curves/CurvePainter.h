// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CurvePlaces.h"

#include <QPixmap>

class QPainter;
class QWidget;

/// What is drawn of curves beside their values.
struct CurveLook
{
    const CurveSelection &selection;
    CurveUnit movedUnit = CurveUnit::Degrees;
    double movedBy = 0.0; ///< the selected keys of that unit, while they are dragged
    bool hasFocus = false;
};

/// The curves with ruler, axes and keys; all but what moves while it plays.
void paintCurves(QPainter &painter, const CurvePlaces &places, const CurveLook &look,
                 const QPalette &palette);
/// The same as it was painted last, for as long as that is what there is to be seen.
class CurvePicture
{
public:
    void touch() { m_isStale = true; }
    void paint(QPainter &painter, const CurvePlaces &places, const CurveLook &look, const QWidget &on);

private:
    QPixmap m_pixels;
    bool m_isStale = true;
};
/// A band that selects.
void paintCurveBand(QPainter &painter, const QRect &band, const QPalette &palette);
/// The frame that is shown.
void paintCurveFrame(QPainter &painter, const CurvePlaces &places, int frame, const QPalette &palette);
/// A piece of a curve of the channel, as the list of channels has it.
void paintCurveSample(QPainter &painter, const QRect &room, CurveChannel channel, const QPalette &palette);
