// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FoundList.h"

#include "RecordTable.h"
#include "RecordTexts.h"

#include <algorithm>

FoundRows::FoundRows(const RecordFinder &finder, QObject *parent)
    : QAbstractTableModel(parent)
    , m_finder(finder)
{
    connect(&finder, &RecordFinder::valuesChanged, this, &FoundRows::refresh);
}

void FoundRows::reset()
{
    beginResetModel();
    m_hits = m_finder.hits();
    endResetModel();
}

void FoundRows::refresh()
{
    if (!m_hits.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int FoundRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_hits.size());
}

int FoundRows::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant FoundRows::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const auto &[type, record] = m_hits[size_t(index.row())];
    const Document &document = m_finder.document(type);
    if (role == Qt::DecorationRole && index.column() == RecordColumn)
        return recordIcon(record.kind);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    if (index.column() == RecordColumn)
        return recordPlace(m_finder.selection(type), record);
    if (index.column() == FileColumn)
        return document.fileName();
    const RecordField *field = m_finder.condition().fieldOf(document.values(), record);
    if (!field)
        return {};
    if (index.column() == FieldColumn)
        return field->title();
    const FieldValue value = document.values().value(*field, record.index);
    const QStringList names = field->names();
    const auto *number = std::get_if<double>(&value);
    if (number && *number >= 0 && *number < names.size())
        return names[int(*number)];
    const QString name = document.values().name(*field, record.index, document.namedMesh());
    if (name.isEmpty() || field->namesBones())
        return name.isEmpty() ? field->text(value) : name;
    return QStringLiteral("%1  %2").arg(field->text(value), name);
}

QVariant FoundRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    const QString titles[] = {tr("Record"), tr("Field"), tr("Value"), tr("File")};
    return titles[section];
}

FoundList::FoundList(const RecordFinder &finder, QWidget *parent)
    : RowList(new FoundRows(finder), {48, 22, 34}, parent)
    , m_finder(finder)
    , m_rows(static_cast<FoundRows *>(model()))
{
    setObjectName(QStringLiteral("listFound"));
    setAccessibleName(tr("Records found"));
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex &current) {
        if (current.isValid())
            m_current = m_finder.hits()[size_t(current.row())];
    });
}

void FoundList::refill()
{
    const int row = currentRow();
    const RecordFinder::Hit current = m_current;
    m_rows->reset();
    const auto &hits = m_finder.hits();
    if (row < 0 || hits.empty())
        return;
    const auto found = std::find_if(hits.begin(), hits.end(), [&current](const RecordFinder::Hit &each) {
        return each.type == current.type && each.record == current.record;
    });
    setCurrentRow(found == hits.end() ? std::min(row, int(hits.size()) - 1) : int(found - hits.begin()));
}

void FoundList::setCurrentRow(int row)
{
    setCurrentIndex(m_rows->index(row, 0));
}
