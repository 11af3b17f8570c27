// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector2D>
#include <QVector3D>

#include <vector>

class BinaryFileReader;
class BinaryFileWriter;

struct StaticMeshSurface
{
    QString materialPath;                 ///< "FOLDER/FILE/MATERIAL": MATERIAL inside FOLDER/FILE.kmat
    std::vector<quint16> triangleIndexes; ///< three a triangle
};

struct StaticMeshVertex
{
    QVector3D position;
    QVector2D uv; ///< as in the file; the game reads 1 - y
    QVector3D normal;
};

/// A rigid model: the contents of a .staticmesh file, in file order.
struct StaticMesh
{
    qint32 version = 0;
    QVector3D bbMin;
    QVector3D bbMax;
    std::vector<StaticMeshSurface> surfaces;
    std::vector<StaticMeshVertex> vertices;
    qint64 bytesBehind = 0; ///< behind the last record of the file that was read; not saved

    /// Reads `path` (a file or a toolkit resource) into this (fresh) model. Returns true on failure;
    /// `errorText`, if given, then says why and is empty when the file could not be opened or holds a
    /// negative count. A partly read model is to be thrown away.
    [[nodiscard]] bool read(const QString &path, QString *errorText = nullptr);
    [[nodiscard]] bool read(BinaryFileReader &reader);

    /// Why the model cannot be written at all; empty when it can.
    QString refusal() const;

    /// Writes the model to `path` in one step. Returns true on failure, with the old file untouched: when
    /// there are no surfaces or when the file cannot be written. `reason`, if
    /// given, then says why.
    [[nodiscard]] bool write(const QString &path, QString *reason = nullptr) const;
    [[nodiscard]] bool write(BinaryFileWriter &writer) const;
    /// Writes what can be read back whatever is wrong with the model. A triangle list that is not
    /// whole is filled up with its last index.
    void writeDraft(BinaryFileWriter &writer) const;

    /// Turns vertices, normals and the box about the origin, angles in degrees; see eulerRotation().
    void rotate(float pitch, float yaw, float roll);
    /// Scales vertex positions and the box.
    void scale(float factor);

private:
    void encode(BinaryFileWriter &writer) const;
};
