// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ModelUpdater.h"

class DocumentFiles;
class ModelExport;
class QAction;
class QMainWindow;
class QMenu;
class RecordSelection;

/// Brings models of foreign formats in and out, with the dialogs that belong to it.
class ImportExport : public QObject
{
    Q_OBJECT

public:
    ImportExport(SkinnedMeshDocument &skinnedMesh, AnimDocument &anim, StaticMeshDocument &staticMesh,
                 DocumentFiles &files, QMainWindow *window);

    /// The document that the current tab shows, whose kind of mesh is imported and exported; null for none.
    void setCurrent(const Document *document);
    /// Puts the other ways out into the menu, below this action of it; `blocks` lists the animations. Comes
    /// before setCurrent().
    void addExports(QMenu &menu, QAction &above, const RecordSelection &blocks);
    /// Opens the import dialog for the current tab's kind of mesh, a skinned one on a tab without, with
    /// `modelPath` chosen if there is one. An export of a mesh that is open, in whichever tab, may update it
    /// instead. Unsaved changes of the documents that the import would replace are asked for before.
    void importToCurrent(const QString &modelPath);

public slots:
    void on_actionImport_triggered();
    /// Exports the static mesh as OBJ; a skinned one has none of that.
    void on_actionExport_triggered();

signals:
    /// An imported model has taken the place of a document, or one in a tab behind was updated.
    void cameToFront(DocumentType type);

private:
    void importModel(DocumentType type, const QString &modelPath);

    SkinnedMeshDocument &m_skinnedMesh;
    AnimDocument &m_anim;
    StaticMeshDocument &m_staticMesh;
    DocumentFiles &m_files;
    const Document *m_current = nullptr;
    ModelExport *m_exports = nullptr;
    QMainWindow *m_window;
    ModelUpdater m_updater;
};
