// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportFlags.h"
#include "SceneImport.h"
#include "SmallGltf.h"
#include "TestSupport.h"

#include <algorithm>
#include <cmath>

/// Foreign scenes become our records.
class tst_sceneimport : public QObject
{
    Q_OBJECT

private slots:
    void skeleton();
    void animations();
    void noBones();
    void surfacesAndTextures();
    void complaints_data();
    void complaints();
    void vertexLimits();
    void fox();
    void knight();
    void robot();

private:
    /// Writes the file and imports it; `textures` and `lines` tell the rest.
    void importSkinned(const QString &path, quint32 moreFlags = ImportFlags::GenerateNormals);
    void importStatic(const QString &path, quint32 moreFlags = ImportFlags::GenerateNormals);
    QString write(const char *name, const QByteArray &bytes);
    QStringList lines(LogSeverity severity) const;

    QTemporaryDir m_folder;
    QString m_kmatPath = QStringLiteral("materials/mat_x.kmat");
    SkinnedMesh m_mesh;
    AnimFile m_anim;
    StaticMesh m_static;
    QStringList m_textures;
    ImportMessages m_messages;
};

namespace {
const QByteArray triangle = "v 0 0 0\nv 1 0 0\nv 0 1 0\nvt 0 0\n";

bool isClose(const QVector4D &a, const QVector4D &b)
{
    return (a - b).length() < 1e-5f;
}
} // namespace

QString tst_sceneimport::write(const char *name, const QByteArray &bytes)
{
    const QString path = m_folder.filePath(QLatin1String(name));
    TestSupport::writeFile(path, bytes);
    return path;
}

void tst_sceneimport::importSkinned(const QString &path, quint32 moreFlags)
{
    m_mesh = {};
    m_anim = {};
    m_textures.clear();
    m_messages = {};
    importSkinnedMesh(path, m_kmatPath, ImportFlags::SkinnedMesh | moreFlags, m_textures, m_mesh, m_anim,
                      m_messages);
}

void tst_sceneimport::importStatic(const QString &path, quint32 moreFlags)
{
    m_textures.clear();
    m_messages = {};
    m_static =
        importStaticMesh(path, m_kmatPath, ImportFlags::StaticMesh | moreFlags, m_textures, m_messages);
}

QStringList tst_sceneimport::lines(LogSeverity severity) const
{
    QStringList texts;
    for (const ImportMessage &line : m_messages.lines) {
        if (line.severity == severity)
            texts += QString(line.text).remove(m_folder.path() + QLatin1Char('/'));
    }
    return texts;
}

void tst_sceneimport::skeleton()
{
    importSkinned(write("small.gltf", SmallGltf().file({})));
    QCOMPARE(lines(LogSeverity::Error), QStringList());
    QVERIFY(lines(LogSeverity::Warning)
                .contains(QStringLiteral("small.gltf 1 vertices are not assigned to a bone")));
    QCOMPARE(
        lines(LogSeverity::Info),
        QStringList(QStringLiteral("3 bones, 1 surface, 3 vertices, 1 triangle, 0 animations, 0 frames")));
    QCOMPARE(m_mesh.nodes.size(), size_t(3));
    QCOMPARE(m_mesh.nodes[0].childNodes, (std::vector<quint16>{1, 2}));
    QCOMPARE(int(m_mesh.nodes[0].parentNode), 255);
    QCOMPARE(int(m_mesh.nodes[2].parentNode), 0);
    QVERIFY(m_mesh.nodes[1].childNodes.empty());
    QCOMPARE(m_mesh.nodes[1].damageScale, 1.0f);
    // Half a weight is not enough for the third corner.
    for (const SkinnedMeshVertex &vertex : m_mesh.vertices)
        QCOMPARE(int(vertex.nodeIndex), vertex.position.x() == 10.0f ? 1 : 0);
    QCOMPARE(m_mesh.bbMin, QVector3D(0, 0, -30));
    QCOMPARE(m_mesh.bbMax, QVector3D(10, 20, 0));
    QVERIFY(m_anim.blocks.empty());
}

