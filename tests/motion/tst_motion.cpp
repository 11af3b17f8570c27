// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MotionScenes.h"

Q_DECLARE_METATYPE(Motion::Command)

using namespace Motion;
using namespace MotionScenes;

class tst_Motion : public QObject
{
    Q_OBJECT

private slots:
    // The motion is x = frame, so where a key comes from can be read off it.
    void framesGoWhereArithmeticHasThem_data()
    {
        QTest::addColumn<Command>("command");
        QTest::addColumn<int>("frames");
        QTest::addColumn<int>("loopFrame");
        QTest::addColumn<QVector<double>>("expected");
        QTest::addColumn<QVector<int>>("actions");
        QTest::addColumn<QVector<double>>("fields"); // loop frame, blend length, start, end, speed
        using Numbers = QVector<double>;
        using Frames = QVector<int>;
        const double none = None;
        const auto row = [](const char *name, const Command &command, int frames, int loop,
                            const Numbers &expected, const Frames &actions, const Numbers &fields) {
            QTest::newRow(name) << command << frames << loop << expected << actions << fields;
        };
        row("twice as fine", Resample{9, 0, false}, 5, 2, {0, 0.5, 1, 1.5, 2, 2.5, 3, 3.5, 4}, {0, 2, 8, 12},
            {4, 10, 0, 8, 20});
        row("half as fine", Resample{3, 0, true}, 5, 4, {0, 2, 4}, {0, 1, 2, 6}, {2, 5, 0, 2, 10});
        row("to a rate", Resample{0, 15, false}, 5, None, {0, 2.0 / 3, 4.0 / 3, 2, 8.0 / 3, 10.0 / 3, 4},
            {0, 2, 6, 10}, {none, 8, 0, 6, 15});
        row("to the same", Resample{5, 0, false}, 5, 1, {0, 1, 2, 3, 4}, {0, 1, 4, 8}, {1, 5, 0, 4, 10});
        row("to one frame", Resample{1, 0, false}, 5, 3, {0}, {0, 0, 0, 4}, {0, 5, 0, 0, 10});
        row("from one frame", Resample{3, 0, false}, 1, 0, {0, 0, 0}, {0, 3, 0, 6}, {0, 5, 0, 0, 10});
        row("backwards", Reverse{}, 4, 0, {3, 2, 1, 0}, {3, 2, 0, 7}, {0, 5, 0, 3, 10});
        row("the middle", Trim{1, 3}, 6, 5, {1, 2, 3}, {0, 6}, {2, 5, 0, 2, 10});
        row("the middle, with its loop", Trim{1, 3}, 6, 2, {1, 2, 3}, {0, 6}, {1, 5, 0, 2, 10});
        row("later", Shift{2}, 5, None, {0, 0, 0, 1, 2}, {2, 3, 8}, {none, 5, 2, 4, 10});
        row("earlier, with its loop", Shift{-1}, 5, 2, {1, 2, 3, 4, 4}, {0, 3, 8}, {1, 5, 0, 3, 10});
        row("round", Shift{2}, 5, 0, {3, 4, 0, 1, 2}, {2, 3, 1, 8}, {0, 5, 0, 4, 10});
        row("round backwards", Shift{-12, Shift::Around::Always}, 5, None, {2, 3, 4, 0, 1}, {3, 4, 2, 8},
            {none, 5, 0, 4, 10});
        row("into the first", CloseLoop{2}, 5, 0, {0, 1, 2, 1.5, 0}, {0, 1, 4, 8}, {0, 5, 0, 4, 10});
        row("into the loop frame", CloseLoop{3}, 5, 1, {0, 1, 2 - 1 / 3.0, 3 - 4 / 3.0, 1}, {0, 1, 4, 8},
            {1, 5, 0, 4, 10});
    }
    void framesGoWhereArithmeticHasThem()
    {
        QFETCH(Command, command);
        QFETCH(int, frames);
        QFETCH(int, loopFrame);
        QFETCH(QVector<double>, expected);
        QFETCH(QVector<int>, actions);
        QFETCH(QVector<double>, fields);
        AnimFile file;
        file.blocks.push_back(lineBlock(frames, quint16(loopFrame)));
        const auto changes = changesBy(command, file, {0}, nullptr, going);
        QCOMPARE(int(changes.size()), 1);
        QCOMPARE(changes[0].refusal, QString());
        QCOMPARE(changes[0].changes, !changes[0].words.isEmpty());
        const AnimBlock &made = changes[0].changes ? changes[0].block : file.blocks[0];
        QCOMPARE(made.frameCount(), expected.size());
        QCOMPARE(made.translations.frameCount(), expected.size());
        const AnimBlock &old = file.blocks[0];
        for (int frame = 0; frame < expected.size(); ++frame) {
            const double x = expected.at(frame);
            const QVector3D key = made.translations.at(0, frame);
            const QVector4D turn = made.rotations.at(0, frame);
            QCOMPARE(key, QVector3D(float(x), 10.0f, 0.0f));
            QVERIFY2(degreesBetween(turn, turnAbout({0, 0, 1}, 10 * x)) < 1e-3,
                     qPrintable(QString::number(x)));
            QVERIFY(qAbs(turn.length() - 1) < 1e-6f);
            QVERIFY(qAbs(double(made.frames[size_t(frame)].yawOffset) - double(Step) * x) < 1e-6);
            if (x == std::floor(x)) {
                // A frame that was there keeps its bits: the zero below 0, and which quaternion it was.
                QVERIFY(std::signbit(key.z()));
                QVERIFY(std::memcmp(&turn, &old.rotations.at(0, int(x)), sizeof turn) == 0);
            }
        }
        QCOMPARE(actionFrames(made), actions);
        QCOMPARE((QVector<double>{double(made.loopFrame), double(made.blendLength), double(made.blendStart),
                                  double(made.blendEnd), double(made.speed)}),
                 fields);
    }

