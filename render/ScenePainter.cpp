// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ScenePainter.h"

#include "FixedMeshes.h"
#include "PosedVertices.h"

#include <QColor>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

#include <algorithm>
#include <utility>

namespace {
// Sizes of markers, as parts of half the picture's height: they look equally big from everywhere.
constexpr float SphereRadius = 0.028f;
constexpr float QuadRadius = 0.014f;
constexpr float NearestMarker = 5.12f; // the near plane: behind it nothing is seen
constexpr float GizmoScale = 2.0f;
constexpr float GizmoDepth = 1000.0f;

/// The rotation of a view or model matrix without its translation.
QMatrix4x4 rotationOf(const QMatrix4x4 &matrix)
{
    QMatrix4x4 rotation = matrix;
    rotation.setColumn(3, {0.0f, 0.0f, 0.0f, 1.0f});
    return rotation;
}

/// Half the height of what the picture shows where a place is.
float halfHeightAt(const SceneFrame &frame, const QVector3D &place)
{
    const float distance =
        isOrthographic(frame.projection) ? 1.0f : std::max(-frame.view.map(place).z(), NearestMarker);
    return distance / frame.projection(1, 1);
}
} // namespace

ScenePainter::ScenePainter(const std::function<void()> &stepFailed)
    : m_gl(*QOpenGLContext::currentContext()->extraFunctions())
    , m_programs(stepFailed)
    , m_model(std::make_unique<GLMesh>(FixedMeshes::placeholder()))
    , m_axisGizmo(FixedMeshes::axisGizmo())
    , m_redQuad(FixedMeshes::redQuad())
    , m_wireSphere(FixedMeshes::wireSphere())
    , m_surfaces(m_programs)
{
    m_posedArray.create();
    m_posedBuffer.create();
    m_posedArray.bind();
    m_posedBuffer.bind();
    describeVertexLayout(m_gl);
    m_posedArray.release();
    m_posedBuffer.release();
}

void ScenePainter::setModel(MeshSource source)
{
    m_model = std::make_unique<GLMesh>(std::move(source));
}

void ScenePainter::clearModel()
{
    setModel(FixedMeshes::placeholder());
}

void ScenePainter::setUpState(const QColor &background)
{
    setBackground(background);
    m_gl.glEnable(GL_DEPTH_TEST);
    m_gl.glEnable(GL_BLEND);
    m_gl.glEnable(GL_PROGRAM_POINT_SIZE);
    m_gl.glFrontFace(GL_CW);
    SurfacePainter::setUpBlending(m_gl);
}

void ScenePainter::setBackground(const QColor &color)
{
    const auto alpha = float(color.alphaF());
    m_surfaces.setBackground(color);
    m_gl.glClearColor(alpha * float(color.redF()), alpha * float(color.greenF()),
                      alpha * float(color.blueF()), alpha);
}

void ScenePainter::setBackFaceCulling(bool on)
{
    if (std::exchange(m_culls, on) == on)
        return;
    if (on) {
        m_gl.glEnable(GL_CULL_FACE);
        m_gl.glCullFace(GL_BACK);
    } else {
        m_gl.glDisable(GL_CULL_FACE);
    }
}

QQuaternion ScenePainter::uprightRotation()
{
    return QQuaternion::fromDirection({0.0f, 1.0f, 0.0f}, {0.0f, 0.0f, 1.0f});
}

QMatrix4x4 ScenePainter::modelMatrix(const SceneFrame &frame)
{
    QMatrix4x4 matrix;
    matrix.rotate(uprightRotation());
    matrix.rotate(frame.yaw);
    return matrix;
}

