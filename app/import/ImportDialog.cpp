// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportDialog.h"

#include "ImportFilter.h"
#include "ImportOutput.h"
#include "Language.h"
#include "ReplacePrompt.h"
#include "Settings.h"
#include "ui_ImportDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>

#include <utility>

namespace {
template <typename T>
void store(T &field, const SettingKey<T> &key, const T &value)
{
    field = value;
    key.setValue(value);
}

float storedScale(const FloatSpinBox &box)
{
    return qBound(box.minimum(), Settings::ImportScale.value(), box.maximum());
}
} // namespace

ImportDialog::ImportDialog(Mode mode, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::ImportDialog>())
    , m_mode(mode)
{
    m_ui->setupUi(this);
    readChoices();
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowTitle(tr("Import model to %1").arg(modeName()));
    m_ui->btnImport->setText(tr("&Import to %1!").arg(modeName()));
    connect(m_ui->btnSuccessCopy, &QPushButton::clicked, m_ui->listSuccess, &MessageList::copy);
    connect(m_ui->btnErrorCopy, &QPushButton::clicked, m_ui->listError, &MessageList::copy);
    for (QLabel *label : findChildren<QLabel *>()) {
        // An underlined letter is drawn without kerning, and takes a little more room than was asked for.
        if (label->buddy())
            label->setMinimumWidth(label->sizeHint().width() + 2);
    }
    fitToScreen();
    fillEditors();
    connectEditors();
    connect(&m_run, &ImportRun::skinnedMeshImported, this, &ImportDialog::skinnedMeshImported);
    connect(&m_run, &ImportRun::staticMeshImported, this, &ImportDialog::staticMeshImported);
    connect(&m_run, &ImportRun::finished, this, &ImportDialog::onFinished);
    connect(&m_run, &ImportRun::declined, this, &ImportDialog::on_btnErrorBack_clicked);
    m_run.setDecision([this](ImportedFiles &files) {
        m_tick.stop();
        return ReplacePrompt::settle(files, windowTitle(), this);
    });
    m_tick.setInterval(100);
    connect(&m_tick, &QTimer::timeout, this, &ImportDialog::updateElapsed);
    m_ui->stackPages->setCurrentWidget(m_ui->pageOptions);
    updateImportButton();
}

ImportDialog::~ImportDialog() = default;

void ImportDialog::readChoices()
{
    m_choices.isStatic = m_mode == StaticMeshMode;
    m_choices.modFolder = Settings::OutputDir.value();
    m_swapYZ = Settings::ImportSwapYZ.value();
    m_choices.genNormals = Settings::ImportGenNormals.value();
    m_choices.flipUV = Settings::ImportFlipUV.value();
    m_choices.flipWindingOrder = Settings::ImportFlipWindingOrder.value();
    m_choices.copyTextures = Settings::ImportTextures.value();
    m_choices.createKMat = Settings::ImportKMat.value();
    m_choices.rotatePitch = Settings::ImportRotPitch.value();
    m_choices.scale = storedScale(*m_ui->sbScale);
}

/// On a small screen the banner makes room for the buttons.
void ImportDialog::fitToScreen()
{
    const QSize frame(60, 60);
    const QSize available = QGuiApplication::primaryScreen()->availableSize() - frame;
    m_ui->lblBanner->setVisible(size().expandedTo(sizeHint()).height() <= available.height());
    resize(size().boundedTo(available));
}

QString ImportDialog::modeName() const
{
    return m_mode == SkinnedMeshMode ? tr("Skinned Mesh") : tr("Static Mesh");
}

QString ImportDialog::nativeModelPath() const
{
    return QDir::toNativeSeparators(m_choices.modelPath);
}

void ImportDialog::setVersions(qint32 meshVersion, qint32 animVersion)
{
    m_choices.meshVersion = meshVersion;
    m_choices.animVersion = animVersion;
}

