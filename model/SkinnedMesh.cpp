// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SkinnedMesh.h"

#include "Transform.h"
#include "VertexFields.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
// Bytes in the file; the least of those that vary.
constexpr qint64 NodeBytes = 39;
constexpr qint64 HotPointBytes = 22;
constexpr qint64 SurfaceBytes = 3;
constexpr qint64 VertexBytes = 34;

void readNodeBody(BinaryFileReader &reader, SkinnedMeshNode &node)
{
    node.bbMin = reader.readVec3();
    node.bbMax = reader.readVec3();
    node.impactType = reader.readUInt8();
    node.symbolFlags = reader.readInt8();
    node.parentNode = reader.readUInt8();
    node.damageScale = reader.readFloat();
    node.flags = reader.readInt32();
}

SkinnedMeshHotPoint readHotPoint(BinaryFileReader &reader)
{
    SkinnedMeshHotPoint hotPoint;
    hotPoint.origin = reader.readVec3();
    hotPoint.flags = reader.readInt32();
    hotPoint.nodeId = reader.readUInt16();
    hotPoint.particleEffect1 = reader.readUInt16();
    hotPoint.particleEffect2 = reader.readUInt16();
    return hotPoint;
}

SkinnedMeshSurface readSurface(BinaryFileReader &reader)
{
    SkinnedMeshSurface surface;
    surface.materialPath = reader.readString();
    reader.readUInt16sUntil(surface.triangleIndexes, SkinnedMesh::IndexTerminator);
    return surface;
}

SkinnedMeshVertex readVertex(BinaryFileReader &reader)
{
    SkinnedMeshVertex vertex;
    readVertexFields(reader, vertex);
    vertex.nodeIndex = reader.readUInt16();
    return vertex;
}

bool usesTerminatorAsIndex(const SkinnedMeshSurface &surface)
{
    const auto &indexes = surface.triangleIndexes;
    return std::find(indexes.begin(), indexes.end(), SkinnedMesh::IndexTerminator) != indexes.end();
}
} // namespace

bool SkinnedMesh::read(const QString &path, QString *errorText)
{
    return readModelFile(*this, path, errorText);
}

bool SkinnedMesh::read(BinaryFileReader &reader)
{
    version = reader.readInt32();
    bbMin = reader.readVec3();
    bbMax = reader.readVec3();
    headTrackStart = reader.readUInt8();
    headTrackEnd = reader.readUInt8();
    headTrackFactor = reader.readInt8();

    const qint32 nodeCount = reader.readInt32();
    nodes.clear();
    readRecords(reader, nodeCount, NodeBytes, nodes, [](BinaryFileReader &r) {
        SkinnedMeshNode node;
        const qint32 childCount = r.readInt32();
        r.readUInt16s(node.childNodes, childCount);
        return node;
    });
    SkinnedMeshNode unkept;
    for (qint64 i = 0; i < nodeCount && !reader.hasError(); ++i)
        readNodeBody(reader, nodes.empty() ? unkept : nodes[size_t(i)]);

    unknownA = reader.readInt32();
    const qint32 hotPointCount = reader.readInt32();
    hotPoints.clear();
    readRecords(reader, hotPointCount, HotPointBytes, hotPoints, readHotPoint);

    unknownB = reader.readInt32();
    const qint32 surfaceCount = reader.readInt32();
    surfaces.clear();
    readRecords(reader, surfaceCount, SurfaceBytes, surfaces, readSurface);

    vertices.clear();
    if (surfaceCount != 0) {
        const qint32 vertexCount = reader.readInt32();
        readRecords(reader, vertexCount, VertexBytes, vertices, readVertex);
    }
    bytesBehind = reader.bytesLeft();
    return reader.hasError();
}

QString SkinnedMesh::refusal() const
{
    if (nodes.empty())
        return QCoreApplication::translate("ModelFiles", "A skinned mesh without a bone is not saved.");
    const auto bad = std::find_if(surfaces.begin(), surfaces.end(), usesTerminatorAsIndex);
    return bad == surfaces.end()
               ? QString()
               : QCoreApplication::translate("ModelFiles",
                                             "Surface %1 has a triangle index of 65535, which would end it.")
                     .arg(bad - surfaces.begin());
}

bool SkinnedMesh::write(const QString &path, QString *reason) const
{
    return writeModelFile(*this, path, reason);
}

bool SkinnedMesh::write(BinaryFileWriter &writer) const
{
    if (!refusal().isEmpty())
        return true;
    encode(writer);
    return false;
}

void SkinnedMesh::writeDraft(BinaryFileWriter &writer) const
{
    if (std::none_of(surfaces.begin(), surfaces.end(), usesTerminatorAsIndex)) {
        encode(writer);
        return;
    }
    SkinnedMesh draft = *this;
    for (SkinnedMeshSurface &surface : draft.surfaces) {
        std::replace(surface.triangleIndexes.begin(), surface.triangleIndexes.end(), IndexTerminator,
                     quint16(IndexTerminator - 1));
    }
    draft.encode(writer);
}

void SkinnedMesh::encode(BinaryFileWriter &writer) const
{
    writer.writeInt32(version);
    writer.writeVec3(bbMin);
    writer.writeVec3(bbMax);
    writer.writeUInt8(headTrackStart);
    writer.writeUInt8(headTrackEnd);
    writer.writeInt8(headTrackFactor);

    writer.writeInt32(qint32(nodes.size()));
    for (const SkinnedMeshNode &node : nodes) {
        writer.writeInt32(qint32(node.childNodes.size()));
        writer.writeUInt16s(node.childNodes);
    }
    for (const SkinnedMeshNode &node : nodes) {
        writer.writeVec3(node.bbMin);
        writer.writeVec3(node.bbMax);
        writer.writeUInt8(node.impactType);
        writer.writeInt8(node.symbolFlags);
        writer.writeUInt8(node.parentNode);
        writer.writeFloat(node.damageScale);
        writer.writeInt32(node.flags);
    }

    writer.writeInt32(unknownA);
    writer.writeInt32(qint32(hotPoints.size()));
    for (const SkinnedMeshHotPoint &hotPoint : hotPoints) {
        writer.writeVec3(hotPoint.origin);
        writer.writeInt32(hotPoint.flags);
        writer.writeUInt16(hotPoint.nodeId);
        writer.writeUInt16(hotPoint.particleEffect1);
        writer.writeUInt16(hotPoint.particleEffect2);
    }

    writer.writeInt32(unknownB);
    writer.writeInt32(qint32(surfaces.size()));
    for (const SkinnedMeshSurface &surface : surfaces) {
        writer.writeString(surface.materialPath);
        writer.writeUInt16s(surface.triangleIndexes);
        writer.writeUInt16(IndexTerminator);
    }

    if (!surfaces.empty()) {
        writer.writeInt32(qint32(vertices.size()));
        for (const SkinnedMeshVertex &vertex : vertices) {
            writeVertexFields(writer, vertex);
            writer.writeUInt16(vertex.nodeIndex);
        }
    }
}

void SkinnedMesh::rotate(float pitch, float yaw, float roll)
{
    const QMatrix4x4 rotation = eulerRotation(pitch, yaw, roll);
    rotateVertices(rotation, vertices);
    rotateBox(rotation, *this);
    for (SkinnedMeshNode &node : nodes)
        rotateBox(rotation, node);
}

void SkinnedMesh::scale(float factor)
{
    scaleVertices(factor, vertices);
    scaleBox(factor, *this);
    for (SkinnedMeshNode &node : nodes)
        scaleBox(factor, node);
}
