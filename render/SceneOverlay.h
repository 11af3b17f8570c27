// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AxisGizmo.h"
#include "SceneBoxes.h"
#include "SceneMarks.h"

#include <QOpenGLBuffer>
#include <QOpenGLVertexArrayObject>

class QOpenGLExtraFunctions;
class ShaderPrograms;

/// Draws the marks over a painted frame. Belongs to the context that was current when it was made. Once it
/// has drawn a model, drawing it again allocates nothing.
class SceneOverlay
{
public:
    SceneOverlay();

    /// Depth and culling are as they were afterwards; the program is not.
    void paint(ShaderPrograms &programs, const MarkedRecords &records, const std::vector<GLVertex> &vertices,
               const ScreenMap &map, const BonePalette &palette, const QSizeF &size);

    /// The balls at the ends of the gizmo's axes, while the mouse is over it.
    void paintGizmo(ShaderPrograms &programs, const QMatrix4x4 &view, const GizmoHover &hover,
                    const QSize &size);

    /// As they were painted last.
    const SceneMarks &marks() const { return m_marks; }

private:
    void drawCanvas(ShaderPrograms &programs, const QSizeF &size);
    void upload();

    QOpenGLExtraFunctions &m_gl;
    QOpenGLVertexArrayObject m_array;
    QOpenGLBuffer m_buffer{QOpenGLBuffer::VertexBuffer};
    size_t m_capacity = 0; ///< vertices
    OverlayCanvas m_canvas;
    SceneBoxes m_boxes;
    SceneMarks m_marks;
};
