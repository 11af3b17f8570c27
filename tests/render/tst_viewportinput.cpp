// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "Viewport.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>
#include <memory>

// Keys, mouse, the ticking clock and what the view tells the window.
class tst_ViewportInput : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TestSupport::useSettingsHome(m_home); }
    void init();
    void cleanup();
    void storedSettings();
    void cameraKeyShowsTheStart();
    void keysFly();
    void autoRepeatChangesNothing();
    void commandsBelongToTheWindow();
    void dragTurnsTheView();
    void clickPicksAndDragDoesNot();
    void tipsNameBones();
    void altTurnsAroundTheModel();
    void anotherModelIsTurnedAroundItself();
    void captureHidesTheCursor();
    void lostFocusReleasesEverything();
    void pausedViewRests();
    void hiddenViewRests();
    void playingFollowsTheClock();
    void inactiveViewIsSilent();

private:
    void sendMouse(QEvent::Type type, QPoint offset, Qt::MouseButton button, Qt::MouseButtons held,
                   Qt::KeyboardModifiers keys = Qt::NoModifier);
    void showWall();
    void press(Qt::MouseButton button) { sendMouse(QEvent::MouseButtonPress, {}, button, button); }
    void release(Qt::MouseButton button) { sendMouse(QEvent::MouseButtonRelease, {}, button, Qt::NoButton); }
    void playBlock(float speed, int frames);

    QTemporaryDir m_home;
    std::unique_ptr<Viewport> m_view;
    SkinnedMesh m_mesh;
    AnimFile m_anim;
};

void tst_ViewportInput::init()
{
    playback() = {};
    useSurfaceFormat(false);
    m_view = std::make_unique<Viewport>();
}

void tst_ViewportInput::cleanup()
{
    m_view.reset();
    playback() = {};
}

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
    m_mesh = {};
    m_mesh.nodes.resize(1);
    m_anim = {};
    m_anim.blocks.resize(1);
    m_anim.blocks[0].nodes.resize(1);
    m_anim.blocks[0].speed = speed;
    m_anim.blocks[0].setFrameCount(frames);
    playback().mesh = &m_mesh;
    playback().anim = &m_anim;
    m_view->setSkinnedMeshMode(true);
    m_view->setSkinnedMesh(&m_mesh);
}

void tst_ViewportInput::storedSettings()
{
    Settings::BGColor.setValue(QColor(9, 8, 7));
    Settings::ShowAxisGizmo.setValue(true);
    Settings::MouseSpeed.setValue(2.5f);
    Settings::SurfSelectType.setValue(17);
    {
        KVOpenGLWidget view;
        view.resize(200, 200);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QImage image = view.grabFramebuffer();
        QCOMPARE(image.pixelColor(100, 20), QColor(9, 8, 7));
        QVERIFY(image.pixelColor(64 + 20, 200 - 65) != QColor(9, 8, 7));
    }
    m_view = std::make_unique<Viewport>();
    m_view->open();
    const float before = m_view->camera().position().z();
    QTest::keyPress(m_view.get(), Qt::Key_W);
    QTRY_VERIFY(m_view->camera().position().z() < before);
    QTest::keyRelease(m_view.get(), Qt::Key_W);
    const float steps = (before - m_view->camera().position().z()) / 2.5f;
    QVERIFY(std::fabs(steps - std::round(steps)) < 0.01f);
    QSettings().clear();
}

void tst_ViewportInput::cameraKeyShowsTheStart()
{
    m_view->open();
    QTest::keyClick(m_view.get(), Qt::Key_W);
    QTest::keyPress(m_view.get(), Qt::Key_D);
    QTest::qWait(50);
    QTest::keyRelease(m_view.get(), Qt::Key_D);
    QSignalSpy shown(m_view.get(), &KVOpenGLWidget::positionReadOut);
    QVERIFY(shown.wait());
    QVERIFY(shown.last()[0].toString() != QStringLiteral("X: 0.000000 Y: 600.000000 Z: -300.000000"));
    QTest::keyClick(m_view.get(), Qt::Key_C);
    QVERIFY(shown.wait());
    QCOMPARE(shown.last()[0].toString(), QStringLiteral("X: 0.000000 Y: 600.000000 Z: -300.000000"));
}

