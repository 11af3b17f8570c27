// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "GLMesh.h"

/// Draws the normals of a model's vertices as short lines: of the selected surface, or of all where none is
/// selected. They are as long as the model is large. Made with the context current.
class NormalLines
{
public:
    NormalLines();

    /// With the model's program, which is bound and has its matrix and bones.
    void paint(const TexturedProgram &program, const GLMesh &model);

private:
    void update(const GLMesh &model);

    QOpenGLExtraFunctions &m_gl;
    QOpenGLVertexArrayObject m_array;
    QOpenGLBuffer m_buffer{QOpenGLBuffer::VertexBuffer};
    GLsizei m_count = 0;
    // What the lines were made of.
    int m_revision = 0;
    int m_surface = GLMesh::NoSurface;
};
