// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "FileReplacement.h"

#include <QDialog>
#include <QTimer>

class ConditionBox;
class DocumentFiles;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// Replaces values in all models of the mod's folder: lists what would change, file by file, and does it in
/// one run that can be undone.
class ReplaceFilesDialog : public QDialog
{
    Q_OBJECT

public:
    /// `folder` is the mod's; empty where none is set.
    ReplaceFilesDialog(const DocumentFiles &files, const QString &folder, QWidget *parent);

signals:
    /// What these files hold may be something else now.
    void filesChanged(const QStringList &paths);
    /// The runs are to be listed: one was broken off.
    void runsWanted();

private slots:
    void list();
    void replace();

private:
    void createFields();
    void createButtons();
    void forget();
    void fill(std::vector<FileReplacement> found);
    void addFile(const FileReplacement &file);
    QString unsavedReason(const QString &path) const;
    ReplaceRule rule() const;
    void updateButtons();
    void say(const QString &text, bool isWarning = false);

    const DocumentFiles &m_files;
    const QString m_folder;
    ConditionBox *m_condition;
    QComboBox *m_field;
    QLineEdit *m_value;
    QTreeWidget *m_tree;
    QLabel *m_state;
    QPushButton *m_list = nullptr;
    QPushButton *m_replace = nullptr;
    std::vector<FileReplacement> m_found;      ///< in the order of the tree's top level
    std::shared_ptr<std::atomic_int> m_looked; ///< files that were looked through
    int m_shown = 0;                           ///< rows of values in the tree
    QTimer m_progress;
    Background m_work;
};
