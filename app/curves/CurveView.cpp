// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CurveView.h"

#include "AnimFile.h"
#include "EmptyText.h"
#include "KeyText.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
constexpr double CurveNotchZoom = 1.25;
constexpr double CurveNotchScroll = 0.125; ///< of what is seen
} // namespace

CurveView::CurveView(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName(tr("Curves"));
    arrange();
}

void CurveView::setCurves(const AnimBlock *block, const QVector<int> &bones, unsigned channels, bool anew)
{
    if (anew)
        m_drag.before.reset(); // of another block
    giveUp();
    if (anew)
        m_data = {};
    const std::vector<Curve> before = m_data.curves();
    m_data.show(block, bones, channels);
    const bool isOther = anew || bones != m_bones || m_data.curves() != before;
    if (anew || m_data.frameCount() != m_selection.frameCount())
        m_selection.reset(m_data.count(), m_data.frameCount());
    else
        m_selection.rearrange(placesAmong(before, m_data.curves()));
    m_bones = bones;
    arrange();
    if (anew) {
        m_places.time().showAll();
        m_places.forgetZoom();
    }
    if (isOther)
        m_places.fitAll();
    emit selectionChanged();
}

void CurveView::arrange()
{
    m_places.arrange(font(), size());
    touch();
}

void CurveView::touch()
{
    m_picture.touch();
    update();
}

void CurveView::tellSelection()
{
    touch();
    emit selectionChanged();
}

void CurveView::setFrame(int frame)
{
    // What plays paints no more than it has to.
    const auto updateStrip = [this] {
        const int half = fontMetrics().horizontalAdvance(QString::number(m_frame)) / 2 + 7;
        update(m_places.rulerPlace(m_frame).x() - half, 0, 2 * half, height());
    };
    updateStrip();
    m_frame = frame;
    updateStrip();
}

void CurveView::selectAll()
{
    m_selection.addAll(m_frame);
    tellSelection();
}

void CurveView::showAll()
{
    m_places.showAll();
    touch();
}

void CurveView::showSelected()
{
    m_places.showSelected(m_selection);
    touch();
}

QString CurveView::textOf(const CurveKey &key) const
{
    const int bone = key.isNone() ? -1 : m_data.curves()[size_t(key.curve)].bone;
    return keyText(m_data, key, bone < 0 || !m_boneName ? QString() : m_boneName(bone));
}

void CurveView::mousePressEvent(QMouseEvent *event)
{
    if (m_data.frameCount() == 0 || m_drag.gesture != Gesture::None)
        return;
    if (event->button() == Qt::LeftButton) {
        press(*event);
    } else if (event->button() == Qt::MiddleButton) {
        m_drag = {};
        m_drag.gesture = Gesture::Pan;
        m_drag.from = m_drag.to = event->pos();
        setCursor(Qt::ClosedHandCursor);
    } else if (event->button() == Qt::RightButton) {
        // The menu that comes is about what is under the mouse.
        const CurveKey key = m_places.keyAt(event->localPos());
        if (!key.isNone() && !m_selection.contains(key))
            pressKey(key, {});
    }
}

void CurveView::press(const QMouseEvent &event)
{
    m_drag = {};
    m_drag.from = m_drag.to = event.pos();
    m_drag.selection = m_selection;
    if (event.pos().y() < m_places.plot().top()) {
        m_drag.gesture = Gesture::Seek;
        return showWhileDragged(m_places.time().frameAt(event.pos().x()));
    }
    const CurveKey key = m_places.keyAt(event.localPos());
    if (key.isNone()) {
        m_drag.gesture = Gesture::Band;
        return;
    }
    m_drag.gesture = Gesture::Keys;
    m_drag.key = key;
    m_drag.unit = unitOf(m_data.curves()[size_t(key.curve)].channel);
    m_drag.way = KeyDrag(event.pos().y(), event.modifiers() & Qt::ShiftModifier);
    pressKey(key, event.modifiers());
}

