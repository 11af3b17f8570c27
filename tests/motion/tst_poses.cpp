// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MotionScenes.h"

using namespace Motion;
using namespace MotionScenes;

/// Commands that are about how bones stand.
class tst_Poses : public QObject
{
    Q_OBJECT

private slots:
    void yawTurnsTheSameModel()
    {
        const SkinnedMesh mesh = body();
        AnimBlock old = bodyBlock(12);
        old.actions.resize(1);
        old.actions[0].frame = 7;
        old.actions[0].node = None;
        old.actions[0].offset = {40, 0, 10};
        AnimBlock block = old;
        BlockAccount account;
        // At no bone, in the space that the yaw turns.
        const auto actionPlace = [](const AnimBlock &of) {
            return vectorOf(Turn::aboutZ(-double(of.frames[7].yawOffset)) * placeOf(of.actions[0].offset));
        };
        const auto compareAll = [&] {
            QVERIFY((actionPlace(block) - actionPlace(old)).length() < 1e-3f);
            QVERIFY(actionPlace(old) != old.actions[0].offset);
            for (int frame = 0; frame < 12; ++frame) {
                const auto before = posed(mesh, old, frame);
                const auto after = posed(mesh, block, frame);
                for (size_t bone = 0; bone < before.size(); ++bone)
                    QVERIFY(difference(before[bone], after[bone]) < 2e-4);
            }
        };
        QCOMPARE(apply(ExtractYaw{}, block, account), QString());
        compareAll();
        // 11/12 of 200 degrees, without a jump at 180.
        QVERIFY(qAbs(double(block.frames[11].yawOffset) - (0.3 - 200 * M_PI / 180) * 11 / 12) < 1e-4);
        AnimBlock again = block;
        QCOMPARE(apply(ExtractYaw{}, again, account), QString());
        for (size_t frame = 0; frame < 12; ++frame)
            QVERIFY(qAbs(again.frames[frame].yawOffset - block.frames[frame].yawOffset) < 1e-5f);
        QCOMPARE(apply(ApplyYaw{}, block, account), QString());
        compareAll();
        for (const AnimFrame &frame : block.frames)
            QCOMPARE(frame.yawOffset, 0.0f);
    }

    void aMirrorShowsTheOtherSide()
    {
        const SkinnedMesh mesh = body();
        const AnimBlock old = bodyBlock(8);
        AnimBlock block = old;
        BlockAccount account;
        block.actions[1].eventType = 2;
        block.actions[1].args[3] = 1;
        QCOMPARE(apply(Mirror{}, block, account, &mesh), QString());
        QVERIFY(account.notes.join(' ').contains("to the same side as before: 1."));
        const BonePairs pairs = counterparts(mesh, BoneRig(mesh, old.nodes));
        QCOMPARE(pairs, (BonePairs{0, 2, 1, 4, 3, 5}));
        std::vector<QMatrix4x4> rest(mesh.nodes.size());
        PoseEvaluator().evaluateInitialPose(rest, mesh, old);
        for (int frame = 0; frame < 8; ++frame) {
            const auto before = posed(mesh, old, frame);
            const auto after = posed(mesh, block, frame);
            for (size_t bone = 0; bone < before.size(); ++bone) {
                const auto other = size_t(pairs[bone]);
                // Against the initial pose both moved alike, but for the mirror.
                const QMatrix4x4 moved = after[bone] * rest[bone].inverted();
                const QMatrix4x4 seen = inMirror(before[other] * rest[other].inverted());
                QVERIFY2(difference(moved, seen) < 1e-3, qPrintable(QString::number(bone)));
            }
        }
        QCOMPARE(block.actions[0].node, quint16(4));
        QCOMPARE(block.actions[1].offset, QVector3D(-4, 5, 6));
        const QVector3D offset = rest[4].map(block.actions[0].offset);
        QVector3D expected = rest[3].map(old.actions[0].offset);
        expected.setX(-expected.x());
        QVERIFY((offset - expected).length() < 1e-3f);

        QCOMPARE(apply(Mirror{}, block, account, &mesh), QString());
        for (int frame = 0; frame < 8; ++frame) {
            for (size_t bone = 0; bone < mesh.nodes.size(); ++bone)
                QVERIFY(difference(posed(mesh, old, frame)[bone], posed(mesh, block, frame)[bone]) < 1e-3);
        }
    }

