// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TextField.h"

#include "Icons.h"
#include "Shortcuts.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QToolButton>

TextField::TextField(QWidget *parent)
    : QLineEdit(parent)
    , TypingField(static_cast<QWidget &>(*this))
{
    connect(this, &QLineEdit::textEdited, this, &TextField::updateRefusal);
    connect(this, &QLineEdit::editingFinished, this, &TextField::commitText);
}

void TextField::addUses(QAction *uses)
{
    auto *action = new QAction(namedIcon(QStringLiteral("sync")), plainText(uses), this);
    addAction(action, TrailingPosition);
    auto *button = qobject_cast<QToolButton *>(action->associatedWidgets().constLast());
    button->setObjectName(QStringLiteral("btnUses") + objectName().mid(3)); // behind "txt"
    button->setAccessibleName(plainText(uses));
    connect(action, &QAction::triggered, this, [this, uses] {
        setFocus(Qt::OtherFocusReason);
        uses->trigger();
    });
    const auto follow = [action](const QString &text) { action->setEnabled(!text.isEmpty()); };
    connect(this, &QLineEdit::textChanged, action, follow);
    follow(text());
    // Shown with its keys, but without having them: they would be ambiguous.
    const auto showKeys = [action, uses] {
        const QString keys = keysText(uses->shortcuts());
        action->setText(keys.isEmpty() ? uses->text() : uses->text() + QLatin1Char('\t') + keys);
        action->setToolTip(withKeys(plainText(uses), uses));
    };
    connect(uses, &QAction::changed, action, showKeys);
    showKeys();
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
