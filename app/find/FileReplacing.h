// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"

#include <QObject>

class DocumentFiles;
class NoticeBar;
class QBoxLayout;
class QMenu;

/// Replacements in the files of the mod: the actions of the menu, and a notice of one that was broken off.
class FileReplacing : public QObject
{
    Q_OBJECT

public:
    /// Adds its actions to `menu` behind the searches, and the notice to `place`.
    FileReplacing(DocumentFiles &files, QMenu *menu, QBoxLayout *place, QWidget *window);

private slots:
    void on_actionReplaceInFiles_triggered();
    void on_actionFileRuns_triggered();

private:
    void offer();
    void reload(const QStringList &paths);

    DocumentFiles &m_files;
    QWidget *m_window;
    NoticeBar *m_bar;
    Background m_work;
};
