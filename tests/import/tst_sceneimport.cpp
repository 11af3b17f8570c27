// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportFlags.h"
#include "SceneImport.h"
#include "SceneSkeleton.h"
#include "SmallGltf.h"
#include "TestSupport.h"

#include <algorithm>
#include <cmath>

namespace {
const QByteArray triangle = "v 0 0 0\nv 1 0 0\nv 0 1 0\nvt 0 0\n";

bool isClose(const QVector4D &a, const QVector4D &b)
{
    return (a - b).length() < 1e-5f;
}
} // namespace

/// Foreign scenes become our records.
class tst_sceneimport : public QObject
{
    Q_OBJECT

private slots:
    void skeleton()
    {
        importSkinned(m_folder.put("small.gltf", SmallGltf().file({})));
        QCOMPARE(lines(LogSeverity::Error), QStringList());
        QVERIFY(lines(LogSeverity::Warning).contains("small.gltf 1 vertices are not assigned to a bone"));
        QCOMPARE(lines(LogSeverity::Info),
                 QStringList(QString("3 bones, 1 surface, 3 vertices, 1 triangle, 0 animations, 0 frames")));
        QCOMPARE(m_mesh.nodes.size(), size_t(3));
        QCOMPARE(m_mesh.nodes[0].childNodes, (std::vector<quint16>{1, 2}));
        QCOMPARE(int(m_mesh.nodes[0].parentNode), 255);
        QCOMPARE(int(m_mesh.nodes[2].parentNode), 0);
        // Half a weight is not enough for the third corner.
        for (const SkinnedMeshVertex &vertex : m_mesh.vertices)
            QCOMPARE(int(vertex.nodeIndex), vertex.position.x() == 10.0f ? 1 : 0);
        QCOMPARE(m_mesh.bbMin, QVector3D(0, 0, -30));
        QCOMPARE(m_mesh.bbMax, QVector3D(10, 20, 0));
        QVERIFY(m_anim.blocks.empty());
    }

    void damagedScenes()
    {
        // A scene as damaged files give it: a child that is not there, before and in the skeleton.
        aiScene scene;
        scene.mRootNode = new aiNode("scene");
        auto *bone = new aiNode("bone");
        auto *tip = new aiNode("tip");
        bone->addChildren(1, &tip);
        scene.mRootNode->addChildren(1, &bone);
        for (aiNode *node : {scene.mRootNode, bone}) {
            auto **children = new aiNode *[2] { nullptr, node->mChildren[0] };
            delete[] node->mChildren;
            node->mChildren = children;
            node->mNumChildren = 2;
        }
        auto *part = new aiMesh;
        part->mNumBones = 1;
        part->mBones = new aiBone *[1] { new aiBone };
        part->mBones[0]->mName = "tip";
        scene.mNumMeshes = 1;
        scene.mMeshes = new aiMesh *[1] { part };
        QStringList textures;
        ImportMessages messages;
        const QString path;
        SkinnedMesh mesh;
        const SceneSource source{path, path, textures, messages, &scene};
        const SceneSkeleton skeleton(source);
        skeleton.addBones(mesh);
        QCOMPARE(mesh.nodes.size(), size_t(2));
        QCOMPARE(mesh.nodes[0].childNodes, (std::vector<quint16>{1}));
        QCOMPARE(SceneSkeleton::sceneNode(source, aiString("tip")), tip);
        QVERIFY(!SceneSkeleton::sceneNode(source, aiString("none")));
    }

