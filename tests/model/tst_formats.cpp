// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NameTables.h"
#include "SampleModels.h"
#include "TestSupport.h"

using namespace SampleModels;

namespace {
// One record of each kind, byte for byte. 3f800000 is 1, 40000000 is 2, bf800000 is -1.
const char *const SkinnedMeshBytes =
    "02000000"                                          // version
    "000080bf000080bf000080bf 0000803f0000803f00000040" // box
    "01 02 fe"                                          // head track
    "01000000"                                          // bones
    "02000000 0100 ffff"                                // child bones
    "000000000000000000000000 0000803f0000803f0000803f" // bone box
    "05 b9 ff 00000040 ffffffff"                        // impact, symbol, parent, scale, flags
    "0a000000"                                          //
    "01000000"                                          // hot points
    "0000803f00000040000080bf 03000000 0400 ffff 0040"  //
    "0b000000"                                          //
    "02000000"                                          // surfaces
    "61e900 0000 0100 0200 ffff"                        //
    "00 ffff"                                           // neither material nor triangles
    "01000000"                                          // vertices
    "0000803f00000040000080bf 00000040000080bf 000000000000803f00000000 0700";

const char *const AnimBytes =
    "01000000"
    "01000000" // blocks
    "ffffffff 02000000 01000000 01000000 01000000 01000000 01000000"
    "0000803f 0100 0200 0300 00007041 0400"                     // scale, blends, speed 15, loop
    "0500 0600"                                                 // tracks of the bone
    "0000803f00000040000080bf 0000000000000000000000000000803f" // its initial pose
    "0000803f 00000040"                                         // yaw offsets
    "0000803f0000000000000000 000000400000000000000000"         // translations of two frames
    "0000000000000000000000000000803f 0000803f000000000000000000000000"
    "0100 0200 ffff 0000803f00000040000080bf" // action
    "00008046 0000803f 00000000 00000000 00000000 00000000 00000000 000080bf";

const char *const StaticMeshBytes =
    "02000000"
    "000080bf000080bf000080bf 0000803f0000803f00000040"
    "01000000"                                              // surfaces
    "5f776869746500 02000000 0000 0100 0200 0200 0100 ffff" // "_white", two triangles
    "01000000"                                              // vertices
    "0000803f00000040000080bf 00000040000080bf 000000000000803f00000000";

QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

/// Written it is those bytes, and those bytes are read as it.
template <typename Model>
void checkBytes(const Model &model, const QByteArray &bytes)
{
    QCOMPARE(bytesOf(model).toHex(), bytes.toHex());
    Model read;
    QVERIFY(!readBytes(read, bytes));
    QCOMPARE(bytesOf(read).toHex(), bytes.toHex());
}
} // namespace

/// What the records of the three kinds look like in a file, and the rules of reading and writing them.
class TestFormats : public QObject
{
    Q_OBJECT

private slots:
    void skinnedMeshFields()
    {
        SkinnedMesh mesh;
        mesh.version = 2;
        mesh.bbMin = {-1.0f, -1.0f, -1.0f};
        mesh.bbMax = {1.0f, 1.0f, 2.0f};
        mesh.headTrackStart = 1;
        mesh.headTrackEnd = 2;
        mesh.headTrackFactor = -2;
        mesh.nodes = {{{1, 65535}, {0.0f, 0.0f, 0.0f}, {1.0f, 1.0f, 1.0f}, 5, -71, 255, 2.0f, -1}};
        mesh.unknownA = 10;
        mesh.hotPoints = {{{1.0f, 2.0f, -1.0f}, 3, 4, 0xFFFF, 16384}};
        mesh.unknownB = 11;
        mesh.surfaces = {{QStringLiteral("a\u00e9"), {0, 1, 2}}, {}};
        mesh.vertices = {{{1.0f, 2.0f, -1.0f}, {2.0f, -1.0f}, {0.0f, 1.0f, 0.0f}, 7}};
        checkBytes(mesh, hex(SkinnedMeshBytes));
    }

    void animFields()
    {
        AnimBlock block;
        block.animId = -1;
        block.frameScale = 1.0f;
        block.blendLength = 1;
        block.blendStart = 2;
        block.blendEnd = 3;
        block.speed = 15.0f;
        block.loopFrame = 4;
        block.nodes = {{{1.0f, 2.0f, -1.0f}, {0.0f, 0.0f, 0.0f, 1.0f}, 5, 6}};
        block.frames = {{1.0f}, {2.0f}};
        block.translations = TrackTable<QVector3D>(1, 2);
        block.translations.at(0, 0) = {1.0f, 0.0f, 0.0f};
        block.translations.at(0, 1) = {2.0f, 0.0f, 0.0f};
        block.rotations = TrackTable<QVector4D>(1, 2);
        block.rotations.at(0, 0) = {0.0f, 0.0f, 0.0f, 1.0f};
        block.rotations.at(0, 1) = {1.0f, 0.0f, 0.0f, 0.0f};
        block.actions = {{1, 2, 0xFFFF, {1.0f, 2.0f, -1.0f}, {16384.0f, 1.0f, 0, 0, 0, 0, 0, -1.0f}}};
        AnimFile file;
        file.version = 1;
        file.blocks = {block};
        checkBytes(file, hex(AnimBytes));
    }