    // Many bones that share a track are a small file, but would be much to count with.
    void aMirrorCountsWithNothingAndNotWithTooMuch()
    {
        BlockAccount account;
        const SkinnedMesh small = body();
        AnimBlock block = bodyBlock(0);
        QCOMPARE(apply(Mirror{}, block, account, &small), QString("It has no frames."));
        block = lineBlock(40000);
        block.nodes.resize(2000, block.nodes[0]);
        SkinnedMesh mesh;
        mesh.nodes.resize(block.nodes.size());
        for (quint16 bone = 1; bone < mesh.nodes.size(); ++bone)
            mesh.nodes[0].childNodes.push_back(bone);
        const QString refusal = apply(Mirror{}, block, account, &mesh);
        QVERIFY2(refusal.contains("2136 MiB"), qPrintable(refusal));
    }

    void namesTellSidesAndPartners()
    {
        SkinnedMesh mesh = body();
        const char *names[] = {"hips", "Arm.R", "arm.l", "lower_left_arm", "lower_right_arm", "tail"};
        for (size_t bone = 0; bone < 6; ++bone)
            mesh.nodes[bone].name = QString::fromLatin1(names[bone]);
        const AnimBlock block = bodyBlock(2);
        const BoneRig rig(mesh, block.nodes);
        QCOMPARE(counterparts(mesh, rig), (BonePairs{0, 2, 1, 4, 3, 5}));
        mesh.nodes[2].name = QStringLiteral("ball"); // has no l by itself: the name says that it has no side
        QCOMPARE(counterparts(mesh, rig), (BonePairs{0, 1, 2, 4, 3, 5}));

        SkinnedMesh other = body();
        for (SkinnedMeshNode &node : other.nodes)
            node.symbolFlags = 0;
        other.nodes[4].name = QStringLiteral("rig:Hips");
        QCOMPARE(partners(other, rig, mesh, rig), (BonePairs{4, -1, -1, -1, -1, 0}));
    }

    void copiesDoWhatTheOthersDid()
    {
        const SkinnedMesh mesh = body();
        AnimFile from;
        from.blocks = {bodyBlock(6)};
        // The same bones: nothing is counted at all.
        AnimFile same = from;
        same.blocks[0].setFrameCount(1);
        CopiedBlock copy = copiedTo({mesh, same}, {mesh, from}, 0, {1});
        QVERIFY2(copy.block, qPrintable(copy.refusal));
        QCOMPARE(copy.block->animId, 2);
        copy.block->animId = from.blocks[0].animId;
        for (int frame = 0; frame < 6; ++frame)
            QCOMPARE(posed(mesh, *copy.block, frame), posed(mesh, from.blocks[0], frame));
        QCOMPARE(copy.block->rotations.trackCount(), 2);

        // Twice as large, other axes, an arm without a symbol.
        SkinnedMesh large = body();
        large.nodes[4].symbolFlags = 0x33; // a leg
        AnimFile to = same;
        for (AnimNode &node : to.blocks[0].nodes)
            node.initialPosition *= 2;
        const QQuaternion turn = QQuaternion::fromAxisAndAngle({0, 1, 0}, 35);
        AnimNode &arm = to.blocks[0].nodes[1];
        AnimNode &hand = to.blocks[0].nodes[3];
        arm.initialRotation = (QQuaternion(arm.initialRotation) * turn).toVector4D();
        hand.initialRotation = (turn.inverted() * QQuaternion(hand.initialRotation)).toVector4D();
        hand.initialPosition = turn.inverted().rotatedVector(hand.initialPosition);
        copy = copiedTo({large, to}, {mesh, from}, 0);
        QVERIFY2(copy.block, qPrintable(copy.refusal));
        QVERIFY(copy.account.notes.join(' ').contains("4: Left Hip"));
        std::vector<QMatrix4x4> rest(6);
        PoseEvaluator().evaluateInitialPose(rest, mesh, from.blocks[0]);
        std::vector<QMatrix4x4> largeRest(6);
        PoseEvaluator().evaluateInitialPose(largeRest, large, to.blocks[0]);
        for (int frame = 0; frame < 6; ++frame) {
            const auto theirs = posed(mesh, from.blocks[0], frame);
            const auto own = posed(large, *copy.block, frame);
            for (const size_t bone : std::initializer_list<size_t>{0, 1, 2, 3, 5}) {
                // The turn away from the initial pose, and twice the places.
                QMatrix4x4 expected = theirs[bone] * rest[bone].inverted();
                QMatrix4x4 found = own[bone] * largeRest[bone].inverted();
                for (QMatrix4x4 *matrix : {&expected, &found})
                    matrix->setColumn(3, {0, 0, 0, 1});
                QVERIFY2(difference(expected, found) < 1e-4, qPrintable(QString::number(bone)));
                QVERIFY((own[bone].column(3) - 2 * theirs[bone].column(3)).toVector3D().length() < 1e-2f);
            }
        }

        for (SkinnedMeshNode &node : large.nodes)
            node.symbolFlags = 1;
        for (size_t bone = 0; bone < 6; ++bone)
            large.nodes[bone].symbolFlags = 0x41;
        QVERIFY(copiedTo({large, to}, {mesh, from}, 0).refusal.contains("No bone"));
        QVERIFY(copiedTo({large, {}}, {mesh, from}, 0).refusal.contains("initially"));
    }

