// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "OffscreenScene.h"

#include <QColor>
#include <QOpenGLExtraFunctions>
#include <QOpenGLFramebufferObject>

#include <algorithm>

namespace {
constexpr int Samples = 4;
/// Small pictures are painted larger and scaled down, which also smooths the textures.
constexpr int LargestOversampling = 4;
constexpr int OversampledSide = 4096;

QSurfaceFormat surfaceFormat()
{
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setProfile(QSurfaceFormat::CoreProfile);
    return format;
}
} // namespace

OffscreenScene::OffscreenScene()
{
    m_context.setFormat(surfaceFormat());
    m_surface.setFormat(surfaceFormat());
    m_surface.create();
    if (!m_context.create() || !m_context.makeCurrent(&m_surface)) {
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
    const GLMesh &model = m_painter->model();
    const std::vector<GLVertex> &vertices = model.vertices().vertices;
    QMatrix4x4 upright;
    upright.rotate(ScenePainter::uprightRotation());
    upright.rotate(frame.yaw);

    std::vector<bool> taken(vertices.size(), false);
    std::vector<QVector3D> places;
    for (int surface = 0; surface < model.surfaceCount(); ++surface) {
        for (const quint16 index : model.indexes(surface)) {
            if (taken[index])
                continue;
            taken[index] = true;
            places.push_back(upright.map(model.place(index)));
        }
    }
    return places;
}

QImage OffscreenScene::paint(const SceneFrame &frame, const QSize &size, const QColor &background)
{
    m_painter->setUpState(background);
    const int side = std::max(size.width(), size.height());
    int factor = LargestOversampling;
    while (factor > 1 && side * factor > std::min(OversampledSide, m_longestSide))
        factor /= 2;
    const QImage image = paintOnce(frame, size * factor);
    return factor == 1 || image.isNull()
               ? image
               : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage OffscreenScene::paintOnce(const SceneFrame &frame, const QSize &size)
{
    QOpenGLFramebufferObjectFormat format;
    format.setAttachment(QOpenGLFramebufferObject::Depth);
    format.setSamples(Samples);
    QOpenGLFramebufferObject target(size, format);
    if (!target.isValid() || !target.bind())
        return {};
    m_context.functions()->glViewport(0, 0, size.width(), size.height());
    SceneFrame whole = frame;
    whole.viewport = size;
    m_painter->paint(whole);
    return target.toImage();
}
