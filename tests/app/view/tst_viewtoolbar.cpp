// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ViewToolBar.h"

#include "Find.h"

class tst_ViewToolBar : public QObject
{
    Q_OBJECT

private slots:
    void showsStoredValuesAndWritesNone()
    {
        const QTemporaryDir home;
        TestSupport::useSettingsHome(home);
        QAction action(QStringLiteral("Action"));
        const auto createBar = [&action] {
            return std::make_unique<ViewToolBar>("View", ViewActions{&action, &action, &action, &action});
        };
        const std::pair<float, int> speeds[] = {{0.157f, 15},
                                                {0.29f, 29}, // 28 in double precision
                                                {0.05f, 15},
                                                {1e30f, 1000}};
        for (const auto &[speed, position] : speeds) {
            Settings::MouseSpeed.setValue(speed);
            QCOMPARE(createBar()->findChild<QSlider *>("sliderMoveSpeed")->value(), position);
            QCOMPARE(Settings::MouseSpeed.value(), speed); // looking at it must not slow the camera down
        }
        Settings::BGColor.setValue(QColor(1, 2, 3));
        Settings::SurfSelectType.setValue(4);
        Settings::Brightness.setValue(1.74f);
        const auto bar = createBar();
        auto *color = bar->findChild<QPushButton *>("btnBGColor");
        QCOMPARE(color->styleSheet(), QStringLiteral("background-color: #010203"));
        QCOMPARE(color->grab().toImage().pixelColor(color->rect().center()), QColor(1, 2, 3));
        const QSignalSpy clicked(bar.get(), &ViewToolBar::backgroundColorClicked);
        color->click();
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(bar->findChild<QComboBox *>("cbSurfSelect")->currentText(), QStringLiteral("Points Hidden"));
        QCOMPARE(bar->findChild<QSlider *>("sliderBrightness")->value(), 3);

        for (const int outOfRange : {-1, 5, 1 << 30}) {
            Settings::SurfSelectType.setValue(outOfRange);
            QCOMPARE(createBar()->findChild<QComboBox *>("cbSurfSelect")->currentIndex(), 0);
        }
    }
};

QTEST_MAIN(tst_ViewToolBar)
#include "tst_viewtoolbar.moc"
