// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RowList.h"

#include "EmptyText.h"

RowList::RowList(QAbstractItemModel *rows, const QVector<int> &letters, QWidget *parent)
    : QTreeView(parent)
{
    rows->setParent(this);
    setModel(rows);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setIconSize({16, 16});
    for (int column = 0; column < letters.size(); ++column)
        setColumnWidth(column, letters[column] * fontMetrics().averageCharWidth());
}

void RowList::setEmptyText(const QString &text)
{
    m_emptyText = text;
    setAccessibleDescription(text);
    viewport()->update();
}

void RowList::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (model()->rowCount() == 0)
        paintEmptyText(*viewport(), m_emptyText);
}
