// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "SkinnedMesh.h"

#include <QJsonObject>
#include <QQuaternion>
#include <QStringList>

#include <optional>
#include <vector>

/// What an exported glTF file carries of the game's records beside what glTF has a place for, so that the
/// model can come back. A node or material has it as one string in the property "korvane" of its extras, a
/// JSON text: other programs keep a string as it is, where they turn lists and objects into types of theirs.
///
/// Floats are numbers that read back to the same bits; one for which JSON has no number (infinite, none, or
/// minus zero) is the string "0x" with the eight hexadecimal digits of its bits. A field that is not there
/// keeps its default, one of another type or out of range makes the whole record count as none.
namespace GltfExtras {
constexpr int Schema = 1;

/// What a clip cannot hold. Clips are found by their names, since extras of animations get lost.
struct Block
{
    int number = 0;   ///< in the animation file
    QString clip;     ///< the name of the glTF animation; empty for a block that was not exported
    AnimBlock record; ///< without bones and tracks: header, frames with their yaw offsets, actions
};

/// {"schema", "kind", "model", …} on the armature's node, or on the mesh's node of a static mesh.
struct Model
{
    int schema = Schema;
    bool isStatic = false; ///< "kind": "skinnedmesh" or "staticmesh"
    QString name;          ///< "model": of the mesh's file, without its extension
    qint32 version = 0;
    QVector3D bbMin;
    QVector3D bbMax;
    std::vector<QString> materials; ///< of the surfaces, by number

    // Of a skinned mesh.
    quint8 headTrackStart = 0;
    quint8 headTrackEnd = 0;
    qint8 headTrackFactor = 0;
    qint32 unknownA = 0;
    qint32 unknownB = 0;
    qint32 animVersion = 0;
    std::vector<Block> blocks; ///< all of the animation file, in its order; none when there was no file
};

/// {"bone": 12, …} on a joint.
struct Bone
{
    int number = 0;
    SkinnedMeshNode record;
    int poseParent = -1; ///< whose joint its own hangs on, which is where the pose has it; -1: on none
    QVector3D restPosition;
    QQuaternion restRotation; ///< "rest": [x, y, z, qx, qy, qz, qw], from the bone's space to the model's
};

/// {"hotPoint": 3, …} on a joint without vertices.
struct HotPoint
{
    int number = 0;
    SkinnedMeshHotPoint record;
};

/// {"surface": 2, "material": "…"} on a material: each surface has one of its own.
struct Surface
{
    int number = 0;
    QString material;
};

/// {"block": 4} on an animation.
struct Clip
{
    int number = 0;
};

/// {"yaw": true} on the joint that turns the whole model about z, above all bones: by the negative yaw offset
/// of each frame. It is there when a clip of the file turns.
struct Yaw
{
    bool turns = true;
};

// The extras of a node, material or animation.
QJsonObject extras(const Model &model);
QJsonObject extras(const Bone &bone);
QJsonObject extras(const HotPoint &hotPoint);
QJsonObject extras(const Surface &surface);
QJsonObject extras(const Clip &clip);
QJsonObject extras(const Yaw &yaw);

/// What the extras of a node, material or animation hold; nothing when that is no such record.
template <typename Record>
std::optional<Record> read(const QJsonObject &extras);
template <>
std::optional<Model> read<Model>(const QJsonObject &extras);
template <>
std::optional<Bone> read<Bone>(const QJsonObject &extras);
template <>
std::optional<HotPoint> read<HotPoint>(const QJsonObject &extras);
template <>
std::optional<Surface> read<Surface>(const QJsonObject &extras);
template <>
std::optional<Clip> read<Clip>(const QJsonObject &extras);
template <>
std::optional<Yaw> read<Yaw>(const QJsonObject &extras);
} // namespace GltfExtras
