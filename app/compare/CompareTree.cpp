// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CompareTree.h"

#include "EmptyText.h"
#include "FieldWords.h"
#include "Icons.h"
#include "RecordTable.h"

#include <QHeaderView>
#include <QSet>

#include <algorithm>

namespace {
using Difference = RecordDifference::State;

bool isTrack(RecordKind kind)
{
    return kind == RecordKind::TranslationTrack || kind == RecordKind::RotationTrack;
}

/// Where it is, or would be, in the document.
RecordRef placeOf(const RecordDifference &difference)
{
    return difference.state == Difference::OnlyTheirs ? difference.theirs : difference.mine;
}

/// "Hot point 3", with the record's own name; the file's name for the model itself.
QString titleOf(const RecordDifference &difference, const Document &document)
{
    const RecordRef place = placeOf(difference);
    const RecordRow *row = recordRow(place.kind);
    if (!row || place.kind == document.rootKind())
        return document.fileName();
    QString title = QCoreApplication::translate("Records", row->noun);
    title.replace(0, 1, title.left(1).toUpper());
    title += QLatin1Char(' ') + QString::number(place.index[size_t(row->component)]);
    if (place.kind == RecordKind::AnimBlock)
        title = difference.name.section(QLatin1Char('('), 1).isEmpty()
                    ? title
                    : QStringLiteral("%1 (%2").arg(title, difference.name.section(QLatin1Char('('), 1));
    const QString name = difference.state == Difference::OnlyTheirs ? QString() : document.recordName(place);
    return name.isEmpty() ? title : QStringLiteral("%1: %2").arg(title, name);
}

QString distanceOf(const RecordDifference &track)
{
    const QString number = QString::number(track.distance, 'g', 4);
    return track.mine.kind == RecordKind::RotationTrack ? CompareTree::tr("up to %1\u00B0 apart").arg(number)
                                                        : CompareTree::tr("up to %1 apart").arg(number);
}

/// What a field of a record is called; of a track, the frame of a key.
QString fieldTitle(RecordKind kind, const QString &field)
{
    if (!isTrack(kind))
        return FieldWords::title(kind, field);
    const RecordKind key =
        kind == RecordKind::TranslationTrack ? RecordKind::TranslationKey : RecordKind::RotationKey;
    return QCoreApplication::translate("Records", recordRow(key)->label)
        .arg(field.section(QLatin1Char(' '), -1));
}
} // namespace

CompareItem *CompareTree::recordItem(const RecordDifference &each)
{
    QStringList texts{titleOf(each, *m_document), QString(), QString()};
    if (each.state == Difference::OnlyMine)
        texts = QStringList{texts.first(), CompareTree::tr("only here"), QString()};
    else if (each.state == Difference::OnlyTheirs)
        texts = QStringList{texts.first(), QString(), CompareTree::tr("only there")};
    else if (isTrack(each.mine.kind))
        texts[CompareItem::TheirsColumn] = distanceOf(each);
    QVector<FileComparison::Pick> picks;
    if (!each.isBound)
        picks += FileComparison::Pick{&each, {}};
    auto *item = new CompareItem(texts, picks, each.mine);
    item->setIcon(CompareItem::RecordColumn,
                  each.state == Difference::OnlyMine     ? namedIcon(QStringLiteral("remove"))
                  : each.state == Difference::OnlyTheirs ? namedIcon(QStringLiteral("add"))
                                                         : recordIcon(each.mine.kind));
    if (m_rows < MostAtOnce)
        fill(*item, each);
    else if (!each.fields.empty() || !each.children.empty())
        item->setUnfilled(&each);
    return item;
}

void CompareTree::fill(CompareItem &item, const RecordDifference &difference)
{
    QList<QTreeWidgetItem *> rows;
    for (const FieldDifference &field : difference.fields) {
        QVector<FileComparison::Pick> picks;
        if (!field.isBound && !difference.isBound)
            picks += FileComparison::Pick{&difference, field.field};
        const auto [mine, theirs] = FieldWords::values(difference.mine.kind, field);
        auto *row = new CompareItem({fieldTitle(difference.mine.kind, field.field), mine, theirs}, picks,
                                    difference.mine);
        for (const int column : {CompareItem::MineColumn, CompareItem::TheirsColumn})
            row->setToolTip(column, row->text(column));
        rows += row;
    }
    m_rows += rows.size();
    item.addChildren(rows + itemsOf(difference.children));
}

