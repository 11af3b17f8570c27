// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTableWidgetItem>

#include <vector>

class QTableWidget;
struct ReferenceTable;

/// The id cell of a row: centred, and ordered by the id's number, which it carries under Qt::UserRole.
class DBWidgetItem : public QTableWidgetItem
{
public:
    /// The number of the row in its reference table.
    static constexpr int RowRole = Qt::UserRole + 1;

    DBWidgetItem(const QString &id, int number, int row);

    bool operator<(const QTableWidgetItem &other) const override;
};

/// Puts the rows of a reference table into a two-column table, id and name, in the place of those there.
void loadDatabase(const ReferenceTable &rows, QTableWidget *table);

/// The rows of the reference table in the order in which they are shown.
std::vector<int> shownOrder(const QTableWidget *table);
