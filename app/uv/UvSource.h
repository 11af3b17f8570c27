// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

#include <QPointer>
#include <QVector2D>

#include <functional>
#include <vector>

class KVTreeView;

/// A document whose surfaces are laid over their textures, and its tree.
struct UvSource
{
    QPointer<Document> document;
    KVTreeView *tree = nullptr;
    RecordKind surfaces{};
    RecordKind triangleIndexes{};
    RecordKind vertices{};
    /// Of all vertices that an index can name, as the file has them.
    std::function<std::vector<QVector2D>()> uvs;
    /// Of a surface; null where there is no such.
    std::function<const std::vector<quint16> *(int surface)> indexes;
    std::function<QString(int surface)> material;

    static UvSource of(SkinnedMeshDocument &document, KVTreeView &tree);
    static UvSource of(StaticMeshDocument &document, KVTreeView &tree);

    int surfaceCount() const;
    /// Whether what is selected is of some surface: that one. Else, or where it is of this one too, `shown`.
    int selectedSurface(int shown) const;
    /// The selected vertices and corners of triangles, ascending.
    std::vector<int> selectedVertices() const;
    /// Whether an edit of these records changes what is shown.
    bool isShownBy(const QVector<RecordRef> &records) const;
};
