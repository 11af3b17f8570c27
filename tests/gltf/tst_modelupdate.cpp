// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelUpdate.h"
#include "OddRig.h"
#include "OtherProgram.h"
#include "SampleModels.h"
#include "StaticMesh.h"
#include "TestSupport.h"
#include "UpdateRig.h"

using SampleModels::bytesOf;

Q_DECLARE_METATYPE(SkinnedMesh)
Q_DECLARE_METATYPE(AnimFile)
Q_DECLARE_METATYPE(std::function<void(GltfScene &)>)
using MeshCheck = std::function<bool(const SkinnedMesh &, const AnimFile &)>;
Q_DECLARE_METATYPE(MeshCheck)

class tst_ModelUpdate : public QObject
{
    Q_OBJECT

private slots:
    void unedited_data();
    void unedited();
    void staticMeshes();
    void edits_data();
    void edits();
    void clipsComeAndGo();
    void openModelHasChanged();
    void numbersThatAreNone();
    void refusals();
};

void tst_ModelUpdate::unedited_data()
{
    QTest::addColumn<SkinnedMesh>("mesh");
    QTest::addColumn<AnimFile>("anim");
    QTest::newRow("rig") << rig() << clips();
    QTest::newRow("odd") << oddMesh() << oddAnim();
    QTest::newRow("without animations") << rig() << AnimFile();
    for (const QString &path : TestSupport::modelFiles(QStringLiteral("skinnedmesh"))) {
        SkinnedMesh mesh;
        AnimFile anim;
        QString animPath = path;
        animPath.replace("/models/", "/anims/").replace(".skinnedmesh", ".anim");
        QVERIFY(!mesh.read(path));
        if (!anim.read(animPath))
            QTest::newRow(qPrintable(path)) << mesh << anim;
    }
}

void tst_ModelUpdate::unedited()
{
    QFETCH(SkinnedMesh, mesh);
    QFETCH(AnimFile, anim);
    const GltfScene scene = read(exported(mesh, anim));
    // Straight back, and through programs with rates of their own, of which one forgets what it is told.
    for (const float rate : {0.0f, 30.0f, 24.0f, -24.0f}) {
        GltfScene passed = scene;
        if (rate != 0.0f)
            OtherProgram::passThrough(passed, std::abs(rate), rate > 0.0f);
        SkinnedMesh newMesh = mesh;
        AnimFile newAnim = anim;
        UpdateAccount account;
        QString reason;
        QVERIFY2(!updateModel(passed, newMesh, newAnim, account, reason), qPrintable(reason));
        const QByteArray lines = told(account).join('\n').toUtf8();
        QVERIFY2(bytesOf(newMesh) == bytesOf(mesh), lines);
        QVERIFY2(bytesOf(newAnim) == bytesOf(anim), lines);
        QVERIFY2(!account.changesMesh && !account.changesAnim && account.missingBlocks.isEmpty(), lines);
        QCOMPARE(account.lines.size(), rate < 0.0f ? 1 : 0);
    }
}

void tst_ModelUpdate::staticMeshes()
{
    for (const QString &path : TestSupport::modelFiles(QStringLiteral("staticmesh"))) {
        StaticMesh mesh;
        QVERIFY(!mesh.read(path));
        ImportMessages messages;
        GltfScene scene = read(exportGltf(mesh, named("rig"), messages).glb());
        OtherProgram::passThrough(scene, 24.0f);
        UpdateAccount account;
        QString reason;
        StaticMesh updated = mesh;
        QVERIFY2(!updateModel(scene, updated, account, reason), qPrintable(reason));
        QVERIFY2(bytesOf(updated) == bytesOf(mesh), qPrintable(path));
        // The node was moved, and there is a thing that is none of ours.
        scene.nodes[size_t(scene.order.back())].translation = {0.0f, 10.0f, 0.0f};
        scene.nodes.push_back({});
        scene.nodes.back().name = QStringLiteral("Cube");
        scene.nodes.back().mesh = int(scene.meshes.size());
        scene.meshes.push_back({scene.meshes[0][0]});
        scene.meshes.back()[0].material = -1;
        scene.order.push_back(int(scene.nodes.size()) - 1);
        QVERIFY(!updateModel(scene, updated, account, reason));
        QVERIFY(account.changesMesh);
        QCOMPARE(updated.vertices.size(), mesh.vertices.size());
        for (size_t i = 0; i < mesh.surfaces.size(); ++i)
            QVERIFY(updated.surfaces[i].triangleIndexes == mesh.surfaces[i].triangleIndexes);
        QVERIFY((updated.vertices[0].position - mesh.vertices[0].position - QVector3D(0.0f, 0.0f, 10.0f))
                    .length() < 1.0e-3f);
        QCOMPARE(told(account).filter("Cube").size(), 1);
    }
}

