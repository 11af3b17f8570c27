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
#include "ModelUpdateDialog.h"
#include "MotionDialog.h"
#include "OneRun.h"
#include "OptionsDialog.h"
#include "PackDialog.h"
#include "PictureDialog.h"
#include "RecoverDialog.h"
#include "RotateDialog.h"
#include "ScaleDialog.h"
#include "Shortcuts.h"

/// Says what is wrong, a line each: a message of a test is cut off when it is long.
inline void checkNone(const QStringList &faults)
{
    for (const QString &fault : faults)
        qWarning("%s", qPrintable(fault));
    QCOMPARE(faults.size(), 0);
}

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
        QAccessibleInterface *told = QAccessible::queryAccessibleInterface(widget);
        if (!told || told->text(QAccessible::Name).trimmed().isEmpty())
            found << describe(widget);
    }
    return found;
}

/// Of the pages of a stack one is seen.
inline bool areSeenTogether(const QWidget *one, const QWidget *other)
{
    for (; one->parentWidget(); one = one->parentWidget()) {
        const auto *stack = qobject_cast<const QStackedWidget *>(one->parentWidget());
        if (stack && stack->isAncestorOf(other))
            return one == other || one->isAncestorOf(other);
    }
    return true;
}

/// The letters that have been come by, and which of them stand twice in what is seen together.
class Letters
{
public:
    void add(const QString &text, const QWidget *widget)
    {
        const QString key = QKeySequence::mnemonic(text).toString();
        for (const Letter &letter : qAsConst(m_letters)) {
            if (letter.key == key && areSeenTogether(letter.widget, widget))
                clashes << QStringLiteral("%1 and %2 in %3").arg(letter.text, text, describe(widget));
        }
        if (!key.isEmpty())
            m_letters.append({key, text, widget});
    }
    void add(const QList<QAction *> &actions, const QWidget *widget)
    {
        for (const QAction *action : actions)
            add(action->text(), widget);
    }

    QStringList clashes;

private:
    struct Letter
    {
        QString key, text;
        const QWidget *widget;
    };
    QVector<Letter> m_letters;
};

inline QStringList mnemonicClashes(const QWidget *window)
{
    Letters letters;
    QStringList clashes;
    for (const QWidget *widget : window->findChildren<QWidget *>()) {
        if (qobject_cast<const QMenu *>(widget)) {
            Letters ofMenu;
            ofMenu.add(widget->actions(), widget);
            clashes << ofMenu.clashes;
        }
        if (widget->window() != window)
            continue;
        if (const auto *label = qobject_cast<const QLabel *>(widget); label && label->buddy())
            letters.add(label->text(), label);
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            letters.add(button->text(), button);
        if (const auto *group = qobject_cast<const QGroupBox *>(widget))
            letters.add(group->title(), group);
        if (qobject_cast<const QMenuBar *>(widget))
            letters.add(widget->actions(), widget);
        const auto *tabs = qobject_cast<const QTabBar *>(widget);
        for (int i = 0; tabs && i < tabs->count(); ++i)
            letters.add(tabs->tabText(i), tabs);
    }
    return clashes + letters.clashes;
}
} // namespace EveryWidget

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
        for (int kind = 0; kind < MotionKind::Count; ++kind)
            motions.push_back(
                std::make_unique<MotionDialog>(MotionKind::Name(kind), anim, mesh, std::vector<int>{}));
    }

    QVector<QWidget *> all()
    {
        QVector<QWidget *> windows{&main,  &options, &importMesh, &importStatic, &rotate,
                                   &scale, &newSize, &about,      &controls,     &recover,
                                   &crash, &palette, &picture,    &update,       &pack};
        for (const auto &motion : motions)
            windows.append(motion.get());
        return windows;
    }
    /// The letters that stand twice, in a window or in one of its menus.
    QStringList mnemonicClashes()
    {
        QStringList clashes;
        for (const QWidget *window : all())
            clashes << EveryWidget::mnemonicClashes(window);
        return clashes;
    }

    OneRun run;
    MainWindow main;
    Shortcuts &shortcuts = *main.findChild<Shortcuts *>();
    OptionsDialog options{nullptr, &shortcuts};
    ImportDialog importMesh{ImportDialog::SkinnedMeshMode};
    ImportDialog importStatic{ImportDialog::StaticMeshMode};
    RotateDialog rotate;
    ScaleDialog scale;
    ChangeSizeDialog newSize{QStringLiteral("Size"), QStringLiteral("Some go."), 1, 10, 5};
    AboutDialog about;
    ControlsDialog controls{shortcuts};
    RecoverDialog recover;
    CrashReportDialog crash;
    CommandPalette palette;
    PictureDialog picture{{{640, 480}, QStringLiteral("a"), 10, {}}, nullptr};
    PackDialog pack{somePack(), [](const QStringList &) { return std::nullopt; }, nullptr};
    ModelUpdateDialog update{QStringLiteral("a.glb"), QStringLiteral("a.skinnedmesh"), someUpdate(), nullptr};
    AnimDocument anim{DocumentType::Anim, RecordKind::AnimFile};
    SkinnedMeshDocument mesh{DocumentType::SkinnedMesh, RecordKind::SkinnedMesh};
    std::vector<std::unique_ptr<MotionDialog>> motions;

private:
    /// One that shows all that the dialog has.
    static PackAccount somePack()
    {
        PackAccount account;
        account.modFolder = QStringLiteral("/mod");
        account.isGameKnown = false;
        account.list.files.push_back({QStringLiteral("/mod/a.anim"), QStringLiteral("a.anim")});
        account.list.leftOut.push_back({QStringLiteral("b.bak"), QString()});
        account.list.problems.append(QString());
        account.errors.push_back({QStringLiteral("a.anim"), QString()});
        return account;
    }
    static UpdateAccount someUpdate()
    {
        UpdateAccount account;
        account.changesMesh = true;
        account.missingBlocks = {1};
        account.add(UpdateLine::Changed, QStringLiteral("Some"));
        return account;
    }
};
