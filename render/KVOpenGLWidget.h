// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Camera.h"
#include "FrameLabel.h"
#include "ModelPlaces.h"
#include "Pose.h"
#include "ScenePainter.h"

#include <QBasicTimer>
#include <QColor>
#include <QElapsedTimer>
#include <QOpenGLExtraFunctions>
#include <QOpenGLWidget>

#include <functional>

class ViewStatistics;

/// The 3D view: shows a skinned or a static mesh, plays the animation of `playback()` on the skinned one,
/// and flies a camera with mouse and keys (W, A, S, D; Shift for speed; C for the start). With Alt held, or
/// always in orbit mode, the mouse turns the camera around what it looks at instead. A click, which is no
/// drag, picks what is under the mouse.
///
/// Models are borrowed and must outlive their stay in the view. View settings are read from the settings
/// store once, at construction; storing them is the caller's part. A hidden view does no work.
class KVOpenGLWidget : public QOpenGLWidget, protected QOpenGLExtraFunctions
{
    Q_OBJECT

public:
    /// A view made inside another widget is in no layout and never shown before embed().
    explicit KVOpenGLWidget(QWidget *parent = nullptr);
    ~KVOpenGLWidget() override;

    /// Takes the view's place in its parent, or fails where there is no OpenGL: a window with a view in it
    /// that cannot draw would stay black all over. Waits for the driver, so it is for the end of a window's
    /// construction.
    void embed();

    /// Why the view shows nothing, for the user; empty while nothing is wrong.
    const QString &failure() const { return m_failure; }

    /// Whether the view shows its skinned mesh, with pose and playback, or its static one. Off at first.
    void setSkinnedMeshMode(bool on);
    /// Shows another model; null clears the view. Textures are looked up and logged when the copy on the
    /// graphics card is made: at once, or when the view is first shown. Selections are forgotten.
    void setSkinnedMesh(const SkinnedMesh *mesh);
    void setStaticMesh(const StaticMesh *mesh);
    /// A material, a folder or anything else may have changed: builds the copy with its textures anew.
    void rebuildModel();
    /// Vertices of the model changed. The copy follows once, before the next paint.
    void refreshVertices();
    /// Triangle indexes of the model changed. The copy follows once, before the next paint.
    void refreshIndexes();

    /// Whether this view belongs to the window's current tab: only then it shows its position and, in
    /// skinned mode, plays.
    void setActive(bool current);
    /// `playback()` was changed by hand: shows it at the next tick. Without this call an idle view notices a
    /// little later.
    void playbackChanged();

    void setBackgroundColor(const QColor &color);
    void setMoveSpeed(float speed); ///< units per pixel, or per tick of a held key
    void setBrightness(float factor);
    void setShowGround(bool on);
    void setShowAxisGizmo(bool on);
    void setBackCull(bool on);
    void setSurfSelectType(int type); ///< 0 to 4, see SurfaceOverlay; anything else is 0
    void setShading(int shading);     ///< 0 to 2, see Shading; anything else is 0
    void setShowSkeleton(bool on);
    void setShowHotPoints(bool on);
    void setShowStatistics(bool on); ///< frames a second and the number of triangles, in a corner
    void setOrbitMode(bool on);      ///< the mouse turns the camera around the model without Alt, too

    void setSelectedSurface(int surface); ///< -1: none
    void setSelectedBone(int bone);       ///< -1: none
    /// Marks a point, relative to a bone or, where there is no such bone, to the model. `flag` stands the
    /// square on its corner.
    void setHighlightPoint(const QVector3D &position, bool flag, int bone);
    void clearHighlightPoint();
    /// The selected ones among the marked bones and hot points, ascending.
    void setMarkedSelection(std::vector<int> bones, std::vector<int> hotPoints);
    /// What the tips of bones and hot points say, by their indexes.
    using MarkName = std::function<QString(int)>;
    void setMarkNames(MarkName bone, MarkName hotPoint);

    void resetCamera();
    void placeCamera(const QVector3D &position, float yaw, float pitch); ///< as Camera::place()
    /// Goes where the whole model, or the selected part of it, is in the picture. Where nothing is selected
    /// that has a place it is the whole model.
    void frameAll();
    void frameSelection(const ModelSelection &selection);
    /// Turns around the point that is looked at.
    void lookFrom(Camera::Side side);

    /// What the view shows as a picture of another size; null when it cannot be painted.
    QImage picture(const QSize &size, const QColor &background);
    QColor backgroundColor() const { return m_background; }

    const Camera &camera() const { return m_camera; }

