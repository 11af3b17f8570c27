// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

class Problems;
class QDockWidget;

/// Stands in the status bar and counts the problems of the open documents; a click brings their list up.
class ProblemsButton : public QToolButton
{
    Q_OBJECT

public:
    ProblemsButton(const Problems &problems, QDockWidget &dock, QWidget *parent = nullptr);

private:
    void showCounts();

    const Problems &m_problems;
};
