// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ScenePainter.h"

#include <QImage>
#include <QOffscreenSurface>
#include <QOpenGLContext>

#include <memory>

/// Paints models into pictures, without a window: for thumbnails and the command line. Needs a
/// QGuiApplication, and a system that offers OpenGL. Made, used and destroyed in one thread, which may be any
/// where the system has OpenGL in threads; each thread has a scene and a surface of its own.
class OffscreenScene
{
public:
    /// What a scene paints on. The system makes it in the GUI thread only; it is kept as long as the scene.
    static std::unique_ptr<QOffscreenSurface> makeSurface();

    explicit OffscreenScene(QOffscreenSurface &surface);
    ~OffscreenScene();
    OffscreenScene(const OffscreenScene &) = delete;
    OffscreenScene &operator=(const OffscreenScene &) = delete;

    /// Why nothing can be painted; empty while nothing is wrong. Nothing else may be called then.
    const QString &failure() const { return m_failure; }

    void setModel(MeshSource source) { m_painter->setModel(std::move(source)); }
    /// For its palette and its vertices.
    GLMesh &model() { return m_painter->model(); }

    /// Where the corners of the triangles stand in the view's y-up space, as the frame would be painted.
    std::vector<QVector3D> corners(const SceneFrame &frame) const;

    /// The longest side that a picture may have, in pixels.
    int longestSide() const { return m_longestSide; }

    /// A picture with soft edges over `background`, which may be transparent; null when the graphics driver
    /// has no memory for it. The frame's projection is that of a picture of this size; a
    /// frame without a view port of its own has the picture's.
    QImage paint(const SceneFrame &frame, const QSize &size, const QColor &background);

private:
    QString m_failure;
    QOpenGLContext m_context;
    std::unique_ptr<ScenePainter> m_painter;
    int m_longestSide = 0;
};
