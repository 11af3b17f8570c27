// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "UpdateCheck.h"

#include <QObject>

class QAction;
class QMainWindow;

/// Checks for a newer release a moment after the program's start, when that is due, and whenever the user
/// asks; tells the outcome in a box over the window, or over whatever is open above it.
class UpdatePrompt : public QObject
{
    Q_OBJECT

public:
    UpdatePrompt(QAction *action, QMainWindow *window);

private slots:
    void on_actionCheckForUpdates_triggered();

private:
    void offer(const QString &version, const QString &message, const QString &link);
    void tellUpToDate();
    bool isWindowThere();
    QWidget *owner() const;

    QMainWindow *m_window;
    UpdateCheck m_check;
};
