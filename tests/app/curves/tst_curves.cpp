// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CurvesByHand.h"

#include "ActionTrack.h"
#include "AllCommands.h"
#include "CurvesDock.h"
#include "KVOpenGLWidget.h"

#include <cmath>

namespace {
constexpr auto RotX = CurveChannel::RotationX;
constexpr auto RotZ = CurveChannel::RotationZ;
constexpr auto MoveX = CurveChannel::TranslationX;
constexpr auto MoveZ = CurveChannel::TranslationZ;
} // namespace

/// Keys of an animation, edited as curves by hand.
class tst_Curves : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_files.emplace();
        Settings::AnimationAutoPlay.setValue(false);
        Settings::HideAnimData.setValue(false);
    }

    void aDraggedKeyIsOneStep()
    {
        Curves on(*m_files);
        const AnimBlock before = on.block();
        const double by = 30 * on.perPixel(CurveUnit::Degrees);
        const QPoint from = on.key(RotX, 4);
        // Shown as it goes, in the pose of its frame, and in the document when it is dropped.
        on.press(from);
        on.move(from - QPoint(0, 30));
        QCOMPARE(on.now(), on.bytes);
        QVERIFY(playback().preview && playableBlock(playback()) == playback().preview);
        QVERIFY(playback().preview->rotations.at(0, 4) != before.rotations.at(0, 4));
        QCOMPARE(playback().playState, PlayState::Paused);
        QCOMPARE(on.view->frame(), 4);
        QVERIFY(QToolTip::text().contains(QStringLiteral("frame 4: 40")));
        QTest::mouseRelease(on.view, Qt::LeftButton, {}, from - QPoint(0, 30));
        QVERIFY(!playback().preview);
        QVERIFY(std::abs(on.stored(RotX, 4) - (40 + by)) < 0.02);
        QCOMPARE(on.stored(CurveChannel::RotationY, 4), 20.0);
        QCOMPARE(on.stored(RotZ, 4), -20.0);
        for (int frame = 0; frame < 11; ++frame)
            QVERIFY(frame == 4 || on.block().rotations.at(0, frame) == before.rotations.at(0, frame));
        // The key is still selected, and so is its bone; its value can be read.
        QCOMPARE(on.view->selection().current(), (CurveKey{on.curve(RotX), 4}));
        QVERIFY(std::abs(double(on.value->value()) - (40 + by)) < 0.02);
        QCOMPARE(find<KVTreeView>(on.window, "treeAnim")->currentRecord(),
                 (RecordRef{RecordKind::AnimBone, {0, 0}}));
        QVERIFY(on.undoAction()->text().contains(QStringLiteral("Move Keys")));
        on.undoAction()->trigger();
        QCOMPARE(on.now(), on.bytes);
        QVERIFY(!on.undoAction()->isEnabled());
    }

    void whatIsGivenUpChangesNothing()
    {
        Curves on(*m_files);
        on.click(on.view->places().rulerPlace(1));
        QCOMPARE(on.view->frame(), 1);
        const QPoint from = on.key(RotX, 6);
        on.press(from);
        on.move(from - QPoint(0, 50));
        QCOMPARE(on.view->frame(), 6);
        on.type(Qt::Key_A, Qt::ControlModifier); // keys do nothing else meanwhile
        on.type(Qt::Key_Escape);
        QVERIFY(!playback().preview);
        QCOMPARE(on.view->frame(), 1);
        QTest::mouseRelease(on.view, Qt::LeftButton, {}, from - QPoint(0, 50));
        // What played goes on, and the initial pose comes back.
        playback().playState = PlayState::Playing;
        on.press(from);
        on.move(from - QPoint(0, 50));
        QCOMPARE(playback().playState, PlayState::Paused);
        on.type(Qt::Key_Escape);
        QCOMPARE(playback().playState, PlayState::Playing);
        QTest::mouseRelease(on.view, Qt::LeftButton, {}, from - QPoint(0, 50));
        on.button("btnAnimTrackPose");
        on.press(on.view->places().rulerPlace(3));
        QCOMPARE(playback().playState, PlayState::Paused);
        on.type(Qt::Key_Escape);
        QCOMPARE(playback().playState, PlayState::InitialPose);
        QTest::mouseRelease(on.view, Qt::LeftButton, {}, on.view->places().rulerPlace(3));
        // There and back again.
        on.press(from);
        on.move(from - QPoint(0, 50));
        on.move(from);
        QVERIFY(playback().preview->rotations.at(0, 6) == on.block().rotations.at(0, 6));
        QTest::mouseRelease(on.view, Qt::LeftButton, {}, from);
        // Another window takes the keys; a click that shakes; looking, zooming, panning.
        on.press(from);
        on.move(from - QPoint(0, 50));
        on.value->setFocus();
        QTest::mouseRelease(on.view, Qt::LeftButton, {}, from - QPoint(0, 50));
        on.drag(from, from + QPoint(1, 1));
        on.view->setFocus();
        turnWheel(on.view, 240);
        QVERIFY(on.view->places().time().isZoomed());
        const double scale = on.perPixel(CurveUnit::Degrees);
        turnWheel(on.view, 120, Qt::ControlModifier);
        QVERIFY(on.perPixel(CurveUnit::Degrees) < scale);
        turnWheel(on.view, -120, Qt::ShiftModifier);
        QTest::mousePress(on.view, Qt::MiddleButton, {}, from);
        on.move(from + QPoint(20, 30));
        QTest::mouseRelease(on.view, Qt::MiddleButton, {}, from + QPoint(20, 30));
        on.type(Qt::Key_Home);
        QVERIFY(!on.view->places().time().isZoomed());
        QCOMPARE(on.perPixel(CurveUnit::Degrees), scale);
        QCOMPARE(on.now(), on.bytes);
        QVERIFY(!on.undoAction()->isEnabled());
    }

    void keysAreSelectedAndMovedTogether()
    {
        Curves on(*m_files);
        on.check(RotX, false);
        on.check(CurveChannel::RotationY, false);
        on.check(RotZ, false);
        on.check(MoveX);
        QCOMPARE(on.view->data().count(), 1);
        // A band, and one more with Ctrl.
        on.drag(on.key(MoveX, 2) - QPoint(12, -12), on.key(MoveX, 4) + QPoint(12, -12));
        QCOMPARE(on.view->selection().count(), 3);
        on.click(on.key(MoveX, 8), Qt::ControlModifier);
        QCOMPARE(on.view->selection().count(), 4);
        // With Ctrl to a round number.
        const QPoint from = on.key(MoveX, 3);
        on.drag(from, from - QPoint(0, 41), Qt::ControlModifier);
        const QVector<double> moved = on.stored(MoveX);
        const double by = moved[3] - 3;
        QVERIFY(by > 0.5 && std::abs(std::remainder(by, 0.1)) < 1e-6);
        for (int frame = 0; frame < 11; ++frame)
            QVERIFY(std::abs(moved[frame] - (frame + (frame == 8 || (frame > 1 && frame < 5) ? by : 0))) <
                    0.02);
        QCOMPARE(on.block().translations.at(0, 3).y(), 5.0f);
        on.undoAll();
        QCOMPARE(on.now(), on.bytes);
        // With Shift a tenth as far, and from key to key.
        on.click(on.key(MoveX, 1));
        on.click(on.key(MoveX, 3), Qt::ShiftModifier);
        QCOMPARE(on.view->selection().count(), 3);
        const double pixel = on.perPixel(CurveUnit::Units);
        const QPoint fine = on.key(MoveX, 2);
        on.press(fine);
        on.move(fine, Qt::ShiftModifier);
        on.move(fine + QPoint(0, 60), Qt::ShiftModifier);
        QTest::mouseRelease(on.view, Qt::LeftButton, Qt::ShiftModifier, fine + QPoint(0, 60));
        QVERIFY(std::abs(on.stored(MoveX, 2) - (2 - 6 * pixel)) < 0.02);
        on.undoAll();
        QCOMPARE(on.now(), on.bytes);
    }

    void valuesAreTypedAndNudged()
    {
        Curves on(*m_files);
        on.check(MoveX);
        on.click(on.key(RotX, 3));
        on.click(on.key(RotX, 4), Qt::ControlModifier);
        on.enter(QStringLiteral("*=2"));
        QCOMPARE(on.stored(RotX, 3), 60.0);
        QCOMPARE(on.stored(RotX, 4), 80.0);
        on.enter(QStringLiteral("-15"));
        QCOMPARE(on.stored(RotX, 3), -15.0);
        QCOMPARE(on.stored(RotX, 4), -15.0);
        QCOMPARE(on.stored(RotX, 5), 50.0);
        // Taken out with Ctrl, one leaves the other; arrows go along the curve, to one key, and to the next
        // curve; Alt moves keys by a round number.
        on.click(on.key(RotX, 4), Qt::ControlModifier);
        QCOMPARE(on.view->selection().current(), (CurveKey{on.curve(RotX), 3}));
        on.type(Qt::Key_Right, Qt::ShiftModifier);
        on.type(Qt::Key_Right);
        QCOMPARE(on.view->selection().count(), 1);
        on.type(Qt::Key_Right);
        QCOMPARE(on.view->frame(), 6);
        on.type(Qt::Key_Escape);
        on.click(on.key(RotX, 7));
        on.type(Qt::Key_Right);
        QCOMPARE(on.view->selection().current().frame, 8);
        QCOMPARE(on.view->frame(), 8);
        on.type(Qt::Key_Down);
        QCOMPARE(on.view->selection().current(), (CurveKey{on.curve(RotX) + 1, 8}));
        on.type(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(on.view->selection().count(), 2);
        on.type(Qt::Key_Up, Qt::AltModifier);
        const double nudged = on.stored(CurveChannel::RotationY, 7) - 20;
        QVERIFY(nudged > 0.05 && on.stored(CurveChannel::RotationY, 8) == 20 + nudged);
        on.undoAll();
        QCOMPARE(on.now(), on.bytes);
    }

    void keysAreSmoothedOverARange()
    {
        Curves on(*m_files);
        on.check(MoveZ);
        find<IntSpinBox>(on.window, "sbCurveSmoothing")->setValue(2);
        QVERIFY(!find<QToolButton>(on.window, "btnCurveSmooth")->isEnabled());
        on.click(on.key(MoveZ, 2));
        on.click(on.key(MoveZ, 8), Qt::ShiftModifier);
        on.button("btnCurveSmooth");
        // 0 1 0 1 0: half of it, a quarter of the way at the ends; what is not selected stays.
        QCOMPARE(on.stored(MoveZ), (QVector<double>{0, 1, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 1, 0}));
        QVERIFY(on.undoAction()->text().contains(QStringLiteral("Smooth Keys")));
        on.undoAction()->trigger();
        QCOMPARE(on.now(), on.bytes);
        on.type(Qt::Key_A, Qt::ControlModifier);
        on.button("btnCurveStraighten");
        QCOMPARE(on.stored(MoveZ), QVector<double>(11, 0.0));
        QCOMPARE(on.stored(RotX, 10), 100.0);
        on.undoAll();
        QCOMPARE(on.now(), on.bytes);
        // All angles of a rotation are blended as one: a spike about z becomes half of it.
        select(on.window, "treeAnim", {{RecordKind::AnimBone, {0, 1}}});
        find<IntSpinBox>(on.window, "sbCurveSmoothing")->setValue(1);
        on.type(Qt::Key_A, Qt::ControlModifier);
        on.button("btnCurveSmooth");
        const double top = on.stored(RotZ, 5, 1), beside = on.stored(RotZ, 4, 1);
        QVERIFY2(std::abs(top - 20) < 0.5 && std::abs(beside - 10) < 0.5, qPrintable(QString::number(top)));
        QCOMPARE(on.stored(RotZ, 2, 1), 0.0);
        on.undoAll();
        QCOMPARE(on.now(), on.bytes);
    }

    void itFollowsWhatIsSelected()
    {
        Curves on(*m_files);
        auto *title = find<QLabel>(on.window, "lblCurvesTitle");
        auto *keep = find<QCheckBox>(on.window, "cbKeepBones");
        QVERIFY2(title->text().startsWith(QStringLiteral("Bone 0")), qPrintable(title->text()));
        // Several, from either tree; what has no bone leaves them.
        select(on.window, "treeSkinnedMesh", {{RecordKind::Bone, {0}}, {RecordKind::Bone, {1}}});
        QCOMPARE(on.view->data().sources().size(), size_t(2));
        QCOMPARE(on.view->data().sources()[0].bone, 1);
        select(on.window, "treeAnim", {{RecordKind::AnimBlock, {0}}});
        QCOMPARE(on.view->data().sources().size(), size_t(2));
        // An edit keeps both, and brings the tree to the front whose step it is.
        find<QTabWidget>(on.window, "tabTrees")->setCurrentIndex(0);
        on.drag(on.key(RotX, 3), on.key(RotX, 3) - QPoint(0, 20));
        QCOMPARE(find<QTabWidget>(on.window, "tabTrees")->currentIndex(), 1);
        QCOMPARE(on.view->data().sources().size(), size_t(2));
        QCOMPARE(on.view->data().sources()[0].bone, 1);
        QCOMPARE(on.view->selection().current(), (CurveKey{on.curve(RotX), 3}));
        const double once = on.shown(RotX, 3);
        on.type(Qt::Key_Up, Qt::AltModifier);
        QVERIFY(once > 0 && on.shown(RotX, 3) > once);
        on.undoAll();
        QCOMPARE(on.now(), on.bytes);
        QCOMPARE(on.view->data().sources().size(), size_t(2));
        keep->click();
        select(on.window, "treeAnim", {{RecordKind::AnimBone, {0, 0}}});
        QCOMPARE(on.view->data().sources().size(), size_t(2));
        keep->click();
        QCOMPARE(on.view->data().sources().size(), size_t(1));
        emit find<KVOpenGLWidget>(on.window, "viewSkinned")->bonePicked(1);
        QCOMPARE(on.view->data().sources()[0].bone, 1);
        // Another animation, one without tracks; and no dock does no work.
        find<QComboBox>(on.window, "cbAnimTrackBlock")->setFocus();
        QTest::keyClick(find<QComboBox>(on.window, "cbAnimTrackBlock"), Qt::Key_Down);
        QCOMPARE(on.view->data().count(), 0);
        on.toggle();
        QVERIFY(!on.view->data().block());
        select(on.window, "treeAnim", {{RecordKind::AnimBone, {0, 1}}});
        QVERIFY(!on.view->data().block());
        on.toggle();
        QCOMPARE(on.view->data().sources().size(), size_t(1));
        QCOMPARE(on.view->data().sources()[0].bone, 1);
    }

    void sharedTracksAreToldOfAndYawKeepsItsTurns()
    {
        AnimFile file = turningBones();
        file.blocks[0].nodes[1].rotationIndex = 0;
        file.blocks[0].frames[6].yawOffset = 0.6f + float(2 * M_PI);
        Curves on(*m_files, file);
        QVERIFY(find<QLabel>(on.window, "lblCurvesTitle")
                    ->text()
                    .contains(QStringLiteral("also followed by bone 1")));
        for (const auto channel : {RotX, CurveChannel::RotationY, RotZ})
            on.check(channel, false);
        on.check(CurveChannel::Yaw);
        QVERIFY(std::abs(on.stored(CurveChannel::Yaw, 6) - 34.38) < 0.01); // no jump
        on.click(on.key(CurveChannel::Yaw, 6));
        on.enter(QStringLiteral("45"));
        QVERIFY(std::abs(double(on.block().frames[6].yawOffset) - (M_PI / 4 + 2 * M_PI)) < 1e-5);
        on.undoAll();
        QCOMPARE(on.now(), on.bytes);
        // What is edited is what is selected.
        const RecordRef frames{RecordKind::AnimFrames, {0}};
        select(on.window, "treeAnim", {frames});
        on.type(Qt::Key_Up, Qt::AltModifier);
        QVERIFY(on.undoAction()->isEnabled());
        QCOMPARE(find<KVTreeView>(on.window, "treeAnim")->currentRecord(), frames);
    }

    // The block changes, and may go, before the dock hears of it.
    void framesAndAnimationsComeAndGo()
    {
        Curves on(*m_files);
        on.check(CurveChannel::Yaw);
        for (const int count : {400, 11, 2}) {
            on.click(on.key(RotX, count == 400 ? 10 : count == 11 ? 399 : 10));
            QCOMPARE(on.view->selection().count(), 1);
            on.setFrameCount(count);
            QCOMPARE(on.view->data().frameCount(), count);
            QVERIFY(on.view->selection().isEmpty());
            on.view->grab();
        }
        on.click(on.key(RotX, 1));
        for (int i = 0; i < 3; ++i) {
            const int last = int(on.document().model().blocks.size());
            on.document().undoStack()->push(new UC_AnimBlockPaste(
                on.document().editTarget(), {last, 0, 0}, AnimBlock(on.document().model().blocks[0])));
        }
        on.undoAll();
        // Keys are selected as long as they are the same ones.
        select(on.window, "treeAnim", {{RecordKind::AnimBone, {0, 0}}});
        on.click(on.key(RotX, 1));
        on.document().undoStack()->push(
            new UC_AnimAddAction(on.document().editTarget(), {0, 0, 0}, AnimAction()));
        QCOMPARE(on.view->selection().count(), 1);
        on.document().undoStack()->push(new UC_AnimBlockMotion(
            on.document().editTarget(), {0, 0, 0}, WholeBlock(on.block(), AnimBlock(on.block())), {}, {}));
        QVERIFY(on.view->selection().isEmpty());
        on.undoAll();
        // Without frames yaw has no line, either; without a bone the title asks for one.
        on.setFrameCount(0);
        const QImage empty = on.view->grab().toImage();
        on.check(CurveChannel::Yaw, false);
        QCOMPARE(on.view->data().count(), 0);
        QCOMPARE(on.view->grab().toImage(), empty);
    }

    void anglesGoOnWhereTheyWere()
    {
        AnimFile file = turningBones();
        for (int frame = 0; frame < 11; ++frame)
            file.blocks[0].rotations.at(0, frame) = Motion::turnOf({170.0 + frame, 80, 20}).toVector();
        Curves on(*m_files, file);
        on.click(on.key(RotX, 0));
        on.enter(QStringLiteral("182"));
        QCOMPARE(double(on.value->value()), 182.0);
        QCOMPARE(on.shown(RotX, 5), 175.0);
        on.click(on.key(CurveChannel::RotationY, 0));
        on.enter(QStringLiteral("100"));
        QCOMPARE(double(on.value->value()), 100.0);
        QCOMPARE(on.shown(RotX, 0), 182.0);
        QCOMPARE(on.shown(CurveChannel::RotationY, 5), 80.0);
        on.undoAll();
        QCOMPARE(on.now(), on.bytes);
        QCOMPARE(on.shown(RotX, 0), 170.0);
    }

    void hugeValuesAreZoomed()
    {
        AnimFile file = turningBones();
        for (int frame = 0; frame < 11; ++frame)
            file.blocks[0].translations.at(0, frame) = {1e12f, 0, 1e20f};
        Curves on(*m_files, file);
        for (const auto channel : {MoveX, MoveZ}) {
            on.check(channel);
            on.type(Qt::Key_Home);
            for (int notch = 0; notch < 200; ++notch)
                turnWheel(on.view, 120, Qt::ControlModifier);
            on.view->grab();
            QVERIFY(on.perPixel(CurveUnit::Units) > 0);
            on.check(channel, false);
        }
    }

    void aRealAnimationComesBack()
    {
        SKIP_WITHOUT_SHARED("gamedata/game/anims/knight/knight.anim");
        AnimFile file;
        SkinnedMesh mesh;
        QVERIFY(!file.read(TestSupport::shared(QStringLiteral("gamedata/game/anims/knight/knight.anim"))));
        mesh.nodes.resize(file.blocks[0].nodes.size());
        // One that follows a track.
        int bone = 0;
        while (file.blocks[0].nodes[size_t(bone)].rotationIndex >= file.blocks[0].rotations.trackCount())
            ++bone;
        Curves on(*m_files, file, mesh, bone);
        for (int i = 0; i < CurveChannelCount; ++i)
            on.check(CurveChannel(i));
        QVERIFY(on.view->data().count() > 0);
        on.type(Qt::Key_A, Qt::ControlModifier);
        on.type(Qt::Key_Up, Qt::AltModifier);
        on.button("btnCurveSmooth");
        on.button("btnCurveStraighten");
        QVERIFY(on.now() != on.bytes);
        on.undoAll();
        QCOMPARE(on.now(), on.bytes);
    }

private:
    std::optional<ProgramFolder> m_files;
};

QTEST_MAIN(tst_Curves)
#include "tst_curves.moc"
