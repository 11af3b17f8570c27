// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TextField.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

TextField::TextField(QWidget *parent)
    : QLineEdit(parent)
    , TypingField(static_cast<QWidget &>(*this))
{
    connect(this, &QLineEdit::textEdited, this, &TextField::updateRefusal);
    connect(this, &QLineEdit::editingFinished, this, &TextField::commitText);
}

void TextField::setValue(const QString &value)
{
    if (value == m_value && isRefused())
        return;
    m_value = value;
    // A text that does not fit shows its start, unless the cursor is where the user works.
    const int cursor = hasFocus() ? cursorPosition() : 0;
    setText(value);
    setCursorPosition(cursor);
    setRefusal({});
}

void TextField::updateRefusal()
{
    setRefusal(m_check && isTyping() ? m_check(text()) : QString(),
               tr("It is not stored; Esc brings the old one back."));
}

bool TextField::commitText()
{
    updateRefusal();
    if (!isRefused() && isTyping()) {
        m_value = text();
        emit valueEdited(m_value);
    }
    return isRefused();
}

void TextField::discardText()
{
    if (!isTyping())
        return;
    setText(m_value);
    setRefusal({});
}

bool TextField::event(QEvent *event)
{
    return answer(event) || QLineEdit::event(event);
}

void TextField::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!actions().isEmpty())
        menu->addSeparator();
    menu->addActions(actions());
    menu->popup(event->globalPos());
    event->accept();
}

void TextField::keyPressEvent(QKeyEvent *event)
{
    if (giveUp(event))
        return;
    QLineEdit::keyPressEvent(event);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        tellRefusal();
}

void TextField::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    paintRefusal();
}
