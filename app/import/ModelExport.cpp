// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelExport.h"

#include "Files.h"
#include "FolderChooser.h"
#include "GltfClips.h"
#include "GltfExport.h"
#include "GltfFiles.h"
#include "Icons.h"
#include "ImportMessages.h"
#include "ImportRun.h"
#include "Log.h"
#include "MaterialFiles.h"
#include "Memory.h"
#include "Patience.h"
#include "PosedMesh.h"
#include "RecordSelection.h"
#include "ReplacePrompt.h"
#include "Settings.h"
#include "StaticMeshExport.h"

#include <QAction>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QStatusBar>

namespace {
constexpr size_t MostNamed = 3;      ///< animations in a file's name
constexpr int PercentOfContent = 75; ///< of the time of a glTF export; the bytes of the files take the rest

/// A kind of file that an export can be saved as.
struct ExportFormat
{
    QString filter;
    QString suffix;
};

/// Lets the user choose a file of one of these formats; `format` is the suffix of the one that is offered
/// first, and becomes that of the one that was chosen. What is replaced is asked about later, with all else
/// that is. Empty when the user thought better of it.
QString chooseExportPath(QWidget *window, const QString &title, const QString &folder, const QString &name,
                         const QVector<ExportFormat> &formats, QString &format)
{
    QStringList filters;
    int first = 0;
    for (const ExportFormat &each : formats) {
        if (each.suffix == format)
            first = filters.size();
        filters += each.filter;
    }
    QFileDialog dialog(window, title, folder);
    dialog.setNameFilters(filters);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.selectNameFilter(filters[first]);
    dialog.setDefaultSuffix(formats[first].suffix);
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString &filter) {
        dialog.setDefaultSuffix(formats[qMax(0, filters.indexOf(filter))].suffix);
    });
    dialog.selectFile(name + QLatin1Char('.') + formats[first].suffix);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    const QString path = dialog.selectedFiles().constFirst();
    format = QFileInfo(path).suffix().toLower();
    for (const ExportFormat &each : formats) {
        if (each.suffix == format)
            return path;
    }
    // A name like "knight.v2" has no suffix that is one.
    format = formats[qMax(0, filters.indexOf(dialog.selectedNameFilter()))].suffix;
    return path + QLatin1Char('.') + format;
}

/// Of a text what may stand in any file's name.
QString fileNamePart(QString text)
{
    static const QRegularExpression others(QStringLiteral("[^\\w-]+"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    text.replace(others, QStringLiteral("_"));
    while (text.endsWith(QLatin1Char('_')))
        text.chop(1);
    while (text.startsWith(QLatin1Char('_')))
        text.remove(0, 1);
    return text;
}

/// Lets the worker do the job while the window stays alive; a job that takes its time can be given up.
/// Returns false when the program ends meanwhile.
bool runJob(ImportWorker &worker, const WorkerJob &job, const StaticMesh &mesh, QWidget *window)
{
    QProgressDialog progress(QObject::tr("Exporting '%1'").arg(job.objName), QObject::tr("Cancel"), 0, 0,
                             window);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0); // meanwhile nothing else may be started
    QEventLoop loop;
    QObject::connect(&worker, &ImportWorker::finished, &loop, &QEventLoop::quit);
    QObject::connect(&progress, &QProgressDialog::canceled, &worker, &ImportWorker::cancel);
    worker.start(job, mesh);
    if (worker.isRunning())
        loop.exec();
    return !worker.isRunning();
}

struct GltfOutcome
{
    std::optional<GltfFiles> files; ///< none after an error, or when it was given up
    ImportMessages messages;
};
} // namespace

ModelExport::ModelExport(SkinnedMeshDocument &skinnedMesh, AnimDocument &anim, StaticMeshDocument &staticMesh,
                         const RecordSelection &blocks, QMainWindow *window)
    : QObject(window)
    , m_skinnedMesh(skinnedMesh)
    , m_anim(anim)
    , m_staticMesh(staticMesh)
    , m_blocks(blocks)
    , m_window(window)
    , m_gltf(addAction("actionExportGltf", "export", tr("Export as &glTF…"),
                       tr("Export the model as a glTF file, with its bones and all animations")))
    , m_animation(addAction("actionExportAnimation", "anim", tr("Export Ani&mation as glTF…"),
                            tr("Export the model as a glTF file, with the selected animation alone")))
    , m_pose(addAction("actionExportPose", "pose", tr("Export &Pose as OBJ…"),
                       tr("Export the model as an OBJ file, in the pose that the view shows")))
{
    m_gltf->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+E")));
    connect(m_gltf, &QAction::triggered, this, &ModelExport::on_actionExportGltf_triggered);
    connect(m_animation, &QAction::triggered, this, &ModelExport::on_actionExportAnimation_triggered);
    connect(m_pose, &QAction::triggered, this, &ModelExport::on_actionExportPose_triggered);
    setCurrent(nullptr);
}

