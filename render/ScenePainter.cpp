// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ScenePainter.h"

#include "FixedMeshes.h"
#include "PosedVertices.h"

#include <QColor>
#include <QDebug>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QVector4D>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {
// Sizes of markers at a distance of 1: they look equally big from everywhere.
constexpr float SphereRadius = 0.028f;
constexpr float QuadRadius = 0.014f;
constexpr float NearestMarker = 5.12f; // the near plane: behind it nothing is seen
/// The overlay and the outline are drawn this much nearer to the eye, in the same place on the screen, so
/// that the surface they lie on does not hide them.
constexpr float OverlayPull = 0.998f;
constexpr QVector3D DarkWires(0.08f, 0.08f, 0.1f);
constexpr QVector3D LightWires(0.65f, 0.68f, 0.72f);
constexpr float WiresOnSurfaces = 0.6f; // opacity: where they are dense the texture still shows
constexpr float GizmoScale = 2.0f;
constexpr float GizmoMargin = 64.0f; // from the lower left corner to the arrows' origin, in pixels
constexpr float GizmoDepth = 1000.0f;

/// The rotation of a view or model matrix without its translation.
QMatrix4x4 rotationOf(const QMatrix4x4 &matrix)
{
    QMatrix4x4 rotation = matrix;
    rotation.setColumn(3, {0.0f, 0.0f, 0.0f, 1.0f});
    return rotation;
}

float distanceOf(const QMatrix4x4 &view, const QVector3D &place)
{
    return std::max(-view.map(place).z(), NearestMarker);
}
} // namespace

ScenePainter::ScenePainter(const std::function<void()> &stepFailed)
    : m_gl(*QOpenGLContext::currentContext()->extraFunctions())
    , m_polygonMode(
          reinterpret_cast<PolygonMode>(QOpenGLContext::currentContext()->getProcAddress("glPolygonMode")))
    , m_programs(stepFailed)
    , m_model(std::make_unique<GLMesh>(FixedMeshes::placeholder()))
    , m_axisGizmo(FixedMeshes::axisGizmo())
    , m_redQuad(FixedMeshes::redQuad())
    , m_wireSphere(FixedMeshes::wireSphere())
    , m_outline(m_gl)
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
    // The frame's own alpha is how much of the background is covered.
    m_gl.glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
}

void ScenePainter::setBackground(const QColor &color)
{
    const auto alpha = float(color.alphaF());
    m_wireColor = alpha > 0.5f && qGray(color.rgb()) < 100 ? LightWires : DarkWires;
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
        m_gl.glFrontFace(GL_CW);
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

    beginTextured(m_programs.plain, frame);
    if (frame.showGround)
        paintGround(frame);
    // The ground lies behind everything, even behind what is below it.
    m_gl.glClear(GL_DEPTH_BUFFER_BIT);

    paintModel(frame);
    paintOverlay(frame);

    beginTextured(m_programs.plain, frame);
    paintBoneMarker(frame);
    paintMarks(frame);
    paintHighlightPoint(frame);
    if (frame.showAxisGizmo)
        paintAxisGizmo(frame);
    m_programs.plain.program.release();
}

void ScenePainter::beginTextured(TexturedProgram &textured, const SceneFrame &frame)
{
    if (!textured.program.isLinked())
        return;
    textured.program.bind();
    m_gl.glUniform1i(textured.texture, 0);
    m_gl.glUniform1f(textured.brightness, frame.brightness);
    m_gl.glUniform1f(textured.tiling, 1.0f);
}

void ScenePainter::drawTextured(TexturedProgram &textured, GLMesh &mesh, const QMatrix4x4 &mvp, GLenum mode)
{
    if (!textured.program.isLinked())
        return;
    m_gl.glUniformMatrix4fv(textured.mvpMatrix, 1, GL_FALSE, mvp.constData());
    mesh.draw(textured, mode);
}

void ScenePainter::paintGround(const SceneFrame &frame)
{
    if (!m_ground)
        m_ground = std::make_unique<GLMesh>(FixedMeshes::ground());
    QMatrix4x4 ground;
    ground.translate(0.0f, frame.groundHeight, 0.0f);
    ground.rotate(uprightRotation());
    m_gl.glUniform1f(m_programs.plain.tiling, FixedMeshes::GroundTiling);
    drawTextured(m_programs.plain, *m_ground, frame.projection * frame.view * ground);
    m_gl.glUniform1f(m_programs.plain.tiling, 1.0f);
}

