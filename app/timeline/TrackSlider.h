// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSlider>
#include <QVector>

struct AnimBlock;

/// A slider over the frames of an animation, with a mark where each of its key frame actions stands. A press
/// goes to the frame under the mouse. The tool tip of a mark says what its actions do, a double click chooses
/// the first of them.
class TrackSlider : public QSlider
{
    Q_OBJECT

public:
    explicit TrackSlider(QWidget *parent = nullptr);

    /// Takes the marks of a block over; null: none. Actions beyond the last frame stand nowhere.
    void setActions(const AnimBlock *block);
    /// The nearest frame with a mark before (`direction` -1) or after (1) `frame`; -1 when there is none.
    int markedFrame(int frame, int direction) const;

    /// Where a frame stands, in pixels from the left.
    int xOf(int frame) const;

signals:
    /// The mark of this action was double-clicked: the first of the frame's, then the next of them.
    void actionChosen(int action);
    /// A hand has taken the slider, or moved it: it asks for this frame.
    void frameAsked(int frame);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    struct Mark
    {
        int frame;
        QVector<int> actions;
        QString text;
    };

    const Mark *markAt(int x) const;
    /// Where frames stand: from the first at the left to the last at the right.
    QRect frames() const;

    QVector<Mark> m_marks; ///< one per frame, ascending
    int m_chosen = -1;     ///< the action that was chosen last
};
