// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WindowLayout.h"

#include "Settings.h"

#include <QMainWindow>
#include <QSplitter>

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
