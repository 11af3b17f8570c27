// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SnapshotStore.h"

#include <QDialog>

#include <memory>

class Recovery;

namespace Ui {
class RecoverDialog;
}

/// Lists what is kept of unsaved work, to be restored or deleted.
class RecoverDialog : public QDialog
{
    Q_OBJECT

public:
    explicit RecoverDialog(Recovery &recovery, QWidget *parent = nullptr);
    ~RecoverDialog() override;

    /// Asks whether these shall be deleted, and names them.
    [[nodiscard]] static bool mayDelete(const QVector<Snapshot> &snapshots, QWidget *parent);
    /// Tells of what turned out to be damaged, if anything did, and asks whether these files shall be kept.
    static void tellOfDamaged(SnapshotStore &store, QWidget *parent);

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void on_btnRecoverRestore_clicked();
    void on_btnRecoverDelete_clicked();
    void on_treeSnapshots_itemSelectionChanged();

private:
    void fill();
    QVector<Snapshot> selected() const;

    Recovery &m_recovery;
    std::unique_ptr<Ui::RecoverDialog> m_ui;
    QVector<Snapshot> m_snapshots; ///< in the order of the rows
};
