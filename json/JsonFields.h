// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <QCoreApplication>
#include <QMap>

/// What a field is called in JSON and what its value means.
struct JsonField
{
    const char *key;
    const char *about;     ///< for the schema; ranges and units
    qint64 most = -1;      ///< the largest value of a list's numbers, where it is less than their type's
    int perLine = 0;       ///< so many numbers of a list stand in a line; 0: all of them
    const char *also = ""; ///< other words by which people name it
};

/// The fields of each kind of record, all of them, in the order in which they are written. The writer, the
/// reader, the schema, comparisons and patches walk this one table:
/// - `name`: of one record, for people and in paths such as "hot point 3";
/// - `isLine`: whether a record stands in one line;
/// - `visit(field, record)`: calls `field(JsonField, value)` for each; the record may be constant;
/// - `finish(record, problem)`: checks what no single field can tell; `problem(key, text)` refuses the
/// record.
template <typename Record>
struct JsonFields;

struct JsonFieldsBase
{
    static constexpr bool isLine = true;
    template <typename Record, typename Problem>
    static void finish(Record &, const Problem &)
    {}
};

template <>
struct JsonFields<SkinnedMeshNode> : JsonFieldsBase
{
    static constexpr const char *name = "bone";
    template <typename Visitor, typename Self>
    static void visit(Visitor &field, Self &bone)
    {
        field(JsonField{"parent", "number of the parent bone; 255: none"}, bone.parentNode);
        field(JsonField{"childBones", "numbers of the child bones", -1, 0, "children"}, bone.childNodes);
        field(JsonField{"flags", "32 bits"}, bone.flags);
        field(JsonField{"symbol", "bits 0 and 1: body, head, arm, leg; bit 2: right side; bits 6 and 7: part",
                        -1, 0, "symbol flags"},
              bone.symbolFlags);
        field(JsonField{"impact", "impact type, 0 to 9", -1, 0, "impact type"}, bone.impactType);
        field(JsonField{"damageScale", "factor of damage done here", -1, 0, "damage"}, bone.damageScale);
        field(JsonField{"bbMin", "bounding box, least corner", -1, 0, "bounding box min"}, bone.bbMin);
        field(JsonField{"bbMax", "bounding box, greatest corner", -1, 0, "bounding box max"}, bone.bbMax);
    }
};

template <>
struct JsonFields<SkinnedMeshHotPoint> : JsonFieldsBase
{
    static constexpr const char *name = "hot point";
    template <typename Visitor, typename Self>
    static void visit(Visitor &field, Self &point)
    {
        field(JsonField{"bone", "number of the bone that it is on", -1, 0, "node"}, point.nodeId);
        field(JsonField{"flags", "32 bits"}, point.flags);
        field(JsonField{"effect1", "particle effect; 65535: deals damage", -1, 0, "particle effect 1"},
              point.particleEffect1);
        field(JsonField{"effect2", "particle effect; the damage where effect1 is 65535", -1, 0,
                        "particle effect 2"},
              point.particleEffect2);
        field(JsonField{"origin", "in the bone's space", -1, 0, "position"}, point.origin);
    }
};

template <>
struct JsonFields<SkinnedMeshVertex> : JsonFieldsBase
{
    static constexpr const char *name = "vertex";
    template <typename Visitor, typename Self>
    static void visit(Visitor &field, Self &vertex)
    {
        field(JsonField{"position", "in the space of its bone"}, vertex.position);
        field(JsonField{"uv", "as in the file; the game reads 1 - y"}, vertex.uv);
        field(JsonField{"normal", "in the space of its bone"}, vertex.normal);
        field(JsonField{"bone", "number of the bone that moves it", -1, 0, "node"}, vertex.nodeIndex);
    }
};

template <>
struct JsonFields<StaticMeshVertex> : JsonFieldsBase
{
    static constexpr const char *name = "vertex";
    template <typename Visitor, typename Self>
    static void visit(Visitor &field, Self &vertex)
    {
        field(JsonField{"position", "in the model's space"}, vertex.position);
        field(JsonField{"uv", "as in the file; the game reads 1 - y"}, vertex.uv);
        field(JsonField{"normal", "in the model's space"}, vertex.normal);
    }
};

template <>
struct JsonFields<SkinnedMeshSurface> : JsonFieldsBase
{
    static constexpr const char *name = "surface";
    static constexpr bool isLine = false;
    template <typename Visitor, typename Self>
    static void visit(Visitor &field, Self &surface)
    {
        field(JsonField{"material", "FOLDER/FILE/MATERIAL: MATERIAL inside FOLDER/FILE.kmat"},
              surface.materialPath);
        field(JsonField{"triangles", "numbers of vertices, three a triangle",
                        SkinnedMesh::IndexTerminator - 1, 3},
              surface.triangleIndexes);
    }
};

