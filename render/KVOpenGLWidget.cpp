// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KVOpenGLWidget.h"

#include "CrashReport.h"
#include "EventWords.h"
#include "FlightTool.h"
#include "GizmoTool.h"
#include "Log.h"
#include "OrbitTool.h"
#include "PlayClock.h"
#include "Settings.h"
#include "TurntableTool.h"
#include "ViewStatistics.h"

#include <QOpenGLContext>
#include <QTimer>
#include <QTimerEvent>
#include <QToolTip>

KVOpenGLWidget::KVOpenGLWidget(QWidget *parent)
    : RenewableGLWidget(parent)
    , m_sight(m_scene, m_camera)
    , m_cameraCommands(m_camera, m_sight, [this] { cameraMoved(); })
    , m_tools(
          m_camera, m_sight, [this](PickTool::Kind kind, int index) { tellPicked(kind, index); },
          [this](const QPoint &pixel, const QString &text) {
              QToolTip::showText(mapToGlobal(pixel), text, this);
          })
    , m_recorder(*this, m_tools)
    , m_timer(*this)
{
    setMoveSpeed(Settings::MouseSpeed.value());
    setShowStatistics(Settings::ShowStatistics.value());
    setOrbitMode(Settings::OrbitMode.value());
    setShowSkeleton(m_scene.frame.marks.skeleton); // as the settings want it
    m_tools.gizmo->setFollower(
        [this](const GizmoHover &hover) { change(m_scene.frame.gizmoHover, GizmoHover(hover)); });
    setFocusPolicy(Qt::StrongFocus);
    new EventWords(*this, [this] { return m_scene.marks(); });
}

KVOpenGLWidget::~KVOpenGLWidget()
{
    if (context())
        disconnect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &KVOpenGLWidget::releaseGL);
    releaseGL();
}

void KVOpenGLWidget::initializeGL()
{
    CrashReport::setGraphics(driver());
    m_scene.makeCopy([this] { QTimer::singleShot(0, this, &KVOpenGLWidget::onShaderFailed); });
    resizeGL(width(), height());
    showTriangles();
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &KVOpenGLWidget::releaseGL,
            Qt::UniqueConnection);
    playbackChanged();
}

// Not while the view is being shown: it would come up all the same, and tick and paint for nobody.
void KVOpenGLWidget::onShaderFailed()
{
    fail(tr("Models cannot be drawn: the graphics driver does not take the program's shaders.\n"
            "It must offer OpenGL 3.0 or later."));
}

void KVOpenGLWidget::releaseGL()
{
    if (!m_scene.model())
        return;
    makeCurrent();
    m_scene.dropCopy();
    doneCurrent();
}

void KVOpenGLWidget::resizeGL(int width, int height)
{
    m_scene.frame.viewport = QSize(width, height);
}

void KVOpenGLWidget::paintGL()
{
    m_repaintWanted = false;
    m_timer.paints();
    if (!m_scene.model())
        return;
    if (m_scene.refresh())
        showTriangles();
    poseModel();
    if (m_frameWanted)
        frameAll();
    m_scene.paint(m_camera);
    if (m_statistics)
        m_statistics->countFrame(m_scene.takeCardTime());
}

void KVOpenGLWidget::poseModel()
{
    m_scene.frame.yaw = QQuaternion();
    const int frame = m_playback.pose(m_scene.palette(), m_scene.frame.yaw);
    m_scene.frame.onionSkin.follow(m_scene.palette());
    m_scene.frame.marks.events.follow(playback(), frame);
    tellFrame(frame);
}

void KVOpenGLWidget::tellFrame(int frame)
{
    if (frame != PoseEvaluator::NoFrame)
        emit frameShown(frame);
}

QImage KVOpenGLWidget::picture(const QSize &size, const QColor &background)
{
    QImage image;
    changeCopy([&] { image = m_scene.picture(size, background, m_camera, height()); });
    update();
    return image;
}

/// Without a copy there is nothing to change: it is made in initializeGL.
template <typename Change>
void KVOpenGLWidget::changeCopy(Change change)
{
    if (m_scene.model() && takeContext()) {
        change();
        showTriangles();
        doneCurrent();
    }
}

void KVOpenGLWidget::setSkinnedMeshMode(bool on)
{
    replaceModel(m_scene.setSkinned(on));
}

