// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ArchivesAhead.h"
#include "FolderChooser.h"

#include <QDialog>

#include <memory>

class QLabel;
class QLineEdit;
class Shortcuts;
class ShortcutsPage;

namespace Ui {
class OptionsDialog;
}

/// The preferences: the two folders and the switches. It works on copies; only OK writes them to the
/// settings.
class OptionsDialog : public QDialog
{
    Q_OBJECT

public:
    /// With `shortcuts` it has a page for them.
    explicit OptionsDialog(QWidget *parent = nullptr, Shortcuts *shortcuts = nullptr);
    ~OptionsDialog() override;

    void setFolderChooser(FolderChooser chooser) { m_chooseFolder = std::move(chooser); }
    /// The same for the game's archive, which is a file.
    void setArchiveChooser(FolderChooser chooser) { m_chooseArchive = std::move(chooser); }

private slots:
    void on_buttonBox_accepted();
    void on_btnGame_clicked();
    void on_btnGameArchive_clicked();
    void on_btnT2DirBrowse_clicked();
    void on_btnSounds_clicked();
    void OnTxtGamePathChanged();
    void OnTxtT2DirChanged();
    void on_cbUpdates_clicked(bool checked) { m_updates = checked; }
    void on_cbHideMeshData_clicked(bool checked) { m_hideMeshData = checked; }
    void on_cbHideAnimData_clicked(bool checked) { m_hideAnimData = checked; }
    void on_cbAnimAutoPlay_clicked(bool checked) { m_animAutoPlay = checked; }
    void on_cbRestoreSession_clicked(bool checked) { m_restoreSession = checked; }

private:
    void setGamePath(const QString &path);
    void updateGameHint();
    void showGameHint(const QString &path);
    static void updateHint(const QLineEdit *edit, QLabel *hint);

    std::unique_ptr<Ui::OptionsDialog> m_ui;
    FolderChooser m_chooseFolder = chooseFolder;
    FolderChooser m_chooseArchive;
    QString m_gamePath;
    QString m_outputDir;
    bool m_updates;
    bool m_hideMeshData;
    bool m_hideAnimData;
    bool m_animAutoPlay;
    bool m_restoreSession;
    ShortcutsPage *m_shortcuts = nullptr;
    ArchivesAhead m_ahead;
};
