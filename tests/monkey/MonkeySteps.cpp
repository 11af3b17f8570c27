// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
// What the monkey can do.
#include "Checks.h"
#include "Document.h"
#include "Hands.h"
#include "Journal.h"
#include "KVTreeView.h"
#include "MainWindow.h"
#include "Monkey.h"
#include "NoticeBar.h"
#include "PageStack.h"
#include "Playground.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QFileInfo>
#include <QLineEdit>
#include <QSlider>
#include <QTabBar>
#include <QToolBar>
#include <QTreeWidget>

namespace {
/// Longer than FileWatch lets a file rest, so that its bar comes before the next step.
constexpr int FileRestsMs = 900;

const QVector<int> &keys()
{
    static const QVector<int> all{
        Qt::Key_Tab,      Qt::Key_Backtab,   Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space, Qt::Key_Delete,
        Qt::Key_Insert,   Qt::Key_Backspace, Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Up,    Qt::Key_Down,
        Qt::Key_PageUp,   Qt::Key_PageDown,  Qt::Key_Home,   Qt::Key_End,    Qt::Key_F1,    Qt::Key_F2,
        Qt::Key_F3,       Qt::Key_F4,        Qt::Key_F5,     Qt::Key_F10,    Qt::Key_F11,   Qt::Key_Menu,
        Qt::Key_Asterisk, Qt::Key_Plus,      Qt::Key_Minus,  Qt::Key_W,      Qt::Key_A,     Qt::Key_S,
        Qt::Key_D,        Qt::Key_Q,         Qt::Key_E,      Qt::Key_1,      Qt::Key_0};
    return all;
}

const QVector<int> &controlKeys()
{
    static const QVector<int> all{Qt::Key_Z,    Qt::Key_Y,   Qt::Key_S,  Qt::Key_C,    Qt::Key_V,   Qt::Key_X,
                                  Qt::Key_A,    Qt::Key_F,   Qt::Key_O,  Qt::Key_Home, Qt::Key_End, Qt::Key_R,
                                  Qt::Key_Plus, Qt::Key_Tab, Qt::Key_Up, Qt::Key_Down, Qt::Key_I};
    return all;
}

Qt::KeyboardModifiers anyModifiers(Dice &dice)
{
    const int kind = dice.below(10);
    return kind == 0   ? Qt::ControlModifier
           : kind == 1 ? Qt::ShiftModifier
           : kind == 2 ? Qt::AltModifier
                       : Qt::KeyboardModifiers(Qt::NoModifier);
}

/// Something that takes input, mostly.
QWidget *anyWidget(QWidget *arena, Dice &dice)
{
    const auto all = Hands::usable(arena);
    if (all.isEmpty())
        return arena;
    QWidget *chosen = arena;
    for (int i = 0; i < 4; ++i) {
        chosen = dice.pick(all);
        if (chosen->focusPolicy() != Qt::NoFocus || qobject_cast<QAbstractButton *>(chosen))
            break;
    }
    return chosen;
}
} // namespace

void Monkey::actInWindow(Dice &dice)
{
    // Without a window manager nobody else gives the keys to a window.
    if (!QApplication::activeWindow())
        QApplication::setActiveWindow(m_window.get());
    struct Way
    {
        int weight;
        std::function<void()> go;
    };
    QWidget *window = m_window.get();
    const std::vector<Way> ways{
        {18, [&] { click(window, dice); }},
        {5, [&] { drag(window, dice); }},
        {4, [&] { turnWheel(window, dice); }},
        {12, [&] { pressKey(window, dice); }},
        {3, [&] { typeText(window, dice); }},
        {16, [&] { edit(window, dice); }},
        {12, [&] { selectItem(window, dice); }},
        {4, [&] { switchTab(window, dice); }},
        {7, [&] { triggerAction(dice); }},
        {6, [&] { triggerTreeAction(dice); }},
        {5, [&] { undoOrRedo(dice); }},
        {4, [&] { openFile(dice); }},
        {2, [&] { tamper(dice); }},
        {2, [&] { resize(dice); }},
        {1, [&] { moveDock(dice); }},
        {3, [&] { playAndWait(dice); }},
        {1, [&] { undoAll(dice); }},
        {2, [&] { answerBar(dice); }},
    };
    int sum = 0;
    for (const Way &way : ways)
        sum += way.weight;
    int at = dice.below(sum);
    for (const Way &way : ways) {
        at -= way.weight;
        if (at < 0)
            return way.go();
    }
}