    void animations()
    {
        const float half = std::sqrt(0.5f);
        const QVector<SmallGltf::Animation> made{
            // Ten ticks; two keys for eleven frames. The body is no bone.
            {QStringLiteral("walk [x] [12] [13]"),
             {{1, false, {{0, {2, 4, 8, 0}}, {10, {0, 0, 0, 0}}}},
              {1, true, {{0, {half, 0, 0, half}}, {10, {0, half, 0, half}}}},
              {4, false, {{0, {0, 0, 0, 0}}}}}},
            // Less than a tick; only a rotation, so that the bone stays where its bind pose has it.
            {QStringLiteral("12"), {{2, true, {{0.9f, {0, 0, 1, 0}}}}}},
            {QStringLiteral("[99999999999]"), {{2, true, {{0, {0, 0, 0, 1}}}}}},
            {QStringLiteral("turned"), {{3, true, {{0, {half, 0, 0, half}}}}}},
            {QStringLiteral("endless"), {{2, true, {{0, {0, 0, 0, 1}}, {1e8f, {0, 0, 0, 1}}}}}},
        };
        importSkinned(m_folder.put("anim.gltf", SmallGltf().file(made)));
        QCOMPARE(lines(LogSeverity::Error), QStringList());
        QCOMPARE(m_anim.blocks.size(), size_t(5));
        const AnimBlock &walk = m_anim.blocks[0];
        QCOMPARE(walk.animId, 12);
        QCOMPARE(int(walk.blendLength), 5);
        QCOMPARE(walk.speed, 1000.0f);
        QCOMPARE(walk.frameCount(), 11);
        QCOMPARE(walk.translations.trackCount(), 1);
        QCOMPARE(int(walk.nodes[0].translationIndex), 0);
        QCOMPARE(int(walk.nodes[0].rotationIndex), 0);
        QCOMPARE(int(walk.nodes[1].translationIndex), 0xFFFF);
        QCOMPARE(int(walk.nodes[2].rotationIndex), 0xFFFF);
        QCOMPARE(walk.nodes[1].initialRotation, QVector4D(0, 0, 0, 1));
        // (2 - 1, 4 - 3, 8 - 2) and (0 - 1, 0 - 3, 0 - 2), times 256; the last key goes on.
        QCOMPARE(walk.translations.at(0, 0), QVector3D(256, 256, 1536));
        QCOMPARE(walk.translations.at(0, 1), QVector3D(-256, -768, -512));
        QCOMPARE(walk.translations.at(0, 10), walk.translations.at(0, 1));
        // The rest pose does not turn, so the keys stand as they are but for y and z.
        QVERIFY(isClose(walk.rotations.at(0, 0), {half, 0, 0, half}));
        QVERIFY(isClose(walk.rotations.at(0, 1), {0, 0, half, half}));
        QVERIFY(isClose(walk.rotations.at(0, 10), {0, 0, half, half}));

        const AnimBlock &still = m_anim.blocks[1];
        QCOMPARE(still.animId, AnimBlock().animId);
        QCOMPARE(still.frameCount(), 1);
        QCOMPARE(still.translations.at(0, 0), QVector3D());
        QVERIFY(isClose(still.rotations.at(0, 0), {0, 1, 0, 0}));
        QCOMPARE(m_anim.blocks[2].animId, 0);
        // The tail's rest is a quarter turn about z, whatever its scale, n = (0, 0, h, h), its key one about
        // x, k = (h, 0, 0, h), with h the root of one half. The inverse of n times k is (1, -1, -1, 1) / 2,
        // and so is that with y and z exchanged; k times the inverse of n would be (1, 1, -1, 1) / 2.
        QVERIFY(isClose(m_anim.blocks[3].rotations.at(0, 0), {0.5f, -0.5f, -0.5f, 0.5f}));
        QCOMPARE(m_anim.blocks[4].frameCount(), 65535);
        QVERIFY(lines(LogSeverity::Warning).contains("anim.gltf Animation 4 was cut to 65535 frames"));
    }

    void noBones()
    {
        importSkinned(m_folder.put("flat.obj", triangle + "f 1/1 2/1 3/1\n"));
        QCOMPARE(lines(LogSeverity::Info).value(0),
                 QStringLiteral("flat.obj has no bones. Creating a default bone."));
        QCOMPARE(m_mesh.nodes.size(), size_t(1));
        QCOMPARE(int(m_mesh.nodes[0].parentNode), 255);
        QVERIFY(!m_messages.hasError());
        QVERIFY(m_mesh.refusal().isEmpty());
        QCOMPARE(lines(LogSeverity::Warning).filter("assigned"), QStringList());
    }

