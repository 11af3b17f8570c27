// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "OptionsDialog.h"

#include "Files.h"
#include "LabelDrag.h"
#include "Settings.h"
#include "ShortcutsPage.h"
#include "ui_OptionsDialog.h"

#include <QAbstractButton>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace {
QString chooseArchive(QWidget *parent, const QString &title, const QString &start)
{
    return QFileDialog::getOpenFileName(parent, title, start,
                                        OptionsDialog::tr("Archives of the game (*.kpf *.zip)"));
}
} // namespace

OptionsDialog::OptionsDialog(QWidget *parent, Shortcuts *shortcuts)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::OptionsDialog>())
    , m_chooseArchive(chooseArchive)
    , m_gamePath(Settings::GamePath.value())
    , m_outputDir(Settings::OutputDir.value())
    , m_updates(Settings::Updates.value())
    , m_hideMeshData(Settings::HideMeshData.value())
    , m_hideAnimData(Settings::HideAnimData.value())
    , m_animAutoPlay(Settings::AnimationAutoPlay.value())
    , m_restoreSession(Settings::RestoreSession.value())
{
    m_ui->setupUi(this);
    LabelDrag::installAll(*this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    m_ui->txtGamePath->setValue(QDir::toNativeSeparators(m_gamePath));
    m_ui->txtT2Dir->setValue(QDir::toNativeSeparators(m_outputDir));
    m_ui->cbUpdates->setChecked(m_updates);
    m_ui->cbHideMeshData->setChecked(m_hideMeshData);
    m_ui->cbHideAnimData->setChecked(m_hideAnimData);
    m_ui->cbAnimAutoPlay->setChecked(m_animAutoPlay);
    m_ui->cbRestoreSession->setChecked(m_restoreSession);
    m_ui->sbImportTimeLimit->setMinimum(1);
    m_ui->sbImportTimeLimit->setMaximum(3600);
    m_ui->sbImportTimeLimit->setSuffix(tr(" s"));
    m_ui->sbImportTimeLimit->setValue(Settings::ImportTimeLimit.value());

    connect(m_ui->txtGamePath, &QLineEdit::editingFinished, this, &OptionsDialog::OnTxtGamePathChanged);
    connect(m_ui->txtT2Dir, &QLineEdit::editingFinished, this, &OptionsDialog::OnTxtT2DirChanged);
    updateGameHint();
    updateHint(m_ui->txtT2Dir, m_ui->lblT2DirHint);
    m_ui->txtSounds->setValue(QDir::toNativeSeparators(Settings::SoundsFolder.value()));
    connect(m_ui->txtSounds, &QLineEdit::textChanged, this,
            [this] { updateHint(m_ui->txtSounds, m_ui->lblSoundsHint); });
    updateHint(m_ui->txtSounds, m_ui->lblSoundsHint);
    if (shortcuts) {
        m_shortcuts = new ShortcutsPage(*shortcuts);
        m_ui->tabOptions->addTab(m_shortcuts, tr("&Shortcuts"));
        // Tab goes through the page before it comes to the buttons.
        QWidget *last = m_shortcuts->findChild<QWidget *>(QStringLiteral("btnShortcutTake"));
        for (QAbstractButton *button : m_ui->buttonBox->buttons()) {
            setTabOrder(last, button);
            last = button;
        }
    }
    m_ui->txtGamePath->setFocus();
}

OptionsDialog::~OptionsDialog() = default;

void OptionsDialog::on_buttonBox_accepted()
{
    if (m_shortcuts && !m_shortcuts->confirm()) {
        m_ui->tabOptions->setCurrentWidget(m_shortcuts);
        return;
    }
    if (TypingField::returnToRefused(*this))
        return;
    // A text set by the program finishes no edit.
    OnTxtGamePathChanged();
    OnTxtT2DirChanged();

    Settings::GamePath.setValue(normalizedFolder(m_gamePath));
    Settings::OutputDir.setValue(normalizedFolder(m_outputDir));
    Settings::SoundsFolder.setValue(normalizedFolder(m_ui->txtSounds->text()));
    Settings::Updates.setValue(m_updates);
    Settings::HideMeshData.setValue(m_hideMeshData);
    Settings::HideAnimData.setValue(m_hideAnimData);
    Settings::AnimationAutoPlay.setValue(m_animAutoPlay);
    Settings::RestoreSession.setValue(m_restoreSession);
    Settings::ImportTimeLimit.setValue(m_ui->sbImportTimeLimit->value());
    m_ui->gbAppearance->store();
    if (m_shortcuts)
        m_shortcuts->store();
    accept();
}

void OptionsDialog::on_btnGame_clicked()
{
    const QString folder = m_chooseFolder(this, tr("game.kpf unzipped folder"),
                                          Files::folderOnDisk(normalizedFolder(m_ui->txtGamePath->text())));
    if (!folder.isEmpty())
        setGamePath(folder);
}

void OptionsDialog::on_btnGameArchive_clicked()
{
    // With the archive that the path leads into, where there is one.
    const QString path = normalizedFolder(m_ui->txtGamePath->text());
    const QString held = Files::heldBy(path);
    const QString archive = m_chooseArchive(this, tr("The game's archive, game.kpf"),
                                            QFileInfo(held).isFile() ? held : Files::folderOnDisk(path));
    if (!archive.isEmpty())
        setGamePath(archive);
}

void OptionsDialog::setGamePath(const QString &path)
{
    m_ui->txtGamePath->setValue(QDir::toNativeSeparators(path));
    OnTxtGamePathChanged();
}

void OptionsDialog::on_btnT2DirBrowse_clicked()
{
    const QString folder = m_chooseFolder(this, tr("Turok 2(Your Mod) Folder"), m_ui->txtT2Dir->text());
    if (folder.isEmpty())
        return;
    m_ui->txtT2Dir->setValue(QDir::toNativeSeparators(folder));
    OnTxtT2DirChanged();
}

void OptionsDialog::on_btnSounds_clicked()
{
    const QString folder = m_chooseFolder(this, tr("Folder of sounds"), m_ui->txtSounds->text());
    if (!folder.isEmpty())
        m_ui->txtSounds->setValue(QDir::toNativeSeparators(folder));
}

void OptionsDialog::OnTxtGamePathChanged()
{
    m_gamePath = m_ui->txtGamePath->text();
    updateGameHint();
}

void OptionsDialog::updateGameHint()
{
    const QString path = normalizedFolder(m_ui->txtGamePath->text());
    if (Files::isUnread(path))
        m_ui->lblGamePathHint->hide(); // nothing is known of it yet
    m_ahead.read({path}, [this, path] { showGameHint(path); });
}

/// An archive takes the place of the folder if it can be read.
void OptionsDialog::showGameHint(const QString &path)
{
    m_ui->lblGamePathHint->setVisible(!path.isEmpty() && !Files::isFolder(path));
    m_ui->lblGamePathHint->setText(!QFileInfo(path).isFile() ? tr("There is no such folder.")
                                   : Files::isArchiveName(path)
                                       ? Files::archiveProblem(path)
                                       : tr("The name of an archive ends in .kpf or .zip."));
}

void OptionsDialog::OnTxtT2DirChanged()
{
    m_outputDir = m_ui->txtT2Dir->text();
    updateHint(m_ui->txtT2Dir, m_ui->lblT2DirHint);
}

/// A missing folder is worth a word, not an obstacle: the drive may just not be there today.
void OptionsDialog::updateHint(const QLineEdit *edit, QLabel *hint)
{
    const QString folder = normalizedFolder(edit->text());
    hint->setVisible(!folder.isEmpty() && !QFileInfo(folder).isDir());
}
