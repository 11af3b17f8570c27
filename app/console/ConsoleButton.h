// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

class ConsoleLog;
class QDockWidget;

/// Stands in the status bar and counts errors and warnings, so that they are seen while the console is
/// hidden; a click brings the console up.
class ConsoleButton : public QToolButton
{
    Q_OBJECT

public:
    ConsoleButton(const ConsoleLog &log, QDockWidget &dock, QWidget *parent = nullptr);

private:
    void showCounts();

    const ConsoleLog &m_log;
    QLatin1String m_icon{""};
    bool m_opened = false; ///< by an error
};
