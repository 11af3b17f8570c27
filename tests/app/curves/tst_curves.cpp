// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ActionTrack.h"
#include "CurveView.h"
#include "CurvesDock.h"
#include "FloatSpinBox.h"
#include "Hand.h"
#include "KVOpenGLWidget.h"
#include "Playback.h"
#include "TurnAngles.h"

#include <cmath>

namespace {
/// Two bones that turn and one that moves, in 11 frames.
AnimFile turningBones()
{
    AnimFile file = twoBlocks();
    AnimBlock &block = file.blocks[0];
    block.setTranslationCount(1);
    block.setRotationCount(2);
    block.nodes[0].translationIndex = 0;
    block.nodes[0].rotationIndex = 0;
    block.nodes[1].rotationIndex = 1;
    for (int frame = 0; frame < 11; ++frame) {
        block.translations.at(0, frame) = {float(frame), 5.0f, float(frame % 2)};
        block.rotations.at(0, frame) = Motion::turnOf({10.0 * frame, 20, -5.0 * frame}).toVector();
        block.rotations.at(1, frame) = Motion::turnOf({0, 0, frame == 5 ? 40.0 : 0.0}).toVector();
        block.frames[size_t(frame)].yawOffset = 0.1f * float(frame);
    }
    return file;
}

/// A window with an animation and the dock of its curves.
struct Curves
{
    explicit Curves(const TestFolder &files, const AnimFile &file = turningBones(),
                    const SkinnedMesh &mesh = triangleMan(), int bone = 0)
        : folder(files)
        , window({files.save("a.skinnedmesh", mesh), files.save("a.anim", file)})
        , view(find<CurveView>(window, "curveView"))
        , value(find<FloatSpinBox>(window, "sbCurveValue"))
    {
        window.resize(1300, 900);
        select(window, "treeAnim", {{RecordKind::AnimBone, {0, bone}}});
        toggle();
        QTRY_VERIFY(view->data().count() > 0 && view->height() > 100);
        bytes = now();
    }

    void toggle() { QTest::keyClick(&window, Qt::Key_F7); }

    QByteArray now() const
    {
        if (playback().anim->write(folder.path("now.anim")))
            qFatal("not written");
        return TestSupport::readFile(folder.path("now.anim"));
    }
    const AnimBlock &block() const { return playback().anim->blocks[size_t(playback().blockIndex)]; }
    /// What the file says now, to a hundredth.
    double stored(CurveChannel channel, int frame, int bone = 0) const
    {
        CurveData data;
        data.show(&block(), {bone}, 1U << int(channel));
        return std::round(data.value(0, frame) * 100) / 100;
    }
    QVector<double> stored(CurveChannel channel) const
    {
        QVector<double> all;
        for (int frame = 0; frame < block().frameCount(); ++frame)
            all += stored(channel, frame);
        return all;
    }
    void check(CurveChannel channel, bool on = true)
    {
        auto *list = find<QListWidget>(window, "listCurveChannels");
        QListWidgetItem *item = list->item(int(channel));
        list->setCurrentItem(item);
        if ((item->checkState() == Qt::Checked) != on)
            QTest::keyClick(list, Qt::Key_Space);
    }
    int curve(CurveChannel channel) const
    {
        for (int i = 0; i < view->data().count(); ++i) {
            if (view->data().curves()[size_t(i)].channel == channel)
                return i;
        }
        qFatal("not shown");
    }
    QPoint key(CurveChannel channel, int frame) const
    {
        return view->places().placeOf({curve(channel), frame}).toPoint();
    }
    double perPixel(CurveUnit unit) const { return view->places().values(unit).perPixel(); }
    void press(const QPoint &at, Qt::KeyboardModifiers keys = {})
    {
        QTest::mousePress(view, Qt::LeftButton, keys, at);
    }
    void move(const QPoint &to, Qt::KeyboardModifiers keys = {})
    {
        QMouseEvent event(QEvent::MouseMove, to, view->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, keys);
        QApplication::sendEvent(view, &event);
    }
    void drag(const QPoint &from, const QPoint &to, Qt::KeyboardModifiers keys = {})
    {
        press(from);
        move((from + to) / 2, keys);
        move(to, keys);
        QTest::mouseRelease(view, Qt::LeftButton, keys, to);
    }
    void click(const QPoint &at, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(view, Qt::LeftButton, keys, at);
    }
    void type(int key, Qt::KeyboardModifiers keys = {})
    {
        view->setFocus();
        QTest::keyClick(view, Qt::Key(key), keys);
    }
    void enter(const QString &text)
    {
        value->setFocus();
        value->selectAll();
        QTest::keyClicks(value, text);
        QTest::keyClick(value, Qt::Key_Return);
    }
    void button(const char *name) { find<QToolButton>(window, name)->click(); }
    QAction *undoAction() { return find<QAction>(window, "actionUndo"); }
    void undoAll()
    {
        for (int i = 0; i < 20 && undoAction()->isEnabled(); ++i)
            undoAction()->trigger();
    }

    const TestFolder &folder;
    ShownWindow window;
    CurveView *view;
    FloatSpinBox *value;
    QByteArray bytes;
};
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
        // Arrows go along the curve and to the next; Alt moves keys by a round number.
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
