// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AboutDialog.h"
#include "ChangeSizeDialog.h"
#include "CommandPalette.h"
#include "ControlsDialog.h"
#include "CrashReportDialog.h"
#include "DatabaseTab.h"
#include "ImportDialog.h"
#include "MainWindow.h"
#include "OneRun.h"
#include "OptionsDialog.h"
#include "PictureDialog.h"
#include "RecoverDialog.h"
#include "RotateDialog.h"
#include "ScaleDialog.h"
#include "Shortcuts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QOpenGLWidget>
#include <QStackedWidget>
#include <QTabBar>

/// Says what is wrong, a line each: a message of a test is cut off when it is long.
inline void report(const QStringList &faults)
{
    for (const QString &fault : faults)
        qWarning("%s", qPrintable(fault));
}

/// The main window and every dialog, for tests that look at all of them.
struct EveryWindow
{
    explicit EveryWindow(const QString &folder)
        : run(folder + QStringLiteral("/recovery"))
        , recover(*run.recovery)
        , crash(folder + QStringLiteral("/report.txt"))
        , palette(*main.menuBar(), QList<QAction *>(), nullptr)
    {
        main.findChild<DatabaseTab *>()->load();
    }

    QVector<QWidget *> all()
    {
        return {&main,  &options,  &importMesh, &importStatic, &rotate,  &scale,  &newSize,
                &about, &controls, &recover,    &crash,        &palette, &picture};
    }

    OneRun run;
    MainWindow main;
    Shortcuts &shortcuts = *main.findChild<Shortcuts *>();
    OptionsDialog options{nullptr, &shortcuts};
    ImportDialog importMesh{ImportDialog::SkinnedMeshMode};
    ImportDialog importStatic{ImportDialog::StaticMeshMode};
    RotateDialog rotate;
    ScaleDialog scale;
    ChangeSizeDialog newSize{QStringLiteral("Size"), 1, 10, 5};
    AboutDialog about;
    ControlsDialog controls{shortcuts};
    RecoverDialog recover;
    CrashReportDialog crash;
    CommandPalette palette;
    PictureDialog picture{{640, 480}, nullptr};
};

namespace EveryWidget {
inline QString describe(const QWidget *widget)
{
    QString text = QLatin1String(widget->metaObject()->className());
    for (; widget; widget = widget->parentWidget()) {
        if (!widget->objectName().isEmpty())
            text += QStringLiteral(" in ") + widget->objectName();
    }
    return text;
}

/// What takes input and is no part of another such widget.
inline bool isInteractive(const QWidget *widget)
{
    if (!(qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
          qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QComboBox *>(widget) ||
          qobject_cast<const QAbstractSlider *>(widget) || qobject_cast<const QOpenGLWidget *>(widget) ||
          (qobject_cast<const QAbstractScrollArea *>(widget) && widget->focusPolicy() != Qt::NoFocus)))
        return false;
    if (qobject_cast<const QHeaderView *>(widget) || widget->inherits("QScrollBar") ||
        widget->inherits("QScrollArea"))
        return false;
    // What the toolkit makes for its own use: arrows of tab bars, the cross of a line, the title of a dock.
    if (widget->objectName().startsWith(QLatin1String("qt_")) || widget->inherits("QToolBarExtension") ||
        widget->inherits("QLineEditIconButton") || widget->inherits("QTableCornerButton") ||
        widget->inherits("QComboBoxListView"))
        return false;
    const QWidget *parent = widget->parentWidget();
    return !parent || !(qobject_cast<const QAbstractSpinBox *>(parent) ||
                        qobject_cast<const QComboBox *>(parent) || qobject_cast<const QTabBar *>(parent));
}

/// The interactive widgets that a screen reader would have no name for.
inline QStringList withoutName(const QWidget &window)
{
    QStringList found;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (!isInteractive(widget))
            continue;
        QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(widget);
        if (!interface || interface->text(QAccessible::Name).trimmed().isEmpty())
            found << describe(widget);
    }
    return found;
}

using Mnemonics = QMap<QString, QString>; ///< whose it is, by key

inline void addMnemonic(const QString &text, const QString &whose, Mnemonics &used, QStringList &clashes)
{
    const QString key = QKeySequence::mnemonic(text).toString();
    if (key.isEmpty())
        return;
    if (used.contains(key))
        clashes << QStringLiteral("%1: %2 and %3").arg(key, used[key], whose);
    else
        used.insert(key, whose);
}

inline QString mnemonicText(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->buddy() ? label->text() : QString();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text();
    if (const auto *group = qobject_cast<const QGroupBox *>(widget))
        return group->title();
    return {};
}

inline void collectMnemonics(const QWidget *widget, Mnemonics &used, QVector<const QStackedWidget *> &stacks,
                             QStringList &clashes)
{
    addMnemonic(mnemonicText(widget), describe(widget), used, clashes);
    if (const auto *bar = qobject_cast<const QMenuBar *>(widget)) {
        for (const QAction *action : bar->actions())
            addMnemonic(action->text(), QStringLiteral("menu ") + action->text(), used, clashes);
        return;
    }
    if (const auto *tabs = qobject_cast<const QTabBar *>(widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            addMnemonic(tabs->tabText(i), QStringLiteral("tab ") + tabs->tabText(i), used, clashes);
    }
    if (const auto *stack = qobject_cast<const QStackedWidget *>(widget)) {
        stacks << stack;
        return;
    }
    for (const QObject *child : widget->children()) {
        const auto *below = qobject_cast<const QWidget *>(child);
        if (below && !below->isWindow())
            collectMnemonics(below, used, stacks, clashes);
    }
}

/// The keys that two widgets have which can be seen at the same time; of stacked pages one is seen.
inline QStringList mnemonicClashes(const QWidget *widget, Mnemonics used = {})
{
    QStringList clashes;
    QVector<const QStackedWidget *> stacks;
    const auto *stack = qobject_cast<const QStackedWidget *>(widget);
    if (stack)
        stacks << stack;
    else
        collectMnemonics(widget, used, stacks, clashes);
    for (const QStackedWidget *each : stacks) {
        for (int page = 0; page < each->count(); ++page)
            clashes << mnemonicClashes(each->widget(page), used);
    }
    return clashes;
}

/// The same within the menus of a window.
inline QStringList menuClashes(const QWidget &window)
{
    QStringList clashes;
    for (const QMenu *menu : window.findChildren<QMenu *>()) {
        Mnemonics used;
        for (const QAction *action : menu->actions())
            addMnemonic(action->text(), menu->title() + QStringLiteral(" > ") + action->text(), used,
                        clashes);
    }
    return clashes;
}
} // namespace EveryWidget
