// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Shortcuts.h"

#include "Settings.h"

#include <QAction>
#include <QDockWidget>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include <algorithm>

namespace {
const char IdProperty[] = "shortcutId";
const char GroupProperty[] = "shortcutGroup";
const char NameProperty[] = "shortcutName";
/// What was put behind a tool tip, so that it can be taken away again; a bool for one that follows the text.
const char SuffixProperty[] = "shortcutSuffix";

QString idOf(const QAction *action)
{
    const QString id = action->property(IdProperty).toString();
    return id.isEmpty() ? action->objectName() : id;
}

QString suffix(const Keys &keys)
{
    return keys.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(keysText(keys));
}

/// Text, separators and what the toolkit has of its own are no commands.
bool isCommand(const QAction *action)
{
    const QString id = idOf(action);
    return !action->isSeparator() && !action->menu() && !id.isEmpty() && !id.startsWith(QLatin1String("_q_"));
}

bool isKnown(const QKeySequence &keys)
{
    for (int i = 0; i < keys.count(); ++i) {
        const int key = keys[uint(i)] & ~int(Qt::KeyboardModifierMask);
        if (key == 0 || key == Qt::Key_unknown)
            return false;
    }
    return !keys.isEmpty();
}

/// In a menu a letter or a digit leads to an item, also while Alt that opened the menu is still held.
bool isKeyOfMenus(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::ShiftModifier;
    return !modifiers || (modifiers == Qt::AltModifier && event.text().size() == 1 &&
                          event.text().front().isLetterOrNumber());
}

/// The tip that an action without one of its own has.
QString tipOfText(const QAction *action)
{
    return plainText(action).remove(QLatin1String("..."));
}

void showInToolTip(QAction *action)
{
    const QVariant shown = action->property(SuffixProperty);
    QString tip = action->toolTip();
    if (!shown.isValid() && tip == tipOfText(action)) {
        // It goes on following the text.
        const auto follow = [action] {
            const QString wanted = withKeys(tipOfText(action), action);
            if (action->toolTip() != wanted)
                action->setToolTip(wanted);
        };
        action->setProperty(SuffixProperty, false);
        QObject::connect(action, &QAction::changed, action, follow);
        return follow();
    }
    if (shown.type() == QVariant::Bool)
        return;
    if (tip.endsWith(shown.toString()))
        tip.chop(shown.toString().size());
    const QString added = suffix(action->shortcuts());
    action->setProperty(SuffixProperty, added);
    action->setToolTip(tip + added);
}

/// Where a shortcut is looked for: the whole window, or widgets with or without what is in them.
struct Reach
{
    bool everywhere = false;
    bool withChildren = false;
    QList<QWidget *> widgets;
};

QVector<Reach> reachesOf(const ShortcutCommand &command)
{
    if (command.actions.isEmpty())
        return {{false, false, command.views}};
    QVector<Reach> reaches;
    for (const QAction *action : command.actions) {
        const Qt::ShortcutContext context = action->shortcutContext();
        Reach reach{context == Qt::WindowShortcut || context == Qt::ApplicationShortcut,
                    context == Qt::WidgetWithChildrenShortcut,
                    {}};
        for (QWidget *widget : action->associatedWidgets()) {
            if (!qobject_cast<QMenu *>(widget))
                reach.widgets.append(widget);
        }
        reaches.append(reach);
    }
    return reaches;
}

bool canMeet(const Reach &a, const Reach &b)
{
    if (a.everywhere || b.everywhere)
        return true;
    return std::any_of(a.widgets.begin(), a.widgets.end(), [&](const QWidget *first) {
        return std::any_of(b.widgets.begin(), b.widgets.end(), [&](const QWidget *second) {
            return first == second || (a.withChildren && first->isAncestorOf(second)) ||
                   (b.withChildren && second->isAncestorOf(first));
        });
    });
}

bool canMeet(const ShortcutCommand &a, const ShortcutCommand &b)
{
    const QVector<Reach> first = reachesOf(a);
    const QVector<Reach> second = reachesOf(b);
    return std::any_of(first.begin(), first.end(), [&](const Reach &each) {
        return std::any_of(second.begin(), second.end(),
                           [&](const Reach &other) { return canMeet(each, other); });
    });
}
} // namespace

void nameShortcut(QAction *action, const QString &id, const QString &group, const QString &name)
{
    action->setProperty(IdProperty, id);
    action->setProperty(GroupProperty, group);
    action->setProperty(NameProperty, name);
}

QString plainText(const QAction *action)
{
    QString text = action->text();
    text.replace(QLatin1String("&&"), QChar::fromLatin1('\0')).remove(QLatin1Char('&'));
    return text.replace(QChar::fromLatin1('\0'), QLatin1Char('&'));
}

bool collide(const QKeySequence &a, const QKeySequence &b)
{
    return a.matches(b) != QKeySequence::NoMatch || b.matches(a) != QKeySequence::NoMatch;
}

