// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentKind.h"

#include <QObject>

class DocumentFiles;
class FolderExplorer;
class QAction;

/// Opens what is picked in the folder explorers, after asking for unsaved changes, and the animation that
/// belongs to a skinned mesh along with it.
class ExplorerFiles : public QObject
{
    Q_OBJECT

public:
    /// `explorers` in the order of documentKinds(); `syncAnimation` switches the following on and off.
    ExplorerFiles(DocumentFiles &files, const std::array<FolderExplorer *, 3> &explorers,
                  QAction *syncAnimation, QObject *parent);

signals:
    void opened(DocumentType type);

public slots:
    /// Reads the folders of all explorers again.
    void on_actionRefreshExplorers_triggered();
    /// The options were accepted.
    void OnOptionsAccepted();

private slots:
    void OnActionAnimSyncSkinSelect(bool on);
    void OnActionEmptyFolders(bool on);

private:
    FolderExplorer &explorer(DocumentType type) { return *m_explorers[size_t(type)]; }
    void open(DocumentType type, const QString &path);
    void openMatchingAnimation(const QString &meshPath);

    DocumentFiles &m_files;
    std::array<FolderExplorer *, 3> m_explorers;
    QAction *m_syncAnimation;
};
