// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "IndexHint.h"

#include <QPainter>
#include <QStyle>

namespace {
constexpr int IconGap = 4;
// Readable on light and on dark backgrounds.
constexpr QRgb MissingColor = qRgb(200, 80, 0);
} // namespace

IndexHint::IndexHint(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
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
    // Wide enough for the start of a name; a wider hint must not widen the page.
    return {fontMetrics().averageCharWidth() * 12, fontMetrics().height() + 2};
}

void IndexHint::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QRect place = rect();
    if (m_target.missing) {
        const int side = fontMetrics().height();
        const QRect icon(0, (height() - side) / 2, side, side);
        style()->standardIcon(QStyle::SP_MessageBoxWarning).paint(&painter, icon);
        painter.setPen(QColor(MissingColor));
    } else {
        painter.setPen(palette().color(QPalette::WindowText));
    }
    place.setLeft(iconWidth());
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(m_target.text, Qt::ElideRight, place.width()));
}
