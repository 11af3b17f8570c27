// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SceneOverlay.h"

#include "ShaderPrograms.h"

#include <QMatrix4x4>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

#include <cstdint>

namespace {
constexpr QRgb AxisColors[] = {0xffe5484d, 0xff46a758, 0xff3e7bfa}; // x, y, z
constexpr QRgb HoverColor = 0xffffffff;
constexpr float BallRadius = 8.5f; // in pixels
constexpr float HoverRim = 3.0f;
constexpr float AxisWidth = 2.0f;

QRgb softened(QRgb color)
{
    return (color & 0x00ffffff) | 0x90000000;
}

/// Of the end that an axis comes from.
QRgb dimmed(QRgb color)
{
    return qRgb(qRed(color) / 2, qGreen(color) / 2, qBlue(color) / 2);
}
} // namespace

SceneOverlay::SceneOverlay()
    : m_gl(*QOpenGLContext::currentContext()->extraFunctions())
{
    m_array.create();
    m_buffer.create();
    m_array.bind();
    m_buffer.bind();
    constexpr GLsizei Stride = sizeof(OverlayCanvas::Vertex);
    m_gl.glEnableVertexAttribArray(AttributeLocation::Position);
    m_gl.glEnableVertexAttribArray(AttributeLocation::Color);
    m_gl.glVertexAttribPointer(AttributeLocation::Position, 2, GL_FLOAT, GL_FALSE, Stride, nullptr);
    m_gl.glVertexAttribPointer(
        AttributeLocation::Color, 4, GL_UNSIGNED_BYTE, GL_TRUE, Stride,
        reinterpret_cast<const void *>(std::uintptr_t(offsetof(OverlayCanvas::Vertex, color))));
    m_array.release();
    m_buffer.release();
}

void SceneOverlay::paint(ShaderPrograms &programs, const MarkedRecords &records,
                         const std::vector<GLVertex> &vertices, const ScreenMap &map,
                         const BonePalette &palette, const QSizeF &size)
{
    m_boxes.place(records, map, palette);
    m_marks.place(records, vertices, map, palette);
    m_canvas.clear();
    m_boxes.draw(m_canvas);
    m_marks.draw(m_canvas);
    drawCanvas(programs, size);
}

void SceneOverlay::paintGizmo(ShaderPrograms &programs, const QMatrix4x4 &view, const GizmoHover &hover,
                              const QSize &size)
{
    m_canvas.clear();
    for (const AxisGizmo::Ball &ball : AxisGizmo::balls(view, size)) {
        const QRgb color = AxisColors[ball.axis];
        if (!ball.isPositive)
            m_canvas.line(AxisGizmo::centre(size), ball.pixel, AxisWidth, softened(color));
        if (hover.side == ball.side)
            m_canvas.disc(ball.pixel, BallRadius + HoverRim, HoverColor);
        m_canvas.disc(ball.pixel, BallRadius, ball.isPositive ? color : dimmed(color));
    }
    drawCanvas(programs, size);
}

void SceneOverlay::drawCanvas(ShaderPrograms &programs, const QSizeF &size)
{
    if (m_canvas.vertices().empty() || !programs.overlay.isLinked())
        return;

    QMatrix4x4 toPicture;
    toPicture.ortho(0.0f, float(size.width()), float(size.height()), 0.0f, -1.0f, 1.0f);
    programs.overlay.bind();
    m_gl.glUniformMatrix4fv(programs.overlayMvpMatrix, 1, GL_FALSE, toPicture.constData());
    const bool culls = m_gl.glIsEnabled(GL_CULL_FACE) != 0;
    m_gl.glDisable(GL_CULL_FACE);
    m_gl.glDisable(GL_DEPTH_TEST);
    m_array.bind();
    upload();
    m_gl.glDrawArrays(GL_TRIANGLES, 0, GLsizei(m_canvas.vertices().size()));
    m_array.release();
    m_gl.glEnable(GL_DEPTH_TEST);
    if (culls)
        m_gl.glEnable(GL_CULL_FACE);
}

void SceneOverlay::upload()
{
    const auto &vertices = m_canvas.vertices();
    m_buffer.bind();
    if (vertices.size() > m_capacity) {
        m_capacity = vertices.capacity();
        m_gl.glBufferData(GL_ARRAY_BUFFER, GLsizeiptr(m_capacity * sizeof(vertices[0])), nullptr,
                          GL_STREAM_DRAW);
    }
    m_gl.glBufferSubData(GL_ARRAY_BUFFER, 0, GLsizeiptr(vertices.size() * sizeof(vertices[0])),
                         vertices.data());
    m_buffer.release();
}