void ScenePainter::paint(const SceneFrame &frame)
{
    m_gl.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    m_gl.glActiveTexture(GL_TEXTURE0);
    setBackFaceCulling(frame.backCull);
    m_modelMatrix = modelMatrix(frame);

    m_programs.plain.begin(frame.brightness);
    if (frame.showGround)
        paintGround(frame);
    // The ground lies behind everything, even behind what is below it.
    m_gl.glClear(GL_DEPTH_BUFFER_BIT);

    if (!frame.onionSkin.ghosts().empty())
        paintGhosts(frame);
    m_surfaces.paint(*m_model, frame, m_modelMatrix);
    paintOverlay(frame);

    m_programs.plain.begin(frame.brightness);
    paintBoneMarker(frame);
    paintMarks(frame);
    paintHighlightPoint(frame);
    if (frame.showAxisGizmo)
        paintAxisGizmo(frame);
    m_programs.plain.program.release();
}

void ScenePainter::drawTextured(TexturedProgram &textured, GLMesh &mesh, const QMatrix4x4 &mvp, GLenum mode)
{
    if (!textured.program.isLinked())
        return;
    m_gl.glUniformMatrix4fv(textured.mvpMatrix, 1, GL_FALSE, mvp.constData());
    mesh.draw(textured, mode);
}

// Leaves the plain program bound.
void ScenePainter::paintGround(const SceneFrame &frame)
{
    QMatrix4x4 ground;
    ground.translate(0.0f, frame.groundHeight, 0.0f);
    ground.rotate(uprightRotation());
    const QMatrix4x4 mvp = frame.projection * frame.view * ground;
    if (frame.fadingGround && !m_fadingGround)
        m_fadingGround = std::make_unique<FadingGround>();
    if (frame.fadingGround && m_fadingGround->isUsable()) {
        m_fadingGround->paint(mvp, frame.brightness);
        return m_programs.plain.begin(frame.brightness);
    }
    if (!m_ground)
        m_ground = std::make_unique<GLMesh>(FixedMeshes::ground());
    m_gl.glUniform1f(m_programs.plain.tiling, FixedMeshes::GroundTiling);
    drawTextured(m_programs.plain, *m_ground, mvp);
    m_gl.glUniform1f(m_programs.plain.tiling, 1.0f);
}

// Behind the model, so that its own pose is seen whole.
void ScenePainter::paintGhosts(const SceneFrame &frame)
{
    for (const OnionSkin::Ghost &ghost : frame.onionSkin.ghosts()) {
        QMatrix4x4 matrix;
        matrix.rotate(uprightRotation());
        matrix.rotate(ghost.yaw);
        m_surfaces.paintGhost(*m_model, frame, ghost, frame.projection * frame.view * matrix);
        m_gl.glClear(GL_DEPTH_BUFFER_BIT);
    }
}

void ScenePainter::paintOverlay(const SceneFrame &frame)
{
    const SurfaceOverlay kind = frame.overlay;
    if (kind == SurfaceOverlay::None)
        return;
    if (kind == SurfaceOverlay::LinesHidden || kind == SurfaceOverlay::PointsHidden)
        m_gl.glClear(GL_DEPTH_BUFFER_BIT);
    if (!m_model->hasSelectedSurface() || !m_programs.highlight.isLinked())
        return;

    m_programs.highlight.bind();
    const QMatrix4x4 mvp = SurfacePainter::pulledMatrix(frame, m_modelMatrix);
    m_gl.glUniformMatrix4fv(m_programs.highlightMvpMatrix, 1, GL_FALSE, mvp.constData());
    const bool lines = kind == SurfaceOverlay::Lines || kind == SurfaceOverlay::LinesHidden;
    // Lines join the indexes two by two as they stand: not the triangles' edges.
    const GLenum mode = lines ? GL_LINES : GL_POINTS;
    if (frame.skinned)
        drawPosedSurface(m_model->selectedSurface, mode);
    else
        m_model->drawPlain(m_model->selectedSurface, mode);
}