QAction *ModelExport::addAction(const char *name, const char *icon, const QString &text, const QString &tip)
{
    auto *action = new QAction(namedIcon(QLatin1String(icon)), text, m_window);
    action->setObjectName(QLatin1String(name));
    action->setToolTip(tip);
    action->setStatusTip(tip);
    return action;
}

void ModelExport::addTo(QMenu &menu, QAction &above)
{
    const QList<QAction *> actions = menu.actions();
    menu.insertActions(actions.value(actions.indexOf(&above) + 1), {m_gltf, m_animation, m_pose});
}

bool ModelExport::hasAnimation() const
{
    return m_skinnedMesh.isOpen() && m_anim.isOpen() &&
           animationMatchesMesh(m_anim.model(), m_skinnedMesh.model());
}

void ModelExport::setCurrent(const Document *document)
{
    m_current = document;
    const bool showsSkinned = document && !showsStatic();
    m_gltf->setEnabled(showsSkinned ? m_skinnedMesh.isOpen() : showsStatic() && m_staticMesh.isOpen());
    m_animation->setEnabled(showsSkinned && hasAnimation());
    m_pose->setEnabled(showsSkinned && m_skinnedMesh.isOpen());
}

bool ModelExport::returnsToTyping()
{
    return showsStatic() ? m_staticMesh.returnToTyping()
                         : m_skinnedMesh.returnToTyping() || m_anim.returnToTyping();
}

void ModelExport::on_actionExportGltf_triggered()
{
    if (returnsToTyping())
        return;
    const Document &document = showsStatic() ? static_cast<const Document &>(m_staticMesh) : m_skinnedMesh;
    exportGltf(hasAnimation() ? allBlocks(m_anim.model()) : std::vector<int>(), tr("Export as glTF"),
               QFileInfo(document.fileName()).completeBaseName());
}

std::vector<int> ModelExport::chosenBlocks() const
{
    std::vector<int> blocks;
    for (const RecordIndex &index : m_blocks.selectedRecords(RecordKind::AnimBlock))
        blocks.push_back(index[0]);
    if (blocks.empty())
        blocks.push_back(playback().blockIndex);
    const int count = int(m_anim.model().blocks.size());
    blocks.erase(std::remove_if(blocks.begin(), blocks.end(),
                                [count](int block) { return block < 0 || block >= count; }),
                 blocks.end());
    return blocks;
}

void ModelExport::on_actionExportAnimation_triggered()
{
    const std::vector<int> blocks = chosenBlocks();
    if (blocks.empty() || returnsToTyping())
        return;
    const ModelNames names = namesFor(ModelNames::of(m_skinnedMesh.model()), &m_anim.model());
    QString name = QFileInfo(m_skinnedMesh.fileName()).completeBaseName();
    const std::vector<GltfClip> clips = clipsFor(m_anim.model(), blocks, names);
    for (size_t i = 0; i < clips.size() && i < MostNamed; ++i)
        name += QLatin1Char('_') + fileNamePart(clips[i].name);
    exportGltf(blocks, tr("Export Animation as glTF"), name);
}

