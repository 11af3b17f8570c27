// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SceneReading.h"

#include "AnimFile.h"
#include "ImportFlags.h"
#include "ImportSteps.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "Transform.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>

#include <assimp/DefaultIOSystem.h>
#include <assimp/Importer.hpp>
#include <assimp/postprocess.h>

#include <algorithm>
#include <cmath>

Q_LOGGING_CATEGORY(importLog, "korvane.import", QtInfoMsg)

static_assert(ImportFlags::StaticMesh ==
              (aiProcess_JoinIdenticalVertices | aiProcess_Triangulate | aiProcess_RemoveComponent |
               aiProcess_RemoveRedundantMaterials | aiProcess_SortByPType));
static_assert(ImportFlags::SkinnedMesh == (ImportFlags::StaticMesh | aiProcess_LimitBoneWeights));
static_assert(ImportFlags::GenerateNormals == aiProcess_GenSmoothNormals);
static_assert(ImportFlags::FlipUV == aiProcess_FlipUVs);
static_assert(ImportFlags::FlipWindingOrder == aiProcess_FlipWindingOrder);

namespace {
QVector3D vector3(const aiVector3D &vector)
{
    return {vector.x, vector.y, vector.z};
}

/// The file of a material's diffuse texture: beside the model, as .png. Empty, after a warning, without one.
QString texturePath(const SceneSource &source, const aiMaterial &material, unsigned index)
{
    if (material.GetTextureCount(aiTextureType_DIFFUSE) == 0) {
        source.messages.addWarning(
            QCoreApplication::translate("Import", "%1 Material %2 does not have any Diffuse textures")
                .arg(source.modelPath, QString::number(index)));
        return {};
    }
    aiString stored;
    if (material.GetTexture(aiTextureType_DIFFUSE, 0, &stored) != aiReturn_SUCCESS) {
        source.messages.addWarning(
            QCoreApplication::translate("Import", "%1 Material %2 could not get Diffuse texture path")
                .arg(source.modelPath, QString::number(index)));
        return {};
    }
    // Models from other systems part folders by backslashes.
    const QString named = text(stored).replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QFileInfo joined(QFileInfo(source.modelPath).path() + QLatin1Char('/') + named);
    return joined.path() + QLatin1Char('/') + joined.completeBaseName() + QStringLiteral(".png");
}

/// One surface a distinct texture, one for each material without; gives the surface of every material.
template <typename Mesh>
std::vector<size_t> addMaterials(const SceneSource &source, Mesh &mesh)
{
    const QString reference = materialFolder(source.kmatPath) + QStringLiteral("/surf_");

    std::vector<size_t> surfaceOfMaterial;
    QHash<QString, size_t> surfaceOfTexture;
    for (unsigned i = 0; i < source.scene->mNumMaterials; ++i) {
        const QString texture = texturePath(source, *source.scene->mMaterials[i], i);
        const size_t next = mesh.surfaces.size();
        const QString name = reference + QString::number(next);
        if (texture.isEmpty()) {
            surfaceOfMaterial.push_back(next);
            mesh.surfaces.push_back({name + QStringLiteral("_white"), {}});
            continue;
        }
        const auto known = surfaceOfTexture.constFind(texture);
        if (known != surfaceOfTexture.constEnd()) {
            surfaceOfMaterial.push_back(*known);
            continue;
        }
        surfaceOfTexture.insert(texture, next);
        surfaceOfMaterial.push_back(next);
        source.textures.append(texture);
        mesh.surfaces.push_back({name, {}});
    }
    return surfaceOfMaterial;
}

/// Complains of what the mesh lacks.
void checkMesh(const SceneSource &source, const aiMesh &mesh, unsigned index)
{
    const auto name = [&source, index](const char *sentence) {
        return QCoreApplication::translate("Import", sentence).arg(source.modelPath, QString::number(index));
    };
    if (!mesh.HasPositions())
        source.messages.addError(
            name(QT_TRANSLATE_NOOP("Import", "%1 Mesh %2 does not contain any vertices")));
    if (!mesh.HasNormals())
        source.messages.addError(
            name(QT_TRANSLATE_NOOP("Import", "%1 Mesh %2 does not contain any normals")));
    if (!mesh.HasTextureCoords(0))
        source.messages.addWarning(name(QT_TRANSLATE_NOOP("Import", "%1 Mesh %2 does not contain any UVs")));
    if (!mesh.HasFaces())
        source.messages.addError(name(QT_TRANSLATE_NOOP("Import", "%1 Mesh %2 does not contain any faces")));
    for (unsigned i = 0; i < mesh.mNumFaces; ++i) {
        if (mesh.mFaces[i].mNumIndices != 3) {
            source.messages.addError(name(QT_TRANSLATE_NOOP(
                "Import",
                "%1 Mesh %2 contains more than 3 indices per face. A face must contain only 3 indices.")));
            return;
        }
    }
}

template <typename Mesh>
void addVertices(const aiMesh &from, Mesh &to)
{
    for (unsigned i = 0; i < from.mNumVertices; ++i) {
        auto &vertex = to.vertices.emplace_back();
        if (from.mVertices)
            vertex.position = vector3(from.mVertices[i]);
        if (from.mTextureCoords[0])
            vertex.uv = {from.mTextureCoords[0][i].x, from.mTextureCoords[0][i].y};
        if (from.mNormals)
            vertex.normal = vector3(from.mNormals[i]);
    }
}

/// Files that a model names in the way of links: "big%20wall.bin" is "big wall.bin", unless there is one of
/// that very name. Only regular ones: a pipe, at whose other end nobody is, would be waited for.
class LinkedFiles : public Assimp::DefaultIOSystem
{
public:
    bool Exists(const char *path) const override { return isRegular(path) || isRegular(decoded(path)); }
    Assimp::IOStream *Open(const char *path, const char *mode) override
    {
        const QByteArray found = isRegular(path) ? QByteArray(path) : decoded(path);
        return isRegular(found) ? DefaultIOSystem::Open(found.constData(), mode) : nullptr;
    }

private:
    static bool isRegular(const QByteArray &path) { return QFileInfo(QString::fromUtf8(path)).isFile(); }
    static QByteArray decoded(const char *path) { return QByteArray::fromPercentEncoding(path); }
};
} // namespace

