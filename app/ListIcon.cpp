// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ListIcon.h"

#include <QApplication>
#include <QHash>
#include <QPainter>
#include <QPalette>

namespace {
QIcon makeIcon(const QString &name)
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
} // namespace

QIcon listIcon(const QString &name)
{
    static QHash<QString, QIcon> made;
    auto known = made.constFind(name);
    if (known == made.constEnd())
        known = made.insert(name, makeIcon(name));
    return *known;
}
