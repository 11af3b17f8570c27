// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelUpdate.h"

#include "BinaryFileWriter.h"
#include "ExportNames.h"
#include "GltfExtras.h"
#include "GltfPose.h"
#include "GltfText.h"
#include "Polar.h"
#include "SurfaceNumbers.h"
#include "Transform.h"
#include "UpdateBones.h"
#include "UpdateClips.h"
#include "UpdateTriangles.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {
constexpr size_t MostBones = 255;  ///< a parent is a byte, and 255 is none
constexpr size_t ShownBones = 128; ///< whose vertices the view and the game can pose
// A few times what indexes of 16 bits can use.
constexpr size_t MostFileVertices = 1 << 20;
constexpr size_t MostFileCorners = 1 << 22;

std::optional<GltfExtras::Model> modelExtras(const GltfScene &scene, bool isStatic)
{
    for (const int node : scene.order) {
        auto model = GltfExtras::read<GltfExtras::Model>(scene.nodes[size_t(node)].extras);
        if (model && model->isStatic == isStatic)
            return model;
    }
    return {};
}

/// Takes the triangles of a node's mesh over. `toModel` maps from the node's mesh to the model's space;
/// `place` finishes a vertex, whose joint it is given.
template <typename Vertex, typename Numbers, typename Place>
void takeTriangles(const GltfScene &scene, const GltfScene::Node &node, const QMatrix4x4 &toModel,
                   Numbers &numbers, FileTriangles<Vertex> &file, Place place)
{
    const QMatrix3x3 forNormals = toModel.normalMatrix();
    const bool isMirrored = toModel.determinant() < 0.0;
    for (const GltfScene::Primitive &primitive : scene.meshes[size_t(node.mesh)]) {
        const auto base = quint32(file.vertices.size());
        for (size_t i = 0; i < primitive.positions.size(); ++i) {
            Vertex vertex;
            vertex.position = toModel * primitive.positions[i];
            if (!primitive.normals.empty()) {
                const QVector3D &n = primitive.normals[i];
                vertex.normal =
                    QVector3D(forNormals(0, 0) * n.x() + forNormals(0, 1) * n.y() + forNormals(0, 2) * n.z(),
                              forNormals(1, 0) * n.x() + forNormals(1, 1) * n.y() + forNormals(1, 2) * n.z(),
                              forNormals(2, 0) * n.x() + forNormals(2, 1) * n.y() + forNormals(2, 2) * n.z())
                        .normalized();
            }
            // The game counts the other way.
            if (!primitive.uvs.empty())
                vertex.uv = {primitive.uvs[i].x(), 1.0f - primitive.uvs[i].y()};
            place(vertex, primitive.joints.empty() ? -1 : primitive.joints[i]);
            file.vertices.push_back(vertex);
        }
        const size_t surface = numbers.of(primitive.material);
        if (file.surfaces.size() <= surface)
            file.surfaces.resize(surface + 1);
        std::vector<quint32> &corners = file.surfaces[surface];
        for (size_t i = 0; i + 2 < primitive.indices.size(); i += 3) {
            // The game's triangles are clockwise.
            const size_t second = isMirrored ? 1 : 2;
            corners.insert(corners.end(), {base + primitive.indices[i], base + primitive.indices[i + second],
                                           base + primitive.indices[i + 3 - second]});
        }
    }
}

/// A mesh that many nodes show is as often in the model. Returns true when that is too much.
bool isTooMuch(const GltfScene &scene, const std::vector<int> &nodes, QString &reason)
{
    size_t vertices = 0;
    size_t corners = 0;
    for (const int node : nodes) {
        for (const GltfScene::Primitive &primitive : scene.meshes[size_t(scene.nodes[size_t(node)].mesh)]) {
            vertices += primitive.positions.size();
            corners += primitive.indices.size();
        }
        if (vertices > MostFileVertices || corners > MostFileCorners) {
            reason = Gltf::tr("It has more vertices than a model can.");
            return true;
        }
    }
    return false;
}

void tellTriangles(const TriangleChanges &changes, UpdateAccount &account)
{
    const auto tell = [&account](UpdateLine::Kind kind, const char *text, int count) {
        if (count > 0)
            account.add(kind, Gltf::tr(text).arg(count));
    };
    tell(UpdateLine::Changed, QT_TRANSLATE_NOOP("Gltf", "Vertices with other values: %1"), changes.moved);
    tell(UpdateLine::New, QT_TRANSLATE_NOOP("Gltf", "Vertices: %1"), changes.added);
    tell(UpdateLine::New, QT_TRANSLATE_NOOP("Gltf", "Triangles: %1"), changes.newTriangles);
    tell(UpdateLine::Changed, QT_TRANSLATE_NOOP("Gltf", "Vertices that go: %1"), changes.removed);
    tell(UpdateLine::Changed, QT_TRANSLATE_NOOP("Gltf", "Triangles that go: %1"), changes.lostTriangles);
}