const aiScene *readScene(Assimp::Importer &importer, const char *operation, const SceneSource &source,
                         quint32 flags)
{
    qCDebug(importLog, "[%s] '%s'", operation, qUtf8Printable(source.modelPath));
    importer.SetIOHandler(new LinkedFiles);
    const aiScene *scene = importer.ReadFile(source.modelPath.toUtf8().constData(), flags);
    if (!scene || !scene->mRootNode) {
        source.messages.addError(
            QCoreApplication::translate("Import", "%1 Could not read file. %2")
                .arg(source.modelPath, scene ? QCoreApplication::translate("Import", "It has no root node.")
                                             : QString::fromUtf8(importer.GetErrorString())));
        return nullptr;
    }
    qCDebug(importLog, "HasAnimations: %d %u", scene->HasAnimations(), scene->mNumAnimations);
    qCDebug(importLog, "HasMaterials: %d %u", scene->HasMaterials(), scene->mNumMaterials);
    qCDebug(importLog, "HasMeshes: %d %u", scene->HasMeshes(), scene->mNumMeshes);
    qCDebug(importLog, "HasTextures(Embedded): %d %u", scene->HasTextures(), scene->mNumTextures);
    qCDebug(importLog, "aiScene RootNode name: %s, numChildren: %u numMeshs: %u",
            scene->mRootNode->mName.C_Str(), scene->mRootNode->mNumChildren, scene->mRootNode->mNumMeshes);
    if (!scene->HasMeshes()) {
        source.messages.addError(
            QCoreApplication::translate("Import", "%1 does not contain any meshes").arg(source.modelPath));
        return nullptr;
    }
    return scene;
}

