// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Recovery.h"

class NoticeBar;
class QAction;
class QBoxLayout;
class QPushButton;

/// Offers at the start, in a bar, what an earlier run has left: unsaved work, and the report of a crash.
/// Lists all kept work when asked.
class RecoveryPrompt : public QObject
{
    Q_OBJECT

public:
    /// The bar comes at the top of `place`.
    RecoveryPrompt(Recovery &recovery, QAction *recover, QBoxLayout *place, QWidget *window);

private slots:
    void on_btnRestore_clicked();
    void on_btnDiscard_clicked();
    void on_btnShowDamaged_clicked();
    void on_btnShowReport_clicked();
    void on_actionRecover_triggered();

private:
    void offer();
    void offerWhatIsLeft();

    Recovery &m_recovery;
    QWidget *m_window;
    NoticeBar *m_bar;
    QPushButton *m_restore;
    QPushButton *m_showAll;
    QPushButton *m_discard;
    QPushButton *m_showDamaged;
    QPushButton *m_showReport;
    QVector<Snapshot> m_offered; ///< the newest first
    bool m_hasRestored = false;
};
