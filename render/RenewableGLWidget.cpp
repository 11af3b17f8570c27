// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RenewableGLWidget.h"

#include "GraphicsProbe.h"
#include "Log.h"

#include <QEvent>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
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
    for (const GLenum name : {GL_VENDOR, GL_RENDERER, GL_VERSION}) {
        const GLubyte *text = QOpenGLContext::currentContext()->functions()->glGetString(name);
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
    if (!context() && !size().isEmpty()) {
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

void RenewableGLWidget::paintEvent(QPaintEvent *event)
{
    // The toolkit paints with every change of the size, before it paints the window. While a layout is still
    // at work, and the window not on the screen, these are frames for nobody.
    const QWindow *shown = window()->windowHandle();
    if (m_isResizing && !(shown && shown->isExposed()))
        return;
    if (!context() || takeContext())
        QOpenGLWidget::paintEvent(event);
}

void RenewableGLWidget::resizeEvent(QResizeEvent *event)
{
    m_isResizing = true;
    if (!context() || takeContext())
        QOpenGLWidget::resizeEvent(event);
    m_isResizing = false;
}
