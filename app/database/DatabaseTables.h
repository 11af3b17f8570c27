// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTableWidgetItem>

class QTableWidget;

/// The id cell of a row: centred, and ordered by the id's number, which it carries under Qt::UserRole.
class DBWidgetItem : public QTableWidgetItem
{
public:
    DBWidgetItem(const QString &id, int number);

    bool operator<(const QTableWidgetItem &other) const override;
};

/// Appends the rows of a reference table's file to a two-column table, id and name. Returns true on failure,
/// after an error in the log and with the table as it was.
bool loadDatabase(const QString &path, QTableWidget *table);

/// What a table says of an id: "10:  Name", or "10: N/A" when no row has that text as its id. Of several such
/// rows the topmost counts, in the order in which they are shown at the moment.
QString lookupDatabaseName(const QTableWidget *table, const QString &id);
/// The same for a value, which counts without its fraction. One that is no number or beyond the range of
/// ints has no row.
QString lookupDatabaseName(const QTableWidget *table, double value);
