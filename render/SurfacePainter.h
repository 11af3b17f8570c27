// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "GLMesh.h"
#include "NormalLines.h"
#include "SceneFrame.h"
#include "ShaderPrograms.h"
#include "ShapeProgram.h"
#include "SurfaceMiddles.h"
#include "SurfaceOutline.h"

#include <array>
#include <memory>
#include <utility>
#include <vector>

class QColor;

/// Paints a model's surfaces, or the edges of their triangles, and the line around the selected one. What is
/// wanted seldom is made when it is wanted first.
class SurfacePainter
{
public:
    /// The programs outlive it.
    explicit SurfacePainter(ShaderPrograms &programs);

    /// How all is laid over what was drawn before: the frame's own alpha is how much of the background is
    /// covered.
    static void setUpBlending(QOpenGLExtraFunctions &gl);
    /// Edges alone have a color that shows on this.
    void setBackground(const QColor &color);
    /// `modelMatrix` turns the model into the view's space. Binds another program.
    void paint(GLMesh &model, const SceneFrame &frame, const QMatrix4x4 &modelMatrix);

    /// Paints a skinned model's outline in another pose, of one color. Where its parts lie before one another
    /// is left in the depth buffer.
    void paintGhost(GLMesh &model, const SceneFrame &frame, const OnionSkin::Ghost &ghost,
                    const QMatrix4x4 &mvp);

    /// For what lies on surfaces: the model's matrix, a little nearer to the eye in the same place of the
    /// picture, so that the surface does not hide it.
    static QMatrix4x4 pulledMatrix(const SceneFrame &frame, const QMatrix4x4 &modelMatrix);

private:
    struct Scene;

    void begin(TexturedProgram &textured, const Scene &scene);
    bool findTranslucent(const Scene &scene);
    void paintInPasses(const Scene &scene);
    void paintSurfaces(TexturedProgram &textured, const Scene &scene);
    void paintWires(TexturedProgram &textured, const Scene &scene);
    void fillPalette(const BonePalette &palette);

    using PolygonMode = void(QOPENGLF_APIENTRYP)(GLenum face, GLenum mode);

    QOpenGLExtraFunctions &m_gl;
    PolygonMode m_polygonMode; ///< null in an embedded context, which draws no wires
    QVector3D m_wireColor;
    ShaderPrograms &m_programs;
    std::unique_ptr<ShapeProgram> m_shape;
    std::unique_ptr<NormalLines> m_normals;
    SurfaceMiddles m_middles;
    std::vector<std::pair<float, int>> m_translucent; ///< depth in the eye and surface, from back to front
    SurfaceOutline m_outline;
    std::array<float, 16 * ShaderPrograms::BoneLimit> m_boneUpload{};
};
