// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KVTreeView.h"

#include "RecordFilling.h"
#include "RecordItem.h"
#include "RecordTable.h"
#include "RecordTexts.h"
#include "Shortcuts.h"

#include <QAction>
#include <QItemSelection>
#include <QPainter>
#include <QSet>
#include <QSignalBlocker>

#include <algorithm>
#include <tuple>

namespace {
QSet<RecordRef> refsOf(const QList<QTreeWidgetItem *> &items)
{
    QSet<RecordRef> refs;
    refs.reserve(items.size());
    for (const QTreeWidgetItem *item : items)
        refs.insert(static_cast<const RecordItem *>(item)->record());
    return refs;
}

/// Renumbers the records that stand in the list, or below a record of the list, that a change is about.
void shift(QVector<RecordRef> &records, const StructureChange &change)
{
    const auto component = size_t(recordRow(change.record.kind)->component);
    const RecordIndex &at = change.record.index;
    const auto isInList = [&](const RecordRef &record) {
        return std::equal(at.begin(), at.begin() + component, record.index.begin()) &&
               record.index[component] >= at[component];
    };
    const auto isTakenOut = [&](const RecordRef &record) {
        return change.added < 0 && isInList(record) && record.index[component] == at[component];
    };
    records.erase(std::remove_if(records.begin(), records.end(), isTakenOut), records.end());
    for (RecordRef &record : records) {
        if (isInList(record))
            record.index[component] += change.added;
    }
}
} // namespace