    void blendsFollowTheirFrames()
    {
        struct Row
        {
            Command command;
            quint16 start, end, newStart, newEnd;
            bool isTold;
        };
        const Row rows[] = {{Shift{2, Shift::Around::Never}, 2, 5, 4, 7, false},
                            {Shift{-4, Shift::Around::Never}, 2, 5, 0, 1, false},
                            {Shift{2, Shift::Around::Never}, 0, 0, 0, 0, false},
                            {Shift{2, Shift::Around::Always}, 2, 5, 4, 7, false},
                            {Shift{-3, Shift::Around::Always}, 2, 5, 2, 5, true},
                            {Shift{-3, Shift::Around::Always}, 0, 10, 0, 10, false},
                            {Reverse{}, 3, 3, 7, 7, false},
                            {Reverse{}, 7, 4, 6, 3, false},
                            {Resample{21, 0, true}, 2, 12, 4, 22, false}};
        for (const Row &row : rows) {
            AnimFile file;
            file.blocks = {lineBlock(11)};
            file.blocks[0].blendStart = row.start;
            file.blocks[0].blendEnd = row.end;
            const BlockChange made = changesBy(row.command, file, {0}, nullptr, going).at(0);
            QCOMPARE((std::pair(made.block.blendStart, made.block.blendEnd)),
                     (std::pair(row.newStart, row.newEnd)));
            QCOMPARE(made.words.join(' ').contains("It still blends"), row.isTold);
        }
    }

    void aClosedLoopGoesRoundInOneFrameLess()
    {
        AnimBlock block = lineBlock(5, 0);
        block.translations.at(0, 4) = block.translations.at(0, 0);
        block.rotations.at(0, 4) = -block.rotations.at(0, 0); // the same rotation
        block.frames[4].yawOffset = float(2 * M_PI);
        BlockAccount account;
        const AnimBlock old = block;
        QCOMPARE(apply(Shift{1}, block, account), QString());
        QVERIFY(differences(old, block, {}).contains("translation keys that change: 5"));
        QVector<float> x;
        for (int frame = 0; frame < 5; ++frame)
            x.append(block.translations.at(0, frame).x());
        QCOMPARE(x, (QVector<float>{3, 0, 1, 2, 3}));
        QCOMPARE(actionFrames(block), (QVector<int>{1, 2, 1, 8}));
        QCOMPARE(account.actionsMoved, 3);
    }