void tellLeftOut(const QStringList &names, const char *text, UpdateAccount &account)
{
    constexpr int Shown = 5;
    if (names.isEmpty())
        return;
    QStringList shown = names.mid(0, Shown);
    if (names.size() > Shown)
        shown += QStringLiteral("… (%1)").arg(names.size());
    account.add(UpdateLine::Note, Gltf::tr(text).arg(shown.join(QStringLiteral(", "))));
}

template <typename Model>
std::vector<uchar> draftOf(const Model &model)
{
    BinaryFileWriter writer;
    model.writeDraft(writer);
    return writer.takeBytes();
}

class SkinnedUpdate
{
public:
    SkinnedUpdate(const GltfScene &scene, SkinnedMesh &mesh, const UpdateBones &bones, UpdateAccount &account)
        : m_scene(scene)
        , m_mesh(mesh)
        , m_bones(bones)
        , m_account(account)
    {}

    bool run(QString &reason)
    {
        const std::vector<int> nodes = shownNodes();
        if (isTooMuch(m_scene, nodes, reason))
            return true;
        FileTriangles<SkinnedMeshVertex> file;
        SurfaceNumbers<SkinnedMesh> numbers(m_scene, m_mesh, m_account);
        for (const int node : nodes)
            takeNode(node, numbers, file);
        addBones();
        TriangleChanges changes;
        if (updateTriangles(m_mesh, file, m_bones.size(), changes)) {
            reason = Gltf::tr("It has more vertices than a model can.");
            return true;
        }
        tellTriangles(changes, m_account);
        moveHotPoints();
        moveBoxes(changes);
        tell();
        return false;
    }

private:
    /// Those with a skin, and those that hang on a bone.
    std::vector<int> shownNodes()
    {
        std::vector<int> nodes;
        QStringList leftOut;
        for (const int index : m_scene.order) {
            const GltfScene::Node &node = m_scene.nodes[size_t(index)];
            if (node.mesh < 0)
                continue;
            if (node.skin >= 0 || m_bones.boneOf(index) >= 0)
                nodes.push_back(index);
            else
                leftOut += node.name;
        }
        tellLeftOut(leftOut, QT_TRANSLATE_NOOP("Gltf", "Objects that hang on no bone, left out: %1"),
                    m_account);
        return nodes;
    }

    void takeNode(int index, SurfaceNumbers<SkinnedMesh> &numbers, FileTriangles<SkinnedMeshVertex> &file)
    {
        const GltfScene::Node &node = m_scene.nodes[size_t(index)];
        const int hangsOn = node.skin < 0 ? m_bones.boneOf(index) : -1;
        const QMatrix4x4 toModel =
            node.skin < 0 ? m_bones.hangingMatrix(index) : m_bones.bindMatrix(node.skin);
        std::vector<Rigid> toBone;
        for (const UpdateBones::Bone &bone : m_bones.bones())
            toBone.push_back(bone.rest.inverse());
        std::vector<int> boneOfJoint;
        for (size_t i = 0; node.skin >= 0 && i < m_scene.skins[size_t(node.skin)].joints.size(); ++i)
            boneOfJoint.push_back(m_bones.boneOf(m_scene.skins[size_t(node.skin)].joints[i]));
        takeTriangles(m_scene, node, toModel, numbers, file, [&](SkinnedMeshVertex &vertex, int joint) {
            int bone = hangsOn;
            if (node.skin >= 0 && joint >= 0)
                bone = boneOfJoint[size_t(joint)];
            m_boneless += bone < 0 ? 1 : 0;
            vertex.nodeIndex = quint16(std::max(bone, 0));
            const Rigid &local = toBone[vertex.nodeIndex];
            vertex.position = toFloats(local.map(toDoubles(vertex.position)));
            vertex.normal = toFloats(local.rotated(toDoubles(vertex.normal)));
        });
        for (const GltfScene::Primitive &primitive : m_scene.meshes[size_t(node.mesh)])
            m_shared += primitive.sharedVertices;
    }

    void addBones()
    {
        for (size_t i = m_bones.oldCount(); i < m_bones.bones().size(); ++i) {
            const UpdateBones::Bone &bone = m_bones.bones()[i];
            SkinnedMeshNode node;
            node.parentNode = quint8(bone.parent);
            node.name = bareBoneName(bone.name);
            m_mesh.nodes.push_back(node);
            m_mesh.nodes[size_t(bone.parent)].childNodes.push_back(quint16(i));
            m_account.add(UpdateLine::New,
                          Gltf::tr("Bone %1 '%2' on bone %3")
                              .arg(QString::number(i), bone.name, QString::number(bone.parent)));
        }
    }