void ScenePainter::drawPosedSurface(int surface, GLenum mode)
{
    const std::vector<GLVertex> &vertices = m_model->vertices().vertices;
    const bool grew = m_posed.size() != vertices.size();
    poseVertices(m_posed, vertices, m_model->indexes(surface), m_model->palette);

    const auto bytes = GLsizeiptr(m_posed.size() * sizeof(GLVertex));
    m_posedArray.bind();
    m_posedBuffer.bind();
    if (grew)
        m_gl.glBufferData(GL_ARRAY_BUFFER, bytes, m_posed.data(), GL_STREAM_DRAW);
    else
        m_gl.glBufferSubData(GL_ARRAY_BUFFER, 0, bytes, m_posed.data());
    m_posedBuffer.release();
    m_model->drawIndexes(surface, mode);
    m_posedArray.release();
}

// The green sphere marks a bone. It would be lost inside the model's body, so the depth is forgotten first;
// and its wires are thinner than a pixel at this size, so they are drawn as lines.
void ScenePainter::paintBoneMarker(const SceneFrame &frame)
{
    const BonePalette &palette = m_model->palette;
    if (frame.selectedBone < 0 || size_t(frame.selectedBone) >= palette.size())
        return;
    const QVector3D extent = m_wireSphere.boxMax() - m_wireSphere.boxMin();
    const float radius = 0.5f * std::max({extent.x(), extent.y(), extent.z()});
    if (!(radius > 0.0f))
        return;

    const QVector3D joint = palette[size_t(frame.selectedBone)].column(3).toVector3D();
    QMatrix4x4 marker = m_modelMatrix;
    marker.translate(joint);
    marker.scale(SphereRadius * halfHeightAt(frame, m_modelMatrix.map(joint)) / radius);
    m_gl.glClear(GL_DEPTH_BUFFER_BIT);
    drawTextured(m_programs.plain, m_wireSphere, frame.projection * frame.view * marker, GL_LINES);
}

void ScenePainter::paintMarks(const SceneFrame &frame)
{
    const ScreenMap map(frame.projection, frame.view * m_modelMatrix, frame.viewport);
    m_overlay.paint(m_programs, frame.marks, m_model->vertices().vertices, map, m_model->palette,
                    frame.viewport);
    m_programs.plain.begin(frame.brightness);
}

// The red square marks a point on a bone; it always faces the viewer.
void ScenePainter::paintHighlightPoint(const SceneFrame &frame)
{
    const HighlightPoint &point = frame.highlight;
    if (!point.on)
        return;
    const BonePalette &palette = m_model->palette;
    const DraggedPoint shown = frame.marks.draggedPoint.value_or(DraggedPoint{point.position, point.bone});
    QVector3D place = shown.place;
    if (shown.bone >= 0 && size_t(shown.bone) < palette.size())
        place = palette[size_t(shown.bone)].map(place);
    place = m_modelMatrix.map(place);

    QMatrix4x4 marker;
    marker.translate(place);
    marker *= rotationOf(frame.view).transposed();
    marker.scale(QuadRadius * halfHeightAt(frame, place));
    if (point.standing)
        marker.rotate(45.0f, 0.0f, 0.0f, 1.0f);
    m_gl.glClear(GL_DEPTH_BUFFER_BIT);
    drawTextured(m_programs.plain, m_redQuad, frame.projection * frame.view * marker);
}

// In the lower left corner, at the same size whatever the window's, turning with the view.
void ScenePainter::paintAxisGizmo(const SceneFrame &frame)
{
    QMatrix4x4 mvp;
    mvp.ortho(0.0f, float(std::max(1, frame.viewport.width())), 0.0f,
              float(std::max(1, frame.viewport.height())), -GizmoDepth, GizmoDepth);
    mvp.translate(AxisGizmo::Margin, AxisGizmo::Margin);
    mvp *= rotationOf(frame.view);
    mvp.rotate(uprightRotation());
    mvp.scale(GizmoScale);
    m_gl.glClear(GL_DEPTH_BUFFER_BIT);
    drawTextured(m_programs.plain, m_axisGizmo, mvp);
    if (frame.gizmoHover.isOver)
        m_overlay.paintGizmo(m_programs, frame.view, frame.gizmoHover, frame.viewport);
}
