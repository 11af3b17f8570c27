// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NotedRows.h"

#include "RecordItem.h"

#include <QApplication>
#include <QPainter>

namespace {
/// Between the label and the note.
int noteGap(const QFontMetrics &metrics)
{
    return metrics.horizontalAdvance(QLatin1Char(' ')) * 2;
}
} // namespace

void NotedRows::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const QString note = index.data(RecordItem::NoteRole).toString();
    if (note.isEmpty())
        return;
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QStyle *style = row.widget ? row.widget->style() : QApplication::style();
    QRect place = style->subElementRect(QStyle::SE_ItemViewItemText, &row, row.widget);
    // As far from the edge as the style puts texts.
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, row.widget) + 1;
    place.adjust(margin + row.fontMetrics.horizontalAdvance(row.text) + noteGap(row.fontMetrics), 0, -margin,
                 0);
    // A word or two; less than that would be all dots.
    if (place.width() < row.fontMetrics.averageCharWidth() * 4)
        return;
    const bool isSelected = row.state & QStyle::State_Selected;
    QColor color = row.palette.color(isSelected ? QPalette::HighlightedText : QPalette::PlaceholderText);
    if (isSelected)
        color.setAlphaF(0.75);
    painter->save();
    painter->setPen(color);
    painter->setFont(row.font);
    painter->drawText(place, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                      row.fontMetrics.elidedText(note, Qt::ElideRight, place.width()));
    painter->restore();
}