QString keysText(const Keys &keys)
{
    QStringList texts;
    for (const QKeySequence &each : keys)
        texts << each.toString(QKeySequence::NativeText);
    return texts.join(QStringLiteral(", "));
}

QString withKeys(const QString &tip, const QAction *action)
{
    return tip + suffix(action->shortcuts());
}

Shortcuts::Shortcuts(QMenuBar &menus, const QVector<ShortcutCommand> &fixed, QWidget *window)
    : QObject(window)
{
    menus.installEventFilter(this);
    for (QMenu *menu : window->findChildren<QMenu *>())
        menu->installEventFilter(this);
    for (QDockWidget *dock : window->findChildren<QDockWidget *>())
        dock->toggleViewAction()->setObjectName(QStringLiteral("actionShow_") + dock->objectName());
    for (QToolBar *bar : window->findChildren<QToolBar *>())
        bar->toggleViewAction()->setObjectName(QStringLiteral("actionShow_") + bar->objectName());

    addMenu(menus.actions(), {});
    QList<QWidget *> widgets = window->findChildren<QWidget *>();
    widgets.prepend(window);
    for (const QWidget *widget : qAsConst(widgets)) {
        for (QAction *action : widget->actions())
            add(action, widget->accessibleName());
    }
    m_commands += fixed;
    for (const ShortcutCommand &command : qAsConst(m_commands))
        m_keys.append(command.defaults);
    read();
    apply();
}

bool Shortcuts::eventFilter(QObject *watched, QEvent *event)
{
    // Keys of views would come first: their actions stand in menus, too.
    if (event->type() == QEvent::ShortcutOverride && isKeyOfMenus(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void Shortcuts::addMenu(const QList<QAction *> &actions, const QString &path)
{
    for (QAction *action : actions) {
        if (!action->menu())
            add(action, path);
        else
            addMenu(action->menu()->actions(),
                    path.isEmpty() ? plainText(action) : path + QStringLiteral(" ▸ ") + plainText(action));
    }
}

void Shortcuts::add(QAction *action, const QString &group)
{
    if (!isCommand(action))
        return;
    const QString id = idOf(action);
    for (ShortcutCommand &known : m_commands) {
        if (known.id != id)
            continue;
        if (!known.actions.contains(action))
            known.actions.append(action);
        return;
    }
    ShortcutCommand command{id,
                            action->property(GroupProperty).toString(),
                            action->property(NameProperty).toString(),
                            action->shortcuts(),
                            {action},
                            {}};
    command.defaults.removeAll(QKeySequence());
    if (command.group.isEmpty())
        command.group = group.isEmpty() ? tr("Others") : group;
    if (command.name.isEmpty())
        command.name = plainText(action);
    while (command.name.endsWith(QLatin1Char('.')) || command.name.endsWith(QChar(0x2026)))
        command.name.chop(1);
    m_commands.append(command);
}

void Shortcuts::read()
{
    for (const QString &line : Settings::Shortcuts.value()) {
        const int end = line.indexOf(QLatin1Char('='));
        if (end <= 0)
            continue;
        const QString id = line.left(end);
        const QString stored = line.mid(end + 1);
        Keys keys = QKeySequence::listFromString(stored, QKeySequence::PortableText);
        keys.erase(std::remove_if(keys.begin(), keys.end(), [](const auto &each) { return !isKnown(each); }),
                   keys.end());
        const auto command = std::find_if(m_commands.begin(), m_commands.end(),
                                          [&id](const ShortcutCommand &each) { return each.id == id; });
        if (command == m_commands.end())
            m_foreign.append(line);
        else if (stored.isEmpty() || !keys.isEmpty())
            m_keys[int(command - m_commands.begin())] = keys;
    }
}

void Shortcuts::setKeys(const QVector<Keys> &keys)
{
    m_keys = keys;
    apply();
    QStringList lines = m_foreign;
    for (int i = 0; i < m_commands.size(); ++i) {
        if (m_keys[i] != m_commands[i].defaults)
            lines.append(m_commands[i].id + QLatin1Char('=') +
                         QKeySequence::listToString(m_keys[i], QKeySequence::PortableText));
    }
    if (lines.isEmpty())
        Settings::Shortcuts.remove();
    else
        Settings::Shortcuts.setValue(lines);
}

void Shortcuts::apply()
{
    for (int i = 0; i < m_commands.size(); ++i) {
        for (QAction *action : qAsConst(m_commands[i].actions)) {
            action->setShortcuts(m_keys[i]);
            showInToolTip(action);
        }
    }
}

QVector<int> Shortcuts::rivals(int command, const QVector<Keys> &keys) const
{
    QVector<int> found;
    for (int other = 0; other < m_commands.size(); ++other) {
        const bool share =
            other != command &&
            std::any_of(keys[command].begin(), keys[command].end(), [&](const QKeySequence &mine) {
                return std::any_of(keys[other].begin(), keys[other].end(),
                                   [&](const QKeySequence &theirs) { return collide(mine, theirs); });
            });
        if (share && canMeet(m_commands[command], m_commands[other]))
            found.append(other);
    }
    return found;
}
