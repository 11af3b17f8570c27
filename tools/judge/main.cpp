// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "FrameChoice.h"
#include "Pose.h"
#include "ScenePoses.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <QCoreApplication>
#include <QHash>
#include <QTextStream>

namespace {
QString lastOf(const QString &path, const QString &error)
{
    return QStringLiteral("%1: %2").arg(path, error.isEmpty() ? QStringLiteral("cannot be opened") : error);
}

/// The game's front is clockwise.
template <typename Mesh>
void addTriangles(const Mesh &mesh, PosesFile &file)
{
    for (const auto &surface : mesh.surfaces) {
        const std::vector<quint16> &indexes = surface.triangleIndexes;
        for (size_t i = 0; i + 2 < indexes.size(); i += 3)
            file.triangles.push_back({indexes[i], indexes[i + 2], indexes[i + 1]});
    }
}

/// Writes a static mesh, which has no clips. Returns why it failed.
QString writeStaticPlaces(const QString &path, const QString &target)
{
    StaticMesh mesh;
    QString error;
    if (mesh.read(path, &error))
        return lastOf(path, error);
    PosesFile file;
    file.parts = {{path, 0, int(mesh.vertices.size())}};
    for (const StaticMeshVertex &vertex : mesh.vertices) {
        file.rest.push_back(vertex.position);
        file.uvs.push_back(vertex.uv);
        file.normals.push_back(vertex.normal);
    }
    file.solid.assign(mesh.vertices.size(), 1);
    addTriangles(mesh, file);
    return file.write(target, {});
}

/// Poses a skinned mesh as the view shows it. Returns why it failed.
QString writeModelPoses(const QString &meshPath, const QString &animPath, const QString &target)
{
    SkinnedMesh mesh;
    AnimFile anim;
    QString error;
    if (mesh.read(meshPath, &error))
        return lastOf(meshPath, error);
    if (anim.read(animPath, &error))
        return lastOf(animPath, error);
    if (!animationMatchesMesh(anim, mesh))
        return lastOf(animPath, QStringLiteral("does not have as many bones as the mesh"));

    BonePalette palette(mesh.nodes.size());
    QQuaternion yaw;
    const auto posed = [&] {
        Places places;
        for (const SkinnedMeshVertex &vertex : mesh.vertices)
            places.push_back(yaw.rotatedVector(palette.at(vertex.nodeIndex).map(vertex.position)));
        return places;
    };
    PoseEvaluator poses;
    poses.evaluateInitialPose(palette, mesh, anim.blocks.front());
    PosesFile file;
    file.parts = {{meshPath, 0, int(mesh.vertices.size())}};
    file.rest = posed();
    for (const SkinnedMeshVertex &vertex : mesh.vertices) {
        file.uvs.push_back(vertex.uv);
        file.normals.push_back(palette.at(vertex.nodeIndex).mapVector(vertex.normal));
    }
    file.solid.assign(mesh.vertices.size(), 1);
    addTriangles(mesh, file);
    for (const AnimBlock &block : anim.blocks) {
        file.clips.push_back(
            {QStringLiteral("[%1]").arg(block.animId), double(playRate(block.speed)), block.frameCount()});
    }
    return file.write(target, [&](int clip, int frame) {
        Playback state;
        state.mesh = &mesh;
        state.anim = &anim;
        state.blockIndex = clip;
        state.playState = PlayState::Paused;
        const AnimBlock &block = anim.blocks[size_t(clip)];
        state.time = float(frame) / playRate(block.speed);
        yaw = QQuaternion();
        poses.evaluateAnimatedPose(palette, mesh, block, state, yaw);
        return posed();
    });
}
} // namespace

// judge-poses model MESH ANIM OUT: poses one of our models, every block at every frame.
// judge-poses static MESH OUT: writes the vertices of a static mesh.
// judge-poses scene FILE OUT [PLAN]: poses what the library reads of a file, the clips as those of PLAN.
// judge-poses onebone FILE OUT [PLAN]: the same, every vertex moved by its strongest bone alone.
// judge-poses joints FILE OUT [PLAN]: the same of the origins of its nodes.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const QHash<QString, SceneVertices> kinds{{QStringLiteral("scene"), SceneVertices::Whole},
                                              {QStringLiteral("onebone"), SceneVertices::OneBone},
                                              {QStringLiteral("joints"), SceneVertices::Joints}};
    QString error;
    if (arguments.value(0) == QLatin1String("model") && arguments.size() == 4) {
        error = writeModelPoses(arguments[1], arguments[2], arguments[3]);
    } else if (arguments.value(0) == QLatin1String("static") && arguments.size() == 3) {
        error = writeStaticPlaces(arguments[1], arguments[2]);
    } else if (kinds.contains(arguments.value(0)) && arguments.size() >= 3) {
        std::vector<PosesClip> plan;
        if (arguments.size() > 3)
            error = PosesFile::readClips(arguments[3], plan);
        if (error.isEmpty())
            error = writeScenePoses(arguments[1], arguments[2], plan, kinds.value(arguments[0]));
    } else {
        error = QStringLiteral(
            "judge-poses model MESH ANIM OUT | static MESH OUT | scene|onebone|joints FILE OUT [PLAN]");
    }
    if (error.isEmpty())
        return 0;
    QTextStream(stderr) << error << '\n';
    return 1;
}
