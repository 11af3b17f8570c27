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

namespace {
/// Longer than FileWatch lets a file rest, so that its bar comes before the next step.
constexpr int FileRestsMs = 900;

constexpr Qt::Key Keys[] = {
    Qt::Key_Tab,      Qt::Key_Backtab,   Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space, Qt::Key_Delete,
    Qt::Key_Insert,   Qt::Key_Backspace, Qt::Key_Left,   Qt::Key_Right,  Qt::Key_Up,    Qt::Key_Down,
    Qt::Key_PageUp,   Qt::Key_PageDown,  Qt::Key_Home,   Qt::Key_End,    Qt::Key_F1,    Qt::Key_F2,
    Qt::Key_F3,       Qt::Key_F4,        Qt::Key_F5,     Qt::Key_F10,    Qt::Key_F11,   Qt::Key_Menu,
    Qt::Key_Asterisk, Qt::Key_Plus,      Qt::Key_Minus,  Qt::Key_W,      Qt::Key_A,     Qt::Key_S,
    Qt::Key_D,        Qt::Key_Q,         Qt::Key_E,      Qt::Key_1,      Qt::Key_0};

constexpr Qt::Key ControlKeys[] = {Qt::Key_Z,    Qt::Key_Y, Qt::Key_S,    Qt::Key_C,   Qt::Key_V,
                                   Qt::Key_X,    Qt::Key_A, Qt::Key_F,    Qt::Key_O,   Qt::Key_Home,
                                   Qt::Key_End,  Qt::Key_R, Qt::Key_Plus, Qt::Key_Tab, Qt::Key_Up,
                                   Qt::Key_Down, Qt::Key_I};

Qt::KeyboardModifiers anyModifiers(Dice &dice)
{
    constexpr Qt::KeyboardModifier some[] = {Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier};
    return dice.chance(30) ? dice.pick(some) : Qt::NoModifier;
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

struct Way
{
    int weight;
    std::function<void()> go;
};

void takeOneOf(const std::vector<Way> &ways, Dice &dice)
{
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

/// Those that could be chosen in a menu now.
QVector<QAction *> usableActions(const QList<QAction *> &actions)
{
    QVector<QAction *> usable;
    for (QAction *each : actions) {
        if (each->isEnabled() && each->isVisible() && !each->isSeparator() && !each->menu())
            usable.append(each);
    }
    return usable;
}

template <typename... Kinds>
bool isAnyOf(const QObject *object)
{
    return (qobject_cast<const Kinds *>(object) || ...);
}

/// How a click or a drag is made.
struct Manner
{
    explicit Manner(Dice &dice)
        : modifiers(anyModifiers(dice))
    {
        const int kind = dice.below(20);
        button = kind < 14 ? Qt::LeftButton : kind < 18 ? Qt::RightButton : Qt::MiddleButton;
    }
    /// As the journal has it.
    QString text() const
    {
        return QStringLiteral("button %1, modifiers %2")
            .arg(QString::number(button), QString::number(int(modifiers), 16));
    }

    Qt::KeyboardModifiers modifiers;
    Qt::MouseButton button;
};
} // namespace

void Monkey::actInWindow(Dice &dice)
{
    // Without a window manager nobody else gives the keys to a window.
    if (!QApplication::activeWindow())
        QApplication::setActiveWindow(m_window.get());
    QWidget *window = m_window.get();
    takeOneOf({{18, [&] { click(window, dice); }},
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
               {2, [&] { answerBar(dice); }}},
              dice);
}

void Monkey::useDialog(QDialog *dialog, Dice &dice)
{
    takeOneOf({{40, [&] { click(dialog, dice); }},
               {30, [&] { edit(dialog, dice); }},
               {15, [&] { pressKey(dialog, dice); }},
               {5, [&] { drag(dialog, dice); }},
               {4, [&] { typeText(dialog, dice); }},
               {3, [&] { turnWheel(dialog, dice); }},
               {3, [&] { tamper(dice); }}}, // other programs do not wait
              dice);
}

void Monkey::click(QWidget *arena, Dice &dice)
{
    QWidget *widget = anyWidget(arena, dice);
    const QPoint at = Hands::pointIn(widget, dice);
    const Manner manner(dice);
    const bool twice = dice.chance(15);
    say(QStringLiteral("%1click %2 at %3, %4")
            .arg(QLatin1String(twice ? "double " : ""), Hands::nameOf(widget), Hands::textOf(at),
                 manner.text()));
    Hands::click(widget, at, manner.button, manner.modifiers, twice);
}

void Monkey::drag(QWidget *arena, Dice &dice)
{
    QWidget *widget = anyWidget(arena, dice);
    QVector<QPoint> points{Hands::pointIn(widget, dice)};
    for (int i = dice.between(1, 6); i > 0; --i)
        points += points.last() + QPoint(dice.between(-120, 120), dice.between(-120, 120));
    const Manner manner(dice);
    say(QStringLiteral("drag %1 from %2 to %3, %4")
            .arg(Hands::nameOf(widget), Hands::textOf(points.first()), Hands::textOf(points.last()),
                 manner.text()));
    Hands::drag(widget, points, manner.button, manner.modifiers);
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
    const Qt::Key key = control ? dice.pick(ControlKeys) : dice.pick(Keys);
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
    // The first is empty.
    static const QStringList odd =
        QString(" 0 -1 1 2 7 0.5 -0 127 128 255 256 65535 65536 2147483647 -2147483648 1e38 1e39 -1e-45 nan "
                "inf %1%2%n <b>bold</b> / ../.. materials/mat_new.kmat")
            .split(QLatin1Char(' '));
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
            isAnyOf<QLineEdit>(each) && isAnyOf<QAbstractSpinBox, QComboBox>(each->parentWidget());
        if (!isPart && isAnyOf<QAbstractSpinBox, QComboBox, QLineEdit, QCheckBox, QSlider>(each))
            editors.append(each);
    }
    if (editors.isEmpty())
        return click(arena, dice);
    const QPointer<QWidget> editor = dice.pick(editors);
    const QString name = Hands::nameOf(editor);
    if (isAnyOf<QCheckBox, QComboBox, QSlider>(editor)) {
        constexpr Qt::Key moves[] = {Qt::Key_Space, Qt::Key_Down, Qt::Key_Up,
                                     Qt::Key_Home,  Qt::Key_End,  Qt::Key_PageDown};
        const Qt::Key key = isAnyOf<QCheckBox>(editor) ? Qt::Key_Space : dice.pick(moves);
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
    const Manner manner(dice);
    say(QStringLiteral("select '%1' in %2, %3").arg(item->text(0), Hands::nameOf(tree), manner.text()));
    tree->scrollToItem(item);
    const QRect seen = tree->visualItemRect(item) & tree->viewport()->rect();
    if (!seen.isEmpty())
        Hands::click(tree->viewport(), seen.center(), manner.button, manner.modifiers, dice.chance(5));
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
    QAction *action = dice.pick(usableActions(m_window->findChildren<QAction *>()));
    say(QStringLiteral("action '%1' (%2)").arg(action->text(), action->objectName()));
    action->trigger();
}

void Monkey::triggerTreeAction(Dice &dice)
{
    const auto trees = Hands::usable<KVTreeView>(m_window.get());
    const auto actions = trees.isEmpty() ? QVector<QAction *>() : usableActions(dice.pick(trees)->actions());
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
    QStringList paths{kind < 10   ? m_playground.model(dice)
                      : kind < 14 ? m_playground.damagedModel(dice)
                      : kind < 17 ? m_playground.foreignModel(dice)
                                  : m_playground.anyFile(dice)};
    if (kind >= 18)
        paths << m_playground.anyFile(dice);
    say(QStringLiteral("open %1").arg(m_playground.shortName(paths.join(QStringLiteral(", ")))));
    m_window->openFiles(paths);
}

bool Monkey::pressAnyButton(QWidget *arena, Dice &dice)
{
    const auto buttons = Hands::usable<QAbstractButton>(arena);
    if (buttons.isEmpty())
        return false;
    QAbstractButton *button = dice.pick(buttons);
    say(QStringLiteral("press '%1', %2 of '%3'")
            .arg(button->text(), Hands::nameOf(button), m_playground.shortName(arena->windowTitle())));
    Hands::click(button, button->rect().center(), Qt::LeftButton, Qt::NoModifier, false);
    return true;
}

void Monkey::answerBar(Dice &dice)
{
    const auto bars = Hands::usable<NoticeBar>(m_window.get());
    if (bars.isEmpty() || !pressAnyButton(dice.pick(bars), dice))
        click(m_window.get(), dice);
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
    QWidget *modal = QApplication::activeModalWidget();
    if (path.isEmpty() || !path.startsWith(m_playground.root()))
        return pressKey(modal ? modal : m_window.get(), dice);
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
    if (!pressAnyButton(m_window->findChild<QWidget *>(QStringLiteral("animTrackFrame")), dice))
        say(QStringLiteral("wait"));
    m_pause = QDeadlineTimer(dice.between(5, 120));
}

void Monkey::undoAll(Dice &dice)
{
    const DocumentKind &kind = documentKinds()[size_t(dice.below(3))];
    say(QStringLiteral("undo and redo all of the %1").arg(kind.label));
    failIfAny(m_checks->undoAndRedo(kind.type));
}
