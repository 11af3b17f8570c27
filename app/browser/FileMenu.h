// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "NamedThing.h"

#include <QMenu>

class FileList;

/// The context menu of the list of files: what can be done with the current one.
class FileMenu : public QMenu
{
    Q_OBJECT

public:
    /// The actions become the list's.
    FileMenu(FileList &list, QWidget *parent);

    void openCurrent();
    /// What the current file is to those that name it; nothing where nobody names such files.
    std::vector<NamedThing> thingsOfCurrent() const;

signals:
    void openWanted(const QString &path);
    /// Something for the status bar.
    void told(const QString &text);

private:
    QAction *add(const char *name, const char *icon, const QString &text, const QString &tip,
                 void (FileMenu::*slot)());
    void openFolder();
    void copyPath();
    void copyName();
    void OnContextMenu(const QPoint &position);

    FileList &m_list;
};
