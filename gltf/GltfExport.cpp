// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfExport.h"

#include "AnimFile.h"
#include "GltfClips.h"
#include "GltfExtras.h"
#include "GltfNumbers.h"
#include "GltfSkeleton.h"
#include "GltfSurfaces.h"
#include "GltfTextures.h"
#include "ImportMessages.h"
#include "Playback.h"
#include "ReferenceTables.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <QCoreApplication>

#include <numeric>

namespace {
// By -90 degrees about x: the game's z points up, and y does in glTF.
const std::array<float, 4> UpTurn{-0.70710678f, 0.0f, 0.0f, 0.70710678f};

template <typename Mesh>
GltfExtras::Model modelRecord(const Mesh &mesh, const QString &name)
{
    GltfExtras::Model model;
    model.name = name;
    model.version = mesh.version;
    model.bbMin = mesh.bbMin;
    model.bbMax = mesh.bbMax;
    for (const auto &surface : mesh.surfaces)
        model.materials.push_back(surface.materialPath);
    return model;
}

GltfExtras::Model modelRecord(const SkinnedMesh &mesh, const AnimFile *anim,
                              const std::vector<GltfClip> &clips, const QString &name)
{
    GltfExtras::Model model = modelRecord(mesh, name);
    model.headTrackStart = mesh.headTrackStart;
    model.headTrackEnd = mesh.headTrackEnd;
    model.headTrackFactor = mesh.headTrackFactor;
    model.unknownA = mesh.unknownA;
    model.unknownB = mesh.unknownB;
    if (!anim)
        return model;
    model.animVersion = anim->version;
    for (size_t i = 0; i < anim->blocks.size(); ++i) {
        AnimBlock record = anim->blocks[i];
        record.nodes.clear();
        record.translations = {};
        record.rotations = {};
        model.blocks.push_back({int(i), QString(), record});
    }
    for (const GltfClip &clip : clips)
        model.blocks[size_t(clip.block)].clip = clip.name;
    return model;
}

void addScene(GltfWriter &writer, const std::vector<int> &roots, const QString &name)
{
    writer.append("scenes", {{QStringLiteral("name"), name}, {QStringLiteral("nodes"), gltfIndexes(roots)}});
    writer.set("scene", 0);
}

void complainOfSize(const GltfWriter &writer, ImportMessages &messages)
{
    if (writer.isTooLarge()) {
        messages.addError(QCoreApplication::translate(
                              "Import", "[glTF Export] The file would be larger than %1 MiB. Export fewer "
                                        "animations at a time.")
                              .arg(GltfWriter::MostBytes >> 20));
    }
}

Rigid::Vector doubles(const QVector3D &v)
{
    return {double(v.x()), double(v.y()), double(v.z())};
}

/// The vertex where the rest pose has it. One whose bone is not there is drawn as it is stored.
GltfVertex placed(const SkinnedMeshVertex &vertex, const GltfSkeleton &skeleton)
{
    const size_t bone = vertex.nodeIndex;
    if (bone >= skeleton.bones.size())
        return {doubles(vertex.position), doubles(vertex.normal), skeleton.bones.empty() ? -1 : 0};
    const Rigid &rest = skeleton.bones[bone].rest;
    return {rest.map(doubles(vertex.position)), rest.rotated(doubles(vertex.normal)), int(bone)};
}

void warnOfStrayVertices(const SkinnedMesh &mesh, ImportMessages &messages)
{
    const auto strays =
        std::count_if(mesh.vertices.begin(), mesh.vertices.end(),
                      [&](const SkinnedMeshVertex &vertex) { return vertex.nodeIndex >= mesh.nodes.size(); });
    if (strays > 0) {
        messages.addWarning(
            QCoreApplication::translate(
                "Import",
                "[glTF Export] %1 vertices belong to bones that are not there, and move with bone 0")
                .arg(strays));
    }
}
} // namespace

std::vector<int> allBlocks(const AnimFile &anim)
{
    std::vector<int> blocks(anim.blocks.size());
    std::iota(blocks.begin(), blocks.end(), 0);
    return blocks;
}

