// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CursorKeeper.h"
#include "TickTimer.h"
#include "Viewport.h"

#include <QAbstractEventDispatcher>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QToolTip>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <cmath>

// Real keys and a real mouse, the ticking clock and what the view tells the window. What each of them does to
// the camera, tst_viewtools says.
class tst_ViewportInput : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TestSupport::useSettingsHome(m_home); }
    void init() { m_view = makeView(); }
    void cleanup() { m_view.reset(); }
    void storedSettings();
    void keysFly();
    void flightKeepsItsSpeed();
    void dragTurnsTheViewAndHidesTheCursor();
    void aCursorThatStaysWhereItIs();
    void clicksPick();
    void tipsNameWhatIsMarked();
    void altTurnsAroundTheModel();
    void aWindowThatIsNotOnTheScreenCostsNoFrames();
    void pausedOrHiddenViewRests();
    void playingFollowsTheClock();

private:
    void sendMouse(QEvent::Type type, QPoint offset, Qt::MouseButton button, Qt::MouseButtons held,
                   Qt::KeyboardModifiers keys = Qt::NoModifier);
    void showWall();
    void press(Qt::MouseButton button) { sendMouse(QEvent::MouseButtonPress, {}, button, button); }
    void release(Qt::MouseButton button) { sendMouse(QEvent::MouseButtonRelease, {}, button, Qt::NoButton); }
    void playBlock(float speed, int frames);
    /// Of the clock, in milliseconds.
    int interval() const
    {
        return QAbstractEventDispatcher::instance()->registeredTimers(m_view.get()).first().interval;
    }

    QTemporaryDir m_home;
    std::unique_ptr<Viewport> m_view;
};

/// `offset` is from the middle, where a captured cursor is put back.
void tst_ViewportInput::sendMouse(QEvent::Type type, QPoint offset, Qt::MouseButton button,
                                  Qt::MouseButtons held, Qt::KeyboardModifiers keys)
{
    const QPoint centre(m_view->width() / 2, m_view->height() / 2);
    QMouseEvent event(type, centre + offset, m_view->mapToGlobal(centre + offset), button, held, keys);
    QApplication::sendEvent(m_view.get(), &event);
}

void tst_ViewportInput::playBlock(float speed, int frames)
{
    m_view->showBones({{}});
    m_view->anim.blocks[0].speed = speed;
    m_view->anim.blocks[0].setFrameCount(frames);
}

void tst_ViewportInput::storedSettings()
{
    Settings::BGColor.setValue(QColor(9, 8, 7));
    Settings::ShowAxisGizmo.setValue(true);
    Settings::MouseSpeed.setValue(2.5f);
    Settings::SurfSelectType.setValue(17);
    KVOpenGLWidget view;
    view.resize(200, 200);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QImage image = view.grabFramebuffer();
    QCOMPARE(image.pixelColor(100, 20), QColor(9, 8, 7));
    QVERIFY(image.pixelColor(64 + 20, 200 - 65) != QColor(9, 8, 7));
    QTest::keyPress(&view, Qt::Key_W);
    QTRY_VERIFY(view.camera().position().z() < 600.0f);
    QTest::keyRelease(&view, Qt::Key_W);
    QVERIFY(std::fabs(std::remainder(600.0f - view.camera().position().z(), 2.5f)) < 0.01f);
    QSettings().clear();
}

