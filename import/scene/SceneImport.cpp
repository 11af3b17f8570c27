// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SceneImport.h"

#include "SceneAnimations.h"
#include "SceneReading.h"
#include "SceneSkeleton.h"

#include <assimp/Importer.hpp>
#include <assimp/config.h>

namespace {
constexpr int SkinnedRemovals = aiComponent_NORMALS | aiComponent_TANGENTS_AND_BITANGENTS |
                                aiComponent_COLORS | aiComponent_LIGHTS | aiComponent_CAMERAS;
constexpr int StaticRemovals = aiComponent_TANGENTS_AND_BITANGENTS | aiComponent_COLORS |
                               aiComponent_BONEWEIGHTS | aiComponent_ANIMATIONS | aiComponent_LIGHTS |
                               aiComponent_CAMERAS;

// 65535 ends an index list in the file of a skinned mesh, so the last vertex of such a mesh is 65534.
constexpr quint32 SkinnedVertexLimit = 65535;
constexpr quint32 StaticVertexLimit = 65536;
} // namespace

void importSkinnedMesh(const QString &modelPath, const QString &kmatPath, quint32 flags,
                       QStringList &textures, SkinnedMesh &mesh, AnimFile &anim, ImportMessages &messages)
{
    Assimp::Importer importer;
    importer.SetPropertyInteger(AI_CONFIG_PP_RVC_FLAGS, SkinnedRemovals);
    importer.SetPropertyInteger(AI_CONFIG_PP_LBW_MAX_WEIGHTS, 1);
    SceneSource source{modelPath, kmatPath, textures, messages};
    source.scene = readScene(importer, "Skinned Mesh Import", source, flags);
    if (!source.scene || addSurfaces(source, SkinnedVertexLimit, mesh))
        return;
    const SceneSkeleton skeleton(source);
    skeleton.addBones(mesh);
    skeleton.bindVertices(mesh);
    addAnimations(source, skeleton, mesh.nodes.size(), anim);
    messages.addInfo(contentText(mesh, anim));
}

StaticMesh importStaticMesh(const QString &modelPath, const QString &kmatPath, quint32 flags,
                            QStringList &textures, ImportMessages &messages)
{
    StaticMesh mesh;
    Assimp::Importer importer;
    importer.SetPropertyInteger(AI_CONFIG_PP_RVC_FLAGS, StaticRemovals);
    SceneSource source{modelPath, kmatPath, textures, messages};
    source.scene = readScene(importer, "Static Mesh Import", source, flags);
    if (!source.scene || addSurfaces(source, StaticVertexLimit, mesh))
        return mesh;
    messages.addInfo(geometryText(mesh));
    return mesh;
}