void Monkey::click(QWidget *arena, Dice &dice)
{
    QWidget *widget = anyWidget(arena, dice);
    const QPoint at = Hands::pointIn(widget, dice);
    const int kind = dice.below(20);
    const Qt::MouseButton button = kind < 14   ? Qt::LeftButton
                                   : kind < 19 ? Qt::RightButton
                                               : Qt::MiddleButton;
    const bool twice = dice.chance(15);
    const Qt::KeyboardModifiers modifiers = anyModifiers(dice);
    say(QStringLiteral("%1click %2 at %3, button %4, modifiers %5")
            .arg(QLatin1String(twice ? "double " : ""), Hands::nameOf(widget), Hands::textOf(at),
                 QString::number(button), QString::number(int(modifiers), 16)));
    Hands::click(widget, at, button, modifiers, twice);
}

void Monkey::drag(QWidget *arena, Dice &dice)
{
    QWidget *widget = anyWidget(arena, dice);
    QVector<QPoint> points{Hands::pointIn(widget, dice)};
    for (int i = dice.between(1, 6); i > 0; --i)
        points += points.last() + QPoint(dice.between(-120, 120), dice.between(-120, 120));
    const int kind = dice.below(10);
    const Qt::MouseButton button = kind < 6 ? Qt::LeftButton : kind < 8 ? Qt::RightButton : Qt::MiddleButton;
    const Qt::KeyboardModifiers modifiers = anyModifiers(dice);
    say(QStringLiteral("drag %1 from %2 to %3, button %4, modifiers %5")
            .arg(Hands::nameOf(widget), Hands::textOf(points.first()), Hands::textOf(points.last()),
                 QString::number(button), QString::number(int(modifiers), 16)));
    Hands::drag(widget, points, button, modifiers);
}

void Monkey::turnWheel(QWidget *arena, Dice &dice)
{
    QWidget *widget = anyWidget(arena, dice);
    const int delta = 120 * dice.between(-5, 5);
    const QPoint at = Hands::pointIn(widget, dice);
    say(QStringLiteral("turn the wheel by %1 over %2").arg(QString::number(delta), Hands::nameOf(widget)));
    Hands::turnWheel(widget, at, delta, anyModifiers(dice));
}

void Monkey::pressKey(QWidget *arena, Dice &dice)
{
    const bool control = dice.chance(40);
    const int key = dice.pick(control ? controlKeys() : keys());
    Qt::KeyboardModifiers modifiers = control ? Qt::ControlModifier : anyModifiers(dice);
    if (dice.chance(10))
        modifiers |= Qt::ShiftModifier;
    const int times = dice.chance(15) ? dice.between(2, 8) : 1;
    say(QStringLiteral("key %1, %2 times").arg(QKeySequence(int(modifiers) | key).toString()).arg(times));
    const QPointer<QWidget> window = arena;
    for (int i = 0; i < times && window; ++i)
        Hands::pressKey(window, key, modifiers);
}

QString Monkey::textToType(Dice &dice) const
{
    static const QStringList odd{
        QString(),
        QStringLiteral("0"),
        QStringLiteral("-1"),
        QStringLiteral("1"),
        QStringLiteral("2"),
        QStringLiteral("7"),
        QStringLiteral("0.5"),
        QStringLiteral("-0"),
        QStringLiteral("127"),
        QStringLiteral("128"),
        QStringLiteral("255"),
        QStringLiteral("256"),
        QStringLiteral("65535"),
        QStringLiteral("65536"),
        QStringLiteral("2147483647"),
        QStringLiteral("-2147483648"),
        QStringLiteral("1e38"),
        QStringLiteral("1e39"),
        QStringLiteral("-1e-45"),
        QStringLiteral("nan"),
        QStringLiteral("inf"),
        QStringLiteral("%1%2%n"),
        QStringLiteral("<b>bold</b>"),
        QStringLiteral("/"),
        QStringLiteral("../.."),
        QStringLiteral("materials/mat_new.kmat"),
    };
    const int kind = dice.below(10);
    if (kind < 7)
        return dice.pick(odd);
    if (kind == 7)
        return dice.chance(50) ? m_playground.folder(dice) : m_playground.anyFile(dice);
    QString text;
    for (int i = dice.between(1, kind == 8 ? 6 : 40); i > 0; --i)
        text += QChar(dice.between(32, 126));
    return text;
}

