// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "TrackLayout.h"

#include <QRect>
#include <QVector>

#include <optional>

class QPainter;
class QPalette;

/// What the track shows beside the block.
struct TrackLook
{
    int frame = 0;
    QVector<int> selection;
    int movedBy = 0; ///< frames that the selection is dragged by
    int rangeFirst = 0;
    int rangeLast = -1;
    QRect band; ///< null: none is drawn
    std::optional<TrackHandle> dragged;
    int draggedTo = 0;
    bool hasFocus = false;
};

void paintTrack(QPainter &painter, const TrackLayout &places, const TrackLook &look, const QPalette &palette);
