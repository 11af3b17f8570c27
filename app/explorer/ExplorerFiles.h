// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentKind.h"

#include <QObject>
#include <QStringList>

class DocumentFiles;
class FolderExplorer;

/// Opens what is picked in the folder explorers, after asking for unsaved changes.
class ExplorerFiles : public QObject
{
    Q_OBJECT

public:
    /// `explorers` in the order of documentKinds().
    ExplorerFiles(DocumentFiles &files, const std::array<FolderExplorer *, 3> &explorers, QObject *parent);

signals:
    void opened(DocumentType type);
    /// A file was opened: these stand beside it in its list, the next one first. None while one is opened.
    void mayComeNext(const QStringList &paths);

public slots:
    /// Reads the folders of all explorers again.
    void on_actionRefreshExplorers_triggered();
    /// The options were accepted.
    void OnOptionsAccepted();

private slots:
    void OnActionEmptyFolders(bool on);

private:
    FolderExplorer &explorer(DocumentType type) { return *m_explorers[size_t(type)]; }
    void open(DocumentType type, const QString &path);
    QStringList neighbours(DocumentType type, const QString &path);

    DocumentFiles &m_files;
    std::array<FolderExplorer *, 3> m_explorers;
};