void tst_ModelUpdate::edits_data()
{
    using Edit = std::function<void(GltfScene &)>;
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<bool>("keepsAnim");
    QTest::addColumn<MeshCheck>("check");
    const auto row = [](const char *name, const Edit &edit, const QStringList &lines, bool keepsAnim,
                        const MeshCheck &check) {
        QTest::newRow(name) << edit << lines << keepsAnim << check;
    };
    const auto sameTriangles = [](const SkinnedMesh &mesh) {
        return mesh.surfaces[0].triangleIndexes == rig().surfaces[0].triangleIndexes &&
               mesh.surfaces[1].triangleIndexes == rig().surfaces[1].triangleIndexes;
    };

    row(
        "vertices of one bone move",
        [](GltfScene &scene) {
            for (QVector3D &each : scene.meshes[0][1].positions)
                each += {3.0f, 0.0f, 0.0f};
        },
        {"changed Vertices with other values: 4"}, true,
        [=](const SkinnedMesh &mesh, const AnimFile &) {
            return sameTriangles(mesh) && mesh.vertices[0].position == rig().vertices[0].position &&
                   mesh.vertices[4].uv == rig().vertices[4].uv &&
                   mesh.nodes[2].bbMax == rig().nodes[2].bbMax &&
                   mesh.nodes[1].bbMax != rig().nodes[1].bbMax && mesh.bbMax != rig().bbMax;
        });
    row(
        "vertices change their bone",
        [](GltfScene &scene) {
            for (int &joint : scene.meshes[0][1].joints)
                joint = 0;
        },
        {"changed Vertices with other values: 4"}, true,
        [=](const SkinnedMesh &mesh, const AnimFile &) {
            return sameTriangles(mesh) && mesh.vertices[5].nodeIndex == 0 && mesh.vertices[3].nodeIndex == 0;
        });
    row(
        "a triangle goes, one comes",
        [](GltfScene &scene) {
            std::vector<quint32> &first = scene.meshes[0][0].indices;
            first.erase(first.begin(), first.begin() + 3);
            GltfScene::Primitive &other = scene.meshes[0][1];
            other.positions.emplace_back(40.0f, 50.0f, 60.0f);
            other.normals.emplace_back(0.0f, 1.0f, 0.0f);
            other.uvs.emplace_back(0.9f, 0.9f);
            other.joints.push_back(other.joints[0]);
            other.indices.insert(other.indices.end(), {0, 3, 6});
        },
        {"changed Triangles that go: 1", "changed Vertices that go: 1", "new Triangles: 1",
         "new Vertices: 1"},
        true,
        [](const SkinnedMesh &mesh, const AnimFile &) {
            return mesh.surfaces[0].triangleIndexes.size() == 9 &&
                   mesh.surfaces[1].triangleIndexes.size() == 9 &&
                   mesh.vertices[0].position == rig().vertices[1].position;
        });
    row(
        "a key turns",
        [](GltfScene &scene) {
            const int arm = nodeNamed(scene, "bone_002");
            for (GltfScene::Channel &channel : scene.animations[1].channels) {
                if (channel.node == arm && channel.path == GltfScene::Path::Rotation)
                    setKeys(channel, [](std::vector<float> &keys) {
                        const QVector4D other = OtherProgram::parts(
                            OtherProgram::turn(&keys[4 * 5]) * QQuaternion::fromAxisAndAngle(0, 1, 0, 30));
                        for (size_t i = 0; i < 4; ++i)
                            keys[4 * 5 + i] = other[int(i)];
                    });
            }
        },
        {"changed Animation 1 '[40]_Armature': bones that move otherwise: 1"}, false,
        [](const SkinnedMesh &mesh, const AnimFile &anim) {
            // The other bone of the shared track keeps it, and the keys that are the same keep their bits.
            const AnimBlock &nod = anim.blocks[1];
            const int track = nod.nodes[2].rotationIndex;
            return bytesOf(mesh) == bytesOf(rig()) && nod.rotations.trackCount() == 3 && track == 2 &&
                   nod.nodes[1].rotationIndex == 1 &&
                   nod.rotations.at(2, 4) == clips().blocks[1].rotations.at(0, 4) &&
                   nod.rotations.at(2, 5) != clips().blocks[1].rotations.at(0, 5) && nod.loopFrame == 3;
        });
    row(
        "a bone starts elsewhere",
        [](GltfScene &scene) {
            const int arm = nodeNamed(scene, "bone_002");
            QMatrix4x4 moved;
            moved.translate(0.0f, 4.0f, 0.0f);
            scene.nodes[size_t(arm)].translation += {0.0f, 4.0f, 0.0f};
            for (size_t i = 0; i < scene.skins[0].joints.size(); ++i) {
                if (scene.skins[0].joints[i] != arm)
                    continue;
                // On its parent, whose axes are its node's.
                const auto parent =
                    size_t(std::find(scene.skins[0].joints.begin(), scene.skins[0].joints.end(),
                                     scene.nodes[size_t(arm)].parent) -
                           scene.skins[0].joints.begin());
                const QMatrix4x4 local =
                    scene.skins[0].inverseBinds[parent] * scene.skins[0].inverseBinds[i].inverted();
                scene.skins[0].inverseBinds[i] =
                    (scene.skins[0].inverseBinds[parent].inverted() * moved * local).inverted();
            }
            for (GltfScene::Animation &animation : scene.animations) {
                for (GltfScene::Channel &channel : animation.channels) {
                    if (channel.node == arm && channel.path == GltfScene::Path::Translation)
                        setKeys(channel, [](std::vector<float> &keys) {
                            for (size_t i = 1; i < keys.size(); i += 3)
                                keys[i] += 4.0f;
                        });
                }
            }
        },
        {"changed Bones that start elsewhere: 2"}, false,
        [](const SkinnedMesh &, const AnimFile &anim) {
            return (anim.blocks[1].nodes[2].initialPosition - clips().blocks[1].nodes[2].initialPosition)
                           .length() > 3.9f &&
                   anim.blocks[1].nodes[1].initialPosition == clips().blocks[1].nodes[1].initialPosition;
        });
    row(
        "a bone comes",
        [](GltfScene &scene) {
            GltfScene::Node node;
            node.name = QStringLiteral("tail");
            node.parent = nodeNamed(scene, "bone_001");
            node.translation = {1.0f, 2.0f, 3.0f};
            scene.order.push_back(int(scene.nodes.size()));
            scene.nodes.push_back(node);
            GltfScene::Skin &skin = scene.skins[0];
            const auto parent =
                size_t(std::find(skin.joints.begin(), skin.joints.end(), node.parent) - skin.joints.begin());
            QMatrix4x4 moved;
            moved.translate(node.translation);
            skin.joints.push_back(int(scene.nodes.size()) - 1);
            skin.inverseBinds.push_back((skin.inverseBinds[parent].inverted() * moved).inverted());
            for (int &joint : scene.meshes[0][1].joints)
                joint = int(skin.joints.size()) - 1;
            node.name = QStringLiteral("handle"); // which nothing hangs on
            scene.order.push_back(int(scene.nodes.size()));
            scene.nodes.push_back(node);
            skin.joints.push_back(int(scene.nodes.size()) - 1);
            skin.inverseBinds.push_back(skin.inverseBinds.back());
        },
        {"new Bone 3 'tail' on bone 1", "note Bones without vertices, left out: handle"}, false,
        [](const SkinnedMesh &mesh, const AnimFile &anim) {
            return mesh.nodes.size() == 4 && mesh.nodes[3].parentNode == 1 && mesh.nodes[3].name == "tail" &&
                   mesh.nodes[1].childNodes == std::vector<quint16>({2, 3}) &&
                   mesh.vertices[4].nodeIndex == 3 && anim.blocks[0].nodes.size() == 4 &&
                   anim.blocks[0].nodes[3].rotationIndex == 0xFFFF &&
                   qAbs(anim.blocks[0].nodes[3].initialPosition.length() - std::sqrt(14.0f)) < 1.0e-3f;
        });
    row(
        "clips begin before the beginning",
        [](GltfScene &scene) {
            setTimes(scene.animations[0], 1.0f, -3.5f);
            setTimes(scene.animations[1], 1.0f, -0.1f);
        },
        {}, true, [](const SkinnedMesh &, const AnimFile &) { return true; });
    row(
        "a bone is lost, and its clips begin elsewhere",
        [](GltfScene &scene) {
            const int spine = nodeNamed(scene, "bone_001");
            scene.nodes[size_t(spine)].name = QStringLiteral("stick");
            scene.nodes[size_t(spine)].extras = {};
            GltfScene::Skin &skin = scene.skins[0];
            const auto lost = std::find(skin.joints.begin(), skin.joints.end(), spine) - skin.joints.begin();
            skin.joints.erase(skin.joints.begin() + lost);
            skin.inverseBinds.erase(skin.inverseBinds.begin() + lost);
            for (GltfScene::Primitive &primitive : scene.meshes[0]) {
                for (int &joint : primitive.joints)
                    joint = joint == lost ? 0 : joint - (joint > lost ? 1 : 0);
            }
            setTimes(scene.animations[0], 1.0f, -3.5f);
            setTimes(scene.animations[1], 1.0f, -0.1f);
        },
        {"missing Bone 1"}, true, [](const SkinnedMesh &, const AnimFile &) { return true; });
    row(
        "a clip ends early", [](GltfScene &scene) { setTimes(scene.animations[1], 0.125f, 0.0f); },
        {"changed Animation 1 '[40]_Armature': 2 frames, not 9",
         "note Animation 1 '[40]_Armature' ends before what it has: loop frame 3, actions: 1"},
        false,
        [](const SkinnedMesh &, const AnimFile &anim) {
            return anim.blocks[1].loopFrame == 3 && anim.blocks[1].actions.size() == 1;
        });
    row(
        "copies come",
        [](GltfScene &scene) {
            // The copy of the second material stands before it.
            scene.materials.push_back(scene.materials[1]);
            scene.materials[1].name += ".001";
            scene.meshes[0].push_back(scene.meshes[0][1]);
            scene.meshes[0][1].material = int(scene.materials.size()) - 1;
            scene.animations.push_back(scene.animations[1]);
            scene.animations.back().name = "walk [40].001";
        },
        {"new Surface 2: 'materials/mat_rig/cloth.001'", "new Animation 2 'walk [40].001'"}, false,
        [=](const SkinnedMesh &mesh, const AnimFile &anim) {
            return sameTriangles(mesh) && mesh.surfaces[2].triangleIndexes.size() == 6 &&
                   anim.blocks[2].animId == 41 && mesh.animationNames.value(41) == "walk.001";
        });
    row(
        "the hot point moves",
        [](GltfScene &scene) {
            const int point = nodeNamed(scene, "hotpoint_000");
            for (size_t i = 0; i < scene.skins[0].joints.size(); ++i) {
                if (scene.skins[0].joints[i] == point) {
                    QMatrix4x4 bind = scene.skins[0].inverseBinds[i].inverted();
                    bind.translate(0.0f, 2.0f, 0.0f);
                    scene.skins[0].inverseBinds[i] = bind.inverted();
                }
            }
        },
        {"changed Hot point 0: moved on its bone"}, true,
        [](const SkinnedMesh &mesh, const AnimFile &) {
            const SkinnedMeshHotPoint &point = mesh.hotPoints[0];
            return qAbs((point.origin - rig().hotPoints[0].origin).length() - 2.0f) < 1.0e-3f &&
                   point.flags == 5;
        });
}

