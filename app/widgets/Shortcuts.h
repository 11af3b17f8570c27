// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QVector>

class QAction;
class QMenuBar;
class QWidget;

/// The keys of one command; none of them, one, or several that do the same.
using Keys = QList<QKeySequence>;

/// Something that keys can do.
struct ShortcutCommand
{
    QString id; ///< in the settings
    QString group;
    QString name;
    Keys defaults;
    QList<QAction *> actions; ///< one, or the same in several places; none where the keys cannot be changed
    QList<QWidget *> views;   ///< without actions: where the keys do something
};

/// Gives an action its place in the list of shortcuts. Without it an action is listed by its object name and
/// its text, in its menu or under its widget's accessible name. Actions with one `id` share their keys.
void nameShortcut(QAction *action, const QString &id, const QString &group, const QString &name);
/// An action's text without the mark of its mnemonic.
QString plainText(const QAction *action);
/// Whether one begins with the other, or is it: pressing the one then never reaches the other.
bool collide(const QKeySequence &a, const QKeySequence &b);
/// "Ctrl+S", or several with commas between them.
QString keysText(const Keys &keys);
/// A tip with the keys of an action behind it.
QString withKeys(const QString &tip, const QAction *action);

/// The keys of every named action of a window: those of its menus, and those of its trees, lists and panels.
/// Gives them the keys that the settings hold, and shows them in their tool tips.
class Shortcuts : public QObject
{
    Q_OBJECT

public:
    /// Collects the actions that there are now. `fixed` are keys of widgets that have no action.
    Shortcuts(QMenuBar &menus, const QVector<ShortcutCommand> &fixed, QWidget *window);

    const QVector<ShortcutCommand> &commands() const { return m_commands; }
    /// By command.
    const QVector<Keys> &keys() const { return m_keys; }
    /// Gives the commands other keys, by command, and stores those that are not the defaults.
    void setKeys(const QVector<Keys> &keys);

    /// The commands that would get in each other's way with `command`, as they have keys that
    /// collide, in a place where both can be reached.
    QVector<int> rivals(int command, const QVector<Keys> &keys) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addMenu(const QList<QAction *> &actions, const QString &path);
    void add(QAction *action, const QString &group);
    void read();
    void apply();

    QVector<ShortcutCommand> m_commands;
    QVector<Keys> m_keys;
    QStringList m_foreign; ///< stored for commands that there are not, perhaps in another version
};
