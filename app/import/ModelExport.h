// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

#include <vector>

class ImportMessages;
class QAction;
class QMainWindow;
class QMenu;
class RecordSelection;

/// Brings the open models out to other programs: as glTF, whole or one animation of them, or as OBJ.
class ModelExport : public QObject
{
    Q_OBJECT

public:
    /// `blocks` lists the animations.
    ModelExport(SkinnedMeshDocument &skinnedMesh, AnimDocument &anim, StaticMeshDocument &staticMesh,
                const RecordSelection &blocks, QMainWindow *window);

    /// Puts the actions into a menu, below this one of it.
    void addTo(QMenu &menu, QAction &above);
    /// The document that the current tab shows; null for none.
    void setCurrent(const Document *document);

public slots:
    void on_actionExportGltf_triggered();
    void on_actionExportAnimation_triggered();
    void on_actionExportPose_triggered();
    /// Asks for a folder and exports the static mesh to it, as OBJ with its materials and textures.
    void exportStaticMesh();

private:
    QAction *addAction(const char *name, const char *icon, const QString &text, const QString &tip);
    /// Goes back to what is typed and cannot be stored, and returns true.
    bool returnsToTyping();
    bool showsStatic() const { return m_current == &m_staticMesh; }
    bool hasAnimation() const;
    /// The selected animations; the one that plays where none is selected.
    std::vector<int> chosenBlocks() const;
    void exportGltf(const std::vector<int> &blocks, const QString &title, const QString &name);
    void exportObj(const StaticMesh &mesh, const QString &meshPath, const QString &folder);
    QString startFolder(const Document &document, const QString &last) const;
    void tellExported(const QString &path);
    void report(const ImportMessages &messages);

    SkinnedMeshDocument &m_skinnedMesh;
    AnimDocument &m_anim;
    StaticMeshDocument &m_staticMesh;
    const RecordSelection &m_blocks;
    QMainWindow *m_window;
    const Document *m_current = nullptr;
    QAction *m_gltf;
    QAction *m_animation;
    QAction *m_pose;
};
