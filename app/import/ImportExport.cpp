// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportExport.h"

#include "DocumentFiles.h"
#include "ImportDialog.h"
#include "ModelExport.h"

#include <QFileInfo>
#include <QMainWindow>
#include <QMessageBox>
#include <QSet>

#include <utility>

namespace {
// What the files hold that come with the program, for a model of which no document is open.
constexpr qint32 UsualVersion = 2;

template <typename Model>
qint32 versionFor(const ModelDocument<Model> &document)
{
    return document.isOpen() ? document.model().version : UsualVersion;
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
    , m_updater(skinnedMesh, anim, staticMesh, window)
{
    connect(&m_updater, &ModelUpdater::updated, this, [this](DocumentType type) {
        const bool isShown = type == DocumentType::StaticMesh ? m_current == &m_staticMesh
                                                              : m_current && m_current != &m_staticMesh;
        if (!isShown)
            emit cameToFront(type);
    });
}

void ImportExport::addExports(QMenu &menu, QAction &above, const RecordSelection &blocks)
{
    m_exports = new ModelExport(m_skinnedMesh, m_anim, m_staticMesh, blocks, m_window);
    m_exports->addTo(menu, above);
}

void ImportExport::setCurrent(const Document *document)
{
    m_current = document;
    m_exports->setCurrent(document);
}

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
    // One question each: what was imported as new would be offered an update of itself.
    QSet<QString> asNew{QFileInfo(modelPath).absoluteFilePath()};
    dialog.setUpdateOffer([this, type, asNew](const QString &path) mutable {
        const QString file = QFileInfo(path).absoluteFilePath();
        if (asNew.contains(file))
            return ModelUpdater::Answer::ImportAsNew;
        const ModelUpdater::Answer answer = m_updater.offer(type, path);
        if (answer == ModelUpdater::Answer::ImportAsNew)
            asNew.insert(file);
        return answer;
    });
    connect(&dialog, &ImportDialog::skinnedMeshImported, this,
            [this](SkinnedMesh &mesh, AnimFile &anim, const QString &name) {
                m_skinnedMesh.take(std::move(mesh), name);
                m_anim.take(std::move(anim), name);
                emit cameToFront(DocumentType::SkinnedMesh);
            });
    connect(&dialog, &ImportDialog::staticMeshImported, this, [this](StaticMesh &mesh, const QString &name) {
        m_staticMesh.take(std::move(mesh), name);
        emit cameToFront(DocumentType::StaticMesh);
    });
    dialog.exec();
}

void ImportExport::importToCurrent(const QString &modelPath)
{
    const DocumentType type =
        m_current == &m_staticMesh ? DocumentType::StaticMesh : DocumentType::SkinnedMesh;
    if (modelPath.isEmpty() || m_updater.offer(type, modelPath) == ModelUpdater::Answer::ImportAsNew)
        importModel(type, modelPath);
}

void ImportExport::on_actionImport_triggered()
{
    if (m_current)
        importToCurrent({});
}

void ImportExport::on_actionExport_triggered()
{
    if (m_current == &m_staticMesh)
        m_exports->exportStaticMesh();
    else if (m_current)
        QMessageBox::information(m_window, tr("Error"), tr("No dice!"));
}
