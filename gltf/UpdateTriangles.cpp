// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UpdateTriangles.h"

#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "VertexGroups.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>

namespace {
constexpr size_t MostVertices = 65535; ///< 65535 ends the list of a surface
constexpr quint32 None = VertexGroups::None;

using Corners = std::array<quint32, 3>;

/// The rotation of three corners that has the least first; `turn` is how far it was turned.
Corners leastFirst(const Corners &corners, size_t &turn)
{
    turn = size_t(std::min_element(corners.begin(), corners.end()) - corners.begin());
    // Equal ones: the smallest of the rotations as a whole.
    Corners best = {corners[turn], corners[(turn + 1) % 3], corners[(turn + 2) % 3]};
    for (size_t i = 0; i < 3; ++i) {
        const Corners rotated = {corners[i], corners[(i + 1) % 3], corners[(i + 2) % 3]};
        if (rotated < best) {
            best = rotated;
            turn = i;
        }
    }
    return best;
}

template <typename Mesh, typename Vertex>
class TriangleUpdate
{
public:
    TriangleUpdate(Mesh &mesh, const FileTriangles<Vertex> &file, double size, TriangleChanges &changes)
        : m_mesh(mesh)
        , m_file(file)
        , m_nearby(sameDistance(size))
        , m_changes(changes)
        , m_groups(groupVertices(mesh.vertices, file.vertices, m_nearby))
        , m_takenBy(mesh.vertices.size(), None)
        , m_isKept(mesh.vertices.size(), false)
        , m_keptOfGroup(mesh.vertices.size(), None)
        , m_number(file.vertices.size(), None)
    {}

    bool run()
    {
        if (m_mesh.surfaces.size() < m_file.surfaces.size())
            m_mesh.surfaces.resize(m_file.surfaces.size());
        for (size_t i = 0; i < m_mesh.surfaces.size(); ++i)
            matchSurface(i);
        pairLeftOvers();
        for (const Pair &pair : m_pairs)
            keepCorners(pair);
        for (const Triangle &triangle : m_new)
            shareOldVertices(triangle.corners);
        for (Pair &pair : m_pairs) {
            if (pair.isSame)
                continue;
            shareOldVertices(pair.theirs);
            moveCorners(pair);
        }
        writeSurfaces();
        return dropUnused();
    }

private:
    /// A triangle of the file in a surface, or one of the mesh.
    struct Triangle
    {
        size_t surface;
        Corners corners;
        size_t position = 0; ///< in the surface of the mesh
    };
    /// Triangles that are one: corner i of the file's is corner i of the mesh's.
    struct Pair
    {
        Corners ours;
        Corners theirs;
        bool isSame;
        size_t surface;
        size_t position;
        Corners numbers; ///< of the corners that are moved in their places
    };

    // --- Who is who --------------------------------------------------------------------------------------

    bool isCarried(const Corners &corners) const
    {
        const size_t count = m_mesh.vertices.size();
        return corners[0] < count && corners[1] < count && corners[2] < count && corners[0] != corners[1] &&
               corners[1] != corners[2] && corners[0] != corners[2];
    }

