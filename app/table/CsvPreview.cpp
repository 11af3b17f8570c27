// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CsvPreview.h"

#include <QDialogButtonBox>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

CsvChanges changesOf(const QVector<QStringList> &rows, const RecordTableModel &records)
{
    const RecordGroup &group = records.group();
    const auto refuse = [](const QString &reason) { return CsvChanges{{}, reason}; };
    if (rows.size() < 2)
        return refuse(CsvPreview::tr("There are no rows in it below a first one that names the fields."));
    QVector<const RecordField *> fields;
    int numbers = -1;
    for (const QString &name : rows.first()) {
        const RecordField *field = RecordFields::find(group.kind, name);
        const bool isNumber = name.trimmed().compare(QLatin1String("record"), Qt::CaseInsensitive) == 0;
        if (isNumber)
            numbers = fields.size();
        else if (!field)
            return refuse(CsvPreview::tr("These records have no field '%1'.").arg(name));
        fields.append(isNumber ? nullptr : field);
    }
    CsvChanges found;
    QHash<const RecordField *, int> places;
    for (int line = 1; line < rows.size(); ++line) {
        const QStringList &row = rows[line];
        int at = line - 1;
        RecordIndex index{};
        if (numbers >= 0)
            at = readNumber(row.value(numbers), group.levels, index) ? records.rowOf(index) : -1;
        if (at < 0 || at >= records.rowCount())
            return refuse(CsvPreview::tr("Line %1 is about no record of the table.").arg(line + 1));
        if (row.size() > fields.size())
            return refuse(CsvPreview::tr("Line %1 has more cells than there are names.").arg(line + 1));
        index = records.record(at);
        for (int i = 0; i < row.size(); ++i) {
            if (!fields[i] || row[i].isEmpty())
                continue;
            const FieldValue old = records.document()->values().value(*fields[i], index);
            FieldValue value;
            const QString reason = fields[i]->parse(row[i], old, places[fields[i]]++, value);
            if (!reason.isEmpty())
                return refuse(CsvPreview::tr("Line %1, %2: %3")
                                  .arg(QString::number(line + 1), fields[i]->title(), reason));
            if (fields[i]->text(value) != fields[i]->text(old))
                found.changes.append({fields[i], index, std::move(value)});
        }
    }
    return found;
}

CsvPreview::CsvPreview(const QVector<FieldChange> &changes, const RecordTableModel &records, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Import Table"));
    auto *count = new QLabel(changes.isEmpty() ? tr("The table holds what is there already.")
                                               : tr("%n values change", nullptr, changes.size()),
                             this);
    count->setObjectName(QStringLiteral("lblCsvCount"));
    auto *list = new QTreeWidget(this);
    list->setObjectName(QStringLiteral("listCsvChanges"));
    list->setAccessibleName(tr("Changes"));
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setHeaderLabels({tr("Record"), tr("Field"), tr("Old"), tr("New")});
    // More than anyone reads.
    constexpr int mostShown = 1000;
    QList<QTreeWidgetItem *> items;
    for (const FieldChange &each : changes) {
        if (items.size() == mostShown) {
            items.append(new QTreeWidgetItem({tr("%n more", nullptr, changes.size() - mostShown)}));
            break;
        }
        items.append(new QTreeWidgetItem(
            {numberText(each.index, records.group().levels), each.field->title(),
             each.field->text(records.document()->values().value(*each.field, each.index)),
             each.field->text(each.value)}));
    }
    list->addTopLevelItems(items);
    list->header()->resizeSections(QHeaderView::ResizeToContents);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setEnabled(!changes.isEmpty());
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(count);
    layout->addWidget(list, 1);
    layout->addWidget(buttons);
    resize(520, 400);
}
