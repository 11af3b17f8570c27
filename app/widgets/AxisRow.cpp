// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AxisRow.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace {
// A field in a row may be narrower than it would like to be.
int leastWidth(QLayoutItem *field)
{
    return field->widget()->minimumSizeHint().width();
}
} // namespace

AxisRow::~AxisRow()
{
    qDeleteAll(m_items);
}

QLayoutItem *AxisRow::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int AxisRow::gap() const
{
    const QWidget *parent = parentWidget();
    return parent ? parent->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, parent) : 0;
}

int AxisRow::axisWidth() const
{
    int width = 0;
    for (int i = 0; i < m_items.size(); i += 2)
        width = std::max(width, m_items[i]->sizeHint().width());
    return width;
}

int AxisRow::lineHeight() const
{
    int height = 0;
    for (const QLayoutItem *item : m_items)
        height = std::max(height, item->sizeHint().height());
    return height;
}

bool AxisRow::fitsOneRow(int width) const
{
    int needed = (m_items.size() - 1) * gap();
    for (int i = 0; i + 1 < m_items.size(); i += 2)
        needed += axisWidth() + leastWidth(m_items[i + 1]);
    return needed <= width;
}

QSize AxisRow::stacked(int fieldWidth) const
{
    const int lines = m_items.size() / 2;
    return {axisWidth() + gap() + fieldWidth, lines * lineHeight() + (lines - 1) * gap()};
}

int AxisRow::heightForWidth(int width) const
{
    return fitsOneRow(width) ? lineHeight() : stacked(0).height();
}

QSize AxisRow::minimumSize() const
{
    int width = 0;
    for (int i = 1; i < m_items.size(); i += 2)
        width = std::max(width, leastWidth(m_items[i]));
    return {stacked(width).width(), lineHeight()};
}

QSize AxisRow::sizeHint() const
{
    int width = 0;
    for (int i = 1; i < m_items.size(); i += 2)
        width = std::max(width, m_items[i]->sizeHint().width());
    return stacked(width);
}

void AxisRow::setGeometry(const QRect &place)
{
    QLayout::setGeometry(place);
    const int fields = m_items.size() / 2;
    if (fields == 0)
        return;
    const bool oneRow = fitsOneRow(place.width());
    const int axis = axisWidth();
    const int height = lineHeight();
    const int between = gap();
    // Fields share what the axes leave.
    const int left = place.width() - (oneRow ? fields * (axis + 2 * between) - between : axis + between);
    const Qt::LayoutDirection direction =
        parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    QPoint at = place.topLeft();
    for (int i = 0; i < fields; ++i) {
        const int width = oneRow ? left / fields + (i < left % fields ? 1 : 0) : left;
        const auto put = [&](QLayoutItem *item, int x, int itemWidth) {
            item->setGeometry(QStyle::visualRect(direction, place, {x, at.y(), itemWidth, height}));
        };
        put(m_items[2 * i], at.x(), axis);
        put(m_items[2 * i + 1], at.x() + axis + between, width);
        if (oneRow)
            at.rx() += axis + width + 2 * between;
        else
            at.ry() += height + between;
    }
}