void tst_ViewportInput::keysFly()
{
    m_view->open();
    const QVector3D start = m_view->camera().position();
    // What the system sends while a key is held neither presses nor lets go.
    const auto repeat = [this](QEvent::Type type, Qt::Key key) {
        QKeyEvent event(type, key, Qt::NoModifier, {}, true);
        QApplication::sendEvent(m_view.get(), &event);
    };
    const int frames = m_view->frames;
    QTest::keyPress(m_view.get(), Qt::Key_A);
    repeat(QEvent::KeyRelease, Qt::Key_A);
    repeat(QEvent::KeyPress, Qt::Key_W);
    QTRY_VERIFY(m_view->camera().position().x() < start.x());
    QCOMPARE(m_view->camera().position().z(), start.z());
    QTRY_VERIFY(m_view->frames > frames);
    QTest::keyRelease(m_view.get(), Qt::Key_A);
    const QVector3D stopped = m_view->camera().position();
    repeat(QEvent::KeyPress, Qt::Key_C);
    QTest::qWait(30);
    QCOMPARE(m_view->camera().position(), stopped);

    QSignalSpy shown(m_view.get(), &KVOpenGLWidget::positionReadOut);
    QTest::keyClick(m_view.get(), Qt::Key_C);
    QVERIFY(shown.wait());
    QCOMPARE(shown.last()[0].toString(), QStringLiteral("X: 0.000000 Y: 600.000000 Z: -300.000000"));

    // Commands belong to the window, as does all that the view has no use for.
    for (const auto &[key, modifier] : {std::pair{Qt::Key_S, Qt::ControlModifier},
                                        {Qt::Key_F5, Qt::NoModifier},
                                        {Qt::Key_Shift, Qt::ShiftModifier}}) {
        QKeyEvent event(QEvent::KeyPress, key, modifier);
        QApplication::sendEvent(m_view.get(), &event);
        QCOMPARE(event.isAccepted(), event.key() == Qt::Key_Shift);
    }
}

// Whatever a frame costs, the camera flies a step a millisecond, short of a long wait; frames leave time for
// ticks, and the time asleep moves nothing.
void tst_ViewportInput::flightKeepsItsSpeed()
{
    qint64 now = 1000;
    TickTimer timer(*this, [&now] { return now; });
    QVERIFY(timer.mayPaint());
    timer.setPace(TickTimer::Pace::Moving);
    for (const auto &[wait, steps] : {std::pair(1, 1), {30, 30}, {200, 50}, {0, 1}, {30, 29}}) {
        now += wait;
        const TickTimer::Due due = timer.take();
        QCOMPARE(due.steps, steps);
        QCOMPARE(due.seconds, float(wait) / 1000.0f);
    }
    now += 3600 * 1000; // stopped, or asleep
    QCOMPARE(timer.take().seconds, 1.0f);
    timer.stop();
    now += 1000;
    timer.setPace(TickTimer::Pace::Moving);
    now += 5;
    QCOMPARE(timer.take().steps, 5);
    timer.paints();
    now += 16;
    QVERIFY(!timer.mayPaint());
    QCOMPARE(timer.take().seconds, 0.016f);
    now += 1;
    QVERIFY(timer.mayPaint());
    int paints = 0;
    for (const qint64 start = now; now < start + 3000; ++now) {
        if (!timer.mayPaint())
            continue;
        timer.paints();
        ++paints;
    }
    QCOMPARE(paints, 3 * 60);
    // A key that is pressed while it plays has not flown before, but the clock has run.
    timer.setPace(TickTimer::Pace::Playing);
    timer.take();
    now += 10;
    timer.setPace(TickTimer::Pace::Moving);
    now += 2;
    const TickTimer::Due due = timer.take();
    QCOMPARE(due.steps, 2);
    QCOMPARE(due.seconds, 0.012f);
}

