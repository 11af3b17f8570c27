// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportDialog.h"

#include "ImportFilter.h"
#include "LabelDrag.h"
#include "Language.h"
#include "ReplacePrompt.h"
#include "ui_ImportDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>
#include <QStyle>

#include <utility>

namespace {
constexpr int RoomForLists = 6; // lines, beside what they need
} // namespace

ImportDialog::ImportDialog(Mode mode, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::ImportDialog>())
    , m_mode(mode)
{
    m_ui->setupUi(this);
    LabelDrag::installAll(*this);
    m_paths = m_ui->gbOutputPaths;
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
    connect(&m_run, &ImportRun::skinnedMeshImported, this,
            [this](const SkinnedMesh &mesh, const AnimFile &anim) {
                m_hasRig = mesh.nodes.size() > 1 || !anim.blocks.empty();
            });
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

ImportDialog::~ImportDialog()
{
    // The toolkit hides it later; on some systems the field with the focus ends its editing there and then.
    for (QObject *part : findChildren<QObject *>())
        part->disconnect(this);
}

void ImportDialog::readChoices()
{
    m_choices.isStatic = m_mode == StaticMeshMode;
    m_choices.arrival = Settings::ImportReady.value() ? Arrival::Ready : Arrival::AsStored;
    m_swapYZ = Settings::ImportSwapYZ.value();
    m_choices.genNormals = Settings::ImportGenNormals.value();
    m_choices.flipUV = Settings::ImportFlipUV.value();
    m_choices.flipWindingOrder = Settings::ImportFlipWindingOrder.value();
    m_choices.rotatePitch = Settings::ImportRotPitch.value();
    m_choices.scale =
        qBound(m_ui->sbScale->minimum(), Settings::ImportScale.value(), m_ui->sbScale->maximum());
    m_paths->edit(m_choices);
    m_ui->pageReady->setHasAnimations(!m_choices.isStatic);
}

/// As large as the options are; on a small screen the banner makes room for them first, and then they scroll.
void ImportDialog::fitToScreen()
{
    const QSize frame(60, 60);
    const QSize available = QGuiApplication::primaryScreen()->availableSize() - frame;
    const QSize scrolled = m_ui->scrolledOptions->sizeHint() - m_ui->scrollOptions->sizeHint();
    QSize wanted = sizeHint() + scrolled.expandedTo({0, 0});
    wanted.rheight() += RoomForLists * fontMetrics().height();
    m_ui->lblBanner->setVisible(wanted.height() <= available.height());
    wanted.rwidth() += style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    resize(wanted.boundedTo(available));
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
    showPaths();
    updateImportButton();
    lookInside();
}

void ImportDialog::showPaths()
{
    m_ui->txtModelPath->setValue(nativeModelPath());
    m_paths->showPaths();
}

/// What was looked into already is not again, unless it was written since.
void ImportDialog::lookInside()
{
    const QFileInfo file(m_choices.modelPath);
    const QString looked = file.filePath() + file.lastModified().toString(Qt::ISODateWithMs);
    if (looked == m_lookedInto)
        return;
    m_lookedInto = looked;
    m_ui->contents->look(m_choices.modelPath);
}

void ImportDialog::fillEditors()
{
    m_ui->gbArrives->setArrival(m_choices.arrival);
    showArrival();
    m_ui->cbSwapYZ->setChecked(m_swapYZ);
    m_ui->cbGenNormals->setChecked(m_choices.genNormals);
    m_ui->cbFlipUV->setChecked(m_choices.flipUV);
    m_ui->cbFlipWindingOrder->setChecked(m_choices.flipWindingOrder);
    m_ui->cbRotatePitch->setChecked(m_choices.rotatePitch);
    m_ui->sbScale->setValue(m_choices.scale);
}

void ImportDialog::connectEditors()
{
    connect(m_ui->txtModelPath, &QLineEdit::editingFinished, this, &ImportDialog::OnTxtModelPathChanged);
    connect(m_ui->txtModelPath, &QLineEdit::textChanged, this, &ImportDialog::updateImportButton);
    connect(m_ui->txtModelPath, &QLineEdit::returnPressed, this, &ImportDialog::LoseWidgetFocus);
    connect(m_paths, &OutputPaths::kmatPathEdited, this, &ImportDialog::OnTxtKMatPathChanged);
    connect(m_paths, &OutputPaths::textureFolderEdited, this, &ImportDialog::OnTxtTexPathChanged);
    connect(m_paths, &OutputPaths::modFolderEdited, this, &ImportDialog::OnTxtT2DirChanged);
    connect(m_paths, &OutputPaths::entered, this, &ImportDialog::LoseWidgetFocus);
    connect(m_paths, &OutputPaths::copyTexturesToggled, this, &ImportDialog::OnCBCopyTexturesChanged);
    connect(m_paths, &OutputPaths::createKMatToggled, this, &ImportDialog::OnCBCreateKMatChanged);
    connect(m_ui->gbArrives, &ArrivalChoice::chosen, this, &ImportDialog::OnArrivalChanged);
    connect(m_ui->contents, &ModelContents::looked, this, &ImportDialog::OnContentsLooked);
    connect(m_ui->pageReady, &ReadyPage::turned, m_ui->contents, &ModelContents::tell);
    connect(m_ui->cbSwapYZ, &QCheckBox::toggled, this, &ImportDialog::OnSwapYZChanged);
    connect(m_ui->cbGenNormals, &QCheckBox::toggled, this, &ImportDialog::OnGenNormalsChanged);
    connect(m_ui->cbFlipUV, &QCheckBox::toggled, this, &ImportDialog::OnFlipUVChanged);
    connect(m_ui->cbFlipWindingOrder, &QCheckBox::toggled, this,
            &ImportDialog::OnCBcbFlipWindingOrderChanged);
    connect(m_ui->cbRotatePitch, &QCheckBox::toggled, this, &ImportDialog::OnCBRotatePitchChanged);
    connect(m_ui->sbScale, &FloatSpinBox::valueEdited, this, &ImportDialog::OnScaleChanged);
}

// --- Choices -----------------------------------------------------------------------------------------------

void ImportDialog::on_btnModelBrowse_clicked()
{
    QString chosen = Settings::ImportFilter.value();
    const QString path = QFileDialog::getOpenFileName(this, tr("Import Model to %1").arg(modeName()),
                                                      Settings::ImportPath.value(), importChoices(), &chosen);
    if (path.isEmpty())
        return;
    Settings::ImportFilter.setValue(chosen);
    Settings::ImportPath.setValue(QFileInfo(path).absolutePath());
    setModelPath(path);
}

void ImportDialog::LoseWidgetFocus()
{
    const int before = m_paths->refusals();
    if (QWidget *editor = focusWidget())
        editor->clearFocus();
    m_staysPut = m_paths->refusals() != before;
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
    showPaths();
    lookInside();
}

void ImportDialog::OnArrivalChanged(Arrival arrival)
{
    m_choices.arrival = arrival;
    Settings::ImportReady.setValue(arrival == Arrival::Ready);
    showArrival();
}

void ImportDialog::showArrival()
{
    m_paths->setArrival(m_choices.arrival);
    m_ui->stackArrival->setCurrentIndex(int(m_choices.arrival));
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
    const ModelUpdater::Answer answer =
        m_offerUpdate ? m_offerUpdate(m_choices.modelPath) : ModelUpdater::Answer::ImportAsNew;
    if (answer == ModelUpdater::Answer::Updated)
        QDialog::accept();
    if (answer != ModelUpdater::Answer::ImportAsNew)
        return;
    const QStringList problems = outputProblems(m_choices);
    if (!problems.isEmpty()) {
        QMessageBox::warning(this, tr("Output Folder Error"), problems.join(QLatin1Char('\n')));
        return;
    }
    m_ui->lblProgress->setText(tr("Reading '%1'").arg(nativeModelPath()));
    m_ui->stackPages->setCurrentWidget(m_ui->pageProgress);
    m_ui->btnStop->setFocus();
    // Its scale is proposed by what the file holds.
    m_ui->lblElapsed->clear();
    m_isWaiting = m_choices.arrival == Arrival::Ready && m_ui->contents->isLooking();
    if (!m_isWaiting)
        start();
}

void ImportDialog::start()
{
    m_choices.ready = m_ui->pageReady->choices();
    m_hasRig = false;
    m_tick.start();
    m_run.start(m_choices);
    updateElapsed();
}

void ImportDialog::OnContentsLooked()
{
    m_ui->pageReady->setSummary(m_ui->contents->summary());
    m_ui->btnSuccessAgain->setVisible(gainsFromReady());
    if (m_isWaiting && !m_ui->contents->isLooking()) {
        m_isWaiting = false;
        start();
    }
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
    if (!m_isWaiting) {
        m_run.cancel();
        return;
    }
    m_isWaiting = false;
    on_btnErrorBack_clicked();
}

void ImportDialog::on_btnCancel_clicked()
{
    reject();
}

void ImportDialog::on_btnSuccess_clicked()
{
    accept();
}

void ImportDialog::on_btnSuccessAgain_clicked()
{
    m_ui->gbArrives->setArrival(Arrival::Ready);
    OnArrivalChanged(Arrival::Ready);
    m_ui->stackPages->setCurrentWidget(m_ui->pageOptions); // there is what a refusal is about
    on_btnImport_clicked();
}

void ImportDialog::on_btnErrorBack_clicked()
{
    m_ui->stackPages->setCurrentWidget(m_ui->pageOptions);
    m_ui->txtModelPath->setFocus();
}

void ImportDialog::reject()
{
    m_paths->setLeaving(!m_run.isRunning());
    if (m_isWaiting)
        on_btnStop_clicked();
    else if (m_run.isRunning())
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

/// Whether what came as it is stored may be more than its numbers.
bool ImportDialog::gainsFromReady() const
{
    const SceneSummary *summary = m_ui->contents->summary();
    return m_choices.arrival == Arrival::AsStored && (m_hasRig || (summary && summary->objects > 1));
}

void ImportDialog::showSuccess(const ImportMessages &messages, const QString &outcome)
{
    m_ui->lblSuccess->setText(tr("Successfully imported '%1' to %2\n").arg(nativeModelPath(), modeName()) +
                              outcome);
    m_ui->listSuccess->setMessages(messages, {LogSeverity::Info, LogSeverity::Warning});
    m_ui->btnSuccessAgain->setVisible(gainsFromReady());
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
