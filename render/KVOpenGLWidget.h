// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CameraCommands.h"
#include "InputRecorder.h"
#include "ModelPlaces.h"
#include "PositionReadOut.h"
#include "RenewableGLWidget.h"
#include "SceneSight.h"
#include "ShownPlayback.h"
#include "ShownScene.h"
#include "TickTimer.h"
#include "ViewTools.h"

#include <functional>
#include <utility>
#include <vector>

class ViewStatistics;

/// The 3D view: shows a skinned or a static mesh, plays the animation of `playback()` on the skinned one,
/// and flies a camera with mouse and keys (W, A, S, D; Shift for speed; C for the start). With Alt held, or
/// always in orbit mode, the mouse turns the camera around what it looks at instead. A click, which is no
/// drag, picks what is under the mouse.
///
/// Models are borrowed and must outlive their stay in the view. View settings are read from the settings
/// store once, at construction; storing them is the caller's part. A hidden view does no work.
class KVOpenGLWidget : public RenewableGLWidget
{
    Q_OBJECT

public:
    explicit KVOpenGLWidget(QWidget *parent = nullptr);
    ~KVOpenGLWidget() override;

    /// Whether the view shows its skinned mesh, with pose and playback, or its static one. Off at first.
    void setSkinnedMeshMode(bool on);
    /// Shows another model; null clears the view. Textures are looked up and logged when the copy on the
    /// graphics card is made: at once, or when the view is first shown. `ready`, if given, was made of the
    /// model as it is, so that it need not be done now. Selections are forgotten.
    void setSkinnedMesh(const SkinnedMesh *mesh, std::shared_ptr<MeshSource> ready = {});
    void setStaticMesh(const StaticMesh *mesh, std::shared_ptr<MeshSource> ready = {});
    /// A material, a folder or anything else may have changed: builds the copy with its textures anew, or of
    /// what was made `ready` as above.
    void rebuildModel(std::shared_ptr<MeshSource> ready = {});
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
    void setOrbitMode(bool on);     ///< the mouse turns the camera around the model without Alt, too
    void setBrightness(float factor) { change(m_scene.frame.brightness, factor); }
    void setShowGround(bool on) { change(m_scene.frame.showGround, on); }
    void setShowAxisGizmo(bool on) { changeMarks(m_scene.frame.showAxisGizmo, on); }
    void setOnionSkin(const OnionSkin::Options &options) { change(m_scene.frame.onionSkin.options, options); }
    void setBackCull(bool on) { change(m_scene.frame.backCull, on); }
    /// 0 to 4, see SurfaceOverlay; anything else is 0.
    void setSurfSelectType(int type) { change(m_scene.frame.overlay, ShownScene::overlay(type)); }
    /// 0 to 2, see Shading; anything else is 0.
    void setShading(int shading) { change(m_scene.frame.shading, ShownScene::shading(shading)); }
    /// 0 to 2, see SurfaceLook; anything else is 0.
    void setSurfaceLook(int look) { change(m_scene.frame.look, ShownScene::look(look)); }
    /// Whatever else can be switched in a frame, by its member.
    void setOption(bool SceneFrame::*option, bool on) { change(m_scene.frame.*option, on); }
    void setShowSurfaceTint(bool on) { change(m_scene.frame.showSurfaceTint, on); }
    void setShowSkeleton(bool on) { changeMarks(m_scene.frame.marks.skeleton, on); }
    void setShowHotPoints(bool on) { changeMarks(m_scene.frame.marks.hotPoints, on); }
    /// The boxes of the bones, posed, and of the model; selected ones are bold.
    void setShowBoxes(bool on) { changeMarks(m_scene.frame.marks.boxes, on); }
    /// Marks what happens as it plays, and the selected key frame actions.
    void setShowEvents(bool on) { change(m_scene.frame.marks.events.wanted, on); }
    /// The selected key frame actions of a block, ascending.
    void setSelectedActions(int block, std::vector<int> actions)
    {
        m_scene.frame.marks.events.selectedBlock = block;
        change(m_scene.frame.marks.events.selected, std::move(actions));
    }
    /// Whose box can be dragged, a bone's or MarkedRecords::ModelBox, and whether the highlighted point can.
    void setHandles(int box, bool point)
    {
        change(m_scene.frame.marks.handledBox, box);
        change(m_scene.frame.marks.handlesPoint, point);
    }
    // A drag as it goes: shown, and nothing else.
    void setHoveredFace(int face) { change(m_scene.frame.marks.hoveredFace, face); }
    void setDraggedBox(const Box &box) { change(m_scene.frame.marks.draggedBox, std::optional<Box>(box)); }
    void setDraggedPoint(const QVector3D &place, int bone)
    {
        change(m_scene.frame.marks.draggedPoint, std::optional<DraggedPoint>({place, bone}));
    }
    void endDrag()
    {
        m_scene.frame.marks.draggedBox.reset();
        change(m_scene.frame.marks.draggedPoint, std::optional<DraggedPoint>());
    }
    /// Lets the next click on a bone be told to this alone. Until then all bones are drawn, and hot points
    /// are not, which would lie over them. Null gives that up.
    void waitForBone(PickTool::BonePicked picked);
    /// Lays a color over the vertices of each bone; none: as they are. Bones beyond stay as they are, too.
    void setBoneColors(std::vector<QRgb> colors) { change(m_scene.frame.boneColors, std::move(colors)); }
    void setShowStatistics(bool on); ///< frames a second and the number of triangles, in a corner

