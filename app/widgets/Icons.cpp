// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Icons.h"

#include "Look.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>

#include <algorithm>

namespace {
constexpr int Side = 24; ///< of the files, at the ratio 1
constexpr int Ratios = 3;
/// The part of the way to white that lines go on dark windows.
constexpr double Lightened = 0.35;
constexpr double DisabledOpacity = 0.4;

/// The way to white, with its transparency kept.
void lighten(QImage &image)
{
    image = image.convertToFormat(QImage::Format_ARGB32);
    const auto mix = [](int value) { return value + qRound((255 - value) * Lightened); };
    for (int y = 0; y < image.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        std::transform(row, row + image.width(), row, [mix](QRgb pixel) {
            return qRgba(mix(qRed(pixel)), mix(qGreen(pixel)), mix(qBlue(pixel)), qAlpha(pixel));
        });
    }
}

void paintIn(QImage &image, const QColor &color)
{
    image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
}

void fade(QImage &image)
{
    QImage faded(image.size(), QImage::Format_ARGB32_Premultiplied);
    faded.fill(Qt::transparent);
    QPainter painter(&faded);
    painter.setOpacity(DisabledOpacity);
    painter.drawImage(0, 0, image);
    painter.end();
    image = faded;
}

/// The style of Windows marks what is selected with a pale color, on which texts and icons stay as they are.
bool marksPalely()
{
    return QApplication::style()->objectName() == QLatin1String("windowsvista");
}

class IconEngine : public QIconEngine
{
public:
    explicit IconEngine(const QString &path)
        : m_base(path.left(path.size() - 4))
    {}

    QIconEngine *clone() const override { return new IconEngine(*this); }
    QString iconName() const override { return m_base.section(QLatin1Char('/'), -1); }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) const override { return {QSize(Side, Side)}; }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const int side = std::min(size.width(), size.height());
        if (side <= 0)
            return {};
        if (mode == QIcon::Selected && marksPalely())
            mode = QIcon::Normal;
        const QPalette palette = QApplication::palette();
        const QColor &chosen = palette.color(QPalette::HighlightedText);
        const QString key = QStringLiteral("korvane %1 %2 %3 %4 %5")
                                .arg(m_base, QString::number(side), QString::number(mode),
                                     palette.color(QPalette::Window).name(), chosen.name());
        QPixmap made;
        if (QPixmapCache::find(key, &made))
            return made;
        QImage image = drawing(side);
        if (image.isNull())
            return {};
        if (mode == QIcon::Selected)
            paintIn(image, chosen);
        else if (isDark(palette))
            lighten(image);
        if (mode == QIcon::Disabled)
            fade(image);
        made = QPixmap::fromImage(image);
        QPixmapCache::insert(key, made);
        return made;
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const double ratio = painter->device()->devicePixelRatioF();
        QPixmap drawn = pixmap(rect.size() * ratio, mode, state);
        drawn.setDevicePixelRatio(ratio);
        const QSizeF size = QSizeF(drawn.size()) / ratio;
        painter->drawPixmap(QPointF(rect.x() + (rect.width() - size.width()) / 2,
                                    rect.y() + (rect.height() - size.height()) / 2),
                            drawn);
    }

private:
    /// The file of this very size; for any other, one that is some times as large, or else the largest,
    /// scaled, which keeps the lines even.
    QImage drawing(int side) const
    {
        const auto file = [this](int ratio) {
            QImage image(m_base +
                         (ratio == 1 ? QStringLiteral(".png") : QStringLiteral("@%1x.png").arg(ratio)));
            image.setDevicePixelRatio(1.0);
            return image;
        };
        int ratio = 1;
        while (ratio < Ratios && ratio * Side % side != 0)
            ++ratio;
        QImage image = file(ratio);
        while (image.isNull() && --ratio >= 1)
            image = file(ratio);
        return image.isNull() || image.width() == side
                   ? image
                   : image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }

    QString m_base; ///< the path without ".png"
};
} // namespace

QIcon namedIcon(const QString &name)
{
    return fileIcon(QStringLiteral(":/Images/Icons/%1.png").arg(name));
}

QIcon fileIcon(const QString &path)
{
    return QIcon(new IconEngine(path));
}

void setNamedIcons(QObject &window)
{
    const auto nameOf = [](const QObject *object) { return object->property("iconName").toString(); };
    for (QAction *action : window.findChildren<QAction *>()) {
        if (!nameOf(action).isEmpty())
            action->setIcon(namedIcon(nameOf(action)));
    }
    for (QAbstractButton *button : window.findChildren<QAbstractButton *>()) {
        if (!nameOf(button).isEmpty())
            button->setIcon(namedIcon(nameOf(button)));
    }
}

IconLabel::IconLabel(const QIcon &icon, int side, QWidget *parent)
    : QLabel(parent)
    , m_icon(icon)
{
    setFixedSize(side, side);
}

void IconLabel::setIcon(const QIcon &icon)
{
    m_icon = icon;
    update();
}

void IconLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_icon.paint(&painter, rect());
}
