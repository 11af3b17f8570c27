// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Dice.h"

#include <QWidget>

#include <memory>

class Journal;
class MainWindow;
class Playground;

/// Opens one file after another that no program writes, and does with each what somebody does first: selects
/// all, plays, looks from the front, saves. Whatever is asked meanwhile is declined.
class MutantRun : public QObject
{
    Q_OBJECT

public:
    MutantRun(Playground &playground, Journal &journal, quint64 seed);
    ~MutantRun() override;

    /// Ends after so many files or seconds; 0 seconds are any time.
    void run(int files, int seconds);

    int files() const { return m_files; }
    /// How many of them could be read.
    int opened() const { return m_opened; }

private:
    void use(Dice &dice);
    void decline();
    void wait(int milliseconds);
    void settle();

    Playground &m_playground;
    Journal &m_journal;
    std::mt19937_64 m_generator;
    std::unique_ptr<MainWindow> m_window;
    int m_files = 0;
    int m_opened = 0;
};
