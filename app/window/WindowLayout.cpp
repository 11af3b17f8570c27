// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WindowLayout.h"

#include "Settings.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QSplitter>

#include <utility>

WindowLayout::WindowLayout(QMainWindow *window)
    : QObject(window)
    , m_window(window)
{
    setDefaults();
    m_defaults = m_window->saveState();
}

void WindowLayout::setModelShown(bool shown)
{
    if (shown) {
        for (QDockWidget *dock : std::exchange(m_aside, {}))
            dock->show();
        return;
    }
    for (QDockWidget *dock : m_window->findChildren<QDockWidget *>()) {
        if (!dock->isHidden() && !dock->isFloating()) {
            m_aside.append(dock);
            dock->hide();
        }
    }
}

void WindowLayout::setDefaults()
{
    const auto splitter = [this](const char *name) {
        return m_window->findChild<QSplitter *>(QLatin1String(name));
    };
    for (const char *name : {"splitterSkinnedRecords", "splitterStaticRecords"})
        splitter(name)->setSizes({400, 400});
    for (const char *name : {"splitterSkinned", "splitterStatic"}) {
        splitter(name)->setStretchFactor(1, 1);
        splitter(name)->setSizes({186, 922, 320});
    }
    auto *console = m_window->findChild<QDockWidget *>(QStringLiteral("dockConsole"));
    m_window->tabifyDockWidget(console, m_window->findChild<QDockWidget *>(QStringLiteral("dockProblems")));
    console->raise();
    m_window->resizeDocks({console}, {200}, Qt::Vertical);
}

void WindowLayout::store()
{
    setModelShown(true); // which is how the window comes back
    QVariantMap splitters;
    for (const QSplitter *splitter : m_window->findChildren<QSplitter *>()) {
        if (!splitter->objectName().isEmpty())
            splitters.insert(splitter->objectName(), splitter->saveState());
    }
    Settings::MainWindowSplitters.setValue(splitters);
    Settings::MainWindowState.setValue(m_window->saveState());
}

void WindowLayout::restore()
{
    const QVariantMap splitters = Settings::MainWindowSplitters.value();
    for (QSplitter *splitter : m_window->findChildren<QSplitter *>()) {
        if (splitters.contains(splitter->objectName()))
            splitter->restoreState(splitters.value(splitter->objectName()).toByteArray());
    }
    m_window->restoreState(Settings::MainWindowState.value());
}

void WindowLayout::on_actionResetLayout_triggered()
{
    m_window->restoreState(m_defaults);
    setDefaults();
}

void WindowLayout::on_actionFullScreen_triggered(bool on)
{
    const Qt::WindowStates state = m_window->windowState();
    m_window->setWindowState(on ? state | Qt::WindowFullScreen : state & ~Qt::WindowFullScreen);
}