    /// Finds the triangles of the file in a surface that are the mesh's, in the order of both.
    void matchSurface(size_t surface)
    {
        const std::vector<quint16> &indexes = m_mesh.surfaces[surface].triangleIndexes;
        std::map<Corners, std::vector<size_t>> byGroups; ///< positions, the first one last
        for (size_t at = indexes.size() / 3; at-- > 0;) {
            const Corners corners = {indexes[3 * at], indexes[3 * at + 1], indexes[3 * at + 2]};
            if (!isCarried(corners))
                continue;
            size_t turn = 0;
            byGroups[leastFirst({m_groups.ofMesh[corners[0]], m_groups.ofMesh[corners[1]],
                                 m_groups.ofMesh[corners[2]]},
                                turn)]
                .push_back(at);
        }
        std::vector<bool> isFound(indexes.size() / 3, false);
        if (surface < m_file.surfaces.size()) {
            const std::vector<quint32> &theirs = m_file.surfaces[surface];
            for (size_t at = 0; at + 2 < theirs.size(); at += 3) {
                const Corners corners = {m_groups.oneOfFile[theirs[at]], m_groups.oneOfFile[theirs[at + 1]],
                                         m_groups.oneOfFile[theirs[at + 2]]};
                const Corners groups = {m_groups.ofFile[corners[0]], m_groups.ofFile[corners[1]],
                                        m_groups.ofFile[corners[2]]};
                size_t turn = 0;
                const auto found = byGroups.find(leastFirst(groups, turn));
                if (std::find(groups.begin(), groups.end(), None) != groups.end() ||
                    found == byGroups.end() || found->second.empty()) {
                    m_new.push_back({surface, corners});
                    continue;
                }
                const size_t position = found->second.back();
                found->second.pop_back();
                isFound[position] = true;
                const Corners ours = {indexes[3 * position], indexes[3 * position + 1],
                                      indexes[3 * position + 2]};
                size_t ourTurn = 0;
                leastFirst({m_groups.ofMesh[ours[0]], m_groups.ofMesh[ours[1]], m_groups.ofMesh[ours[2]]},
                           ourTurn);
                Pair pair{{}, {}, true, surface, position, {}};
                for (size_t i = 0; i < 3; ++i) {
                    pair.ours[i] = ours[(i + ourTurn) % 3];
                    pair.theirs[i] = corners[(i + turn) % 3];
                }
                m_pairs.push_back(pair);
            }
        }
        keepWhatNobodyCarries(surface, isFound);
        for (size_t at = 0; at < isFound.size(); ++at) {
            if (!isFound[at])
                m_lost.push_back({surface, {indexes[3 * at], indexes[3 * at + 1], indexes[3 * at + 2]}, at});
        }
    }

    /// Other programs drop triangles without area, and the second one of the same corners, whichever way it
    /// looks: who keeps one keeps the other.
    void keepWhatNobodyCarries(size_t surface, std::vector<bool> &isFound)
    {
        const std::vector<quint16> &indexes = m_mesh.surfaces[surface].triangleIndexes;
        std::map<Corners, bool> isThere;
        const auto sorted = [&](size_t at) {
            Corners corners = {indexes[3 * at], indexes[3 * at + 1], indexes[3 * at + 2]};
            for (quint32 &each : corners)
                each = each < m_groups.ofMesh.size() ? m_groups.ofMesh[each] : each;
            std::sort(corners.begin(), corners.end());
            return corners;
        };
        for (size_t at = 0; at < isFound.size(); ++at) {
            if (isFound[at])
                isThere[sorted(at)] = true;
        }
        for (size_t at = 0; at < isFound.size(); ++at) {
            const Corners corners = {indexes[3 * at], indexes[3 * at + 1], indexes[3 * at + 2]};
            if (isFound[at] || (isCarried(corners) && isThere.find(sorted(at)) == isThere.end()))
                continue;
            isFound[at] = true;
            m_pairs.push_back({corners, {None, None, None}, true, surface, at, {}});
        }
    }

    /// What is left over on both sides and has the same texture coordinates has only moved, or changed its
    /// bones.
    void pairLeftOvers()
    {
        pairAlike(true);
        pairAlike(false);
        for (const Triangle &triangle : m_lost) {
            for (const quint32 corner : triangle.corners) // each is one of the mesh's
                touch(m_mesh.vertices[corner]);
        }
        m_changes.lostTriangles = int(m_lost.size());
        m_changes.newTriangles = int(m_new.size());
    }

    /// What a corner looks like wherever it is.
    using Look = std::array<qint64, 3>;

    static Look lookOf(const Vertex &vertex, bool withBones)
    {
        const auto step = [](float value) {
            const double at = std::floor(double(value) * 16384.0 + 0.5);
            return std::abs(at) < 1.0e15 ? qint64(at) : qint64(0);
        };
        return {withBones ? boneOf(vertex) : 0, step(vertex.uv.x()), step(vertex.uv.y())};
    }

