// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderFilter.h"

#include "FolderTree.h"

#include <QKeyEvent>
#include <QTimer>

FolderFilter::FolderFilter(FolderTree &tree)
    : m_tree(tree)
{
    setPlaceholderText(tr("Filter"));
    setToolTip(tr("Show only the files that have these words in their name or in their folders' names"));
    setAccessibleName(tr("Filter"));
    // While somebody types, thousands of names are looked through once.
    auto *pause = new QTimer(this);
    pause->setSingleShot(true);
    pause->setInterval(150);
    connect(this, &QLineEdit::textChanged, pause, qOverload<>(&QTimer::start));
    connect(pause, &QTimer::timeout, this, [this] { m_tree.setFilter(text()); });
}

void FolderFilter::focusInEvent(QFocusEvent *event)
{
    // Not when the line is made: finding the button's icon in the desktop's theme would slow the start.
    setClearButtonEnabled(true);
    QLineEdit::focusInEvent(event);
}

void FolderFilter::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (key == Qt::Key_Escape) {
        clear();
        m_tree.setFilter({});
        m_tree.setFocus();
    } else if (isReturn || key == Qt::Key_Down) {
        m_tree.setFilter(text());
        FolderItem *first = m_tree.firstShownFile();
        if (!first)
            return;
        m_tree.setFocus();
        if (isReturn) {
            m_tree.selectFile(first->path());
            emit fileChosen(first->path());
        } else {
            m_tree.setCurrentItem(first);
        }
    } else {
        QLineEdit::keyPressEvent(event);
    }
}