    // Validation finds nothing that it did not find before, and what is told of sizes is true.
    void realAnimationsStaySound()
    {
        int tried = 0;
        for (const QString &path : TestSupport::modelFiles(QStringLiteral("anim"))) {
            AnimFile file;
            QVERIFY(!file.read(path));
            SkinnedMesh mesh;
            QString meshPath = path;
            meshPath.replace(QLatin1String("/anims/"), QLatin1String("/models/"));
            meshPath.replace(QLatin1String(".anim"), QLatin1String(".skinnedmesh"));
            if (mesh.read(meshPath))
                continue;
            const QMap<int, qint64> before = countedFindings(file, mesh);
            std::vector<int> all(file.blocks.size());
            std::iota(all.begin(), all.end(), 0);
            for (const auto &[name, command] : allCommands()) {
                AnimFile made = file;
                for (BlockChange &change : changesBy(command, file, all, &mesh, going)) {
                    if (change.changes)
                        made.blocks[size_t(change.index)] = std::move(change.block);
                    ++tried;
                }
                const QMap<int, qint64> after = countedFindings(made, mesh);
                for (auto found = after.begin(); found != after.end(); ++found)
                    QVERIFY2(found.value() <= before.value(found.key()),
                             qPrintable(QStringLiteral("%1 %2: rule %3").arg(path, name).arg(found.key())));
                qint64 bytes = 8;
                for (const AnimBlock &block : made.blocks)
                    bytes += fileBytes(block);
                BinaryFileWriter writer;
                QVERIFY(!made.write(writer));
                QCOMPARE(qint64(writer.bytes().size()), bytes);
            }
            // Mirrored twice every bone is where it was: each has found its counterpart's counterpart.
            for (const AnimBlock &block : file.blocks) {
                AnimBlock twice = block;
                BlockAccount account;
                QCOMPARE(apply(Mirror{}, twice, account, &mesh), QString());
                QCOMPARE(apply(Mirror{}, twice, account, &mesh), QString());
                if (block.frameCount() < 2)
                    continue;
                for (const int frame : {0, block.frameCount() / 2}) {
                    const auto was = posed(mesh, block, frame);
                    const auto is = posed(mesh, twice, frame);
                    for (size_t bone = 0; bone < was.size(); ++bone)
                        QVERIFY2(difference(was[bone], is[bone]) < 0.02, qPrintable(path));
                }
            }
        }
        QVERIFY(tried > 0);
    }
};

QTEST_GUILESS_MAIN(tst_Poses)
#include "tst_poses.moc"