    static std::array<Look, 3> looksOf(const Triangle &triangle, const std::vector<Vertex> &vertices,
                                       bool withBones)
    {
        std::array<Look, 3> corners;
        for (size_t i = 0; i < 3; ++i)
            corners[i] = lookOf(vertices[triangle.corners[i]], withBones);
        std::array<Look, 3> best = corners;
        for (size_t i = 1; i < 3; ++i)
            best = std::min(best, {corners[i], corners[(i + 1) % 3], corners[(i + 2) % 3]});
        return best;
    }

    /// The rotation of the mesh's corners that looks like the file's and has its shape.
    Corners bestTurn(const Corners &ours, const Corners &theirs, bool withBones) const
    {
        Corners best = ours;
        float least = -1.0f;
        for (size_t turn = 0; turn < 3; ++turn) {
            const Corners turned = {ours[turn], ours[(turn + 1) % 3], ours[(turn + 2) % 3]};
            std::array<QVector3D, 3> ways;
            bool isAlikeAll = true;
            for (size_t i = 0; i < 3; ++i) {
                const Vertex &from = m_mesh.vertices[turned[i]];
                const Vertex &to = m_file.vertices[theirs[i]];
                isAlikeAll = isAlikeAll && lookOf(from, withBones) == lookOf(to, withBones);
                ways[i] = to.position - from.position;
            }
            const QVector3D mean = (ways[0] + ways[1] + ways[2]) / 3.0f;
            float cost = 0.0f;
            for (const QVector3D &way : ways)
                cost += (way - mean).lengthSquared();
            if (isAlikeAll && (least < 0.0f || cost < least)) {
                least = cost;
                best = turned;
            }
        }
        return best;
    }

    /// A triangle without area has no direction, so that other programs give its corners another one.
    bool isFlatAndInPlace(const Pair &pair) const
    {
        std::array<QVector3D, 3> at;
        for (size_t i = 0; i < 3; ++i) {
            const Vertex &ours = m_mesh.vertices[pair.ours[i]];
            const Vertex &theirs = m_file.vertices[pair.theirs[i]];
            at[i] = ours.position;
            if (boneOf(ours) != boneOf(theirs) || boneOf(ours) != boneOf(m_mesh.vertices[pair.ours[0]]) ||
                (ours.position - theirs.position).length() > m_nearby)
                return false;
        }
        const QVector3D side = at[1] - at[0];
        const QVector3D other = at[2] - at[0];
        return QVector3D::crossProduct(side, other).length() <=
               m_nearby * std::max({side.length(), other.length(), (other - side).length()});
    }

    void pairAlike(bool withBones)
    {
        std::map<std::pair<size_t, std::array<Look, 3>>, std::vector<size_t>> lost; ///< the first one last
        for (size_t i = m_lost.size(); i-- > 0;)
            lost[{m_lost[i].surface, looksOf(m_lost[i], m_mesh.vertices, withBones)}].push_back(i);
        std::vector<bool> isPaired(m_lost.size(), false);
        std::vector<Triangle> stillNew;
        for (const Triangle &triangle : m_new) {
            const auto found = lost.find({triangle.surface, looksOf(triangle, m_file.vertices, withBones)});
            if (found == lost.end() || found->second.empty()) {
                stillNew.push_back(triangle);
                continue;
            }
            const size_t other = found->second.back();
            found->second.pop_back();
            isPaired[other] = true;
            const Triangle &ours = m_lost[other];
            Pair pair{{}, triangle.corners, false, triangle.surface, ours.position, {None, None, None}};
            pair.ours = bestTurn(ours.corners, triangle.corners, withBones);
            pair.isSame = isFlatAndInPlace(pair);
            m_pairs.push_back(pair);
        }
        m_new = std::move(stillNew);
        std::vector<Triangle> stillLost;
        for (size_t i = 0; i < m_lost.size(); ++i) {
            if (!isPaired[i])
                stillLost.push_back(m_lost[i]);
        }
        m_lost = std::move(stillLost);
    }

    // --- What becomes of vertices ------------------------------------------------------------------------

