// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KVTreeView.h"

#include "EmptyText.h"
#include "NotedRows.h"
#include "RecordFilling.h"
#include "RecordItem.h"
#include "RecordOrder.h"
#include "RecordTable.h"
#include "RecordTexts.h"
#include "Shortcuts.h"
#include "TypingField.h"

#include <QAction>
#include <QItemSelection>
#include <QSignalBlocker>

#include <algorithm>
#include <functional>
#include <iterator>

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
    setItemDelegate(new NotedRows(this));
    connect(this, &QTreeWidget::itemSelectionChanged, this, &KVTreeView::notifyCurrent);
    connect(this, &QTreeWidget::currentItemChanged, this, &KVTreeView::notifyCurrent);
    connect(this, &QTreeWidget::itemExpanded, this,
            [this](QTreeWidgetItem *item) { complete(static_cast<RecordItem *>(item)); });
}

void KVTreeView::setDocument(Document *document)
{
    m_document = document;
    m_notes = new RecordNotes(*document, this);
    setAccessibleName(document->kind().label);
    connect(document, &Document::replaced, this, &KVTreeView::rebuild);
    connect(document, &Document::recordsChanged, this, &KVTreeView::onRecordsChanged);
    connect(document, &Document::structuresChanged, this, &KVTreeView::onStructuresChanged);
}

void KVTreeView::rebuild()
{
    m_expandedUnfiltered.clear();
    m_letThrough.clear();
    build();
    notifyCurrent();
}

void KVTreeView::build()
{
    const QSignalBlocker blocker(this);
    setUpdatesEnabled(false);
    clear();
    // Names in it may stand for other records by now.
    m_filter = RecordFilter(m_filter.text(), m_document->namedMesh());
    if (m_document->isOpen()) {
        m_hideData = hidesData(*m_document);
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

bool KVTreeView::hidesData(const Document &document)
{
    return document.rootKind() == RecordKind::AnimFile ? Settings::HideAnimData.value()
                                                       : Settings::HideMeshData.value();
}

void KVTreeView::updateHiding()
{
    if (!m_document || !m_document->isOpen() || hidesData(*m_document) == m_hideData)
        return;
    const QVector<RecordRef> expanded = expandedBelow();
    refill(selectedRefs(), currentRecord());
    expand(expanded);
}

RecordFilling KVTreeView::filling() const
{
    return {*m_document, m_filter, m_letThrough, m_hideData};
}

bool KVTreeView::isShown(const RecordRef &record) const
{
    const RecordItem *item = findItem(record);
    return item && item->record() == record;
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
            !m_filter.matches(*m_document, record))
            (*it)->setExpanded(true);
    }
}

void KVTreeView::setFilter(const QString &text)
{
    if (text == m_filter.text() || !m_document)
        return;
    const RecordRef current = currentRecord();
    const QVector<RecordRef> selected = selectedRefs();
    if (m_filter.isEmpty())
        m_expandedUnfiltered = expandedBelow();
    m_filter = RecordFilter(text);
    m_letThrough.clear();
    refill(selected, current);
}

void KVTreeView::refill(const QVector<RecordRef> &selected, const RecordRef &current)
{
    build();
    if (m_filter.isEmpty())
        expand(m_expandedUnfiltered);
    if (topLevelItemCount() == 0)
        return;
    QVector<RecordRef> shown;
    std::copy_if(selected.begin(), selected.end(), std::back_inserter(shown),
                 [this](const RecordRef &record) { return isShown(record); });
    if (shown.isEmpty())
        shown = {current};
    setSelected(shown, shown.contains(current) ? current : shown.first());
}

void KVTreeView::letThrough(const QVector<RecordRef> &records)
{
    if (m_filter.isEmpty())
        return;
    QVector<RecordRef> hidden;
    std::copy_if(records.begin(), records.end(), std::back_inserter(hidden),
                 [this](const RecordRef &record) { return !isShown(record); });
    if (hidden.isEmpty())
        return;
    for (const RecordRef &record : qAsConst(hidden))
        m_letThrough.insert(record);
    const QVector<RecordRef> expanded = expandedBelow();
    build();
    expand(expanded);
    if (isShown(hidden.last()))
        emit told(tr("The filter does not match %1, which is shown all the same: it was changed.")
                      .arg(label(hidden.last())));
}

QString KVTreeView::filterExample() const
{
    return m_document && m_document->rootKind() == RecordKind::AnimFile ? tr("frame 10-20 or sound = 12")
                                                                        : tr("left arm or damage scale > 1");
}

void KVTreeView::selectFirstMatch()
{
    if (m_filter.isEmpty())
        return;
    for (QTreeWidgetItemIterator it(this); *it; ++it) {
        const RecordRef record = static_cast<RecordItem *>(*it)->record();
        if (*it != topLevelItem(0) && m_filter.matches(*m_document, record))
            return setCurrentItem(*it, 0, QItemSelectionModel::ClearAndSelect);
    }
}

