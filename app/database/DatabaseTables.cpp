// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DatabaseTables.h"

#include "ReferenceTable.h"

#include <QTableWidget>

DBWidgetItem::DBWidgetItem(const QString &id, int number, int row)
    : QTableWidgetItem(id, QTableWidgetItem::UserType)
{
    setTextAlignment(Qt::AlignCenter);
    setData(Qt::UserRole, number);
    setData(RowRole, row);
}

bool DBWidgetItem::operator<(const QTableWidgetItem &other) const
{
    return data(Qt::UserRole).toInt() < other.data(Qt::UserRole).toInt();
}

void loadDatabase(const ReferenceTable &rows, QTableWidget *table)
{
    // A sorting table would move a row between its two cells.
    const bool sorts = table->isSortingEnabled();
    table->setSortingEnabled(false);
    table->setRowCount(0);
    table->setRowCount(int(rows.rows.size()));
    int row = 0;
    for (const ReferenceRow &each : rows.rows) {
        table->setItem(row, 0, new DBWidgetItem(each.id, each.number, row));
        table->setItem(row, 1, new QTableWidgetItem(each.name));
        ++row;
    }
    table->setSortingEnabled(sorts);
}

std::vector<int> shownOrder(const QTableWidget *table)
{
    std::vector<int> order;
    order.reserve(size_t(table->rowCount()));
    for (int row = 0; row < table->rowCount(); ++row)
        order.push_back(table->item(row, 0)->data(DBWidgetItem::RowRole).toInt());
    return order;
}