    void keepCorners(const Pair &pair)
    {
        for (size_t i = 0; pair.isSame && i < 3; ++i) {
            if (pair.ours[i] < m_isKept.size()) {
                m_isKept[pair.ours[i]] = true;
                m_keptOfGroup[m_groups.ofMesh[pair.ours[i]]] = pair.ours[i];
            }
            if (pair.theirs[i] != None)
                m_number[pair.theirs[i]] = pair.ours[i];
        }
    }

    /// Where a corner is what a vertex of the mesh stays to be, it is that one.
    void shareOldVertices(const Corners &corners)
    {
        for (const quint32 corner : corners) {
            const quint32 group = m_groups.ofFile[corner];
            if (m_number[corner] == None && group != None)
                m_number[corner] = m_keptOfGroup[group];
        }
    }

    /// Lets a vertex of the mesh become what it is in the file, if no other triangle wants it otherwise.
    void moveCorners(Pair &pair)
    {
        for (size_t i = 0; i < 3; ++i) {
            const quint32 ours = pair.ours[i];
            const quint32 theirs = pair.theirs[i];
            const bool staysSo = m_isKept[ours] && m_groups.ofFile[theirs] == m_groups.ofMesh[ours];
            if (!m_isKept[ours] && m_takenBy[ours] == None) {
                m_takenBy[ours] = theirs;
                take(m_mesh.vertices[ours], m_file.vertices[theirs]);
            }
            if (staysSo || (!m_isKept[ours] && m_takenBy[ours] == theirs)) {
                pair.numbers[i] = ours;
                if (m_number[theirs] == None)
                    m_number[theirs] = ours;
            }
        }
    }

    /// What is the same keeps its bits.
    void take(Vertex &vertex, const Vertex &from)
    {
        const Vertex before = vertex;
        vertex = from;
        const bool sameBone = boneOf(before) == boneOf(from);
        for (int axis = 0; sameBone && axis < 3; ++axis) {
            if (std::abs(before.position[axis] - from.position[axis]) <= m_nearby)
                vertex.position[axis] = before.position[axis];
        }
        if (isSameUV(before.uv, from.uv))
            vertex.uv = before.uv;
        if (sameBone && isSameNormal(before.normal, from.normal))
            vertex.normal = before.normal;
        if (sameBone && vertex.position == before.position && vertex.uv == before.uv &&
            vertex.normal == before.normal)
            return;
        ++m_changes.moved;
        touch(before);
        touch(vertex);
    }

    void touch(const Vertex &vertex)
    {
        const size_t bone = size_t(boneOf(vertex));
        if (m_changes.touchedBones.size() <= bone)
            m_changes.touchedBones.resize(bone + 1, false);
        m_changes.touchedBones[bone] = true;
    }

    quint32 numberOf(quint32 theirs)
    {
        if (m_number[theirs] == None) {
            m_number[theirs] = quint32(m_mesh.vertices.size());
            m_mesh.vertices.push_back(m_file.vertices[theirs]);
            touch(m_file.vertices[theirs]);
            ++m_changes.added;
        }
        return m_number[theirs];
    }

    // --- The mesh ----------------------------------------------------------------------------------------

    /// Indexes are counted in 32 bits until the vertices that nobody needs are gone.
    void writeSurfaces()
    {
        noteUse(m_wasUsed);
        for (const auto &surface : m_mesh.surfaces)
            m_indexes.emplace_back(surface.triangleIndexes.begin(), surface.triangleIndexes.end());
        std::vector<std::vector<bool>> stays;
        for (const std::vector<quint32> &indexes : m_indexes)
            stays.emplace_back(indexes.size() / 3, false);
        for (const Pair &pair : m_pairs) {
            stays[pair.surface][pair.position] = true;
            if (pair.isSame)
                continue;
            // Where the corners of the mesh's triangle stand in it.
            quint32 *corners = m_indexes[pair.surface].data() + 3 * pair.position;
            const auto first = size_t(std::find(corners, corners + 3, pair.ours[0]) - corners);
            for (size_t i = 0; i < 3; ++i)
                m_next.push_back({pair.surface, 3 * pair.position + (first + i) % 3,
                                  pair.numbers[i] != None ? pair.numbers[i] : numberOf(pair.theirs[i])});
        }
        for (const auto &[surface, position, number] : m_next)
            m_indexes[surface][position] = number;
        for (size_t surface = 0; surface < m_indexes.size(); ++surface) {
            std::vector<quint32> &indexes = m_indexes[surface];
            std::vector<quint32> kept;
            for (size_t at = 0; at < stays[surface].size(); ++at) {
                if (stays[surface][at])
                    kept.insert(kept.end(), {indexes[3 * at], indexes[3 * at + 1], indexes[3 * at + 2]});
            }
            // An incomplete triangle at the end draws nothing, and stays what it is.
            std::vector<quint32> rest(indexes.begin() + std::ptrdiff_t(stays[surface].size()) * 3,
                                      indexes.end());
            for (const Triangle &triangle : m_new) {
                for (size_t i = 0; triangle.surface == surface && i < 3; ++i)
                    kept.push_back(numberOf(triangle.corners[i]));
            }
            kept.insert(kept.end(), rest.begin(), rest.end());
            indexes = std::move(kept);
        }
    }

