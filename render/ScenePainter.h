// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "GLMesh.h"
#include "SceneOverlay.h"
#include "ShaderPrograms.h"
#include "SurfaceOutline.h"

#include <QQuaternion>
#include <QSize>

#include <array>
#include <functional>

/// How the selected surface is outlined, in the order of its combo box. The hidden kinds show through the
/// model.
enum class SurfaceOverlay { None, Lines, LinesHidden, Points, PointsHidden };

/// How the model's surfaces are drawn, in the order of their menu.
enum class Shading { Shaded, Wireframe, ShadedWireframe };

/// A place on the model that the user has selected.
struct HighlightPoint
{
    bool on = false;
    QVector3D position;
    bool standing = false; ///< the square stands on its corner
    int bone = -1;         ///< what the position is relative to; the model when there is no such bone
};

/// Everything a painted frame depends on beside the meshes.
struct SceneFrame
{
    QMatrix4x4 projection;
    QMatrix4x4 view;
    QSize viewport;  ///< in the widget's own pixels
    QQuaternion yaw; ///< turn of the whole model about its z
    bool skinned = false;
    bool backCull = false; ///< clockwise triangles are front faces, and the others are not seen
    bool showGround = false;
    bool showAxisGizmo = false;
    float brightness = 1.0f;
    float groundHeight = 0.0f; ///< model z, 0 or below
    Shading shading = Shading::Shaded;
    bool showSurfaceTint = true; ///< with its outline
    SurfaceOverlay overlay = SurfaceOverlay::None;
    int selectedBone = -1;
    HighlightPoint highlight;
    MarkedRecords marks;
};

/// Paints frames with one OpenGL context. Made, used and destroyed with that context current. Painting looks
/// up no uniform, formats no text and, after the first frame of a model, allocates nothing.
class ScenePainter
{
public:
    /// Builds programs and fixed meshes; `stepFailed` is called for each shader step that fails.
    explicit ScenePainter(const std::function<void()> &stepFailed);

    GLMesh &model() { return *m_model; }
    /// Replaces the model; the selected surface is forgotten.
    void setModel(MeshSource source);
    /// No model: an empty mesh stands in.
    void clearModel();

    /// Depth test, blending, point size and clear colour. Over a transparent background the frame comes out
    /// premultiplied.
    void setUpState(const QColor &background);

    void paint(const SceneFrame &frame);
    /// The bones and hot points of the frame painted last.
    const SceneMarks &marks() const { return m_overlay.marks(); }

    /// Turns the model's z-up space into the view's y-up one, with the frame's turn of the model.
    static QMatrix4x4 modelMatrix(const SceneFrame &frame);
    /// The same without that turn: x to -x, y to z, z to y.
    static QQuaternion uprightRotation();

private:
    void setBackground(const QColor &color);
    void setBackFaceCulling(bool on);
    void beginTextured(TexturedProgram &textured, const SceneFrame &frame);
    void drawTextured(TexturedProgram &textured, GLMesh &mesh, const QMatrix4x4 &mvp,
                      GLenum mode = GL_TRIANGLES);
    void paintGround(const SceneFrame &frame);
    void paintModel(const SceneFrame &frame);
    void paintWires(TexturedProgram &textured, const QMatrix4x4 &mvp, Shading shading);
    void uploadPalette();
    void paintOverlay(const SceneFrame &frame);
    QMatrix4x4 pulledMatrix(const SceneFrame &frame) const;
    void drawPosedSurface(int surface, GLenum mode);
    void paintBoneMarker(const SceneFrame &frame);
    void paintMarks(const SceneFrame &frame);
    void paintHighlightPoint(const SceneFrame &frame);
    void paintAxisGizmo(const SceneFrame &frame);

    using PolygonMode = void(QOPENGLF_APIENTRYP)(GLenum face, GLenum mode);

    QOpenGLExtraFunctions &m_gl;
    PolygonMode m_polygonMode; ///< null in an embedded context, which draws no wires
    QVector3D m_wireColor;     ///< that shows on the background
    bool m_culls = false;
    ShaderPrograms m_programs;
    std::unique_ptr<GLMesh> m_model;
    std::unique_ptr<GLMesh> m_ground; ///< made when it is first shown
    GLMesh m_axisGizmo;
    GLMesh m_redQuad;
    GLMesh m_wireSphere;
    SurfaceOutline m_outline;
    SceneOverlay m_overlay;
    QMatrix4x4 m_modelMatrix; ///< of the frame being painted
    std::array<float, 16 * ShaderPrograms::BoneLimit> m_boneUpload{};

    // The selected surface of a skinned mesh in its pose, for the program without bones.
    QOpenGLVertexArrayObject m_posedArray;
    QOpenGLBuffer m_posedBuffer{QOpenGLBuffer::VertexBuffer};
    std::vector<GLVertex> m_posed;
};