GltfWriter exportGltf(const SkinnedMesh &mesh, const AnimFile *anim, const std::vector<int> &blocks,
                      const GltfSource &source, ImportMessages &messages)
{
    GltfWriter writer;
    if (anim && !animationMatchesMesh(*anim, mesh)) {
        messages.addWarning(QCoreApplication::translate(
            "Import",
            "[glTF Export] The animation has another number of bones than the mesh, and is left out"));
        anim = nullptr;
    }
    const std::vector<GltfClip> clips =
        anim ? clipsFor(*anim, blocks, source.names) : std::vector<GltfClip>();
    const bool turns = std::any_of(clips.begin(), clips.end(), [anim](const GltfClip &clip) {
        return turnsModel(anim->blocks[size_t(clip.block)]);
    });

    const int root = writer.append("nodes", {});
    GltfSkeleton skeleton(mesh, anim ? &anim->blocks.front() : nullptr);
    const int firstJoint = writer.count("nodes");
    const std::vector<int> children = skeleton.addNodes(writer, mesh, source.names, turns);
    const int endOfJoints = writer.count("nodes");
    warnOfStrayVertices(mesh, messages);
    GltfTextures textures(source.gamePath, source.outputDir, writer, messages);
    const auto place = [&](size_t vertex) { return placed(mesh.vertices[vertex], skeleton); };
    const int meshIndex = addSurfaces(writer, mesh, source.name, place, textures, messages);

    QJsonObject meshNode{{QStringLiteral("name"), source.name + QStringLiteral(" mesh")},
                         {QStringLiteral("mesh"), meshIndex}};
    if (!skeleton.bones.empty()) {
        std::vector<int> joints(size_t(endOfJoints - firstJoint));
        std::iota(joints.begin(), joints.end(), firstJoint);
        const int binds = writer.addFloats(skeleton.inverseBinds(mesh), "MAT4", GltfWriter::Purpose::Binds);
        // Programs that look for the bones' rest in these matrices take them to be relative to the skeleton.
        writer.append("skins", {{QStringLiteral("name"), source.name},
                                {QStringLiteral("joints"), gltfIndexes(joints)},
                                {QStringLiteral("skeleton"), root},
                                {QStringLiteral("inverseBindMatrices"), binds}});
        meshNode.insert(QStringLiteral("skin"), 0);
    }
    // Where it hangs moves a mesh with a skin nowhere, so it hangs on nothing.
    std::vector<int> roots{root};
    if (meshIndex >= 0)
        roots.push_back(writer.append("nodes", meshNode));
    if (anim)
        addClips(writer, skeleton, *anim, clips, messages, source.isCancelled, source.tellDone);

    QJsonObject armature{
        {QStringLiteral("name"), source.name},
        {QStringLiteral("rotation"), gltfNumbers(UpTurn)},
        {QStringLiteral("extras"), GltfExtras::extras(modelRecord(mesh, anim, clips, source.name))}};
    if (!children.empty())
        armature.insert(QStringLiteral("children"), gltfIndexes(children));
    writer.replace("nodes", root, armature);
    addScene(writer, roots, source.name);
    complainOfSize(writer, messages);
    return writer;
}

GltfWriter exportGltf(const StaticMesh &mesh, const GltfSource &source, ImportMessages &messages)
{
    GltfWriter writer;
    GltfTextures textures(source.gamePath, source.outputDir, writer, messages);
    // Moving numbers about loses nothing of them.
    const auto up = [](const QVector3D &v) { return doubles({v.x(), v.z(), -v.y()}); };
    const auto place = [&](size_t vertex) {
        return GltfVertex{up(mesh.vertices[vertex].position), up(mesh.vertices[vertex].normal), -1};
    };
    const int meshIndex = addSurfaces(writer, mesh, source.name, place, textures, messages);
    if (meshIndex < 0) {
        messages.addError(QCoreApplication::translate("Import", "[glTF Export] The mesh has no triangles"));
        return writer;
    }
    GltfExtras::Model record = modelRecord(mesh, source.name);
    record.isStatic = true;
    const int node = writer.append("nodes", {{QStringLiteral("name"), source.name},
                                             {QStringLiteral("mesh"), meshIndex},
                                             {QStringLiteral("extras"), GltfExtras::extras(record)}});
    addScene(writer, {node}, source.name);
    complainOfSize(writer, messages);
    return writer;
}

ModelNames namesFor(ModelNames names, const AnimFile *anim)
{
    if (!anim)
        return names;
    for (const AnimBlock &block : anim->blocks) {
        // The built-in tables have "Unnamed animation 12", which says no more than the number.
        const QString name = ReferenceTables::shared().name(ReferenceKind::Animations, block.animId);
        if (!name.isEmpty() && !name.startsWith(QLatin1String("Unnamed")) &&
            names.animations.value(block.animId).isEmpty())
            names.animations.insert(block.animId, name);
    }
    return names;
}