    void noteUse(std::vector<bool> &isUsed) const
    {
        isUsed.assign(m_mesh.vertices.size(), false);
        for (const auto &surface : m_mesh.surfaces) {
            for (const quint16 index : surface.triangleIndexes) {
                if (index < isUsed.size())
                    isUsed[index] = true;
            }
        }
    }

    /// Takes out the vertices that no triangle has any more. Returns true when too many are left.
    bool dropUnused()
    {
        std::vector<bool> isUsed(m_mesh.vertices.size(), false);
        for (const std::vector<quint32> &indexes : m_indexes) {
            for (const quint32 index : indexes) {
                if (index < isUsed.size())
                    isUsed[index] = true;
            }
        }
        std::vector<quint32> numbers(m_mesh.vertices.size());
        std::vector<Vertex> left;
        for (size_t i = 0; i < m_mesh.vertices.size(); ++i) {
            numbers[i] = quint32(left.size());
            if (isUsed[i] || i >= m_wasUsed.size() || !m_wasUsed[i])
                left.push_back(m_mesh.vertices[i]);
            else
                ++m_changes.removed;
        }
        if (m_changes.added > 0 && left.size() > MostVertices)
            return true;
        for (size_t surface = 0; surface < m_indexes.size(); ++surface) {
            std::vector<quint16> &indexes = m_mesh.surfaces[surface].triangleIndexes;
            indexes.clear();
            for (const quint32 index : m_indexes[surface])
                indexes.push_back(quint16(index < numbers.size() ? numbers[index] : index));
        }
        m_mesh.vertices = std::move(left);
        return false;
    }

    struct NextIndex
    {
        size_t surface;
        size_t position;
        quint32 number;
    };

    Mesh &m_mesh;
    const FileTriangles<Vertex> &m_file;
    const float m_nearby;
    TriangleChanges &m_changes;
    const VertexGroups m_groups;
    std::vector<Pair> m_pairs;
    std::vector<Triangle> m_new;
    std::vector<Triangle> m_lost;
    std::vector<quint32> m_takenBy;     ///< the vertex of the file that one of the mesh becomes
    std::vector<bool> m_isKept;         ///< a vertex of the mesh stays as it is
    std::vector<quint32> m_keptOfGroup; ///< one of those that stay
    std::vector<quint32> m_number;      ///< in the mesh, of each vertex of the file
    std::vector<bool> m_wasUsed;
    std::vector<NextIndex> m_next;
    std::vector<std::vector<quint32>> m_indexes;
};
} // namespace

template <typename Mesh, typename Vertex>
bool updateTriangles(Mesh &mesh, const FileTriangles<Vertex> &file, double size, TriangleChanges &changes)
{
    return TriangleUpdate<Mesh, Vertex>(mesh, file, size, changes).run();
}

template bool updateTriangles(SkinnedMesh &, const FileTriangles<SkinnedMeshVertex> &, double,
                              TriangleChanges &);
template bool updateTriangles(StaticMesh &, const FileTriangles<StaticMeshVertex> &, double,
                              TriangleChanges &);