    /// Gives up the context with all that is in it. The view makes another one and builds the model's copy
    /// anew as soon as its window is on the screen; what it shows, and how, stays.
    void renewContext();

signals:
    /// The graphics driver has dropped the view's context, as after a reset. That of the window, which shares
    /// with it, is lost along with it: whoever owns the window has to make the native one anew, with a
    /// renewContext() of every view in it while there is none.
    void contextLost();
    /// The view cannot draw, see failure(), and has hidden itself.
    void failed();
    // What a click has hit.
    void surfacePicked(int surface);
    void bonePicked(int bone);
    void hotPointPicked(int hotPoint);
    /// The camera position for the status bar, about ten times a second: "X: 0.000000 Y: ... Z: ...".
    void positionReadOut(const QString &text);
    /// The frame that the painted pose starts from; emitted while painting.
    void frameShown(int frame);
    /// The text beside the track slider.
    void frameLabelChanged(const QString &text);

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;
    /// Whether the driver has dropped the context, or the window's. Drivers tell where the surface format
    /// asks for it (QSurfaceFormat::ResetNotification); Qt then looks whenever it makes a context current.
    virtual bool isContextLost() const;

    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    enum class Pace { Idle, Moving };
    /// What the mouse does with the camera while a button is down, beside flight.
    enum class Aiming { None, Orbit, Pan };
    /// One of the two at most.
    struct HitMarks
    {
        int bone = SceneMarks::None;
        int hotPoint = SceneMarks::None;
    };

    // Meshes on the graphics card.
    void fail(const QString &reason);
    void releaseGL();
    bool takeContext();
    void noticeLoss();
    void onLoss();
    void modelReplaced(bool shown);
    void buildModel();
    void refreshModel();
    float groundHeight() const;
    void showStatistics();

    // One tick: clock, label, read-out, camera.
    void tick(float dt);
    void readOut(float dt);
    bool playbackDiffers() const;
    bool mustKeepMoving() const;
    void setPace(Pace pace);

    void pose();
    // Aim and hits.
    void showMarks();
    void framePlaces(std::vector<QVector3D> places);
    ScreenMap screenMap() const;
    int surfaceAt(const QPoint &pixel, QVector3D *place = nullptr) const;
    /// What the camera turns around: what it was aimed at, else what it looks at, in the view's space.
    QVector3D pivot() const;
    void cameraMoved();
    HitMarks marksAt(const QPoint &pixel) const;
    void pick(const QPoint &pixel);
    void hover(const QPoint &pixel);

    bool startAiming(const QMouseEvent &event);
    bool setKey(const QKeyEvent &event, bool held);
    void releaseInput();
    QPoint centre() const { return {width() / 2, height() / 2}; }

    QString m_failure;
    std::unique_ptr<ScenePainter> m_painter; ///< made in initializeGL for its context
    SceneFrame m_frame;                      ///< of the next paint
    QColor m_background;
    float m_moveSpeed = 0.0f;
    bool m_backCull = false;
    bool m_appliedBackCull = false;
    bool m_lossNoticed = false;
    int m_losses = 0;      ///< of a context, in close succession
    qint64 m_lastLoss = 0; ///< milliseconds of m_clock

    bool m_active = false;
    const SkinnedMesh *m_skinnedMesh = nullptr;
    const StaticMesh *m_staticMesh = nullptr;
    int m_selectedSurface = GLMesh::NoSurface;
    bool m_verticesChanged = false;
    bool m_indexesChanged = false;
    PoseEvaluator m_poses;

    QBasicTimer m_timer;
    Pace m_pace = Pace::Idle;
    QElapsedTimer m_clock;
    qint64 m_previousTick = 0; ///< milliseconds of m_clock
    Playback m_shownPlayback;  ///< as it was after the last paint
    FrameLabel m_frameLabel;
    float m_sinceReadOut = 0.0f; ///< seconds
    QVector3D m_readOutPosition;

    Camera m_camera;
    QPoint m_savedCursor; ///< where the mouse was captured, on the screen
    bool m_orbitMode = false;
    Aiming m_aiming = Aiming::None;
    Qt::MouseButton m_aimingButton = Qt::NoButton;
    QVector3D m_pivot;      ///< of the aiming
    QPoint m_aimingCursor;  ///< where the mouse was last
    bool m_isClick = false; ///< a press without a drag so far
    QPoint m_clickPixel;
    int m_clickTravel = 0; ///< pixels

    ViewStatistics *m_statistics = nullptr; ///< null while they are not shown
    MarkName m_boneName;
    MarkName m_hotPointName;
    int m_hoveredBone = SceneMarks::None;
    int m_hoveredHotPoint = SceneMarks::None;
};
