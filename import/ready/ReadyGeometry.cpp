// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReadyGeometry.h"

#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "Transform.h"

#include <QCoreApplication>

#include <array>
#include <cstring>
#include <unordered_map>

namespace {
// 65535 ends an index list in the file of a skinned mesh, so the last vertex of such a mesh is 65534.
constexpr size_t SkinnedVertexLimit = 65535;
constexpr size_t StaticVertexLimit = 65536;
/// Counting goes on beyond those limits, so that the message can say by how much, but not for ever.
constexpr size_t CountedVertices = 4'000'000;
/// Normals are one that differ by what is lost in a text of six digits.
constexpr float NormalSteps = 16384.0f;

bool isSound(const aiMesh &mesh, const aiFace &face)
{
    return face.mNumIndices == 3 && face.mIndices[0] < mesh.mNumVertices &&
           face.mIndices[1] < mesh.mNumVertices && face.mIndices[2] < mesh.mNumVertices;
}

Vector3 normalized(Vector3 v)
{
    const double length = v.Length();
    return length > 0.0 && std::isfinite(length) ? v / length : Vector3(0.0, 0.0, 1.0);
}

/// The vertices of a part at rest, in the model's space.
struct RestVertices
{
    std::vector<Vector3> positions;
    std::vector<Vector3> normals;
    std::vector<bool> isMirrored; ///< inside out
    qint64 lost = 0;              ///< of those that were no numbers
};

struct MoverPlace
{
    Matrix4 matrix;
    Matrix3 normals;
    bool isMirrored;
};

/// By all bones, as the source has it, also for those vertices that shall follow one: where the rest pose is
/// not the one that the skin was bound in, those of several bones would be torn apart otherwise.
RestVertices placeVertices(const SceneParts::Part &part)
{
    std::vector<MoverPlace> places;
    for (const SceneParts::Mover &mover : part.movers)
        places.push_back({mover.place, normalMatrix(mover.place), Matrix3(mover.place).Determinant() < 0.0});

    const aiMesh &mesh = *part.mesh;
    RestVertices rest;
    rest.positions.resize(mesh.mNumVertices);
    rest.normals.resize(mesh.mNumVertices);
    rest.isMirrored.resize(mesh.mNumVertices);
    SceneParts::eachWeight(part, [&](unsigned v, size_t mover, double weight) {
        const MoverPlace &place = places[mover];
        rest.positions[v] += place.matrix * exact(mesh.mVertices[v]) * weight;
        if (mesh.mNormals)
            rest.normals[v] += normalized(place.normals * exact(mesh.mNormals[v])) * weight;
        rest.isMirrored[v] = place.isMirrored;
    });
    for (unsigned v = 0; v < mesh.mNumVertices; ++v) {
        if (!isFinite(rest.positions[v]) || (mesh.mNormals && !isFinite(exact(mesh.mNormals[v])))) {
            ++rest.lost;
            rest.positions[v] = isFinite(rest.positions[v]) ? rest.positions[v] : Vector3();
        }
        rest.normals[v] = normalized(rest.normals[v]);
    }
    return rest;
}

/// Joins vertices that are the same in all: the library's own joining does not look at bones, so it would
/// give seams of two parts to one of them.
template <typename Vertex>
class VertexJoiner
{
public:
    explicit VertexJoiner(std::vector<Vertex> &vertices)
        : m_vertices(vertices)
    {}

    quint32 add(const Vertex &vertex, int bone)
    {
        const auto number = quint32(m_vertices.size());
        const auto [known, isNew] = m_known.emplace(keyOf(vertex, bone), number);
        if (isNew)
            m_vertices.push_back(vertex);
        return known->second;
    }

private:
    using Key = std::array<quint32, 9>;
    struct Hash
    {
        size_t operator()(const Key &key) const { return qHashBits(key.data(), sizeof(key)); }
    };

    static quint32 bits(float value)
    {
        const float plain = value + 0.0f; // no negative zero
        quint32 number = 0;
        std::memcpy(&number, &plain, sizeof(number));
        return number;
    }

    static Key keyOf(const Vertex &vertex, int bone)
    {
        Key key{quint32(bone), bits(vertex.uv.x()), bits(vertex.uv.y())};
        for (int axis = 0; axis < 3; ++axis) {
            key[size_t(3 + axis)] = bits(vertex.position[axis]);
            key[size_t(6 + axis)] = quint32(qRound(vertex.normal[axis] * NormalSteps));
        }
        return key;
    }

