// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReadyImport.h"

#include "BoneSymbolGuess.h"
#include "ExportNames.h"
#include "GltfWeights.h"
#include "NameTables.h"
#include "ReadyClips.h"
#include "ReadyGeometry.h"
#include "ReadyMaterials.h"

#include <QCoreApplication>

#include <assimp/Importer.hpp>
#include <assimp/config.h>
#include <assimp/postprocess.h>

#include <algorithm>
#include <map>

namespace {
constexpr int Removals =
    aiComponent_TANGENTS_AND_BITANGENTS | aiComponent_COLORS | aiComponent_LIGHTS | aiComponent_CAMERAS;
/// Not RemoveRedundantMaterials, which makes one of materials that differ by their names only: to a modder
/// these are two surfaces. Not LimitBoneWeights: the greatest weight is found here, and the rest pose of a
/// rigid model needs them all. Not JoinIdenticalVertices, see VertexJoiner. GenSmoothNormals makes normals
/// only where there are none.
constexpr unsigned Steps =
    aiProcess_Triangulate | aiProcess_SortByPType | aiProcess_GenSmoothNormals | aiProcess_RemoveComponent;

/// Points and lines cannot be drawn in the game. They are no fault of the rest of the model, so they are left
/// out with a word. Returns true, after an error line, when nothing else is there.
bool hasNoTriangles(const SceneSource &source)
{
    qint64 loose = 0;
    qint64 all = 0;
    for (unsigned m = 0; m < source.scene->mNumMeshes; ++m) {
        const aiMesh &mesh = *source.scene->mMeshes[m];
        loose += std::count_if(mesh.mFaces, mesh.mFaces + mesh.mNumFaces,
                               [](const aiFace &face) { return face.mNumIndices < 3; });
        all += mesh.mNumFaces;
    }
    if (loose == all) {
        source.messages.addError(
            QCoreApplication::translate("Import", "%1 does not contain any triangles").arg(source.modelPath));
        return true;
    }
    if (loose > 0)
        source.messages.addWarning(
            QCoreApplication::translate("Import", "%1 %2 points and lines were left out")
                .arg(source.modelPath, QString::number(loose)));
    return false;
}

const aiScene *readReady(Assimp::Importer &importer, const char *operation, SceneSource &source)
{
    importer.SetPropertyInteger(AI_CONFIG_PP_RVC_FLAGS, Removals);
    importer.SetPropertyInteger(AI_CONFIG_PP_SBP_REMOVE, aiPrimitiveType_POINT | aiPrimitiveType_LINE);
    source.scene = readScene(importer, operation, source, 0);
    if (!source.scene || hasNoTriangles(source))
        return nullptr;
    readGltfWeights(source.modelPath, *source.scene);
    source.scene = importer.ApplyPostProcessing(Steps);
    if (!source.scene)
        source.messages.addError(QCoreApplication::translate("Import", "%1 Could not read file. %2")
                                     .arg(source.modelPath, QString::fromUtf8(importer.GetErrorString())));
    return source.scene;
}

template <typename Mesh>
std::vector<size_t> addSurfaces(const SceneSource &source, const SceneParts &parts, const QString &folder,
                                Mesh &mesh)
{
    const std::vector<bool> used = usedMaterials(source, parts);
    std::vector<size_t> surfaceOf(used.size(), 0);
    for (const ReadyMaterial &material : readyMaterials(source, used, folder)) {
        surfaceOf[material.material] = mesh.surfaces.size();
        mesh.surfaces.push_back({material.path, {}});
    }
    if (mesh.surfaces.empty())
        source.messages.addError(
            QCoreApplication::translate("Import", "%1 does not contain any meshes").arg(source.modelPath));
    return surfaceOf;
}

/// Returns true, after an error line, when there are too many whatever is left out.
bool limitBones(const SceneSource &source, const SceneNodes &nodes, const SceneParts &parts,
                const ReadyClips &clips, ReadySkeleton &skeleton)
{
    const int all = skeleton.count();
    if (all <= ReadySkeleton::BoneLimit)
        return false;
    skeleton.dropLeaves(parts.movers(nodes), clips.moved());
    if (skeleton.count() > ReadySkeleton::BoneLimit)
        skeleton.mergeStill(clips.movements(skeleton, parts));
    const QString found = QString::number(all);
    const QString left = QString::number(skeleton.count());
    const QString limit = QString::number(ReadySkeleton::BoneLimit);
    if (skeleton.count() > ReadySkeleton::BoneLimit) {
        source.messages.addError(
            QCoreApplication::translate("Import",
                                        "%1 has %2 bones, of which %3 are left when those go that nothing "
                                        "hangs on or that clips hardly move. A model can be posed with %4.")
                .arg(source.modelPath, found, left, limit));
        return true;
    }
    source.messages.addWarning(
        QCoreApplication::translate("Import",
                                    "%1 has %2 bones, of which a model can be posed with %4: those that "
                                    "nothing hangs on or that clips hardly move went with their parents, %3 "
                                    "are left")
            .arg(source.modelPath, found, left, limit));
    return false;
}

void addBones(const SceneSource &source, const SceneNodes &nodes, const ReadySkeleton &skeleton,
              SkinnedMesh &mesh, ModelNames &names)
{
    if (skeleton.count() == 0) {
        source.messages.addInfo(
            QCoreApplication::translate("Import", "%1 has no bones. Creating a default bone.")
                .arg(source.modelPath));
        mesh.nodes.emplace_back();
        return;
    }
    mesh.nodes.resize(size_t(skeleton.count()));
    for (int b = 0; b < skeleton.count(); ++b) {
        SkinnedMeshNode &bone = mesh.nodes[size_t(b)];
        if (b > 0) {
            bone.parentNode = quint8(skeleton.parent(b));
            mesh.nodes[size_t(skeleton.parent(b))].childNodes.push_back(quint16(b));
        }
        const QString name = bareBoneName(text(nodes[skeleton.node(b)].source->mName));
        if (name.isEmpty())
            continue;
        names.bones.insert(b, name);
        bone.symbolFlags = guessedSymbolFlags(name).value_or(bone.symbolFlags);
    }
}

/// Names tell no more than what is likely, so somebody has to look.
void listSymbols(const SceneSource &source, const SkinnedMesh &mesh, const ModelNames &names)
{
    std::map<QString, QStringList> bones; // by their symbols
    for (int b = 0; b < int(mesh.nodes.size()); ++b) {
        const QString name = names.bones.value(b);
        if (guessedSymbolFlags(name))
            bones[boneSymbolName(mesh, b)] += QStringLiteral("%1 %2").arg(QString::number(b), name);
    }
    for (const auto &[symbol, list] : bones)
        source.messages.addInfo(
            QCoreApplication::translate("Import", "Bone symbol '%1', guessed from names, to be reviewed: %2")
                .arg(symbol, list.join(QStringLiteral(", "))));
}
} // namespace

