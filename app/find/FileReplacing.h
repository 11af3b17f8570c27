// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"

#include <QObject>

class DocumentFiles;
class QMenu;
class QStatusBar;
class QToolButton;

/// Replacements in the files of the mod: the actions of the menu, and a button that tells of one that was
/// broken off.
class FileReplacing : public QObject
{
    Q_OBJECT

public:
    /// Adds its actions to `menu` behind the searches, and the button to `bar`.
    FileReplacing(DocumentFiles &files, QMenu *menu, QStatusBar *bar, QWidget *window);

private slots:
    void on_actionReplaceInFiles_triggered();
    void on_actionFileRuns_triggered();

private:
    void offer();
    void reload(const QStringList &paths);

    DocumentFiles &m_files;
    QWidget *m_window;
    QToolButton *m_brokenOff;
    Background m_work;
};
