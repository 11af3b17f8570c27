// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FilterLine.h"

#include "KVTreeView.h"
#include "Shortcuts.h"

#include <QAction>

FilterLine::FilterLine(KVTreeView &tree, QWidget *parent)
    : FilterEdit(
          tr("Filter, such as %1").arg(tree.filterExample()),
          tr("Show only the records whose text has these words, and numbers or ranges of them; or that "
             "meet a condition over their fields, as Find and Replace has them"),
          parent)
{
    setObjectName(tree.objectName() + QStringLiteral("Filter"));
    connect(this, &FilterEdit::filtered, &tree, &KVTreeView::setFilter);
    connect(this, &FilterEdit::left, &tree, qOverload<>(&QWidget::setFocus));
    connect(this, &FilterEdit::entered, &tree, [&tree] {
        tree.selectFirstMatch();
        tree.setFocus();
    });
}

void FilterLine::setAction(const QAction *action)
{
    const auto show = [this, action, tip = toolTip()] { setToolTip(withKeys(tip, action)); };
    connect(action, &QAction::changed, this, show);
    connect(action, &QAction::triggered, this, &FilterLine::on_actionFilter_triggered);
    show();
}

void FilterLine::on_actionFilter_triggered()
{
    if (!isVisible())
        return;
    setFocus(Qt::ShortcutFocusReason);
    selectAll();
}
