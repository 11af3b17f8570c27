// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DatabaseTables.h"

#include "ReferenceTable.h"

#include <QTableWidget>

#include <limits>

namespace {
QString notFound(const QString &id)
{
    return id + QStringLiteral(": N/A");
}
} // namespace

DBWidgetItem::DBWidgetItem(const QString &id, int number)
    : QTableWidgetItem(id, QTableWidgetItem::UserType)
{
    setTextAlignment(Qt::AlignCenter);
    setData(Qt::UserRole, number);
}

bool DBWidgetItem::operator<(const QTableWidgetItem &other) const
{
    return data(Qt::UserRole).toInt() < other.data(Qt::UserRole).toInt();
}

bool loadDatabase(const QString &path, QTableWidget *table)
{
    ReferenceTable loaded;
    if (loaded.read(path))
        return true;
    // A sorting table would move a row between its two cells.
    const bool sorts = table->isSortingEnabled();
    table->setSortingEnabled(false);
    int row = table->rowCount();
    table->setRowCount(row + int(loaded.rows.size()));
    for (const ReferenceRow &each : loaded.rows) {
        table->setItem(row, 0, new DBWidgetItem(each.id, each.number));
        table->setItem(row, 1, new QTableWidgetItem(each.name));
        ++row;
    }
    table->setSortingEnabled(sorts);
    return false;
}

QString lookupDatabaseName(const QTableWidget *table, const QString &id)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->item(row, 0)->text() == id)
            return id + QLatin1Char(':') + QLatin1Char(' ') + table->item(row, 1)->text();
    }
    return notFound(id);
}

QString lookupDatabaseName(const QTableWidget *table, double value)
{
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double most = std::numeric_limits<int>::max();
    // Not a chain of || that NaN would pass.
    if (!(value > least - 1 && value < most + 1))
        return notFound(QString::number(value));
    return lookupDatabaseName(table, QString::number(int(value)));
}
