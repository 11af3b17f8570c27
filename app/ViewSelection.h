// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "DocumentPane.h"
#include "ModelPlaces.h"

#include <QObject>

/// Between what is selected in the trees and what the viewports show of it.
class ViewSelection : public QObject
{
    Q_OBJECT

public:
    /// Everything outlives this.
    ViewSelection(const SkinnedMeshDocument &skinned, const StaticMeshDocument &rigid,
                  const DocumentPanes &panes, QObject *parent);

    /// What of its viewport's model is selected in a document's tree.
    ModelSelection selected(DocumentType type) const;
    /// Shows the selected ones among the bones and hot points that its viewport draws.
    void mark(DocumentType type);

signals:
    /// A click in a viewport has hit this record.
    void picked(DocumentType type, const RecordRef &record);

private:
    const DocumentPane &pane(DocumentType type) const { return m_panes[size_t(type)]; }
    std::vector<int> numbers(DocumentType type, RecordKind kind, size_t component = 0) const;

    const SkinnedMeshDocument &m_skinned;
    const StaticMeshDocument &m_rigid;
    const DocumentPanes &m_panes;
};
