// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WindowLayout.h"

#include "Settings.h"

#include <QAction>
#include <QCryptographicHash>
#include <QDataStream>
#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QSplitter>

#include <utility>

namespace {
/// Tells what was stored here from what somebody or something else made of it.
QByteArray checksumOf(const QByteArray &state, const QVariantMap &splitters)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << state << splitters;
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}
} // namespace

WindowLayout::WindowLayout(QMainWindow *window)
    : QObject(window)
    , m_window(window)
    , m_fullScreen(window->findChild<QAction *>(QStringLiteral("actionFullScreen")))
{
    window->installEventFilter(this);
    for (QDockWidget *dock : window->findChildren<QDockWidget *>())
        dock->installEventFilter(this);
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
    for (const char *name : {"dockProblems", "dockCompare", "dockTable", "dockCurves", "dockFind",
                             "dockUsedBy", "dockUv", "dockMaterials"})
        m_window->tabifyDockWidget(console, m_window->findChild<QDockWidget *>(QLatin1String(name)));
    console->raise();
    m_window->resizeDocks({console}, {200}, Qt::Vertical);
    m_window->resizeDocks({m_window->findChild<QDockWidget *>(QStringLiteral("dockBrowser"))}, {300},
                          Qt::Horizontal);
}

void WindowLayout::store()
{
    setModelShown(true); // which is how the window comes back
    QVariantMap splitters;
    for (const QSplitter *splitter : m_window->findChildren<QSplitter *>()) {
        if (!splitter->objectName().isEmpty())
            splitters.insert(splitter->objectName(), splitter->saveState());
    }
    const QByteArray state = m_window->saveState();
    Settings::MainWindowSplitters.setValue(splitters);
    Settings::MainWindowState.setValue(state);
    Settings::MainWindowChecksum.setValue(checksumOf(state, splitters));
}

void WindowLayout::restore()
{
    const QVariantMap splitters = Settings::MainWindowSplitters.value();
    const QByteArray state = Settings::MainWindowState.value();
    // The toolkit trusts the numbers in it with its memory.
    if (Settings::MainWindowChecksum.value() != checksumOf(state, splitters))
        return;
    for (QSplitter *splitter : m_window->findChildren<QSplitter *>()) {
        if (splitters.contains(splitter->objectName()))
            splitter->restoreState(splitters.value(splitter->objectName()).toByteArray());
    }
    m_window->restoreState(state);
}

void WindowLayout::on_actionResetLayout_triggered()
{
    m_aside.clear();
    m_window->restoreState(m_defaults);
    setDefaults();
}

void WindowLayout::on_actionFullScreen_triggered(bool on)
{
    const Qt::WindowStates state = m_window->windowState();
    m_window->setWindowState(on ? state | Qt::WindowFullScreen : state & ~Qt::WindowFullScreen);
}

bool WindowLayout::eventFilter(QObject *watched, QEvent *event)
{
    // Window managers take and leave the full screen too.
    if (watched == m_window && event->type() == QEvent::WindowStateChange)
        m_fullScreen->setChecked(m_window->isFullScreen());
    // What a hand closes, unlike what is hidden, does not come back.
    if (event->type() == QEvent::Close)
        m_aside.removeAll(qobject_cast<QDockWidget *>(watched));
    return QObject::eventFilter(watched, event);
}
