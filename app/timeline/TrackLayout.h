// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "TrackMarks.h"
#include "TrackScale.h"

#include <QFont>
#include <QRect>
#include <QStringList>

#include <optional>

/// Frames of an animation that have a handle in the track.
enum class TrackHandle { LoopFrame, BlendStart, BlendEnd };
inline constexpr TrackHandle trackHandles[] = {TrackHandle::LoopFrame, TrackHandle::BlendStart,
                                               TrackHandle::BlendEnd};
/// The field of a block that a handle stands for.
quint16 frameOf(const AnimBlock &block, TrackHandle handle);

/// What the rows below the ruler are called.
QStringList trackRowNames();

/// Where everything of a block stands in the track, from above to below: a ruler, the lanes of the key frame
/// actions, the loop frame, the frames of the blend. A gutter at the left has their names.
class TrackLayout
{
public:
    static constexpr int EndRoom = 18; ///< pixels behind the last frame, for a loop frame that is none
    static constexpr int ScrollHeight = 10;
    static constexpr int MostFrame = 0xFFFF; ///< that an action, loop or blend can name
    static constexpr int NoLoop = 0xFFFF;    ///< what a loop frame is that is none

    /// The block is borrowed; null: none. Of another block (`anew`) all frames are shown.
    void setBlock(const AnimBlock *block, bool anew);
    /// Is no higher than the blocks that are shown from now on need.
    void forgetHeight() { m_mostLanes = 1; }
    /// Finds all places in so many pixels. Returns whether the height is another one than before.
    bool arrange(const QFont &font, int width);

    const AnimBlock *block() const { return m_block; }
    TrackScale &scale() { return m_scale; }
    const TrackScale &scale() const { return m_scale; }
    const TrackMarks &marks() const { return m_marks; }
    const QFont &font() const { return m_font; } ///< of names and numbers

    int height() const;
    int gutter() const { return m_gutter; }
    int rowHeight() const { return m_row; } ///< of the loop frame, and of the blend
    QRect ruler() const { return {0, 0, m_width, m_ruler}; }
    QRect lanes() const { return {0, m_ruler, m_width, m_lane * m_mostLanes}; }
    QRect row(TrackHandle handle) const;

    QRect markRect(const TrackMarks::Mark &mark) const;
    /// Of a handle that stands for this frame.
    double handleX(int frame) const;
    /// Where a press takes the mark of an action, a handle, or a frame of the ruler.
    QPoint placeOf(int action) const;
    QPoint placeOf(TrackHandle handle) const;
    QPoint rulerPlace(int frame) const;
    /// What a press takes.
    const TrackMarks::Mark *markAt(const QPoint &position) const;
    std::optional<TrackHandle> handleAt(const QPoint &position) const;
    /// The frame that a handle would stand for there; NoLoop behind the end, where it is that of the loop.
    int handleFrameAt(TrackHandle handle, int x) const;

    /// What there is to say of a handle that stands for a frame, and of what lies under the mouse.
    QString handleText(TrackHandle handle, int frame) const;
    QString textAt(const QPoint &position) const;

private:
    /// Whether the place is not under the names of the rows.
    bool isShown(const QPoint &place) const { return place.x() >= m_gutter - int(TrackMarks::Reach); }

    const AnimBlock *m_block = nullptr;
    TrackScale m_scale;
    TrackMarks m_marks;
    QFont m_font;
    int m_mostLanes = 1; ///< of the blocks that were shown: the height does not go back and forth
    int m_width = 0;
    int m_height = 0; ///< when it was arranged
    int m_ruler = 0;
    int m_lane = 0;
    int m_row = 0;
    int m_gutter = 0;
};