void importReadySkinnedMesh(const ReadySource &ready, QStringList &textures, SkinnedMesh &mesh,
                            AnimFile &anim, ModelNames &names, ImportMessages &messages)
{
    Assimp::Importer importer;
    SceneSource source{ready.modelPath, ready.kmatPath, textures, messages};
    if (!readReady(importer, "Ready Skinned Mesh Import", source))
        return;
    const double scale = double(ready.choices.scale);
    const SceneNodes nodes(*source.scene);
    const std::vector<bool> everything(size_t(nodes.count()), true);
    const SceneParts parts(*source.scene, nodes, nodes.worldPlaces(nodes.restPlaces(), everything, scale));
    ReadyClips clips(source, nodes, ready.choices);

    ReadySkeleton skeleton(nodes, SceneParts::skinNodes(*source.scene, nodes),
                           SceneParts::bareNodes(*source.scene, nodes), clips.moved());
    if (limitBones(source, nodes, parts, clips, skeleton))
        return;
    addBones(source, nodes, skeleton, mesh, names);
    SkeletonPose rest;
    skeleton.pose(nodes.worldPlaces(nodes.restPlaces(), skeleton.wanted(), scale), rest);
    // A bone alone that nothing moves may as well be where the game has one that it knows nothing of.
    if (skeleton.count() == 0)
        clips.clear();
    if (mesh.nodes.size() == 1 && clips.isEmpty())
        rest = {{RigidFrame()}, {RigidFrame()}, {Vector3(1.0)}};

    const std::vector<size_t> surfaceOf = addSurfaces(source, parts, ready.textureFolder, mesh);
    if (messages.hasError() || addGeometry(source, parts, surfaceOf, skeleton, rest, mesh))
        return;
    if (skeleton.count() > 0 && parts.unbound() > 0)
        messages.addWarning(QCoreApplication::translate("Import", "%1 %2 vertices are not assigned to a bone")
                                .arg(source.modelPath, QString::number(parts.unbound())));
    clips.addBlocks(skeleton, rest, mesh, anim, names);
    messages.addInfo(contentText(mesh, anim));
    listSymbols(source, mesh, names);
}

StaticMesh importReadyStaticMesh(const ReadySource &ready, QStringList &textures, ImportMessages &messages)
{
    StaticMesh mesh;
    Assimp::Importer importer;
    SceneSource source{ready.modelPath, ready.kmatPath, textures, messages};
    if (!readReady(importer, "Ready Static Mesh Import", source))
        return mesh;
    const SceneNodes nodes(*source.scene);
    const std::vector<bool> everything(size_t(nodes.count()), true);
    const SceneParts parts(*source.scene, nodes,
                           nodes.worldPlaces(nodes.restPlaces(), everything, double(ready.choices.scale)));
    const std::vector<size_t> surfaceOf = addSurfaces(source, parts, ready.textureFolder, mesh);
    if (messages.hasError() || addGeometry(source, parts, surfaceOf, mesh))
        return mesh;
    messages.addInfo(geometryText(mesh));
    return mesh;
}