void ImportDialog::setModelPath(const QString &path)
{
    m_choices.modelPath = QFileInfo(path).absoluteFilePath();
    m_choices.kmatPath = defaultKMatPath(m_choices.modelPath);
    fillEditors();
    updateImportButton();
}

void ImportDialog::fillEditors()
{
    m_ui->txtModelPath->setValue(nativeModelPath());
    m_ui->txtKMatPath->setValue(QDir::toNativeSeparators(m_choices.kmatPath));
    m_ui->txtTexPath->setValue(QDir::toNativeSeparators(m_choices.textureFolder));
    m_ui->txtT2Dir->setValue(QDir::toNativeSeparators(m_choices.modFolder));
    m_ui->cbSwapYZ->setChecked(m_swapYZ);
    m_ui->cbGenNormals->setChecked(m_choices.genNormals);
    m_ui->cbFlipUV->setChecked(m_choices.flipUV);
    m_ui->cbFlipWindingOrder->setChecked(m_choices.flipWindingOrder);
    m_ui->cbCopyTextures->setChecked(m_choices.copyTextures);
    m_ui->cbCreateKMat->setChecked(m_choices.createKMat);
    m_ui->cbRotatePitch->setChecked(m_choices.rotatePitch);
    m_ui->sbScale->setValue(m_choices.scale);
}

void ImportDialog::connectEditors()
{
    connect(m_ui->txtModelPath, &QLineEdit::editingFinished, this, &ImportDialog::OnTxtModelPathChanged);
    connect(m_ui->txtModelPath, &QLineEdit::textChanged, this, &ImportDialog::updateImportButton);
    connect(m_ui->txtKMatPath, &QLineEdit::editingFinished, this, &ImportDialog::OnTxtKMatPathChanged);
    connect(m_ui->txtTexPath, &QLineEdit::editingFinished, this, &ImportDialog::OnTxtTexPathChanged);
    connect(m_ui->txtT2Dir, &QLineEdit::editingFinished, this, &ImportDialog::OnTxtT2DirChanged);
    for (QLineEdit *edit : {m_ui->txtModelPath, m_ui->txtKMatPath, m_ui->txtTexPath, m_ui->txtT2Dir})
        connect(edit, &QLineEdit::returnPressed, this, &ImportDialog::LoseWidgetFocus);
    connect(m_ui->cbSwapYZ, &QCheckBox::toggled, this, &ImportDialog::OnSwapYZChanged);
    connect(m_ui->cbGenNormals, &QCheckBox::toggled, this, &ImportDialog::OnGenNormalsChanged);
    connect(m_ui->cbFlipUV, &QCheckBox::toggled, this, &ImportDialog::OnFlipUVChanged);
    connect(m_ui->cbFlipWindingOrder, &QCheckBox::toggled, this,
            &ImportDialog::OnCBcbFlipWindingOrderChanged);
    connect(m_ui->cbCopyTextures, &QCheckBox::toggled, this, &ImportDialog::OnCBCopyTexturesChanged);
    connect(m_ui->cbCreateKMat, &QCheckBox::toggled, this, &ImportDialog::OnCBCreateKMatChanged);
    connect(m_ui->cbRotatePitch, &QCheckBox::toggled, this, &ImportDialog::OnCBRotatePitchChanged);
    connect(m_ui->sbScale, &FloatSpinBox::valueEdited, this, &ImportDialog::OnScaleChanged);
}

// --- Choices -----------------------------------------------------------------------------------------------

void ImportDialog::on_btnModelBrowse_clicked()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Import Model to %1").arg(modeName()),
                                                      Settings::ImportPath.value(), importFilter());
    if (path.isEmpty())
        return;
    Settings::ImportPath.setValue(QFileInfo(path).absolutePath());
    setModelPath(path);
}

void ImportDialog::on_btnT2DirBrowse_clicked()
{
    const QString folder = m_chooseFolder(this, tr("Turok 2 Output Folder"), m_choices.modFolder);
    if (folder.isEmpty())
        return;
    m_ui->txtT2Dir->setValue(QDir::toNativeSeparators(folder));
    OnTxtT2DirChanged();
}

