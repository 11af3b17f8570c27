// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ViewToolBar.h"

#include "Settings.h"
#include "TestSupport.h"

#include <QAction>
#include <QComboBox>
#include <QPushButton>
#include <QSlider>

class tst_ViewToolBar : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestSupport::useSettingsHome(m_home); }
    void positions_data();
    void positions();
    void showsStoredValuesAndWritesNone();
    void saysOnlyWhatTheUserMoved();

private:
    std::unique_ptr<ViewToolBar> createBar()
    {
        return std::make_unique<ViewToolBar>(QStringLiteral("View"),
                                             ViewActions{&m_action, &m_action, &m_action, &m_action});
    }

    QTemporaryDir m_home;
    QAction m_action{QStringLiteral("Action")};
};

void tst_ViewToolBar::positions_data()
{
    QTest::addColumn<float>("speed");
    QTest::addColumn<int>("position");
    QTest::newRow("default") << 0.15f << 15;
    QTest::newRow("truncated") << 0.157f << 15;
    QTest::newRow("single precision") << 0.29f << 29; // 28 in double precision
    QTest::newRow("below") << 0.05f << 15;
    QTest::newRow("largest") << 10.0f << 1000;
    QTest::newRow("beyond any int") << 1e30f << 1000;
}

void tst_ViewToolBar::positions()
{
    QFETCH(float, speed);
    QFETCH(int, position);
    QCOMPARE(ViewToolBar::moveSpeedPosition(speed), position);
    Settings::MouseSpeed.setValue(speed);
    QCOMPARE(createBar()->findChild<QSlider *>("sliderMoveSpeed")->value(), position);
    QCOMPARE(Settings::MouseSpeed.value(), speed); // looking at it must not slow the camera down
}

void tst_ViewToolBar::showsStoredValuesAndWritesNone()
{
    const auto values = [](const ViewToolBar &bar) {
        return QStringList{bar.findChild<QPushButton *>("btnBGColor")->styleSheet(),
                           bar.findChild<QComboBox *>("cbSurfSelect")->currentText(),
                           QString::number(bar.findChild<QSlider *>("sliderMoveSpeed")->value()),
                           QString::number(bar.findChild<QSlider *>("sliderBrightness")->value())};
    };
    QCOMPARE(values(*createBar()), QStringList({"background-color: #00aaff", "None", "15", "0"}));
    QVERIFY(QSettings().allKeys().isEmpty());

    Settings::BGColor.setValue(QColor(1, 2, 3));
    Settings::SurfSelectType.setValue(4);
    Settings::MouseSpeed.setValue(2.5f);
    Settings::Brightness.setValue(1.74f);
    QCOMPARE(values(*createBar()), QStringList({"background-color: #010203", "Points Hidden", "250", "3"}));

    for (const int outOfRange : {-1, 5, 1 << 30}) {
        Settings::SurfSelectType.setValue(outOfRange);
        QCOMPARE(createBar()->findChild<QComboBox *>("cbSurfSelect")->currentIndex(), 0);
    }
    QCOMPARE(ViewToolBar::brightness(0), 1.0f);
    QCOMPARE(ViewToolBar::brightness(4), 2.0f);
}

void tst_ViewToolBar::saysOnlyWhatTheUserMoved()
{
    const auto bar = createBar();
    bar->show();
    QSignalSpy color(bar.get(), &ViewToolBar::backgroundColorClicked);
    QSignalSpy surfSelect(bar.get(), &ViewToolBar::surfSelectChanged);
    QSignalSpy moveSpeed(bar.get(), &ViewToolBar::moveSpeedChanged);
    QSignalSpy brightness(bar.get(), &ViewToolBar::brightnessChanged);
    bar->setSurfSelectType(3);
    bar->setMoveSpeedPosition(500);
    bar->setBrightnessPosition(2);
    QCOMPARE(surfSelect.count() + moveSpeed.count() + brightness.count(), 0);
    QTest::mouseClick(bar->findChild<QPushButton *>("btnBGColor"), Qt::LeftButton);
    QTest::keyClick(bar->findChild<QComboBox *>("cbSurfSelect"), Qt::Key_Down);
    QTest::keyClick(bar->findChild<QSlider *>("sliderMoveSpeed"), Qt::Key_End);
    QTest::keyClick(bar->findChild<QSlider *>("sliderBrightness"), Qt::Key_Right);
    QCOMPARE(color.count(), 1);
    QCOMPARE(surfSelect, QList<QVariantList>{{4}});
    QCOMPARE(moveSpeed, QList<QVariantList>{{1000}});
    QCOMPARE(brightness, QList<QVariantList>{{3}});
}

QTEST_MAIN(tst_ViewToolBar)
#include "tst_viewtoolbar.moc"
