// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RecordTableView.h"

#include <QDockWidget>

#include <array>

class KVTreeView;
class QCheckBox;
class QHBoxLayout;
class QLabel;

/// The records of the group that is current in the tree, as a table. It stands beside the pages rather than
/// in their place: columns want width, which the docks below have.
class TableDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit TableDock(QWidget *parent = nullptr);

    /// What can be shown, of documents in the order of their kinds; everything outlives the dock.
    void setDocuments(const std::array<Document *, 3> &documents, const std::array<KVTreeView *, 3> &trees);
    /// Goes on with the current record of this document; null shows nothing.
    void setCurrent(const Document *document);

signals:
    /// The record is to be shown.
    void activated(DocumentType type, const RecordRef &record);
    /// Something for the status bar.
    void told(const QString &text);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void createActions(QHBoxLayout *buttons);
    QAction *addAction(const char *name, const QString &text, const char *iconName,
                       void (TableDock::*slot)());
    void updateGroup();
    void updateTable(bool anew);
    void showInTree();
    void copy() { m_view->copy(); }
    void paste() { m_view->paste(); }
    void exportTable();
    void importTable();

    RecordTableView *m_view;
    QLabel *m_title;
    QLabel *m_empty;
    QCheckBox *m_all;
    QAction *m_paste = nullptr;
    QAction *m_import = nullptr;
    QAction *m_export = nullptr;
    std::array<Document *, 3> m_documents{};
    std::array<KVTreeView *, 3> m_trees{};
    int m_current = -1;
};