void tst_ViewportInput::dragTurnsTheViewAndHidesTheCursor()
{
    m_view->open();
    const QPoint cursor = m_view->mapToGlobal(QPoint(30, 40));
    QCursor::setPos(cursor);
    QTRY_COMPARE(QCursor::pos(), cursor);
    press(Qt::RightButton);
    QCOMPARE(m_view->cursor().shape(), Qt::BlankCursor);
    QTRY_COMPARE(QCursor::pos(), m_view->mapToGlobal(QPoint(200, 150)));
    QTest::qWait(20);
    sendMouse(QEvent::MouseMove, {40, 2000}, Qt::NoButton, Qt::RightButton);
    QTRY_VERIFY(std::fabs(m_view->camera().pitch() + 89.0f) < 0.1f);
    QTRY_VERIFY(std::fabs(m_view->camera().yaw() - 160.0f) < 0.1f);
    QCursor::setPos(cursor);
    sendMouse(QEvent::MouseMove, {1, 0}, Qt::NoButton, Qt::RightButton);
    QCOMPARE(QCursor::pos(), m_view->mapToGlobal(QPoint(200, 150)));
    press(Qt::LeftButton);
    release(Qt::LeftButton);
    QCOMPARE(m_view->cursor().shape(), Qt::BlankCursor);
    release(Qt::RightButton);
    QCOMPARE(m_view->cursor().shape(), Qt::ArrowCursor);
    QTRY_COMPARE(QCursor::pos(), cursor);

    // Without the focus there is no release.
    QTest::keyPress(m_view.get(), Qt::Key_W);
    press(Qt::RightButton);
    m_view->clearFocus();
    QCOMPARE(m_view->cursor().shape(), Qt::ArrowCursor);
    const QVector3D stopped = m_view->camera().position();
    QTest::qWait(30);
    QCOMPARE(m_view->camera().position(), stopped);
}

// Some window systems let nobody move the cursor: what counts is how far the hand has moved it.
void tst_ViewportInput::aCursorThatStaysWhereItIs()
{
    for (const bool stays : {true, false}) {
        QPoint cursor; // on the screen
        int puts = 0;
        CursorKeeper keeper(*m_view, [&](const QPoint &place) {
            ++puts;
            return stays ? cursor : cursor = place;
        });
        const auto moves = [&](const QPoint &by) {
            cursor += by;
            return keeper.follow(m_view->mapFromGlobal(cursor));
        };
        cursor = m_view->mapToGlobal({30, 40});
        keeper.follow({30, 40});
        keeper.show(ViewCursor::Captured);
        QCOMPARE(moves({1, 0}), QPoint(1, 0));
        QCOMPARE(moves({5, -7}), QPoint(5, -7));
        QCOMPARE(m_view->mapFromGlobal(cursor),
                 stays ? QPoint(36, 33) : m_view->rect().center() + QPoint(1, 1));
        keeper.show(ViewCursor::Arrow);
        QCOMPARE(puts, stays ? 1 : 4);
    }
}

/// A wall of 100 by 100 units on a bone before the middle of the start view; the second bone is its child.
void tst_ViewportInput::showWall()
{
    m_view->mesh.surfaces = {{QStringLiteral("_white"), {}}, {QStringLiteral("_white"), {0, 1, 2, 0, 2, 3}}};
    for (const QPointF &corner : {QPointF(-50, -50), QPointF(-50, 50), QPointF(50, 50), QPointF(50, -50)})
        m_view->mesh.vertices.push_back({{float(corner.x()), 0.0f, float(corner.y())}, {}, {}, 0});
    m_view->showBones({{0, 0, 300}, {0, 0, 20}});
    m_view->open();
}

void tst_ViewportInput::clicksPick()
{
    showWall();
    QSignalSpy surfaces(m_view.get(), &KVOpenGLWidget::surfacePicked);
    QSignalSpy bones(m_view.get(), &KVOpenGLWidget::bonePicked);
    QSignalSpy nothing(m_view.get(), &KVOpenGLWidget::nothingPicked);
    const QPoint centre(m_view->width() / 2, m_view->height() / 2);
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, centre + QPoint(8, 8));
    QCOMPARE(surfaces, QList<QVariantList>{{1}});
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, centre + QPoint(80, 0)); // beside it
    QCOMPARE(surfaces.size(), 1);
    QCOMPARE(nothing.size(), 1);

    // A hot point lies over the bone that it hangs on, and both over the surface.
    QSignalSpy hotPoints(m_view.get(), &KVOpenGLWidget::hotPointPicked);
    m_view->mesh.hotPoints.resize(2);
    m_view->mesh.hotPoints[0].nodeId = 60;
    m_view->setSkinnedMesh(&m_view->mesh);
    m_view->resetCamera();
    m_view->setShowSkeleton(true);
    m_view->grabFramebuffer();
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, centre + QPoint(2, 1));
    QCOMPARE(bones, QList<QVariantList>{{0}});
    m_view->setShowHotPoints(true);
    m_view->grabFramebuffer();
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, centre + QPoint(1, 2));
    QCOMPARE(hotPoints, QList<QVariantList>{{1}});
    m_view->setSkinnedMesh(nullptr);
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, centre);
    QCOMPARE(bones.size() + surfaces.size(), 2);
}