template <>
struct JsonFields<StaticMeshSurface> : JsonFieldsBase
{
    static constexpr const char *name = "surface";
    static constexpr bool isLine = false;
    template <typename Visitor, typename Self>
    static void visit(Visitor &field, Self &surface)
    {
        field(JsonField{"material", "FOLDER/FILE/MATERIAL: MATERIAL inside FOLDER/FILE.kmat"},
              surface.materialPath);
        field(JsonField{"triangles", "numbers of vertices, three a triangle", -1, 3},
              surface.triangleIndexes);
    }
    template <typename Problem>
    static void finish(StaticMeshSurface &surface, const Problem &problem)
    {
        if (surface.triangleIndexes.size() % 3 != 0)
            problem("triangles",
                    QCoreApplication::translate("ModelJson", "The last triangle has no three corners."));
    }
};

template <>
struct JsonFields<AnimNode> : JsonFieldsBase
{
    static constexpr const char *name = "bone";
    template <typename Visitor, typename Self>
    static void visit(Visitor &field, Self &bone)
    {
        field(JsonField{"translationTrack", "number of the track; 65535: none", -1, 0, "translation index"},
              bone.translationIndex);
        field(JsonField{"rotationTrack", "number of the track; 65535: none", -1, 0, "rotation index"},
              bone.rotationIndex);
        field(JsonField{"initialPosition", "where there is no track", -1, 0, "initial translation"},
              bone.initialPosition);
        field(JsonField{"initialRotation", "quaternion x, y, z, w, where there is no track"},
              bone.initialRotation);
    }
};

template <>
struct JsonFields<AnimAction> : JsonFieldsBase
{
    static constexpr const char *name = "action";
    template <typename Visitor, typename Self>
    static void visit(Visitor &field, Self &action)
    {
        field(JsonField{"frame", "the frame that it happens on"}, action.frame);
        field(JsonField{"event", "what happens, 0 to 34", -1, 0, "event type"}, action.eventType);
        field(JsonField{"bone", "number of the bone; 65535: none", -1, 0, "node"}, action.node);
        field(JsonField{"offset", "from the bone"}, action.offset);
        field(JsonField{"args", "what each means depends on the event", -1, 0, "arg"}, action.args);
    }
};

template <>
struct JsonFields<AnimBlock> : JsonFieldsBase
{
    static constexpr const char *name = "block";
    static constexpr bool isLine = false;
    template <typename Visitor, typename Self>
    static void visit(Visitor &field, Self &block)
    {
        field(JsonField{"animId", "number of the animation", -1, 0, "id"}, block.animId);
        field(JsonField{"frameScale", "factor of its length"}, block.frameScale);
        field(JsonField{"blendLength", "frames"}, block.blendLength);
        field(JsonField{"blendStart", "frame"}, block.blendStart);
        field(JsonField{"blendEnd", "frame"}, block.blendEnd);
        field(JsonField{"speed", "frames a second"}, block.speed);
        field(JsonField{"loopFrame", "frame to go on from; 65535: none"}, block.loopFrame);
        field(JsonField{"yaw", "yaw offset of each frame in radians: as many as there are frames", -1, 10},
              block.frames);
        field(JsonField{"bones", "in the order of the mesh's bones"}, block.nodes);
        field(JsonField{"translations", "tracks with a key a frame"}, block.translations);
        field(JsonField{"rotations", "tracks with a key a frame, quaternions x, y, z, w"}, block.rotations);
        field(JsonField{"actions", "key frame actions"}, block.actions);
    }
    template <typename Problem>
    static void finish(AnimBlock &block, const Problem &problem)
    {
        fit("translations", block.frameCount(), block.translations, problem);
        fit("rotations", block.frameCount(), block.rotations, problem);
    }

private:
    /// A table without tracks has no length of its own.
    template <typename Key, typename Problem>
    static void fit(const char *key, int frames, TrackTable<Key> &table, const Problem &problem)
    {
        if (table.trackCount() == 0)
            table = TrackTable<Key>(0, frames);
        else if (table.frameCount() != frames)
            problem(key, QCoreApplication::translate("ModelJson",
                                                     "The tracks have %1 keys, but there are %2 frames.")
                             .arg(QString::number(table.frameCount()), QString::number(frames)));
    }
};

