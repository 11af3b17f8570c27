// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "EndSignals.h"
#include "GraphicsProbe.h"
#include "Language.h"
#include "Look.h"
#include "MainWindow.h"
#include "OwnFolders.h"
#include "ScreenScale.h"
#include "Settings.h"
#include "TexturesAhead.h"

#include <QAccessible>
#include <QApplication>
#include <QDebug>
#include <QLoggingCategory>
#include <QSurfaceFormat>

#include <memory>

int main(int argc, char *argv[])
{
    useScreenScale();
    // Without a version the driver gives what it has; the core profile is asked for all the same.
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setProfile(QSurfaceFormat::CoreProfile);
    // So that a reset of the graphics driver can be noticed and survived.
    format.setOption(QSurfaceFormat::ResetNotification);
    QSurfaceFormat::setDefaultFormat(format);

    const QApplication application(argc, argv);
    // The desktop's bus has a thread, which cannot begin while the driver's libraries are loaded; the window
    // would wait for it.
    (void)QAccessible::isActive();
    GraphicsProbe::start();
    QCoreApplication::setApplicationName(QStringLiteral("Korvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION));
    QCoreApplication::setOrganizationName(QStringLiteral("Korvane"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("korvane.local"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/Images/Icons/korvane.png")));
    QGuiApplication::setDesktopFileName(QStringLiteral("korvane"));
    OwnFolders::useForSettings();
    Language::install(Language::resolve(Settings::UiLanguage.value()));
    qDebug() << QCoreApplication::libraryPaths();
    QLoggingCategory::setFilterRules(QStringLiteral("qt.network.ssl.warning=false"));

    // The desktop hands over files to open; there are no options.
    const QStringList files = QCoreApplication::arguments().mid(1);
    const TexturesAhead textures(files);
    // All keys are read while the window is built.
    auto settings = std::make_unique<SettingsHold>();
    showChosenLook();
    // A session that ends has unsaved work kept; nothing is asked, and a window that stays open may go on.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    MainWindow window;
    const EndSignals ending([&window](int number) {
        window.close();
        QApplication::exit(128 + number); // as shells do
    });
    window.show();
    window.openAtStart(files);
    settings.reset();
    return QApplication::exec();
}