void tst_ViewportInput::tipsNameWhatIsMarked()
{
    showWall();
    m_view->tools().hover->setNames(
        [](int bone) { return QStringLiteral("Bone %1").arg(bone); },
        [](int hotPoint) { return QStringLiteral("Hot point %1").arg(hotPoint); });
    m_view->mesh.hotPoints.resize(1);
    m_view->setSkinnedMesh(&m_view->mesh);
    m_view->setShowSkeleton(true);
    for (const char *name : {"Bone 0", "Hot point 0"}) {
        m_view->grabFramebuffer();
        sendMouse(QEvent::MouseMove, {1, 2}, Qt::NoButton, Qt::NoButton);
        QTRY_COMPARE(QToolTip::text(), QLatin1String(name));
        sendMouse(QEvent::MouseMove, {60, 60}, Qt::NoButton, Qt::NoButton);
        QTRY_VERIFY(!QToolTip::isVisible());
        m_view->setShowHotPoints(true);
    }
}

void tst_ViewportInput::altTurnsAroundTheModel()
{
    showWall();
    const QVector3D wall(0.0f, 300.0f, 0.0f);
    const auto wheel = [this](QPoint turn, Qt::KeyboardModifiers keys) {
        QWheelEvent event({200, 150}, m_view->mapToGlobal({200, 150}), {}, turn, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_view.get(), &event);
        return event.isAccepted();
    };
    // The wall in the middle of the view is what it turns around.
    sendMouse(QEvent::MouseButtonPress, {}, Qt::LeftButton, Qt::LeftButton, Qt::AltModifier);
    QCOMPARE(m_view->cursor().shape(), Qt::ClosedHandCursor);
    sendMouse(QEvent::MouseMove, {180, 0}, Qt::NoButton, Qt::LeftButton, Qt::AltModifier);
    sendMouse(QEvent::MouseButtonRelease, {180, 0}, Qt::LeftButton, Qt::NoButton, Qt::AltModifier);
    QCOMPARE(m_view->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(m_view->camera().yaw(), 90.0f);
    const QVector3D seen = m_view->camera().viewMatrix().map(wall);
    QVERIFY(std::fabs(seen.x()) < 5.0f && std::fabs(seen.z() + 601.0f) < 5.0f); // a pixel or two

    QVERIFY(wheel({0, 120}, Qt::NoModifier));
    QVERIFY(wheel({0, 120}, Qt::AltModifier));
    QVERIFY(m_view->camera().viewMatrix().map(wall).z() > seen.z() + 100.0f);

    // Another model is turned around itself.
    m_view->frameAll();
    QVERIFY(m_view->camera().framed());
    m_view->refreshVertices(); // scaled or rotated
    QVERIFY(!m_view->camera().framed());

    m_view->frameAll();
    m_view->setStaticMesh(nullptr); // which is not shown
    QVERIFY(m_view->camera().framed());
    m_view->setSkinnedMesh(&m_view->mesh);
    QVERIFY(!m_view->camera().framed());
}

void tst_ViewportInput::aWindowThatIsNotOnTheScreenCostsNoFrames()
{
    QWidget window;
    auto *view = new Viewport(&window);
    (new QVBoxLayout(&window))->addWidget(view);
    view->embed();
    for (const int width : {500, 600, 700}) { // as layouts do while they settle
        window.resize(width, 400);
        window.show();
        QCOMPARE(view->frames, 0);
    }
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(view->frames > 0);
    QTest::qWait(100);
    const int before = view->frames;
    window.resize(800, 500);
    QTRY_VERIFY(view->frames > before);
    QTRY_COMPARE(view->grabFramebuffer().size(), view->size());
}

void tst_ViewportInput::pausedOrHiddenViewRests()
{
    playBlock(1.0f, 11);
    m_view->setShowSkeleton(true); // so that the mouse is followed
    m_view->open();
    playback().playState = PlayState::Paused;
    QTest::qWait(200);
    int frames = m_view->frames;
    QTest::qWait(500);
    QCOMPARE(m_view->frames, frames);
    // Nor does it wake while the mouse goes over it.
    const int idle = interval();
    sendMouse(QEvent::MouseMove, {5, 5}, Qt::NoButton, Qt::NoButton);
    QCOMPARE(interval(), idle);
    QVERIFY(idle > 1);

    // Nor does what plays but stands on its last frame keep it up.
    m_view->anim.blocks[0].loopFrame = 10;
    playback().time = 0.5f;
    playback().playState = PlayState::Playing;
    QTRY_VERIFY(interval() <= 17); // for ten seconds
    playback().time = 9.9f;
    QTRY_COMPARE(interval(), idle);
    QCOMPARE(playback().time, 10.0f);
    playback().playState = PlayState::Paused;
    m_view->grabFramebuffer();
    frames = m_view->frames;

    // It notices the slider by itself.
    QSignalSpy shown(m_view.get(), &KVOpenGLWidget::frameShown);
    QSignalSpy label(m_view.get(), &KVOpenGLWidget::frameLabelChanged);
    playback().time = 4.0f;
    QTRY_COMPARE(label, QList<QVariantList>{{QStringLiteral("Frame: 4 / 10")}});
    QTRY_VERIFY(!shown.isEmpty());
    QCOMPARE(shown.last()[0].toInt(), 4);
    QCOMPARE(m_view->frames, frames + 1);

    playback().time = 0.0f;
    playback().playState = PlayState::Playing;
    QTRY_VERIFY(playback().time > 0.0f);
    m_view->hide();
    const float time = playback().time;
    QTest::qWait(100);
    QCOMPARE(playback().time, time);
    m_view->show();
    QTRY_VERIFY(playback().time > time);
}

void tst_ViewportInput::playingFollowsTheClock()
{
    playBlock(20.0f, 201);
    m_view->open();
    QTRY_VERIFY(interval() > 16); // at rest
    QSignalSpy shown(m_view.get(), &KVOpenGLWidget::frameShown);
    QSignalSpy label(m_view.get(), &KVOpenGLWidget::frameLabelChanged);
    QElapsedTimer clock;
    clock.start();
    playback().playState = PlayState::Playing;
    m_view->playbackChanged();
    QTRY_VERIFY(playback().time > 0.5f);
    QVERIFY(clock.elapsed() >= 490);
    // The pose stands on the frame before the time, which the label follows.
    m_view->grabFramebuffer();
    QCOMPARE(shown.last()[0].toInt(), int(playback().time * 20.0f));
    QTRY_VERIFY(label.size() > 5);

    playback().blockIndex = -1;
    QTRY_COMPARE(label.last()[0].toString(), QStringLiteral("Invalid Animation"));

    // A view of another tab is silent.
    m_view->setActive(false);
    playback().blockIndex = 0;
    const float time = playback().time;
    const int labels = label.size();
    QSignalSpy readOut(m_view.get(), &KVOpenGLWidget::positionReadOut);
    QTest::qWait(250);
    QVERIFY(readOut.isEmpty() && label.size() == labels && playback().time == time);
}

QTEST_MAIN(tst_ViewportInput)
#include "tst_viewportinput.moc"
