// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "BinaryFileReader.h"
#include "BinaryFileWriter.h"
#include "ModelNames.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <QByteArray>

#include <cstring>
#include <limits>

/// Small models: plain ones, and some with everything in them that files may hold and people rarely think of.
namespace SampleModels {
// In the plain ones every list has three entries or more.
inline SkinnedMesh plainMesh()
{
    SkinnedMesh mesh;
    mesh.version = 2;
    mesh.nodes.resize(4);
    for (size_t i = 0; i < mesh.nodes.size(); ++i) {
        mesh.nodes[i].childNodes = {1, 2, 3};
        mesh.nodes[i].bbMin = {float(i), 10.0f + float(i), 20.0f + float(i)};
    }
    mesh.nodes[1].parentNode = 0;
    mesh.nodes[1].symbolFlags = 0x38;
    mesh.hotPoints.resize(3);
    mesh.surfaces.resize(3, {QStringLiteral("materials/a"), {0, 1, 2}});
    mesh.vertices.resize(3);
    mesh.vertices[1].position = {1.0f, 2.0f, 4.0f};
    return mesh;
}

inline AnimFile plainAnim()
{
    AnimFile file;
    file.blocks.resize(3);
    for (AnimBlock &block : file.blocks) {
        block.nodes.resize(4);
        block.setTranslationCount(2);
        block.setRotationCount(2);
        block.setFrameCount(3);
        block.actions.resize(3);
    }
    return file;
}

inline StaticMesh plainStatic()
{
    StaticMesh mesh;
    mesh.surfaces.resize(3, {QStringLiteral("materials/a"), {0, 1, 2}});
    mesh.vertices.resize(3);
    mesh.vertices[1].position = {1.0f, 2.0f, 4.0f};
    return mesh;
}

inline float floatOfBits(quint32 bits)
{
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

/// Floats that arithmetic, or a widget, would not leave alone: a signalling NaN, a quiet one with a
/// payload, infinity, negative zero, the smallest denormal, the largest float.
inline const std::array<float, 8> oddFloats = {
    floatOfBits(0x7F800001),
    floatOfBits(0xFFC12345),
    std::numeric_limits<float>::infinity(),
    -0.0f,
    floatOfBits(1),
    3.402823466e38f,
    -1.0e-7f,
    0.1f,
};

inline SkinnedMesh skinnedMesh()
{
    SkinnedMesh mesh;
    mesh.version = -2;
    mesh.bbMin = {oddFloats[0], oddFloats[1], oddFloats[2]};
    mesh.bbMax = {oddFloats[3], oddFloats[4], oddFloats[5]};
    mesh.headTrackStart = 255;
    mesh.headTrackEnd = 1;
    mesh.headTrackFactor = -128;
    mesh.unknownA = std::numeric_limits<qint32>::min();
    mesh.unknownB = -1;
    mesh.nodes.resize(3);
    mesh.nodes[0].childNodes = {1, 2, 65535};
    mesh.nodes[2].childNodes = {0};
    mesh.nodes[1].bbMin = {oddFloats[6], oddFloats[0], oddFloats[7]};
    mesh.nodes[1].impactType = 200;
    mesh.nodes[1].symbolFlags = -71;
    mesh.nodes[1].damageScale = oddFloats[1];
    mesh.nodes[1].flags = -1;
    mesh.hotPoints.resize(2);
    mesh.hotPoints[1] = {{oddFloats[0], 1.0f, 2.0f}, -5, 65535, 65535, 16384};
    mesh.surfaces.resize(3);
    mesh.surfaces[0].materialPath = QStringLiteral("materials/mat_\u00e9t\u00e9/surf_0");
    mesh.surfaces[0].triangleIndexes = {0, 1, 2, 2, 1, 65534};
    mesh.surfaces[1].triangleIndexes = {7, 8};
    mesh.vertices.resize(2);
    mesh.vertices[0] = {{oddFloats[0], oddFloats[1], oddFloats[2]},
                        {oddFloats[3], oddFloats[4]},
                        {oddFloats[5], oddFloats[6], oddFloats[7]},
                        65535};
    return mesh;
}

inline AnimFile animFile()
{
    AnimFile file;
    file.version = 7;
    file.blocks.resize(3);
    AnimBlock &block = file.blocks[0];
    block.animId = -1;
    block.frameScale = oddFloats[0];
    block.speed = oddFloats[2];
    block.blendLength = 65535;
    block.nodes.resize(2);
    block.nodes[1] = {{oddFloats[0], 1.0f, 2.0f}, {oddFloats[1], 0.0f, oddFloats[3], 1.0f}, 1, 9};
    block.setFrameCount(3);
    block.setTranslationCount(2);
    block.setRotationCount(1);
    block.translations.at(1, 2) = {oddFloats[0], oddFloats[1], oddFloats[4]};
    block.rotations.at(0, 1) = {oddFloats[0], oddFloats[2], oddFloats[3], oddFloats[5]};
    block.frames[1].yawOffset = oddFloats[1];
    block.actions.resize(2);
    block.actions[1] = {900, 77, 12, {oddFloats[0], 0.0f, oddFloats[2]}, oddFloats};
    // Tracks without keys, and a block of nothing.
    file.blocks[1].setTranslationCount(4);
    file.blocks[1].setRotationCount(2);
    return file;
}

inline StaticMesh staticMesh()
{
    StaticMesh mesh;
    mesh.version = 2;
    mesh.bbMax = {oddFloats[0], oddFloats[1], oddFloats[2]};
    mesh.surfaces.resize(2);
    mesh.surfaces[0].materialPath = QStringLiteral("_white");
    mesh.surfaces[0].triangleIndexes = {0, 1, 65535};
    mesh.vertices.resize(3);
    mesh.vertices[2] = {{oddFloats[0], oddFloats[1], oddFloats[2]},
                        {oddFloats[3], oddFloats[4]},
                        {oddFloats[5], oddFloats[6], oddFloats[7]}};
    return mesh;
}

/// The plain model of a kind.
template <typename Model>
Model plainModel()
{
    if constexpr (std::is_same_v<Model, SkinnedMesh>)
        return plainMesh();
    else if constexpr (std::is_same_v<Model, AnimFile>)
        return plainAnim();
    else
        return plainStatic();
}

/// The one of a kind with everything in it.
template <typename Model>
Model oddModel()
{
    if constexpr (std::is_same_v<Model, SkinnedMesh>)
        return skinnedMesh();
    else if constexpr (std::is_same_v<Model, AnimFile>)
        return animFile();
    else
        return staticMesh();
}

/// The same, with so many vertices or frames.
template <typename Model>
Model longModel(int length)
{
    auto model = oddModel<Model>();
    if constexpr (std::is_same_v<Model, AnimFile>)
        model.blocks[0].setFrameCount(length);
    else
        model.vertices.resize(size_t(length));
    return model;
}

inline QByteArray bytesOf(BinaryFileWriter &writer)
{
    const std::vector<uchar> &bytes = writer.bytes();
    return QByteArray(reinterpret_cast<const char *>(bytes.data()), int(bytes.size()));
}

/// The bytes of the file that the model would be saved as, and of names beside it; empty when it refuses.
template <typename Model>
QByteArray bytesOf(const Model &model)
{
    BinaryFileWriter writer;
    if (model.write(writer))
        return {};
    if constexpr (std::is_same_v<Model, SkinnedMesh>) {
        const ModelNames names = ModelNames::of(model);
        if (!names.isEmpty())
            return bytesOf(writer) + names.toJson();
    }
    return bytesOf(writer);
}

/// Reads `bytes` as a file into a fresh `model`. Returns true on failure.
template <typename Model>
[[nodiscard]] bool readBytes(Model &model, const QByteArray &bytes, QString *errorText = nullptr)
{
    // Memory of its own, so that a sanitizer sees a read beyond the end.
    const std::vector<uchar> exact(bytes.begin(), bytes.end());
    BinaryFileReader reader(exact.data(), qint64(exact.size()));
    const bool failed = model.read(reader);
    if (errorText)
        *errorText = reader.errorText();
    return failed;
}

/// Calls `body(Model())` with the model class of files that end in `suffix`.
template <typename Body>
void withModel(const QString &suffix, Body body)
{
    if (suffix == QLatin1String("skinnedmesh"))
        body(SkinnedMesh());
    else if (suffix == QLatin1String("anim"))
        body(AnimFile());
    else
        body(StaticMesh());
}

inline const QStringList &suffixes()
{
    static const QStringList list{"skinnedmesh", "anim", "staticmesh"};
    return list;
}

/// The bytes of the sample of one kind.
inline QByteArray bytesOfSample(const QString &suffix)
{
    QByteArray bytes;
    withModel(suffix, [&bytes](auto model) { bytes = bytesOf(oddModel<decltype(model)>()); });
    return bytes;
}
} // namespace SampleModels