void Monkey::typeText(QWidget *arena, Dice &dice)
{
    const QString text = textToType(dice);
    say(QStringLiteral("type '%1'").arg(m_playground.shortName(text)));
    Hands::typeText(arena, text);
}

void Monkey::edit(QWidget *arena, Dice &dice)
{
    QVector<QWidget *> editors;
    // The pages of the records, mostly.
    const auto pages = Hands::usable<PageStack>(arena);
    QWidget *place = pages.isEmpty() || dice.chance(30) ? arena : pages.first();
    for (QWidget *each : Hands::usable(place)) {
        const bool isPart =
            qobject_cast<QLineEdit *>(each) && (qobject_cast<QAbstractSpinBox *>(each->parentWidget()) ||
                                                qobject_cast<QComboBox *>(each->parentWidget()));
        if (!isPart && (qobject_cast<QAbstractSpinBox *>(each) || qobject_cast<QComboBox *>(each) ||
                        qobject_cast<QLineEdit *>(each) || qobject_cast<QCheckBox *>(each) ||
                        qobject_cast<QSlider *>(each)))
            editors.append(each);
    }
    if (editors.isEmpty())
        return click(arena, dice);
    const QPointer<QWidget> editor = dice.pick(editors);
    const QString name = Hands::nameOf(editor);
    if (qobject_cast<QCheckBox *>(editor) || qobject_cast<QComboBox *>(editor) ||
        qobject_cast<QSlider *>(editor)) {
        static const QVector<int> moves{Qt::Key_Space, Qt::Key_Down, Qt::Key_Up,
                                        Qt::Key_Home,  Qt::Key_End,  Qt::Key_PageDown};
        const int key = qobject_cast<QCheckBox *>(editor) ? int(Qt::Key_Space) : dice.pick(moves);
        say(QStringLiteral("key %1 in %2").arg(QKeySequence(key).toString(), name));
        editor->setFocus(Qt::TabFocusReason);
        Hands::pressKey(editor->window(), key, Qt::NoModifier);
        return;
    }
    const QString text = textToType(dice);
    const int end = dice.below(4);
    say(QStringLiteral("enter '%1' in %2%3")
            .arg(m_playground.shortName(text), name, QLatin1String(end == 0 ? ", not ended" : "")));
    // Of its own in a dialog that lies beside the window.
    const QPointer<QWidget> window = editor->window();
    editor->setFocus(Qt::TabFocusReason);
    Hands::pressKey(window, Qt::Key_A, Qt::ControlModifier);
    if (window)
        Hands::typeText(window, text);
    if (window && end != 0)
        Hands::pressKey(window, end == 1 ? Qt::Key_Tab : Qt::Key_Return, Qt::NoModifier);
}

