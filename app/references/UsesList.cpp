// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UsesList.h"

#include "Icons.h"
#include "RecordTable.h"
#include "RecordTexts.h"

#include <QDir>

#include <algorithm>
#include <numeric>
#include <utility>

void UsesRows::setUses(std::vector<NamedUse> uses)
{
    beginResetModel();
    m_uses = std::move(uses);
    m_rows.clear();
    for (size_t use = 0; use < m_uses.size(); ++use) {
        for (int place = 0; place < m_uses[use].named.placeCount; ++place)
            m_rows.push_back({int(use), place});
    }
    endResetModel();
}

int UsesRows::useCount() const
{
    return std::accumulate(m_uses.begin(), m_uses.end(), 0,
                           [](int sum, const NamedUse &use) { return sum + use.named.count; });
}

RecordRef UsesRows::placeAt(int row) const
{
    const NamedUse &use = useAt(row);
    return use.file->places[size_t(use.named.firstPlace + m_rows[size_t(row)].place)];
}

int UsesRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int UsesRows::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QString UsesRows::placeText(int row) const
{
    const NamedUse &use = useAt(row);
    const RecordRef place = placeAt(row);
    const QString text = place.kind == RecordKind::None
                             ? tr("Material %1").arg(use.file->materials.value(place.index[0]))
                             : recordPlace(place);
    const int more = use.named.count - use.named.placeCount;
    const bool isLast = m_rows[size_t(row)].place == use.named.placeCount - 1;
    return isLast && more > 0 ? tr("%1 and %2 more").arg(text, QString::number(more)) : text;
}

QVariant UsesRows::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const NamedUse &use = useAt(index.row());
    if (role == Qt::DecorationRole && index.column() == RecordColumn) {
        const RecordKind kind = placeAt(index.row()).kind;
        return kind == RecordKind::None ? namedIcon(QStringLiteral("surfaces")) : recordIcon(kind);
    }
    if (role == Qt::ToolTipRole)
        return index.column() == FileColumn ? QDir::toNativeSeparators(use.file->path)
                                            : data(index, Qt::DisplayRole);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case RecordColumn:
        return placeText(index.row());
    case FileColumn:
        return use.file->relative;
    case FolderColumn:
        return use.file->isMod ? tr("Mod") : tr("Game");
    default:
        return use.via;
    }
}

QVariant UsesRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    const QString titles[] = {tr("Record"), tr("File"), tr("Folder"), tr("By Material")};
    return titles[section];
}

UsesList::UsesList(QWidget *parent)
    : RowList(new UsesRows(nullptr), {44, 50, 10}, parent)
    , m_rows(static_cast<UsesRows *>(model()))
{
    setObjectName(QStringLiteral("listUses"));
    setAccessibleName(tr("Who names it"));
}

void UsesList::setUses(std::vector<NamedUse> uses)
{
    const int row = currentIndex().row();
    const QString path = row < 0 ? QString() : m_rows->useAt(row).file->path;
    const RecordRef place = row < 0 ? RecordRef() : m_rows->placeAt(row);
    m_rows->setUses(std::move(uses));
    for (int each = 0; row >= 0 && each < m_rows->rowCount(); ++each) {
        if (m_rows->useAt(each).file->path == path && m_rows->placeAt(each) == place)
            return setCurrentIndex(m_rows->index(each, 0));
    }
}