template <>
struct JsonFields<SkinnedMesh> : JsonFieldsBase
{
    static constexpr const char *name = "skinned mesh";
    static constexpr const char *kind = "skinnedmesh";
    static constexpr bool isLine = false;
    template <typename Visitor, typename Self>
    static void visit(Visitor &field, Self &mesh)
    {
        field(JsonField{"version", "of the format"}, mesh.version);
        field(JsonField{"bbMin", "bounding box, least corner", -1, 0, "bounding box min"}, mesh.bbMin);
        field(JsonField{"bbMax", "bounding box, greatest corner", -1, 0, "bounding box max"}, mesh.bbMax);
        field(JsonField{"headTrackStart", "number of a bone", -1, 0, "start bone"}, mesh.headTrackStart);
        field(JsonField{"headTrackEnd", "number of a bone", -1, 0, "end bone"}, mesh.headTrackEnd);
        field(JsonField{"headTrackFactor", "signed", -1, 0, "factor"}, mesh.headTrackFactor);
        field(JsonField{"unknownA", "stands behind the bones"}, mesh.unknownA);
        field(JsonField{"unknownB", "stands behind the hot points"}, mesh.unknownB);
        field(JsonField{"bones", "by number from 0"}, mesh.nodes);
        field(JsonField{"hotPoints", "by number from 0"}, mesh.hotPoints);
        field(JsonField{"surfaces", "by number from 0"}, mesh.surfaces);
        field(JsonField{"vertices", "of all surfaces; none without a surface"}, mesh.vertices);
    }
    template <typename Problem>
    static void finish(SkinnedMesh &mesh, const Problem &problem)
    {
        if (mesh.surfaces.empty() && !mesh.vertices.empty())
            problem("vertices",
                    QCoreApplication::translate("ModelJson", "A mesh without a surface has no vertices."));
    }
};

template <>
struct JsonFields<AnimFile> : JsonFieldsBase
{
    static constexpr const char *name = "animation file";
    static constexpr const char *kind = "anim";
    static constexpr bool isLine = false;
    template <typename Visitor, typename Self>
    static void visit(Visitor &field, Self &file)
    {
        field(JsonField{"version", "of the format"}, file.version);
        field(JsonField{"blocks", "by number from 0"}, file.blocks);
    }
};

template <>
struct JsonFields<StaticMesh> : JsonFieldsBase
{
    static constexpr const char *name = "static mesh";
    static constexpr const char *kind = "staticmesh";
    static constexpr bool isLine = false;
    template <typename Visitor, typename Self>
    static void visit(Visitor &field, Self &mesh)
    {
        field(JsonField{"version", "of the format"}, mesh.version);
        field(JsonField{"bbMin", "bounding box, least corner", -1, 0, "bounding box min"}, mesh.bbMin);
        field(JsonField{"bbMax", "bounding box, greatest corner", -1, 0, "bounding box max"}, mesh.bbMax);
        field(JsonField{"surfaces", "by number from 0"}, mesh.surfaces);
        field(JsonField{"vertices", "of all surfaces"}, mesh.vertices);
    }
};

/// What bones and animations are called, beside a skinned mesh.
struct JsonNames
{
    QMap<int, QString> animations;
    QMap<int, QString> bones;
};

template <>
struct JsonFields<JsonNames> : JsonFieldsBase
{
    static constexpr const char *name = "names";
    static constexpr bool isLine = false;
    template <typename Visitor, typename Self>
    static void visit(Visitor &field, Self &names)
    {
        field(JsonField{"animations", "names by animation id"}, names.animations);
        field(JsonField{"bones", "names by number of the bone"}, names.bones);
    }
};

/// The components of a value that is nothing but floats.
template <typename Value>
struct JsonFloats
{
    static constexpr size_t count = 0;
};
template <>
struct JsonFloats<QVector2D>
{
    static constexpr size_t count = 2;
};
template <>
struct JsonFloats<QVector3D>
{
    static constexpr size_t count = 3;
};
template <>
struct JsonFloats<QVector4D>
{
    static constexpr size_t count = 4;
};
template <size_t Count>
struct JsonFloats<std::array<float, Count>>
{
    static constexpr size_t count = Count;
};

/// They lie one after the other, and are passed on as they are: none is computed with.
template <typename Value>
auto *floatsOf(Value &value)
{
    using Plain = std::remove_const_t<Value>;
    static_assert(JsonFloats<Plain>::count * sizeof(float) == sizeof(Plain));
    using Float = std::conditional_t<std::is_const_v<Value>, const float, float>;
    return reinterpret_cast<Float *>(&value);
}
