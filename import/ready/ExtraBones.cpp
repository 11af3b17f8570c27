// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ExtraBones.h"

#include <array>

namespace {
/// Of the model's size: what is known of surroundings counts as much as points that are so far away. So it
/// tells how a bone turns that has few vertices, or all in a line, and normals turn along; where they are
/// spread it is of no account.
constexpr double SurroundingsReach = 0.005;
constexpr int MostSweeps = 30; // some five do
constexpr double SweepsEnd = 1e-15;

using Symmetric = std::array<std::array<double, 4>, 4>;

/// A step of Jacobi's method: turns the axes p and q so that the element between them is zero.
void annul(Symmetric &m, Symmetric &vectors, size_t p, size_t q)
{
    if (m[p][q] == 0.0)
        return;
    const double theta = (m[q][q] - m[p][p]) / (2.0 * m[p][q]);
    const double tangent = std::copysign(1.0, theta) / (std::abs(theta) + std::sqrt(theta * theta + 1.0));
    const double cosine = 1.0 / std::sqrt(tangent * tangent + 1.0);
    const double sine = tangent * cosine;
    const auto mix = [cosine, sine](double &a, double &b) {
        const double old = a;
        a = cosine * old - sine * b;
        b = sine * old + cosine * b;
    };
    for (size_t i = 0; i < 4; ++i)
        mix(m[i][p], m[i][q]);
    for (size_t i = 0; i < 4; ++i)
        mix(m[p][i], m[q][i]);
    for (size_t i = 0; i < 4; ++i)
        mix(vectors[i][p], vectors[i][q]);
}
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

/// The eigenvector of the greatest eigenvalue of a matrix of the sums (Horn, "Closed-form solution of
/// absolute orientation using unit quaternions"). Not the polar decomposition: of what is turned inside out,
/// as the inner side of an elbow may be, it would give a rotation that mirrors.
std::optional<Turn> TurnFit::turn() const
{
    const Matrix3 &s = m_sum;
    // By w, x, y, z.
    Symmetric m{{{s.a1 + s.b2 + s.c3, s.c2 - s.b3, s.a3 - s.c1, s.b1 - s.a2},
                 {s.c2 - s.b3, s.a1 - s.b2 - s.c3, s.a2 + s.b1, s.a3 + s.c1},
                 {s.a3 - s.c1, s.a2 + s.b1, s.b2 - s.a1 - s.c3, s.b3 + s.c2},
                 {s.b1 - s.a2, s.a3 + s.c1, s.b3 + s.c2, s.c3 - s.a1 - s.b2}}};
    double size = 0.0;
    for (const auto &row : m) {
        for (const double value : row)
            size += std::abs(value);
    }
    if (!(size > 0.0) || !std::isfinite(size))
        return std::nullopt;
    Symmetric vectors{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
    for (int sweep = 0; sweep < MostSweeps; ++sweep) {
        double off = 0.0;
        for (size_t p = 0; p < 3; ++p) {
            for (size_t q = p + 1; q < 4; ++q) {
                off += std::abs(m[p][q]);
                annul(m, vectors, p, q);
            }
        }
        if (off <= size * SweepsEnd)
            break;
    }
    size_t best = 0;
    for (size_t i = 1; i < 4; ++i) {
        if (m[i][i] > m[best][best])
            best = i;
    }
    Turn turn(vectors[0][best], vectors[1][best], vectors[2][best], vectors[3][best]);
    return turn.Normalize();
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
