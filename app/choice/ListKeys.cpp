// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ListKeys.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

ListKeys::ListKeys(QLineEdit *line, QAbstractItemView *list)
    : QObject(line)
    , m_list(list)
{
    line->installEventFilter(this);
}

bool ListKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return QCoreApplication::sendEvent(m_list, event);
        case Qt::Key_Return:
        case Qt::Key_Enter:
            emit accepted();
            return true;
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}
