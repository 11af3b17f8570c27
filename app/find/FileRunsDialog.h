// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileRun.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTreeWidget;

/// Lists replacements in files, the newest first: each is undone, done again, or ended when it was broken
/// off.
class FileRunsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit FileRunsDialog(QWidget *parent);

signals:
    /// What these files hold may be something else now.
    void filesChanged(const QStringList &paths);

private slots:
    void undo();
    void finish();
    void forget();
    void updateButtons();

private:
    void fill();
    void work(bool undoes);
    FileRun *current();
    void say(const QString &text, bool isWarning);

    std::vector<FileRun> m_runs;
    QTreeWidget *m_tree;
    QLabel *m_state;
    QPushButton *m_undo = nullptr;
    QPushButton *m_finish = nullptr;
    QPushButton *m_forget = nullptr;
};
