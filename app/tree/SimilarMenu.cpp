// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SimilarMenu.h"

#include "Document.h"
#include "KVTreeView.h"
#include "RecordTable.h"

namespace {
/// The fields that records have in common; components of places and directions hardly ever are.
QVector<const RecordField *> comparableFields(RecordKind kind)
{
    QVector<const RecordField *> fields;
    const RecordRow *row = recordRow(kind);
    if (!row || row->position != RecordRow::FromIndex || row->component > 1)
        return fields;
    for (const RecordField *field : RecordFields::of(kind)) {
        if (!field->id().contains(QLatin1Char('.')))
            fields += field;
    }
    return fields;
}
} // namespace

SimilarMenu::SimilarMenu(Document &document, KVTreeView *tree)
    : QMenu(tr("Select S&imilar"), tree)
    , m_document(document)
    , m_tree(tree)
{
    connect(tree, &KVTreeView::currentRecordChanged, this, &SimilarMenu::update);
    connect(this, &QMenu::aboutToShow, this, &SimilarMenu::fill);
    update();
}

void SimilarMenu::update()
{
    menuAction()->setVisible(!comparableFields(m_tree->currentRecord().kind).isEmpty());
}

void SimilarMenu::fill()
{
    clear();
    const RecordRef current = m_tree->currentRecord();
    for (const RecordField *field : comparableFields(current.kind)) {
        const QString value = field->text(m_document.values().value(*field, current.index));
        const QString text =
            QStringLiteral("%1: %2").arg(field->title(), value.isEmpty() ? tr("(empty)") : value);
        QAction *action = addAction(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")));
        connect(action, &QAction::triggered, this, [this, field] { select(*field); });
    }
}

void SimilarMenu::select(const RecordField &field)
{
    const RecordRef current = m_tree->currentRecord();
    const RecordRow *row = recordRow(current.kind);
    if (!row || current.kind != field.kind())
        return;
    const FieldValue wanted = m_document.values().value(field, current.index);
    // Those of a list of the model, or of the lists of all their owners.
    const RecordKind owner = row->component > 0 ? recordRow(row->parent)->parent : RecordKind::None;
    const int owners = owner == RecordKind::None ? 1 : m_document.recordCount(owner, {});
    QVector<RecordRef> similar;
    for (int i = 0; i < owners; ++i) {
        RecordIndex index{i, 0, 0};
        const int count = m_document.recordCount(current.kind, index);
        for (int number = 0; number < count; ++number) {
            index[size_t(row->component)] = number;
            if (index == current.index || m_document.values().value(field, index) == wanted)
                similar += RecordRef{current.kind, index};
        }
    }
    m_tree->selectRecords(similar, current);
}