    /// A point that was moved on its bone has another origin.
    void moveHotPoints()
    {
        for (size_t i = 0; i < m_mesh.hotPoints.size(); ++i) {
            SkinnedMeshHotPoint &point = m_mesh.hotPoints[i];
            QVector3D place;
            if (point.nodeId >= m_bones.oldCount())
                continue;
            const UpdateBones::HotPointFound found = m_bones.hotPoint(int(i), place);
            if (found == UpdateBones::HotPointFound::No)
                m_account.add(UpdateLine::Missing, Gltf::tr("Hot point %1").arg(i));
            if (found != UpdateBones::HotPointFound::Yes)
                continue;
            const QVector3D origin =
                toFloats(m_bones.bones()[point.nodeId].rest.inverse().map(toDoubles(place)));
            if ((origin - point.origin).length() <= float(2.0e-5 * m_bones.size()))
                continue;
            point.origin = origin;
            m_account.add(UpdateLine::Changed, Gltf::tr("Hot point %1: moved on its bone").arg(i));
        }
    }

    /// Boxes are drawn anew where vertices are others; somebody may have made the rest to be as they are.
    void moveBoxes(const TriangleChanges &changes)
    {
        bool isMoved = changes.any();
        const std::vector<std::optional<Box>> boxes = boneBoxes(m_mesh);
        for (size_t i = 0; i < m_mesh.nodes.size(); ++i) {
            isMoved = isMoved || m_bones.bones()[i].isMoved;
            if (i >= changes.touchedBones.size() || !changes.touchedBones[i] || !boxes[i])
                continue;
            m_mesh.nodes[i].bbMin = boxes[i]->min;
            m_mesh.nodes[i].bbMax = boxes[i]->max;
        }
        std::optional<Box> whole;
        for (const SkinnedMeshVertex &vertex : m_mesh.vertices) {
            if (vertex.nodeIndex >= m_mesh.nodes.size())
                continue;
            widen(whole, toFloats(m_bones.bones()[vertex.nodeIndex].rest.map(toDoubles(vertex.position))));
        }
        if (isMoved && whole) {
            m_mesh.bbMin = whole->min;
            m_mesh.bbMax = whole->max;
        }
    }

    void tell()
    {
        QStringList moved;
        for (size_t i = 0; i < m_bones.oldCount(); ++i) {
            const UpdateBones::Bone &bone = m_bones.bones()[i];
            if (bone.node < 0)
                m_account.add(UpdateLine::Missing, Gltf::tr("Bone %1").arg(i));
            else if (bone.isMoved)
                moved += QString::number(i);
        }
        if (!moved.isEmpty())
            m_account.add(UpdateLine::Changed,
                          Gltf::tr("Bones that start elsewhere: %1").arg(moved.join(QStringLiteral(", "))));
        tellLeftOut(m_bones.leftOut(), QT_TRANSLATE_NOOP("Gltf", "Bones without vertices, left out: %1"),
                    m_account);
        if (m_shared > 0)
            m_account.add(UpdateLine::Note,
                          Gltf::tr("Vertices with several bones, of which each follows the strongest: %1")
                              .arg(m_shared));
        if (m_boneless > 0)
            m_account.add(UpdateLine::Note,
                          Gltf::tr("Vertices without a bone, which follow bone 0: %1").arg(m_boneless));
        if (m_mesh.nodes.size() > ShownBones)
            m_account.add(UpdateLine::Note,
                          Gltf::tr("More bones than the game can pose: %1, at most %2")
                              .arg(QString::number(m_mesh.nodes.size()), QString::number(ShownBones)));
        if (m_scene.otherPrimitives > 0)
            m_account.add(UpdateLine::Note,
                          Gltf::tr("Lists of points or lines, left out: %1").arg(m_scene.otherPrimitives));
    }

    const GltfScene &m_scene;
    SkinnedMesh &m_mesh;
    const UpdateBones &m_bones;
    UpdateAccount &m_account;
    int m_shared = 0;   ///< vertices
    int m_boneless = 0; ///< vertices
};
} // namespace