void tst_sceneimport::animations()
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
    importSkinned(write("anim.gltf", SmallGltf().file(made)));
    QCOMPARE(lines(LogSeverity::Error), QStringList());
    QCOMPARE(m_anim.blocks.size(), size_t(5));
    const AnimBlock &walk = m_anim.blocks[0];
    QCOMPARE(walk.animId, 12);
    QCOMPARE(int(walk.blendLength), 5);
    QCOMPARE(walk.speed, 1000.0f);
    QCOMPARE(walk.frameScale, 1.0f);
    QCOMPARE(walk.frameCount(), 11);
    QCOMPARE(walk.nodes.size(), size_t(3));
    QCOMPARE(walk.translations.trackCount(), 1);
    QCOMPARE(int(walk.nodes[0].translationIndex), 0);
    QCOMPARE(int(walk.nodes[0].rotationIndex), 0);
    QCOMPARE(int(walk.nodes[1].translationIndex), 0xFFFF);
    QCOMPARE(int(walk.nodes[2].rotationIndex), 0xFFFF);
    QCOMPARE(walk.nodes[1].initialRotation, QVector4D(0, 0, 0, 1));
    // (2 - 1, 4 - 3, 8 - 2) and (0 - 1, 0 - 3, 0 - 2), times 256; the last key goes on.
    QCOMPARE(walk.translations.at(0, 0), QVector3D(256, 256, 1536));
    QCOMPARE(walk.translations.at(0, 1), QVector3D(-256, -768, -512));
    QCOMPARE(walk.translations.at(0, 10), QVector3D(-256, -768, -512));
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
    // The tail's rest is a quarter turn about z, n = (0, 0, h, h), its key one about x, k = (h, 0, 0, h),
    // with h the root of one half. The inverse of n times k is (1, -1, -1, 1) / 2, and so is that with y and
    // z exchanged; k times the inverse of n would be (1, 1, -1, 1) / 2.
    QVERIFY(isClose(m_anim.blocks[3].rotations.at(0, 0), {0.5f, -0.5f, -0.5f, 0.5f}));
    QCOMPARE(m_anim.blocks[4].frameCount(), 65535);
    QVERIFY(lines(LogSeverity::Warning)
                .contains(QStringLiteral("anim.gltf Animation 4 was cut to 65535 frames")));
}

void tst_sceneimport::noBones()
{
    importSkinned(write("flat.obj", triangle + "f 1/1 2/1 3/1\n"));
    QCOMPARE(lines(LogSeverity::Info).value(0),
             QStringLiteral("flat.obj has no bones. Creating a default bone."));
    QCOMPARE(m_mesh.nodes.size(), size_t(1));
    QCOMPARE(int(m_mesh.nodes[0].parentNode), 255);
    QVERIFY(!m_messages.hasError());
    QVERIFY(m_mesh.refusal().isEmpty());
}

