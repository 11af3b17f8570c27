// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TypingField.h"

#include "Look.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QTabWidget>
#include <QToolTip>
#include <QWheelEvent>

namespace {
/// What a form calls a field.
QString nameOfField(const QWidget &field)
{
    if (!field.accessibleName().isEmpty())
        return field.accessibleName();
    for (const QLabel *label : field.window()->findChildren<QLabel *>()) {
        if (label->buddy() == &field)
            return label->text().remove(QLatin1Char('&'));
    }
    return {};
}
} // namespace

QString TypingField::refusal() const
{
    const QString name = isRefused() ? nameOfField(m_field) : QString();
    return name.isEmpty() ? m_reason
                          : QCoreApplication::translate("TypingField", "%1: %2").arg(name, m_reason);
}

void TypingField::returnTo()
{
    for (QWidget *around = m_field.parentWidget(); around; around = around->parentWidget()) {
        auto *tabs = qobject_cast<QTabWidget *>(around);
        for (int i = 0; tabs && i < tabs->count(); ++i) {
            if (tabs->widget(i)->isAncestorOf(&m_field))
                tabs->setCurrentIndex(i);
        }
        if (auto *area = qobject_cast<QScrollArea *>(around))
            area->ensureWidgetVisible(&m_field);
    }
    m_field.activateWindow(); // another one of the program may be in front
    m_field.setFocus();
    selectText();
    tellRefusal();
}

QVector<TypingField *> TypingField::in(const QWidget &fields)
{
    QVector<TypingField *> found;
    for (QWidget *each : fields.findChildren<QWidget *>()) {
        if (auto *field = dynamic_cast<TypingField *>(each))
            found.append(field);
    }
    return found;
}

TypingField *TypingField::refusedIn(const QWidget &fields)
{
    TypingField *first = nullptr;
    for (TypingField *field : in(fields)) {
        if (field->commitText() && !first)
            first = field;
    }
    return first;
}

bool TypingField::returnToRefused(const QWidget &fields)
{
    TypingField *refused = refusedIn(fields);
    if (refused)
        refused->returnTo();
    return refused;
}

void TypingField::setRefusal(const QString &reason, const QString &wayOut)
{
    if (reason.isEmpty() && isRefused() && QToolTip::text() == tip())
        QToolTip::hideText();
    m_wayOut = wayOut;
    if (reason == m_reason)
        return;
    m_reason = reason;
    m_field.setAccessibleDescription(reason);
    m_field.update();
}

void TypingField::tellRefusal() const
{
    if (isRefused() && m_field.isVisible())
        QToolTip::showText(m_field.mapToGlobal(m_field.rect().bottomLeft()), tip(), &m_field);
}

void TypingField::paintRefusal() const
{
    if (!isRefused())
        return;
    constexpr int width = 2;
    QPainter painter(&m_field);
    painter.setPen(QPen(warningColor(m_field.palette()), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(m_field.rect().adjusted(1, 1, -1, -1));
}

bool TypingField::answer(QEvent *event) const
{
    if (event->type() == QEvent::ToolTip && isRefused()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), tip(), &m_field);
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride && isTyping() &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return false;
}

bool TypingField::giveUp(const QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape || !isTyping())
        return false;
    discardText();
    selectText();
    return true;
}

bool TypingField::isMeant(QWheelEvent *event)
{
    event->setAccepted(event->modifiers() & Qt::ControlModifier);
    // What is typed in another field is stored first.
    if (event->isAccepted())
        m_field.setFocus(Qt::MouseFocusReason);
    return event->isAccepted();
}

void finishTyping()
{
    if (auto *field = dynamic_cast<TypingField *>(QApplication::focusWidget()))
        field->commitText();
}
