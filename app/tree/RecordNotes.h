// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

/// What a tree says of a record more quietly, behind its label: what it is about, in names and figures. It is
/// made when a row is painted, and from the record, so it costs nothing elsewhere and cannot be stale.
class RecordNotes : public QObject
{
    Q_OBJECT

public:
    /// Of a document that outlives it.
    explicit RecordNotes(const Document &document, QObject *parent = nullptr);

    /// "frame 12 · Play Sound · roar"; empty for groups, and where there is nothing to say.
    QString text(const RecordRef &record) const;

private:
    int vertexCount(int bone) const;

    const Document &m_document;
    mutable std::vector<int> m_vertexCounts; ///< of bones, while nothing has changed
};

/// The names in the note of a record, for a filter: its figures would be found for numbers that mean others.
QString noteNames(const Document &document, const RecordRef &record);

/// What a bone is called by the model's own names, else by its symbol; empty when there is none.
QString calledBone(const SkinnedMesh &mesh, int number);
/// The same of a bone of a block; empty also where the mesh, which may be null, is not for it.
QString calledBone(const AnimBlock &block, const SkinnedMesh *mesh, int number);
/// What the page of an action calls an argument of its event; empty where it has no name.
QString eventArgumentLabel(int eventType, int argument);
