// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class DocumentFiles;
class DocumentPanes;
class FileOpener;

namespace Ui {
class MainWindow;
}

/// Has the browser of files opened what is picked in it, told what is unused, and asked who names a file; and
/// lets a file be gone to by its name.
class BrowserPane : public QObject
{
    Q_OBJECT

public:
    /// Everything outlives this.
    BrowserPane(const Ui::MainWindow &ui, DocumentFiles &files, DocumentPanes &panes, QWidget *window);

private:
    void open(const QString &path);
    void goToFile();
    void leave();

    const Ui::MainWindow &m_ui;
    DocumentPanes &m_panes;
    FileOpener *m_opener;
    QWidget *m_window;
};
