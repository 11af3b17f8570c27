// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KVOpenGLWidget.h"

#include "CrashReport.h"
#include "GraphicsProbe.h"
#include "Log.h"
#include "Settings.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "ViewStatistics.h"

#include <QOpenGLContext>
#include <QTimer>
#include <QTimerEvent>

#include <algorithm>
#include <utility>

namespace {
// A moving view ticks every millisecond: keys fly the camera by a step a tick. An idle one only looks for
// changes of the playback now and then, which costs nothing.
constexpr int MovingInterval = 1;
constexpr int IdleInterval = 30;
constexpr float ReadOutInterval = 0.1f; // seconds
// A driver that loses the context again at once will go on doing so.
constexpr int MostLosses = 3;
constexpr int LossesInterval = 10000; // milliseconds
} // namespace

KVOpenGLWidget::KVOpenGLWidget(QWidget *parent)
    : QOpenGLWidget(parent, Qt::Window)
    , m_background(Settings::BGColor.value())
    , m_moveSpeed(Settings::MouseSpeed.value())
    , m_backCull(Settings::BackCull.value())
{
    m_frame.showGround = Settings::ShowGround.value();
    m_frame.showAxisGizmo = Settings::ShowAxisGizmo.value();
    m_frame.brightness = Settings::Brightness.value();
    setSurfSelectType(Settings::SurfSelectType.value());
    setShading(Settings::Shading.value());
    setShowSkeleton(Settings::ShowSkeleton.value());
    setShowHotPoints(Settings::ShowHotPoints.value());
    setShowStatistics(Settings::ShowStatistics.value());
    setOrbitMode(Settings::OrbitMode.value());
    setFocusPolicy(Qt::StrongFocus);
    m_clock.start();
}

KVOpenGLWidget::~KVOpenGLWidget()
{
    if (context())
        disconnect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &KVOpenGLWidget::releaseGL);
    releaseGL();
}

void KVOpenGLWidget::embed()
{
    if (!GraphicsProbe::hasOpenGL()) {
        fail(tr("Models cannot be drawn: the system offers no OpenGL.\n"
                "Look for a driver of the graphics card, or install a software renderer such as Mesa."));
        return;
    }
    setWindowFlags(Qt::Widget);
    show();
}

void KVOpenGLWidget::initializeGL()
{
    initializeOpenGLFunctions();
    const auto driverText = [this](GLenum name) {
        return QString::fromLatin1(reinterpret_cast<const char *>(glGetString(name)));
    };
    CrashReport::setGraphics(driverText(GL_VENDOR) + QStringLiteral(", ") + driverText(GL_RENDERER) +
                             QStringLiteral(", ") + driverText(GL_VERSION));
    m_painter = std::make_unique<ScenePainter>([this] {
        fail(tr("Models cannot be drawn: the graphics driver does not take the program's shaders.\n"
                "It must offer OpenGL 3.0 or later."));
    });
    m_painter->setUpState(QColor(m_background.rgb()));
    m_painter->setBackFaceCulling(m_backCull);
    m_appliedBackCull = m_backCull;
    resizeGL(width(), height());
    buildModel();
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &KVOpenGLWidget::releaseGL,
            Qt::UniqueConnection);
    if (isVisible())
        setPace(Pace::Moving);
}

void KVOpenGLWidget::fail(const QString &reason)
{
    hide();
    if (!m_failure.isEmpty())
        return;
    m_failure = reason;
    emit failed();
}

void KVOpenGLWidget::releaseGL()
{
    if (!m_painter)
        return;
    makeCurrent();
    m_painter.reset();
    doneCurrent();
}

// A context that is lost or cannot be made current must not reach Qt's own drawing, which takes it for
// granted.
bool KVOpenGLWidget::takeContext()
{
    makeCurrent();
    if (QOpenGLContext::currentContext() == context() && !isContextLost())
        return true;
    noticeLoss();
    return false;
}

bool KVOpenGLWidget::isContextLost() const
{
    const QOpenGLContext *windows = context()->shareContext();
    return !context()->isValid() || (windows && !windows->isValid());
}

void KVOpenGLWidget::noticeLoss()
{
    if (std::exchange(m_lossNoticed, true))
        return;
    // The window cannot be made anew while it is being painted.
    QTimer::singleShot(0, this, &KVOpenGLWidget::onLoss);
}