void ModelExport::exportGltf(const std::vector<int> &blocks, const QString &title, const QString &name)
{
    const bool isStatic = showsStatic();
    const Document &document = isStatic ? static_cast<const Document &>(m_staticMesh) : m_skinnedMesh;
    QString format = Settings::GltfExportFormat.value();
    const QString path =
        chooseExportPath(m_window, title, startFolder(document, Settings::GltfExportPath.value()), name,
                         {{tr("glTF, one file (*.glb)"), QStringLiteral("glb")},
                          {tr("glTF, textures beside it (*.gltf)"), QStringLiteral("gltf")}},
                         format);
    if (path.isEmpty())
        return;
    Settings::GltfExportPath.setValue(QFileInfo(path).absolutePath());
    Settings::GltfExportFormat.setValue(format);

    GltfSource source;
    source.name = QFileInfo(document.fileName()).completeBaseName();
    source.gamePath = Settings::GamePath.value();
    source.outputDir = Settings::OutputDir.value();
    const bool animated = !isStatic && m_anim.isOpen();
    source.names = namesFor(isStatic ? ModelNames() : ModelNames::of(m_skinnedMesh.model()),
                            animated ? &m_anim.model() : nullptr);
    std::atomic_int percent{0};
    // The thread works on models of its own: what is open may be replaced meanwhile.
    auto work = [=, &percent, skinned = isStatic ? nullptr : m_skinnedMesh.copy(),
                 anim = animated ? m_anim.copy() : nullptr,
                 rigid = isStatic ? m_staticMesh.copy() : nullptr](const Background::Cancelled &cancelled) {
        GltfOutcome outcome;
        GltfSource from = source;
        from.isCancelled = [&cancelled] { return cancelled.load(); };
        from.tellDone = [&percent](double done) { percent = int(done * PercentOfContent); };
        const QString lack = withinMemory([&] {
            const GltfWriter content = isStatic
                                           ? ::exportGltf(rigid->get(), from, outcome.messages)
                                           : ::exportGltf(skinned->get(), animated ? &anim->get() : nullptr,
                                                          blocks, from, outcome.messages);
            percent = PercentOfContent;
            if (!cancelled && !outcome.messages.hasError())
                outcome.files.emplace(content, path);
        });
        if (!lack.isEmpty()) {
            outcome.files.reset();
            outcome.messages.addError(tr("[glTF Export] %1").arg(lack));
        }
        return outcome;
    };
    std::optional<GltfOutcome> outcome = workWithPatience(
        std::move(work), tr("Exporting '%1'").arg(QFileInfo(path).fileName()), m_window, &percent);
    if (!outcome)
        return;
    ImportMessages &messages = outcome->messages;
    if (outcome->files) {
        if (!ReplacePrompt::settle(*outcome->files, title, m_window))
            return;
        if (!outcome->files->write(messages)) {
            const QString written = outcome->files->path();
            messages.addInfo(tr("[glTF Export] Exported '%1'").arg(QDir::toNativeSeparators(written)));
            tellExported(written);
        }
    }
    report(messages);
}

void ModelExport::on_actionExportPose_triggered()
{
    if (returnsToTyping())
        return;
    QString format;
    const QString path =
        chooseExportPath(m_window, tr("Export Pose as OBJ"),
                         startFolder(m_skinnedMesh, Settings::StaticMeshExportPath.value()),
                         QFileInfo(m_skinnedMesh.fileName()).completeBaseName() + QStringLiteral("_pose"),
                         {{tr("Wavefront OBJ (*.obj)"), QStringLiteral("obj")}}, format);
    if (path.isEmpty())
        return;
    const QString folder = QFileInfo(path).absolutePath();
    Settings::StaticMeshExportPath.setValue(folder);
    exportObj(posedMesh(m_skinnedMesh.model(), playback()), path, folder);
}

void ModelExport::exportStaticMesh()
{
    if (returnsToTyping())
        return;
    const QString folder =
        chooseFolder(m_window, tr("Export To Folder"), Settings::StaticMeshExportPath.value());
    if (folder.isEmpty())
        return;
    Settings::StaticMeshExportPath.setValue(folder);
    exportObj(m_staticMesh.model(), m_staticMesh.fileName(), folder);
}

void ModelExport::exportObj(const StaticMesh &mesh, const QString &meshPath, const QString &folder)
{
    ImportMessages messages;
    MaterialFiles materials(Settings::GamePath.value(), Settings::OutputDir.value());
    ExportedFiles files(staticMeshExport(mesh, meshPath, materials, messages), folder);
    if (!messages.hasError()) {
        if (!ReplacePrompt::settle(files, tr("Export"), m_window))
            return;
        ImportWorker worker;
        ImportRun::limit(worker);
        if (!runJob(worker, files.job(), mesh, m_window))
            return;
        messages.lines += worker.messages().lines;
        if (!messages.hasError() && !files.place(worker, messages)) {
            messages.addInfo(
                tr("[Static Mesh Export] Exported '%1'").arg(QDir::toNativeSeparators(files.objPath())));
            tellExported(files.objPath());
        }
    }
    report(messages);
}

/// The folder of the last export; where the model stands before there was one.
QString ModelExport::startFolder(const Document &document, const QString &last) const
{
    return last.isEmpty() && !document.path().isEmpty()
               ? QFileInfo(Files::heldBy(document.path())).absolutePath()
               : last;
}

void ModelExport::tellExported(const QString &path)
{
    m_window->statusBar()->showMessage(tr("Exported '%1'").arg(QDir::toNativeSeparators(path)), 5000);
}

/// To the console; errors in a box as well.
void ModelExport::report(const ImportMessages &messages)
{
    QStringList errors;
    for (const ImportMessage &line : messages.lines) {
        switch (line.severity) {
        case LogSeverity::Error:
            Log::error(line.text);
            errors += line.text;
            break;
        case LogSeverity::Warning:
            Log::warning(line.text);
            break;
        case LogSeverity::Info:
            Log::info(line.text);
            break;
        }
    }
    if (!errors.isEmpty())
        QMessageBox::warning(m_window, tr("Error"), errors.join(QLatin1Char('\n')));
}