void KVOpenGLWidget::setSkinnedMesh(const SkinnedMesh *mesh, std::shared_ptr<MeshSource> ready)
{
    replaceModel(m_scene.setMesh(mesh, std::move(ready)));
}

void KVOpenGLWidget::setStaticMesh(const StaticMesh *mesh, std::shared_ptr<MeshSource> ready)
{
    replaceModel(m_scene.setMesh(mesh, std::move(ready)));
}

void KVOpenGLWidget::replaceModel(bool shown)
{
    if (!shown)
        return;
    m_camera.forgetFramed();
    rebuildCopy();
}

void KVOpenGLWidget::rebuildModel(std::shared_ptr<MeshSource> ready)
{
    m_scene.setReady(std::move(ready));
    rebuildCopy();
}

// What is large takes its time to get to the card, and the window answers meanwhile.
void KVOpenGLWidget::rebuildCopy()
{
    changeCopy([this] { m_scene.rebuild(); });
    workInTurns([this] { return m_scene.uploadNext(); });
}

void KVOpenGLWidget::refreshVertices()
{
    m_scene.verticesChanged();
    m_camera.forgetFramed();
    update();
}

void KVOpenGLWidget::refreshIndexes()
{
    m_scene.indexesChanged();
    update();
}

void KVOpenGLWidget::setBackgroundColor(const QColor &color)
{
    m_scene.setBackground(color);
    changeCopy([this] { m_scene.applyBackground(); });
    update();
}

void KVOpenGLWidget::setMoveSpeed(float speed)
{
    m_tools.flight->setSpeed(speed);
}

void KVOpenGLWidget::setOrbitMode(bool on)
{
    m_tools.orbit->setAlways(on);
}

void KVOpenGLWidget::setSelectedSurface(int surface)
{
    m_scene.selectSurface(surface);
    update();
}

void KVOpenGLWidget::setMarkedSelection(std::vector<int> bones, std::vector<int> hotPoints)
{
    change(m_scene.frame.marks.selectedBones, std::move(bones));
    change(m_scene.frame.marks.selectedHotPoints, std::move(hotPoints));
}

void KVOpenGLWidget::waitForBone(PickTool::BonePicked picked)
{
    changeMarks(m_scene.frame.marks.bonesAlone, picked != nullptr);
    m_tools.pick->waitForBone(std::move(picked));
    m_recorder.showCursor();
}

void KVOpenGLWidget::setShowStatistics(bool on)
{
    if (on == (m_statistics != nullptr))
        return;
    m_scene.setMeasured(on);
    delete std::exchange(m_statistics, on ? new ViewStatistics(this) : nullptr);
    if (!m_statistics)
        return;
    m_statistics->show();
    showTriangles();
}

void KVOpenGLWidget::showTriangles()
{
    if (m_statistics)
        m_statistics->setTriangles(m_scene.triangleCount());
}

void KVOpenGLWidget::cameraMoved()
{
    m_repaintWanted = true;
    playbackChanged();
}

void KVOpenGLWidget::resetCamera()
{
    m_frameWanted = false;
    m_tools.flight->reset();
    cameraMoved();
}

void KVOpenGLWidget::placeCamera(const QVector3D &position, float yaw, float pitch)
{
    m_frameWanted = false;
    m_camera.place(position, yaw, pitch);
    cameraMoved();
}

void KVOpenGLWidget::frameAll()
{
    if (!m_scene.model())
        return frameWhenShown();
    int strays = 0;
    poseModel();
    const std::vector<QVector3D> places = m_sight.modelPlaces(&strays);
    frame(places, strays);
    m_framedJump = m_camera.jumps().position;
}

void KVOpenGLWidget::frameWhenShown()
{
    m_frameWanted = true;
    update();
}

void KVOpenGLWidget::frameAgain()
{
    if (m_camera.framed() && m_camera.jumps().position == m_framedJump)
        frameWhenShown();
}

void KVOpenGLWidget::frame(const std::vector<QVector3D> &places, int strays)
{
    m_frameWanted = false;
    const bool isNear = m_camera.frame(places, size());
    cameraMoved();
    const auto tell = [this](const QString &text) {
        Log::warning(QStringLiteral("[Viewport] ") + text);
        emit told(text);
    };
    if (strays > 0)
        tell(tr("Left out of the picture: vertices that stand far away from all others (%1)").arg(strays));
    if (!isNear)
        tell(tr("The model reaches farther than the view can show: %1 units").arg(double(Camera::FarPlane)));
}