void KVOpenGLWidget::onLoss()
{
    m_lossNoticed = false;
    const qint64 now = m_clock.elapsed();
    m_losses = now - m_lastLoss < LossesInterval ? m_losses + 1 : 1;
    m_lastLoss = now;
    if (m_losses > MostLosses) {
        fail(tr("Models are not drawn any more: the graphics driver has failed several times.\n"
                "Everything else works on. Start Korvane again to see models."));
        return;
    }
    Log::warning(tr("[Viewport] The graphics driver was reset; the view is built anew"));
    emit contextLost();
}

void KVOpenGLWidget::renewContext()
{
    // What Qt does with a view that comes into another window.
    QEvent change(QEvent::WindowChangeInternal);
    QOpenGLWidget::event(&change);
}

void KVOpenGLWidget::paintEvent(QPaintEvent *event)
{
    if (!context() || takeContext())
        QOpenGLWidget::paintEvent(event);
}

void KVOpenGLWidget::resizeEvent(QResizeEvent *event)
{
    if (!context() || takeContext())
        QOpenGLWidget::resizeEvent(event);
}

void KVOpenGLWidget::resizeGL(int width, int height)
{
    m_frame.projection = Camera::projectionMatrix(width, height);
    m_frame.viewport = QSize(width, height);
}

void KVOpenGLWidget::paintGL()
{
    if (!m_painter)
        return;
    if (m_backCull != m_appliedBackCull) {
        m_appliedBackCull = m_backCull;
        m_painter->setBackFaceCulling(m_backCull);
    }
    refreshModel();
    pose();
    m_frame.view = m_camera.viewMatrix();
    m_frame.marks.mesh = m_frame.skinned ? m_skinnedMesh : nullptr;
    m_painter->paint(m_frame);
    if (m_statistics)
        m_statistics->countFrame();
}

void KVOpenGLWidget::pose()
{
    m_frame.yaw = QQuaternion();
    Playback &state = playback();
    if (m_frame.skinned && m_skinnedMesh) {
        BonePalette &palette = m_painter->model().palette;
        if (const AnimBlock *block = playableBlock(state)) {
            if (state.playState == PlayState::InitialPose) {
                m_poses.evaluateInitialPose(palette, *state.mesh, *block);
            } else {
                const int frame =
                    m_poses.evaluateAnimatedPose(palette, *state.mesh, *block, state, m_frame.yaw);
                if (frame != PoseEvaluator::NoFrame)
                    emit frameShown(frame);
            }
        }
    }
    m_shownPlayback = state;
}

void KVOpenGLWidget::setSkinnedMeshMode(bool on)
{
    if (on == m_frame.skinned)
        return;
    m_frame.skinned = on;
    modelReplaced(true);
}

void KVOpenGLWidget::setSkinnedMesh(const SkinnedMesh *mesh)
{
    m_skinnedMesh = mesh;
    modelReplaced(m_frame.skinned);
}

void KVOpenGLWidget::setStaticMesh(const StaticMesh *mesh)
{
    m_staticMesh = mesh;
    modelReplaced(!m_frame.skinned);
}

void KVOpenGLWidget::modelReplaced(bool shown)
{
    if (!shown)
        return;
    m_selectedSurface = GLMesh::NoSurface;
    m_frame.selectedBone = -1;
    m_frame.highlight = {};
    m_frame.marks.mesh = nullptr;
    setMarkedSelection({}, {});
    m_camera.forgetFramed();
    rebuildModel();
}

void KVOpenGLWidget::rebuildModel()
{
    // Without a context the copy is made in initializeGL.
    if (!m_painter || !takeContext())
        return;
    buildModel();
    doneCurrent();
    update();
}

void KVOpenGLWidget::buildModel()
{
    m_verticesChanged = m_indexesChanged = false;
    if (m_frame.skinned && m_skinnedMesh)
        m_painter->setModel(MeshSource::from(*m_skinnedMesh));
    else if (!m_frame.skinned && m_staticMesh)
        m_painter->setModel(MeshSource::from(*m_staticMesh));
    else
        m_painter->clearModel();
    m_painter->model().selectedSurface = m_selectedSurface;
    m_frame.groundHeight = groundHeight();
    showStatistics();
}

void KVOpenGLWidget::refreshVertices()
{
    m_verticesChanged = true;
    m_camera.forgetFramed();
    update();
}

void KVOpenGLWidget::refreshIndexes()
{
    m_indexesChanged = true;
    update();
}