void tst_sceneimport::surfacesAndTextures()
{
    write("m.mtl", "newmtl a\nKd 1 0 0\nmap_Kd tex/steel.v2.jpeg\n"
                   "newmtl b\nKd 0 1 0\n"
                   "newmtl c\nKd 0 0 1\nmap_Kd tex/steel.v2.jpeg\n"
                   "newmtl d\nKd 0 1 1\nmap_Kd wood.tga\n");
    const QString path = write("m.obj", "mtllib m.mtl\n" + triangle +
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
        QVERIFY2(names[i].startsWith(QStringLiteral("materials/mat_x/surf_%1").arg(i)), qPrintable(names[i]));
    QCOMPARE(m_textures, QStringList({m_folder.filePath(QStringLiteral("tex/steel.v2.png")),
                                      m_folder.filePath(QStringLiteral("wood.png"))}));
    // The two materials of one texture share a surface.
    QCOMPARE(m_static.surfaces[0].triangleIndexes.size(), size_t(6));

    m_kmatPath = QStringLiteral("mat_x.kmat");
    importStatic(path);
    QVERIFY(m_static.surfaces[0].materialPath.startsWith(QLatin1String("mat_x/surf_0")));
    m_kmatPath = QStringLiteral("materials/mat_x.kmat");
}

void tst_sceneimport::complaints_data()
{
    QTest::addColumn<QByteArray>("obj");
    QTest::addColumn<quint32>("flags");
    QTest::addColumn<QStringList>("errors");
    QTest::newRow("whole") << triangle + "f 1/1 2/1 3/1\n" << ImportFlags::GenerateNormals << QStringList();
    QTest::newRow("source normals go")
        << triangle + "vn 0 0 1\nf 1/1/1 2/1/1 3/1/1\n"
        << quint32(0) << QStringList(QStringLiteral("c.obj Mesh 0 does not contain any normals"));
    QTest::newRow("stray edges") << triangle + "f 1/1 2/1 3/1\nl 1 2\nl 2 3\n"
                                 << ImportFlags::GenerateNormals
                                 << QStringList{
                                        QStringLiteral("c.obj Mesh 1 does not contain any normals"),
                                        QStringLiteral("c.obj Mesh 1 contains more than 3 indices per "
                                                       "face. A face must contain only 3 indices.")};
    QTest::newRow("nothing") << QByteArray("# only words, but many of them\n") << quint32(0)
                             << QStringList(QStringLiteral("c.obj does not contain any meshes"));
    QTest::newRow("no model") << QByteArray("v") << quint32(0)
                              << QStringList(
                                     QStringLiteral("c.obj Could not read file. OBJ-file is too small."));
}

void tst_sceneimport::complaints()
{
    QFETCH(QByteArray, obj);
    QFETCH(quint32, flags);
    QFETCH(QStringList, errors);
    importSkinned(write("c.obj", obj), flags);
    QStringList found = lines(LogSeverity::Error);
    std::sort(found.begin(), found.end());
    std::sort(errors.begin(), errors.end());
    // Points and lines come before or after the triangles as the library likes.
    found.replaceInStrings(QStringLiteral("Mesh 0 "), QStringLiteral("Mesh N "));
    found.replaceInStrings(QStringLiteral("Mesh 1 "), QStringLiteral("Mesh N "));
    errors.replaceInStrings(QStringLiteral("Mesh 0 "), QStringLiteral("Mesh N "));
    errors.replaceInStrings(QStringLiteral("Mesh 1 "), QStringLiteral("Mesh N "));
    QCOMPARE(found, errors);
}

void tst_sceneimport::vertexLimits()
{
    QByteArray obj;
    for (int i = 0; i < 65536; ++i)
        obj += "v " + QByteArray::number(i) + " 0 " + QByteArray::number(i % 7) + "\n";
    for (int i = 1; i + 2 <= 65536; i += 2) {
        const auto n = [i](int more) { return QByteArray::number(i + more) + ' '; };
        obj += "f " + n(0) + n(1) + n(2) + '\n';
    }
    obj += "f 65535 65536 1\n";
    const QString path = write("big.obj", obj);
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

void tst_sceneimport::fox()
{
    SKIP_WITHOUT_SHARED("models/gltf_fox");
    importSkinned(TestSupport::shared(QStringLiteral("models/gltf_fox/Fox.gltf")));
    QCOMPARE(lines(LogSeverity::Error), QStringList());
    // Nodes 2 to 25 of the file, below _rootJoint, the child of the scene's root.
    QCOMPARE(m_mesh.nodes.size(), size_t(24));
    QCOMPARE(m_mesh.nodes[0].childNodes, (std::vector<quint16>{1}));
    QCOMPARE(m_mesh.nodes[2].childNodes, (std::vector<quint16>{3, 13, 16, 20})); // b_Hip_01: 5, 15, 18, 22
    QCOMPARE(m_mesh.nodes[4].childNodes, (std::vector<quint16>{5, 7, 10}));      // b_Spine02_03: 7, 9, 12
    QCOMPARE(int(m_mesh.nodes[7].parentNode), 4);
    // 3.4166667, 0.7083333 and 1.1583333 seconds.
    QCOMPARE(m_anim.blocks.size(), size_t(3));
    QCOMPARE(m_anim.blocks[0].frameCount(), 3417);
    QCOMPARE(m_anim.blocks[1].frameCount(), 709);
    QCOMPARE(m_anim.blocks[2].frameCount(), 1159);
    const AnimBlock &survey = m_anim.blocks[0];
    // 20 nodes move. The feet's ends, the root joint and the root are at rest.
    QCOMPARE(survey.translations.trackCount(), 20);
    QCOMPARE(int(survey.nodes[0].translationIndex), 0xFFFF);
    // b_Hip_01 rests at (0, 26.748403549, 42.938171387). Key 0 is (0.0000013, 24.551631927, 41.05862045) and
    // key 1 (0.0000013, 24.551631927, 41.14902496): (24.551631927 - 42.938171387) * 256 = -4706.954,
    // (41.05862045 - 26.748403549) * 256 = 3663.4155, (41.14902496 - 26.748403549) * 256 = 3686.559. The last
    // of its 83 keys is the first again.
    const int hip = survey.nodes[2].translationIndex;
    QCOMPARE(survey.translations.at(hip, 0).y(), -4706.9541f);
    QCOMPARE(survey.translations.at(hip, 0).z(), 3663.4155f);
    QCOMPARE(survey.translations.at(hip, 1).z(), 3686.5591f);
    QCOMPARE(survey.translations.at(hip, 3416), survey.translations.at(hip, 82));
    // b_Spine01_02 rests at (0, 0, -0.5904157638, 0.8070992664); its first key is nearly the same.
    QVERIFY(isClose(survey.rotations.at(survey.nodes[3].rotationIndex, 0), {0, 0, 0, 1}));
    // It has no keys of its own for the place: the library gives it the place of its rest, (12.850601, 0, 0),
    // of which the crossing of y and z leaves nothing.
    QVERIFY(survey.translations.at(survey.nodes[3].translationIndex, 5).length() < 1e-3f);
}

void tst_sceneimport::knight()
{
    SKIP_WITHOUT_SHARED("models/glb_knight");
    importSkinned(TestSupport::shared(QStringLiteral("models/glb_knight/Knight.glb")));
    QCOMPARE(lines(LogSeverity::Error), QStringList());
    // Nodes 0 to 49 of the file hang on "root": 41 joints, five things in the left hand, two in the right,
    // a helmet and a cape.
    QCOMPARE(m_mesh.nodes.size(), size_t(50));
    QCOMPARE(m_mesh.nodes[0].childNodes.size(), size_t(9));
    QCOMPARE(int(m_mesh.nodes[0].childNodes[0]), 1);
    QCOMPARE(m_mesh.nodes[1].childNodes.size(), size_t(3)); // hips: spine and two legs
    QCOMPARE(m_anim.blocks.size(), size_t(76));
    QCOMPARE(m_anim.blocks[0].frameCount(), 1067); // 1.0666667 seconds
    qint64 frames = 0;
    for (const AnimBlock &block : m_anim.blocks)
        frames += block.frameCount();
    QCOMPARE(frames, qint64(91452)); // the sum of the longest times, in whole milliseconds, plus one each
    QCOMPARE(m_textures.size(), 1);  // inside the file, as "*0"
}

void tst_sceneimport::robot()
{
    SKIP_WITHOUT_SHARED("models/fbx_bin_robot");
    importSkinned(TestSupport::shared(QStringLiteral("models/fbx_bin_robot/Robot.fbx")));
    // Eight mesh nodes bear the name of a joint: the import fails, and says of each why.
    QStringList twice;
    for (const char *name :
         {"Foot.L", "Torso", "Head", "Shoulder.L", "Shoulder.R", "LowerLeg.L", "LowerLeg.R", "Foot.R"})
        twice += QStringLiteral("Node %1 already exists.").arg(QLatin1String(name));
    QCOMPARE(lines(LogSeverity::Error), twice);
    // The file's 73 models are RobotArmature with 70 below it and two hands beside it. Its one child, Bone,
    // has five: Foot.L, Body, PoleTarget.L, Foot.R, PoleTarget.R.
    QCOMPARE(m_mesh.nodes.size(), size_t(71));
    QCOMPARE(m_mesh.nodes[0].childNodes, (std::vector<quint16>{1}));
    QCOMPARE(m_mesh.nodes[1].childNodes.size(), size_t(5));
    QCOMPARE(int(m_mesh.nodes[1].parentNode), 0);
    for (size_t i = 0; i < m_mesh.nodes.size(); ++i) {
        for (const quint16 child : m_mesh.nodes[i].childNodes)
            QVERIFY(child > i && child < m_mesh.nodes.size());
    }
    // The stop times of its animation stacks, in twenty-fourths of a second: Dance, Death, Idle, Jump, No,
    // Punch, Running, Sitting, Standing, ThumbsUp, Walking, WalkJump, Wave, Yes.
    const std::vector<int> ticks{80, 23, 80, 17, 40, 20, 23, 10, 10, 38, 23, 20, 44, 40};
    QCOMPARE(m_anim.blocks.size(), ticks.size());
    for (size_t i = 0; i < ticks.size(); ++i)
        QCOMPARE(m_anim.blocks[i].frameCount(), ticks[i] + 1);
    QCOMPARE(m_anim.blocks[0].speed, 24.0f);
    importStatic(TestSupport::shared(QStringLiteral("models/fbx_bin_robot/Robot.fbx")));
    QVERIFY(!m_messages.hasError());
}

QTEST_GUILESS_MAIN(tst_sceneimport)
#include "tst_sceneimport.moc"