ExportTraces exportTraces(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if ((suffix != QLatin1String("glb") && suffix != QLatin1String("gltf")) || !QFileInfo(path).isFile())
        return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const auto *bytes = reinterpret_cast<const char *>(file.map(0, file.size()));
    const QByteArray content =
        QByteArray::fromRawData(bytes, bytes ? int(std::min<qint64>(file.size(), INT_MAX)) : 0);
    ExportTraces traces;
    traces.hasNames = content.contains("\"bone_000");
    traces.hasRecords = content.contains("\"korvane\"");
    // Records are texts within the text.
    traces.isSkinned = traces.hasRecords && content.contains(R"(\"kind\":\"skinnedmesh\")");
    traces.isStatic = traces.hasRecords && content.contains(R"(\"kind\":\"staticmesh\")");
    return traces;
}

bool updateModel(const GltfScene &scene, SkinnedMesh &mesh, AnimFile &anim, UpdateAccount &account,
                 QString &reason)
{
    const std::vector<uchar> before = draftOf(mesh);
    const bool hasAnim = !anim.blocks.empty() && anim.blocks[0].nodes.size() == mesh.nodes.size();
    const auto model = modelExtras(scene, false);
    account.model = model ? model->name : QString();
    const UpdateBones bones(mesh, anim, scene);
    reason = bones.error();
    if (!reason.isEmpty())
        return true;
    if (bones.bones().size() > MostBones) {
        reason = Gltf::tr("With its new bones the model has %1, more than %2.")
                     .arg(QString::number(bones.bones().size()), QString::number(MostBones));
        return true;
    }
    if (SkinnedUpdate(scene, mesh, bones, account).run(reason))
        return true;
    account.changesMesh = draftOf(mesh) != before;
    if (hasAnim) {
        UpdateClips clips(scene, bones, model, anim, account);
        if (clips.run()) {
            reason = clips.error();
            return true;
        }
        for (auto it = clips.names().cbegin(); it != clips.names().cend(); ++it)
            mesh.animationNames.insert(it.key(), it.value());
    } else if (!scene.animations.empty()) {
        account.add(UpdateLine::Note, Gltf::tr("Animations, left out since none of the model's is open: %1")
                                          .arg(scene.animations.size()));
    }
    if (!model)
        account.add(
            UpdateLine::Note,
            Gltf::tr("The file has lost what the export noted in it (custom properties), so bones and "
                     "animations were found by their names."));
    return false;
}

bool updateModel(const GltfScene &scene, StaticMesh &mesh, UpdateAccount &account, QString &reason)
{
    const std::vector<uchar> before = draftOf(mesh);
    const auto model = modelExtras(scene, true);
    account.model = model ? model->name : QString();
    const auto isOurs = [&](const GltfScene::Node &node) {
        if (GltfExtras::read<GltfExtras::Model>(node.extras))
            return true;
        const std::vector<GltfScene::Primitive> &primitives = scene.meshes[size_t(node.mesh)];
        return std::any_of(primitives.begin(), primitives.end(), [&](const GltfScene::Primitive &primitive) {
            return primitive.material >= 0 &&
                   GltfExtras::read<GltfExtras::Surface>(scene.materials[size_t(primitive.material)].extras);
        });
    };
    std::vector<int> nodes;
    QStringList leftOut;
    for (const int index : scene.order) {
        const GltfScene::Node &node = scene.nodes[size_t(index)];
        if (node.mesh < 0)
            continue;
        if (isOurs(node))
            nodes.push_back(index);
        else
            leftOut += node.name;
    }
    if (nodes.empty() || (!model && modelExtras(scene, false))) {
        reason = Gltf::tr("Nothing in it comes from the model that is open.");
        return true;
    }
    if (isTooMuch(scene, nodes, reason))
        return true;
    FileTriangles<StaticMeshVertex> file;
    SurfaceNumbers<StaticMesh> numbers(scene, mesh, account);
    const std::vector<QMatrix4x4> worlds = GltfPose(scene).at(0.0f);
    for (const int index : nodes)
        takeTriangles(scene, scene.nodes[size_t(index)], fromGltfAxes() * worlds[size_t(index)], numbers,
                      file, [](StaticMeshVertex &, int) {});
    const std::optional<Box> box = meshBox(mesh);
    const QVector3D extent = box ? box->max - box->min : QVector3D(1.0f, 1.0f, 1.0f);
    TriangleChanges changes;
    if (updateTriangles(mesh, file, double(std::max({extent.x(), extent.y(), extent.z()})), changes)) {
        reason = Gltf::tr("It has more vertices than a model can.");
        return true;
    }
    tellTriangles(changes, account);
    tellLeftOut(leftOut, QT_TRANSLATE_NOOP("Gltf", "Objects that are no part of the model, left out: %1"),
                account);
    if (changes.any())
        boundVertices(mesh);
    account.changesMesh = draftOf(mesh) != before;
    return false;
}
