// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Refusal.h"

#include "Look.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

void Refusal::set(const QString &reason)
{
    if (reason == m_reason)
        return;
    m_reason = reason;
    m_editor.setAccessibleDescription(reason);
    m_editor.update();
}

void Refusal::tell() const
{
    if (isActive() && m_editor.isVisible())
        QToolTip::showText(m_editor.mapToGlobal(m_editor.rect().bottomLeft()), m_reason, &m_editor);
}

bool Refusal::answer(QEvent *event) const
{
    if (event->type() != QEvent::ToolTip || !isActive())
        return false;
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), m_reason, &m_editor);
    return true;
}

void Refusal::paint() const
{
    if (!isActive())
        return;
    constexpr int width = 2;
    QPainter painter(&m_editor);
    painter.setPen(
        QPen(warningColor(m_editor.palette()), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(m_editor.rect().adjusted(1, 1, -1, -1));
}
