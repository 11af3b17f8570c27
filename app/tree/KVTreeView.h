// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "RecordFilter.h"
#include "RecordNotes.h"
#include "RecordSelection.h"
#include "RecordTips.h"

#include <QSet>
#include <QTreeWidget>

class RecordFilling;
class RecordItem;

/// The structure tree of one document: its records as RecordItems, several of which may be selected.
class KVTreeView : public QTreeWidget, public RecordSelection
{
    Q_OBJECT

public:
    explicit KVTreeView(QWidget *parent = nullptr);

    /// The document to show; it outlives the tree.
    void setDocument(Document *document);

    /// The action that opens a file: an empty tree tells its keys.
    void setOpenAction(const QAction *action) { m_openAction = action; }

    /// Builds the items anew and makes the root current. Mesh data is left out while it is hidden.
    void rebuild();

    /// The record that is worked on: the current one or, where that was taken out of the selection, one that
    /// is selected. None while nothing is.
    RecordRef currentRecord() const override;
    QVector<RecordIndex> selectedRecords(RecordKind kind) const override;
    QVector<RecordRef> selectedRefs() const override;
    QString label(const RecordRef &record) const override;
    QString name(const RecordRef &record) const override
    {
        return m_document ? m_document->recordName(record) : QString();
    }
    QString note(const RecordRef &record) const override
    {
        return m_notes ? m_notes->text(record) : QString();
    }
    QString toolTip(const RecordRef &record) const override
    {
        return m_document ? recordToolTip(*m_document, record) : QString();
    }

    /// The item of a record, or of the deepest of its owners that has one; null in an empty tree.
    RecordItem *findItem(const RecordRef &record) const;
    /// Whether the record has an item; filters and options leave some out.
    bool isShown(const RecordRef &record) const;
    /// Makes what belongs below an item, where a long list has left that for later. Whatever is opened, or
    /// looked for, is made by itself.
    void complete(RecordItem *item) const;
    /// Selects just these records and makes `current` the current one. What is being typed is stored first.
    void selectRecords(const QVector<RecordRef> &records, const RecordRef &current);

    /// Shows only the records that match, with what stands above and below them; an empty text shows all.
    /// What is selected stays so where it is shown. A record that an edit is to show is let through until the
    /// filter changes.
    void setFilter(const QString &text);
    bool isFiltered() const { return !m_filter.isEmpty(); }
    /// A text that would make a useful filter of this document.
    QString filterExample() const;
    /// Makes the first record that matches current; without a filter nothing happens.
    void selectFirstMatch();

    /// Follows the settings that hide mesh and animation data.
    void updateHiding();

signals:
    /// Another record is current, or the current one was changed or joined by others: show its page.
    void currentRecordChanged(const RecordRef &record);
    /// Something for the status bar.
    void told(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    RecordFilling filling() const;
    void build();
    static bool hidesData(const Document &document);
    QModelIndex findIndex(const RecordRef &record) const; ///< of findItem()
    /// Builds the items anew, with these selected as far as they are shown.
    void refill(const QVector<RecordRef> &selected, const RecordRef &current);
    void setSelected(const QVector<RecordRef> &records, const RecordRef &current);
    /// Shows records that the filter hides.
    void letThrough(const QVector<RecordRef> &records);
    void expandToMatches();
    QVector<RecordRef> expandedBelow() const;
    void expand(const QVector<RecordRef> &records);
    void onRecordsChanged(const QVector<RecordRef> &records);
    void onStructuresChanged(const QVector<StructureChange> &changes);
    void rebuildBelow(const RecordRef &owner, const QVector<StructureChange> &changes);
    void notifyCurrent();

    Document *m_document = nullptr;
    const RecordNotes *m_notes = nullptr;
    const QAction *m_openAction = nullptr;
    bool m_hideData = true; ///< as it was when the tree was built
    RecordFilter m_filter;
    QSet<RecordRef> m_letThrough;            ///< shown though the filter does not match them
    QVector<RecordRef> m_expandedUnfiltered; ///< what was open before there was a filter
};
