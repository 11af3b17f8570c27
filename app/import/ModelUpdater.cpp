// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelUpdater.h"

#include "AnimCommands.h"
#include "ImportRun.h"
#include "Log.h"
#include "ModelNames.h"
#include "ModelUpdate.h"
#include "ModelUpdateDialog.h"
#include "SkinnedMeshCommands.h"
#include "StaticMeshCommands.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QMainWindow>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>

namespace {
constexpr int Unnoticed = 500; ///< milliseconds that nobody is told of

/// Those of the open model, which the worker knows nothing of, and those of what is new.
ModelNames updatedNames(const SkinnedMesh &open, const ModelNames &made)
{
    ModelNames names = ModelNames::of(open);
    for (auto it = made.bones.constBegin(); it != made.bones.constEnd(); ++it) {
        if (it.key() >= int(open.nodes.size()))
            names.bones.insert(it.key(), it.value());
    }
    for (auto it = made.animations.constBegin(); it != made.animations.constEnd(); ++it) {
        if (!names.animations.contains(it.key()))
            names.animations.insert(it.key(), it.value());
    }
    return names;
}
} // namespace

ModelUpdater::ModelUpdater(SkinnedMeshDocument &skinnedMesh, AnimDocument &anim,
                           StaticMeshDocument &staticMesh, QMainWindow *window)
    : QObject(window)
    , m_skinnedMesh(skinnedMesh)
    , m_anim(anim)
    , m_staticMesh(staticMesh)
    , m_window(window)
{}

/// The import dialog may be open.
QWidget *ModelUpdater::dialogParent() const
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal ? modal : m_window;
}

Document &ModelUpdater::document(DocumentType type) const
{
    return type == DocumentType::StaticMesh ? static_cast<Document &>(m_staticMesh) : m_skinnedMesh;
}

/// Of an export that cannot come back; nothing of the open model is changed by it.
ModelUpdater::Answer ModelUpdater::complain(const Document &open, const QString &reason) const
{
    QMessageBox box(QMessageBox::Warning, tr("Update %1").arg(open.fileName()), reason, QMessageBox::Cancel,
                    dialogParent());
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("%1 stays as it is.").arg(open.fileName()));
    const QAbstractButton *asNew = box.addButton(tr("Import as &New"), QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.setEscapeButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == asNew ? Answer::ImportAsNew : Answer::Cancelled;
}

ModelUpdater::Answer ModelUpdater::offer(DocumentType shown, const QString &path)
{
    const ExportTraces traces = exportTraces(path);
    const DocumentType type = traces.isStatic == traces.isSkinned ? shown
                              : traces.isStatic                   ? DocumentType::StaticMesh
                                                                  : DocumentType::SkinnedMesh;
    Document &open = document(type);
    if (!open.isOpen() || !traces.mayComeBack())
        return Answer::ImportAsNew;
    if (open.returnToTyping() || (type != DocumentType::StaticMesh && m_anim.returnToTyping()))
        return Answer::Cancelled;
    // The animation of a mesh that was opened just now comes a moment after it.
    std::optional<Answer> answer;
    while (!answer)
        answer = ask(type, path, traces.hasRecords);
    return *answer;
}