void tst_ViewportInput::keysFly()
{
    m_view->open();
    const QVector3D start = m_view->camera().position();
    const int frames = m_view->frames;
    QTest::keyPress(m_view.get(), Qt::Key_A);
    QTRY_VERIFY(m_view->camera().position().x() < start.x());
    QTRY_VERIFY(m_view->frames > frames);
    QTest::keyRelease(m_view.get(), Qt::Key_A);
    const QVector3D stopped = m_view->camera().position();
    QTest::qWait(30);
    QCOMPARE(m_view->camera().position(), stopped);
    QCOMPARE(stopped.y(), start.y());

    // Not while the left button is held.
    press(Qt::LeftButton);
    QTest::keyPress(m_view.get(), Qt::Key_W);
    QTest::qWait(30);
    QCOMPARE(m_view->camera().position(), stopped);
    release(Qt::LeftButton);
    QTRY_VERIFY(m_view->camera().position() != stopped);
}

void tst_ViewportInput::autoRepeatChangesNothing()
{
    m_view->open();
    const QVector3D start = m_view->camera().position();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_W, Qt::NoModifier, QStringLiteral("w"), true);
    QApplication::sendEvent(m_view.get(), &press);
    QTest::qWait(20);
    QCOMPARE(m_view->camera().position(), start);
    QTest::keyPress(m_view.get(), Qt::Key_W);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_W, Qt::NoModifier, QStringLiteral("w"), true);
    QApplication::sendEvent(m_view.get(), &release);
    QVERIFY(m_view->camera().flies());
}

void tst_ViewportInput::commandsBelongToTheWindow()
{
    m_view->open();
    QKeyEvent save(QEvent::KeyPress, Qt::Key_S, Qt::ControlModifier);
    QApplication::sendEvent(m_view.get(), &save);
    QVERIFY(!save.isAccepted());
    QVERIFY(!m_view->camera().flies());
    QKeyEvent other(QEvent::KeyPress, Qt::Key_F5, Qt::NoModifier);
    QApplication::sendEvent(m_view.get(), &other);
    QVERIFY(!other.isAccepted());
}

void tst_ViewportInput::dragTurnsTheView()
{
    m_view->open();
    press(Qt::RightButton);
    // The cursor may still be on its way to the middle.
    sendMouse(QEvent::MouseMove, {40, 0}, Qt::NoButton, Qt::RightButton);
    QCOMPARE(m_view->camera().targetYaw(), 180.0f);
    QTest::qWait(20);
    const float target = m_view->camera().targetYaw();
    sendMouse(QEvent::MouseMove, {40, 2000}, Qt::NoButton, Qt::RightButton);
    QCOMPARE(m_view->camera().targetYaw(), target - 20.0f);
    QCOMPARE(m_view->camera().targetPitch(), -89.0f);
    QTRY_VERIFY(std::fabs(m_view->camera().pitch() + 89.0f) < 0.1f);
    release(Qt::RightButton);
}

/// A wall of 100 by 100 units on a bone before the middle of the start view; the second bone is its child.
void tst_ViewportInput::showWall()
{
    playBlock(10.0f, 1);
    m_mesh.nodes.resize(2);
    m_mesh.nodes[0].childNodes = {1};
    m_mesh.surfaces = {{QStringLiteral("_white"), {}}, {QStringLiteral("_white"), {0, 1, 2, 0, 2, 3}}};
    m_mesh.vertices = {{{-50, 0, -50}, {}, {}, 0},
                       {{-50, 0, 50}, {}, {}, 0},
                       {{50, 0, 50}, {}, {}, 0},
                       {{50, 0, -50}, {}, {}, 0}};
    m_anim.blocks[0].nodes.resize(2);
    m_anim.blocks[0].nodes[0].initialPosition = {0, 0, 300};
    m_anim.blocks[0].nodes[1].initialPosition = {0, 0, 20};
    m_view->setSkinnedMesh(&m_mesh);
    m_view->open();
}

