// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ActionTrack.h"

#include "ActionTexts.h"
#include "AnimFile.h"
#include "TrackPainter.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
constexpr double NotchZoom = 1.25;
constexpr double NotchScroll = 0.125; ///< of what is seen
} // namespace

ActionTrack::ActionTrack(QWidget *parent)
    : QWidget(parent)
    , m_scroll(new QScrollBar(Qt::Horizontal, this))
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setAccessibleName(tr("Part of the frames that is shown"));
    connect(m_scroll, &QScrollBar::valueChanged, this, [this](int pixels) {
        m_places.scale().scrollTo(pixels);
        update();
    });
    arrange();
}

void ActionTrack::setBlock(const AnimBlock *block, bool anew)
{
    m_drag = {};
    m_places.setBlock(block, anew);
    m_selection.keepMarked(m_places);
    if (hasRange() && (anew || m_rangeLast > m_places.scale().lastFrame()))
        clearRange();
    arrange();
    setFrame(m_frame);
}

void ActionTrack::arrange()
{
    if (m_places.arrange(font(), width()))
        updateGeometry();
    const TrackScale &scale = m_places.scale();
    const QSignalBlocker blocker(m_scroll);
    m_scroll->setRange(0, int(scale.length() - scale.room()));
    m_scroll->setPageStep(int(scale.room()));
    m_scroll->setSingleStep(int(std::ceil(scale.pixelsPerFrame())));
    m_scroll->setValue(int(scale.scrolled()));
    m_scroll->setVisible(scale.isZoomed());
    m_scroll->setGeometry(m_places.gutter(), height() - TrackLayout::ScrollHeight, int(scale.room()),
                          TrackLayout::ScrollHeight);
    update();
}

void ActionTrack::setFrame(int frame)
{
    frame = std::min(frame, m_places.scale().lastFrame());
    // What plays paints no more than it has to.
    for (const int each : {m_frame, frame}) {
        if (frame != m_frame)
            update(m_places.rulerPlace(each).x() - 3, 0, 7, height());
    }
    if (std::exchange(m_frame, frame) != frame)
        emit frameShown(frame);
}

void ActionTrack::setSelection(const QVector<int> &actions, int current)
{
    m_selection.set(actions, current);
    m_selection.keepMarked(m_places);
    update();
}

void ActionTrack::askSelection()
{
    update();
    emit selectionAsked(m_selection.actions(), m_selection.current());
}

void ActionTrack::selectAll()
{
    m_selection.selectAll(m_places);
    askSelection();
}

void ActionTrack::setRange(int first, int last)
{
    if (first == m_rangeFirst && last == m_rangeLast)
        return;
    m_rangeFirst = first;
    m_rangeLast = last;
    update();
    emit rangeChanged(first, last);
}

void ActionTrack::showFrames(int first, int last)
{
    m_places.scale().show(first, last);
    arrange();
}

// --- Mouse -------------------------------------------------------------------------------------------------

void ActionTrack::mousePressEvent(QMouseEvent *event)
{
    if (!m_places.block() || m_drag.gesture != Gesture::None)
        return;
    if (event->button() == Qt::LeftButton) {
        press(*event);
    } else if (event->button() == Qt::RightButton) {
        // The menu that comes is about what is under the mouse.
        const TrackMarks::Mark *mark = m_places.markAt(event->pos());
        if (!mark && event->pos().x() >= m_places.gutter())
            emit frameAsked(m_places.scale().frameAt(event->pos().x()));
        else if (mark && m_selection.press(m_places, mark->action, {}))
            askSelection();
    }
}