KVTreeView::KVTreeView(QWidget *parent)
    : QTreeWidget(parent)
{
    setColumnCount(1);
    setHeaderHidden(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    // Without it, making one of half a million items current measures them all.
    setUniformRowHeights(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setIconSize({16, 16});
    connect(this, &QTreeWidget::itemSelectionChanged, this, &KVTreeView::notifyCurrent);
    connect(this, &QTreeWidget::currentItemChanged, this, &KVTreeView::notifyCurrent);
}

void KVTreeView::setDocument(Document *document)
{
    m_document = document;
    setAccessibleName(document->kind().label);
    connect(document, &Document::replaced, this, &KVTreeView::rebuild);
    connect(document, &Document::recordsChanged, this, &KVTreeView::onRecordsChanged);
    connect(document, &Document::structuresChanged, this, &KVTreeView::onStructuresChanged);
}

void KVTreeView::rebuild()
{
    m_expandedUnfiltered.clear();
    build();
    notifyCurrent();
}

void KVTreeView::build()
{
    const QSignalBlocker blocker(this);
    setUpdatesEnabled(false);
    clear();
    if (m_document->isOpen()) {
        m_hideData = m_document->rootKind() == RecordKind::AnimFile ? Settings::HideAnimData.value()
                                                                    : Settings::HideMeshData.value();
        auto *root = new RecordItem(m_document->rootKind());
        // First into the tree, then filled: a list then finds its way into the view once, not twice.
        addTopLevelItem(root);
        if (m_filter.isEmpty())
            filling().fill(root, root->record());
        else
            filling().fillMatching(root, root->record());
        root->setExpanded(true);
        expandToMatches();
        // Whatever modifier keys are down.
        setCurrentItem(root, 0, QItemSelectionModel::ClearAndSelect);
    }
    setUpdatesEnabled(true);
}

RecordFilling KVTreeView::filling() const
{
    return {*m_document, m_filter, m_hideData};
}

QString KVTreeView::label(const RecordRef &record) const
{
    return m_document ? recordLabel(*m_document, record) : QString();
}

void KVTreeView::expandToMatches()
{
    if (m_filter.isEmpty())
        return;
    for (QTreeWidgetItemIterator it(this, QTreeWidgetItemIterator::HasChildren); *it; ++it) {
        const RecordRef record = static_cast<RecordItem *>(*it)->record();
        if (recordRow(record.kind)->position != RecordRow::FromIndex ||
            !m_filter.matches(searchText(*m_document, record)))
            (*it)->setExpanded(true);
    }
}

void KVTreeView::setFilter(const QString &text)
{
    if (text == m_filter.text() || !m_document)
        return;
    const RecordRef current = currentRecord();
    if (m_filter.isEmpty())
        m_expandedUnfiltered = expandedBelow(topLevelItem(0));
    m_filter = RecordFilter(text);
    refill(current);
}

void KVTreeView::refill(const RecordRef &current)
{
    build();
    if (m_filter.isEmpty())
        expand(m_expandedUnfiltered);
    if (topLevelItemCount() > 0)
        selectRecords({current}, current);
}

QString KVTreeView::filterExample() const
{
    return m_document && m_document->rootKind() == RecordKind::AnimFile ? tr("frame 10-20 or event 30")
                                                                        : tr("vertex 100-120 or left arm");
}

void KVTreeView::selectFirstMatch()
{
    if (m_filter.isEmpty())
        return;
    for (QTreeWidgetItemIterator it(this); *it; ++it) {
        const RecordRef record = static_cast<RecordItem *>(*it)->record();
        if (*it != topLevelItem(0) && m_filter.matches(searchText(*m_document, record))) {
            setCurrentItem(*it, 0, QItemSelectionModel::ClearAndSelect);
            return;
        }
    }
}

RecordRef KVTreeView::currentRecord() const
{
    const auto *item = static_cast<const RecordItem *>(currentItem());
    return item ? item->record() : RecordRef();
}

QVector<RecordIndex> KVTreeView::selectedRecords(RecordKind kind) const
{
    QVector<RecordIndex> records;
    for (const QTreeWidgetItem *item : selectedItems()) {
        const RecordRef record = static_cast<const RecordItem *>(item)->record();
        if (record.kind == kind)
            records.append(record.index);
    }
    std::sort(records.begin(), records.end());
    return records;
}

RecordItem *KVTreeView::findItem(const RecordRef &record) const
{
    QTreeWidgetItem *item = nullptr;
    for (const int position : indexPath(record)) {
        QTreeWidgetItem *next = item ? childAt(item, position) : topLevelItem(position);
        if (!next)
            break;
        item = next;
    }
    return static_cast<RecordItem *>(item);
}

RecordItem *KVTreeView::childAt(QTreeWidgetItem *item, int position)
{
    auto *child = static_cast<RecordItem *>(item->child(position));
    if (child && child->position() == position)
        return child;
    // A filter left some out.
    int begin = 0;
    int end = item->childCount();
    while (begin < end) {
        const int middle = begin + (end - begin) / 2;
        child = static_cast<RecordItem *>(item->child(middle));
        if (child->position() == position)
            return child;
        if (child->position() < position)
            begin = middle + 1;
        else
            end = middle;
    }
    return nullptr;
}

void KVTreeView::selectRecords(const QVector<RecordRef> &records, const RecordRef &current)
{
    // Neighbours become one range: the selection model is slow with many.
    QItemSelection selection;
    for (const RecordRef &record : records) {
        const QModelIndex index = indexFromItem(findItem(record));
        if (!index.isValid())
            continue;
        if (!selection.isEmpty() && selection.last().parent() == index.parent() &&
            selection.last().bottom() + 1 == index.row())
            selection.last() = QItemSelectionRange(selection.last().topLeft(), index);
        else if (selection.isEmpty() || !selection.last().contains(index))
            selection.append(QItemSelectionRange(index));
    }
    {
        const QSignalBlocker blocker(this);
        selectionModel()->setCurrentIndex(indexFromItem(findItem(current)), QItemSelectionModel::NoUpdate);
        selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    }
    if (currentItem())
        scrollToItem(currentItem());
    notifyCurrent();
}

void KVTreeView::onRecordsChanged(const QVector<RecordRef> &records)
{
    // Labels are made when painted.
    viewport()->update();

    // An edit of what is selected keeps the selection; anything else is brought into view.
    const QSet<RecordRef> selected = refsOf(selectedItems());
    const auto isSelected = [&selected](const RecordRef &record) { return selected.contains(record); };
    if (records.contains(currentRecord()) && std::all_of(records.begin(), records.end(), isSelected)) {
        notifyCurrent();
        return;
    }
    QVector<RecordRef> sorted = records;
    std::sort(sorted.begin(), sorted.end(), [](const RecordRef &a, const RecordRef &b) {
        return std::tie(a.kind, a.index) < std::tie(b.kind, b.index);
    });
    selectRecords(sorted, records.last());
}

void KVTreeView::onStructuresChanged(const QVector<StructureChange> &changes)
{
    if (!m_filter.isEmpty()) {
        for (const StructureChange &change : changes) {
            if (change.added != 0)
                shift(m_expandedUnfiltered, change);
        }
        refill(changes.last().select);
        return;
    }
    // Only what stands below the owners of the changed lists is made anew.
    QVector<RecordRef> owners;
    for (const StructureChange &change : changes) {
        RecordRef owner = change.record;
        if (change.added != 0) {
            const RecordRow *row = recordRow(owner.kind);
            owner.kind = row->parent;
            owner.index[size_t(row->component)] = 0;
        }
        if (!owners.contains(owner))
            owners.append(owner);
    }
    setUpdatesEnabled(false);
    for (const RecordRef &owner : qAsConst(owners))
        rebuildBelow(owner, changes);
    setUpdatesEnabled(true);
    selectRecords({changes.last().select}, changes.last().select);
}

void KVTreeView::rebuildBelow(const RecordRef &owner, const QVector<StructureChange> &changes)
{
    RecordItem *item = findItem(owner);
    if (!item || item->record() != owner)
        return;
    const QSignalBlocker blocker(this);
    QVector<RecordRef> expanded = expandedBelow(item);
    for (const StructureChange &change : changes) {
        if (change.added != 0)
            shift(expanded, change);
    }
    qDeleteAll(item->takeChildren());
    filling().fill(item, owner);
    expand(expanded);
}

QVector<RecordRef> KVTreeView::expandedBelow(QTreeWidgetItem *item)
{
    QVector<RecordRef> expanded;
    if (!item)
        return expanded;
    for (QTreeWidgetItemIterator it(item, QTreeWidgetItemIterator::HasChildren); *it; ++it) {
        // The iterator goes on behind the last child.
        const QTreeWidgetItem *ancestor = *it;
        while (ancestor && ancestor != item)
            ancestor = ancestor->parent();
        if (!ancestor)
            break;
        if (*it != item && (*it)->isExpanded())
            expanded.append(static_cast<RecordItem *>(*it)->record());
    }
    return expanded;
}

void KVTreeView::expand(const QVector<RecordRef> &records)
{
    for (const RecordRef &record : records) {
        RecordItem *item = findItem(record);
        if (item && item->record() == record)
            item->setExpanded(true);
    }
}

void KVTreeView::paintEvent(QPaintEvent *event)
{
    QTreeWidget::paintEvent(event);
    QString text;
    const QString keys = m_openAction ? keysText(m_openAction->shortcuts()) : QString();
    if (topLevelItemCount() == 0)
        text = keys.isEmpty() ? tr("No file is open. Choose one in the folder.")
                              : tr("No file is open. Choose one in the folder, or press %1.").arg(keys);
    else if (!m_filter.isEmpty() && topLevelItem(0)->childCount() == 0)
        text = tr("Nothing matches the filter.");
    else
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, text);
}

void KVTreeView::notifyCurrent()
{
    emit currentRecordChanged(currentRecord());
}
