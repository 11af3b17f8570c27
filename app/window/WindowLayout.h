// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>

class QMainWindow;

/// Where the docks, tool bars and splitters of the main window stand; they are told apart by object name.
class WindowLayout : public QObject
{
    Q_OBJECT

public:
    /// Gives them the places that they have until the user moves them.
    explicit WindowLayout(QMainWindow *window);

    /// Stores their places.
    void store() const;
    /// Puts them where they were; what was never stored stays as it is.
    void restore();

public slots:
    void on_actionResetLayout_triggered();
    void on_actionFullScreen_triggered(bool on);

private:
    void setDefaults();

    QMainWindow *m_window;
    QByteArray m_defaults; ///< of docks and tool bars
};
