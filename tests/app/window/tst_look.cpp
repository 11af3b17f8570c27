// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Find.h"
#include "Icons.h"
#include "Look.h"
#include "LookMenu.h"
#include "NoticeBar.h"

#include <algorithm>
#include <cmath>

namespace {
double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// 1 to 21, as the guidelines for accessible web content compute it.
double contrast(const QColor &a, const QColor &b)
{
    const double one = luminance(a) + 0.05;
    const double other = luminance(b) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

/// The mean color of what is painted, weighted by how much it covers.
QColor inkOf(const QImage &image)
{
    QVector4D ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            const QVector4D color(float(pixel.redF()), float(pixel.greenF()), float(pixel.blueF()), 1.0f);
            ink += color * float(pixel.alphaF());
        }
    }
    ink /= ink.w();
    return QColor::fromRgbF(double(ink.x()), double(ink.y()), double(ink.z()));
}

QStringList iconNames()
{
    QStringList names;
    for (const QString &file : QDir(QStringLiteral(":/Images/Icons")).entryList({QStringLiteral("*.png")})) {
        const QString name = file.section(QLatin1Char('.'), 0, 0);
        if (!name.contains(QLatin1Char('@')) && !name.startsWith(QLatin1String("korvane")))
            names << name;
    }
    return names;
}
} // namespace

