// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UpdatePrompt.h"

#include "Settings.h"
#include "WebLink.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>
#include <QStatusBar>
#include <QTimer>

namespace {
constexpr int startDelayMs = 100;
// What a box can show without growing out of the screen.
constexpr int versionLength = 40;
constexpr int messageLength = 2000;
} // namespace

UpdatePrompt::UpdatePrompt(QAction *action, QMainWindow *window)
    : QObject(window)
    , m_window(window)
    , m_check(this)
{
    connect(action, &QAction::triggered, this, &UpdatePrompt::on_actionCheckForUpdates_triggered);
    // Queued: a box must not run within the network's own signals.
    connect(&m_check, &UpdateCheck::updateOffered, this, &UpdatePrompt::offer, Qt::QueuedConnection);
    connect(&m_check, &UpdateCheck::upToDate, this, &UpdatePrompt::tellUpToDate, Qt::QueuedConnection);
    QTimer::singleShot(startDelayMs, &m_check, &UpdateCheck::checkIfDue);
}

void UpdatePrompt::on_actionCheckForUpdates_triggered()
{
    if (Settings::UpdateUrl.value().trimmed().isEmpty()) {
        QMessageBox::information(owner(), tr("Updates"), tr("No address is set that tells of new versions."));
        return;
    }
    m_window->statusBar()->showMessage(tr("Checking for updates…"));
    m_check.DoUpdateCheck(true);
}

void UpdatePrompt::offer(const QString &version, const QString &message, const QString &link)
{
    if (!isWindowThere())
        return;
    QMessageBox box(owner());
    box.setIcon(QMessageBox::Question);
    box.setWindowTitle(tr("New Version Available"));
    // Before the text, which may hold markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(tr("Korvane v%1 is now available! Do you want to update?\n\n%2")
                    .arg(version.left(versionLength), message.left(messageLength)));
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::Yes);
    if (box.exec() == QMessageBox::Yes)
        openWebLink(link, owner());
}

void UpdatePrompt::tellUpToDate()
{
    if (isWindowThere())
        QMessageBox::information(owner(), tr("Updates"), tr("You are up to date!"));
}

/// The answer may come when the window is closed already.
bool UpdatePrompt::isWindowThere()
{
    m_window->statusBar()->clearMessage();
    return m_window->isVisible();
}

QWidget *UpdatePrompt::owner() const
{
    QWidget *above = QApplication::activeModalWidget();
    return above ? above : m_window;
}
