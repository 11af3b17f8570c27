// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Preferences.h"

#include "FileSystem.h"
#include "Files.h"
#include "FolderChooser.h"
#include "OptionsDialog.h"
#include "Settings.h"

#include <QDir>
#include <QMessageBox>

#include <utility>

Preferences::Preferences(Shortcuts &shortcuts, QWidget *window)
    : QObject(window)
    , m_shortcuts(shortcuts)
    , m_window(window)
{}

void Preferences::OnStartSetupPaths()
{
    if (!std::exchange(m_askedForFolders, true))
        m_atStart.read({Settings::GamePath.value()}, [this] { checkFolders(); });
}

void Preferences::checkFolders()
{
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

void Preferences::offerArchive(const QString &archive)
{
    m_offered.read({archive}, [this, archive] { askAbout(archive); });
}

void Preferences::askAbout(const QString &archive)
{
    const QString native = QDir::toNativeSeparators(archive);
    const QString problem = Files::archiveProblem(archive);
    if (!problem.isEmpty()) {
        QMessageBox box(QMessageBox::Warning, tr("File error"), tr("Failed to open\n%1").arg(native),
                        QMessageBox::Ok, m_window);
        box.setInformativeText(problem);
        box.exec();
        return;
    }
    if (FileSystem::isSamePath(normalizedFolder(Settings::GamePath.value()), archive)) {
        QMessageBox::information(
            m_window, tr("Game Folder"),
            tr("The options have this archive as the game folder already.\n\n%1").arg(native));
        return;
    }
    QMessageBox box(QMessageBox::Question, tr("Game Folder"),
                    tr("Use this archive as the game folder?\n\n%1").arg(native),
                    QMessageBox::Yes | QMessageBox::No, m_window);
    box.setDefaultButton(QMessageBox::Yes);
    box.setInformativeText(
        tr("Models, materials and textures of the game are read from it then. Nothing is written into it."));
    if (box.exec() != QMessageBox::Yes)
        return;
    Settings::GamePath.setValue(archive);
    emit accepted();
    emit foldersChanged();
}
