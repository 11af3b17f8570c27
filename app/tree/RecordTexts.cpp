// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordTexts.h"

#include "RecordNotes.h"
#include "RecordTable.h"

#include <QCoreApplication>

QString recordLabel(const Document &document, const RecordRef &record)
{
    const RecordRow *row = recordRow(record.kind);
    if (!row)
        return {};
    if (row->parent == RecordKind::None)
        return document.fileName();
    const QString text = QCoreApplication::translate("Records", row->label);
    if (row->counted != RecordKind::None)
        return text.arg(document.recordCount(row->counted, record.index));
    const QString number = QString::number(record.index[size_t(row->component)]);
    return text.contains(QLatin1String("%2")) ? QString(text)
                                                    .replace(QLatin1String("%1"), number)
                                                    .replace(QLatin1String("%2"), document.recordText(record))
                                              : text.arg(number);
}

QString searchText(const Document &document, const RecordRef &record)
{
    const RecordRow *row = recordRow(record.kind);
    if (row->position != RecordRow::FromIndex)
        return QCoreApplication::translate("Records", row->label).remove(QLatin1String("%1"));
    QString text = QCoreApplication::translate("Records", row->noun) + QLatin1Char(' ') +
                   QString::number(record.index[size_t(row->component)]);
    QString more = document.recordText(record);
    // The text of an action is its event, number first.
    if (record.kind == RecordKind::AnimAction && !more.isEmpty())
        more.prepend(QCoreApplication::translate("Records", "event") + QLatin1Char(' '));
    for (const QString &part : {more, noteNames(document, record)}) {
        if (!part.isEmpty())
            text += QLatin1Char(' ') + part;
    }
    return text;
}

namespace {
/// By the labels of the records that lead to it.
template <typename Label>
QString placeBy(RecordRef record, Label label)
{
    QStringList labels;
    for (const RecordRow *row = recordRow(record.kind); row; row = recordRow(row->parent)) {
        if (row->parent == RecordKind::None && !labels.isEmpty())
            break;
        labels.prepend(
            row->counted == RecordKind::None
                ? label(*row, RecordRef{row->kind, record.index})
                : QCoreApplication::translate("Records", row->label).remove(QLatin1String("(%1)")).trimmed());
        if (row->position == RecordRow::FromIndex)
            record.index[size_t(row->component)] = 0;
    }
    return labels.join(QStringLiteral(" \u203A "));
}
} // namespace

QString recordPlace(const RecordSelection &records, RecordRef record)
{
    return placeBy(record,
                   [&records](const RecordRow &, const RecordRef &each) { return records.label(each); });
}

QString recordPlace(RecordRef record)
{
    return placeBy(record, [](const RecordRow &row, const RecordRef &each) {
        const QString text = QCoreApplication::translate("Records", row.label).remove(QLatin1String(": %2"));
        return text.contains(QLatin1String("%1")) ? text.arg(each.index[size_t(row.component)]) : text;
    });
}
