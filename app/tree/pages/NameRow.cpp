// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NameRow.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace {
constexpr int FirstButton = 2;
} // namespace

NameRow::~NameRow()
{
    qDeleteAll(m_items);
}

QLayoutItem *NameRow::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

int NameRow::gap() const
{
    const QWidget *parent = parentWidget();
    return parent ? parent->style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, parent) : 0;
}

int NameRow::lineHeight() const
{
    int height = m_items[0]->sizeHint().height();
    for (int i = FirstButton; i < m_items.size(); ++i) {
        if (!m_items[i]->isEmpty())
            height = std::max(height, m_items[i]->sizeHint().height());
    }
    return height;
}

// They stand side by side, with the gap before the first.
int NameRow::buttonsWidth() const
{
    int width = 0;
    for (int i = FirstButton; i < m_items.size(); ++i) {
        if (!m_items[i]->isEmpty())
            width += m_items[i]->sizeHint().width() + (width == 0 ? gap() : 0);
    }
    return width;
}

QSize NameRow::minimumSize() const
{
    return {m_items[0]->widget()->minimumSizeHint().width() + buttonsWidth(), lineHeight()};
}

QSize NameRow::sizeHint() const
{
    const int name = m_items[1]->isEmpty() ? 0 : gap() + m_items[1]->widget()->minimumSizeHint().width();
    return {m_items[0]->sizeHint().width() + name + buttonsWidth(), lineHeight()};
}

void NameRow::setGeometry(const QRect &place)
{
    QLayout::setGeometry(place);
    arrange(place, true);
}

int NameRow::arrange(const QRect &place, bool puts) const
{
    const auto put = [&](QLayoutItem *item, int x, int y, int width, int height) {
        const Qt::LayoutDirection direction =
            parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
        if (puts)
            item->setGeometry(
                QStyle::visualRect(direction, place, {place.x() + x, place.y() + y, width, height}));
    };
    QLayoutItem *editor = m_items[0];
    QLayoutItem *name = m_items[1];
    const int left = place.width() - buttonsWidth();
    // The same for all names: a page that shows another record is not to change its shape.
    const int least = gap() + name->widget()->minimumSizeHint().width();
    const bool isBeside = !name->isEmpty() && left >= editor->widget()->minimumSizeHint().width() + least;
    const int editorWidth =
        !isBeside ? left
                  : std::clamp(left - least, editor->widget()->minimumSizeHint().width(),
                               editor->sizeHint().width());
    const int nameX = isBeside ? editorWidth + gap() : 0;
    const int nameWidth = isBeside ? left - nameX : place.width();
    const int nameHeight = name->isEmpty() ? 0 : name->heightForWidth(nameWidth);
    const int line = isBeside ? std::max(lineHeight(), nameHeight) : lineHeight();

    put(editor, 0, 0, editorWidth, line);
    int x = left + gap();
    for (int i = FirstButton; i < m_items.size(); ++i) {
        if (m_items[i]->isEmpty())
            continue;
        const int width = m_items[i]->sizeHint().width();
        put(m_items[i], x, 0, width, line);
        x += width;
    }
    if (name->isEmpty())
        return line;
    put(name, nameX, isBeside ? 0 : line, nameWidth, isBeside ? line : nameHeight);
    return isBeside ? line : line + nameHeight;
}