    std::vector<Vertex> &m_vertices;
    std::unordered_map<Key, quint32, Hash> m_known;
};

bool isFiniteUv(const aiVector3D &uv)
{
    return std::isfinite(uv.x) && std::isfinite(uv.y);
}

/// `settle` puts a vertex of a part into a vertex of the mesh and gives its bone.
template <typename Mesh, typename Settle>
bool addParts(const SceneSource &source, const SceneParts &parts, const std::vector<size_t> &surfaceOf,
              size_t limit, Mesh &mesh, Settle settle)
{
    std::vector<std::vector<quint32>> triangles(mesh.surfaces.size());
    VertexJoiner joiner(mesh.vertices);
    std::optional<Box> box;
    qint64 lost = 0;
    for (const SceneParts::Part &part : parts.parts()) {
        const aiMesh &from = *part.mesh;
        if (from.mMaterialIndex >= surfaceOf.size())
            continue;
        const RestVertices rest = placeVertices(part);
        lost += rest.lost;
        std::vector<qint64> numbers(from.mNumVertices, -1);
        const auto numberOf = [&](unsigned v) {
            if (numbers[v] < 0) {
                typename std::decay_t<decltype(mesh.vertices)>::value_type vertex;
                const int bone = settle(vertex, part, v, rest);
                if (from.mTextureCoords[0]) {
                    const aiVector3D &uv = from.mTextureCoords[0][v];
                    if (isFiniteUv(uv))
                        vertex.uv = {uv.x, uv.y};
                    else
                        ++lost;
                }
                widen(box, single(rest.positions[v]));
                numbers[v] = joiner.add(vertex, bone);
            }
            return quint32(numbers[v]);
        };
        std::vector<quint32> &list = triangles[surfaceOf[from.mMaterialIndex]];
        for (unsigned f = 0; f < from.mNumFaces && mesh.vertices.size() < CountedVertices; ++f) {
            const aiFace &face = from.mFaces[f];
            if (!isSound(from, face))
                continue;
            // Sources have fronts counter-clockwise, and what mirrors turns them round; the game has them
            // clockwise.
            const bool isMirrored = rest.isMirrored[face.mIndices[0]];
            list.push_back(numberOf(face.mIndices[0]));
            list.push_back(numberOf(face.mIndices[isMirrored ? 1 : 2]));
            list.push_back(numberOf(face.mIndices[isMirrored ? 2 : 1]));
        }
    }
    if (mesh.vertices.size() > limit) {
        source.messages.addError(
            QCoreApplication::translate("Import",
                                        "%1 has %2 vertices. A model of this kind can hold no more than %3.")
                .arg(source.modelPath, QString::number(mesh.vertices.size()), QString::number(limit)));
        return true;
    }
    for (size_t s = 0; s < triangles.size(); ++s)
        mesh.surfaces[s].triangleIndexes.assign(triangles[s].begin(), triangles[s].end());
    if (box) {
        mesh.bbMin = box->min;
        mesh.bbMax = box->max;
    }
    if (lost > 0)
        source.messages.addWarning(
            QCoreApplication::translate("Import",
                                        "%1 %2 vertices have a position, normal or UV that is no number")
                .arg(source.modelPath, QString::number(lost)));
    return false;
}
} // namespace

std::vector<bool> usedMaterials(const SceneSource &source, const SceneParts &parts)
{
    std::vector<bool> used(source.scene->mNumMaterials);
    const auto complain = [&source](const char *sentence, unsigned mesh) {
        source.messages.addError(
            QCoreApplication::translate("Import", sentence).arg(source.modelPath, QString::number(mesh)));
    };
    for (const SceneParts::Part &part : parts.parts()) {
        const aiMesh &mesh = *part.mesh;
        if (mesh.mMaterialIndex >= used.size()) {
            complain(QT_TRANSLATE_NOOP("Import", "%1 Mesh %2 refers to a material that is not there"),
                     part.number);
            continue;
        }
        for (unsigned f = 0; f < mesh.mNumFaces; ++f) {
            if (isSound(mesh, mesh.mFaces[f])) {
                used[mesh.mMaterialIndex] = true;
            } else {
                complain(QT_TRANSLATE_NOOP("Import", "%1 Mesh %2 refers to vertices that are not there"),
                         part.number);
                break;
            }
        }
    }
    return used;
}

bool addGeometry(const SceneSource &source, const SceneParts &parts, const std::vector<size_t> &surfaceOf,
                 const ReadySkeleton &skeleton, const SkeletonPose &rest, SkinnedMesh &mesh)
{
    const auto settle = [&](SkinnedMeshVertex &vertex, const SceneParts::Part &part, unsigned v,
                            const RestVertices &vertices) {
        const int bone = skeleton.boneOf(part, v);
        const RigidFrame &frame = rest.world[size_t(bone)];
        vertex.position = single(frame.unmap(vertices.positions[v]));
        vertex.normal = single(frame.unturn(vertices.normals[v]));
        vertex.nodeIndex = quint16(bone);
        return bone;
    };
    if (addParts(source, parts, surfaceOf, SkinnedVertexLimit, mesh, settle))
        return true;
    const std::vector<std::optional<Box>> boxes = boneBoxes(mesh);
    for (size_t b = 0; b < boxes.size(); ++b) {
        if (boxes[b]) {
            mesh.nodes[b].bbMin = boxes[b]->min;
            mesh.nodes[b].bbMax = boxes[b]->max;
        }
    }
    return false;
}

bool addGeometry(const SceneSource &source, const SceneParts &parts, const std::vector<size_t> &surfaceOf,
                 StaticMesh &mesh)
{
    const auto settle = [](StaticMeshVertex &vertex, const SceneParts::Part &, unsigned v,
                           const RestVertices &vertices) {
        vertex.position = single(vertices.positions[v]);
        vertex.normal = single(vertices.normals[v]);
        return 0;
    };
    return addParts(source, parts, surfaceOf, StaticVertexLimit, mesh, settle);
}
