// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "GltfScene.h"
#include "Rigid.h"
#include "SkinnedMesh.h"

#include <QStringList>

/// From the axes of glTF, y up, to those of the game, z up, and back.
QMatrix4x4 fromGltfAxes();
QMatrix4x4 toGltfAxes();

/// Which node of a glTF file is which bone of a mesh, and where the bone's own frame is when the node is
/// somewhere.
///
/// Programs turn the axes of bones as they like. What they keep is the matrix that binds a bone's vertices,
/// so the frame of a bone is its node's times a constant: the one that makes the bound pose the rest pose
/// that the file carries from the export. A bone whose place in the bound pose is another one was moved; it
/// keeps its axes.
class UpdateBones
{
public:
    struct Bone
    {
        int node = -1;         ///< of the file; -1: it has none
        QString name;          ///< of the node
        int parent = -1;       ///< on whose frame the pose puts it; -1: on none
        bool isReached = true; ///< by the pose; else it stands still at the origin
        bool isMoved = false;
        Rigid oldRest;     ///< from its space to the model's
        Rigid rest;        ///< the same with what the file changes
        QMatrix4x4 toBone; ///< from the bone's space to its node's
    };

    UpdateBones(const SkinnedMesh &mesh, const AnimFile &anim, const GltfScene &scene);

    /// Why there is nothing to be had of the file; empty when there is.
    const QString &error() const { return m_error; }
    /// Those of the mesh, then those that the file adds.
    const std::vector<Bone> &bones() const { return m_bones; }
    size_t oldCount() const { return m_oldCount; }
    /// The bone that a node is or hangs on; -1 for none.
    int boneOf(int node) const;
    /// The node that turns the whole model; -1 for none.
    int yawNode() const { return m_yawNode; }
    /// How far the model is turned about z when that node is at `world`, in radians.
    double yawAt(const QMatrix4x4 &world) const;
    enum class HotPointFound { Yes, No, Changed };
    /// Where a hot point is in the model's space at rest, unless it is none of the file's, or not any more
    /// the one that was exported.
    HotPointFound hotPoint(int number, QVector3D &position) const;
    /// Takes vertices of a mesh with this skin from its space to the model's at rest.
    QMatrix4x4 bindMatrix(int skin) const { return fromGltfAxes() * m_skinSpace[size_t(skin)]; }
    /// The same for a mesh that hangs on a bone without a skin.
    QMatrix4x4 hangingMatrix(int node) const;
    /// Joints that became no bones, by name.
    const QStringList &leftOut() const { return m_leftOut; }
    /// The largest extent of the model at rest, of which a small part counts as nothing.
    double size() const { return m_size; }

    /// A bone's frame in the model's space when its node is at `world`; `scale` is what had to be left out.
    Rigid frame(size_t bone, const QMatrix4x4 &world, double &scale, const Rigid &before) const;

private:
    struct Joint
    {
        int skin = -1;
        int index = -1;
    };

    void findNodes(const SkinnedMesh &mesh);
    void findNodesByName();
    void bindSkins();
    bool placeBones();
    void addBones();
    void measure(const SkinnedMesh &mesh);
    std::vector<bool> carriers() const;
    QMatrix4x4 bound(int node) const;

    const GltfScene &m_scene;
    size_t m_oldCount;
    std::vector<Bone> m_bones;
    std::vector<int> m_boneOfNode;
    std::vector<Joint> m_jointOfNode;
    std::vector<QMatrix4x4> m_worlds;    ///< of the nodes as they stand in the file
    std::vector<QMatrix4x4> m_skinSpace; ///< from each skin's space to the scene's
    std::vector<int> m_hotPoints;        ///< nodes by number
    std::vector<bool> m_isChanged;       ///< a hot point, since the export
    int m_yawNode = -1;
    QStringList m_leftOut;
    double m_size = 0.0;
    QString m_error;
};
