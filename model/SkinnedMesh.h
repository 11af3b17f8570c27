// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QVector2D>
#include <QVector3D>

#include <vector>

class BinaryFileReader;
class BinaryFileWriter;

/// A bone. Indexes are those of the mesh's node list and are never checked on reading.
struct SkinnedMeshNode
{
    std::vector<quint16> childNodes;
    QVector3D bbMin;
    QVector3D bbMax;
    quint8 impactType = 0;   ///< 0 to 9, see impactTypeNames()
    qint8 symbolFlags = 0;   ///< see boneSymbolName()
    quint8 parentNode = 255; ///< a byte: wraps beyond 255 bones and also means "none"; nothing relies on it
    float damageScale = 1.0f;
    qint32 flags = 0;
    QString name{}; ///< not in the file, see ModelNames
};

/// A point on a bone where the game spawns particles or deals damage.
struct SkinnedMeshHotPoint
{
    QVector3D origin; ///< in the bone's space
    qint32 flags = 0;
    quint16 nodeId = 0;
    quint16 particleEffect1 = 0; ///< 0xFFFF: deals damage, the amount stands in particleEffect2
    quint16 particleEffect2 = 0;
};

struct SkinnedMeshSurface
{
    QString materialPath;                 ///< "FOLDER/FILE/MATERIAL": MATERIAL inside FOLDER/FILE.kmat
    std::vector<quint16> triangleIndexes; ///< three a triangle; 65535 cannot be stored
};

struct SkinnedMeshVertex
{
    QVector3D position; ///< in the space of its bone
    QVector2D uv;       ///< as in the file; the game reads 1 - y
    QVector3D normal;
    quint16 nodeIndex = 0;
};

/// An animated character model: the contents of a .skinnedmesh file, in file order.
struct SkinnedMesh
{
    /// The value that ends a surface's index list in the file, and so no index.
    static constexpr quint16 IndexTerminator = 0xFFFF;

    qint32 version = 0;
    QVector3D bbMin;
    QVector3D bbMax;
    quint8 headTrackStart = 0;
    quint8 headTrackEnd = 0;
    qint8 headTrackFactor = 0;
    std::vector<SkinnedMeshNode> nodes;
    qint32 unknownA = 0;
    std::vector<SkinnedMeshHotPoint> hotPoints;
    qint32 unknownB = 0;
    std::vector<SkinnedMeshSurface> surfaces;
    std::vector<SkinnedMeshVertex> vertices;
    QHash<qint32, QString> animationNames; ///< by id; not in the file, see ModelNames
    qint64 bytesBehind = 0;                ///< behind the last record of the file that was read; not saved

    /// Reads `path` into this (fresh) model. Returns true on failure; `errorText`, if given, then says why
    /// and is empty when the file could not be opened. A partly read model is to be thrown away.
    [[nodiscard]] bool read(const QString &path, QString *errorText = nullptr);
    [[nodiscard]] bool read(BinaryFileReader &reader);

    /// Why the model cannot be written at all; empty when it can.
    QString refusal() const;

    /// Writes the model to `path` in one step. Returns true on failure, with the old file untouched: when
    /// there are no bones, when a triangle index is 65535, or when the file cannot be written. `reason`, if
    /// given, then says why.
    [[nodiscard]] bool write(const QString &path, QString *reason = nullptr) const;
    [[nodiscard]] bool write(BinaryFileWriter &writer) const;
    /// Writes what can be read back whatever is wrong with the model. A triangle index of 65535, which
    /// would end its list, becomes 65534.
    void writeDraft(BinaryFileWriter &writer) const;

    /// Turns vertices, normals and boxes about the origin, angles in degrees; see eulerRotation().
    void rotate(float pitch, float yaw, float roll);
    /// Scales vertex positions and boxes.
    void scale(float factor);

private:
    void encode(BinaryFileWriter &writer) const;
};
