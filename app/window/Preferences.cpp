// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Preferences.h"

#include "Files.h"
#include "OptionsDialog.h"
#include "Settings.h"

#include <QMessageBox>

#include <utility>

Preferences::Preferences(Shortcuts &shortcuts, QWidget *window)
    : QObject(window)
    , m_shortcuts(shortcuts)
    , m_window(window)
{}

void Preferences::OnStartSetupPaths()
{
    if (std::exchange(m_askedForFolders, true))
        return;
    const QString gamePath = Settings::GamePath.value();
    if (!gamePath.isEmpty() && !Settings::OutputDir.value().isEmpty() && Files::isFolder(gamePath))
        return;
    QMessageBox::information(m_window, tr("Setup Folder Paths"),
                             tr("Please setup your folder paths before using Korvane. Thank you!"));
    on_actionPreferences_triggered();
}

void Preferences::on_actionPreferences_triggered()
{
    OptionsDialog dialog(m_window, &m_shortcuts);
    const auto folders = [] { return qMakePair(Settings::GamePath.value(), Settings::OutputDir.value()); };
    const auto before = folders();
    if (dialog.exec() != QDialog::Accepted)
        return;
    emit accepted();
    if (folders() != before)
        emit foldersChanged();
}