    void setSelectedSurface(int surface); ///< -1: none
    /// -1: none.
    void setSelectedBone(int bone) { change(m_scene.frame.selectedBone, bone); }
    /// Marks a point, relative to a bone or, where there is no such bone, to the model. `flag` stands the
    /// square on its corner.
    void setHighlightPoint(const QVector3D &position, bool flag, int bone)
    {
        change(m_scene.frame.highlight, {true, position, flag, bone});
        followMouse();
    }
    void clearHighlightPoint()
    {
        change(m_scene.frame.highlight, {});
        followMouse();
    }
    const HighlightPoint &highlightPoint() const { return m_scene.frame.highlight; }
    /// The selected ones among the marked bones and hot points, ascending.
    void setMarkedSelection(std::vector<int> bones, std::vector<int> hotPoints);
    /// Vertices of the model to be marked, ascending.
    void setMarkedVertices(std::vector<int> vertices)
    {
        change(m_scene.frame.marks.vertices, std::move(vertices));
    }
    /// What mouse and keys do. Whoever has something to tell a tool, or to hear of it, asks here.
    ViewTools &tools() { return m_tools; }

    void resetCamera();
    void placeCamera(const QVector3D &position, float yaw, float pitch); ///< as Camera::place()
    /// Goes where the whole model, or the selected part of it, is in the picture, as it is posed. Where
    /// nothing is selected that has a place it is the whole model.
    void frameAll();
    /// The same with the next frame that is painted, unless the camera is put elsewhere before.
    void frameWhenShown();
    /// The same, if the camera stands as frameAll() left it for this model.
    void frameAgain();
    void frameSelection(const ModelSelection &selection);
    /// What else commands do to the camera.
    CameraCommands &cameraCommands() { return m_cameraCommands; }

    /// What the view shows as a picture of another size; null when it cannot be painted.
    QImage picture(const QSize &size, const QColor &background);
    /// The frame of such a picture, for whoever paints it elsewhere, and the model it is of; null while there
    /// is none.
    SceneFrame still(const QSize &size) const { return m_scene.still(size, m_camera, height()); }
    const GLMesh *model() const { return m_scene.model(); }
    bool isSkinned() const { return m_scene.frame.skinned; }
    /// Where its middle stands in the view's space, as it is posed.
    QVector3D modelMiddle() const { return m_sight.modelMiddle(); }
    QColor backgroundColor() const { return m_scene.background(); }

    const Camera &camera() const { return m_camera; }

signals:
    // What a click has hit.
    void surfacePicked(int surface);
    void bonePicked(int bone);
    void hotPointPicked(int hotPoint);
    void nothingPicked();
    /// The camera position for the status bar, about ten times a second: "X: 0.000000 Y: ... Z: ...".
    void positionReadOut(const QString &text);
    /// The frame that the painted pose starts from; emitted while painting, and before where the view itself
    /// asks for the paint.
    void frameShown(int frame);
    /// Something about the picture, for the user.
    void told(const QString &text);
    /// The text beside the track slider.
    void frameLabelChanged(const QString &text);

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void timerEvent(QTimerEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool event(QEvent *event) override;

private:
    template <typename Field>
    void change(Field &field, Field value)
    {
        field = std::move(value);
        update();
    }
    template <typename Change>
    void changeCopy(Change change);
    void onShaderFailed();
    void releaseGL();
    void replaceModel(bool shown);
    void rebuildCopy();
    void showTriangles();
    void changeMarks(bool &mark, bool on)
    {
        change(mark, on);
        followMouse();
    }
    /// Tips come up, and handles answer, without a button held.
    void followMouse()
    {
        const MarkedRecords &marks = m_scene.frame.marks;
        setMouseTracking(marks.showsBones() || marks.showsHotPoints() || marks.showsBoxes() ||
                         m_scene.frame.highlight.on || m_scene.frame.showAxisGizmo);
    }
    void poseModel();
    void tellFrame(int frame);
    void frame(const std::vector<QVector3D> &places, int strays);
    void cameraMoved();
    /// One tick. Returns how the timer is to go on.
    TickTimer::Pace tick(TickTimer::Due due);
    bool moveBy(TickTimer::Due due);
    void tellPicked(PickTool::Kind kind, int index);

    ShownScene m_scene;
    Camera m_camera;
    SceneSight m_sight;
    CameraCommands m_cameraCommands;

    ViewTools m_tools;
    InputRecorder m_recorder;

    bool m_active = false;
    bool m_frameWanted = false;   ///< see frameWhenShown()
    int m_framedJump = -1;        ///< the camera's, when it got the whole model into the picture
    bool m_repaintWanted = false; ///< as soon as the timer lets it paint
    TickTimer m_timer;
    ShownPlayback m_playback;
    PositionReadOut m_readOut;
    ViewStatistics *m_statistics = nullptr; ///< null while they are not shown
};