void ImportDialog::on_btnkmatPathBrowse_clicked()
{
    QFileDialog dialog(this, tr("Save .kmat"), m_choices.modFolder, tr("Material (*.kmat)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("kmat"));
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // the import asks, with what it would keep
    const QFileInfo current(m_choices.modFolder + QLatin1Char('/') + m_choices.kmatPath);
    if (current.dir().exists())
        dialog.setDirectory(current.path());
    dialog.selectFile(current.fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    m_ui->txtKMatPath->setValue(dialog.selectedFiles().first());
    OnTxtKMatPathChanged();
}

void ImportDialog::on_btnTextureDirBrowse_clicked()
{
    const QString folder = m_chooseFolder(this, tr("Texture Output Folder"),
                                          m_choices.modFolder + QLatin1Char('/') + m_choices.textureFolder);
    if (folder.isEmpty())
        return;
    m_ui->txtTexPath->setValue(folder);
    OnTxtTexPathChanged();
}

void ImportDialog::LoseWidgetFocus()
{
    const int before = m_refusals;
    if (QWidget *editor = focusWidget())
        editor->clearFocus();
    m_staysPut = m_refusals != before;
}

void ImportDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!std::exchange(m_staysPut, false) || !isEnter)
        QDialog::keyPressEvent(event);
}

void ImportDialog::OnTxtModelPathChanged()
{
    const QString path = QDir::fromNativeSeparators(m_ui->txtModelPath->text());
    if (path == m_choices.modelPath)
        return;
    // A material file that was named after the model before follows; a chosen one stays.
    const bool follows =
        m_choices.kmatPath.isEmpty() || m_choices.kmatPath == defaultKMatPath(m_choices.modelPath);
    m_choices.modelPath = path;
    if (follows)
        m_choices.kmatPath = defaultKMatPath(path);
    m_ui->txtKMatPath->setValue(QDir::toNativeSeparators(m_choices.kmatPath));
}

void ImportDialog::OnTxtKMatPathChanged()
{
    const QString typed = QDir::fromNativeSeparators(m_ui->txtKMatPath->text());
    if (typed.isEmpty())
        m_choices.kmatPath = defaultKMatPath(m_choices.modelPath);
    else if (typed != m_choices.kmatPath && !refusePath(typed, kmatPathProblem(typed)))
        m_choices.kmatPath = withKMatSuffix(pathInside(m_choices.modFolder, typed));
    m_ui->txtKMatPath->setValue(QDir::toNativeSeparators(m_choices.kmatPath));
}

void ImportDialog::OnTxtTexPathChanged()
{
    const QString typed = QDir::fromNativeSeparators(m_ui->txtTexPath->text());
    if (typed != m_choices.textureFolder && !refusePath(typed))
        m_choices.textureFolder = pathInside(m_choices.modFolder, typed);
    m_ui->txtTexPath->setValue(QDir::toNativeSeparators(m_choices.textureFolder));
}

/// Says so and returns true when the path is not inside the mod folder, or models cannot name it.
bool ImportDialog::refusePath(const QString &path, const QString &problem)
{
    const bool isInside = !pathInside(m_choices.modFolder, path).isNull();
    if (isInside && problem.isEmpty())
        return false;
    ++m_refusals;
    if (!m_leaving)
        QMessageBox::warning(this, tr("kmat Path Error"),
                             isInside ? problem : tr("Path must be relative to Turok 2 Folder"));
    return true;
}

void ImportDialog::OnTxtT2DirChanged()
{
    store(m_choices.modFolder, Settings::OutputDir, normalizedFolder(m_ui->txtT2Dir->text()));
}

void ImportDialog::OnSwapYZChanged(bool on)
{
    store(m_swapYZ, Settings::ImportSwapYZ, on);
}

void ImportDialog::OnGenNormalsChanged(bool on)
{
    store(m_choices.genNormals, Settings::ImportGenNormals, on);
}

void ImportDialog::OnFlipUVChanged(bool on)
{
    store(m_choices.flipUV, Settings::ImportFlipUV, on);
}

void ImportDialog::OnCBcbFlipWindingOrderChanged(bool on)
{
    store(m_choices.flipWindingOrder, Settings::ImportFlipWindingOrder, on);
}

void ImportDialog::OnCBCopyTexturesChanged(bool on)
{
    store(m_choices.copyTextures, Settings::ImportTextures, on);
}

void ImportDialog::OnCBCreateKMatChanged(bool on)
{
    store(m_choices.createKMat, Settings::ImportKMat, on);
}

void ImportDialog::OnCBRotatePitchChanged(bool on)
{
    store(m_choices.rotatePitch, Settings::ImportRotPitch, on);
}

void ImportDialog::OnScaleChanged(float scale)
{
    store(m_choices.scale, Settings::ImportScale, scale);
}

void ImportDialog::updateImportButton()
{
    m_ui->btnImport->setEnabled(!m_ui->txtModelPath->text().isEmpty());
}

// --- Run ---------------------------------------------------------------------------------------------------

void ImportDialog::on_btnImport_clicked()
{
    if (TypingField::returnToRefused(*this))
        return;
    const QStringList problems = outputProblems(m_choices);
    if (!problems.isEmpty()) {
        QMessageBox::warning(this, tr("Output Folder Error"), problems.join(QLatin1Char('\n')));
        return;
    }
    m_ui->lblProgress->setText(tr("Reading '%1'").arg(nativeModelPath()));
    m_ui->stackPages->setCurrentWidget(m_ui->pageProgress);
    m_ui->btnStop->setFocus();
    m_tick.start();
    m_run.start(m_choices);
    updateElapsed();
}

void ImportDialog::updateElapsed()
{
    const double seconds = double(m_run.elapsed()) / 1000.0;
    m_ui->lblElapsed->setText(tr("%1 s of at most %2 s")
                                  .arg(Language::locale().toString(seconds, 'f', 1),
                                       Language::locale().toString(ImportRun::timeLimit())));
}

void ImportDialog::on_btnStop_clicked()
{
    m_run.cancel();
}

void ImportDialog::on_btnCancel_clicked()
{
    reject();
}

void ImportDialog::on_btnSuccess_clicked()
{
    accept();
}

void ImportDialog::on_btnErrorBack_clicked()
{
    m_ui->stackPages->setCurrentWidget(m_ui->pageOptions);
    m_ui->txtModelPath->setFocus();
}

void ImportDialog::reject()
{
    m_leaving = !m_run.isRunning();
    if (m_run.isRunning())
        m_run.cancel();
    else if (m_ui->stackPages->currentWidget() == m_ui->pageSuccess)
        accept();
    else
        QDialog::reject();
}

// --- Result ------------------------------------------------------------------------------------------------

void ImportDialog::onFinished(const ImportMessages &messages, const QString &outcome)
{
    m_tick.stop();
    if (messages.hasError())
        showError(messages);
    else
        showSuccess(messages, outcome);
}

void ImportDialog::showSuccess(const ImportMessages &messages, const QString &outcome)
{
    m_ui->lblSuccess->setText(tr("Successfully imported '%1' to %2\n").arg(nativeModelPath(), modeName()) +
                              outcome);
    m_ui->listSuccess->setMessages(messages, {LogSeverity::Info, LogSeverity::Warning});
    m_ui->stackPages->setCurrentWidget(m_ui->pageSuccess);
    m_ui->btnSuccess->setFocus();
}

void ImportDialog::showError(const ImportMessages &messages)
{
    m_ui->lblError->setText(tr("Error importing '%1'").arg(nativeModelPath()));
    m_ui->listError->setMessages(messages, {LogSeverity::Error, LogSeverity::Warning, LogSeverity::Info});
    m_ui->stackPages->setCurrentWidget(m_ui->pageError);
    m_ui->btnErrorBack->setFocus();
}