void tst_ViewportInput::clickPicksAndDragDoesNot()
{
    showWall();
    QSignalSpy surfaces(m_view.get(), &KVOpenGLWidget::surfacePicked);
    QSignalSpy bones(m_view.get(), &KVOpenGLWidget::bonePicked);
    const QPoint centre(m_view->width() / 2, m_view->height() / 2);
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, centre + QPoint(8, 8));
    QCOMPARE(surfaces, QList<QVariantList>{{1}});
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, centre + QPoint(80, 0)); // beside it
    QTest::mouseClick(m_view.get(), Qt::RightButton, {}, centre);
    press(Qt::LeftButton);
    QTest::qWait(20);
    sendMouse(QEvent::MouseMove, {6, 0}, Qt::NoButton, Qt::LeftButton);
    sendMouse(QEvent::MouseMove, {-6, 0}, Qt::NoButton, Qt::LeftButton); // there and back is a drag
    release(Qt::LeftButton);
    QCOMPARE(surfaces.size(), 1);

    m_view->resetCamera();
    m_view->setShowSkeleton(true);
    m_view->grabFramebuffer();
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, centre + QPoint(2, 1));
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, centre + QPoint(10, 10));
    QCOMPARE(bones, QList<QVariantList>{{0}});
    QCOMPARE(surfaces.size(), 2);

    // A hot point lies over the bone that it hangs on.
    QSignalSpy hotPoints(m_view.get(), &KVOpenGLWidget::hotPointPicked);
    m_mesh.hotPoints.resize(2);
    m_mesh.hotPoints[0].nodeId = 60;
    m_view->setSkinnedMesh(&m_mesh);
    m_view->setShowHotPoints(true);
    m_view->grabFramebuffer();
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, centre + QPoint(1, 2));
    QCOMPARE(hotPoints, QList<QVariantList>{{1}});
    QCOMPARE(bones.size(), 1);
    m_view->setSkinnedMesh(nullptr);
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, centre);
    QCOMPARE(bones.size() + surfaces.size(), 3);
}

void tst_ViewportInput::tipsNameBones()
{
    showWall();
    QStringList asked;
    const auto name = [&asked](int bone) {
        asked << QStringLiteral("Bone %1").arg(bone);
        return asked.last();
    };
    m_view->setMarkNames(name, [](int hotPoint) { return QStringLiteral("Hot point %1").arg(hotPoint); });
    m_view->setShowSkeleton(true);
    m_view->grabFramebuffer();
    sendMouse(QEvent::MouseMove, {60, 60}, Qt::NoButton, Qt::NoButton);
    QVERIFY(asked.isEmpty());
    sendMouse(QEvent::MouseMove, {1, 2}, Qt::NoButton, Qt::NoButton);
    sendMouse(QEvent::MouseMove, {2, 1}, Qt::NoButton, Qt::NoButton);
    QCOMPARE(asked, QStringList{QStringLiteral("Bone 0")});
    QTRY_COMPARE(QToolTip::text(), QStringLiteral("Bone 0"));
    sendMouse(QEvent::MouseMove, {60, 60}, Qt::NoButton, Qt::NoButton);
    QTRY_VERIFY(!QToolTip::isVisible());
    m_mesh.hotPoints.resize(1);
    m_view->setSkinnedMesh(&m_mesh);
    m_view->setShowHotPoints(true);
    m_view->grabFramebuffer();
    sendMouse(QEvent::MouseMove, {1, 2}, Qt::NoButton, Qt::NoButton);
    QTRY_COMPARE(QToolTip::text(), QStringLiteral("Hot point 0"));
}