CompareTree::CompareTree(QWidget *parent)
    : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("treeCompare"));
    setAccessibleName(tr("Differences"));
    setColumnCount(CompareItem::ColumnCount);
    setHeaderLabels({tr("Record"), tr("Here"), tr("In the File")});
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setIconSize({16, 16});
    const int letter = fontMetrics().averageCharWidth();
    setColumnWidth(CompareItem::RecordColumn, 34 * letter);
    setColumnWidth(CompareItem::MineColumn, 40 * letter);
    connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem *item) {
        auto &opened = static_cast<CompareItem &>(*item);
        m_rows = 0;
        if (const RecordDifference *difference = opened.takeUnfilled())
            fill(opened, *difference);
    });
}

QList<QTreeWidgetItem *> CompareTree::itemsOf(const std::vector<RecordDifference> &differences)
{
    QList<QTreeWidgetItem *> items;
    // Those of one kind stand behind one another.
    for (auto first = differences.begin(); first != differences.end();) {
        const auto isSameKind = [kind = placeOf(*first).kind](const RecordDifference &each) {
            return placeOf(each).kind == kind;
        };
        const auto end = std::partition_point(first, differences.end(), isSameKind);
        const auto count = int(end - first);
        for (int i = 0; i < std::min(count, MostRows); ++i) {
            ++m_rows;
            items += recordItem(first[i]);
        }
        if (count > MostRows) {
            const FileComparison::Pick rest{&first[MostRows], {}, count - MostRows};
            items += new CompareItem({tr("and %1 more").arg(rest.count), QString(), QString()}, {rest}, {});
        }
        first = end;
    }
    return items;
}

void CompareTree::show(const FileComparison &comparison)
{
    // Rows are told apart by the texts that lead to them.
    const auto pathOf = [](const QTreeWidgetItem *item) {
        QString path;
        for (; item; item = item->parent())
            path += item->text(CompareItem::RecordColumn) + QLatin1Char('\n');
        return path;
    };
    QSet<QString> open;
    for (QTreeWidgetItemIterator item(this, QTreeWidgetItemIterator::HasChildren); *item; ++item) {
        if ((*item)->isExpanded())
            open.insert(pathOf(*item));
    }
    const QString current = pathOf(currentItem());
    const int currentRow =
        currentItem() && !currentItem()->parent() ? indexOfTopLevelItem(currentItem()) : -1;
    const bool isFirst = topLevelItemCount() == 0;
    clear();
    m_document = comparison.document();
    m_rows = 0;
    if (m_document)
        addTopLevelItems(itemsOf(comparison.differences()));
    QTreeWidgetItem *found = nullptr;
    for (QTreeWidgetItemIterator item(this); *item; ++item) {
        const QString path = pathOf(*item);
        // A few are easier to see than to open.
        if (open.contains(path) || (isFirst && topLevelItemCount() <= 20 && !(*item)->parent()))
            (*item)->setExpanded(true);
        if (!found && path == current)
            found = *item;
    }
    if (!found && currentRow >= 0)
        found = topLevelItem(std::min(currentRow, topLevelItemCount() - 1));
    if (found)
        setCurrentItem(found);
}

void CompareTree::setEmptyText(const QString &text)
{
    m_emptyText = text;
    setAccessibleDescription(text);
    viewport()->update();
}

QVector<FileComparison::Pick> CompareTree::selectedPicks() const
{
    QVector<FileComparison::Pick> picks;
    for (const QTreeWidgetItem *item : selectedItems()) {
        // What goes along with its owner is not taken by itself: the numbers within may be others by then.
        bool goesAlong = false;
        for (const QTreeWidgetItem *owner = item->parent(); owner; owner = owner->parent()) {
            const auto &whole = static_cast<const CompareItem *>(owner)->picks();
            goesAlong = goesAlong || (owner->isSelected() && !whole.isEmpty());
        }
        if (!goesAlong)
            picks += static_cast<const CompareItem *>(item)->picks();
    }
    return picks;
}

void CompareTree::paintEvent(QPaintEvent *event)
{
    QTreeWidget::paintEvent(event);
    if (topLevelItemCount() > 0)
        return;
    paintEmptyText(*viewport(), m_emptyText);
}