void CurveView::pressKey(const CurveKey &key, Qt::KeyboardModifiers modifiers)
{
    m_selection.press(key, modifiers);
    tellSelection();
}

void CurveView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_drag.gesture != Gesture::None)
        return follow(*event);
    setCursor(m_places.keyAt(event->localPos()).isNone() ? Qt::ArrowCursor : Qt::SizeVerCursor);
}

void CurveView::follow(const QMouseEvent &event)
{
    const QPoint last = m_drag.to;
    m_drag.to = event.pos();
    if ((m_drag.to - m_drag.from).manhattanLength() >= QApplication::startDragDistance())
        m_drag.moved = true;
    switch (m_drag.gesture) {
    case Gesture::None:
        return;
    case Gesture::Seek:
        return showWhileDragged(m_places.time().frameAt(event.pos().x()));
    case Gesture::Pan:
        m_places.scroll(m_drag.to - last);
        touch();
        return;
    case Gesture::Band:
        if (m_drag.moved)
            selectBand();
        return;
    case Gesture::Keys:
        if (m_drag.moved)
            moveKeys(event);
        return;
    }
}

void CurveView::moveKeys(const QMouseEvent &event)
{
    // What Ctrl has just taken out of the selection is not dragged.
    if (!m_selection.contains(m_drag.key))
        return;
    m_drag.way.move(event.pos().y(), event.modifiers() & Qt::ShiftModifier,
                    m_places.values(m_drag.unit).perPixel());
    m_drag.by = m_drag.way.by();
    if (event.modifiers() & Qt::ControlModifier)
        m_drag.by = m_places.roundMove(m_drag.key, m_drag.by);
    if (m_frame != m_drag.key.frame)
        showWhileDragged(m_drag.key.frame); // the pose that the key is of
    emit dragged(m_drag.unit, m_drag.by);
    QToolTip::showText(
        event.globalPos(),
        textOf(m_drag.key) + keyMoveText(m_data, m_drag.key, m_drag.by, m_selection.count() - 1), this);
    touch();
}

void CurveView::selectBand()
{
    m_selection = m_drag.selection;
    if (!(QApplication::keyboardModifiers() & (Qt::ShiftModifier | Qt::ControlModifier)))
        m_selection.clear();
    m_places.selectIn(QRect(m_drag.from, m_drag.to).normalized(), m_selection);
    tellSelection();
}

void CurveView::mouseReleaseEvent(QMouseEvent *event)
{
    const auto wanted = m_drag.gesture == Gesture::Pan ? Qt::MiddleButton : Qt::LeftButton;
    if (m_drag.gesture != Gesture::None && event->button() == wanted)
        drop(*event);
}

void CurveView::drop(const QMouseEvent &event)
{
    const Drag done = std::exchange(m_drag, {}); // before what is asked for shows the block anew
    touch();
    switch (done.gesture) {
    case Gesture::None:
    case Gesture::Seek:
        return;
    case Gesture::Pan:
        setCursor(Qt::ArrowCursor);
        return;
    case Gesture::Band:
        if (done.moved || event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier))
            return;
        return clearSelection();
    case Gesture::Keys:
        QToolTip::hideText();
        if (done.moved && m_selection.contains(done.key)) {
            emit moveAsked(done.unit, done.by);
        } else if (event.modifiers() == Qt::NoModifier && m_selection.count() > 1) {
            m_selection.clear();
            pressKey(done.key, {});
        }
    }
}

void CurveView::giveUp()
{
    const Drag given = std::exchange(m_drag, {});
    if (given.gesture == Gesture::None)
        return;
    setCursor(Qt::ArrowCursor);
    if (given.gesture == Gesture::Keys && given.moved) {
        QToolTip::hideText();
        emit givenUp();
    }
    if (given.gesture == Gesture::Band && given.moved) {
        m_selection = given.selection;
        tellSelection();
    }
    if (given.before)
        emit placeAsked(*given.before);
    touch();
}