    void aLoopThatComesToStandStillIsTold()
    {
        const std::pair<Command, bool> rows[] = {
            {Shift{4}, true}, {Trim{0, 6}, true}, {Shift{1}, false}, {Trim{0, 9}, false}};
        for (const auto &[command, isTold] : rows) {
            AnimFile file;
            file.blocks = {lineBlock(11, 6)};
            const BlockChange made = changesBy(command, file, {0}, nullptr, going).at(0);
            QCOMPARE(made.words.join(' ').contains("stands still on its last frame"), isTold);
        }
    }

    void whatIsNoNumberIsNotCountedWith()
    {
        AnimBlock block = lineBlock(3);
        const float odd = SampleModels::oddFloats[1];
        block.translations.at(0, 1) = {odd, 0, 0};
        block.rotations.at(0, 1) = {0, 0, 0, 0};
        block.frames[1].yawOffset = odd;
        BlockAccount account;
        QCOMPARE(apply(Resample{5, 0, true}, block, account), QString());
        for (const int frame : {2, 3}) { // the odd key, and what would stand between it and the next
            QVERIFY(std::memcmp(&odd, &block.translations.at(0, frame), sizeof odd) == 0);
            QCOMPARE(block.rotations.at(0, frame), QVector4D(0, 0, 0, 0));
        }
        QCOMPARE(block.translations.at(0, 1), QVector3D(0, 10, 0));
    }

    void whatCannotBeIsRefusedWithAReason_data()
    {
        QTest::addColumn<Command>("command");
        QTest::addColumn<int>("frames");
        QTest::addColumn<QString>("word");
        const auto row = [](const char *name, const Command &command, int frames, const char *word) {
            QTest::newRow(name) << command << frames << QString::fromLatin1(word);
        };
        row("no frames to resample", Resample{4}, 0, "no frames");
        row("no frames to reverse", Reverse{}, 0, "no frames");
        row("no frames to turn", ExtractYaw{}, 0, "no frames");
        row("more frames than numbers", Resample{65536, 0, true}, 5, "65535 is the most");
        row("rate without an end", Resample{0, 1e12}, 5, "65535 is the most");
        row("too slow", Resample{0, 0.5}, 5, "slower");
        row("too slow by frames", Resample{2, 0, false}, 40, "frames a second");
        row("none at all", Resample{0, 0, true}, 5, "one frame at least");
        row("beyond the end", Trim{2, 5}, 5, "0 to 4");
        row("the wrong way round", Trim{3, 2}, 5, "0 to 4");
        row("all away", Shift{-5}, 5, "nothing would be left");
        row("a loop of one", CloseLoop{1}, 1, "two frames");
        row("a loop beyond the start", CloseLoop{5}, 5, "From 1 to 4");
        row("no mesh", Mirror{}, 5, "mesh");
        row("an id too large", RenumberIds{{}, 1LL << 40}, 5, "32 bits");
        row("an id that another one has", RenumberIds{{{0, 7}}, 0}, 5, "which animation 1 has");
    }
    void whatCannotBeIsRefusedWithAReason()
    {
        QFETCH(Command, command);
        QFETCH(int, frames);
        QFETCH(QString, word);
        AnimFile file;
        file.blocks = {lineBlock(frames), lineBlock(3)};
        file.blocks[1].animId = 7;
        const auto changes = changesBy(command, file, {0}, nullptr, going);
        QVERIFY2(changes.at(0).refusal.contains(word), qPrintable(changes.at(0).refusal));
        QVERIFY(!changes.at(0).changes);
    }