void KVOpenGLWidget::refreshModel()
{
    if (!m_verticesChanged && !m_indexesChanged)
        return;
    GLMesh &model = m_painter->model();
    if (m_frame.skinned && m_skinnedMesh)
        model.refresh(*m_skinnedMesh, m_indexesChanged);
    else if (!m_frame.skinned && m_staticMesh)
        model.refresh(*m_staticMesh, m_indexesChanged);
    m_verticesChanged = m_indexesChanged = false;
    m_frame.groundHeight = groundHeight();
    showStatistics();
}

// A skinned mesh's vertices lie in their bones' spaces and say nothing about the posed model, so its own box
// counts; files of static meshes often hold an empty one. A box that was rotated has no order.
float KVOpenGLWidget::groundHeight() const
{
    float height = 0.0f;
    if (m_frame.skinned && m_skinnedMesh)
        height = std::min(m_skinnedMesh->bbMin.z(), m_skinnedMesh->bbMax.z());
    else if (!m_frame.skinned && m_staticMesh)
        height = m_painter->model().boxMin().z();
    return height < 0.0f ? height : 0.0f;
}

void KVOpenGLWidget::setActive(bool current)
{
    m_active = current;
    playbackChanged();
}

void KVOpenGLWidget::playbackChanged()
{
    if (isVisible())
        setPace(Pace::Moving);
}

void KVOpenGLWidget::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_timer.timerId()) {
        QOpenGLWidget::timerEvent(event);
        return;
    }
    if (!context() && !size().isEmpty()) {
        fail(tr("Models cannot be drawn: the system has OpenGL, but gives the window no context of it.\n"
                "Everything else works on."));
        return;
    }
    if (context() && isContextLost())
        noticeLoss();
    const qint64 now = m_clock.elapsed();
    const float dt = float(now - m_previousTick) / 1000.0f;
    m_previousTick = now;
    tick(dt);
    setPace(mustKeepMoving() ? Pace::Moving : Pace::Idle);
}

void KVOpenGLWidget::tick(float dt)
{
    if (m_active && m_frame.skinned) {
        // What started between two idle looks starts now.
        if (m_pace == Pace::Moving)
            advanceClock(playback(), dt);
        if (m_frameLabel.update(playback()))
            emit frameLabelChanged(m_frameLabel.text());
    }
    if (m_statistics)
        m_statistics->tick(dt);
    readOut(dt);
    const bool moved = m_camera.tick(dt, m_moveSpeed);
    if (moved || (m_frame.skinned && playbackDiffers()))
        update();
}

void KVOpenGLWidget::readOut(float dt)
{
    m_sinceReadOut += dt;
    if (!m_active || !(m_sinceReadOut > ReadOutInterval))
        return;
    m_sinceReadOut = 0.0f;
    m_readOutPosition = m_camera.position();
    // Shown in the game's order, with z up.
    emit positionReadOut(QStringLiteral("X: %1 Y: %2 Z: %3")
                             .arg(QString::number(double(m_readOutPosition.x()), 'f', 6),
                                  QString::number(double(m_readOutPosition.z()), 'f', 6),
                                  QString::number(double(m_readOutPosition.y()), 'f', 6)));
}

bool KVOpenGLWidget::playbackDiffers() const
{
    const Playback &now = playback();
    const Playback &shown = m_shownPlayback;
    return now.mesh != shown.mesh || now.anim != shown.anim || now.blockIndex != shown.blockIndex ||
           now.playState != shown.playState || now.time != shown.time || now.forceLoop != shown.forceLoop;
}

bool KVOpenGLWidget::mustKeepMoving() const
{
    if (m_camera.isCaptured() || m_camera.flies())
        return true;
    if (!m_active)
        return false;
    return m_readOutPosition != m_camera.position() || (m_frame.skinned && clockRuns(playback()));
}

void KVOpenGLWidget::setPace(Pace pace)
{
    if (m_timer.isActive() && pace == m_pace)
        return;
    // The time asleep is not time that anything moved.
    if (pace == Pace::Moving)
        m_previousTick = m_clock.elapsed();
    m_pace = pace;
    if (pace == Pace::Moving)
        m_timer.start(MovingInterval, Qt::PreciseTimer, this);
    else
        m_timer.start(IdleInterval, Qt::CoarseTimer, this);
}

void KVOpenGLWidget::showEvent(QShowEvent *event)
{
    QOpenGLWidget::showEvent(event);
    setPace(Pace::Moving);
}

void KVOpenGLWidget::hideEvent(QHideEvent *event)
{
    m_timer.stop();
    releaseInput();
    QOpenGLWidget::hideEvent(event);
}
