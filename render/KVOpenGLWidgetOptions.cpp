// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
// How the view shows its model, and what of it is marked.
#include "KVOpenGLWidget.h"

#include "ViewStatistics.h"

#include <utility>

void KVOpenGLWidget::setBackgroundColor(const QColor &color)
{
    m_background = color;
    if (m_painter && takeContext()) {
        m_painter->setBackground(QColor(color.rgb()));
        doneCurrent();
    }
    update();
}

void KVOpenGLWidget::setMoveSpeed(float speed)
{
    m_moveSpeed = speed;
}

void KVOpenGLWidget::setBrightness(float factor)
{
    m_frame.brightness = factor;
    update();
}

void KVOpenGLWidget::setShowGround(bool on)
{
    m_frame.showGround = on;
    update();
}

void KVOpenGLWidget::setShowAxisGizmo(bool on)
{
    m_frame.showAxisGizmo = on;
    update();
}

void KVOpenGLWidget::setBackCull(bool on)
{
    m_backCull = on;
    update();
}

void KVOpenGLWidget::setSurfSelectType(int type)
{
    const bool known = type >= 0 && type <= int(SurfaceOverlay::PointsHidden);
    m_frame.overlay = known ? SurfaceOverlay(type) : SurfaceOverlay::None;
    update();
}

void KVOpenGLWidget::setShading(int shading)
{
    const bool known = shading >= 0 && shading <= int(Shading::ShadedWireframe);
    m_frame.shading = known ? Shading(shading) : Shading::Shaded;
    update();
}

void KVOpenGLWidget::setSelectedSurface(int surface)
{
    m_selectedSurface = surface;
    if (m_painter)
        m_painter->model().selectedSurface = surface;
    update();
}

void KVOpenGLWidget::setSelectedBone(int bone)
{
    m_frame.selectedBone = bone;
    update();
}

void KVOpenGLWidget::setHighlightPoint(const QVector3D &position, bool flag, int bone)
{
    m_frame.highlight = {true, position, flag, bone};
    update();
}

void KVOpenGLWidget::clearHighlightPoint()
{
    m_frame.highlight = {};
    update();
}

void KVOpenGLWidget::setShowSkeleton(bool on)
{
    m_frame.marks.skeleton = on;
    showMarks();
}

void KVOpenGLWidget::setShowHotPoints(bool on)
{
    m_frame.marks.hotPoints = on;
    showMarks();
}

void KVOpenGLWidget::showMarks()
{
    // Their tips come up without a button held.
    setMouseTracking(m_frame.marks.skeleton || m_frame.marks.hotPoints);
    update();
}

void KVOpenGLWidget::setMarkedSelection(std::vector<int> bones, std::vector<int> hotPoints)
{
    m_frame.marks.selectedBones = std::move(bones);
    m_frame.marks.selectedHotPoints = std::move(hotPoints);
    update();
}

void KVOpenGLWidget::setMarkNames(MarkName bone, MarkName hotPoint)
{
    m_boneName = std::move(bone);
    m_hotPointName = std::move(hotPoint);
}

void KVOpenGLWidget::setShowStatistics(bool on)
{
    if (on == (m_statistics != nullptr))
        return;
    delete std::exchange(m_statistics, on ? new ViewStatistics(this) : nullptr);
    if (!m_statistics)
        return;
    m_statistics->show();
    showStatistics();
}

void KVOpenGLWidget::showStatistics()
{
    if (!m_statistics || !m_painter)
        return;
    const GLMesh &model = m_painter->model();
    size_t triangles = 0;
    for (int surface = 0; surface < model.surfaceCount(); ++surface)
        triangles += model.indexes(surface).size() / 3;
    m_statistics->setTriangles(int(triangles));
}

void KVOpenGLWidget::setOrbitMode(bool on)
{
    m_orbitMode = on;
}
