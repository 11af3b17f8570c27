// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentView.h"
#include "Records.h"

#include <QUndoStack>

/// Takes records of one kind, ascending, out of their lists as one step of the stack.
template <typename Command>
void removeRecords(QUndoStack &stack, const EditTarget<typename Command::Model> &target,
                   const QVector<RecordIndex> &records, const QString &step)
{
    stack.beginMacro(step);
    // From the last to the first, so that the indexes of those that are left hold.
    for (int i = records.size() - 1; i >= 0; --i)
        stack.push(new Command(target, records.at(i)));
    stack.endMacro();
}
