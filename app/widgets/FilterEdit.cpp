// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FilterEdit.h"

#include <QKeyEvent>
#include <QTimer>

FilterEdit::FilterEdit(const QString &placeholder, const QString &toolTip, QWidget *parent)
    : QLineEdit(parent)
{
    setPlaceholderText(placeholder);
    setToolTip(toolTip);
    setAccessibleName(tr("Filter"));
    // While somebody types, half a million entries are looked through once.
    auto *pause = new QTimer(this);
    pause->setSingleShot(true);
    pause->setInterval(150);
    connect(this, &QLineEdit::textChanged, pause, qOverload<>(&QTimer::start));
    connect(pause, &QTimer::timeout, this, [this] { emit filtered(text()); });
}

void FilterEdit::focusInEvent(QFocusEvent *event)
{
    // Not when the line is made: finding the button's icon in the desktop's theme would slow the start.
    setClearButtonEnabled(true);
    QLineEdit::focusInEvent(event);
}

void FilterEdit::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (key != Qt::Key_Escape && key != Qt::Key_Down && !isReturn)
        return QLineEdit::keyPressEvent(event);
    if (key == Qt::Key_Escape)
        clear();
    emit filtered(text());
    if (key == Qt::Key_Escape)
        emit left();
    else
        emit entered(isReturn);
}
