// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelDraft.h"

#include "AnimFile.h"
#include "BinaryFileWriter.h"
#include "ModelNames.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <type_traits>

namespace {
/// The bytes of the file that a model would make, roughly: growing a large buffer takes longer than to fill
/// it.
size_t roughBytes(const AnimFile &file)
{
    size_t bytes = 0;
    for (const AnimBlock &block : file.blocks)
        bytes += block.translations.keys().size() * 12 + block.rotations.keys().size() * 16 +
                 block.frames.size() * 4 + block.nodes.size() * 32 + block.actions.size() * 50 + 44;
    return bytes;
}

template <typename Mesh>
size_t roughBytes(const Mesh &mesh)
{
    size_t bytes = mesh.vertices.size() * 34;
    for (const auto &surface : mesh.surfaces)
        bytes += surface.triangleIndexes.size() * sizeof(quint16) + 64;
    return bytes;
}
} // namespace

template <typename Model>
std::vector<uchar> draftOf(const Model &model)
{
    BinaryFileWriter writer(roughBytes(model) + 64 * 1024);
    model.writeDraft(writer);
    std::vector<uchar> bytes = writer.takeBytes();
    if constexpr (std::is_same_v<Model, SkinnedMesh>) {
        const ModelNames names = ModelNames::of(model);
        const QByteArray json = names.isEmpty() ? QByteArray() : names.toJson();
        bytes.insert(bytes.end(), json.begin(), json.end());
    }
    return bytes;
}

template std::vector<uchar> draftOf(const SkinnedMesh &);
template std::vector<uchar> draftOf(const AnimFile &);
template std::vector<uchar> draftOf(const StaticMesh &);
