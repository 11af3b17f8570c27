// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NameRow.h"

#include "Icons.h"

#include <QFormLayout>
#include <QStyle>
#include <QToolButton>

#include <algorithm>

namespace {
constexpr int FirstButton = 2;
} // namespace

NameRow *NameRow::around(QWidget *editor, QWidget *name, Name place)
{
    auto *form = static_cast<QFormLayout *>(editor->parentWidget()->layout());
    int line = 0;
    QFormLayout::ItemRole role{};
    form->getWidgetPosition(editor, &line, &role);
    form->removeWidget(editor);
    auto *row = new NameRow(place);
    row->addWidget(editor);
    row->addWidget(name);
    form->setLayout(line, role, row);
    return row;
}

QToolButton *NameRow::addButton(const QString &objectName, const char *icon, const QString &does)
{
    auto *button = new QToolButton(parentWidget());
    button->setObjectName(objectName);
    button->setIcon(namedIcon(QLatin1String(icon)));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAccessibleName(does);
    addWidget(button);
    return button;
}

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
    const int editor = m_items[0]->widget()->minimumSizeHint().width();
    if (m_place == Name::Beside)
        return {editor + buttonsWidth(), lineHeight()};
    return {std::max(editor, m_items[1]->widget()->minimumSizeHint().width() + buttonsWidth()), lineHeight()};
}

QSize NameRow::sizeHint() const
{
    const int name = m_items[1]->isEmpty() || m_place == Name::Below
                         ? 0
                         : gap() + m_items[1]->widget()->minimumSizeHint().width();
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
    const bool isBeside = m_place == Name::Beside && !name->isEmpty() &&
                          left >= editor->widget()->minimumSizeHint().width() + least;
    const int editorWidth = !isBeside ? left
                                      : std::clamp(left - least, editor->widget()->minimumSizeHint().width(),
                                                   editor->sizeHint().width());
    const int nameX = isBeside ? editorWidth + gap() : 0;
    const int nameWidth = isBeside || m_place == Name::Below ? left - nameX : place.width();
    const int nameHeight = name->isEmpty() ? 0 : name->heightForWidth(nameWidth);
    const int line = isBeside ? std::max(lineHeight(), nameHeight) : lineHeight();
    // What is long has its line for itself.
    const bool isAlone = m_place == Name::Below;
    const int buttonsY = isAlone ? line : 0;
    const int second = std::max(nameHeight, isAlone ? lineHeight() : 0);

    put(editor, 0, 0, isAlone ? place.width() : editorWidth, line);
    int x = left + gap();
    for (int i = FirstButton; i < m_items.size(); ++i) {
        if (m_items[i]->isEmpty())
            continue;
        const int width = m_items[i]->sizeHint().width();
        put(m_items[i], x, buttonsY, width, line);
        x += width;
    }
    if (!name->isEmpty())
        put(name, nameX, isBeside ? 0 : line, nameWidth, isBeside ? line : second);
    return isBeside ? line : line + second;
}
