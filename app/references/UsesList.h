// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ReferenceIndex.h"
#include "RowList.h"

#include <QAbstractTableModel>

/// The records of files that name a thing, one a row. There may be thousands, of which some dozens are seen,
/// so texts are made when they are asked for.
class UsesRows : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { RecordColumn, FileColumn, FolderColumn, MaterialColumn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setUses(std::vector<NamedUse> uses);
    const std::vector<NamedUse> &uses() const { return m_uses; }
    /// How many records there are in all; those of which a file has too many to keep are counted, too.
    int useCount() const;

    const NamedUse &useAt(int row) const { return m_uses[size_t(m_rows[size_t(row)].use)]; }
    RecordRef placeAt(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row
    {
        int use;
        int place; ///< of those that are kept
    };

    QString placeText(int row) const;

    std::vector<NamedUse> m_uses;
    std::vector<Row> m_rows;
};

/// The list of them.
class UsesList : public RowList
{
    Q_OBJECT

public:
    explicit UsesList(QWidget *parent = nullptr);

    UsesRows &rows() { return *m_rows; }
    const UsesRows &rows() const { return *m_rows; }
    /// What was current stays so where it is still there.
    void setUses(std::vector<NamedUse> uses);

private:
    UsesRows *m_rows;
};
