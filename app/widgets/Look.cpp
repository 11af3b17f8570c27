// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Look.h"

#include "DesktopScheme.h"
#include "Settings.h"
#include "TitleBars.h"

#include <QApplication>
#include <QCoreApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolTip>
#include <QWidget>

namespace {
struct LookRow
{
    const char *key;
    const char *name;
};

const LookRow lookRows[] = {{"desktop", QT_TRANSLATE_NOOP("Look", "Desktop")},
                            {"light", QT_TRANSLATE_NOOP("Look", "Light")},
                            {"dark", QT_TRANSLATE_NOOP("Look", "Dark")}};

struct Colors
{
    QRgb window, base, alternate, button, text, disabled, placeholder, highlight, highlightedText,
        disabledHighlight, link, visited, tip, tipText, light, midlight, mid, dark, shadow;
};

// Every text has a contrast of 4.5 : 1 or better on what it stands on; a test computes it.
constexpr Colors lightColors{0xfff0f1f2, 0xffffffff, 0xfff5f6f7, 0xffeceef0, 0xff1c1f23,
                             0xff666b72, 0xff666b72, 0xff1f6fc4, 0xffffffff, 0xff5f6670,
                             0xff0b5cad, 0xff6d3fa8, 0xfffff8dc, 0xff1c1f23, 0xffffffff,
                             0xffe3e6e9, 0xffb9bec4, 0xff989fa7, 0xff6b7178};
constexpr Colors darkColors{0xff32363c, 0xff1f2226, 0xff262a2f, 0xff3a3f46, 0xfff2f4f6,
                            0xffabb1b9, 0xffabb1b9, 0xff2a6db8, 0xffffffff, 0xff5b6169,
                            0xff76b3f5, 0xffc0a0f0, 0xff464b53, 0xffeceef0, 0xff4a4f57,
                            0xff40454c, 0xff1d2024, 0xff17191c, 0xff0d0e10};

/// What was there before the first look was shown.
struct Desktop
{
    QString style = QApplication::style()->objectName();
    QPalette tip = QToolTip::palette();
};

const Desktop &desktop()
{
    static const Desktop found;
    return found;
}

/// Mends what cannot be read well: the icon of the menu item under the mouse gets the color of its text, an
/// empty box in a dark look a frame.
class ReadableStyle : public QProxyStyle
{
public:
    explicit ReadableStyle(const QString &name)
        : QProxyStyle(QStyleFactory::create(name))
    {
        setObjectName(name);
    }

    // The frame that Fusion draws is darker than the window.
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool isDark = option->palette.color(QPalette::Window).lightness() < 128;
        if (element != PE_IndicatorCheckBox || !isDark)
            return;
        QColor frame = option->palette.color(QPalette::WindowText);
        frame.setAlphaF(0.4);
        painter->save();
        painter->setPen(frame);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        painter->restore();
    }

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
        if (element != CE_MenuItem || !item || item->icon.isNull() || !(item->state & State_Selected) ||
            !(item->state & State_Enabled)) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        QStyleOptionMenuItem chosen(*item);
        const int side = pixelMetric(PM_SmallIconSize, option, widget);
        const QPixmap icon = item->icon.pixmap(widget ? widget->window()->windowHandle() : nullptr,
                                               QSize(side, side), QIcon::Selected);
        chosen.icon = QIcon(icon);
        chosen.icon.addPixmap(icon, QIcon::Active);
        QProxyStyle::drawControl(element, &chosen, painter, widget);
    }
};

void useStyle(const QString &name)
{
    if (QApplication::style()->objectName().compare(name, Qt::CaseInsensitive) != 0 ||
        !dynamic_cast<const ReadableStyle *>(QApplication::style()))
        QApplication::setStyle(new ReadableStyle(name));
}

void show(bool dark)
{
    const QPalette palette = ourPalette(dark);
    useStyle(QStringLiteral("fusion"));
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

void showDesktops()
{
    useStyle(desktop().style);
    QApplication::setPalette(QPalette());
    QPalette palette = QApplication::palette();
    if (palette.brush(QPalette::PlaceholderText).style() == Qt::NoBrush) {
        // Styles that know nothing of this role leave labels in it without ink.
        QColor faint = palette.color(QPalette::Text);
        faint.setAlphaF(0.6);
        palette.setColor(QPalette::PlaceholderText, faint);
        QApplication::setPalette(palette);
    }
    QToolTip::setPalette(desktop().tip);
}
} // namespace

QString lookKey(Look look)
{
    return QLatin1String(lookRows[size_t(look)].key);
}

QString lookName(Look look)
{
    return QCoreApplication::translate("Look", lookRows[size_t(look)].name);
}

Look chosenLook()
{
    const QString key = Settings::Look.value();
    for (const Look look : allLooks) {
        if (lookKey(look) == key)
            return look;
    }
    return Look::Desktop;
}

void chooseLook(Look look)
{
    Settings::Look.setValue(lookKey(look));
    showChosenLook();
}

void showChosenLook()
{
    static const bool follows = [] {
        desktop();
        QObject::connect(&DesktopScheme::instance(), &DesktopScheme::changed, qApp, showChosenLook);
        return true;
    }();
    Q_UNUSED(follows)
    const Look look = chosenLook();
    if (look != Look::Desktop) {
        show(look == Look::Dark);
    } else {
        showDesktops();
        // Where the desktop's colours do not reach the toolkit, its wish may.
        if (DesktopScheme::instance().prefersDark() && !isDark(QApplication::palette()))
            show(true);
    }
    showTitleBars(isDark(QApplication::palette()));
}

QPalette ourPalette(bool dark)
{
    const Colors &c = dark ? darkColors : lightColors;
    QPalette palette;
    const std::pair<QPalette::ColorRole, QRgb> roles[] = {{QPalette::Window, c.window},
                                                          {QPalette::WindowText, c.text},
                                                          {QPalette::Base, c.base},
                                                          {QPalette::AlternateBase, c.alternate},
                                                          {QPalette::Text, c.text},
                                                          {QPalette::PlaceholderText, c.placeholder},
                                                          {QPalette::Button, c.button},
                                                          {QPalette::ButtonText, c.text},
                                                          {QPalette::BrightText, 0xffffffff},
                                                          {QPalette::Highlight, c.highlight},
                                                          {QPalette::HighlightedText, c.highlightedText},
                                                          {QPalette::Link, c.link},
                                                          {QPalette::LinkVisited, c.visited},
                                                          {QPalette::ToolTipBase, c.tip},
                                                          {QPalette::ToolTipText, c.tipText},
                                                          {QPalette::Light, c.light},
                                                          {QPalette::Midlight, c.midlight},
                                                          {QPalette::Mid, c.mid},
                                                          {QPalette::Dark, c.dark},
                                                          {QPalette::Shadow, c.shadow}};
    for (const auto &[role, color] : roles)
        palette.setColor(role, QColor(color));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(c.disabled));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(c.disabledHighlight));
    return palette;
}

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QColor warningColor(const QPalette &palette)
{
    return isDark(palette) ? QColor(0xff, 0xa8, 0x5c) : QColor(0xa6, 0x40, 0x00);
}