void tst_ViewportInput::altTurnsAroundTheModel()
{
    showWall();
    const QVector3D start = m_view->camera().position();
    const QVector3D wall(0.0f, 300.0f, 0.0f);
    const auto drag = [this](Qt::MouseButton button, QPoint way, Qt::KeyboardModifiers keys) {
        sendMouse(QEvent::MouseButtonPress, {}, button, button, keys);
        sendMouse(QEvent::MouseMove, way / 2, Qt::NoButton, button, keys);
        sendMouse(QEvent::MouseMove, way, Qt::NoButton, button, keys);
        sendMouse(QEvent::MouseButtonRelease, way, button, Qt::NoButton, keys);
    };
    const auto wheel = [this](QPoint turn, Qt::KeyboardModifiers keys) {
        QWheelEvent event({200, 150}, m_view->mapToGlobal({200, 150}), {}, turn, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_view.get(), &event);
        return event.isAccepted();
    };
    // The wall in the middle of the view is what it turns around.
    drag(Qt::LeftButton, {180, 0}, Qt::AltModifier);
    QCOMPARE(m_view->camera().yaw(), 90.0f);
    const QVector3D seen = m_view->camera().viewMatrix().map(wall);
    QVERIFY(std::fabs(seen.x()) < 5.0f && std::fabs(seen.z() + 601.0f) < 5.0f); // a pixel or two
    QVERIFY(!m_view->camera().isCaptured());
    QCOMPARE(m_view->cursor().shape(), Qt::ArrowCursor);

    QVERIFY(!wheel({0, 120}, Qt::NoModifier));
    QVERIFY(wheel({120, 0}, Qt::AltModifier)); // turned sideways by the system
    QVERIFY(m_view->camera().viewMatrix().map(wall).z() > seen.z() + 20.0f);
    const QVector3D before = m_view->camera().position();
    drag(Qt::MiddleButton, {0, 50}, Qt::AltModifier);
    QVERIFY(m_view->camera().position().y() < before.y() - 20.0f);

    // The same without Alt in orbit mode, and no flight.
    m_view->resetCamera();
    m_view->setOrbitMode(true);
    drag(Qt::LeftButton, {-180, 0}, Qt::NoModifier);
    QCOMPARE(m_view->camera().yaw(), 270.0f);
    QVERIFY(wheel({0, -120}, Qt::NoModifier));
    m_view->setOrbitMode(false);
    m_view->resetCamera();
    drag(Qt::LeftButton, {180, 0}, Qt::NoModifier);
    QCOMPARE(m_view->camera().yaw(), 180.0f);
    QCOMPARE(m_view->camera().position(), start);
}

void tst_ViewportInput::anotherModelIsTurnedAroundItself()
{
    showWall();
    m_view->frameAll();
    QVERIFY(m_view->camera().framed());
    m_view->refreshVertices(); // scaled or rotated
    QVERIFY(!m_view->camera().framed());

    m_view->frameAll();
    QVERIFY(m_view->camera().framed());
    m_view->setStaticMesh(nullptr); // which is not shown
    QVERIFY(m_view->camera().framed());
    SkinnedMesh other = m_mesh;
    playback().mesh = &other;
    m_view->setSkinnedMesh(&other);
    QVERIFY(!m_view->camera().framed());
    playback().mesh = &m_mesh;
    m_view->setSkinnedMesh(&m_mesh);
}

void tst_ViewportInput::captureHidesTheCursor()
{
    m_view->open();
    const QPoint cursor = m_view->mapToGlobal(QPoint(30, 40));
    QCursor::setPos(cursor);
    press(Qt::LeftButton);
    QCOMPARE(m_view->cursor().shape(), Qt::BlankCursor);
    QCOMPARE(QCursor::pos(), m_view->mapToGlobal(QPoint(200, 150)));
    press(Qt::RightButton);
    release(Qt::RightButton);
    QCOMPARE(m_view->cursor().shape(), Qt::BlankCursor);
    release(Qt::LeftButton);
    QCOMPARE(m_view->cursor().shape(), Qt::ArrowCursor);
    QCOMPARE(QCursor::pos(), cursor);
}

