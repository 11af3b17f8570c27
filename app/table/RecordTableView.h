// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RecordTableModel.h"

#include <QTableView>

class QSortFilterProxyModel;

/// A table of records as spreadsheets have them: what is typed goes to all selected cells, each by its own
/// number, as one undo step; what is copied is the selection as it is shown.
class RecordTableView : public QTableView
{
    Q_OBJECT

public:
    explicit RecordTableView(QWidget *parent = nullptr);

    RecordTableModel &records() { return *m_records; }
    void show(Document *document, const RecordGroup &group);

    /// Gives all selected cells what the text says or calculates for each. Gives the reason why nothing was
    /// changed; empty when it was.
    [[nodiscard]] QString enter(const QString &text);
    void copy() const;
    /// From the first of the selected cells on; one value goes to all of them. Nothing is changed when
    /// something does not fit.
    void paste();
    /// As it is shown, with the records' numbers before and the fields' ids above them.
    QVector<QStringList> contents() const;
    /// The rows as the file has them.
    void resetOrder();
    /// The record of the current cell; none without one.
    RecordRef currentRecord() const;

    /// Columns that are not shown, by id. They are stored for each kind of record.
    void setColumnShown(int column, bool shown);

signals:
    /// Something for the user: why an edit was refused.
    void told(const QString &text);

private:
    QModelIndexList selectedCells() const;
    QString apply(const QVector<QPair<QModelIndex, QString>> &cells, const QString &stepText);
    QString place(const QModelIndex &cell) const;
    QVector<int> shownColumns() const;
    void showHeaderMenu(const QPoint &position);

    RecordTableModel *m_records;
    QSortFilterProxyModel *m_order;
};