RecordRef KVTreeView::currentRecord() const
{
    const auto *item = static_cast<const RecordItem *>(currentItem());
    if (!item || item->isSelected())
        return item ? item->record() : RecordRef();
    // What was taken out of the selection has the keys still, but nothing is done to it.
    const QVector<RecordRef> selected = selectedRefs();
    const RecordKind kind = item->record().kind;
    const auto *alike = std::find_if(selected.begin(), selected.end(),
                                     [kind](const RecordRef &each) { return each.kind == kind; });
    if (alike != selected.end())
        return *alike;
    return selected.isEmpty() ? RecordRef() : selected.first();
}

QVector<RecordRef> KVTreeView::selectedRefs() const
{
    QVector<RecordRef> refs;
    for (const QTreeWidgetItem *item : selectedItems())
        refs.append(static_cast<const RecordItem *>(item)->record());
    sortInOrder(refs, isBefore);
    return refs;
}

QVector<RecordIndex> KVTreeView::selectedRecords(RecordKind kind) const
{
    QVector<RecordIndex> records;
    for (const QTreeWidgetItem *item : selectedItems()) {
        const RecordRef record = static_cast<const RecordItem *>(item)->record();
        if (record.kind == kind)
            records.append(record.index);
    }
    sortInOrder(records, std::less<>());
    return records;
}

RecordItem *KVTreeView::findItem(const RecordRef &record) const
{
    return static_cast<RecordItem *>(itemFromIndex(findIndex(record)));
}

void KVTreeView::complete(RecordItem *item) const
{
    if (item->isIncomplete())
        filling().fill(item, item->record());
}

QModelIndex KVTreeView::findIndex(const RecordRef &record) const
{
    // By rows: asked for the row of an item, the tree looks through all of its siblings.
    QModelIndex found;
    for (const int position : indexPath(record)) {
        auto *item = static_cast<RecordItem *>(itemFromIndex(found));
        if (item)
            complete(item);
        const QModelIndex next = model()->index(item ? item->rowAt(position) : position, 0, found);
        if (!next.isValid())
            break;
        found = next;
    }
    return found;
}

void KVTreeView::selectRecords(const QVector<RecordRef> &records, const RecordRef &current)
{
    // For what is selected still.
    finishTyping();
    setSelected(records, current);
}

void KVTreeView::setSelected(const QVector<RecordRef> &records, const RecordRef &current)
{
    // Neighbours become one range: the selection model is slow with many.
    QItemSelection selection;
    for (const RecordRef &record : records) {
        const QModelIndex index = findIndex(record);
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
        selectionModel()->setCurrentIndex(findIndex(current), QItemSelectionModel::NoUpdate);
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
    QVector<RecordRef> sorted = records;
    sortInOrder(sorted, isBefore);
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    const QVector<RecordRef> selected = selectedRefs();
    if (sorted.contains(currentRecord()) &&
        std::includes(selected.begin(), selected.end(), sorted.begin(), sorted.end(), isBefore))
        return notifyCurrent();
    // A jump over several steps changes records of several kinds: a page shows those of one.
    sorted.erase(
        std::remove_if(sorted.begin(), sorted.end(),
                       [&records](const RecordRef &record) { return record.kind != records.last().kind; }),
        sorted.end());
    letThrough(sorted);
    setSelected(sorted, records.last());
}

void KVTreeView::onStructuresChanged(const QVector<StructureChange> &changes)
{
    if (changes.last().select.kind == RecordKind::None) {
        if (m_filter.isEmpty())
            m_expandedUnfiltered = expandedBelow();
        return refill(selectedRefs(), currentRecord());
    }
    if (!m_filter.isEmpty()) {
        QVector<RecordRef> through(m_letThrough.begin(), m_letThrough.end());
        for (const StructureChange &change : changes) {
            if (change.added == 0)
                continue;
            shift(m_expandedUnfiltered, change);
            shift(through, change);
        }
        m_letThrough = QSet<RecordRef>(through.begin(), through.end());
        const RecordRef select = changes.last().select;
        build();
        letThrough({select});
        return setSelected({select}, select);
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
    setSelected({changes.last().select}, changes.last().select);
}

void KVTreeView::rebuildBelow(const RecordRef &owner, const QVector<StructureChange> &changes)
{
    RecordItem *item = findItem(owner);
    if (!item || item->record() != owner)
        return;
    const QSignalBlocker blocker(this);
    QVector<RecordRef> expanded = item->expandedBelow();
    for (const StructureChange &change : changes) {
        if (change.added != 0)
            shift(expanded, change);
    }
    qDeleteAll(item->takeChildren());
    filling().fill(item, owner);
    expand(expanded);
}

QVector<RecordRef> KVTreeView::expandedBelow() const
{
    const auto *root = static_cast<const RecordItem *>(topLevelItem(0));
    return root ? root->expandedBelow() : QVector<RecordRef>();
}

void KVTreeView::expand(const QVector<RecordRef> &records)
{
    for (const RecordRef &record : records) {
        RecordItem *item = findItem(record);
        if (item && item->record() == record) {
            complete(item); // also where no signal tells
            item->setExpanded(true);
        }
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
    paintEmptyText(*viewport(), text);
}

void KVTreeView::notifyCurrent()
{
    emit currentRecordChanged(currentRecord());
}
