// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Monkey.h"

#include "Checks.h"
#include "FilterLine.h"
#include "Hands.h"
#include "ImportDialog.h"
#include "Journal.h"
#include "KVTreeView.h"
#include "MainWindow.h"
#include "Playground.h"
#include "Settings.h"

#include <algorithm>

namespace {
constexpr int StepsBetweenChecks = 25;
/// How many steps a dialog, a menu gets at most before it is closed. A dialog that is still there after as
/// many attempts is a fault.
constexpr int MostStepsInDialog = 25;
constexpr int MostStepsInPopup = 6;
} // namespace

Monkey::Monkey(Playground &playground, Journal &journal, quint64 seed, const Limits &limits)
    : m_playground(playground)
    , m_journal(journal)
    , m_limits(limits)
    , m_generator(seed)
    , m_end(limits.seconds > 0 ? QDeadlineTimer(qint64(limits.seconds) * 1000)
                               : QDeadlineTimer(QDeadlineTimer::Forever))
{}

Monkey::~Monkey() = default;

void Monkey::countLink(const QUrl &)
{
    ++m_links;
}

void Monkey::run()
{
    Dice dice(m_generator());
    openWindow(dice);
    QTimer::singleShot(0, this, &Monkey::tick);
    QApplication::exec();
}

void Monkey::tick()
{
    // First, since a step may begin an event loop that ends many steps later.
    QTimer::singleShot(1, this, &Monkey::tick);
    const int level = QThread::currentThread()->loopLevel();
    if (level <= m_busyLevel || !m_pause.hasExpired())
        return;
    const QScopedValueRollback<int> busy(m_busyLevel, level);
    // What the window system has to say comes before the step, in every run.
    QGuiApplication::sync();
    const bool isOver = m_end.hasExpired() || (m_limits.steps > 0 && m_step >= m_limits.steps);
    if (!isOver)
        act();
    else
        leave();
}

void Monkey::act()
{
    ++m_step;
    Dice dice(m_generator());
    QWidget *popup = QApplication::activePopupWidget();
    QWidget *modal = QApplication::activeModalWidget();
    if (!popup && !modal)
        m_patience.clear();
    if (auto *files = qobject_cast<QFileDialog *>(modal); files && !popup)
        answerFileDialog(files, dice);
    else if (popup)
        actInPopup(popup, dice);
    else if (auto *dialog = qobject_cast<QDialog *>(modal))
        actInDialog(dialog, dice);
    else if (m_busyLevel > 1)
        // An event loop without a dialog: one that a dialog has just left, or a drag.
        Hands::pressKey(m_window.get(), Qt::Key_Escape, Qt::NoModifier);
    else if (!m_window->isVisible())
        openWindow(dice);
    else if (m_step % StepsBetweenChecks == 0)
        check();
    else
        actInWindow(dice);
}

void Monkey::leave()
{
    if (QWidget *popup = QApplication::activePopupWidget()) {
        popup->close();
    } else if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
        dialog->reject();
    } else if (m_busyLevel == 1) {
        check();
        closeWindow();
        QCoreApplication::quit();
    }
}

void Monkey::openWindow(Dice &dice)
{
    say(QStringLiteral("open the window"));
    closeWindow();
    m_playground.storeSettings();
    for (const auto *key : {&Settings::HideMeshData, &Settings::HideAnimData, &Settings::BackCull,
                            &Settings::ShowGround, &Settings::ShowAxisGizmo, &Settings::AnimationAutoPlay})
        key->setValue(dice.chance(50));
    m_window = std::make_unique<MainWindow>();
    m_checks = std::make_unique<Checks>(*m_window);
    m_window->resize(1100, 750);
    m_window->show();
    m_window->activateWindow();
    // The program asks for its folders soon, and offers what it kept.
    m_pause = QDeadlineTimer(300);
}

void Monkey::closeWindow()
{
    m_patience.clear();
    m_checks.reset();
    m_window.reset();
}

void Monkey::check()
{
    say(QStringLiteral("check"));
    // A tree is compared with a fresh one, which no filter has been typed for.
    for (auto *tree : m_window->findChildren<KVTreeView *>()) {
        tree->parentWidget()->findChild<FilterLine *>()->clear();
        tree->setFilter({});
    }
    failIfAny(m_checks->findings());
}

void Monkey::failIfAny(const QStringList &findings)
{
    if (!findings.isEmpty())
        m_journal.fail(findings.join(QStringLiteral("; ")));
}

