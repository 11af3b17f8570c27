// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>

class QAction;
class QDockWidget;
class QMainWindow;

/// Where the docks, tool bars and splitters of the main window stand; they are told apart by object name.
/// Docks are about models: while a tab without models is shown, they give it their room.
class WindowLayout : public QObject
{
    Q_OBJECT

public:
    /// Gives them the places that they have until the user moves them.
    explicit WindowLayout(QMainWindow *window);

    /// Stores their places.
    void store();
    /// Puts them where they were; what was never stored, or was damaged since, stays as it is.
    void restore();

    /// Takes the docks out of sight where no model is shown, and brings the same ones back. What is opened on
    /// purpose is there all the same.
    void setModelShown(bool shown);

public slots:
    void on_actionResetLayout_triggered();
    void on_actionFullScreen_triggered(bool on);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setDefaults();

    QMainWindow *m_window;
    QList<QDockWidget *> m_aside; ///< hidden as long as no model is shown
    QAction *m_fullScreen;
    QByteArray m_defaults; ///< of docks and tool bars
};
