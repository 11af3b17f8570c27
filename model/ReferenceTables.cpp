// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReferenceTables.h"

#include <limits>
#include <numeric>

namespace {
bool isIntValue(double value)
{
    constexpr double least = std::numeric_limits<int>::min();
    constexpr double most = std::numeric_limits<int>::max();
    return value > least - 1 && value < most + 1; // not so NaN
}
} // namespace

ReferenceTables &ReferenceTables::shared()
{
    static ReferenceTables tables;
    return tables;
}

ReferenceTables::Table &ReferenceTables::loaded(ReferenceKind kind)
{
    std::unique_ptr<Table> &table = m_tables[size_t(kind)];
    if (!table) {
        table = std::make_unique<Table>();
        const QString path = referencePath(kind);
        const QString builtIn = builtInReferencePath(kind);
        // What fails is named in the log, and leaves the rows as they are.
        if (table->rows.read(path) && path != builtIn && table->rows.read(builtIn))
            table->rows.rows.clear();
        std::vector<int> inFileOrder(table->rows.rows.size());
        std::iota(inFileOrder.begin(), inFileOrder.end(), 0);
        setOrder(kind, inFileOrder);
    }
    return *table;
}

void ReferenceTables::setOrder(ReferenceKind kind, const std::vector<int> &rows)
{
    Table &table = loaded(kind);
    table.rowOfId.clear();
    for (const int row : rows) {
        const QString &id = table.rows.rows[size_t(row)].id;
        if (!table.rowOfId.contains(id))
            table.rowOfId.insert(id, row);
    }
}

const ReferenceRow *ReferenceTables::find(ReferenceKind kind, double value)
{
    if (!isIntValue(value))
        return nullptr;
    const Table &table = loaded(kind);
    const auto row = table.rowOfId.constFind(QString::number(int(value)));
    return row == table.rowOfId.constEnd() ? nullptr : &table.rows.rows[size_t(*row)];
}

QString ReferenceTables::name(ReferenceKind kind, double value)
{
    const ReferenceRow *row = find(kind, value);
    return row ? row->name.trimmed() : QString();
}

QString ReferenceTables::answer(ReferenceKind kind, double value)
{
    if (const ReferenceRow *row = find(kind, value))
        return row->id + QLatin1String(": ") + row->name;
    return (isIntValue(value) ? QString::number(int(value)) : QString::number(value)) +
           QLatin1String(": N/A");
}
