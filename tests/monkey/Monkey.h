// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Dice.h"

#include <QtWidgets>

#include <map>
#include <memory>

class Checks;
class Journal;
class MainWindow;
class Playground;

/// Uses the program as someone would who knows nothing and stops at nothing. One step a turn of the event
/// loop, whichever loop runs: a dialog that a step opens is answered by the following ones.
class Monkey : public QObject
{
    Q_OBJECT

public:
    struct Limits
    {
        int steps;   ///< 0: any number
        int seconds; ///< 0: any time
    };

    Monkey(Playground &playground, Journal &journal, quint64 seed, const Limits &limits);
    ~Monkey() override;

    /// Opens the window and runs the event loop until a limit is reached.
    void run();

    int steps() const { return m_step; }
    int linksOpened() const { return m_links; }

public slots:
    /// In the place of the desktop, which would start a browser.
    void countLink(const QUrl &link);

private:
    void tick();
    void act();
    void leave();
    void openWindow(Dice &dice);
    void closeWindow();
    void check();
    void failIfAny(const QStringList &findings);

    // One step each, in the window or in the dialog that is in front of it.
    void actInWindow(Dice &dice);
    void actInPopup(QWidget *popup, Dice &dice);
    void actInDialog(QDialog *dialog, Dice &dice);
    void useDialog(QDialog *dialog, Dice &dice);
    void answerFileDialog(QFileDialog *dialog, Dice &dice);
    void endDialog(QDialog *dialog, Dice &dice);

    void click(QWidget *arena, Dice &dice);
    void drag(QWidget *arena, Dice &dice);
    void turnWheel(QWidget *arena, Dice &dice);
    void pressKey(QWidget *arena, Dice &dice);
    void typeText(QWidget *arena, Dice &dice);
    void edit(QWidget *arena, Dice &dice);
    void selectItem(QWidget *arena, Dice &dice);
    void switchTab(QWidget *arena, Dice &dice);
    void triggerAction(Dice &dice);
    void triggerTreeAction(Dice &dice);
    void undoOrRedo(Dice &dice);
    void openFile(Dice &dice);
    void import(QDialog *dialog, Dice &dice);
    /// False when there is none.
    bool pressAnyButton(QWidget *arena, Dice &dice);
    void answerBar(Dice &dice);
    void tamper(Dice &dice);
    void resize(Dice &dice);
    void moveDock(Dice &dice);
    void playAndWait(Dice &dice);
    void undoAll(Dice &dice);

    /// Writes the step down; what it does comes after.
    void say(const QString &text);
    QString textToType(Dice &dice) const;

    Playground &m_playground;
    Journal &m_journal;
    const Limits m_limits;
    std::mt19937_64 m_generator;
    QDeadlineTimer m_end;
    QDeadlineTimer m_pause;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<Checks> m_checks;
    int m_step = 0;
    int m_links = 0;
    int m_busyLevel = 0; ///< the event loop in which a step is being done
    /// The dialogs and menus that are open, and how many more steps they get.
    std::map<QWidget *, int> m_patience;
};
