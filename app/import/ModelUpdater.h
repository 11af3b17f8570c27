// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

#include <optional>

class ImportWorker;
class QMainWindow;
struct UpdateAccount;

/// Offers to bring a file back over the model that is open, where it is an export of one, and does it as one
/// undo step of each document.
class ModelUpdater : public QObject
{
    Q_OBJECT

public:
    ModelUpdater(SkinnedMeshDocument &skinnedMesh, AnimDocument &anim, StaticMeshDocument &staticMesh,
                 QMainWindow *window);

    enum class Answer {
        ImportAsNew, ///< it is no export of this kind of mesh, or shall be a model of its own
        Updated,
        Cancelled,
    };
    /// The mesh is the one of the kind that the file is an export of. `shown`: of which kind the mesh is that
    /// an import would make another one of, for a file that does not say.
    Answer offer(DocumentType shown, const QString &path);

signals:
    /// The mesh of this kind, and the animation with a skinned one.
    void updated(DocumentType type);

private:
    QWidget *dialogParent() const;
    Document &document(DocumentType type) const;
    std::optional<Answer> ask(DocumentType type, const QString &path, bool hasRecords);
    Answer complain(const Document &open, const QString &reason) const;
    bool read(ImportWorker &worker, DocumentType type, const QString &path);
    bool update(const ImportWorker &worker, DocumentType type, const UpdateAccount &account,
                bool dropsMissing, const QString &source);

    SkinnedMeshDocument &m_skinnedMesh;
    AnimDocument &m_anim;
    StaticMeshDocument &m_staticMesh;
    QMainWindow *m_window;
};