void CurveView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const CurveKey key = m_places.keyAt(event->localPos());
    if (event->button() == Qt::LeftButton && !key.isNone())
        emit frameAsked(key.frame);
    else
        mousePressEvent(event);
}

void CurveView::wheelEvent(QWheelEvent *event)
{
    event->accept();
    if (m_drag.gesture != Gesture::None)
        return;
    const QPoint turn = event->angleDelta();
    const double notches = (turn.y() != 0 ? turn.y() : turn.x()) / 120.0;
    TrackScale &time = m_places.time();
    if (event->modifiers() & Qt::ControlModifier)
        m_places.zoomValues(std::pow(CurveNotchZoom, notches), event->position().y());
    else if (event->modifiers() & Qt::ShiftModifier || turn.y() == 0)
        time.scrollTo(time.scrolled() - notches * time.room() * CurveNotchScroll);
    else
        time.zoom(std::pow(CurveNotchZoom, notches), event->position().x());
    touch();
}

bool CurveView::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const CurveKey key = m_places.keyAt(help->pos());
        if (m_drag.gesture == Gesture::None)
            QToolTip::showText(help->globalPos(), textOf(key), this);
        return true;
    }
    // While something is dragged keys give that up, or do nothing.
    if (event->type() == QEvent::ShortcutOverride && m_drag.gesture != Gesture::None) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void CurveView::keyPressEvent(QKeyEvent *event)
{
    if (m_drag.gesture != Gesture::None && event->key() != Qt::Key_Escape)
        return;
    const bool isAlt = event->modifiers() & Qt::AltModifier;
    const int way = event->key() == Qt::Key_Left || event->key() == Qt::Key_Down ? -1 : 1;
    switch (event->key()) {
    case Qt::Key_Escape:
        if (m_drag.gesture != Gesture::None)
            return giveUp();
        return clearSelection();
    case Qt::Key_Left:
    case Qt::Key_Right:
        return step(way, event->modifiers() & Qt::ShiftModifier);
    case Qt::Key_Up:
    case Qt::Key_Down:
        return isAlt ? nudge(way) : stepCurve(-way);
    default:
        QWidget::keyPressEvent(event);
    }
}

void CurveView::step(int frames, bool adds)
{
    const CurveKey before = m_selection.current();
    m_selection.step(frames, adds);
    tellSelection();
    const int from = before.isNone() ? m_frame : before.frame;
    if (m_data.frameCount() > 0)
        emit frameAsked(std::clamp(from + frames, 0, m_data.frameCount() - 1));
}

void CurveView::stepCurve(int curves)
{
    m_selection.stepCurve(curves, m_frame);
    tellSelection();
}

void CurveView::nudge(int steps)
{
    const CurveKey current = m_selection.current();
    if (current.isNone())
        return;
    const CurveUnit unit = unitOf(m_data.curves()[size_t(current.curve)].channel);
    emit moveAsked(unit, steps * m_places.roundStep(unit));
}

void CurveView::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    touch();
}

void CurveView::focusOutEvent(QFocusEvent *event)
{
    giveUp(); // a menu or another window has the mouse
    QWidget::focusOutEvent(event);
    touch();
}

void CurveView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    arrange();
}

void CurveView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void CurveView::paintEvent(QPaintEvent *)
{
    if (m_data.count() == 0 || m_data.frameCount() == 0)
        return paintEmptyText(*this, m_emptyText);
    QPainter painter(this);
    m_picture.paint(painter, m_places, {m_selection, m_drag.unit, m_drag.by, hasFocus()}, *this);
    paintCurveFrame(painter, m_places, m_frame, palette());
    if (m_drag.gesture == Gesture::Band && m_drag.moved)
        paintCurveBand(painter, QRect(m_drag.from, m_drag.to).normalized() & m_places.plot(), palette());
}
