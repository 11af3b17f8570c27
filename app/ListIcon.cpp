// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ListIcon.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>

QIcon listIcon(const QString &name)
{
    const QString base = QStringLiteral(":/Images/Icons/") + name;
    QIcon icon(base + QStringLiteral(".png"));
    const QColor color = QApplication::palette().color(QPalette::HighlightedText);
    for (const char *suffix : {".png", "@2x.png", "@3x.png"}) {
        QPixmap selected(base + QLatin1String(suffix));
        if (selected.isNull())
            continue;
        QPainter painter(&selected);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(QRect({}, selected.size()), color);
        painter.end();
        icon.addPixmap(selected, QIcon::Selected);
    }
    return icon;
}
