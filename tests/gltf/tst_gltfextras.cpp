// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfExtras.h"
#include "SampleModels.h"
#include "TestSupport.h"

namespace {
const QString Property = QStringLiteral("korvane");

QJsonObject with(const QByteArray &text)
{
    return {{Property, QString::fromUtf8(text)}};
}

/// Every field away from its default, floats that JSON cannot say among them.
GltfExtras::Model fullModel()
{
    GltfExtras::Model model;
    model.name = QStringLiteral("Käfer");
    model.version = -2147483647;
    model.bbMin = {-0.0f, 1e-45f, 0.1f};
    model.bbMax = {3.4028235e38f, SampleModels::floatOfBits(0x7FC00123), -INFINITY};
    model.materials = {QStringLiteral("materials/mat_a/surf_0"), QString()};
    model.headTrackStart = 1;
    model.headTrackEnd = 255;
    model.headTrackFactor = -128;
    model.unknownA = 7;
    model.unknownB = -8;
    model.animVersion = 9;
    model.blocks.resize(2);
    GltfExtras::Block &block = model.blocks[1];
    block.number = 1;
    block.clip = QStringLiteral("walk [12]");
    block.record.animId = 12;
    block.record.frameScale = 0.3f;
    block.record.blendLength = 5;
    block.record.blendStart = 6;
    block.record.blendEnd = 65535;
    block.record.speed = 29.97f;
    block.record.loopFrame = 0;
    block.record.setFrameCount(3);
    block.record.frames[2].yawOffset = 1.0f / 3.0f;
    block.record.actions.resize(2);
    block.record.actions[1] = {65535, 34, 12, {1.5f, -0.0f, 1e-7f}, {1, 2, 3, 4, 5, 6, 7, 16384.5f}};
    return model;
}
} // namespace

class tst_gltfextras : public QObject
{
    Q_OBJECT

private slots:
    /// What another program gives back as it got it says the same again, to the bit.
    void comeBack()
    {
        using namespace GltfExtras;
        const Model model = fullModel();
        const auto readModel = read<Model>(extras(model));
        QVERIFY(readModel);
        QCOMPARE(extras(*readModel), extras(model));
        QCOMPARE(std::memcmp(&readModel->bbMin, &model.bbMin, sizeof model.bbMin), 0);
        QCOMPARE(std::memcmp(&readModel->bbMax, &model.bbMax, sizeof model.bbMax), 0);
        QCOMPARE(readModel->blocks[1].record.frames[2].yawOffset, 1.0f / 3.0f);
        QCOMPARE(readModel->blocks[1].record.actions[1].args[7], 16384.5f);
        QCOMPARE(readModel->blocks[0].record.frameCount(), 0);

        Bone bone;
        bone.number = 12;
        bone.record = {{1, 65535}, {1, 2, 3}, {4, 5, 6}, 9, -128, 254, 0.1f, qint32(0x80000001)};
        bone.poseParent = 3;
        bone.restPosition = {0.1f, -2.5f, 1e-20f};
        bone.restRotation = QQuaternion(0.5f, -0.5f, 0.5f, 0.1f);
        const auto readBone = read<Bone>(extras(bone));
        QVERIFY(readBone);
        QCOMPARE(extras(*readBone), extras(bone));
        QCOMPARE(readBone->record.flags, bone.record.flags);
        QCOMPARE(readBone->restRotation.scalar(), 0.5f);

        const HotPoint hotPoint{3, {{1, 2, 0.3f}, -1, 40000, 0xFFFF, 64}};
        const auto readHotPoint = read<HotPoint>(extras(hotPoint));
        QVERIFY(readHotPoint);
        QCOMPARE(extras(*readHotPoint), extras(hotPoint));
        QCOMPARE(read<Surface>(extras(Surface{2, QStringLiteral("a/b/c")}))->material,
                 QStringLiteral("a/b/c"));
        QCOMPARE(read<Clip>(extras(Clip{4}))->number, 4);
        QVERIFY(read<Yaw>(extras(Yaw{}))->turns);
        // None is taken for another.
        QVERIFY(!read<Bone>(extras(hotPoint)) && !read<Model>(extras(bone)) && !read<Yaw>(extras(model)));
    }

    void foreign_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no JSON") << QByteArray("{\"bone\": 1");
        QTest::newRow("a list") << QByteArray("[1]");
        QTest::newRow("text for a number") << QByteArray(R"({"bone": "1"})");
        QTest::newRow("a fraction") << QByteArray(R"({"bone": 1.5})");
        QTest::newRow("too large") << QByteArray(R"({"bone": 1, "parent": 256})");
        QTest::newRow("far too large") << QByteArray(R"({"bone": 1e300})");
        QTest::newRow("no float") << QByteArray(R"({"bone": 1, "damage": 1e39})");
        QTest::newRow("no bits") << QByteArray(R"({"bone": 1, "damage": "0x7fc0000g"})");
        QTest::newRow("short vector") << QByteArray(R"({"bone": 1, "bbMin": [1, 2]})");
        QTest::newRow("no list") << QByteArray(R"({"bone": 1, "childNodes": 5})");
        QTest::newRow("another kind") << QByteArray(R"({"schema": 1, "kind": "house"})");
        QTest::newRow("frames without end")
            << QByteArray(R"({"schema": 1, "kind": "skinnedmesh", "blocks": [{"frames": 2147483647}]})");
        QTest::newRow("fewer yaw offsets than frames")
            << QByteArray(R"({"schema": 1, "kind": "skinnedmesh", "blocks": [{"frames": 2, "yaw": [1]}]})");
    }
    void foreign()
    {
        QFETCH(QByteArray, text);
        QVERIFY(!GltfExtras::read<GltfExtras::Bone>(with(text)));
        QVERIFY(!GltfExtras::read<GltfExtras::Model>(with(text)));
        // Properties of other programs are none of ours.
        QVERIFY(!GltfExtras::read<GltfExtras::Bone>({{Property, 5}}));
        QVERIFY(GltfExtras::read<GltfExtras::Bone>(with(R"({"bone": 7, "later": [1]})")));
    }
};

QTEST_APPLESS_MAIN(tst_gltfextras)
#include "tst_gltfextras.moc"