void KVOpenGLWidget::frameSelection(const ModelSelection &selection)
{
    poseModel();
    frame(m_sight.selectedPlaces(selection), 0);
}

void KVOpenGLWidget::setActive(bool current)
{
    m_active = current;
    playbackChanged();
}

void KVOpenGLWidget::playbackChanged()
{
    if (isVisible())
        m_timer.setPace(TickTimer::Pace::Moving);
}

void KVOpenGLWidget::timerEvent(QTimerEvent *event)
{
    if (!m_timer.isMine(*event))
        RenewableGLWidget::timerEvent(event);
    else if (checkContext())
        m_timer.setPace(tick(m_timer.take()));
}

bool KVOpenGLWidget::moveBy(TickTimer::Due due)
{
    bool moved = false;
    for (int step = 0; step < due.steps; ++step)
        moved = m_tools.tick(due.seconds / float(due.steps)) || moved;
    return moved;
}

TickTimer::Pace KVOpenGLWidget::tick(TickTimer::Due due)
{
    const bool skinned = m_scene.frame.skinned;
    // What started between two idle looks starts now; under a hand that drags the pose stays.
    if (m_active && skinned && !m_timer.isIdle() && !m_tools.isHandleHeld())
        advanceClock(playback(), due.seconds);
    MarkedEvents &events = m_scene.frame.marks.events;
    events.fade(due.seconds * playback().speedFactor);
    if (m_statistics)
        m_statistics->tick(due.seconds);
    if (m_readOut.tick(due.seconds, m_active, m_camera.position()))
        emit positionReadOut(m_readOut.text());
    const bool moved = moveBy(due), turns = m_tools.turntable->turn(due.seconds);
    m_repaintWanted =
        m_repaintWanted || moved || turns || (skinned && (m_playback.isBehind() || events.isFading()));
    const bool waitsToPaint = m_repaintWanted && !m_timer.mayPaint();
    // Label and slider change with the picture: the window is put together once for all three.
    if (m_active && skinned && !waitsToPaint && m_playback.label.update(playback()))
        emit frameLabelChanged(m_playback.label.text());
    if (m_repaintWanted && !waitsToPaint) {
        tellFrame(ShownPlayback::nextFrame(m_scene.palette() != nullptr));
        update();
    }
    const bool plays = turns || (m_active && skinned && (clockRuns(playback()) || events.isFading()));
    if (moved || (waitsToPaint && !plays) || m_tools.cursor() == ViewCursor::Captured ||
        (m_active && !plays && m_readOut.shown() != m_camera.position()))
        return TickTimer::Pace::Moving;
    return plays ? TickTimer::Pace::Playing : TickTimer::Pace::Idle;
}

void KVOpenGLWidget::showEvent(QShowEvent *event)
{
    RenewableGLWidget::showEvent(event);
    m_timer.setPace(TickTimer::Pace::Moving);
}

void KVOpenGLWidget::hideEvent(QHideEvent *event)
{
    m_timer.stop();
    m_tools.turntable->stop();
    m_recorder.cancel();
    RenewableGLWidget::hideEvent(event);
}

bool KVOpenGLWidget::event(QEvent *event)
{
    const InputRecorder::Outcome outcome = m_recorder.handle(*event);
    if (outcome == InputRecorder::Outcome::Passed)
        return RenewableGLWidget::event(event);
    if (outcome == InputRecorder::Outcome::Used)
        playbackChanged();
    else if (outcome == InputRecorder::Outcome::Changed)
        cameraMoved();
    return true;
}

void KVOpenGLWidget::tellPicked(PickTool::Kind kind, int index)
{
    m_recorder.showCursor(); // whoever is told may open something
    switch (kind) {
    case PickTool::Kind::Surface:
        return emit surfacePicked(index);
    case PickTool::Kind::Bone:
        return emit bonePicked(index);
    case PickTool::Kind::HotPoint:
        return emit hotPointPicked(index);
    case PickTool::Kind::Nothing:
        return emit nothingPicked();
    }
}