class tst_Look : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyBoxIsSeen()
    {
        for (const Look look : {Look::Light, Look::Dark}) {
            chooseLook(look);
            QCheckBox box;
            box.show();
            QStyleOptionButton option;
            option.initFrom(&box);
            const QRect square = box.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &box);
            const QImage shown = box.grab().toImage();
            const int around = shown.pixelColor(shown.width() - 1, 0).lightness();
            int most = 0;
            for (int x = square.left(); x < square.left() + 3; ++x)
                most = std::max(most, qAbs(shown.pixelColor(x, square.center().y()).lightness() - around));
            QVERIFY2(most > 40, qPrintable(lookKey(look) + QString::number(most)));
        }
    }
    void theIconUnderTheMouseIsReadable()
    {
        for (const Look look : {Look::Light, Look::Dark}) {
            chooseLook(look);
            QMenu menu;
            QAction *save = menu.addAction(namedIcon(QStringLiteral("save")), QStringLiteral("Save"));
            menu.popup({});
            menu.setActiveAction(save);
            const QRect item = menu.actionGeometry(save);
            const QImage shown = menu.grab({item.topLeft(), QSize(item.height(), item.height())}).toImage();
            QVERIFY(countPixels(shown, QApplication::palette().color(QPalette::HighlightedText)) > 9);
        }
    }

    void init()
    {
        TestSupport::useSettingsHome(m_home);
        showChosenLook();
    }

    void cleanup() { chooseLook(Look::Desktop); }

    void everyTextCanBeRead()
    {
        using P = QPalette;
        const std::pair<P::ColorRole, QVector<P::ColorRole>> grounds[] = {
            {P::Window, {P::WindowText, P::Text, P::PlaceholderText, P::Link, P::LinkVisited}},
            {P::Base, {P::Text, P::PlaceholderText, P::Link, P::LinkVisited}},
            {P::AlternateBase, {P::Text}},
            {P::Button, {P::ButtonText}},
            {P::Highlight, {P::HighlightedText}},
            {P::ToolTipBase, {P::ToolTipText}}};
        for (const bool dark : {false, true}) {
            const QPalette palette = ourPalette(dark);
            QCOMPARE(isDark(palette), dark);
            for (const P::ColorGroup group : {P::Active, P::Inactive, P::Disabled}) {
                for (const auto &[ground, texts] : grounds) {
                    for (const P::ColorRole text : texts) {
                        const double found =
                            contrast(palette.color(group, text), palette.color(group, ground));
                        const QString what =
                            QString::asprintf("%g: %d on %d in %d", found, text, ground, group);
                        QVERIFY2(found >= 4.5, qPrintable(what));
                    }
                }
            }
            QVERIFY(contrast(warningColor(palette), palette.color(P::Window)) >= 4.5);
            QVERIFY(contrast(warningColor(palette), palette.color(P::Base)) >= 4.5);
            // What can be used and what cannot are still told apart.
            QVERIFY(contrast(palette.color(P::Active, P::Text), palette.color(P::Disabled, P::Text)) >= 1.8);
        }
    }

    void looksChangeAtOnce()
    {
        const QPalette before = QApplication::palette();
        const QString style = QApplication::style()->objectName();
        const QColor tip = QToolTip::palette().color(QPalette::ToolTipBase);
        QLabel label(QStringLiteral("text"));
        label.show();
        for (const Look look : {Look::Dark, Look::Light, Look::Dark}) {
            chooseLook(look);
            QCOMPARE(chosenLook(), look);
            QCOMPARE(isDark(label.palette()), look == Look::Dark);
            QCOMPARE(QToolTip::palette().color(QPalette::ToolTipBase),
                     ourPalette(look == Look::Dark).color(QPalette::ToolTipBase));
        }
        chooseLook(Look::Desktop);
        QCOMPARE(QApplication::style()->objectName(), style);
        QCOMPARE(label.palette().color(QPalette::Window), before.color(QPalette::Window));
        QCOMPARE(label.palette().color(QPalette::Link), before.color(QPalette::Link));
        QCOMPARE(QToolTip::palette().color(QPalette::ToolTipBase), tip);
        Settings::Look.setValue(QStringLiteral("purple"));
        QCOMPARE(chosenLook(), Look::Desktop);

        // By the menu, while others choose as well.
        QMenu view;
        addLookMenu(view);
        QMenu *looks = view.actions().first()->menu();
        QVERIFY(looks->actions().at(0)->isChecked());
        looks->actions().at(2)->trigger();
        QCOMPARE(chosenLook(), Look::Dark);
        QVERIFY(isDark(QApplication::palette()));
        chooseLook(Look::Light);
        emit looks->aboutToShow();
        QVERIFY(looks->actions().at(1)->isChecked());
        QVERIFY(!looks->actions().at(2)->isChecked());
    }

    void iconsAreCrisp()
    {
        chooseLook(Look::Light);
        // At each ratio the file that was drawn for it, pixel for pixel.
        for (const auto &[side, suffix] : {std::pair(24, ""), {48, "@2x"}, {72, "@3x"}}) {
            QImage file(QStringLiteral(":/Images/Icons/save%1.png").arg(QLatin1String(suffix)));
            file.setDevicePixelRatio(1.0);
            const QImage shown = namedIcon(QStringLiteral("save")).pixmap(side, side).toImage();
            QCOMPARE(shown.size(), QSize(side, side));
            QCOMPARE(shown.convertToFormat(QImage::Format_ARGB32_Premultiplied),
                     file.convertToFormat(QImage::Format_ARGB32_Premultiplied));
        }
        // Any other size is filled as well: nothing is left small in the middle.
        for (const int side : {16, 20, 32, 64}) {
            QPixmap shown(side, side);
            shown.fill(Qt::transparent);
            QPainter painter(&shown);
            namedIcon(QStringLiteral("ground")).paint(&painter, shown.rect());
            painter.end();
            QVERIFY2(QRegion(shown.mask()).boundingRect().left() <= side / 6,
                     qPrintable(QString::number(side)));
        }
    }

    void iconsAreSeenOnEveryLook()
    {
        QVERIFY(iconNames().size() > 60);
        for (const Look look : {Look::Light, Look::Dark}) {
            chooseLook(look);
            const QPalette palette = QApplication::palette();
            for (const QString &name : iconNames()) {
                const QIcon icon = namedIcon(name);
                const QColor ink = inkOf(icon.pixmap(72, 72).toImage());
                for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base}) {
                    const double found = contrast(ink, palette.color(ground));
                    QVERIFY2(found >= 2.5, qPrintable(QStringLiteral("%1: %2").arg(name).arg(found)));
                }
                QCOMPARE(inkOf(icon.pixmap(QSize(72, 72), QIcon::Selected).toImage()),
                         palette.color(QPalette::HighlightedText));
            }
        }
    }

    void noticesFollow()
    {
        NoticeBar bar(namedIcon(QStringLiteral("info")), QStringLiteral("bar"));
        const QPushButton *button = bar.addButton(QStringLiteral("OK"), QStringLiteral("btn"), {});
        bar.tell(QStringLiteral("text"));
        for (const Look look : {Look::Dark, Look::Light}) {
            chooseLook(look);
            const QPalette ours = ourPalette(look == Look::Dark);
            QCOMPARE(bar.palette().color(QPalette::Window), ours.color(QPalette::ToolTipBase));
            QCOMPARE(bar.palette().color(QPalette::WindowText), ours.color(QPalette::ToolTipText));
            QCOMPARE(button->palette().color(QPalette::Button), ours.color(QPalette::Button));
            QCOMPARE(button->palette().color(QPalette::ButtonText), ours.color(QPalette::ButtonText));
        }
    }

private:
    QTemporaryDir m_home;
};

QTEST_MAIN(tst_Look)
#include "tst_look.moc"