    void tracksAreNotChangedUnderOtherBones()
    {
        AnimBlock block = lineBlock(3);
        for (AnimFrame &frame : block.frames)
            frame.yawOffset += 1;
        // Bone 1 shares the root's tracks, bone 2 names a track that is next to come, which is none now.
        block.nodes.resize(3, block.nodes[0]);
        block.nodes[2].translationIndex = block.nodes[2].rotationIndex = 1;
        const AnimBlock old = block;
        BlockAccount account;
        QCOMPARE(apply(ApplyYaw{}, block, account), QString());
        QCOMPARE(block.rotations.trackCount(), 2);
        QCOMPARE(block.translations.trackCount(), 2);
        const auto keys = [](const AnimBlock &of) { return RotationsOfBones::of(of, 1)[2]; };
        QCOMPARE(keys(block), keys(old));
        QVERIFY(RotationsOfBones::of(block, 0) != RotationsOfBones::of(block, 1));
        QVERIFY(!RotationsOfBones::of(block, 2) && !TranslationsOfBones::of(block, 2));

        // Alone it needs no further track.
        AnimBlock alone = lineBlock(3);
        QCOMPARE(apply(ApplyYaw{}, alone, account), QString());
        QCOMPARE(alone.rotations.trackCount(), 1);
    }

    void unusedAndEqualTracksGo()
    {
        AnimBlock block = lineBlock(2);
        block.setTranslationCount(4); // copies
        block.setRotationCount(3);
        block.translations.at(2, 1) = {9, 9, 9};
        block.nodes.resize(4);
        const quint16 numbers[] = {3, 2, 4, 1};
        for (size_t bone = 0; bone < 4; ++bone)
            block.nodes[bone].translationIndex = numbers[bone];
        block.nodes[0].rotationIndex = 2;
        AnimBlock joined = block;
        BlockAccount account;
        apply(RemoveUnusedTracks{}, block, account);
        const auto follows = [](const AnimBlock &of, size_t bone) {
            return int(of.nodes[bone].translationIndex);
        };
        QCOMPARE(block.translations.trackCount(), 3);
        QCOMPARE((QVector<int>{follows(block, 0), follows(block, 1), follows(block, 2), follows(block, 3)}),
                 (QVector<int>{2, 1, 4, 0}));
        QCOMPARE(block.translations.at(1, 1), QVector3D(9, 9, 9));
        QCOMPARE(block.rotations.trackCount(), 1);
        QCOMPARE(int(block.nodes[0].rotationIndex), 0);
        apply(JoinEqualTracks{}, joined, account);
        QCOMPARE(joined.translations.trackCount(), 2);
        QCOMPARE(
            (QVector<int>{follows(joined, 0), follows(joined, 1), follows(joined, 2), follows(joined, 3)}),
            (QVector<int>{0, 1, 4, 0}));
        QCOMPARE(joined.rotations.trackCount(), 1);
    }

    void idsAreRenumberedTogether()
    {
        AnimFile file;
        for (const int id : {1, 2, 3, 3}) {
            file.blocks.push_back(lineBlock(2));
            file.blocks.back().animId = id;
        }
        const auto ids = [&file](const RenumberIds &how, const std::vector<int> &blocks) {
            QVector<int> made;
            for (const BlockChange &change : changesBy(how, file, blocks, nullptr, going))
                made.append(!change.refusal.isEmpty() ? -1
                            : change.changes          ? change.block.animId
                                                      : file.blocks[size_t(change.index)].animId);
            return made;
        };
        // Into each other's place; two that are one already stay one.
        QCOMPARE(ids({{{1, 2}, {2, 1}, {3, 30}}, 0}, {0, 1, 2, 3}), (QVector<int>{2, 1, 30, 30}));
        QCOMPARE(ids({{}, 1}, {0, 1, 2, 3}), (QVector<int>{2, 3, 4, 4}));
        // One that stays keeps another from coming, and that one the next.
        QCOMPARE(ids({{}, 1}, {0, 1}), (QVector<int>{-1, -1}));
        // However long that goes on.
        std::vector<int> allButLast(20000 - 1);
        std::iota(allButLast.begin(), allButLast.end(), 0);
        file.blocks.assign(allButLast.size() + 1, AnimBlock());
        for (size_t i = 0; i < file.blocks.size(); ++i)
            file.blocks[i].animId = int(i);
        QCOMPARE(ids({{}, 1}, allButLast), QVector<int>(int(allButLast.size()), -1));
    }
};

QTEST_GUILESS_MAIN(tst_Motion)
#include "tst_motion.moc"
