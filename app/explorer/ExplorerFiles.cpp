// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ExplorerFiles.h"

#include "DocumentFiles.h"
#include "FolderExplorer.h"
#include "Settings.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>

ExplorerFiles::ExplorerFiles(DocumentFiles &files, const std::array<FolderExplorer *, 3> &explorers,
                             QAction *syncAnimation, QObject *parent)
    : QObject(parent)
    , m_files(files)
    , m_explorers(explorers)
    , m_syncAnimation(syncAnimation)
{
    for (const DocumentKind &kind : documentKinds()) {
        const DocumentType type = kind.type;
        // Queued: a question asked from within the selection's change would swallow the mouse's release.
        connect(
            &explorer(type), &FolderExplorer::fileChosen, this,
            [this, type](const QString &path) { open(type, path); }, Qt::QueuedConnection);
    }
    Settings::AnimationSyncSkin.ensure();
    syncAnimation->setChecked(Settings::AnimationSyncSkin.value());
    explorer(DocumentType::Anim).addExtraAction(syncAnimation);
    connect(syncAnimation, &QAction::triggered, this, &ExplorerFiles::OnActionAnimSyncSkinSelect);
}

void ExplorerFiles::OnActionAnimSyncSkinSelect(bool on)
{
    Settings::AnimationSyncSkin.setValue(on);
}

void ExplorerFiles::on_actionRefreshExplorers_triggered()
{
    for (FolderExplorer *each : m_explorers)
        each->refill();
}

void ExplorerFiles::open(DocumentType type, const QString &path)
{
    // Picked while the question about an earlier pick was still open.
    if (QApplication::activeModalWidget())
        return;
    if (!m_files.promptUnsaved(type) || m_files.open(type, path)) {
        explorer(type).selectPath(m_files.document(type)->path());
        return;
    }
    emit opened(type);
    if (type == DocumentType::SkinnedMesh && m_syncAnimation->isChecked())
        openMatchingAnimation(path);
}

void ExplorerFiles::openMatchingAnimation(const QString &meshPath)
{
    const QFileInfo mesh(meshPath);
    FolderExplorer &animations = explorer(DocumentType::Anim);
    const QString path = animations.findMatching(mesh.dir().dirName(), mesh.completeBaseName());
    if (path.isEmpty())
        return;
    if (path != m_files.document(DocumentType::Anim)->path() &&
        (!m_files.promptUnsaved(DocumentType::Anim) || m_files.open(DocumentType::Anim, path)))
        return;
    animations.selectPath(path);
}
