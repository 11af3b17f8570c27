// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWidget>

class ModProblems;
class QLabel;
class QProgressBar;

/// Tells how far the check of the mod is, when that takes longer than one would notice, and lets the user
/// give it up.
class CheckSign : public QWidget
{
    Q_OBJECT

public:
    static constexpr int DelayMs = 400;

    explicit CheckSign(ModProblems &mod);

private:
    void follow();
    void showProgress();

    ModProblems &m_mod;
    QLabel *m_label;
    QProgressBar *m_bar;
    QTimer m_delay;
    QTimer m_tick;
};
