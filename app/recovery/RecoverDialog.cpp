// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecoverDialog.h"

#include "Language.h"
#include "Recovery.h"
#include "ui_RecoverDialog.h"

#include <QDir>
#include <QMessageBox>
#include <QShowEvent>
#include <QTimer>

RecoverDialog::RecoverDialog(Recovery &recovery, QWidget *parent)
    : QDialog(parent)
    , m_recovery(recovery)
    , m_ui(std::make_unique<Ui::RecoverDialog>())
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    connect(m_ui->btnRecoverClose, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_ui->treeSnapshots, &QTreeWidget::itemActivated, this,
            &RecoverDialog::on_btnRecoverRestore_clicked);
    fill();
}

RecoverDialog::~RecoverDialog() = default;

void RecoverDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // What is not in the list is told of over it.
    if (!event->spontaneous())
        QTimer::singleShot(0, this, [this] { tellOfDamaged(m_recovery.store(), this); });
}

void RecoverDialog::fill()
{
    m_snapshots = m_recovery.snapshots();
    QTreeWidget *tree = m_ui->treeSnapshots;
    tree->clear();
    for (const Snapshot &snapshot : qAsConst(m_snapshots)) {
        const QString path = QDir::toNativeSeparators(snapshot.sourcePath);
        auto *item =
            new QTreeWidgetItem(tree, {snapshot.name, m_recovery.label(snapshot),
                                       Language::locale().toString(snapshot.time, QLocale::ShortFormat),
                                       path.isEmpty() ? tr("(never saved)") : path});
        item->setToolTip(3, path);
    }
    for (int column = 0; column < tree->columnCount() - 1; ++column) {
        tree->resizeColumnToContents(column);
        tree->setColumnWidth(column, tree->columnWidth(column) + fontMetrics().averageCharWidth());
    }
    if (m_snapshots.isEmpty())
        m_ui->lblRecover->setText(tr("There is no unsaved work beside what is open now."));
    else
        tree->setCurrentItem(tree->topLevelItem(0));
    on_treeSnapshots_itemSelectionChanged();
}

QVector<Snapshot> RecoverDialog::selected() const
{
    QVector<Snapshot> chosen;
    for (int row = 0; row < m_snapshots.size(); ++row) {
        if (m_ui->treeSnapshots->topLevelItem(row)->isSelected())
            chosen.append(m_snapshots.at(row));
    }
    return chosen;
}

void RecoverDialog::on_treeSnapshots_itemSelectionChanged()
{
    const QVector<Snapshot> chosen = selected();
    QSet<QString> kinds;
    for (const Snapshot &snapshot : chosen)
        kinds.insert(snapshot.extension);
    m_ui->btnRecoverDelete->setEnabled(!chosen.isEmpty());
    // There is one open document of a kind.
    m_ui->btnRecoverRestore->setEnabled(!chosen.isEmpty() && kinds.size() == chosen.size());
}

void RecoverDialog::on_btnRecoverRestore_clicked()
{
    if (!m_ui->btnRecoverRestore->isEnabled())
        return;
    bool allRestored = true;
    for (const Snapshot &snapshot : selected())
        allRestored &= m_recovery.restore(snapshot) == Recovery::Outcome::Restored;
    if (!allRestored)
        fill();
    tellOfDamaged(m_recovery.store(), this);
    if (allRestored)
        accept();
}

bool RecoverDialog::mayDelete(const QVector<Snapshot> &snapshots, QWidget *parent)
{
    QString question = snapshots.size() == 1
                           ? tr("Delete what was kept of '%1'?").arg(snapshots.first().name)
                           : tr("Delete what was kept of %1 documents?").arg(snapshots.size());
    for (int i = 0; i < snapshots.size() && snapshots.size() > 1; ++i)
        question += QLatin1Char('\n') + snapshots.at(i).name + QStringLiteral(", ") +
                    Language::locale().toString(snapshots.at(i).time, QLocale::ShortFormat);
    return QMessageBox::question(parent, tr("Recover"),
                                 question + QLatin1Char('\n') + tr("This cannot be undone."),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

void RecoverDialog::tellOfDamaged(SnapshotStore &store, QWidget *parent)
{
    const QVector<SnapshotStore::Damaged> damaged = store.takeDamaged();
    if (damaged.isEmpty())
        return;
    QStringList names, files;
    for (const SnapshotStore::Damaged &each : damaged) {
        names += each.name.isEmpty() ? QFileInfo(each.path).fileName() : each.name;
        files += QDir::toNativeSeparators(each.path);
    }
    QMessageBox box(
        QMessageBox::Warning, tr("Recover"),
        tr("What was kept of '%1' is damaged and cannot be opened.").arg(names.join(QStringLiteral("', '"))),
        QMessageBox::NoButton, parent);
    box.setInformativeText(
        tr("It can be kept, to see what can be saved of it, and is not offered any more:\n%1")
            .arg(files.join(QLatin1Char('\n'))));
    auto *keep = box.addButton(tr("&Keep"), QMessageBox::RejectRole);
    const QPushButton *discard = box.addButton(tr("&Delete"), QMessageBox::DestructiveRole);
    box.setDefaultButton(keep);
    box.setEscapeButton(keep);
    box.exec();
    for (int i = 0; i < damaged.size() && box.clickedButton() == discard; ++i)
        QFile::remove(damaged.at(i).path);
}

void RecoverDialog::on_btnRecoverDelete_clicked()
{
    const QVector<Snapshot> chosen = selected();
    if (!mayDelete(chosen, this))
        return;
    m_recovery.remove(chosen);
    fill();
    tellOfDamaged(m_recovery.store(), this);
}
