// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "NormalLines.h"

#include "BoundingSphere.h"
#include "ModelPlaces.h"
#include "ShaderPrograms.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

#include <cmath>

namespace {
constexpr float LengthOfModel = 0.04f; // of the radius of the sphere around it
constexpr float LineColor[] = {1.0f, 0.92f, 0.2f};

/// As the model is posed when it is measured.
float lineLength(const GLMesh &model)
{
    std::vector<QVector3D> places = cornersOf(model);
    dropStrays(places);
    return LengthOfModel * BoundingSphere::of(places).radius;
}

/// The corners of a surface, of all for NoSurface.
std::vector<bool> cornersOfSurface(const GLMesh &model, int surface)
{
    std::vector<bool> corners(model.vertices().vertices.size(), false);
    for (int each = 0; each < model.surfaceCount(); ++each) {
        if (surface != GLMesh::NoSurface && each != surface)
            continue;
        for (const quint16 index : model.indexes(each))
            corners[index] = true;
    }
    return corners;
}
} // namespace

NormalLines::NormalLines()
    : m_gl(*QOpenGLContext::currentContext()->extraFunctions())
{
    m_array.create();
    m_buffer.create();
    m_array.bind();
    m_buffer.bind();
    describeVertexLayout(m_gl);
    m_array.release();
    m_buffer.release();
}

void NormalLines::update(const GLMesh &model)
{
    const int surface = model.hasSelectedSurface() ? model.selectedSurface : GLMesh::NoSurface;
    if (m_revision == model.revision() && m_surface == surface)
        return;
    m_revision = model.revision();
    m_surface = surface;

    const float length = lineLength(model);
    const std::vector<bool> corners = cornersOfSurface(model, surface);
    std::vector<GLVertex> ends;
    for (size_t i = 0; i < corners.size(); ++i) {
        GLVertex vertex = model.vertices().vertices[i];
        const QVector3D normal(vertex.normal[0], vertex.normal[1], vertex.normal[2]);
        const float size = normal.length();
        if (!corners[i] || !(size > 0.0f) || !std::isfinite(size))
            continue;
        ends.push_back(vertex);
        for (int axis = 0; axis < 3; ++axis)
            vertex.position[axis] += length / size * normal[axis];
        ends.push_back(vertex);
    }
    m_count = GLsizei(ends.size());
    m_buffer.bind();
    m_gl.glBufferData(GL_ARRAY_BUFFER, GLsizeiptr(ends.size() * sizeof(GLVertex)), ends.data(),
                      GL_STATIC_DRAW);
    m_buffer.release();
}

void NormalLines::paint(const TexturedProgram &program, const GLMesh &model)
{
    update(model);
    m_gl.glUniform4f(program.colorHighlight, 0.0f, 0.0f, 0.0f, 1.0f);
    m_gl.glUniform4f(program.wireColor, LineColor[0], LineColor[1], LineColor[2], 1.0f);
    m_gl.glUniform1i(program.edges, 1);
    m_array.bind();
    m_gl.glDrawArrays(GL_LINES, 0, m_count);
    m_array.release();
    m_gl.glUniform1i(program.edges, 0);
    m_gl.glUniform4f(program.wireColor, 0.0f, 0.0f, 0.0f, 0.0f);
}
