// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "StaticMesh.h"

#include "Transform.h"
#include "VertexFields.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
// Bytes in the file; the least of those that vary.
constexpr qint64 StaticSurfaceBytes = 5;
constexpr qint64 StaticVertexBytes = 32;

StaticMeshVertex readStaticVertex(BinaryFileReader &reader)
{
    StaticMeshVertex vertex;
    readVertexFields(reader, vertex);
    return vertex;
}
} // namespace

bool StaticMesh::read(const QString &path, QString *errorText)
{
    return readModelFile(*this, path, errorText);
}

bool StaticMesh::read(BinaryFileReader &reader)
{
    version = reader.readInt32();
    bbMin = reader.readVec3();
    bbMax = reader.readVec3();

    const qint32 surfaceCount = reader.readInt32();
    if (surfaceCount < 0)
        return true;
    surfaces.clear();
    const bool held = reader.holds(surfaceCount, StaticSurfaceBytes);
    if (held)
        surfaces.reserve(size_t(surfaceCount));
    for (qint32 i = 0; i < surfaceCount && !reader.hasError(); ++i) {
        StaticMeshSurface surface;
        surface.materialPath = reader.readString();
        const qint32 triangleCount = reader.readInt32();
        if (triangleCount < 0)
            return true;
        reader.readUInt16s(surface.triangleIndexes, 3 * qint64(triangleCount));
        // Without room for all of them the read is bound to fail.
        if (held)
            surfaces.push_back(std::move(surface));
    }

    const qint32 vertexCount = reader.readInt32();
    if (vertexCount < 0)
        return true;
    vertices.clear();
    readRecords(reader, vertexCount, StaticVertexBytes, vertices, readStaticVertex);
    bytesBehind = reader.bytesLeft();
    return reader.hasError();
}

QString StaticMesh::refusal() const
{
    return surfaces.empty()
               ? QCoreApplication::translate("ModelFiles", "A static mesh without a surface is not saved.")
               : QString();
}

bool StaticMesh::write(const QString &path, QString *reason) const
{
    return writeModelFile(*this, path, reason);
}

bool StaticMesh::write(BinaryFileWriter &writer) const
{
    if (!refusal().isEmpty())
        return true;
    encode(writer);
    return false;
}

void StaticMesh::writeDraft(BinaryFileWriter &writer) const
{
    const auto isWhole = [](const StaticMeshSurface &surface) {
        return surface.triangleIndexes.size() % 3 == 0;
    };
    if (std::all_of(surfaces.begin(), surfaces.end(), isWhole)) {
        encode(writer);
        return;
    }
    StaticMesh draft = *this;
    for (StaticMeshSurface &surface : draft.surfaces) {
        while (!isWhole(surface))
            surface.triangleIndexes.push_back(quint16(surface.triangleIndexes.back()));
    }
    draft.encode(writer);
}

void StaticMesh::encode(BinaryFileWriter &writer) const
{
    writer.writeInt32(version);
    writer.writeVec3(bbMin);
    writer.writeVec3(bbMax);

    writer.writeInt32(qint32(surfaces.size()));
    for (const StaticMeshSurface &surface : surfaces) {
        writer.writeString(surface.materialPath);
        // A list that is no multiple of three is written whole all the same: the game's own rule.
        writer.writeInt32(qint32(surface.triangleIndexes.size() / 3));
        writer.writeUInt16s(surface.triangleIndexes);
    }

    writer.writeInt32(qint32(vertices.size()));
    for (const StaticMeshVertex &vertex : vertices)
        writeVertexFields(writer, vertex);
}

void StaticMesh::rotate(float pitch, float yaw, float roll)
{
    const QMatrix4x4 rotation = eulerRotation(pitch, yaw, roll);
    rotateVertices(rotation, vertices);
    rotateBox(rotation, *this);
}

void StaticMesh::scale(float factor)
{
    scaleVertices(factor, vertices);
    scaleBox(factor, *this);
}
