// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ContactSheet.h"

#include "PictureFile.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
int ceilingOf(int number, int divisor)
{
    return (number + divisor - 1) / divisor;
}
} // namespace

ContactSheet::ContactSheet(int pictures, const QSize &size, const QColor &background, int columns)
    : m_pictures(pictures)
    , m_size(size)
    , m_cell(cellWidth(size), size.height() + 2 * Gap + QFontMetrics(QGuiApplication::font()).height())
    , m_background(background)
    , m_columns(columns)
{
    if (m_columns <= 0) {
        const double squared = std::sqrt(double(pictures) * m_cell.height() / m_cell.width());
        m_columns = std::clamp(int(std::ceil(squared)), 1, std::max(1, LongestSide / m_cell.width()));
    }
    m_columns = std::clamp(m_columns, 1, std::max(1, pictures));
    const qint64 rowPixels = qint64(m_columns) * m_cell.width() * m_cell.height();
    m_rows = std::clamp(std::min(LongestSide / m_cell.height(), int(MostPixels / rowPixels)), 1,
                        std::max(1, ceilingOf(pictures, m_columns)));
}

int ContactSheet::sheets() const
{
    return std::max(1, ceilingOf(m_pictures, perSheet()));
}

int ContactSheet::lastBeside(int picture) const
{
    return std::min((sheetOf(picture) + 1) * perSheet(), m_pictures) - 1;
}

void ContactSheet::begin(int pictures)
{
    const QSize size(m_columns * m_cell.width(), ceilingOf(pictures, m_columns) * m_cell.height());
    m_sheet = QImage(size, m_background.alpha() == 255 ? QImage::Format_RGB32
                                                       : QImage::Format_ARGB32_Premultiplied);
    m_sheet.fill(m_background);
}

void ContactSheet::put(int picture, const QImage &image, const QString &name)
{
    const int place = picture % perSheet();
    if (place == 0)
        begin(lastBeside(picture) - picture + 1);
    const QPoint corner(place % m_columns * m_cell.width(), place / m_columns * m_cell.height());
    QPainter painter(&m_sheet);
    if (!image.isNull())
        painter.drawImage(corner + QPoint(Gap, Gap), image);
    const bool isDark = m_background.alpha() > 127 && qGray(m_background.rgb()) < 128;
    painter.setPen(isDark ? Qt::white : Qt::black);
    const QRect line(corner + QPoint(Gap, Gap + m_size.height()),
                     QSize(m_size.width(), m_cell.height() - m_size.height() - Gap));
    painter.drawText(line, Qt::AlignHCenter | Qt::AlignTop,
                     painter.fontMetrics().elidedText(name, Qt::ElideMiddle, line.width()));
}
