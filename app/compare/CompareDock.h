// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ArchivesAhead.h"
#include "DocumentKind.h"
#include "Records.h"

#include <QDockWidget>

class CompareTree;
class DocumentFiles;
class FileComparison;
class QAction;
class QLabel;

/// Compares an open document with a file: what differs as a tree, which leads to the records and lets the
/// document have what the file has.
class CompareDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit CompareDock(QWidget *parent = nullptr);

    /// Compares by `comparison`, and lets `choose` ask for the file to compare the current document with;
    /// `other` takes the one that game or mod have in its place. All outlive the dock.
    void setComparison(FileComparison *comparison, const DocumentFiles &files, QAction *choose,
                       QAction *other);

signals:
    /// The record is to be shown.
    void activated(DocumentType type, const RecordRef &record);

private:
    QAction *addAction(const char *name, const QString &text, const char *iconName,
                       void (CompareDock::*slot)());
    void chooseFile();
    void findOther();
    void start(DocumentType type, const QString &path);
    void fill();
    void updateActions();
    void showCurrent();
    void takeSelected();
    void reload();

    CompareTree *m_tree;
    QLabel *m_title;
    FileComparison *m_comparison = nullptr;
    const DocumentFiles *m_files = nullptr;
    QAction *m_show;
    QAction *m_take;
    QAction *m_reload;
    ArchivesAhead m_ahead;
};
