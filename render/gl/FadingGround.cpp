// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FadingGround.h"

#include "FixedMeshes.h"
#include "Log.h"

#include <QCoreApplication>
#include <QMatrix4x4>

FadingGround::FadingGround()
    : FadingGround(FixedMeshes::ground())
{}

FadingGround::FadingGround(MeshSource source)
    : m_texture(source.images.front())
    , m_plane(std::move(source))
{
    m_textured.build(QStringLiteral(":/shaders/vshader.glsl"), QStringLiteral(":/shaders/fshaderGround.glsl"),
                     [] {});
    if (!isUsable())
        Log::warning(QCoreApplication::translate(
            "Viewport", "[Viewport] The graphics driver cannot fade the ground; it is drawn as usual"));
    m_texture.setMinMagFilters(QOpenGLTexture::LinearMipMapLinear, QOpenGLTexture::Linear);
    m_texture.setWrapMode(QOpenGLTexture::Repeat);
}

void FadingGround::paint(const QMatrix4x4 &mvp, float brightness)
{
    m_textured.begin(brightness);
    m_textured.program.setUniformValue(m_textured.tiling, FixedMeshes::GroundTiling);
    m_textured.program.setUniformValue(m_textured.mvpMatrix, mvp);
    m_texture.bind();
    m_plane.drawPlain(0, GL_TRIANGLES);
}