void tst_ViewportInput::lostFocusReleasesEverything()
{
    QWidget window;
    QLineEdit other(&window);
    m_view->setParent(&window);
    m_view->setGeometry(0, 40, 300, 200);
    window.resize(300, 240);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    m_view->setFocus();
    QTest::keyPress(m_view.get(), Qt::Key_W);
    press(Qt::RightButton);
    QVERIFY(m_view->camera().flies());
    other.setFocus();
    QVERIFY(!m_view->camera().flies());
    QVERIFY(!m_view->camera().isCaptured());
    QCOMPARE(m_view->cursor().shape(), Qt::ArrowCursor);
    m_view->setParent(nullptr);
}

void tst_ViewportInput::pausedViewRests()
{
    playBlock(10.0f, 11);
    m_view->open();
    playback().playState = PlayState::Paused;
    QTest::qWait(200);
    const int frames = m_view->frames;
    QTest::qWait(500);
    QCOMPARE(m_view->frames, frames);

    // It notices the slider by itself.
    QSignalSpy shown(m_view.get(), &KVOpenGLWidget::frameShown);
    QSignalSpy label(m_view.get(), &KVOpenGLWidget::frameLabelChanged);
    playback().time = 0.4f;
    QTRY_COMPARE(label.size(), 1);
    QCOMPARE(label[0][0].toString(), QStringLiteral("Frame: 4 / 10"));
    QTRY_VERIFY(!shown.isEmpty());
    QCOMPARE(shown.last()[0].toInt(), 4);
    QCOMPARE(m_view->frames, frames + 1);
}

void tst_ViewportInput::hiddenViewRests()
{
    playBlock(10.0f, 11);
    m_view->open();
    playback().playState = PlayState::Playing;
    QTRY_VERIFY(playback().time > 0.0f);
    m_view->hide();
    const float time = playback().time;
    QTest::qWait(100);
    QCOMPARE(playback().time, time);
    m_view->show();
    QTRY_VERIFY(playback().time > time);
    // The time hidden does not count.
    QVERIFY(playback().time < time + 0.09f);
}

void tst_ViewportInput::playingFollowsTheClock()
{
    playBlock(20.0f, 201);
    m_view->open();
    QSignalSpy shown(m_view.get(), &KVOpenGLWidget::frameShown);
    QSignalSpy label(m_view.get(), &KVOpenGLWidget::frameLabelChanged);
    playback().playState = PlayState::Playing;
    m_view->playbackChanged();
    QElapsedTimer clock;
    clock.start();
    QTRY_VERIFY(playback().time > 0.5f);
    QVERIFY(clock.elapsed() >= 490);
    // The pose stands on the frame before the time, the label names the nearest.
    m_view->grabFramebuffer();
    QCOMPARE(shown.last()[0].toInt(), int(playback().time * 20.0f));
    const float played = playback().time;
    QTRY_VERIFY(label.size() > 5);
    const QString text = label.last()[0].toString();
    const int labelled = text.mid(7).section(QLatin1Char(' '), 0, 0).toInt();
    QVERIFY(text.endsWith(QStringLiteral(" / 200")));
    QVERIFY(labelled >= FrameLabel::nearestFrame(played, 20.0f) - 1 &&
            labelled <= FrameLabel::nearestFrame(playback().time, 20.0f));

    playback().blockIndex = -1;
    QTRY_COMPARE(label.last()[0].toString(), QStringLiteral("Invalid Animation"));
}

void tst_ViewportInput::inactiveViewIsSilent()
{
    playBlock(10.0f, 11);
    m_view->setActive(false);
    playback().playState = PlayState::Playing;
    QSignalSpy shown(m_view.get(), &KVOpenGLWidget::positionReadOut);
    QSignalSpy label(m_view.get(), &KVOpenGLWidget::frameLabelChanged);
    m_view->open();
    QTest::qWait(250);
    QVERIFY(shown.isEmpty());
    QVERIFY(label.isEmpty());
    QCOMPARE(playback().time, 0.0f);
}

QTEST_MAIN(tst_ViewportInput)
#include "tst_viewportinput.moc"
