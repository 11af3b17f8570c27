// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SurfaceOutline.h"

#include "GLMesh.h"
#include "ShaderPrograms.h"

#include <QMatrix4x4>
#include <QOpenGLExtraFunctions>

#include <algorithm>

namespace {
constexpr float OutlineWidth = 2.0f; // pixels
constexpr float Slant = 0.7f;        // of a step to both sides
constexpr float OutlineSteps[][2] = {{1.0f, 0.0f},   {-1.0f, 0.0f},   {0.0f, 1.0f},    {0.0f, -1.0f},
                                     {Slant, Slant}, {-Slant, Slant}, {Slant, -Slant}, {-Slant, -Slant}};
} // namespace

SurfaceOutline::SurfaceOutline(QOpenGLExtraFunctions &gl)
    : m_gl(gl)
{}

void SurfaceOutline::paint(const TexturedProgram &program, GLMesh &model, const QMatrix4x4 &mvp,
                           const QSize &viewport)
{
    const auto draw = [&](const QMatrix4x4 &matrix) {
        m_gl.glUniformMatrix4fv(program.mvpMatrix, 1, GL_FALSE, matrix.constData());
        model.draw(model.selectedSurface, program);
    };
    m_gl.glClear(GL_STENCIL_BUFFER_BIT);
    m_gl.glEnable(GL_STENCIL_TEST);
    m_gl.glDepthMask(GL_FALSE);

    // What is seen of the surface, and then what is beside that when it is drawn a little to all sides.
    m_gl.glStencilFunc(GL_ALWAYS, 1, 1);
    m_gl.glStencilOp(GL_KEEP, GL_KEEP, GL_REPLACE);
    m_gl.glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
    draw(mvp);
    m_gl.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);

    m_gl.glStencilFunc(GL_NOTEQUAL, 1, 1);
    m_gl.glStencilOp(GL_KEEP, GL_KEEP, GL_KEEP);
    m_gl.glUniform4f(program.wireColor, 0.0f, 0.0f, 0.0f, 1.0f);
    for (const auto &step : OutlineSteps) {
        QMatrix4x4 aside;
        aside.translate(step[0] * 2.0f * OutlineWidth / float(std::max(1, viewport.width())),
                        step[1] * 2.0f * OutlineWidth / float(std::max(1, viewport.height())));
        draw(aside * mvp);
    }
    m_gl.glUniform4f(program.wireColor, 0.0f, 0.0f, 0.0f, 0.0f);
    m_gl.glDepthMask(GL_TRUE);
    m_gl.glDisable(GL_STENCIL_TEST);
}
