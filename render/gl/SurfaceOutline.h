// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class GLMesh;
class QMatrix4x4;
class QOpenGLExtraFunctions;
struct TexturedProgram;

/// Draws a line around what is seen of the selected surface, which its tint alone does not show on white.
/// Needs a stencil buffer.
class SurfaceOutline
{
public:
    explicit SurfaceOutline(QOpenGLExtraFunctions &gl);

    /// After the model, with its program, which is bound. `mvp` brings the surface a little nearer than it
    /// was drawn; `viewport` in the pixels that the line is to be two wide in.
    void paint(const TexturedProgram &program, GLMesh &model, const QMatrix4x4 &mvp, const QSize &viewport);

private:
    QOpenGLExtraFunctions &m_gl;
};
