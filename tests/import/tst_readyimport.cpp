// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfExport.h"
#include "HandScene.h"
#include "NameTables.h"
#include "ReadyImport.h"
#include "RigGltf.h"
#include "SceneParts.h"
#include "SmallGltf.h"
#include "TestSupport.h"

#include <QImage>

/// Foreign scenes become what the game can pose and draw.
class tst_readyimport : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_choices = {}; }

    void bonesAndClips()
    {
        const SmallGltf::Channel turn{
            2, true, {{0, {0, 0, 0, 1}}, {400, {half, 0, 0, half}}, {1000, {0, 0, 0, -1}}}};
        const SmallGltf::Channel shift{2, false, {{500, {0, 0, 0}}, {1016, {0, 0, 50}}}};
        importSkinned(m_folder.put(
            "rig.gltf", SmallGltf().file({{"turn", {turn}},
                                          {"walk [3]", {shift}},
                                          {"pose", {{1, false, {{0, {9, 2, 3}}}}}},
                                          {"rest", {{1, false, {{0, {1, 2, 3}}}}}},
                                          {"again [3]", {turn}},
                                          {"[0]", {{2, true, turn.keys}, {3, true, turn.keys}}}})));
        QCOMPARE(lines(LogSeverity::Error), QStringList());
        QCOMPARE(m_mesh.nodes.size(), size_t(3));
        QCOMPARE(m_mesh.nodes[0].childNodes, (std::vector<quint16>{1, 2}));
        QCOMPARE(int(m_mesh.nodes[2].parentNode), 0);
        QCOMPARE(m_names.bones, (QHash<int, QString>{{0, "hips"}, {1, "arm"}, {2, "tail"}}));
        QCOMPARE(boneSymbolName(m_mesh, 0), QStringLiteral("Left Pelvis"));

        QCOMPARE(m_anim.blocks.size(), size_t(6));
        const AnimBlock &turned = m_anim.blocks[0];
        // hips at (1, 2, 3) upright; the tail's turn about z stays, its size goes.
        QVERIFY(isClose(turned.nodes[0].initialPosition, {1, -3, 2}));
        QVERIFY(isClose(turned.nodes[0].initialRotation.toVector3D(), {half, 0, 0}));
        QVERIFY(isClose(turned.nodes[2].initialRotation.toVector3D(), {0, 0, half}));
        QCOMPARE(turned.frameCount(), 31);
        QCOMPARE(turned.speed, 30.0f);
        QCOMPARE(int(turned.blendLength), 5);
        QCOMPARE(int(turned.blendEnd), 30);
        QCOMPARE(int(turned.loopFrame), 0); // back where it began
        QCOMPARE(turned.translations.trackCount(), 0);
        QCOMPARE(turned.rotations.trackCount(), 1);
        QCOMPARE(int(turned.nodes[0].rotationIndex), 0xFFFF);
        QCOMPARE(int(turned.nodes[1].rotationIndex), 0);
        // The last key's sign is that of the keys before.
        QVERIFY(isClose(turned.rotations.at(0, 12).toVector3D(), {half, 0, 0}));
        QVERIFY(turned.rotations.at(0, 30).w() > 0.99f);
        const AnimBlock &walk = m_anim.blocks[1];
        QCOMPARE(walk.frameCount(), 16); // from its first key; 15.48 frames are 15 and one
        QVERIFY(isClose(walk.translations.at(0, 0), {}));
        QCOMPARE(int(walk.loopFrame), 0xFFFF);
        // A block of one frame shows its initial pose, so a pose takes two; the rest pose takes one.
        QCOMPARE(m_anim.blocks[2].frameCount(), 2);
        QVERIFY(isClose(m_anim.blocks[2].translations.at(0, 0), {9, -3, 2}));
        QCOMPARE(m_anim.blocks[3].frameCount(), 1);
        QCOMPARE(m_anim.blocks[3].translations.trackCount(), 0);
        QCOMPARE(m_anim.blocks[5].rotations.trackCount(), 1); // arm and tail turn alike
        QCOMPARE(int(m_anim.blocks[5].nodes[2].rotationIndex), 0);
        QList<int> ids;
        for (const AnimBlock &block : m_anim.blocks)
            ids += block.animId;
        QCOMPARE(ids, (QList<int>{1, 3, 2, 4, 5, 0}));
        QCOMPARE(m_names.animations.value(3), QStringLiteral("walk"));
        QVERIFY(m_anim.refusal().isEmpty() && m_mesh.refusal().isEmpty());

        m_choices.allClips = false;
        m_choices.clips = {{1, ReadyClip::Loop::Always}, {9}, {0, ReadyClip::Loop::Never}};
        m_choices.rate = 0.0;
        m_choices.scale = 10.0f;
        importSkinned(m_folder.path("rig.gltf"));
        QVERIFY(lines(LogSeverity::Warning).contains("rig.gltf has no animation 9"));
        QCOMPARE(m_anim.blocks.size(), size_t(2));
        QCOMPARE(int(m_anim.blocks[0].loopFrame), 0);
        QCOMPARE(int(m_anim.blocks[1].loopFrame), 0xFFFF);
        QVERIFY(isClose(m_anim.blocks[0].nodes[0].initialPosition, {10, -30, 20}));
        QCOMPARE(m_mesh.nodes.size(), size_t(3)); // bones depend on the file, not on what is taken
        m_choices.isZUp = true;
        importSkinned(m_folder.path("rig.gltf"));
        QVERIFY(isClose(m_anim.blocks[0].nodes[0].initialPosition, {10, 20, 30}));
        QVERIFY(isClose(m_anim.blocks[0].nodes[0].initialRotation.toVector3D(), {}));
        m_choices.isZUp = false;

        // Without any, the rest pose stands in a block: nothing else holds it.
        m_choices.clips.clear();
        importSkinned(m_folder.path("rig.gltf"));
        QCOMPARE(m_anim.blocks.size(), size_t(1));
        QCOMPARE(m_anim.blocks[0].frameCount(), 1);
        QVERIFY(isClose(m_anim.blocks[0].nodes[0].initialPosition, {10, -30, 20}));
    }

    void weightsInWholeNumbers()
    {
        // Our own files have them; the reading library would bind all to the first bone.
        SkinnedMesh made;
        made.nodes.resize(2);
        made.nodes[0].childNodes = {1};
        made.surfaces.push_back({QStringLiteral("_white"), {0, 1, 2}});
        made.vertices.resize(3);
        for (int i = 0; i < 3; ++i) {
            made.vertices[size_t(i)].position = QVector3D(float(i), 0, float(i * i));
            made.vertices[size_t(i)].normal = QVector3D(0, 1, 0);
            made.vertices[size_t(i)].nodeIndex = quint16(i % 2);
        }
        ImportMessages messages;
        importSkinned(
            m_folder.put("ours.glb", exportGltf(made, nullptr, {}, {"ours", {}, {}, {}}, messages).glb()));
        QCOMPARE(lines(LogSeverity::Error), QStringList());
        QCOMPARE(m_mesh.vertices.size(), size_t(3));
        for (const SkinnedMeshVertex &vertex : m_mesh.vertices) {
            QCOMPARE(m_names.bones.value(vertex.nodeIndex),
                     QStringLiteral("bone_00%1").arg(vertex.position.x() == 1.0f ? 1 : 0));
            QVERIFY(isClose(vertex.normal, {0, 1, 0}));
        }
    }

    void endlessClips()
    {
        const QVector<SmallGltf::Key> long_{{0, {0, 0, 0, 1}}, {1e9f, {half, 0, 0, half}}};
        importSkinned(m_folder.put("long.gltf", SmallGltf().file({{"a", {{2, true, long_}}}})));
        QCOMPARE(m_anim.blocks.at(0).frameCount(), 65535);
        QCOMPARE(lines(LogSeverity::Warning).filter("Animation 0 was cut to 65535 frames").size(), 1);
        QVERIFY(m_anim.refusal().isEmpty());
    }

    void upright()
    {
        // A wedge before the origin, its front face counter-clockwise seen from +z.
        const QString path =
            m_folder.put("wedge.obj", "v 0 0 1\nv 2 0 1\nv 0 4 1\nvt 0.25 0.75\nf 1/1 2/1 3/1\nl 1 2\np 3\n");
        const StaticMesh rigid = importStatic(path);
        QCOMPARE(lines(LogSeverity::Warning).filter("2 points and lines were left out").size(), 1);
        importSkinned(path);
        QCOMPARE(m_mesh.nodes.size(), size_t(1)); // for the vertices to be on
        QVERIFY(m_anim.blocks.empty());
        const auto check = [](const auto &mesh) {
            QCOMPARE(mesh.bbMin, QVector3D(0, -1, 0));
            QCOMPARE(mesh.bbMax, QVector3D(2, -1, 4));
            QCOMPARE(mesh.vertices.size(), size_t(3));
            QCOMPARE(mesh.vertices[0].uv, QVector2D(0.25f, 0.75f));
            QCOMPARE(mesh.vertices[0].normal, QVector3D(0, -1, 0));
            std::array<QVector3D, 3> corners;
            for (size_t i = 0; i < 3; ++i)
                corners[i] = mesh.vertices[mesh.surfaces.at(0).triangleIndexes.at(i)].position;
            // Clockwise from the front, which is where the normal points.
            QVERIFY(QVector3D::crossProduct(corners[1] - corners[0], corners[2] - corners[0]).y() > 0.0f);
        };
        check(rigid);
        check(m_mesh);
        m_choices.isZUp = true;
        const StaticMesh lying = importStatic(
            m_folder.put("z.obj", "v 0 -1 0\nv 2 -1 0\nv 0 -1 4\nvt 0.25 0.75\nf 1/1 2/1 3/1\n"));
        check(lying); // the same wedge, as programs whose z is up have it
        m_choices.isZUp = false;
        QCOMPARE(m_mesh.nodes[0].bbMax, m_mesh.bbMax);

        importSkinned(m_folder.put("line.obj", "v 0 0 1\nv 2 0 1\nv 2 1 1\nl 1 2\nl 2 3\n"));
        QCOMPARE(lines(LogSeverity::Error), QStringList("line.obj does not contain any triangles"));
    }

    void instancesAndMirrors()
    {
        // Two nodes show one mesh, one of them in a mirror, below a bone and beside it.
        HandScene made;
        aiNode *hips = made.node("hips");
        made.node("left", hips, true);
        aiNode *right = made.node("right", nullptr, true);
        right->mTransformation.a1 = -2.0f;
        auto *mesh = new aiMesh;
        made.scene.mNumMeshes = 1;
        made.scene.mMeshes = new aiMesh *[1] { mesh };
        const SceneNodes nodes(made.scene);
        const std::vector<bool> all(size_t(nodes.count()), true);
        const SceneParts parts(made.scene, nodes,
                               nodes.worldPlaces(nodes.restPlaces(), all, SceneNodes::toGame({})));
        QCOMPARE(parts.parts().size(), size_t(2));
        QVERIFY(Matrix3(parts.parts()[1].movers[0].place).Determinant() < 0.0);
        const Vector3 normal = normalMatrix(parts.parts()[1].movers[0].place) * Vector3(1, 0, 0);
        QVERIFY(normal.x < 0.0 && std::abs(normal.y) < 1e-9);
        QVERIFY(SceneParts::bareNodes(made.scene, nodes) == HandScene::marks(nodes, {"left", "right"}));
    }

    void materialsAndTextures()
    {
        QImage red(4, 4, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(m_folder.path("Rote Wand.jpg")));
        QVERIFY(red.save(m_folder.path("steel.png")));
        const QByteArray blue = QByteArray::fromHex("000002000000000000000000010001001800ff0000");
        m_folder.put("tarn.tga", blue);
        m_folder.put("called.png", blue);
        QVERIFY(QImage(9000, 9000, QImage::Format_Mono).save(m_folder.path("huge.bmp")));
        m_folder.put(
            "m.mtl",
            "newmtl a\nmap_Kd C:\\old\\disk\\Rote Wand.jpg\nnewmtl t\nmap_Kd tarn.tga\n"
            "newmtl b\nKd 0 0.5 0\nnewmtl c\nKd 0 0.5 0\n" // differ by their names only
            "newmtl \xD0\xBA\xD0\xBE\xD1\x82\nmap_Kd steel.png\nnewmtl snow_white\nmap_Kd steel.png\n"
            "newmtl plain\nKd 1 1 1\nnewmtl unused\nKd 1 0 0\nnewmtl gone\nKd 1 1 1\nmap_Kd gone.png\n"
            "newmtl d\nmap_Kd called.png\nnewmtl e\nKd 1 1 1\nmap_Kd huge.bmp\n");
        QByteArray obj = "mtllib m.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\nvt 0 0\n";
        for (const char *name :
             {"a", "t", "b", "c", "d", "e", "\xD0\xBA\xD0\xBE\xD1\x82", "snow_white", "plain", "gone"})
            obj += QByteArray("usemtl ") + name + "\nf 1/1 2/1 3/1\n";
        const StaticMesh mesh = importStatic(m_folder.put("two words.obj", obj));
        QStringList names;
        for (const StaticMeshSurface &surface : mesh.surfaces)
            names += surface.materialPath.section('/', -1);
        names.sort();
        // Material files end a value at a blank, and a name in "_white" says that there is no texture.
        QCOMPARE(names, QStringList({"___", "a", "b", "c", "d", "e_white", "gone_white", "plain_white",
                                     "snow_white_1", "t"}));
        QStringList files;
        for (const QString &texture : m_textures) {
            files += QFileInfo(texture).fileName();
            QVERIFY(!QImage(texture).isNull());
        }
        files.sort();
        QCOMPARE(files, QStringList({"Rote_Wand.png", "called.png", "steel.png", "steel.png", "tarn.png",
                                     "two_words_b.png", "two_words_c.png"}));
        QVERIFY(m_textures.contains(m_folder.path("steel.png"))); // as it is
        for (const char *converted : {"job/tarn.png", "job/called.png"})
            QCOMPARE(QImage(m_folder.path(converted)).pixelColor(0, 0), QColor(Qt::blue));
        QCOMPARE(QImage(m_folder.path("job/two_words_b.png")).pixelColor(0, 0), QColor(0, 128, 0));
        QCOMPARE(lines(LogSeverity::Warning),
                 QStringList({"two words.obj Material 'gone': its texture 'gone.png' was not found",
                              "two words.obj Material 'e': its texture 'huge.bmp' is larger than 67 million "
                              "pixels, and is left out"}));

        // A name longer than a file's may be, and a folder that cannot be made.
        const QByteArray name(300, 'n');
        const QByteArray triangle = "v 0 0 0\nv 1 0 0\nv 0 1 0\nusemtl " + name + "\nf 1 2 3\n";
        m_folder.put("l.mtl", "newmtl " + name + "\nKd 0 0 1\n");
        const QString longer = m_folder.put("l.obj", "mtllib l.mtl\n" + triangle);
        (void)importStatic(longer);
        QCOMPARE(m_textures.size(), 1);
        QVERIFY(QDir(m_folder.path("job")).removeRecursively());
        m_folder.put("job", "a file");
        (void)importStatic(longer);
        QCOMPARE(m_textures, QStringList());
        QCOMPARE(lines(LogSeverity::Warning).filter("could not be written").size(), 1);
        QVERIFY(QFile::remove(m_folder.path("job")));
    }

    void extraBonesThatAreNotMade()
    {
        m_choices.extraBones = true;
        const QString rig =
            m_folder.put("still.gltf", SmallGltf().file({{"a", {{1, false, {{0, {9, 2, 3}}}}}}}));
        importSkinned(rig);
        QCOMPARE(lines(LogSeverity::Info)
                     .filter("No extra bones are needed: no vertex is farther than 0.0 %")
                     .size(),
                 1);
        m_choices.allClips = false;
        importSkinned(rig);
        QCOMPARE(lines(LogSeverity::Info).filter("No extra bones were made: no animation was taken").size(),
                 1);

        // As many bones as can be posed, every other of which turns, and vertices between two of them.
        Rig crowd;
        Rig::Mesh &mesh = crowd.meshes.emplace_back();
        Rig::Clip &clip = crowd.clips.emplace_back();
        for (int b = 0; b < 128; ++b) {
            crowd.nodes.push_back({"bone" + QByteArray::number(b), b == 0 ? -1 : 0, {}, {}, {1, 1, 1}});
            crowd.joints.push_back(b);
            crowd.binds.emplace_back();
            if (b % 2 == 1)
                clip.channels[{b, "rotation"}] = {{0, {0, 0, 0, 1}}, {1, {0, 0, half, half}}};
        }
        crowd.nodes.push_back({"skin", 0, {}, {}, {1, 1, 1}, 0, true});
        for (int v = 0; v < 129; ++v)
            mesh.push_back({QVector3D(float(v), float(v % 3), 0),
                            {0, 0, 1},
                            {},
                            {quint16(v % 128), quint16((v + 1) % 128)},
                            {0.6f, 0.4f}});
        m_choices.allClips = true;
        importSkinned(m_folder.put("crowd.gltf", crowd.file()));
        QCOMPARE(m_mesh.nodes.size(), size_t(128));
        QCOMPARE(lines(LogSeverity::Warning).filter("There is no room for more extra bones").size(), 1);
    }

    void realRigs()
    {
        SKIP_WITHOUT_SHARED("models");
        struct Row
        {
            const char *path;
            size_t bones, surfaces;
            int frames, merged;
        };
        const Row rows[] = {{"gltf_fox/Fox.gltf", 24, 1, 104 + 22 + 36, 0},
                            {"glb_kenney_character/character.glb", 7, 1, 4 + 21 + 14 + 16, 0},
                            {"mdl_hl1_man/man.mdl", 7, 3, 36, 0},
                            {"bvh_212bones/benchmark.bvh", 128, 1, 2, 1},
                            {"fbx_bin_robot/Robot.fbx", 44, 3, 601, 0}};
        for (const Row &row : rows) {
            importSkinned(TestSupport::shared(QStringLiteral("models/") + row.path));
            QCOMPARE(lines(LogSeverity::Error), QStringList());
            QCOMPARE(m_mesh.nodes.size(), row.bones);
            QCOMPARE(m_mesh.surfaces.size(), row.surfaces);
            QCOMPARE(lines(LogSeverity::Warning).filter("went with their parents").size(), row.merged);
            int frames = 0;
            for (const AnimBlock &block : m_anim.blocks)
                frames += block.frameCount();
            QCOMPARE(frames, row.frames);
        }
        // The man stands: his head is above his feet, though the library lists his bones flat.
        importSkinned(TestSupport::shared("models/mdl_hl1_man/man.mdl"));
        QVERIFY(m_mesh.bbMin.z() > -0.1f && m_mesh.bbMax.z() > 9.0f);
    }

private:
    ReadySource source(const QString &path) const
    {
        return {path, m_kmatPath, m_folder.path("job"), m_choices};
    }

    void importSkinned(const QString &path)
    {
        m_mesh = {};
        m_anim = {};
        m_names = {};
        m_textures.clear();
        m_messages = {};
        importReadySkinnedMesh(source(path), m_textures, m_mesh, m_anim, m_names, m_messages);
    }

    StaticMesh importStatic(const QString &path)
    {
        m_textures.clear();
        m_messages = {};
        return importReadyStaticMesh(source(path), m_textures, m_messages);
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
    const QString m_kmatPath = QStringLiteral("materials/mat_x.kmat");
    ReadyChoices m_choices;
    SkinnedMesh m_mesh;
    AnimFile m_anim;
    ModelNames m_names;
    QStringList m_textures;
    ImportMessages m_messages;
};

QTEST_GUILESS_MAIN(tst_readyimport)
#include "tst_readyimport.moc"
