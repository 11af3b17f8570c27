// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Rigid.h"

#include <QVector4D>

#include <vector>

class GltfWriter;
struct AnimBlock;
struct AnimNode;
struct ModelNames;
struct SkinnedMesh;

/// A translation and a unit quaternion x, y, z, w as the file has them, numbers that are none put right.
struct GltfLocal
{
    std::array<float, 3> translation{};
    std::array<float, 4> rotation{0.0f, 0.0f, 0.0f, 1.0f};

    bool operator==(const GltfLocal &other) const
    {
        return translation == other.translation && rotation == other.rotation;
    }
    Rigid rigid() const;
};

/// A quaternion that is a unit already keeps its bits; one without length, or with what is no number, does
/// not turn, as in a pose.
std::array<float, 4> unitQuaternion(const QVector4D &xyzw);
/// A part that is no number is 0.
std::array<float, 3> finiteVector(const QVector3D &vector);

/// The bones of a mesh as the joints of a glTF file, which stand at rest where the initial pose of a block
/// has them. A bone that no pose reaches stays in the middle of the model, as in the view.
struct GltfSkeleton
{
    /// `rest` may have fewer bones or be null: bones without stand on their parents.
    GltfSkeleton(const SkinnedMesh &mesh, const AnimBlock *rest);

    struct Bone
    {
        int parent = -1; ///< a bone; -1: none
        bool isReached = false;
        GltfLocal local; ///< on the parent
        Rigid rest;      ///< to the model's space
        int node = -1;   ///< in the file
    };
    std::vector<Bone> bones;
    int yawNode = -1; ///< of the joint that turns the model; -1: there is none

    /// Adds the nodes of all joints: of the bones by number, of the hot points by number, and of the one that
    /// turns the model if it `turns`. Returns those that hang on none.
    std::vector<int> addNodes(GltfWriter &writer, const SkinnedMesh &mesh, const ModelNames &names,
                              bool turns);
    /// One for each hot point, where it stands at rest in the model's space.
    std::vector<Rigid> hotPointRests(const SkinnedMesh &mesh) const;
    /// The inverse bind matrices of all joints in that order, 16 numbers each, column by column.
    std::vector<float> inverseBinds(const SkinnedMesh &mesh) const;
};
