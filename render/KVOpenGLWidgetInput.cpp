// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KVOpenGLWidget.h"

#include <QCursor>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <optional>

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

void KVOpenGLWidget::mousePressEvent(QMouseEvent *event)
{
    if (m_camera.press(cameraButton(event->button()))) {
        m_savedCursor = QCursor::pos();
        QCursor::setPos(mapToGlobal(centre()));
        setCursor(Qt::BlankCursor);
    }
    setPace(Pace::Moving);
}

void KVOpenGLWidget::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_camera.release(cameraButton(event->button()))) {
        QCursor::setPos(m_savedCursor);
        setCursor(Qt::ArrowCursor);
    }
}

void KVOpenGLWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_camera.isCaptured())
        return;
    const QPoint offset = event->pos() - centre();
    if (offset.isNull())
        return;
    m_camera.drag(float(offset.x()), float(offset.y()), m_moveSpeed);
    QCursor::setPos(mapToGlobal(centre()));
    update();
}

// No release reaches a view that lost the focus: the camera would fly on.
void KVOpenGLWidget::focusOutEvent(QFocusEvent *event)
{
    releaseInput();
    QOpenGLWidget::focusOutEvent(event);
}

void KVOpenGLWidget::releaseInput()
{
    if (m_camera.releaseAll()) {
        QCursor::setPos(m_savedCursor);
        setCursor(Qt::ArrowCursor);
    }
}