template <typename Mesh>
bool addSurfaces(const SceneSource &source, quint32 vertexLimit, Mesh &mesh)
{
    const aiScene &scene = *source.scene;
    quint64 vertexCount = 0;
    for (unsigned i = 0; i < scene.mNumMeshes; ++i)
        vertexCount += scene.mMeshes[i]->mNumVertices;
    if (vertexCount > vertexLimit) {
        source.messages.addError(
            QCoreApplication::translate("Import",
                                        "%1 has %2 vertices. A model of this kind can hold no more than %3.")
                .arg(source.modelPath, QString::number(vertexCount), QString::number(vertexLimit)));
        return true;
    }

    const std::vector<size_t> surfaceOfMaterial = addMaterials(source, mesh);
    mesh.vertices.reserve(size_t(vertexCount));
    for (unsigned i = 0; i < scene.mNumMeshes; ++i) {
        const aiMesh &part = *scene.mMeshes[i];
        checkMesh(source, part, i);
        const auto firstVertex = unsigned(mesh.vertices.size());
        addVertices(part, mesh);
        if (part.mMaterialIndex >= surfaceOfMaterial.size()) {
            source.messages.addError(
                QCoreApplication::translate("Import", "%1 Mesh %2 refers to a material that is not there")
                    .arg(source.modelPath, QString::number(i)));
            continue;
        }
        auto &triangleIndexes = mesh.surfaces[surfaceOfMaterial[part.mMaterialIndex]].triangleIndexes;
        triangleIndexes.reserve(triangleIndexes.size() + size_t(part.mNumFaces) * 3);
        bool badFaces = false;
        for (unsigned f = 0; f < part.mNumFaces; ++f) {
            const aiFace &face = part.mFaces[f];
            if (face.mNumIndices != 3)
                continue;
            if (std::any_of(face.mIndices, face.mIndices + 3,
                            [&part](unsigned index) { return index >= part.mNumVertices; })) {
                badFaces = true;
                continue;
            }
            for (unsigned corner = 0; corner < 3; ++corner)
                triangleIndexes.push_back(quint16(firstVertex + face.mIndices[corner]));
        }
        if (badFaces)
            source.messages.addError(
                QCoreApplication::translate("Import", "%1 Mesh %2 refers to vertices that are not there")
                    .arg(source.modelPath, QString::number(i)));
    }
    boundVertices(mesh);
    const auto isLost = [](const auto &vertex) {
        const QVector3D sum = vertex.position + vertex.normal + QVector3D(vertex.uv);
        return !std::isfinite(sum.x()) || !std::isfinite(sum.y()) || !std::isfinite(sum.z());
    };
    const auto lost = std::count_if(mesh.vertices.begin(), mesh.vertices.end(), isLost);
    if (lost > 0)
        source.messages.addWarning(
            QCoreApplication::translate("Import",
                                        "%1 %2 vertices have a position, normal or UV that is no number")
                .arg(source.modelPath, QString::number(lost)));
    return false;
}

template bool addSurfaces(const SceneSource &source, quint32 vertexLimit, SkinnedMesh &mesh);
template bool addSurfaces(const SceneSource &source, quint32 vertexLimit, StaticMesh &mesh);

QString countText(qint64 count, const char *one, const char *many)
{
    return QStringLiteral("%1 %2").arg(QString::number(count),
                                       QCoreApplication::translate("Import", count == 1 ? one : many));
}

template <typename Mesh>
QString geometryText(const Mesh &mesh)
{
    qint64 indexes = 0;
    for (const auto &surface : mesh.surfaces)
        indexes += qint64(surface.triangleIndexes.size());
    const QStringList counts{countText(qint64(mesh.surfaces.size()), QT_TRANSLATE_NOOP("Import", "surface"),
                                       QT_TRANSLATE_NOOP("Import", "surfaces")),
                             countText(qint64(mesh.vertices.size()), QT_TRANSLATE_NOOP("Import", "vertex"),
                                       QT_TRANSLATE_NOOP("Import", "vertices")),
                             countText(indexes / 3, QT_TRANSLATE_NOOP("Import", "triangle"),
                                       QT_TRANSLATE_NOOP("Import", "triangles"))};
    return counts.join(QStringLiteral(", "));
}

template QString geometryText(const SkinnedMesh &mesh);
template QString geometryText(const StaticMesh &mesh);

QString contentText(const SkinnedMesh &mesh, const AnimFile &anim)
{
    qint64 frames = 0;
    for (const AnimBlock &block : anim.blocks)
        frames += block.frameCount();
    return QStringLiteral("%1, %2, %3, %4")
        .arg(countText(qint64(mesh.nodes.size()), QT_TRANSLATE_NOOP("Import", "bone"),
                       QT_TRANSLATE_NOOP("Import", "bones")),
             geometryText(mesh),
             countText(qint64(anim.blocks.size()), QT_TRANSLATE_NOOP("Import", "animation"),
                       QT_TRANSLATE_NOOP("Import", "animations")),
             countText(frames, QT_TRANSLATE_NOOP("Import", "frame"), QT_TRANSLATE_NOOP("Import", "frames")));
}
