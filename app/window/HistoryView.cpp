// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "HistoryView.h"

#include "DocumentFiles.h"

#include <QCoreApplication>
#include <QIcon>
#include <QItemSelectionModel>
#include <QUndoGroup>
#include <QUndoStack>
#include <QUndoView>

void showHistory(QUndoView &view, QUndoGroup &group, const DocumentFiles &files, const QIcon &savedIcon)
{
    view.setGroup(&group);
    view.setCleanIcon(savedIcon);
    view.setEmptyLabel(QCoreApplication::translate("HistoryView", "As opened"));

    QItemSelectionModel *selection = view.selectionModel();
    QObject::disconnect(selection, &QItemSelectionModel::currentChanged, view.model(), nullptr);
    const auto follow = [&view, &group, &files] {
        // As it is by now: steps that were done meanwhile have moved the selection along.
        const QModelIndex current = view.currentIndex();
        QUndoStack *stack = group.activeStack();
        if (!stack || !current.isValid() || current.row() == stack->index())
            return;
        if (files.current() && files.current()->returnToTyping())
            view.setCurrentIndex(view.model()->index(stack->index(), 0));
        else
            stack->setIndex(current.row());
    };
    QObject::connect(selection, &QItemSelectionModel::currentChanged, &view, follow, Qt::QueuedConnection);
}