void tst_ModelUpdate::edits()
{
    QFETCH(std::function<void(GltfScene &)>, edit);
    QFETCH(QStringList, lines);
    QFETCH(bool, keepsAnim);
    QFETCH(MeshCheck, check);
    GltfScene scene = read(exported(rig(), clips()));
    OtherProgram::passThrough(scene, 30.0f);
    edit(scene);
    SkinnedMesh mesh = rig();
    AnimFile anim = clips();
    UpdateAccount account;
    QString reason;
    QVERIFY2(!updateModel(scene, mesh, anim, account, reason), qPrintable(reason));
    const QStringList found = told(account);
    for (const QString &line : lines)
        QVERIFY2(!found.filter(line).isEmpty(), qPrintable(found.join('\n')));
    QCOMPARE(bytesOf(anim) == bytesOf(clips()), keepsAnim);
    QCOMPARE(account.changesAnim, !keepsAnim);
    QVERIFY(check(mesh, anim));
    for (int block = 0; block < 2; ++block) {
        const float worst = distance(scene, size_t(block), mesh, anim, block);
        QVERIFY2(worst < 2.0e-3f, qPrintable(QString::number(double(worst))));
    }
}

void tst_ModelUpdate::clipsComeAndGo()
{
    GltfScene scene = read(exported(rig(), clips()));
    OtherProgram::passThrough(scene, 30.0f);
    // The second one is gone; a copy of the first one, faster, has come; the first one is longer by a frame.
    scene.animations[1] = scene.animations[0];
    scene.animations[1].name = QStringLiteral("dance");
    setTimes(scene.animations[0], 9.0f / 8.0f, 0.0f);
    setTimes(scene.animations[1], 0.5f, 0.0f);
    SkinnedMesh mesh = rig();
    AnimFile anim = clips();
    UpdateAccount account;
    QString reason;
    QVERIFY(!updateModel(scene, mesh, anim, account, reason));
    const QByteArray lines = told(account).join('\n').toUtf8();
    QVERIFY2(
        lines.contains("changed Animation 0 '[12]_Armature': 10 frames, not 9, bones that move otherwise: 3"),
        lines);
    QVERIFY2(lines.contains("missing Animation 1 [40]") &&
                 lines.contains("new Animation 2 'dance': 9 frames"),
             lines);
    QCOMPARE(anim.blocks.size(), size_t(3));
    QVERIFY(anim.blocks[1].rotations.keys() == clips().blocks[1].rotations.keys());
    QCOMPARE(anim.blocks[0].actions.at(0).offset, QVector3D(1.0f, 2.0f, 3.0f));
    QCOMPARE(anim.blocks[0].rotations.frameCount(), 10);
    const AnimBlock &dance = anim.blocks[2];
    QCOMPARE(dance.speed, 60.0f);
    QCOMPARE(dance.animId, 0);
    QCOMPARE(dance.loopFrame, quint16(0xFFFF));
    QCOMPARE(dance.blendEnd, quint16(8));
    QVERIFY(qAbs(dance.frames[8].yawOffset - clips().blocks[0].frames[8].yawOffset) < 1.0e-4f);
    // Bones of the same keys share a track.
    QCOMPARE(dance.translations.trackCount(), 1);
    QCOMPARE(dance.rotations.trackCount(), 1);
    QVERIFY(distance(scene, 0, mesh, anim, 0) < 2.0e-3f);
    QVERIFY(distance(scene, 1, mesh, anim, 2) < 2.0e-3f);
    account.dropMissing(anim);
    QCOMPARE(anim.blocks.size(), size_t(2));
    QCOMPARE(anim.blocks[1].animId, 0);
}

