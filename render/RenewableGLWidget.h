// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QOpenGLWidget>
#include <QTimer>

#include <functional>

/// A view that survives the loss of its OpenGL context, and says why where it cannot draw. What it shows has
/// to be kept apart from what lies in the context.
class RenewableGLWidget : public QOpenGLWidget
{
    Q_OBJECT

public:
    /// A view made inside another widget is in no layout and never shown before embed().
    explicit RenewableGLWidget(QWidget *parent = nullptr);

    /// Takes the view's place in its parent, or fails where there is no OpenGL: a window with a view in it
    /// that cannot draw would stay black all over. Waits for the driver, so it is for the end of a window's
    /// construction.
    void embed();

    /// Why the view shows nothing, for the user; empty while nothing is wrong.
    const QString &failure() const { return m_failure; }

    /// Gives up the context with all that is in it. The view makes another one as soon as its window is on
    /// the screen.
    void renewContext();

signals:
    /// The graphics driver has dropped the view's context, as after a reset. That of the window, which shares
    /// with it, is lost along with it: whoever owns the window has to make the native one anew, with a
    /// renewContext() of every view in it while there is none.
    void contextLost();
    /// The view cannot draw, see failure(), and has hidden itself.
    void failed();

protected:
    /// Whether the driver has dropped the context, or the window's. Drivers tell where the surface format
    /// asks for it (QSurfaceFormat::ResetNotification); Qt then looks whenever it makes a context current.
    virtual bool isContextLost() const;
    /// Makes the context current. False, and a loss is noticed, where there is none to draw with.
    bool takeContext();
    /// Looks between paints. False, and the view has failed, where it is on the screen without a context.
    bool checkContext();
    void fail(const QString &reason);
    /// Calls `step` with the context current, each time in another turn of the event loop, until it returns
    /// false or there is no context; then lets the view paint. Takes the place of the steps before.
    void workInTurns(std::function<bool()> step);
    /// Of the context, which is current: who made the driver, what it draws with, its version.
    static QString driver();

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool isOnScreen() const;
    void leaveForScreen();
    void noticeLoss();
    void onLoss();
    void workOn();

    QString m_failure;
    bool m_lossNoticed = false;
    bool m_isLeft = false;      ///< what the view draws into has not followed its size
    bool m_isPaintless = false; ///< its window will be painted at once
    int m_losses = 0;           ///< of a context, in close succession
    QElapsedTimer m_sinceLoss;
    std::function<bool()> m_step;
    QTimer m_turns;
};
