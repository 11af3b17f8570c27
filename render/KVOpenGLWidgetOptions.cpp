// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
// How the view shows its model, and what of it is marked.
#include "KVOpenGLWidget.h"

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
