// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileDelegate.h"

#include "FileRows.h"
#include "Thumbnails.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace {
constexpr int Margin = 3; ///< around a row, pixels
constexpr int Gap = 6;    ///< between what stands side by side
constexpr int IconSide = 24;
} // namespace

FileDelegate::FileDelegate(const Thumbnails &thumbnails, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_thumbnails(thumbnails)
{}

void FileDelegate::paintPicture(QPainter &painter, const QRect &square, const QStyleOptionViewItem &row,
                                const QModelIndex &index) const
{
    const Thumbnail *thumbnail = m_thumbnails.find(index.data(FileRows::PathRole).toString());
    if (thumbnail && !thumbnail->picture.isNull()) {
        const QPixmap &picture = thumbnail->picture; // in pixels of the screen
        QSize size = picture.size() / painter.device()->devicePixelRatioF();
        if (size.width() > m_side || size.height() > m_side)
            size.scale(m_side, m_side, Qt::KeepAspectRatio);
        QRect place(QPoint(), size);
        place.moveCenter(square.center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(place, picture);
        return;
    }
    QRect place(0, 0, std::min(IconSide, m_side), std::min(IconSide, m_side));
    place.moveCenter(square.center());
    const bool isSelected = row.state & QStyle::State_Selected;
    qvariant_cast<QIcon>(index.data(Qt::DecorationRole))
        .paint(&painter, place, Qt::AlignCenter, isSelected ? QIcon::Selected : QIcon::Normal);
}

void FileDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    QStyleOptionViewItem row(option);
    initStyleOption(&row, index);
    const QString name = std::exchange(row.text, {});
    row.icon = {};
    row.features &= ~QStyleOptionViewItem::HasDecoration;
    const QStyle *style = row.widget->style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    const bool isSelected = row.state & QStyle::State_Selected;
    const bool isActive = row.state & QStyle::State_Active;
    const auto group = isActive ? QPalette::Active : QPalette::Inactive;
    const QColor loud = row.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QColor quiet =
        row.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::PlaceholderText);
    const QRect inner = row.rect.adjusted(Gap, Margin, -Gap, -Margin);
    const QRect square(inner.left(), inner.top() + (inner.height() - m_side) / 2, m_side, m_side);
    paintPicture(*painter, square, row, index);

    // Beside a large picture there is room for a third line.
    const int lineHeight = row.fontMetrics.height();
    const bool isRoomy = m_side >= 3 * lineHeight;
    const int height = (isRoomy ? 3 : 2) * lineHeight;
    const QRect upper(square.right() + 1 + Gap, inner.top() + (inner.height() - height) / 2,
                      inner.right() - square.right() - Gap, lineHeight);
    painter->setPen(loud);
    painter->drawText(upper, int(Qt::AlignLeft | Qt::AlignVCenter),
                      row.fontMetrics.elidedText(name, Qt::ElideMiddle, upper.width()));
    const QString state = index.data(FileRows::StateRole).toString();
    const int stateWidth = isRoomy ? 0 : row.fontMetrics.horizontalAdvance(state) + Gap;
    const QRect lower = upper.translated(0, lineHeight);
    painter->setPen(quiet);
    if (isRoomy)
        painter->drawText(lower.translated(0, lineHeight), int(Qt::AlignLeft | Qt::AlignVCenter), state);
    else
        painter->drawText(lower, int(Qt::AlignRight | Qt::AlignVCenter), state);
    painter->drawText(lower, int(Qt::AlignLeft | Qt::AlignVCenter),
                      row.fontMetrics.elidedText(index.data(FileRows::FolderRole).toString(), Qt::ElideMiddle,
                                                 lower.width() - stateWidth));
}

QSize FileDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {1, std::max(m_side, 2 * option.fontMetrics.height()) + 2 * Margin};
}

bool FileDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                             const QModelIndex &index)
{
    const QString path = index.data(FileRows::PathRole).toString();
    const Thumbnail *thumbnail = m_thumbnails.find(path);
    if (event->type() != QEvent::ToolTip || !thumbnail || thumbnail->error.isEmpty())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    // The tip begins with the path already.
    const QString prefix = path + QStringLiteral(": ");
    const QString error =
        thumbnail->error.startsWith(prefix) ? thumbnail->error.mid(prefix.size()) : thumbnail->error;
    QToolTip::showText(event->globalPos(), index.data(Qt::ToolTipRole).toString() + QLatin1Char('\n') + error,
                       view);
    return true;
}
