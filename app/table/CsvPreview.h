// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RecordTableModel.h"

#include <QDialog>

/// What a table that was read would change in the records that are shown.
struct CsvChanges
{
    QVector<FieldChange> changes;
    QString reason; ///< why it cannot be taken; empty when it can
};

/// Finds the changes of a table whose first row names fields, by id or title, and whose first column the
/// records where it is called "record"; otherwise rows stand for the records in their order. An empty cell
/// changes nothing, and neither does a value that is there already.
CsvChanges changesOf(const QVector<QStringList> &rows, const RecordTableModel &records);

/// Shows the changes before they are made: record, field, old and new value.
class CsvPreview : public QDialog
{
    Q_OBJECT

public:
    CsvPreview(const QVector<FieldChange> &changes, const RecordTableModel &records, QWidget *parent);
};
