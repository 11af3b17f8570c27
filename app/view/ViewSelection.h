// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "ModelPlaces.h"

#include <QObject>

#include <array>

class KVOpenGLWidget;
class RecordSelection;

/// The records of a document, and the viewport that shows them.
struct ShownRecords
{
    const RecordSelection *records;
    KVOpenGLWidget *viewport;
};

/// Between what is selected of the documents and what the viewports show of it.
class ViewSelection : public QObject
{
    Q_OBJECT

public:
    /// `shown` in the order of documentKinds(). Everything outlives this.
    ViewSelection(const SkinnedMeshDocument &skinned, const StaticMeshDocument &rigid,
                  const std::array<ShownRecords, 3> &shown, QObject *parent);

    /// What of its viewport's model is selected of a document.
    ModelSelection selected(DocumentType type) const;
    /// Shows the selected ones among the bones and hot points that its viewport draws.
    void mark(DocumentType type);

signals:
    /// A click in a viewport has hit this record; none where it shows the background.
    void picked(DocumentType type, const RecordRef &record);

private:
    std::vector<int> numbers(DocumentType type, RecordKind kind, size_t component = 0) const;

    const SkinnedMeshDocument &m_skinned;
    const StaticMeshDocument &m_rigid;
    const std::array<ShownRecords, 3> m_shown;
};