void ActionTrack::press(const QMouseEvent &event)
{
    const TrackScale &scale = m_places.scale();
    m_drag = {};
    m_drag.from = m_drag.to = event.pos();
    m_drag.selection = m_selection;
    m_drag.rangeFirst = m_rangeFirst;
    m_drag.rangeLast = m_rangeLast;
    if (const TrackMarks::Mark *mark = m_places.markAt(event.pos())) {
        m_drag.gesture = Gesture::Marks;
        m_drag.mark = mark->action;
        m_drag.frame = m_drag.target = mark->frame;
        if (m_selection.press(m_places, mark->action, event.modifiers()))
            askSelection();
        m_drag.taken = m_selection;
    } else if (const auto handle = m_places.handleAt(event.pos())) {
        m_drag.gesture = Gesture::Handle;
        m_drag.handle = *handle;
        m_drag.frame = m_drag.target = frameOf(*m_places.block(), *handle);
    } else {
        m_drag.frame = m_drag.target = scale.frameAt(event.pos().x());
        m_drag.gesture = event.modifiers() & Qt::ShiftModifier    ? Gesture::Range
                         : m_places.lanes().contains(event.pos()) ? Gesture::Band
                                                                  : Gesture::Seek;
        if (m_drag.gesture == Gesture::Seek)
            showWhileDragged(m_drag.frame);
    }
}

void ActionTrack::mouseMoveEvent(QMouseEvent *event)
{
    if (m_drag.gesture == Gesture::None) {
        const bool isTaken = m_places.markAt(event->pos()) || m_places.handleAt(event->pos());
        setCursor(isTaken ? Qt::SizeHorCursor : Qt::ArrowCursor);
    } else if (event->buttons() & Qt::LeftButton) {
        follow(*event);
    }
}

void ActionTrack::follow(const QMouseEvent &event)
{
    m_drag.to = event.pos();
    if ((m_drag.to - m_drag.from).manhattanLength() >= QApplication::startDragDistance())
        m_drag.moved = true;
    const TrackScale &scale = m_places.scale();
    const int frame = scale.frameAt(event.pos().x());
    if (m_drag.gesture == Gesture::Seek)
        showWhileDragged(frame);
    if (!m_drag.moved)
        return;
    switch (m_drag.gesture) {
    case Gesture::None:
    case Gesture::Seek:
        return;
    case Gesture::Range:
        setRange(std::min(m_drag.frame, frame), std::max(m_drag.frame, frame));
        return;
    case Gesture::Band:
        m_selection.selectIn(m_places, QRect(m_drag.from, m_drag.to).normalized());
        break;
    case Gesture::Marks: {
        // What Ctrl has just taken out of the selection is not dragged.
        if (!m_drag.taken.contains(m_drag.mark))
            return;
        const double by = (event.pos().x() - m_drag.from.x()) / scale.pixelsPerFrame();
        m_drag.target = m_drag.frame + m_drag.taken.bounded(m_places, int(std::lround(by)));
        showWhileDragged(m_drag.target); // the pose that the action would fall on
        tellDrag(event.globalPos());
        break;
    }
    case Gesture::Handle:
        m_drag.target = m_places.handleFrameAt(m_drag.handle, event.pos().x());
        tellDrag(event.globalPos());
        break;
    }
    update();
}

void ActionTrack::tellDrag(const QPoint &global)
{
    const int others = int(m_drag.taken.actions().size()) - 1;
    const QString text =
        m_drag.gesture == Gesture::Marks
            ? moveText(m_drag.mark, m_places.block()->actions[size_t(m_drag.mark)], m_drag.target, others)
            : m_places.handleText(m_drag.handle, m_drag.target);
    QToolTip::showText(global, text, this);
}

void ActionTrack::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && m_drag.gesture != Gesture::None)
        drop(*event);
}

void ActionTrack::drop(const QMouseEvent &event)
{
    const Drag done = m_drag;
    m_drag = {}; // before what is asked for shows the block anew
    update();
    if (done.gesture == Gesture::Marks || done.gesture == Gesture::Handle)
        QToolTip::hideText();
    switch (done.gesture) {
    case Gesture::None:
    case Gesture::Seek:
        break;
    case Gesture::Range:
        if (!done.moved)
            clearRange();
        break;
    case Gesture::Band:
        if (!done.moved)
            m_selection.set({}, -1);
        askSelection();
        break;
    case Gesture::Marks:
        if (done.moved && done.target != done.frame) {
            emit moveAsked(done.taken.actions(), done.target - done.frame);
        } else if (!done.moved && event.modifiers() == Qt::NoModifier && m_selection.actions().size() > 1) {
            m_selection.set({done.mark}, done.mark);
            askSelection();
        }
        break;
    case Gesture::Handle:
        if (done.target != done.frame)
            emit handleAsked(done.handle, done.target);
        break;
    }
}

