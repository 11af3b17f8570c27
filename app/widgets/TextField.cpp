// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TextField.h"

#include <QKeyEvent>

TextField::TextField(QWidget *parent)
    : QLineEdit(parent)
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
    m_refusal.set({});
}

void TextField::updateRefusal()
{
    m_refusal.set(m_check && text() != m_value ? m_check(text()) : QString());
}

void TextField::commitText()
{
    updateRefusal();
    if (isRefused() || text() == m_value)
        return;
    m_value = text();
    emit valueEdited(m_value);
}

void TextField::discardText()
{
    if (text() == m_value)
        return;
    setText(m_value);
    m_refusal.set({});
}

bool TextField::event(QEvent *event)
{
    if (m_refusal.answer(event))
        return true;
    if (event->type() == QEvent::ShortcutOverride && text() != m_value &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void TextField::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && text() != m_value) {
        discardText();
        selectAll();
        return;
    }
    QLineEdit::keyPressEvent(event);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        m_refusal.tell();
}

void TextField::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    m_refusal.paint();
}
