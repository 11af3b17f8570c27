// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RenewableGLWidget.h"

#include "GraphicsProbe.h"
#include "Log.h"

#include <QEvent>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QResizeEvent>
#include <QShowEvent>
#include <QTimer>
#include <QWindow>

#include <utility>

namespace {
// A driver that loses the context again at once will go on doing so.
constexpr int MostLosses = 3;
constexpr int LossesInterval = 10000; // milliseconds
} // namespace

RenewableGLWidget::RenewableGLWidget(QWidget *parent)
    : QOpenGLWidget(parent, Qt::Window)
{
    // Whenever something beside a view is painted in the same turn, the toolkit would fill what is behind the
    // view, too, widget by widget, although a view covers all of its place.
    setAttribute(Qt::WA_OpaquePaintEvent);
    connect(&m_turns, &QTimer::timeout, this, &RenewableGLWidget::workOn);
}

void RenewableGLWidget::embed()
{
    if (!GraphicsProbe::hasOpenGL()) {
        fail(tr("Models cannot be drawn: the system offers no OpenGL.\n"
                "Look for a driver of the graphics card, or install a software renderer such as Mesa."));
        return;
    }
    setWindowFlags(Qt::Widget);
    show();
}

void RenewableGLWidget::fail(const QString &reason)
{
    hide();
    if (!m_failure.isEmpty())
        return;
    m_failure = reason;
    emit failed();
}

// A context that is lost or cannot be made current must not reach Qt's own drawing, which takes it for
// granted.
bool RenewableGLWidget::takeContext()
{
    makeCurrent();
    if (QOpenGLContext::currentContext() == context() && !isContextLost())
        return true;
    noticeLoss();
    return false;
}

void RenewableGLWidget::workInTurns(std::function<bool()> step)
{
    m_step = std::move(step);
    m_turns.start();
}

void RenewableGLWidget::workOn()
{
    bool isMore = false;
    if (context() && takeContext()) {
        isMore = m_step();
        doneCurrent();
    }
    if (isMore)
        return;
    m_turns.stop();
    update();
}

QString RenewableGLWidget::driver()
{
    QStringList texts;
    for (const int name : {GL_VENDOR, GL_RENDERER, GL_VERSION}) {
        const GLubyte *text = QOpenGLContext::currentContext()->functions()->glGetString(GLenum(name));
        texts.append(QString::fromLatin1(reinterpret_cast<const char *>(text)));
    }
    return texts.join(QStringLiteral(", "));
}

bool RenewableGLWidget::isContextLost() const
{
    const QOpenGLContext *windows = context()->shareContext();
    return !context()->isValid() || (windows && !windows->isValid());
}

bool RenewableGLWidget::checkContext()
{
    if (!context() && !m_isLeft && !size().isEmpty()) {
        fail(tr("Models cannot be drawn: the system has OpenGL, but gives the window no context of it.\n"
                "Everything else works on."));
        return false;
    }
    if (context() && isContextLost())
        noticeLoss();
    return true;
}

void RenewableGLWidget::noticeLoss()
{
    if (std::exchange(m_lossNoticed, true))
        return;
    // The window cannot be made anew while it is being painted.
    QTimer::singleShot(0, this, &RenewableGLWidget::onLoss);
}

void RenewableGLWidget::onLoss()
{
    m_lossNoticed = false;
    const bool again = m_sinceLoss.isValid() && m_sinceLoss.elapsed() < LossesInterval;
    m_losses = again ? m_losses + 1 : 1;
    m_sinceLoss.start();
    if (m_losses > MostLosses) {
        fail(tr("Models are not drawn any more: the graphics driver has failed several times.\n"
                "Everything else works on. Start Korvane again to see models."));
        return;
    }
    Log::warning(tr("[Viewport] The graphics driver was reset; the view is built anew"));
    emit contextLost();
}

void RenewableGLWidget::renewContext()
{
    // What Qt does with a view that comes into another window.
    QEvent change(QEvent::WindowChangeInternal);
    QOpenGLWidget::event(&change);
}

bool RenewableGLWidget::isOnScreen() const
{
    const QWindow *shown = window()->windowHandle();
    return shown && shown->isExposed();
}

// While a window is not on the screen its layouts are at work, and each size would cost a framebuffer.
void RenewableGLWidget::leaveForScreen()
{
    m_isLeft = true;
    if (QWindow *shown = window()->windowHandle())
        shown->installEventFilter(this);
}

bool RenewableGLWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Expose && m_isLeft && isOnScreen()) {
        watched->removeEventFilter(this);
        QResizeEvent resize(size(), size());
        m_isPaintless = true;
        resizeEvent(&resize);
        m_isPaintless = false;
        update();
    }
    return QOpenGLWidget::eventFilter(watched, event);
}

bool RenewableGLWidget::event(QEvent *event)
{
    // The toolkit makes what the view draws into then, too.
    if (event->type() == QEvent::Show && !isOnScreen()) {
        leaveForScreen();
        showEvent(static_cast<QShowEvent *>(event));
        return true;
    }
    return QOpenGLWidget::event(event);
}

void RenewableGLWidget::paintEvent(QPaintEvent *event)
{
    // The toolkit paints with every change of the size, before it paints the window. Where the window is just
    // coming to the screen these are frames for nobody.
    if (!m_isPaintless && (!context() || takeContext()))
        QOpenGLWidget::paintEvent(event);
}

void RenewableGLWidget::resizeEvent(QResizeEvent *event)
{
    if (!isOnScreen())
        return leaveForScreen();
    m_isLeft = false;
    if (!context() || takeContext())
        QOpenGLWidget::resizeEvent(event);
}