void ActionTrack::giveUp()
{
    const Drag given = m_drag;
    m_drag = {};
    if (given.gesture == Gesture::None)
        return;
    QToolTip::hideText();
    if (given.gesture == Gesture::Range)
        setRange(given.rangeFirst, given.rangeLast);
    if (given.gesture == Gesture::Band)
        m_selection = given.selection;
    if (given.before)
        emit placeAsked(*given.before);
    update();
}

void ActionTrack::mouseDoubleClickEvent(QMouseEvent *event)
{
    const bool isLeft = event->button() == Qt::LeftButton;
    const TrackMarks::Mark *mark = isLeft ? m_places.markAt(event->pos()) : nullptr;
    if (mark)
        emit frameAsked(mark->frame);
    else
        mousePressEvent(event);
}

void ActionTrack::wheelEvent(QWheelEvent *event)
{
    const QPoint turn = event->angleDelta();
    const double notches = (turn.y() != 0 ? turn.y() : turn.x()) / 120.0;
    TrackScale &scale = m_places.scale();
    if (event->modifiers() & Qt::ControlModifier)
        scale.zoom(std::pow(NotchZoom, notches), event->position().x());
    else
        scale.scrollTo(scale.scrolled() - notches * scale.room() * NotchScroll);
    arrange();
    event->accept();
}

// --- Keys --------------------------------------------------------------------------------------------------

bool ActionTrack::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        if (m_drag.gesture == Gesture::None)
            QToolTip::showText(help->globalPos(), m_places.textAt(help->pos()), this);
        return true;
    }
    // While something is dragged keys give that up, or do nothing.
    if (event->type() == QEvent::ShortcutOverride && m_drag.gesture != Gesture::None) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void ActionTrack::keyPressEvent(QKeyEvent *event)
{
    if (m_drag.gesture != Gesture::None && event->key() != Qt::Key_Escape)
        return;
    const int last = m_places.scale().lastFrame();
    switch (event->key()) {
    case Qt::Key_Escape:
        if (m_drag.gesture != Gesture::None)
            giveUp();
        else
            clearRange();
        return;
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const int by = event->key() == Qt::Key_Left ? -1 : 1;
        if (event->modifiers() != Qt::AltModifier)
            emit frameAsked(std::clamp(m_frame + by, 0, last));
        else if (m_selection.bounded(m_places, by) != 0)
            emit moveAsked(m_selection.actions(), by);
        return;
    }
    case Qt::Key_Home:
    case Qt::Key_End:
        emit frameAsked(event->key() == Qt::Key_Home ? 0 : last);
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
        m_selection.step(m_places, event->key() == Qt::Key_Up ? -1 : 1);
        askSelection();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ActionTrack::focusOutEvent(QFocusEvent *event)
{
    giveUp(); // a menu or another window has the mouse
    QWidget::focusOutEvent(event);
    update();
}

// --- Look --------------------------------------------------------------------------------------------------

void ActionTrack::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        arrange();
}

void ActionTrack::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void ActionTrack::paintEvent(QPaintEvent *)
{
    TrackLook look;
    look.frame = m_frame;
    look.selection = m_selection.actions();
    look.rangeFirst = m_rangeFirst;
    look.rangeLast = m_rangeLast;
    look.hasFocus = hasFocus();
    if (m_drag.gesture == Gesture::Marks)
        look.movedBy = m_drag.target - m_drag.frame;
    if (m_drag.gesture == Gesture::Band && m_drag.moved)
        look.band = QRect(m_drag.from, m_drag.to).normalized();
    if (m_drag.gesture == Gesture::Handle) {
        look.dragged = m_drag.handle;
        look.draggedTo = m_drag.target;
    }
    QPainter painter(this);
    paintTrack(painter, m_places, look, palette());
}
