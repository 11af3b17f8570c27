// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UvSource.h"

#include "KVTreeView.h"

#include <algorithm>

namespace {
template <typename Model>
UvSource sourceOf(ModelDocument<Model> &document, KVTreeView &tree, RecordKind surfaces,
                  RecordKind triangleIndexes, RecordKind vertices)
{
    const auto surfaceOf = [&document](int surface) {
        return Records::element(document.model().surfaces, surface);
    };
    const auto uvs = [&document] {
        const auto &all = document.model().vertices;
        std::vector<QVector2D> found(std::min(all.size(), size_t(0x10000)));
        std::transform(all.begin(), all.begin() + std::ptrdiff_t(found.size()), found.begin(),
                       [](const auto &vertex) { return vertex.uv; });
        return found;
    };
    const auto indexes = [surfaceOf](int surface) {
        const auto *found = surfaceOf(surface);
        return found ? &found->triangleIndexes : nullptr;
    };
    const auto material = [surfaceOf](int surface) {
        const auto *found = surfaceOf(surface);
        return found ? found->materialPath : QString();
    };
    return {&document, &tree, surfaces, triangleIndexes, vertices, uvs, indexes, material};
}
} // namespace

UvSource UvSource::of(SkinnedMeshDocument &document, KVTreeView &tree)
{
    return sourceOf(document, tree, RecordKind::SkinnedSurface, RecordKind::SkinnedTriangleIndex,
                    RecordKind::SkinnedVertex);
}

UvSource UvSource::of(StaticMeshDocument &document, KVTreeView &tree)
{
    return sourceOf(document, tree, RecordKind::StaticSurface, RecordKind::StaticTriangleIndex,
                    RecordKind::StaticVertex);
}

int UvSource::surfaceCount() const
{
    return document->isOpen() ? document->recordCount(surfaces, {}) : 0;
}

int UvSource::selectedSurface(int shown) const
{
    const RecordRef record = tree->currentRecord();
    if (record.kind == surfaces || record.kind == triangleIndexes)
        return record.index[0];
    const auto uses = [&](int surface) {
        const std::vector<quint16> *its = indexes(surface);
        return its && std::find(its->begin(), its->end(), record.index[0]) != its->end();
    };
    if (record.kind != vertices || uses(shown))
        return shown;
    for (int i = 0; i < surfaceCount(); ++i) {
        if (uses(i))
            return i;
    }
    return shown;
}

std::vector<int> UvSource::selectedVertices() const
{
    std::vector<int> found;
    for (const RecordIndex &vertex : tree->selectedRecords(vertices))
        found.push_back(vertex[0]);
    for (const RecordIndex &index : tree->selectedRecords(triangleIndexes)) {
        const std::vector<quint16> *its = indexes(index[0]);
        for (int corner = 0; its && corner < 3; ++corner) {
            if (const quint16 *vertex = Records::element(*its, index[1] / 3 * 3 + corner))
                found.push_back(*vertex);
        }
    }
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

bool UvSource::isShownBy(const QVector<RecordRef> &records) const
{
    return std::any_of(records.begin(), records.end(), [this](const RecordRef &record) {
        return record.kind == surfaces || record.kind == triangleIndexes || record.kind == vertices;
    });
}
