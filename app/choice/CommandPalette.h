// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QVector>

struct ShortcutCommand;

class QAction;
class QLineEdit;
class QListWidget;
class QMenuBar;

/// Everything that the menus of a window and the current tree can do, found by a few letters of its name and
/// done with Return.
class CommandPalette : public QDialog
{
    Q_OBJECT

public:
    CommandPalette(const QMenuBar &menus, const QList<QAction *> &treeActions, QWidget *parent);

    /// Those that are in no menu, where what they work on is in sight.
    void add(const QVector<ShortcutCommand> &commands);

    /// How well `typed` fits a name, higher is better; below 0 it does not. Its letters have to come in
    /// order, in any case; letters that stand together or begin a word count more.
    static int fit(const QString &typed, const QString &name);

private:
    struct Command
    {
        QAction *action;
        QString name; ///< with its menus before it
    };

    void list(QAction *action, const QString &name);
    void collect(const QList<QAction *> &actions, const QString &path);
    void fill();
    void accept() override;

    QVector<Command> m_commands;
    QLineEdit *m_line;
    QListWidget *m_list;
};
