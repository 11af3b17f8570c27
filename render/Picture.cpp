// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Picture.h"

#include "ScenePainter.h"

#include <QColor>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QOpenGLFramebufferObject>

#include <algorithm>

namespace {
constexpr int Samples = 4; // up to OversampledSide; beyond, their memory would be measured in gigabytes
/// Small pictures are painted larger and scaled down, which also smooths the textures. At the most, that
/// gives sixteen places a pixel, and the card's own samples would add nothing that is seen.
constexpr int LargestOversampling = 4;
constexpr int OversampledSide = 4096;

QImage paintOnce(ScenePainter &painter, const SceneFrame &frame, const QSize &size, int samples)
{
    QOpenGLFramebufferObjectFormat format;
    format.setAttachment(QOpenGLFramebufferObject::CombinedDepthStencil);
    format.setSamples(std::max(size.width(), size.height()) > OversampledSide ? 0 : samples);
    QOpenGLFramebufferObject target(size, format);
    if (!target.isValid() || !target.bind())
        return {};
    QOpenGLContext::currentContext()->functions()->glViewport(0, 0, size.width(), size.height());
    painter.paint(frame);
    QImage image = target.toImage();
    target.release();
    return image;
}

int oversampling(const SceneFrame &frame, const QSize &size)
{
    // Lines are one pixel wide at any size and would become too faint.
    if (frame.shading != Shading::Shaded || frame.showVertexNormals)
        return 1;
    GLint longestSide = 0;
    QOpenGLContext::currentContext()->functions()->glGetIntegerv(GL_MAX_RENDERBUFFER_SIZE, &longestSide);
    const int side = std::max(size.width(), size.height());
    int factor = LargestOversampling;
    while (factor > 1 && side * factor > std::min(OversampledSide, longestSide))
        factor /= 2;
    return factor;
}
} // namespace

QImage paintPicture(ScenePainter &painter, const SceneFrame &frame, const QSize &size,
                    const QColor &background)
{
    painter.setUpState(background);
    const int factor = oversampling(frame, size);
    const QImage image = paintOnce(painter, frame, size * factor, factor < LargestOversampling ? Samples : 0);
    return factor == 1 || image.isNull()
               ? image
               : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
