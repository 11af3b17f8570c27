// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BlendedVertices.h"
#include "SkeletonPose.h"

#include <memory>

/// Finds the turn that takes points at rest to where they are, as near as can be.
class TurnFit
{
public:
    /// So many of the points that shall be together as tell how they turn, from all over the list.
    template <typename Point>
    static std::vector<Point> some(const std::vector<Point> &points)
    {
        std::vector<Point> found;
        for (size_t p = 0; p < points.size(); p += points.size() / Enough + 1)
            found.push_back(points[p]);
        return found;
    }

    /// `rest` is from the middle of all points that are added; `place` may be from anywhere.
    void addPoint(const Vector3 &rest, const Vector3 &place);
    /// What becomes of the surroundings of a point. `size` is the model's.
    void addSurroundings(const Matrix3 &change, double size);
    /// None when nothing tells, or what tells is no number.
    std::optional<Turn> turn() const;

private:
    static constexpr size_t Enough = 60;

    Matrix3 m_sum{0, 0, 0, 0, 0, 0, 0, 0, 0};
};

/// Bones that no node of the source is. Each has vertices of one bone that the source moves nearly alike but
/// not as that bone; it stands where it has them nearest to their places there. It is a child of that bone.
class ExtraBones
{
public:
    struct Group
    {
        int parent; ///< a bone of the source
        std::vector<quint32> vertices;
    };

    /// `rest` is how the bones of the source stand when its nodes stand in `world`, `size` the model's.
    ExtraBones(std::shared_ptr<const BlendedVertices> vertices, const std::vector<Matrix4> &world,
               const SkeletonPose &rest, double size, const std::vector<Group> &groups);

    int count() const { return int(m_bones.size()); }
    int parent(int extra) const { return m_bones[size_t(extra)].parent; }
    /// The extra bone of a vertex; -1 without one.
    int find(quint32 vertex) const { return m_extraOf[vertex]; }
    /// Marks the nodes on whose places the bones' depend.
    void markNodes(std::vector<bool> &marks) const;
    /// Puts the bones behind those of the source, which stand as they do when its nodes stand in `world`.
    void pose(const std::vector<Matrix4> &world, SkeletonPose &pose) const;

private:
    struct Point
    {
        quint32 vertex;
        Vector3 rest;   ///< around the middle of its bone's points
        Matrix3 toRest; ///< undoes what becomes of its surroundings at rest
    };
    struct Bone
    {
        int parent;
        Turn restTurn;
        std::vector<Point> points;
    };

    std::shared_ptr<const BlendedVertices> m_vertices;
    std::vector<int> m_extraOf; ///< by vertex
    std::vector<Bone> m_bones;
    double m_size;
};