/// Nothing when a document that it is about has become another one meanwhile.
std::optional<ModelUpdater::Answer> ModelUpdater::ask(DocumentType type, const QString &path, bool hasRecords)
{
    const Document &open = document(type);
    bool isStale = false;
    QObject watch;
    const QVector<Document *> changed = type == DocumentType::StaticMesh
                                            ? QVector<Document *>{&m_staticMesh}
                                            : QVector<Document *>{&m_skinnedMesh, &m_anim};
    for (const Document *each : changed)
        connect(each, &Document::replaced, &watch, [&isStale] { isStale = true; });

    ImportWorker worker;
    if (!read(worker, type, path))
        return Answer::Cancelled;
    if (isStale)
        return {};
    if (worker.messages().hasError()) {
        const QString reason = worker.messages().lines.constFirst().text;
        Log::info(reason);
        // What only has names like an export's may never have been one.
        return hasRecords ? complain(open, reason) : Answer::ImportAsNew;
    }
    const QString source = QFileInfo(path).fileName();
    ModelUpdateDialog dialog(source, open.fileName(), worker.update(), dialogParent());
    if (type == DocumentType::StaticMesh)
        dialog.setStatic();
    for (const Document *each : changed)
        connect(each, &Document::replaced, &dialog, &QDialog::reject);
    const int answer = dialog.exec();
    if (isStale)
        return {};
    if (answer == ModelUpdateDialog::ImportAsNew)
        return Answer::ImportAsNew;
    if (answer != ModelUpdateDialog::Update)
        return Answer::Cancelled;
    if (update(worker, type, worker.update(), dialog.dropsMissing(), source)) {
        QMessageBox::warning(
            dialogParent(), dialog.windowTitle(),
            tr("%1 Could not read file. The result was damaged.").arg(QDir::toNativeSeparators(path)));
        return Answer::Cancelled;
    }
    emit updated(type);
    m_window->statusBar()->showMessage(tr("Updated %1 from %2").arg(open.fileName(), source), 5000);
    return Answer::Updated;
}

/// Lets the worker find out what the file makes of the model. Returns false when that was given up.
bool ModelUpdater::read(ImportWorker &worker, DocumentType type, const QString &path)
{
    ImportRun::limit(worker);
    QEventLoop loop;
    connect(&worker, &ImportWorker::finished, &loop, &QEventLoop::quit);
    WorkerJob job;
    job.modelPath = path;
    if (type == DocumentType::StaticMesh) {
        job.task = WorkerJob::Task::UpdateStaticMesh;
        worker.start(job, m_staticMesh.model());
    } else {
        job.task = WorkerJob::Task::UpdateSkinnedMesh;
        const AnimFile &anim = m_anim.model();
        const bool fits = m_anim.isOpen() && !anim.blocks.empty() &&
                          anim.blocks[0].nodes.size() == m_skinnedMesh.model().nodes.size();
        worker.start(job, m_skinnedMesh.model(), fits ? anim : AnimFile());
    }
    QTimer::singleShot(Unnoticed, &loop, &QEventLoop::quit);
    if (worker.isRunning())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (!worker.isRunning())
        return true;
    QProgressDialog progress(tr("Reading '%1'").arg(QDir::toNativeSeparators(path)), tr("Cancel"), 0, 0,
                             dialogParent());
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(0);
    bool isCancelled = false;
    connect(&progress, &QProgressDialog::canceled, &worker, [&] {
        isCancelled = true;
        worker.cancel();
    });
    progress.show();
    loop.exec();
    return !worker.isRunning() && !isCancelled;
}

/// Returns true when the result cannot be read.
bool ModelUpdater::update(const ImportWorker &worker, DocumentType type, const UpdateAccount &account,
                          bool dropsMissing, const QString &source)
{
    if (type == DocumentType::StaticMesh) {
        StaticMesh mesh;
        if (worker.read(mesh))
            return true;
        m_staticMesh.undoStack()->push(new UC_StaticMeshUpdate(m_staticMesh.editTarget(), mesh, source));
        return false;
    }
    SkinnedMesh mesh;
    AnimFile anim;
    if (worker.read(mesh, anim))
        return true;
    if (dropsMissing)
        account.dropMissing(anim);
    const ModelNames names = updatedNames(m_skinnedMesh.model(), worker.names());
    names.giveTo(mesh);
    if (account.changesMesh || !(ModelNames::of(m_skinnedMesh.model()) == names))
        m_skinnedMesh.undoStack()->push(new UC_SkinnedMeshUpdate(m_skinnedMesh.editTarget(), mesh, source));
    if (account.changesAnim || dropsMissing)
        m_anim.undoStack()->push(new UC_AnimUpdate(m_anim.editTarget(), anim, source));
    return false;
}