/// Records that were put in, taken out or edited since the export stay what they are.
void tst_ModelUpdate::openModelHasChanged()
{
    const GltfScene scene = read(exported(rig(), clips()));
    SkinnedMesh mesh = rig();
    AnimFile anim = clips();
    anim.blocks.insert(anim.blocks.begin(), blockOf(77, 3, 2));
    anim.blocks[0].nodes = clips().blocks[0].nodes;
    mesh.hotPoints[0].origin = {5.0f, 5.0f, 5.0f};
    mesh.nodes[1].flags = 99;
    const QByteArray before = bytesOf(mesh) + bytesOf(anim);
    UpdateAccount account;
    QString reason;
    QVERIFY(!updateModel(scene, mesh, anim, account, reason));
    QVERIFY2(bytesOf(mesh) + bytesOf(anim) == before, qPrintable(told(account).join('\n')));
    QVERIFY(account.missingBlocks.isEmpty());

    // A new surface beside one that lies in no folder.
    GltfScene more = scene;
    more.materials.push_back({"leather", {}});
    more.meshes[0].push_back(more.meshes[0][1]);
    more.meshes[0].back().material = int(more.materials.size()) - 1;
    mesh.surfaces[0].materialPath = "_white";
    QVERIFY(!updateModel(more, mesh, anim, account, reason));
    QCOMPARE(mesh.surfaces.at(2).materialPath, QString("leather"));
}

