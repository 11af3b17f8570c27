// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ReferenceTable.h"

#include <QHash>

#include <memory>

/// What the game's numbers are called, for all who name one: a number's name is that of the first row whose
/// id is its decimal text, in the order in which the table is shown.
///
/// Each table is the user's own, or the built-in one where there is none or it cannot be read, which the log
/// says. It is read when somebody first asks for it. Belongs to the main thread.
class ReferenceTables
{
public:
    /// The process's own.
    static ReferenceTables &shared();

    /// Lets all tables be read anew, in file order.
    void reload() { m_tables = {}; }
    const ReferenceTable &table(ReferenceKind kind) { return loaded(kind).rows; }
    /// Says in which order the rows of a table are shown: their numbers in the file, from the top.
    void setOrder(ReferenceKind kind, const std::vector<int> &rows);

    /// Null when no row has the number. A value counts without its fraction; one that is no number, or beyond
    /// the range of ints, has no row.
    const ReferenceRow *find(ReferenceKind kind, double value);
    /// The name without the blank before it; empty when there is none.
    QString name(ReferenceKind kind, double value);
    /// "10:  Name", or "10: N/A" when no row has the number.
    QString answer(ReferenceKind kind, double value);

private:
    struct Table
    {
        ReferenceTable rows;
        QHash<QString, int> rowOfId;
    };

    Table &loaded(ReferenceKind kind);

    std::array<std::unique_ptr<Table>, referenceKinds.size()> m_tables;
};
