// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "OutputPaths.h"

#include "ImportOutput.h"
#include "Settings.h"
#include "ui_OutputPaths.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QSignalBlocker>

OutputPaths::OutputPaths(QWidget *parent)
    : QGroupBox(parent)
    , m_ui(std::make_unique<Ui::OutputPaths>())
{
    m_ui->setupUi(this);
    connect(m_ui->txtT2Dir, &QLineEdit::editingFinished, this, &OutputPaths::modFolderEdited);
    connect(m_ui->txtKMatPath, &QLineEdit::editingFinished, this, &OutputPaths::kmatPathEdited);
    connect(m_ui->txtTexPath, &QLineEdit::editingFinished, this, &OutputPaths::textureFolderEdited);
    for (QLineEdit *edit : {m_ui->txtKMatPath, m_ui->txtTexPath, m_ui->txtT2Dir})
        connect(edit, &QLineEdit::returnPressed, this, &OutputPaths::entered);
    connect(m_ui->cbCopyTextures, &QCheckBox::toggled, this, &OutputPaths::copyTexturesToggled);
    connect(m_ui->cbCreateKMat, &QCheckBox::toggled, this, &OutputPaths::createKMatToggled);
}

OutputPaths::~OutputPaths() = default;

void OutputPaths::edit(ImportChoices &choices)
{
    m_choices = &choices;
    m_choices->modFolder = Settings::OutputDir.value();
    setArrival(choices.arrival);
    showPaths();
}

void OutputPaths::setArrival(Arrival arrival)
{
    const bool isReady = arrival == Arrival::Ready;
    const QSignalBlocker noCopies(m_ui->cbCopyTextures);
    const QSignalBlocker noMaterials(m_ui->cbCreateKMat);
    m_choices->arrival = arrival;
    m_choices->copyTextures = (isReady ? Settings::ImportReadyTextures : Settings::ImportTextures).value();
    m_choices->createKMat = (isReady ? Settings::ImportReadyKMat : Settings::ImportKMat).value();
    m_ui->cbCopyTextures->setText(isReady ? tr("Write te&xtures as .png") : tr("C&opy .png textures"));
    m_ui->cbCopyTextures->setToolTip(
        isReady ? tr("Will write the textures of the model, whatever their format, to the Turok 2 Folder + "
                     "Texture Folder")
                : tr("Will copy any .png textures used by the model to the Turok 2 Folder + Texture Folder"));
    m_ui->cbCopyTextures->setChecked(m_choices->copyTextures);
    m_ui->cbCreateKMat->setChecked(m_choices->createKMat);
}

/// A folder of the system as the system writes it, what models and material files will say as they do: with
/// '/'.
void OutputPaths::showPaths()
{
    m_ui->txtT2Dir->setValue(QDir::toNativeSeparators(m_choices->modFolder));
    m_ui->txtKMatPath->setValue(m_choices->kmatPath);
    m_ui->txtTexPath->setValue(m_choices->textureFolder);
}

void OutputPaths::takeModFolder()
{
    m_choices->modFolder = normalizedFolder(m_ui->txtT2Dir->text());
    Settings::OutputDir.setValue(m_choices->modFolder);
}

void OutputPaths::takeKMatPath()
{
    const QString typed = QDir::fromNativeSeparators(m_ui->txtKMatPath->text());
    if (typed.isEmpty())
        m_choices->kmatPath = defaultKMatPath(m_choices->modelPath);
    else if (typed != m_choices->kmatPath &&
             !refusePath(typed, kmatPathProblem(pathInside(m_choices->modFolder, typed))))
        m_choices->kmatPath = withKMatSuffix(pathInside(m_choices->modFolder, typed));
    m_ui->txtKMatPath->setValue(m_choices->kmatPath);
}

void OutputPaths::takeTextureFolder()
{
    const QString typed = QDir::fromNativeSeparators(m_ui->txtTexPath->text());
    if (typed != m_choices->textureFolder && !refusePath(typed))
        m_choices->textureFolder = pathInside(m_choices->modFolder, typed);
    m_ui->txtTexPath->setValue(m_choices->textureFolder);
}

/// Says so and returns true when the path is not inside the mod folder, or models cannot name it.
bool OutputPaths::refusePath(const QString &path, const QString &problem)
{
    const bool isInside = !pathInside(m_choices->modFolder, path).isNull();
    if (isInside && problem.isEmpty())
        return false;
    ++m_refusals;
    if (!m_leaving)
        QMessageBox::warning(this, tr("kmat Path Error"),
                             isInside ? problem : tr("Path must be relative to Turok 2 Folder"));
    return true;
}

void OutputPaths::browseModFolder()
{
    const QString folder = m_chooseFolder(this, tr("Turok 2 Output Folder"), m_choices->modFolder);
    if (folder.isEmpty())
        return;
    m_ui->txtT2Dir->setValue(QDir::toNativeSeparators(folder));
    emit modFolderEdited();
}

void OutputPaths::browseKMatPath()
{
    QFileDialog dialog(this, tr("Save .kmat"), m_choices->modFolder, tr("Material (*.kmat)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("kmat"));
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // the import asks, with what it would keep
    const QFileInfo current(m_choices->modFolder + QLatin1Char('/') + m_choices->kmatPath);
    if (current.dir().exists())
        dialog.setDirectory(current.path());
    dialog.selectFile(current.fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    m_ui->txtKMatPath->setValue(dialog.selectedFiles().first());
    emit kmatPathEdited();
}

void OutputPaths::browseTextureFolder()
{
    const QString folder = m_chooseFolder(this, tr("Texture Output Folder"),
                                          m_choices->modFolder + QLatin1Char('/') + m_choices->textureFolder);
    if (folder.isEmpty())
        return;
    m_ui->txtTexPath->setValue(folder);
    emit textureFolderEdited();
}

void OutputPaths::storeCopyTextures(bool on)
{
    m_choices->copyTextures = on;
    (m_choices->arrival == Arrival::Ready ? Settings::ImportReadyTextures : Settings::ImportTextures)
        .setValue(on);
}

void OutputPaths::storeCreateKMat(bool on)
{
    m_choices->createKMat = on;
    (m_choices->arrival == Arrival::Ready ? Settings::ImportReadyKMat : Settings::ImportKMat).setValue(on);
}
