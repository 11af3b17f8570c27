// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FilterLine.h"

#include "KVTreeView.h"
#include "Shortcuts.h"

#include <QAction>
#include <QKeyEvent>
#include <QTimer>

FilterLine::FilterLine(KVTreeView &tree, QWidget *parent)
    : QLineEdit(parent)
    , m_tree(tree)
{
    setObjectName(tree.objectName() + QStringLiteral("Filter"));
    setPlaceholderText(tr("Filter, such as %1").arg(tree.filterExample()));
    setToolTip(tr("Show only the records whose text has these words, and numbers or ranges of them"));
    setAccessibleName(tr("Filter"));

    // While somebody types, half a million records are looked through once.
    auto *pause = new QTimer(this);
    pause->setSingleShot(true);
    pause->setInterval(150);
    connect(this, &QLineEdit::textChanged, pause, qOverload<>(&QTimer::start));
    connect(pause, &QTimer::timeout, this, [this] { m_tree.setFilter(text()); });
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

void FilterLine::focusInEvent(QFocusEvent *event)
{
    // Not when the line is made: finding the button's icon in the desktop's theme would slow the start.
    setClearButtonEnabled(true);
    QLineEdit::focusInEvent(event);
}

void FilterLine::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        clear();
        m_tree.setFilter({});
        m_tree.setFocus();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        m_tree.setFilter(text());
        m_tree.selectFirstMatch();
        m_tree.setFocus();
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}