    void surfacesAndTextures()
    {
        m_folder.put("m.mtl", "newmtl a\nKd 1 0 0\nmap_Kd tex/steel.v2.jpeg\n"
                              "newmtl b\nKd 0 1 0\n"
                              "newmtl c\nKd 0 0 1\nmap_Kd tex\\steel.v2.jpeg\n"
                              "newmtl d\nKd 0 1 1\nmap_Kd wood.tga\n");
        const QString path = m_folder.put("m.obj", "mtllib m.mtl\n" + triangle +
                                                       "usemtl a\nf 1/1 2/1 3/1\nusemtl b\nf 1/1 2/1 3/1\n"
                                                       "usemtl c\nf 1/1 3/1 2/1\nusemtl d\nf 1/1 2/1 3/1\n");
        importStatic(path);
        QCOMPARE(lines(LogSeverity::Error), QStringList());
        QCOMPARE(lines(LogSeverity::Warning).size(), 1);
        QVERIFY(lines(LogSeverity::Warning)[0].endsWith(QLatin1String("does not have any Diffuse textures")));
        QStringList names;
        for (const StaticMeshSurface &surface : m_static.surfaces)
            names += surface.materialPath;
        QCOMPARE(names.size(), 3);
        QCOMPARE(names.filter(QLatin1String("_white")).size(), 1);
        for (int i = 0; i < 3; ++i)
            QVERIFY2(names[i].startsWith(QString("materials/mat_x/surf_%1").arg(i)), qPrintable(names[i]));
        QCOMPARE(m_textures, QStringList({m_folder.path("tex/steel.v2.png"), m_folder.path("wood.png")}));
        // The two materials of one texture share a surface.
        QCOMPARE(m_static.surfaces[0].triangleIndexes.size(), size_t(6));

        m_kmatPath = QStringLiteral("mat_x.kmat");
        importStatic(path);
        QVERIFY(m_static.surfaces[0].materialPath.startsWith(QLatin1String("mat_x/surf_0")));
        m_kmatPath = QStringLiteral("materials/mat_x.kmat");
    }

    void complaints()
    {
        // A line each, by the alphabet.
        const auto check = [this](const QByteArray &obj, quint32 flags, const QString &errors) {
            importSkinned(m_folder.put("c.obj", obj), flags);
            QStringList found = lines(LogSeverity::Error);
            // Points and lines come before or after the triangles as the library likes.
            found.replaceInStrings(QRegularExpression(QStringLiteral("Mesh \\d")), QStringLiteral("Mesh N"));
            found.sort();
            QCOMPARE(found.join(QLatin1Char('\n')), errors);
        };
        // Its own normals go.
        check(triangle + "vn 0 0 1\nf 1/1/1 2/1/1 3/1/1\n", 0, "c.obj Mesh N does not contain any normals");
        check(triangle + "f 1/1 2/1 3/1\nl 1 2\nl 2 3\n", ImportFlags::GenerateNormals,
              "c.obj Mesh N contains more than 3 indices per face. A face must contain only 3 indices.\n"
              "c.obj Mesh N does not contain any normals");
        check("# only words, but many of them\n", 0, "c.obj does not contain any meshes");
        check("v", 0, "c.obj Could not read file. OBJ-file is too small.");
    }

    void vertexLimits()
    {
        QByteArray obj;
        for (int i = 0; i < 65536; ++i)
            obj += "v " + QByteArray::number(i) + " 0 " + QByteArray::number(i % 7) + "\n";
        for (int i = 1; i + 2 <= 65536; i += 2) {
            const auto n = [i](int more) { return QByteArray::number(i + more) + ' '; };
            obj += "f " + n(0) + n(1) + n(2) + '\n';
        }
        obj += "f 65535 65536 1\n";
        const QString path = m_folder.put("big.obj", obj);
        importSkinned(path);
        QCOMPARE(lines(LogSeverity::Error),
                 QStringList(QStringLiteral(
                     "big.obj has 65536 vertices. A model of this kind can hold no more than 65535.")));
        importStatic(path);
        QCOMPARE(lines(LogSeverity::Error), QStringList());
        QCOMPARE(m_static.vertices.size(), size_t(65536));
        // The last index is 65535, and still means the last vertex.
        const std::vector<quint16> &indexes = m_static.surfaces.at(0).triangleIndexes;
        const quint16 last = *std::max_element(indexes.begin(), indexes.end());
        QCOMPARE(int(last), 65535);
    }

