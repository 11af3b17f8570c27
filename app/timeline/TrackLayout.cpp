// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TrackLayout.h"

#include "ActionTexts.h"
#include "AnimFile.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <utility>

quint16 frameOf(const AnimBlock &block, TrackHandle handle)
{
    switch (handle) {
    case TrackHandle::LoopFrame:
        return block.loopFrame;
    case TrackHandle::BlendStart:
        return block.blendStart;
    case TrackHandle::BlendEnd:
        break;
    }
    return block.blendEnd;
}

void TrackLayout::setBlock(const AnimBlock *block, bool anew)
{
    m_block = block;
    if (anew)
        m_scale.showAll();
    m_marks.set(block);
}

bool TrackLayout::arrange(const QFont &font, int width)
{
    m_width = width;
    m_font = font;
    m_font.setPointSizeF(font.pointSizeF() * 0.85);
    const QFontMetrics metrics(m_font);
    m_ruler = metrics.height() + 2;
    m_row = metrics.height();
    m_lane = std::max(metrics.height(), int(2.0 * TrackMarks::Reach) + 1);
    m_gutter = 0;
    for (const QString &name : trackRowNames())
        m_gutter = std::max(m_gutter, metrics.horizontalAdvance(name) + 14);
    // As high as with all frames shown, however it is zoomed.
    const int count = m_block ? m_block->frameCount() : 0;
    TrackScale whole;
    whole.fit(m_gutter, width - EndRoom, count);
    m_marks.arrange(whole);
    m_mostLanes = std::max(m_mostLanes, m_marks.laneCount());
    m_scale.fit(m_gutter, width - EndRoom, count);
    m_marks.arrange(m_scale);
    return std::exchange(m_height, height()) != height();
}

int TrackLayout::height() const
{
    return m_ruler + m_mostLanes * m_lane + 2 * m_row + (m_scale.isZoomed() ? ScrollHeight + 1 : 0);
}

QRect TrackLayout::row(TrackHandle handle) const
{
    const int top = lanes().bottom() + 1 + (handle == TrackHandle::LoopFrame ? 0 : m_row);
    return {0, top, m_width, m_row};
}

QRect TrackLayout::markRect(const TrackMarks::Mark &mark) const
{
    const int size = int(2.0 * TrackMarks::Reach) - 1;
    const QRect lane(0, m_ruler + mark.lane * m_lane, size, m_lane);
    return {int(std::lround(m_scale.xOf(mark.frame))) - size / 2, lane.center().y() - size / 2, size, size};
}

double TrackLayout::handleX(int frame) const
{
    // One that is none, or beyond the end, waits there.
    const bool isBeyond = frame > m_scale.lastFrame();
    return m_scale.xOf(isBeyond ? m_scale.lastFrame() : frame) + (isBeyond ? EndRoom - 8 : 0);
}

QPoint TrackLayout::placeOf(int action) const
{
    const TrackMarks::Mark *mark = m_marks.find(action);
    return mark ? markRect(*mark).center() : QPoint(-1, -1);
}

QPoint TrackLayout::placeOf(TrackHandle handle) const
{
    // The brackets of the blend reach inwards, so that both can be taken where they meet.
    const int inwards = handle == TrackHandle::BlendStart ? 2 : handle == TrackHandle::BlendEnd ? -2 : 0;
    return {int(std::lround(handleX(frameOf(*m_block, handle)))) + inwards, row(handle).center().y()};
}

QPoint TrackLayout::rulerPlace(int frame) const
{
    return {int(std::lround(m_scale.xOf(frame))), m_ruler / 2};
}

const TrackMarks::Mark *TrackLayout::markAt(const QPoint &position) const
{
    const TrackMarks::Mark *nearest = nullptr;
    int distance = int(TrackMarks::Reach);
    for (const TrackMarks::Mark &mark : m_marks.marks()) {
        const QPoint place = markRect(mark).center();
        const int away = std::abs(place.x() - position.x());
        // Of marks in one place the last, which lies on top.
        if (isShown(place) && std::abs(place.y() - position.y()) <= m_lane / 2 && away <= distance) {
            nearest = &mark;
            distance = away;
        }
    }
    return nearest;
}

std::optional<TrackHandle> TrackLayout::handleAt(const QPoint &position) const
{
    std::optional<TrackHandle> nearest;
    int distance = int(TrackMarks::Reach) + 1;
    for (const TrackHandle handle : trackHandles) {
        if (!m_block || !row(handle).contains(position))
            continue;
        const int away = std::abs(placeOf(handle).x() - position.x());
        if (away < distance && isShown(placeOf(handle))) {
            nearest = handle;
            distance = away;
        }
    }
    return nearest;
}

int TrackLayout::handleFrameAt(TrackHandle handle, int x) const
{
    const int frame = m_scale.frameAt(x);
    if (handle != TrackHandle::LoopFrame)
        return std::min(frame, MostFrame);
    const double end = m_scale.xOf(m_scale.lastFrame()) + EndRoom / 2.0;
    return x > end ? NoLoop : std::min(frame, NoLoop - 1);
}

// --- Texts -------------------------------------------------------------------------------------------------

QStringList trackRowNames()
{
    return {QCoreApplication::translate("ActionTrack", "Actions"),
            QCoreApplication::translate("ActionTrack", "Loop"),
            QCoreApplication::translate("ActionTrack", "Blend")};
}

QString TrackLayout::handleText(TrackHandle handle, int frame) const
{
    switch (handle) {
    case TrackHandle::LoopFrame:
        if (frame > m_scale.lastFrame())
            return QCoreApplication::translate("ActionTrack",
                                               "No loop frame: after the end it plays from the first frame. "
                                               "Drag the handle to where it is to go on instead.");
        return QCoreApplication::translate("ActionTrack", "Loop frame %1: after the end it goes on there")
            .arg(frame);
    case TrackHandle::BlendStart:
        return QCoreApplication::translate("ActionTrack", "Blend start: frame %1").arg(frame);
    case TrackHandle::BlendEnd:
        break;
    }
    return QCoreApplication::translate("ActionTrack", "Blend end: frame %1").arg(frame);
}

QString TrackLayout::textAt(const QPoint &position) const
{
    if (!m_block)
        return {};
    if (const TrackMarks::Mark *mark = markAt(position)) {
        // With those that it lies on.
        QStringList texts;
        for (const TrackMarks::Mark &each : m_marks.marks()) {
            if (each.frame == mark->frame && each.lane == mark->lane)
                texts += actionText(each.action, m_block->actions[size_t(each.action)]);
        }
        return QCoreApplication::translate("TrackSlider", "Frame %1\n%2")
            .arg(QString::number(mark->frame), texts.join(QLatin1Char('\n')));
    }
    if (const auto handle = handleAt(position))
        return handleText(*handle, frameOf(*m_block, *handle));
    if (ruler().contains(position))
        return QCoreApplication::translate("ActionTrack",
                                           "Click or drag to show a frame. With Shift a drag selects frames, "
                                           "which then play alone. Ctrl and the wheel zoom.");
    if (lanes().contains(position))
        return QCoreApplication::translate(
            "ActionTrack", "Drag a mark to another frame. Ctrl, Shift or a frame that is drawn "
                           "around them select several. A right click offers new ones.");
    return {};
}
