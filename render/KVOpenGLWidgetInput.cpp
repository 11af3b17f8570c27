// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KVOpenGLWidget.h"

#include <QApplication>
#include <QCursor>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <cmath>
#include <optional>
#include <utility>

namespace {
std::optional<Camera::Key> cameraKey(int key)
{
    switch (key) {
    case Qt::Key_W:
        return Camera::Forward;
    case Qt::Key_S:
        return Camera::Back;
    case Qt::Key_A:
        return Camera::Left;
    case Qt::Key_D:
        return Camera::Right;
    case Qt::Key_Shift:
        return Camera::Fast;
    default:
        return std::nullopt;
    }
}

/// Buttons beyond the three also capture the mouse while they are down, like the middle one.
Camera::Button cameraButton(Qt::MouseButton button)
{
    if (button == Qt::LeftButton)
        return Camera::LeftButton;
    return button == Qt::RightButton ? Camera::RightButton : Camera::MiddleButton;
}

/// Ctrl+S and the like belong to the window, even where it has no use for them just now.
bool isCommand(const QKeyEvent &event)
{
    return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
}
} // namespace

bool KVOpenGLWidget::setKey(const QKeyEvent &event, bool held)
{
    const std::optional<Camera::Key> key = cameraKey(event.key());
    if (!key)
        return false;
    if (!event.isAutoRepeat()) {
        m_camera.setKey(*key, held);
        setPace(Pace::Moving);
    }
    return true;
}

void KVOpenGLWidget::keyPressEvent(QKeyEvent *event)
{
    if (isCommand(*event) && event->key() != Qt::Key_Shift) {
        QOpenGLWidget::keyPressEvent(event);
    } else if (event->key() == Qt::Key_C) {
        if (!event->isAutoRepeat())
            resetCamera();
    } else if (!setKey(*event, true)) {
        QOpenGLWidget::keyPressEvent(event);
    }
}

void KVOpenGLWidget::keyReleaseEvent(QKeyEvent *event)
{
    // Whatever the modifiers are by now: a key that was pressed is let go.
    if (!setKey(*event, false))
        QOpenGLWidget::keyReleaseEvent(event);
}

bool KVOpenGLWidget::startAiming(const QMouseEvent &event)
{
    if (m_camera.isCaptured() || !(m_orbitMode || (event.modifiers() & Qt::AltModifier) != 0))
        return false;
    if (event.button() != Qt::LeftButton && event.button() != Qt::MiddleButton)
        return false;
    m_aiming = event.button() == Qt::LeftButton ? Aiming::Orbit : Aiming::Pan;
    m_aimingButton = event.button();
    m_aimingCursor = event.pos();
    m_pivot = pivot();
    setCursor(Qt::ClosedHandCursor);
    return true;
}

void KVOpenGLWidget::mousePressEvent(QMouseEvent *event)
{
    m_isClick = event->buttons() == Qt::LeftButton && (event->modifiers() & Qt::AltModifier) == 0;
    m_clickPixel = event->pos();
    m_clickTravel = 0;
    QToolTip::hideText();
    if (m_aiming != Aiming::None || startAiming(*event))
        return;
    if (m_camera.press(cameraButton(event->button()))) {
        m_savedCursor = QCursor::pos();
        QCursor::setPos(mapToGlobal(centre()));
        setCursor(Qt::BlankCursor);
    }
    setPace(Pace::Moving);
}

void KVOpenGLWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_aiming != Aiming::None) {
        if (event->button() == m_aimingButton)
            releaseInput();
    } else if (m_camera.release(cameraButton(event->button()))) {
        QCursor::setPos(m_savedCursor);
        setCursor(Qt::ArrowCursor);
    }
    if (event->button() == Qt::LeftButton && std::exchange(m_isClick, false))
        pick(m_clickPixel);
}

void KVOpenGLWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (m_aiming != Aiming::None) {
        const QPoint moved = event->pos() - std::exchange(m_aimingCursor, event->pos());
        m_clickTravel += moved.manhattanLength();
        m_isClick = m_isClick && m_clickTravel < QApplication::startDragDistance();
        if (m_aiming == Aiming::Orbit)
            m_camera.orbitDrag(m_pivot, float(moved.x()), float(moved.y()));
        else
            m_camera.pan(m_pivot, float(moved.x()), float(moved.y()), height());
        cameraMoved();
        return;
    }
    if (!m_camera.isCaptured()) {
        if (event->buttons() == Qt::NoButton)
            hover(event->pos());
        return;
    }
    const QPoint offset = event->pos() - centre();
    if (offset.isNull())
        return;
    if (m_camera.drag(float(offset.x()), float(offset.y()), m_moveSpeed)) {
        m_clickTravel += offset.manhattanLength();
        m_isClick = m_isClick && m_clickTravel < QApplication::startDragDistance();
    }
    QCursor::setPos(mapToGlobal(centre()));
    update();
}

void KVOpenGLWidget::wheelEvent(QWheelEvent *event)
{
    const bool isAlt = (event->modifiers() & Qt::AltModifier) != 0;
    if (!isAlt && !m_orbitMode) {
        QOpenGLWidget::wheelEvent(event);
        return;
    }
    constexpr double Notch = 120.0;
    constexpr double FactorPerNotch = 0.88;
    // With Alt held many systems turn the wheel sideways.
    const QPoint turned = event->angleDelta();
    const double notches = double(turned.y() != 0 ? turned.y() : turned.x()) / Notch;
    m_camera.dolly(pivot(), float(std::pow(FactorPerNotch, notches)));
    cameraMoved();
    event->accept();
}

void KVOpenGLWidget::leaveEvent(QEvent *event)
{
    m_hoveredBone = m_hoveredHotPoint = SceneMarks::None;
    QOpenGLWidget::leaveEvent(event);
}

// No release reaches a view that lost the focus: the camera would fly on.
void KVOpenGLWidget::focusOutEvent(QFocusEvent *event)
{
    releaseInput();
    QOpenGLWidget::focusOutEvent(event);
}

void KVOpenGLWidget::releaseInput()
{
    if (std::exchange(m_aiming, Aiming::None) != Aiming::None)
        setCursor(Qt::ArrowCursor);
    if (m_camera.releaseAll()) {
        QCursor::setPos(m_savedCursor);
        setCursor(Qt::ArrowCursor);
    }
}
