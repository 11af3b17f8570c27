// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordTableModel.h"

#include <algorithm>

void RecordTableModel::show(Document *document, const RecordGroup &group)
{
    beginResetModel();
    m_document = document;
    m_group = group;
    m_fields = RecordFields::of(group.kind);
    endResetModel();
}

void RecordTableModel::refresh()
{
    if (rowCount() > 0 && columnCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int RecordTableModel::rowOf(const RecordIndex &record) const
{
    const auto &records = m_group.records; // ascending
    const auto *found = std::lower_bound(records.begin(), records.end(), record);
    return found != records.end() && *found == record ? int(found - records.begin()) : -1;
}

FieldValue RecordTableModel::value(const QModelIndex &index) const
{
    return m_document ? m_document->values().value(field(index.column()), record(index.row())) : FieldValue();
}

int RecordTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() || m_fields.isEmpty() ? 0 : m_group.records.size();
}

int RecordTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_fields.size();
}

QVariant RecordTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const RecordField &shown = field(index.column());
    const bool isText = shown.type() == RecordField::Type::Text;
    switch (role) {
    case Qt::DisplayRole: {
        const FieldValue held = value(index);
        const QStringList names = shown.names();
        const auto *number = std::get_if<double>(&held);
        return number && *number >= 0 && *number < names.size() ? names[int(*number)] : shown.text(held);
    }
    case Qt::EditRole:
        return shown.text(value(index));
    case Qt::ToolTipRole:
        return m_document->values().name(shown, record(index.row()), m_document->namedMesh());
    case SortRole: {
        const FieldValue held = value(index);
        if (const auto *number = std::get_if<double>(&held))
            return *number;
        return shown.text(held);
    }
    case Qt::TextAlignmentRole:
        return int((isText || !shown.names().isEmpty() ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant RecordTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    return orientation == Qt::Horizontal ? field(section).title()
                                         : numberText(record(section), m_group.levels);
}

Qt::ItemFlags RecordTableModel::flags(const QModelIndex &) const
{
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
}
