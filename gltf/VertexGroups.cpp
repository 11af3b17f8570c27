// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "VertexGroups.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_map>

namespace {
constexpr double SamePosition = 1.0e-5; ///< of the model's size
constexpr float SameUV = 1.0e-5f;
// Radians, about: other programs keep the normals of corners in integers of 16 bits.
constexpr float SameNormal = 0.03f;
constexpr float OneNormal = 1.0e-3f; ///< of corners that are one vertex

bool isSameDirection(const QVector3D &a, const QVector3D &b, float most)
{
    const QVector3D first = a.normalized();
    const QVector3D second = b.normalized();
    const bool haveDirections = first.lengthSquared() > 0.5f && second.lengthSquared() > 0.5f;
    return !haveDirections || (first - second).length() <= most;
}

template <typename Vertex>
bool isAlike(const Vertex &a, const Vertex &b, float nearby, float sameNormal)
{
    return boneOf(a) == boneOf(b) && (a.position - b.position).length() <= nearby && isSameUV(a.uv, b.uv) &&
           isSameDirection(a.normal, b.normal, sameNormal);
}

/// Numbers places in space so that those next to each other get one number, in linear time for anything that
/// is no malice.
class PlaceGrid
{
public:
    explicit PlaceGrid(float cell)
        : m_cell(cell)
    {}

    /// The first member in the cells around a place that `isSame` accepts; VertexGroups::None when there is
    /// none.
    template <typename Same>
    quint32 find(int tag, const QVector3D &place, Same isSame) const
    {
        // A cell is much larger than what is the same, so only those around the nearest corner are looked at.
        const std::array<qint64, 3> corner = cellOf(place, 0.5);
        size_t looks = 0;
        quint32 best = VertexGroups::None;
        for (int i = 0; i < 8; ++i) {
            const auto range = m_cells.equal_range(
                key(tag, {corner[0] - (i & 1), corner[1] - (i >> 1 & 1), corner[2] - (i >> 2 & 1)}));
            for (auto member = range.first; member != range.second && looks < MostLooks; ++member, ++looks) {
                if (member->second < best && isSame(member->second))
                    best = member->second;
            }
        }
        return best;
    }

    void insert(int tag, const QVector3D &place, quint32 member)
    {
        m_cells.emplace(key(tag, cellOf(place, 0.0)), member);
    }

private:
    static constexpr size_t MostLooks = 1024;

    std::array<qint64, 3> cellOf(const QVector3D &place, double shift) const
    {
        std::array<qint64, 3> cell{};
        for (int axis = 0; axis < 3; ++axis) {
            const double at = std::floor(double(place[axis]) / double(m_cell) + shift);
            cell[size_t(axis)] = std::abs(at) < 1.0e15 ? qint64(at) : 0; // not for what is no number, either
        }
        return cell;
    }

    static quint64 key(int tag, const std::array<qint64, 3> &cell)
    {
        quint64 hash = quint64(tag) + 0x9E3779B97F4A7C15u;
        for (const qint64 each : cell)
            hash = (hash ^ quint64(each)) * 0xD6E8FEB86659FD93u ^ (hash >> 29);
        return hash;
    }

    float m_cell;
    std::unordered_multimap<quint64, quint32> m_cells;
};

/// Of each vertex of `vertices` the first one of itself that is alike.
template <typename Vertex>
std::vector<quint32> joined(const std::vector<Vertex> &vertices, float nearby, float sameNormal,
                            PlaceGrid &grid)
{
    std::vector<quint32> first;
    for (size_t i = 0; i < vertices.size(); ++i) {
        const Vertex &vertex = vertices[i];
        first.push_back(grid.find(boneOf(vertex), vertex.position, [&](quint32 member) {
            return isAlike(vertices[member], vertex, nearby, sameNormal);
        }));
        if (first.back() != VertexGroups::None)
            continue;
        first.back() = quint32(i);
        grid.insert(boneOf(vertex), vertex.position, quint32(i));
    }
    return first;
}
} // namespace

float sameDistance(double size)
{
    return float(SamePosition * size);
}

bool isSameUV(const QVector2D &a, const QVector2D &b)
{
    return (a - b).length() <= SameUV;
}

bool isSameNormal(const QVector3D &a, const QVector3D &b)
{
    return isSameDirection(a, b, SameNormal);
}

template <typename Vertex>
VertexGroups groupVertices(const std::vector<Vertex> &mesh, const std::vector<Vertex> &file, float nearby)
{
    const float cell = std::max(4.0f * nearby, 1.0e-30f);
    PlaceGrid ours(cell);
    PlaceGrid theirs(cell);
    VertexGroups groups;
    groups.ofMesh = joined(mesh, nearby, SameNormal, ours);
    // A program may give each triangle corners of its own.
    groups.oneOfFile = joined(file, nearby, OneNormal, theirs);
    for (const Vertex &vertex : file) {
        groups.ofFile.push_back(ours.find(boneOf(vertex), vertex.position, [&](quint32 member) {
            return isAlike(mesh[member], vertex, nearby, SameNormal);
        }));
    }
    return groups;
}

template VertexGroups groupVertices(const std::vector<SkinnedMeshVertex> &,
                                    const std::vector<SkinnedMeshVertex> &, float);
template VertexGroups groupVertices(const std::vector<StaticMeshVertex> &,
                                    const std::vector<StaticMeshVertex> &, float);
