// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FadingGround.h"
#include "GLMesh.h"
#include "SceneFrame.h"
#include "SceneOverlay.h"
#include "ShaderPrograms.h"
#include "SurfacePainter.h"

#include <functional>

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
    void drawTextured(TexturedProgram &textured, GLMesh &mesh, const QMatrix4x4 &mvp,
                      GLenum mode = GL_TRIANGLES);
    void paintGround(const SceneFrame &frame);
    void paintGhosts(const SceneFrame &frame);
    void paintOverlay(const SceneFrame &frame);
    void drawPosedSurface(int surface, GLenum mode);
    void paintBoneMarker(const SceneFrame &frame);
    void paintMarks(const SceneFrame &frame);
    void paintHighlightPoint(const SceneFrame &frame);
    void paintAxisGizmo(const SceneFrame &frame);

    QOpenGLExtraFunctions &m_gl;
    bool m_culls = false;
    ShaderPrograms m_programs;
    std::unique_ptr<GLMesh> m_model;
    std::unique_ptr<GLMesh> m_ground; ///< made when it is first shown
    std::unique_ptr<FadingGround> m_fadingGround;
    GLMesh m_axisGizmo;
    GLMesh m_redQuad;
    GLMesh m_wireSphere;
    SurfacePainter m_surfaces;
    SceneOverlay m_overlay;
    QMatrix4x4 m_modelMatrix; ///< of the frame being painted

    // The selected surface of a skinned mesh in its pose, for the program without bones.
    QOpenGLVertexArrayObject m_posedArray;
    QOpenGLBuffer m_posedBuffer{QOpenGLBuffer::VertexBuffer};
    std::vector<GLVertex> m_posed;
};
