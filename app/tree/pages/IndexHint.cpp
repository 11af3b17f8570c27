// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "IndexHint.h"

#include "Look.h"

#include <QPainter>
#include <QStyle>

namespace {
constexpr int IconGap = 4;
constexpr int TextFlags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
} // namespace

IndexHint::IndexHint(QWidget *parent)
    : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void IndexHint::setTarget(const IndexTarget &target)
{
    m_target = target;
    setToolTip(target.explanation.isEmpty() ? target.text : target.explanation);
    setAccessibleName(target.text);
    updateGeometry();
    update();
}

int IndexHint::iconWidth() const
{
    return m_target.missing ? fontMetrics().height() + IconGap : 0;
}

QSize IndexHint::sizeHint() const
{
    return {iconWidth() + fontMetrics().horizontalAdvance(m_target.text) + 1, fontMetrics().height() + 2};
}

QSize IndexHint::minimumSizeHint() const
{
    // Wide enough for any word of a name, and the same for all texts: a page that shows another record is
    // not to change its shape.
    return {fontMetrics().averageCharWidth() * 12, fontMetrics().height() + 2};
}

int IndexHint::heightForWidth(int width) const
{
    const QRect place(0, 0, width - iconWidth(), QWIDGETSIZE_MAX);
    return fontMetrics().boundingRect(place, TextFlags, m_target.text).height() + 2;
}

void IndexHint::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QRect place = rect();
    if (m_target.missing) {
        const int side = fontMetrics().height();
        const QRect icon(0, (height() - side) / 2, side, side);
        style()->standardIcon(QStyle::SP_MessageBoxWarning).paint(&painter, icon);
        painter.setPen(warningColor(palette()));
    } else {
        painter.setPen(palette().color(m_target.quiet ? QPalette::PlaceholderText : QPalette::WindowText));
    }
    place.setLeft(iconWidth());
    painter.drawText(place, TextFlags, m_target.text);
}