    void staticMeshFields()
    {
        StaticMesh mesh;
        mesh.version = 2;
        mesh.bbMin = {-1.0f, -1.0f, -1.0f};
        mesh.bbMax = {1.0f, 1.0f, 2.0f};
        mesh.surfaces = {{QStringLiteral("_white"), {0, 1, 2, 2, 1, 65535}}};
        mesh.vertices = {{{1.0f, 2.0f, -1.0f}, {2.0f, -1.0f}, {0.0f, 1.0f, 0.0f}}};
        checkBytes(mesh, hex(StaticMeshBytes));
    }

    void samplesKeepEveryByte()
    {
        const QTemporaryDir folder;
        for (const QString &suffix : suffixes()) {
            withModel(suffix, [&](auto model) {
                // Bytes behind the end are no failure and are dropped.
                const QByteArray bytes = bytesOfSample(suffix);
                const QString path = folder.filePath(QStringLiteral("longer.") + suffix);
                QVERIFY(TestSupport::writeFile(path, bytes + "trailing"));
                QString error;
                QVERIFY2(!model.read(path, &error), qPrintable(error));
                QVERIFY(!model.write(path));
                QCOMPARE(TestSupport::readFile(path).toHex(), bytes.toHex());

                error = QStringLiteral("of an earlier file");
                QVERIFY(model.read(folder.filePath(QStringLiteral("missing")), &error));
                QCOMPARE(error, QString());
            });
        }
    }

    void modelsThatAreNotSaved()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("old"));
        QVERIFY(TestSupport::writeFile(path, "old bytes"));

        SkinnedMesh boneless = skinnedMesh();
        boneless.nodes.clear();
        QVERIFY(boneless.write(path));
        // 65535 would end the index list early and shift everything behind it.
        SkinnedMesh shifted = skinnedMesh();
        shifted.surfaces[2].triangleIndexes = {0, 1, 65535};
        QVERIFY(shifted.write(path));
        AnimFile blockless = animFile();
        blockless.blocks.clear();
        QVERIFY(blockless.write(path));
        StaticMesh surfaceless = staticMesh();
        surfaceless.surfaces.clear();
        QVERIFY(surfaceless.write(path));
        QVERIFY(!readBytes(surfaceless, hex("02000000") + QByteArray(32, '\0')));

        QCOMPARE(TestSupport::readFile(path), QByteArray("old bytes"));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }

    void staticIndexListsOfOddLength()
    {
        StaticMesh mesh;
        QVERIFY(!readBytes(mesh, hex(StaticMeshBytes)));
        mesh.surfaces[0].triangleIndexes.pop_back();
        // One triangle is counted and all five indexes are written.
        QByteArray expected = hex(StaticMeshBytes);
        expected[28 + 4 + 7] = 1;
        expected.remove(28 + 4 + 7 + 4 + 10, 2);
        QCOMPARE(bytesOf(mesh).toHex(), expected.toHex());
    }

    void namesOfNumbers()
    {
        SkinnedMesh mesh;
        mesh.nodes.resize(1);
        const auto nameOf = [&mesh](int flags) {
            mesh.nodes[0].symbolFlags = qint8(flags);
            return boneSymbolName(mesh, 0);
        };
        QCOMPARE(nameOf(0x00), QStringLiteral("Left Root"));
        QCOMPARE(nameOf(0x46 | 0x38), QStringLiteral("Right Upper Arm")); // bits 3 to 5 say nothing
        QCOMPARE(nameOf(0x81), QStringLiteral("Left Chin"));              // negative as a signed byte
        QCOMPARE(nameOf(0xFF), QStringLiteral("Right Foot"));
        QCOMPARE(boneSymbolName(mesh, 1), QString());
        QCOMPARE(boneSymbolName(mesh, -1), QString());
        for (int i = 0; i < 35; ++i)
            QVERIFY(eventTypeNames().value(i).startsWith(QString("%1: ").arg(i, 2, 10, QLatin1Char('0'))));
    }
};

QTEST_GUILESS_MAIN(TestFormats)
#include "tst_formats.moc"
