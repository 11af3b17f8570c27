// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <QVector>

class QDockWidget;
class QMainWindow;
class QTabWidget;

namespace Ui {
class MainWindow;
}

/// How the keyboard gets around the window: the order in which Tab goes, and a menu whose commands lead to
/// tabs, from pane to pane and to the other tree.
class PaneKeys : public QMenu
{
    Q_OBJECT

public:
    PaneKeys(const Ui::MainWindow &ui, QMainWindow *window);

    /// Moves the focus by one stop: through folders, view, timeline, tree, filter, page and docks, and then
    /// through what stands around them.
    bool focusNext(bool forward);

public slots:
    void OnNextPane();
    void OnPreviousPane();
    void OnOtherTree();

private:
    /// What takes the keys now, in order, each with the number of its pane.
    struct Stop
    {
        QWidget *widget;
        int pane;
    };
    QVector<Stop> stops() const;
    void addTabs();
    void movePane(int step);

    QMainWindow *m_window;
    QTabWidget *m_tabs;
    QTabWidget *m_trees;
    QVector<QVector<QWidget *>> m_panes; ///< parts in the order of their stops
};
