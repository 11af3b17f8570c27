// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RecordFinder.h"
#include "RowList.h"

#include <QAbstractTableModel>

/// The records that a RecordFinder has found as rows. It keeps neither labels nor values: they are read when
/// they are shown, so nothing goes stale.
class FoundRows : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { RecordColumn, FieldColumn, ValueColumn, FileColumn, ColumnCount };

    /// The finder outlives the rows.
    explicit FoundRows(const RecordFinder &finder, QObject *parent = nullptr);

    /// Other records were found.
    void reset();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void refresh();

    const RecordFinder &m_finder;
    std::vector<RecordFinder::Hit> m_hits;
};

/// The list of them. What is current stays so while it is found, and so does its row when it is not any more.
class FoundList : public RowList
{
    Q_OBJECT

public:
    explicit FoundList(const RecordFinder &finder, QWidget *parent = nullptr);

    /// Lists what the finder has found now.
    void refill();
    /// -1 without one.
    int currentRow() const { return currentIndex().row(); }
    void setCurrentRow(int row);

private:
    const RecordFinder &m_finder;
    FoundRows *m_rows;
    RecordFinder::Hit m_current{}; ///< as it was, of no kind for none
};
