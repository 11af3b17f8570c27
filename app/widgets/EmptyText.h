// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QWidget>

/// Says in the middle of a list, whose viewport this is, why it shows nothing: for its paintEvent().
inline void paintEmptyText(QWidget &viewport, const QString &text)
{
    constexpr int margin = 8;
    QPainter painter(&viewport);
    painter.setPen(viewport.palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport.rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, text);
}