void ScenePainter::paintModel(const SceneFrame &frame)
{
    const QMatrix4x4 mvp = frame.projection * frame.view * m_modelMatrix;
    TexturedProgram &textured = frame.skinned ? m_programs.skin : m_programs.plain;
    if (!textured.program.isLinked())
        return;
    if (frame.skinned) {
        beginTextured(textured, frame);
        uploadPalette();
    }
    m_model->tintsSelected = frame.showSurfaceTint;
    if (frame.shading != Shading::Shaded && m_polygonMode)
        return paintWires(textured, mvp, frame.shading); // whose edges are of another color
    drawTextured(textured, *m_model, mvp);
    if (frame.showSurfaceTint && m_model->hasSelectedSurface())
        m_outline.paint(textured, *m_model, pulledMatrix(frame), frame.viewport);
}

void ScenePainter::paintWires(TexturedProgram &textured, const QMatrix4x4 &mvp, Shading shading)
{
    QVector4D color(m_wireColor, 1.0f);
    if (shading == Shading::ShadedWireframe) {
        color = QVector4D(DarkWires, WiresOnSurfaces);
        // Surfaces step back a little, so that they do not hide their own edges.
        m_gl.glEnable(GL_POLYGON_OFFSET_FILL);
        m_gl.glPolygonOffset(1.0f, 1.0f);
        drawTextured(textured, *m_model, mvp);
        m_gl.glDisable(GL_POLYGON_OFFSET_FILL);
    }
    m_gl.glUniform4f(textured.wireColor, color.x(), color.y(), color.z(), color.w());
    m_gl.glUniform1i(textured.edges, 1);
    m_polygonMode(GL_FRONT_AND_BACK, GL_LINE);
    drawTextured(textured, *m_model, mvp);
    m_polygonMode(GL_FRONT_AND_BACK, GL_FILL);
    m_gl.glUniform1i(textured.edges, 0);
    m_gl.glUniform4f(textured.wireColor, 0.0f, 0.0f, 0.0f, 0.0f);
}

void ScenePainter::uploadPalette()
{
    const BonePalette &palette = m_model->palette;
    const QMatrix4x4 identity;
    const size_t held = size_t(m_programs.boneCount);
    // Entries beyond the palette are reached by bad bone numbers only; they must not show an older model's.
    for (size_t bone = 0; bone < held; ++bone) {
        const QMatrix4x4 &matrix = bone < palette.size() ? palette[bone] : identity;
        std::memcpy(&m_boneUpload[16 * bone], matrix.constData(), 16 * sizeof(float));
    }
    m_gl.glUniformMatrix4fv(m_programs.bones, m_programs.boneCount, GL_FALSE, m_boneUpload.data());
    if (palette.size() > held)
        qDebug("%s", m_programs.missingBoneText.constData());
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
    const QMatrix4x4 mvp = pulledMatrix(frame);
    m_gl.glUniformMatrix4fv(m_programs.highlightMvpMatrix, 1, GL_FALSE, mvp.constData());
    const bool lines = kind == SurfaceOverlay::Lines || kind == SurfaceOverlay::LinesHidden;
    // Lines join the indexes two by two as they stand: not the triangles' edges.
    const GLenum mode = lines ? GL_LINES : GL_POINTS;
    if (frame.skinned)
        drawPosedSurface(m_model->selectedSurface, mode);
    else
        m_model->drawPlain(m_model->selectedSurface, mode);
}

QMatrix4x4 ScenePainter::pulledMatrix(const SceneFrame &frame) const
{
    QMatrix4x4 pull;
    pull.scale(OverlayPull);
    return frame.projection * pull * frame.view * m_modelMatrix;
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
    marker.scale(SphereRadius * distanceOf(frame.view, m_modelMatrix.map(joint)) / radius);
    m_gl.glClear(GL_DEPTH_BUFFER_BIT);
    drawTextured(m_programs.plain, m_wireSphere, frame.projection * frame.view * marker, GL_LINES);
}

void ScenePainter::paintMarks(const SceneFrame &frame)
{
    const ScreenMap map(frame.projection, frame.view * m_modelMatrix, frame.viewport);
    m_overlay.paint(m_programs, frame.marks, map, m_model->palette, frame.viewport);
    beginTextured(m_programs.plain, frame);
}

// The red square marks a point on a bone; it always faces the viewer.
void ScenePainter::paintHighlightPoint(const SceneFrame &frame)
{
    const HighlightPoint &point = frame.highlight;
    if (!point.on)
        return;
    const BonePalette &palette = m_model->palette;
    QVector3D place = point.position;
    if (point.bone >= 0 && size_t(point.bone) < palette.size())
        place = palette[size_t(point.bone)].map(place);
    place = m_modelMatrix.map(place);

    QMatrix4x4 marker;
    marker.translate(place);
    marker *= rotationOf(frame.view).transposed();
    marker.scale(QuadRadius * distanceOf(frame.view, place));
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
    mvp.translate(GizmoMargin, GizmoMargin);
    mvp *= rotationOf(frame.view);
    mvp.rotate(uprightRotation());
    mvp.scale(GizmoScale);
    m_gl.glClear(GL_DEPTH_BUFFER_BIT);
    drawTextured(m_programs.plain, m_axisGizmo, mvp);
}