    void realFiles()
    {
        SKIP_WITHOUT_SHARED("models");
        // `twice` is the number of nodes that bear the name of a bone, so that the import fails.
        const auto check = [this](const char *path, size_t bones, size_t animations, int frames, int twice) {
            importSkinned(TestSupport::shared(QStringLiteral("models/") + path));
            const QStringList errors = lines(LogSeverity::Error);
            QCOMPARE(errors.filter(QRegularExpression("^Node .* already exists\\.$")).size(), twice);
            QCOMPARE(errors.size(), twice);
            QCOMPARE(m_mesh.nodes.size(), bones);
            // The bones are listed depth first.
            for (size_t i = 0; i < bones; ++i) {
                const std::vector<quint16> &children = m_mesh.nodes[i].childNodes;
                QVERIFY(children.empty() || children.front() == i + 1);
                for (const quint16 child : children)
                    QVERIFY(child < bones && (twice || m_mesh.nodes[child].parentNode == i));
            }
            QCOMPARE(m_anim.blocks.size(), animations);
            int all = 0;
            for (const AnimBlock &block : m_anim.blocks)
                all += block.frameCount();
            QCOMPARE(all, frames);
        };
        // Nodes 2 to 25 of the file, below _rootJoint, the child of the scene's root. 3.4166667, 0.7083333
        // and 1.1583333 seconds, in whole milliseconds, plus one each.
        check("gltf_fox/Fox.gltf", 24, 3, 3417 + 709 + 1159, 0);
        // Nodes 0 to 49 hang on "root": 41 joints, five things in the left hand, two in the right, a helmet
        // and a cape.
        check("glb_knight/Knight.glb", 50, 76, 91452, 0);
        // The file's 73 models are RobotArmature with 70 below it and two hands beside it. The stop times of
        // its animation stacks are in twenty-fourths of a second.
        const int frames = 14 + 80 + 23 + 80 + 17 + 40 + 20 + 23 + 10 + 10 + 38 + 23 + 20 + 44 + 40;
        check("fbx_bin_robot/Robot.fbx", 71, 14, frames, 8);
    }

private:
    /// Imports the file; `textures` and `lines` tell the rest.
    void importSkinned(const QString &path, quint32 moreFlags = ImportFlags::GenerateNormals)
    {
        m_mesh = {};
        m_anim = {};
        m_textures.clear();
        m_messages = {};
        importSkinnedMesh(path, m_kmatPath, ImportFlags::SkinnedMesh | moreFlags, m_textures, m_mesh, m_anim,
                          m_messages);
    }

    void importStatic(const QString &path, quint32 moreFlags = ImportFlags::GenerateNormals)
    {
        m_textures.clear();
        m_messages = {};
        m_static =
            importStaticMesh(path, m_kmatPath, ImportFlags::StaticMesh | moreFlags, m_textures, m_messages);
    }

    QStringList lines(LogSeverity severity) const
    {
        QStringList texts;
        for (const ImportMessage &line : m_messages.lines) {
            if (line.severity == severity)
                texts += QString(line.text).remove(m_folder.path() + QLatin1Char('/'));
        }
        return texts;
    }

    const TestFolder m_folder{};
    QString m_kmatPath = QStringLiteral("materials/mat_x.kmat");
    SkinnedMesh m_mesh;
    AnimFile m_anim;
    StaticMesh m_static;
    QStringList m_textures;
    ImportMessages m_messages;
};

QTEST_GUILESS_MAIN(tst_sceneimport)
#include "tst_sceneimport.moc"
