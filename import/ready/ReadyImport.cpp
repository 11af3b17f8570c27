// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReadyImport.h"

#include "BoneSymbolGuess.h"
#include "ExportNames.h"
#include "ExtraBoneSearch.h"
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
#include <optional>

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

/// "hand.L extra 1", "hand.L extra 2"; a number that a name of the source has is passed over.
void nameExtraBones(const ReadySkeleton &skeleton, ModelNames &names)
{
    const QStringList sources = names.bones.values();
    QSet<QString> taken(sources.begin(), sources.end());
    QHash<int, int> known; // by parent
    for (int b = skeleton.sourceCount(); b < skeleton.count(); ++b) {
        const int parent = skeleton.parent(b);
        const QString parentName = names.bones.value(parent, QStringLiteral("bone %1").arg(parent));
        QString name;
        do {
            name = QStringLiteral("%1 extra %2").arg(parentName, QString::number(++known[parent]));
        } while (taken.contains(name));
        taken.insert(name);
        names.bones.insert(b, name);
    }
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
        if (b >= skeleton.sourceCount()) {
            bone.symbolFlags = mesh.nodes[size_t(skeleton.parent(b))].symbolFlags;
            continue;
        }
        const QString name = bareBoneName(text(nodes[skeleton.node(b)].source->mName));
        if (name.isEmpty())
            continue;
        names.bones.insert(b, name);
        bone.symbolFlags = guessedSymbolFlags(name).value_or(bone.symbolFlags);
    }
    nameExtraBones(skeleton, names);
}

/// What the tracks of bones take in the file that those of the source do not have.
qint64 extraBytes(const AnimFile &anim, size_t sourceBones)
{
    qint64 bytes = 0;
    for (const AnimBlock &block : anim.blocks) {
        QSet<int> translations;
        QSet<int> rotations;
        qint64 frameBytes = 0;
        for (size_t b = 0; b < block.nodes.size(); ++b) {
            const AnimNode &node = block.nodes[b];
            const auto add = [&frameBytes, isExtra = b >= sourceBones](QSet<int> &known, int track,
                                                                       int keyBytes) {
                if (track < 0xFFFF && !known.contains(track) && isExtra)
                    frameBytes += keyBytes;
                known.insert(track);
            };
            add(translations, node.translationIndex, sizeof(QVector3D));
            add(rotations, node.rotationIndex, sizeof(QVector4D));
        }
        bytes += frameBytes * block.frameCount();
    }
    return bytes;
}

void tellOfExtraBones(const SceneSource &source, const std::optional<ExtraBoneAccount> &account, qint64 bytes)
{
    if (!account)
        return source.messages.addInfo(
            QCoreApplication::translate("Import", "%1 No extra bones were made: no animation was taken, or "
                                                  "the model has no bones or no size.")
                .arg(source.modelPath));
    const auto percent = [](double share) { return QString::number(100.0 * share, 'f', 1); };
    const QString with = percent(account->with);
    if (account->bones > 0)
        source.messages.addInfo(
            QCoreApplication::translate(
                "Import", "%1 Extra bones: %2, which take %3 kB of the animation file. No vertex is farther "
                          "than %4 % of the model's size from its place in the source, instead of %5 %.")
                .arg(source.modelPath, QString::number(account->bones), QString::number((bytes + 999) / 1000),
                     with, percent(account->without)));
    if (account->isFull)
        source.messages.addWarning(
            QCoreApplication::translate(
                "Import",
                "%1 There is no room for more extra bones, for a model can be posed with %2. Vertices are "
                "up to %3 % of the model's size from their places in the source.")
                .arg(source.modelPath, QString::number(ReadySkeleton::BoneLimit), with));
    else if (account->bones == 0 && account->isWithin)
        source.messages.addInfo(QCoreApplication::translate(
                                    "Import", "%1 No extra bones are needed: no vertex is farther than %2 % "
                                              "of the model's size from its place in the source.")
                                    .arg(source.modelPath, with));
    else if (account->bones == 0)
        source.messages.addWarning(
            QCoreApplication::translate("Import", "%1 Extra bones did not help, so none were made. Vertices "
                                                  "are up to %2 % of the model's size from their places in "
                                                  "the source.")
                .arg(source.modelPath, with));
}

/// Names tell no more than what is likely, so somebody has to look.
/// Extra bones have those of their parents.
void listSymbols(const SceneSource &source, const SkinnedMesh &mesh, const ModelNames &names, int boneCount)
{
    std::map<QString, QStringList> bones; // by their symbols
    for (int b = 0; b < boneCount; ++b) {
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
    SceneSource source{ready.modelPath, ready.kmatPath, textures, messages, nullptr, ready.elsewhere};
    if (!readReady(importer, "Ready Skinned Mesh Import", source))
        return;
    const SceneNodes nodes(*source.scene);
    ReadyClips clips(source, nodes, ready.choices);
    const SceneParts parts(*source.scene, nodes, clips.restWorld());

    ReadySkeleton skeleton(nodes, SceneParts::skinNodes(*source.scene, nodes),
                           SceneParts::bareNodes(*source.scene, nodes), clips.moved());
    if (limitBones(source, nodes, parts, clips, skeleton))
        return;
    std::optional<ExtraBoneAccount> extras;
    if (ready.choices.extraBones)
        extras = addExtraBones(parts, clips, skeleton);
    addBones(source, nodes, skeleton, mesh, names);
    SkeletonPose rest;
    skeleton.pose(clips.restWorld(), rest);
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
    const qint64 stretched = clips.addBlocks(skeleton, rest, mesh, anim, names);
    if (stretched > 0 && !(extras && extras->bones > 0 && extras->isWithin))
        messages.addWarning(
            QCoreApplication::translate(
                "Import", "%1 Bones that change their size in animations, which in the game they keep: %2")
                .arg(source.modelPath, QString::number(stretched)));
    messages.addInfo(contentText(mesh, anim));
    if (ready.choices.extraBones)
        tellOfExtraBones(source, extras, extraBytes(anim, size_t(skeleton.sourceCount())));
    listSymbols(source, mesh, names, skeleton.sourceCount());
}

StaticMesh importReadyStaticMesh(const ReadySource &ready, QStringList &textures, ImportMessages &messages)
{
    StaticMesh mesh;
    Assimp::Importer importer;
    SceneSource source{ready.modelPath, ready.kmatPath, textures, messages, nullptr, ready.elsewhere};
    if (!readReady(importer, "Ready Static Mesh Import", source))
        return mesh;
    const SceneNodes nodes(*source.scene);
    const std::vector<bool> everything(size_t(nodes.count()), true);
    const SceneParts parts(
        *source.scene, nodes,
        nodes.worldPlaces(nodes.restPlaces(), everything, SceneNodes::toGame(ready.choices)));
    const std::vector<size_t> surfaceOf = addSurfaces(source, parts, ready.textureFolder, mesh);
    if (messages.hasError() || addGeometry(source, parts, surfaceOf, mesh))
        return mesh;
    messages.addInfo(geometryText(mesh));
    return mesh;
}
