// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "RecordGroup.h"

#include <QAbstractTableModel>

/// The records of a group as rows, their fields as columns. It keeps no values: they are read when they are
/// shown, so nothing goes stale.
class RecordTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    /// What it sorts by: a number or a text.
    static constexpr int SortRole = Qt::UserRole;

    /// The document outlives the model; null shows nothing.
    void show(Document *document, const RecordGroup &group);
    /// Values of records have changed.
    void refresh();

    Document *document() const { return m_document; }
    const RecordGroup &group() const { return m_group; }
    const QVector<const RecordField *> &fields() const { return m_fields; }
    const RecordField &field(int column) const { return *m_fields[column]; }
    const RecordIndex &record(int row) const { return m_group.records[row]; }
    /// -1 for a record that is not in the table.
    int rowOf(const RecordIndex &record) const;
    FieldValue value(const QModelIndex &index) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    Document *m_document = nullptr;
    RecordGroup m_group;
    QVector<const RecordField *> m_fields;
};
