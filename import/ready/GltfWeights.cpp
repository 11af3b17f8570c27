// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfWeights.h"

#include "GltfReader.h"

#include <assimp/scene.h>

#include <algorithm>

namespace {
constexpr int WeightsOfSet = 4;
constexpr int MostSets = 16;

using BoneWeights = std::vector<std::vector<aiVertexWeight>>; ///< by bone

/// Returns true on failure.
bool addSet(GltfBytes &bytes, const QJsonValue &joints, const QJsonValue &weights, unsigned vertices,
            BoneWeights &found)
{
    const GltfBytes::Integers bones = bytes.integers(joints, WeightsOfSet);
    const GltfBytes::Floats shares = bones ? bytes.floats(weights, WeightsOfSet) : nullptr;
    const size_t count = size_t(vertices) * WeightsOfSet;
    if (!shares || bones->size() != count || shares->size() != count)
        return true;
    for (size_t i = 0; i < count; ++i) {
        if ((*shares)[i] > 0.0f && (*bones)[i] < found.size())
            found[(*bones)[i]].emplace_back(unsigned(i / WeightsOfSet), (*shares)[i]);
    }
    return false;
}

/// The library's meshes are in an order of their own, but their vertices are in the file's.
bool isOf(const aiMesh &mesh, GltfBytes &bytes, const QJsonObject &attributes)
{
    const GltfBytes::Floats places = attributes.contains(QStringLiteral("JOINTS_0"))
                                         ? bytes.floats(attributes.value(QStringLiteral("POSITION")), 3)
                                         : nullptr;
    if (!places || places->size() != size_t(mesh.mNumVertices) * 3)
        return false;
    for (size_t v = 0; v < mesh.mNumVertices; ++v) {
        const aiVector3D &place = mesh.mVertices[v];
        if (place.x != (*places)[3 * v] || place.y != (*places)[3 * v + 1] || place.z != (*places)[3 * v + 2])
            return false;
    }
    return true;
}

/// The bones of such a mesh are the joints of its skin, in their order.
void readWeights(GltfBytes &bytes, const QJsonObject &attributes, const aiMesh &mesh)
{
    BoneWeights found(mesh.mNumBones);
    for (int set = 0; set < MostSets; ++set) {
        const QString joints = QStringLiteral("JOINTS_%1").arg(set);
        const QString weights = QStringLiteral("WEIGHTS_%1").arg(set);
        if (!attributes.contains(joints))
            break;
        if (addSet(bytes, attributes.value(joints), attributes.value(weights), mesh.mNumVertices, found))
            return;
    }
    for (unsigned b = 0; b < mesh.mNumBones; ++b) {
        if (found[b].empty())
            found[b].emplace_back(0, 0.0f); // the library wants one for each bone
        aiBone &bone = *mesh.mBones[b];
        delete[] bone.mWeights;
        bone.mNumWeights = unsigned(found[b].size());
        bone.mWeights = new aiVertexWeight[found[b].size()];
        std::copy(found[b].begin(), found[b].end(), bone.mWeights);
    }
}
} // namespace

void readGltfWeights(const QString &modelPath, const aiScene &scene)
{
    const auto isNamed = [&modelPath](const char *suffix) {
        return modelPath.endsWith(QLatin1String(suffix), Qt::CaseInsensitive);
    };
    GltfBytes bytes;
    QString reason;
    if ((!isNamed(".gltf") && !isNamed(".glb")) || openGltf(modelPath, bytes, reason))
        return;
    std::vector<QJsonObject> open; // primitives that no mesh was found for yet
    const QJsonArray meshes = bytes.list("meshes");
    for (const QJsonValue &mesh : meshes) {
        const QJsonArray primitives = mesh.toObject().value(QLatin1String("primitives")).toArray();
        for (const QJsonValue &primitive : primitives)
            open.push_back(primitive.toObject().value(QLatin1String("attributes")).toObject());
    }
    for (unsigned m = 0; m < scene.mNumMeshes; ++m) {
        const aiMesh &mesh = *scene.mMeshes[m];
        const auto found = std::find_if(open.begin(), open.end(), [&](const QJsonObject &attributes) {
            return isOf(mesh, bytes, attributes);
        });
        if (!mesh.HasBones() || found == open.end())
            continue;
        readWeights(bytes, *found, mesh);
        open.erase(found);
    }
}
