// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "GLMesh.h"
#include "ShaderPrograms.h"

/// The ground without an edge: it fades out around the model, and its texture is smoothed the more the
/// farther it is, so that nothing flickers there. Made with the context current.
class FadingGround
{
public:
    /// Says in the log where the driver does not take it.
    FadingGround();

    bool isUsable() const { return m_textured.program.isLinked(); }
    void paint(const QMatrix4x4 &mvp, float brightness);

private:
    explicit FadingGround(MeshSource source);

    TexturedProgram m_textured;
    QOpenGLTexture m_texture;
    GLMesh m_plane;
};