void tst_ModelUpdate::numbersThatAreNone()
{
    AnimFile anim = clips();
    SkinnedMesh mesh = rig();
    anim.blocks[0].translations.at(0, 2) = {INFINITY, NAN, 1.0f};
    anim.blocks[0].rotations.at(0, 3) = {NAN, 0.0f, 0.0f, 1.0f};
    anim.blocks[0].frames[4].yawOffset = NAN;
    anim.blocks[1].speed = INFINITY;
    mesh.vertices[2].normal = {};
    mesh.vertices[3].normal = {NAN, 0.0f, 1.0f};
    const QByteArray before = bytesOf(mesh) + bytesOf(anim);
    const GltfScene scene = read(exported(mesh, anim));
    UpdateAccount account;
    QString reason;
    QVERIFY(!updateModel(scene, mesh, anim, account, reason));
    QVERIFY2(bytesOf(mesh) + bytesOf(anim) == before, qPrintable(told(account).join('\n')));
}

void tst_ModelUpdate::refusals()
{
    const GltfScene good = read(exported(rig(), clips()));
    const auto refused = [](const GltfScene &scene, const char *text) {
        SkinnedMesh mesh = rig();
        AnimFile anim = clips();
        UpdateAccount account;
        QString reason;
        return updateModel(scene, mesh, anim, account, reason) && reason.contains(QLatin1String(text));
    };
    GltfScene scene = good;
    scene.order.clear();
    QVERIFY(refused(scene, "None of its bones"));
    scene = good;
    for (QMatrix4x4 &bind : scene.skins[0].inverseBinds)
        bind.scale(0.0f);
    scene.nodes[size_t(nodeNamed(scene, "bone_001"))].scale = {};
    scene.skins[0].joints.clear();
    scene.skins[0].inverseBinds.clear();
    scene.meshes[0].clear();
    QVERIFY(refused(scene, "'bone_001' has no size"));
    scene = good;
    const std::vector<float> years{0.0f, 1.0e9f};
    for (GltfScene::Channel &channel : scene.animations[0].channels) {
        channel.times = std::make_shared<const std::vector<float>>(years);
        setKeys(channel, [&](std::vector<float> &values) { values.resize(values.size() / 9 * 2); });
    }
    QVERIFY(refused(scene, "more than 100000 frames"));
    scene.nodes.resize(scene.nodes.size() + 20000);
    QVERIFY(refused(scene, "frames") && !refused(scene, "100000"));
    scene = good;
    scene.meshes[0].resize(1);
    scene.meshes[0][0].positions.resize(2000000);
    QVERIFY(refused(scene, "more vertices"));
    scene = good;
    GltfScene::Primitive &many = scene.meshes[0][0];
    many = {};
    many.material = 0;
    for (quint32 i = 0; i < 70000; ++i) {
        many.positions.emplace_back(float(i), 0.0f, 0.0f);
        many.joints.push_back(0);
        many.indices.push_back(i - i % 3 + i % 3);
    }
    many.indices.resize(69999);
    QVERIFY(refused(scene, "more vertices"));

    StaticMesh mesh = SampleModels::plainStatic();
    UpdateAccount account;
    QString reason;
    GltfScene empty;
    QVERIFY(updateModel(empty, mesh, account, reason));
}

QTEST_GUILESS_MAIN(tst_ModelUpdate)
#include "tst_modelupdate.moc"
