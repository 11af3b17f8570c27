// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class DisplayOptions;
class DocumentPanes;
class QAction;
class QMainWindow;

namespace Ui {
class MainWindow;
}

/// The View menu and the tool bars of the viewports: what they show, how the camera stands, which bars and
/// docks are open.
class ViewMenu : public QObject
{
    Q_OBJECT

public:
    /// `picture` saves what a viewport shows. The window owns this.
    ViewMenu(const Ui::MainWindow &ui, const DocumentPanes &panes, QAction *picture, QMainWindow *window);

private:
    void createToolBars(const Ui::MainWindow &ui, const DocumentPanes &panes, const DisplayOptions &display,
                        QMainWindow *window);
};
