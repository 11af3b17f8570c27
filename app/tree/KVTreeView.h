// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

#include <QTreeWidget>

class RecordItem;

/// The structure tree of one document: its records as RecordItems, several of which may be selected.
class KVTreeView : public QTreeWidget
{
    Q_OBJECT

public:
    explicit KVTreeView(QWidget *parent = nullptr);

    /// The document to show; it outlives the tree.
    void setDocument(Document *document);

    /// Builds the items anew and makes the root current. Mesh data is left out while it is hidden.
    void rebuild();

    RecordRef currentRecord() const;
    /// The selected records of one kind, ascending by index.
    QVector<RecordIndex> selectedRecords(RecordKind kind) const;

    /// The item of a record, or of the deepest of its owners that has one; null in an empty tree.
    RecordItem *findItem(const RecordRef &record) const;
    /// Selects just these records and makes `current` the current one.
    void selectRecords(const QVector<RecordRef> &records, const RecordRef &current);

    QString label(const RecordRef &record) const;

signals:
    /// Another record is current, or the current one was changed or joined by others: show its page.
    void currentRecordChanged(const RecordRef &record);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// Gives an item that stands for `owner` its groups and records.
    void fillItem(RecordItem *item, const RecordRef &owner) const;
    void onRecordsChanged(const QVector<RecordRef> &records);
    void onStructuresChanged(const QVector<StructureChange> &changes);
    void rebuildBelow(const RecordRef &owner, const QVector<StructureChange> &changes);
    void notifyCurrent();

    Document *m_document = nullptr;
    bool m_hideData = true; ///< as it was when the tree was built
};