void Monkey::selectItem(QWidget *arena, Dice &dice)
{
    const auto trees = Hands::usable<QTreeWidget>(arena);
    const auto records = Hands::usable<KVTreeView>(arena);
    if (trees.isEmpty())
        return click(arena, dice);
    QTreeWidget *tree = records.isEmpty() || dice.chance(30) ? dice.pick(trees) : dice.pick(records);
    if (tree->topLevelItemCount() == 0)
        return click(tree, dice);
    QTreeWidgetItem *item = tree->topLevelItem(dice.below(tree->topLevelItemCount()));
    while (item->childCount() > 0 && dice.chance(80))
        item = item->child(dice.below(item->childCount()));
    const int kind = dice.below(10);
    const Qt::MouseButton button = kind < 8 ? Qt::LeftButton : Qt::RightButton;
    const Qt::KeyboardModifiers modifiers = dice.chance(15)   ? Qt::ControlModifier
                                            : dice.chance(15) ? Qt::ShiftModifier
                                                              : Qt::KeyboardModifiers(Qt::NoModifier);
    say(QStringLiteral("select '%1' in %2, button %3, modifiers %4")
            .arg(item->text(0), Hands::nameOf(tree), QString::number(button),
                 QString::number(int(modifiers), 16)));
    tree->scrollToItem(item);
    const QRect seen = tree->visualItemRect(item) & tree->viewport()->rect();
    if (!seen.isEmpty())
        Hands::click(tree->viewport(), seen.center(), button, modifiers, dice.chance(5));
}

void Monkey::switchTab(QWidget *arena, Dice &dice)
{
    const auto bars = Hands::usable<QTabBar>(arena);
    if (bars.isEmpty())
        return click(arena, dice);
    QTabBar *bar = dice.pick(bars);
    const int tab = dice.below(dice.chance(70) ? std::min(bar->count(), 2) : bar->count());
    say(QStringLiteral("tab '%1'").arg(bar->tabText(tab)));
    Hands::click(bar, bar->tabRect(tab).center(), Qt::LeftButton, Qt::NoModifier, false);
}

void Monkey::triggerAction(Dice &dice)
{
    QVector<QAction *> actions;
    for (QAction *each : m_window->findChildren<QAction *>()) {
        if (each->isEnabled() && each->isVisible() && !each->isSeparator() && !each->menu())
            actions.append(each);
    }
    QAction *action = dice.pick(actions);
    say(QStringLiteral("action '%1' (%2)").arg(action->text(), action->objectName()));
    action->trigger();
}

void Monkey::triggerTreeAction(Dice &dice)
{
    const auto trees = Hands::usable<KVTreeView>(m_window.get());
    QVector<QAction *> actions;
    KVTreeView *tree = trees.isEmpty() ? nullptr : dice.pick(trees);
    if (tree) {
        for (QAction *each : tree->actions()) {
            if (each->isEnabled() && each->isVisible())
                actions.append(each);
        }
    }
    if (actions.isEmpty())
        return selectItem(m_window.get(), dice);
    QAction *action = dice.pick(actions);
    say(QStringLiteral("'%1' in the tree").arg(action->text()));
    action->trigger();
}

void Monkey::undoOrRedo(Dice &dice)
{
    const bool undoes = dice.chance(60);
    const int times = dice.between(1, 12);
    say(QStringLiteral("%1 %2 times").arg(QLatin1String(undoes ? "undo" : "redo")).arg(times));
    auto *action = m_window->findChild<QAction *>(QLatin1String(undoes ? "actionUndo" : "actionRedo"));
    for (int i = 0; i < times; ++i)
        action->trigger();
}

void Monkey::openFile(Dice &dice)
{
    const int kind = dice.below(20);
    QStringList paths;
    if (kind < 10) {
        paths << m_playground.model(dice);
    } else if (kind < 14) {
        paths << m_playground.damagedModel(dice);
    } else if (kind < 17) {
        paths << m_playground.foreignModel(dice);
    } else {
        for (int i = dice.between(1, 2); i > 0; --i)
            paths << m_playground.anyFile(dice);
    }
    say(QStringLiteral("open %1").arg(m_playground.shortName(paths.join(QStringLiteral(", ")))));
    m_window->openFiles(paths);
}

void Monkey::answerBar(Dice &dice)
{
    const auto bars = Hands::usable<NoticeBar>(m_window.get());
    const auto buttons =
        bars.isEmpty() ? QVector<QAbstractButton *>() : Hands::usable<QAbstractButton>(dice.pick(bars));
    if (buttons.isEmpty())
        return click(m_window.get(), dice);
    QAbstractButton *button = dice.pick(buttons);
    say(QStringLiteral("%1 in the bar").arg(Hands::nameOf(button)));
    Hands::click(button, button->rect().center(), Qt::LeftButton, Qt::NoModifier, false);
}

