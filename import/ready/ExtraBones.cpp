// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ExtraBones.h"

namespace {
/// Of the model's size: what is known of surroundings counts as much as points that are so far away. So it
/// tells how a bone turns that has few vertices, or all in a line, and normals turn along; where they are
/// spread it is of no account.
constexpr double SurroundingsReach = 0.005;
} // namespace

void TurnFit::addPoint(const Vector3 &rest, const Vector3 &place)
{
    for (unsigned row = 0; row < 3; ++row) {
        for (unsigned column = 0; column < 3; ++column)
            m_sum[row][column] += place[row] * rest[column];
    }
}

void TurnFit::addSurroundings(const Matrix3 &change, double size)
{
    const double reach = size * SurroundingsReach;
    addScaled(m_sum, change, reach * reach);
}

ExtraBones::ExtraBones(std::shared_ptr<const BlendedVertices> vertices, const std::vector<Matrix4> &world,
                       const SkeletonPose &rest, double size, const std::vector<Group> &groups)
    : m_vertices(std::move(vertices))
    , m_extraOf(m_vertices->count(), -1)
    , m_size(size)
{
    const BlendedVertices::Movers movers = m_vertices->movers(world);
    for (const Group &group : groups) {
        Bone bone{group.parent, rest.world[size_t(group.parent)].turn, {}};
        Vector3 middle;
        for (const quint32 vertex : group.vertices)
            m_extraOf[vertex] = count();
        for (const quint32 vertex : TurnFit::some(group.vertices)) {
            bone.points.push_back(
                {vertex, m_vertices->place(movers, vertex), m_vertices->toRest(movers, vertex)});
            middle += bone.points.back().rest;
        }
        for (Point &point : bone.points)
            point.rest -= middle / double(bone.points.size());
        m_bones.push_back(std::move(bone));
    }
}

void ExtraBones::markNodes(std::vector<bool> &marks) const
{
    for (const Bone &bone : m_bones) {
        for (const Point &point : bone.points)
            m_vertices->markNodes(point.vertex, marks);
    }
}

void ExtraBones::pose(const std::vector<Matrix4> &world, SkeletonPose &pose) const
{
    const BlendedVertices::Movers movers = m_vertices->movers(world);
    const size_t first = pose.local.size() - m_bones.size();
    for (size_t b = 0; b < m_bones.size(); ++b) {
        const Bone &bone = m_bones[b];
        TurnFit fit;
        Vector3 middle;
        for (const Point &point : bone.points) {
            const Vector3 place = m_vertices->place(movers, point.vertex);
            middle += place / double(bone.points.size());
            fit.addPoint(point.rest, place);
            fit.addSurroundings(m_vertices->surroundings(movers, point.vertex) * point.toRest, m_size);
        }
        const RigidFrame &parent = pose.world[size_t(bone.parent)];
        if (const std::optional<Turn> turn = fit.turn())
            pose.turn(first + b, parent, *turn * bone.restTurn);
        pose.settle(first + b, parent, middle);
    }
}
