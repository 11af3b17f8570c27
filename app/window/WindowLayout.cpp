// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WindowLayout.h"

#include "Settings.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QSplitter>

void setDefaultLayout(QMainWindow &window)
{
    const auto splitter = [&window](const char *name) {
        return window.findChild<QSplitter *>(QLatin1String(name));
    };
    for (const char *name : {"splitterSkinnedRecords", "splitterStaticRecords"})
        splitter(name)->setSizes({300, 500});
    for (const char *name : {"splitterSkinned", "splitterStatic"}) {
        splitter(name)->setStretchFactor(1, 1);
        splitter(name)->setSizes({230, 800, 400});
    }
    auto *console = window.findChild<QDockWidget *>(QStringLiteral("dockConsole"));
    window.tabifyDockWidget(console, window.findChild<QDockWidget *>(QStringLiteral("dockProblems")));
    console->raise();
    window.resizeDocks({console}, {200}, Qt::Vertical);
}

void storeLayout(const QMainWindow &window)
{
    QVariantMap splitters;
    for (const QSplitter *splitter : window.findChildren<QSplitter *>()) {
        if (!splitter->objectName().isEmpty())
            splitters.insert(splitter->objectName(), splitter->saveState());
    }
    Settings::MainWindowSplitters.setValue(splitters);
    Settings::MainWindowState.setValue(window.saveState());
}

void restoreLayout(QMainWindow &window)
{
    const QVariantMap splitters = Settings::MainWindowSplitters.value();
    for (QSplitter *splitter : window.findChildren<QSplitter *>()) {
        if (splitters.contains(splitter->objectName()))
            splitter->restoreState(splitters.value(splitter->objectName()).toByteArray());
    }
    window.restoreState(Settings::MainWindowState.value());
}