void Monkey::import(QDialog *dialog, Dice &dice)
{
    auto *path = dialog->findChild<QLineEdit *>(QStringLiteral("txtModelPath"));
    auto *start = dialog->findChild<QAbstractButton *>(QStringLiteral("btnImport"));
    const QString model = m_playground.foreignModel(dice);
    say(QStringLiteral("import %1").arg(m_playground.shortName(model)));
    if (path->isVisible() && (path->text().isEmpty() || dice.chance(50))) {
        path->setFocus();
        path->setText(model);
        Hands::pressKey(dialog, Qt::Key_Return, Qt::NoModifier);
    }
    if (start->isVisible() && start->isEnabled())
        Hands::click(start, start->rect().center(), Qt::LeftButton, Qt::NoModifier, false);
}

void Monkey::tamper(Dice &dice)
{
    const Document &document = m_checks->document(documentKinds()[size_t(dice.below(3))].type);
    const QString path = document.path();
    if (path.isEmpty() || !path.startsWith(m_playground.root()))
        return pressKey(
            QApplication::activeModalWidget() ? QApplication::activeModalWidget() : m_window.get(), dice);
    say(QStringLiteral("change %1 on disk").arg(m_playground.shortName(path)));
    m_journal.note(m_playground.tamperWith(path, dice));
    m_pause = QDeadlineTimer(FileRestsMs);
}

void Monkey::resize(Dice &dice)
{
    // Seldom large: a large picture takes long, drawn without graphics hardware.
    const QSize size =
        dice.chance(15) ? QSize(1700, 1100) : QSize(dice.between(1, 1200), dice.between(1, 800));
    say(QStringLiteral("resize to %1 x %2").arg(size.width()).arg(size.height()));
    m_window->resize(size);
}

void Monkey::moveDock(Dice &dice)
{
    const auto docks = m_window->findChildren<QDockWidget *>();
    const auto bars = m_window->findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly);
    static const QVector<Qt::DockWidgetArea> places{Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea,
                                                    Qt::TopDockWidgetArea, Qt::BottomDockWidgetArea};
    QDockWidget *dock = dice.pick(docks);
    switch (dice.below(5)) {
    case 0:
        say(QStringLiteral("float or dock ") + Hands::nameOf(dock));
        dock->setVisible(true);
        dock->setFloating(!dock->isFloating());
        break;
    case 1:
        say(QStringLiteral("show or hide ") + Hands::nameOf(dock));
        dock->setVisible(!dock->isVisible());
        break;
    case 2:
        say(QStringLiteral("move ") + Hands::nameOf(dock));
        m_window->addDockWidget(dice.pick(places), dock);
        break;
    case 3:
        say(QStringLiteral("put the docks together"));
        m_window->tabifyDockWidget(docks.first(), docks.last());
        break;
    default: {
        QToolBar *bar = dice.pick(bars);
        say(QStringLiteral("move ") + Hands::nameOf(bar));
        m_window->addToolBar(dice.chance(50) ? Qt::LeftToolBarArea : Qt::TopToolBarArea, bar);
    }
    }
}

void Monkey::playAndWait(Dice &dice)
{
    const auto buttons =
        Hands::usable<QAbstractButton>(m_window->findChild<QWidget *>(QStringLiteral("animTrackFrame")));
    QAbstractButton *button = buttons.isEmpty() ? nullptr : dice.pick(buttons);
    say(QStringLiteral("%1 and wait").arg(button ? Hands::nameOf(button) : QStringLiteral("nothing")));
    if (button)
        Hands::click(button, button->rect().center(), Qt::LeftButton, Qt::NoModifier, false);
    m_pause = QDeadlineTimer(dice.between(5, 120));
}

void Monkey::undoAll(Dice &dice)
{
    const DocumentKind &kind = documentKinds()[size_t(dice.below(3))];
    say(QStringLiteral("undo and redo all of the %1").arg(kind.label));
    const QStringList found = m_checks->undoAndRedo(kind.type);
    if (!found.isEmpty())
        m_journal.fail(found.join(QStringLiteral("; ")));
}