void Monkey::say(const QString &text)
{
    m_journal.step(m_step, text);
}

void Monkey::actInPopup(QWidget *popup, Dice &dice)
{
    const int patience =
        --m_patience.emplace(popup, MostStepsInPopup + dice.below(MostStepsInPopup)).first->second;
    if (patience < 0) {
        say(QStringLiteral("close ") + Hands::nameOf(popup));
        m_patience.erase(popup);
        popup->close();
        return;
    }
    const int kind = dice.below(10);
    auto *menu = qobject_cast<QMenu *>(popup);
    QVector<QAction *> offered;
    for (QAction *each : menu ? menu->actions() : QList<QAction *>()) {
        if (each->isVisible() && !each->isSeparator() && (each->isEnabled() || dice.chance(20)))
            offered.append(each);
    }
    if (kind < 6 && !offered.isEmpty()) {
        QAction *action = dice.pick(offered);
        say(QStringLiteral("choose '%1' in the menu").arg(action->text()));
        Hands::click(menu, menu->actionGeometry(action).center(), Qt::LeftButton, Qt::NoModifier, false);
    } else if (kind < 6) {
        click(popup, dice);
    } else {
        static const QVector<int> keys{Qt::Key_Down, Qt::Key_Up,    Qt::Key_Right, Qt::Key_Return,
                                       Qt::Key_Home, Qt::Key_Space, Qt::Key_Escape};
        const int key = dice.pick(keys);
        say(QStringLiteral("key %1 in %2").arg(QKeySequence(key).toString(), Hands::nameOf(popup)));
        Hands::pressKey(popup, key, Qt::NoModifier);
    }
}

void Monkey::actInDialog(QDialog *dialog, Dice &dice)
{
    const int patience = --m_patience.emplace(dialog, dice.between(1, MostStepsInDialog)).first->second;
    if (patience < -MostStepsInDialog)
        m_journal.fail(QStringLiteral("%1 does not close").arg(Hands::nameOf(dialog)));
    auto *stop = dialog->findChild<QAbstractButton *>(QStringLiteral("btnStop"));
    if (qobject_cast<ImportDialog *>(dialog) && stop && stop->isVisible()) {
        // The import takes its time, in another process.
        const bool stops = dice.chance(5);
        say(stops ? QStringLiteral("stop the import") : QStringLiteral("wait for the import"));
        m_pause = QDeadlineTimer(stops ? 0 : 200);
        m_patience[dialog] = MostStepsInDialog;
        if (stops)
            stop->click();
        return;
    }
    if (patience < 0) {
        endDialog(dialog, dice);
        return;
    }
    if (qobject_cast<ImportDialog *>(dialog) && dice.chance(25)) {
        import(dialog, dice);
        return;
    }
    if (qobject_cast<QMessageBox *>(dialog) && dice.chance(80) && pressAnyButton(dialog, dice))
        return;
    useDialog(dialog, dice);
}

void Monkey::endDialog(QDialog *dialog, Dice &dice)
{
    if (dice.chance(60) && pressAnyButton(dialog, dice))
        return;
    say(QStringLiteral("reject %1").arg(Hands::nameOf(dialog)));
    dialog->reject();
}

void Monkey::answerFileDialog(QFileDialog *dialog, Dice &dice)
{
    // Clicks in it could rename and delete whatever lies around.
    auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (!name || dice.chance(15)) {
        say(QStringLiteral("leave the file dialog"));
        dialog->reject();
        return;
    }
    QString path;
    if (dialog->fileMode() == QFileDialog::Directory) {
        path = m_playground.folder(dice);
    } else if (dialog->acceptMode() == QFileDialog::AcceptOpen || dice.chance(40)) {
        path = m_playground.anyFile(dice);
    } else {
        const char *const names[] = {"/new", "/new.v2", "/b%1.skinnedmesh", "/c.anim",
                                     "/materials/mat_new.kmat"};
        path = m_playground.folder(dice) + QLatin1String(dice.pick(names));
    }
    say(QStringLiteral("file dialog '%1': %2").arg(dialog->windowTitle(), m_playground.shortName(path)));
    name->setText(path);
    static_cast<QDialog *>(dialog)->accept();
    // What it does not take, it says in a box and stays.
    if (dialog->isVisible() && !QApplication::activePopupWidget() &&
        QApplication::activeModalWidget() == dialog)
        dialog->reject();
}
