// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MarkSelection.h"
#include "PlayPlace.h"
#include "TrackLayout.h"

#include <QWidget>

#include <optional>

class QScrollBar;

/// The frames of an animation, wider than a slider shows them: a ruler, the key frame actions in lanes below
/// it, the loop frame, and the frames between which the game blends. Marks are selected and dragged, so are
/// the handles of the frames; frames themselves are selected as a range. Ctrl with the wheel zooms.
///
/// It changes no record: it tells what is asked for.
class ActionTrack : public QWidget
{
    Q_OBJECT

public:
    explicit ActionTrack(QWidget *parent = nullptr);

    /// Shows a block, which is borrowed until the next call; null: none. A gesture that is under way is given
    /// up. Of another block (`anew`) the range is not kept.
    void setBlock(const AnimBlock *block, bool anew);
    /// Another file comes: the height need not be that of its blocks.
    void forgetHeight() { m_places.forgetHeight(); }
    /// Shows a frame, the last one instead of one that there is not.
    void setFrame(int frame);
    int frame() const { return m_frame; }

    const MarkSelection &selection() const { return m_selection; }
    /// Follows what is selected elsewhere; asks for nothing.
    void setSelection(const QVector<int> &actions, int current);
    void selectAll();

    bool hasRange() const { return m_rangeFirst < m_rangeLast; }
    void clearRange() { setRange(0, -1); }
    void showRange() { showFrames(m_rangeFirst, m_rangeLast); }
    void showAllFrames() { showFrames(0, m_places.scale().lastFrame()); }

    const TrackLayout &places() const { return m_places; }
    QSize sizeHint() const override { return {m_places.gutter() + 100, m_places.height()}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// Another frame is shown.
    void frameShown(int frame);
    /// This frame is to be shown.
    void frameAsked(int frame);
    /// A drag that showed other frames was given up: what was shown before is to be again.
    void placeAsked(const PlayPlace &place);
    /// These actions are to be selected, `current` of them to be the current one; none: -1.
    void selectionAsked(const QVector<int> &actions, int current);
    /// These actions are to be so many frames later.
    void moveAsked(const QVector<int> &actions, int by);
    /// The field of a handle is to have this value.
    void handleAsked(TrackHandle handle, int frame);
    /// These frames are selected; none where the last is not behind the first.
    void rangeChanged(int first, int last);

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    enum class Gesture { None, Seek, Range, Band, Marks, Handle };
    /// What is dragged.
    struct Drag
    {
        Gesture gesture = Gesture::None;
        QPoint from;
        QPoint to;
        bool moved = false; ///< farther than a click shakes
        int mark = -1;      ///< the action that was taken
        TrackHandle handle = TrackHandle::LoopFrame;
        int frame = 0;                   ///< of what was taken, before
        int target = 0;                  ///< where it would be dropped
        std::optional<PlayPlace> before; ///< if it has shown other frames
        MarkSelection selection;         ///< as it was before
        MarkSelection taken;             ///< what is dragged, whatever is selected meanwhile
        int rangeFirst = 0;              ///< as it was before
        int rangeLast = -1;
    };

    void arrange();
    void showFrames(int first, int last);
    void askSelection();
    void setRange(int first, int last);
    void press(const QMouseEvent &event);
    void follow(const QMouseEvent &event);
    void drop(const QMouseEvent &event);
    void giveUp();
    /// Shows a frame while something is dragged.
    void showWhileDragged(int frame)
    {
        if (!m_drag.before)
            m_drag.before.emplace(m_frame);
        emit frameAsked(frame);
    }
    void tellDrag(const QPoint &global);

    TrackLayout m_places;
    QScrollBar *m_scroll;
    int m_frame = 0;
    MarkSelection m_selection;
    int m_rangeFirst = 0;
    int m_rangeLast = -1;
    Drag m_drag;
};
