// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

#include <QVector>

#include <optional>

struct MeshBonesEdit;

/// The bones of a mesh and all numbers in it that name one: they are edited together.
class MeshBones
{
public:
    /// A bone that is to come in.
    struct NewBone
    {
        SkinnedMeshNode bone; ///< whatever it says of parent and children does not count
        int parent;           ///< the number of a bone of the mesh; -1 - i: the i-th of those that come in
    };
    /// How many bones the game can pose.
    static constexpr size_t MostBones = 128;

    explicit MeshBones(const SkinnedMesh &mesh);

    /// The mesh with other bones, everything that names one following it.
    static MeshBonesEdit with(const SkinnedMesh &mesh, int at, const std::vector<NewBone> &added);
    static MeshBonesEdit without(const SkinnedMesh &mesh, const QVector<int> &bones);
    /// `by`: 1 or -1; `bones` ascend. Nothing moves beyond the end of the list: then there is neither a
    /// skeleton nor a reason.
    static MeshBonesEdit moved(const SkinnedMesh &mesh, const QVector<int> &bones, int by);

    /// As ExchangeCommand wants it.
    bool fits(const SkinnedMesh &mesh, const RecordIndex &) const;
    void exchange(SkinnedMesh &mesh, const RecordIndex &);

private:
    QString renumber(const std::vector<int> &numbers);

    std::vector<SkinnedMeshNode> m_bones;
    quint8 m_headTrackStart;
    quint8 m_headTrackEnd;
    std::vector<quint16> m_hotPointBones;
    std::vector<quint16> m_vertexBones;
};

/// What an edit comes to: a skeleton, or the reason, for the user, why it cannot be.
struct MeshBonesEdit
{
    std::optional<MeshBones> skeleton;
    QString refusal;
    QVector<int> bones; ///< the numbers that the edited bones have then, ascending
};
