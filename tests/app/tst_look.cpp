// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Icons.h"
#include "Look.h"
#include "LookMenu.h"
#include "NoticeBar.h"
#include "OptionsDialog.h"
#include "Settings.h"
#include "TestSupport.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QToolTip>

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
    double red = 0;
    double green = 0;
    double blue = 0;
    double cover = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            red += pixel.redF() * pixel.alphaF();
            green += pixel.greenF() * pixel.alphaF();
            blue += pixel.blueF() * pixel.alphaF();
            cover += pixel.alphaF();
        }
    }
    return cover == 0 ? QColor() : QColor::fromRgbF(red / cover, green / cover, blue / cover);
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
    void init();
    void cleanup();
    void everyTextCanBeRead_data();
    void everyTextCanBeRead();
    void looksChangeAtOnce();
    void oddSettingsAreTheDesktop();
    void theMenuChoosesTheLook();
    void onlyAcceptingChanges();
    void iconsAreCrisp();
    void iconsAreSeenOnEveryLook();
    void noticesFollow();

private:
    QTemporaryDir m_home;
};

void tst_Look::init()
{
    TestSupport::useSettingsHome(m_home);
    showChosenLook();
}

void tst_Look::cleanup()
{
    chooseLook(Look::Desktop);
}

void tst_Look::everyTextCanBeRead_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void tst_Look::everyTextCanBeRead()
{
    QFETCH(bool, dark);
    const QPalette palette = ourPalette(dark);
    QCOMPARE(isDark(palette), dark);
    using P = QPalette;
    const std::pair<P::ColorRole, P::ColorRole> pairs[] = {{P::WindowText, P::Window},
                                                           {P::Text, P::Base},
                                                           {P::Text, P::AlternateBase},
                                                           {P::Text, P::Window},
                                                           {P::ButtonText, P::Button},
                                                           {P::HighlightedText, P::Highlight},
                                                           {P::PlaceholderText, P::Base},
                                                           {P::PlaceholderText, P::Window},
                                                           {P::Link, P::Base},
                                                           {P::Link, P::Window},
                                                           {P::LinkVisited, P::Base},
                                                           {P::LinkVisited, P::Window},
                                                           {P::ToolTipText, P::ToolTipBase}};
    for (const P::ColorGroup group : {P::Active, P::Inactive, P::Disabled}) {
        for (const auto &[text, ground] : pairs) {
            const double found = contrast(palette.color(group, text), palette.color(group, ground));
            QVERIFY2(found >= 4.5, qPrintable(QStringLiteral("group %1, role %2 on %3: %4")
                                                  .arg(group)
                                                  .arg(text)
                                                  .arg(ground)
                                                  .arg(found)));
        }
    }
    QVERIFY(contrast(warningColor(palette), palette.color(P::Window)) >= 4.5);
    QVERIFY(contrast(warningColor(palette), palette.color(P::Base)) >= 4.5);
    // What can be used and what cannot are still told apart.
    QVERIFY(contrast(palette.color(P::Active, P::Text), palette.color(P::Disabled, P::Text)) >= 1.8);
}

void tst_Look::looksChangeAtOnce()
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
}

void tst_Look::oddSettingsAreTheDesktop()
{
    for (const QVariant &odd :
         {QVariant(QStringLiteral("purple")), QVariant(7), QVariant(QByteArray("\xff"))}) {
        QSettings().setValue(Settings::Look.name(), odd);
        QCOMPARE(chosenLook(), Look::Desktop);
    }
}

void tst_Look::theMenuChoosesTheLook()
{
    QMenu view;
    addLookMenu(view);
    QMenu *looks = view.actions().first()->menu();
    QCOMPARE(looks->actions().size(), 3);
    QVERIFY(looks->actions().at(0)->isChecked());
    looks->actions().at(2)->trigger();
    QCOMPARE(chosenLook(), Look::Dark);
    QVERIFY(isDark(QApplication::palette()));
    // Others may choose as well.
    chooseLook(Look::Light);
    emit looks->aboutToShow();
    QVERIFY(looks->actions().at(1)->isChecked());
    QVERIFY(!looks->actions().at(2)->isChecked());
}

void tst_Look::onlyAcceptingChanges()
{
    for (const auto button : {QDialogButtonBox::Cancel, QDialogButtonBox::Ok}) {
        OptionsDialog dialog;
        dialog.show();
        auto *look = dialog.findChild<QComboBox *>(QStringLiteral("cbLook"));
        auto *language = dialog.findChild<QComboBox *>(QStringLiteral("cbLanguage"));
        const auto *hint = dialog.findChild<QLabel *>(QStringLiteral("lblLanguageHint"));
        QCOMPARE(language->count(), 3);
        QVERIFY(!hint->isVisible());
        QTest::keyClick(look, Qt::Key_End);
        QTest::keyClick(language, Qt::Key_End);
        QCOMPARE(language->currentText(), QStringLiteral("Deutsch"));
        // That it takes effect later is said.
        QVERIFY(hint->isVisible());
        QVERIFY(!isDark(QApplication::palette()));
        QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
        const bool accepted = button == QDialogButtonBox::Ok;
        QCOMPARE(isDark(QApplication::palette()), accepted);
        QCOMPARE(Settings::UiLanguage.value(), accepted ? QStringLiteral("de") : QString());
    }
}

void tst_Look::iconsAreCrisp()
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
        QImage shown(side, side, QImage::Format_ARGB32);
        shown.fill(Qt::transparent);
        QPainter painter(&shown);
        namedIcon(QStringLiteral("ground")).paint(&painter, shown.rect());
        painter.end();
        int left = side;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < left; ++x) {
                if (qAlpha(shown.pixel(x, y)) > 64)
                    left = x;
            }
        }
        QVERIFY2(left <= side / 6, qPrintable(QString::number(side)));
    }
}

void tst_Look::iconsAreSeenOnEveryLook()
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
                QVERIFY2(
                    found >= 2.5,
                    qPrintable(
                        QStringLiteral("%1 on %2: %3").arg(name, palette.color(ground).name()).arg(found)));
            }
            QCOMPARE(inkOf(icon.pixmap(QSize(72, 72), QIcon::Selected).toImage()),
                     palette.color(QPalette::HighlightedText));
        }
    }
}

void tst_Look::noticesFollow()
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

QTEST_MAIN(tst_Look)
#include "tst_look.moc"
