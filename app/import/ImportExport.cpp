// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportExport.h"

#include "DocumentFiles.h"
#include "FolderChooser.h"
#include "ImportDialog.h"
#include "Log.h"
#include "MaterialFiles.h"
#include "ReplacePrompt.h"
#include "Settings.h"
#include "StaticMeshExport.h"

#include <QDir>
#include <QEventLoop>
#include <QMainWindow>
#include <QMessageBox>
#include <QProgressDialog>
#include <QStatusBar>

namespace {
// What the files hold that come with the program, for a model of which no document is open.
constexpr qint32 UsualVersion = 2;

template <typename Model>
qint32 versionFor(const ModelDocument<Model> &document)
{
    return document.isOpen() ? document.model().version : UsualVersion;
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

/// To the console; errors in a box as well.
void report(const ImportMessages &messages, QWidget *window)
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
        QMessageBox::warning(window, QObject::tr("Error"), errors.join(QLatin1Char('\n')));
}
} // namespace

ImportExport::ImportExport(SkinnedMeshDocument &skinnedMesh, AnimDocument &anim,
                           StaticMeshDocument &staticMesh, DocumentFiles &files, QMainWindow *window)
    : QObject(window)
    , m_skinnedMesh(skinnedMesh)
    , m_anim(anim)
    , m_staticMesh(staticMesh)
    , m_files(files)
    , m_window(window)
{}

void ImportExport::importModel(DocumentType type, const QString &modelPath)
{
    const bool isStatic = type == DocumentType::StaticMesh;
    const bool goOn = isStatic ? m_files.promptUnsaved(DocumentType::StaticMesh)
                               : m_files.promptUnsaved(DocumentType::SkinnedMesh) &&
                                     m_files.promptUnsaved(DocumentType::Anim);
    if (!goOn)
        return;
    ImportDialog dialog(isStatic ? ImportDialog::StaticMeshMode : ImportDialog::SkinnedMeshMode, m_window);
    dialog.setVersions(isStatic ? versionFor(m_staticMesh) : versionFor(m_skinnedMesh), versionFor(m_anim));
    if (!modelPath.isEmpty())
        dialog.setModelPath(modelPath);
    connect(&dialog, &ImportDialog::skinnedMeshImported, this,
            [this](const SkinnedMesh &mesh, const AnimFile &anim, const QString &name) {
                m_skinnedMesh.take(mesh, name);
                m_anim.take(anim, name);
                emit imported(DocumentType::SkinnedMesh);
            });
    connect(&dialog, &ImportDialog::staticMeshImported, this,
            [this](const StaticMesh &mesh, const QString &name) {
                m_staticMesh.take(mesh, name);
                emit imported(DocumentType::StaticMesh);
            });
    dialog.exec();
}

void ImportExport::importToCurrent(const QString &modelPath)
{
    importModel(m_current == &m_staticMesh ? DocumentType::StaticMesh : DocumentType::SkinnedMesh, modelPath);
}

void ImportExport::on_actionImport_triggered()
{
    if (m_current)
        importToCurrent({});
}

void ImportExport::on_actionExport_triggered()
{
    if (m_current == &m_staticMesh) {
        if (!m_staticMesh.returnToTyping())
            exportStaticMesh();
    } else if (m_current)
        QMessageBox::information(m_window, tr("Error"), tr("No dice!"));
}

void ImportExport::exportStaticMesh()
{
    const QString folder =
        chooseFolder(m_window, tr("Export To Folder"), Settings::StaticMeshExportPath.value());
    if (folder.isEmpty())
        return;
    Settings::StaticMeshExportPath.setValue(folder);

    ImportMessages messages;
    MaterialFiles materials(Settings::GamePath.value(), Settings::OutputDir.value());
    ExportedFiles files(staticMeshExport(m_staticMesh.model(), m_staticMesh.fileName(), materials, messages),
                        folder);
    if (!messages.hasError()) {
        if (!ReplacePrompt::settle(files, tr("Export"), m_window))
            return;
        ImportWorker worker;
        ImportRun::limit(worker);
        if (!runJob(worker, files.job(), m_staticMesh.model(), m_window))
            return;
        messages.lines += worker.messages().lines;
        if (!messages.hasError() && !files.place(worker, messages)) {
            const QString path = QDir::toNativeSeparators(files.objPath());
            messages.addInfo(tr("[Static Mesh Export] Exported '%1'").arg(path));
            m_window->statusBar()->showMessage(tr("Exported '%1'").arg(path), 5000);
        }
    }
    report(messages, m_window);
}
