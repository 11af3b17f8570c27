// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CurvePainter.h"
#include "KeyDrag.h"
#include "PlayPlace.h"

#include <QWidget>

#include <functional>
#include <optional>

/// The curves of an animation: frames from left to right, values upwards. Keys are selected by clicks, bands
/// and keys, and dragged up and down; the wheel zooms, the middle button moves what is seen.
///
/// It changes no record: it tells what is asked for.
class CurveView : public QWidget
{
    Q_OBJECT

public:
    explicit CurveView(QWidget *parent = nullptr);

    /// Shows curves of a block as it is now; null: none. A gesture that is under way is given up. Of curves
    /// that are shown still what is selected stays, while there are as many frames; what is in sight stays so
    /// unless it is `anew` another block.
    void setCurves(const AnimBlock *block, const QVector<int> &bones, unsigned channels, bool anew);
    /// Why there are no curves.
    void setEmptyText(const QString &text)
    {
        m_emptyText = text;
        update();
    }
    /// What a bone is called.
    void setBoneNames(std::function<QString(int)> names) { m_boneName = std::move(names); }
    void setFrame(int frame);
    int frame() const { return m_frame; }

    const CurveData &data() const { return m_data; }
    const CurvePlaces &places() const { return m_places; }
    const CurveSelection &selection() const { return m_selection; }
    bool isDragging() const { return m_drag.gesture == Gesture::Keys && m_drag.moved; }

    void selectAll();
    void clearSelection()
    {
        m_selection.clear();
        tellSelection();
    }
    void showAll();
    void showSelected();

    QSize sizeHint() const override { return {600, 180}; }
    QSize minimumSizeHint() const override { return {200, 80}; }

signals:
    /// This frame is to be shown.
    void frameAsked(int frame);
    /// A drag that showed other frames was given up: what was shown before is to be again.
    void placeAsked(const PlayPlace &place);
    void selectionChanged();
    /// The selected keys of that unit would be so much higher, while they are dragged.
    void dragged(CurveUnit unit, double by);
    /// They are to be.
    void moveAsked(CurveUnit unit, double by);
    /// A drag ended without that.
    void givenUp();

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
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    enum class Gesture { None, Seek, Band, Keys, Pan };
    struct Drag
    {
        Gesture gesture = Gesture::None;
        QPoint from;
        QPoint to;
        bool moved = false; ///< farther than a click shakes
        CurveKey key;       ///< that was taken
        CurveUnit unit{};
        KeyDrag way;
        double by = 0.0;                 ///< of that, or to a round number
        std::optional<PlayPlace> before; ///< if it has shown other frames
        CurveSelection selection;        ///< as it was before
    };

    void arrange();
    /// What stands still while it plays is painted anew.
    void touch();
    void tellSelection();
    void press(const QMouseEvent &event);
    void pressKey(const CurveKey &key, Qt::KeyboardModifiers modifiers);
    void follow(const QMouseEvent &event);
    void moveKeys(const QMouseEvent &event);
    void selectBand();
    void drop(const QMouseEvent &event);
    void giveUp();
    /// Shows a frame while something is dragged.
    void showWhileDragged(int frame)
    {
        if (!m_drag.before)
            m_drag.before.emplace(m_frame);
        emit frameAsked(frame);
    }
    void step(int frames, bool adds);
    void stepCurve(int curves);
    void nudge(int steps);
    QString textOf(const CurveKey &key) const;

    CurveData m_data;
    CurvePlaces m_places{m_data};
    CurveSelection m_selection;
    QVector<int> m_bones;
    int m_frame = 0;
    QString m_emptyText;
    std::function<QString(int)> m_boneName;
    Drag m_drag;
    CurvePicture m_picture;
};
