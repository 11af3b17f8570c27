// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "OffscreenScene.h"

#include "ModelPlaces.h"
#include "Picture.h"

#include <QOpenGLFunctions>

namespace {
QSurfaceFormat surfaceFormat()
{
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setProfile(QSurfaceFormat::CoreProfile);
    return format;
}
} // namespace

std::unique_ptr<QOffscreenSurface> OffscreenScene::makeSurface()
{
    auto surface = std::make_unique<QOffscreenSurface>();
    surface->setFormat(surfaceFormat());
    surface->create();
    return surface;
}

OffscreenScene::OffscreenScene(QOffscreenSurface &surface)
{
    m_context.setFormat(surfaceFormat());
    if (!m_context.create() || !m_context.makeCurrent(&surface)) {
        m_failure = QStringLiteral("the system offers no OpenGL");
        return;
    }
    m_painter = std::make_unique<ScenePainter>([this] {
        m_failure = QStringLiteral("the graphics driver does not take the program's shaders, which need "
                                   "OpenGL 3.0 or later");
    });
    m_context.functions()->glGetIntegerv(GL_MAX_RENDERBUFFER_SIZE, &m_longestSide);
}

OffscreenScene::~OffscreenScene() = default;

std::vector<QVector3D> OffscreenScene::corners(const SceneFrame &frame) const
{
    std::vector<QVector3D> places = cornersOf(m_painter->model());
    const QMatrix4x4 upright = ScenePainter::modelMatrix(frame);
    for (QVector3D &place : places)
        place = upright.map(place);
    return places;
}

QImage OffscreenScene::paint(const SceneFrame &frame, const QSize &size, const QColor &background)
{
    SceneFrame whole = frame;
    if (whole.viewport.isEmpty())
        whole.viewport = size;
    return paintPicture(*m_painter, whole, size, background);
}
