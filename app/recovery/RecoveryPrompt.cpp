// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecoveryPrompt.h"

#include "CrashReportDialog.h"
#include "Icons.h"
#include "Language.h"
#include "NoticeBar.h"
#include "RecoverDialog.h"

#include <QAction>
#include <QBoxLayout>
#include <QIcon>
#include <QPushButton>
#include <QSet>

#include <algorithm>

RecoveryPrompt::RecoveryPrompt(Recovery &recovery, QAction *recover, QBoxLayout *place, QWidget *window)
    : QObject(window)
    , m_recovery(recovery)
    , m_window(window)
    , m_bar(new NoticeBar(namedIcon(QStringLiteral("warning")), QStringLiteral("barRecovery")))
    , m_restore(m_bar->addButton(tr("Restore"), QStringLiteral("btnRestore"),
                                 tr("Open the newest of each kind as a modified document")))
    , m_showAll(m_bar->addButton(tr("Show All…"), QStringLiteral("btnShowAll"),
                                 tr("List all kept work, to restore or delete it")))
    , m_discard(m_bar->addButton(tr("Discard"), QStringLiteral("btnDiscard"),
                                 tr("Delete all of this kept work; files are not touched")))
    , m_showDamaged(m_bar->addButton(tr("Show Damaged…"), QStringLiteral("btnShowDamaged"),
                                     tr("Say what is damaged, to keep its files or delete them")))
    , m_showReport(m_bar->addButton(tr("Show Report"), QStringLiteral("btnShowReport"),
                                    tr("Show what was written down when Korvane ended")))
{
    m_bar->addCross(tr("Hide; File > Recover… lists what is kept"));
    place->insertWidget(0, m_bar);
    connect(m_restore, &QPushButton::clicked, this, &RecoveryPrompt::on_btnRestore_clicked);
    connect(m_showAll, &QPushButton::clicked, this, &RecoveryPrompt::on_actionRecover_triggered);
    connect(m_discard, &QPushButton::clicked, this, &RecoveryPrompt::on_btnDiscard_clicked);
    connect(m_showDamaged, &QPushButton::clicked, this, &RecoveryPrompt::on_btnShowDamaged_clicked);
    connect(m_showReport, &QPushButton::clicked, this, &RecoveryPrompt::on_btnShowReport_clicked);
    connect(recover, &QAction::triggered, this, &RecoveryPrompt::on_actionRecover_triggered);

    m_offered = m_recovery.snapshots();
    offer();
}

void RecoveryPrompt::offer()
{
    const bool crashed = !m_recovery.store().crashReports().isEmpty();
    const bool damaged = !m_recovery.store().damaged().isEmpty();
    for (QPushButton *button : {m_restore, m_showAll, m_discard})
        button->setVisible(!m_offered.isEmpty());
    m_showDamaged->setVisible(damaged);
    m_showReport->setVisible(crashed);
    if (m_offered.isEmpty()) {
        m_bar->setVisible(crashed || damaged);
        if (damaged)
            m_bar->tell(tr("Korvane has kept unsaved work, but it is damaged."));
        else if (crashed)
            m_bar->tell(tr("Korvane ended unexpectedly. A report was written here; nothing was sent."));
        return;
    }

    QStringList names;
    QSet<QString> kinds;
    for (const Snapshot &snapshot : qAsConst(m_offered)) {
        if (!kinds.contains(snapshot.extension))
            names.append(snapshot.name);
        kinds.insert(snapshot.extension);
    }
    const int more = m_offered.size() - names.size();
    const QString all = names.join(QStringLiteral(", "));
    const QString time = Language::locale().toString(m_offered.first().time, QLocale::ShortFormat);
    const QString text = crashed ? tr("Korvane ended unexpectedly. It has kept unsaved work from %1: %2")
                                 : tr("Korvane has kept unsaved work from %1: %2");
    QString told = text.arg(time, more == 0 ? all : tr("%1 and %2 more").arg(all, QString::number(more)));
    if (m_hasRestored) {
        // What is left is older than what is open now.
        m_restore->hide();
        told = tr("The newest was restored. Older unsaved work is kept, too: %1").arg(m_offered.size());
    }
    m_bar->tell(damaged ? tr("%1. Other work that was kept is damaged.").arg(told) : told);
}

void RecoveryPrompt::on_btnRestore_clicked()
{
    // The newest that is whole.
    QSet<QString> done;
    bool givenUp = false;
    for (const Snapshot &snapshot : qAsConst(m_offered)) {
        if (done.contains(snapshot.extension))
            continue;
        const Recovery::Outcome outcome = m_recovery.restore(snapshot);
        givenUp = outcome == Recovery::Outcome::GivenUp;
        if (givenUp)
            break;
        if (outcome == Recovery::Outcome::Restored)
            done.insert(snapshot.extension);
    }
    RecoverDialog::tellOfDamaged(m_recovery.store(), m_window);
    m_hasRestored = m_hasRestored || (!givenUp && !done.isEmpty());
    offerWhatIsLeft();
}

void RecoveryPrompt::on_btnDiscard_clicked()
{
    if (!RecoverDialog::mayDelete(m_offered, m_window))
        return;
    m_recovery.remove(m_offered);
    m_offered.clear();
    offer();
}

void RecoveryPrompt::on_btnShowDamaged_clicked()
{
    RecoverDialog::tellOfDamaged(m_recovery.store(), m_window);
    offerWhatIsLeft();
}

void RecoveryPrompt::on_btnShowReport_clicked()
{
    CrashReportDialog dialog(m_recovery.store().crashReports().first(), m_window);
    dialog.exec();
}

void RecoveryPrompt::on_actionRecover_triggered()
{
    RecoverDialog dialog(m_recovery, m_window);
    dialog.exec();
    if (!m_bar->isHidden())
        offerWhatIsLeft();
}

/// What was restored or deleted is no longer on offer.
void RecoveryPrompt::offerWhatIsLeft()
{
    QSet<QString> left;
    for (const Snapshot &snapshot : m_recovery.snapshots())
        left.insert(snapshot.file);
    m_offered.erase(
        std::remove_if(m_offered.begin(), m_offered.end(),
                       [&left](const Snapshot &snapshot) { return !left.contains(snapshot.file); }),
        m_offered.end());
    offer();
}
