// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ShapeProgram.h"

#include "Log.h"

#include <QCoreApplication>
#include <QMatrix4x4>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QVector3D>

#include <algorithm>
#include <array>

ShapeProgram::ShapeProgram()
{
    m_textured.build(QStringLiteral(":/shaders/vshaderShape.glsl"),
                     QStringLiteral(":/shaders/fshaderShape.glsl"), [] {});
    if (!isUsable())
        Log::warning(QCoreApplication::translate(
            "Viewport",
            "[Viewport] The graphics driver cannot light or color models; they are drawn textured"));
    const QOpenGLShaderProgram &program = m_textured.program;
    m_look = program.uniformLocation("look");
    m_eye = program.uniformLocation("eye");
    m_alphaFrom = program.uniformLocation("alpha_from");
    m_alphaBelow = program.uniformLocation("alpha_below");
    m_skinned = program.uniformLocation("skinned");
    m_bones = program.uniformLocation("gBones[0]");
    m_colored = program.uniformLocation("colored");
    m_colors = program.uniformLocation("bone_colors[0]");
}

void ShapeProgram::begin(ShapeLook look, const QVector3D &eye, float brightness, const QMatrix4x4 &mvp)
{
    m_textured.begin(brightness);
    QOpenGLShaderProgram &program = m_textured.program;
    program.setUniformValue(m_look, int(look));
    program.setUniformValue(m_eye, eye);
    program.setUniformValue(m_textured.mvpMatrix, mvp);
    setAlphaPart(AlphaPart::Seen);
}

void ShapeProgram::setAlphaPart(AlphaPart part)
{
    constexpr float Seen = 0.01f; // as the other programs have it
    constexpr float Opaque = 0.99f;
    constexpr float All = 2.0f;
    m_textured.program.setUniformValue(m_alphaFrom, part == AlphaPart::Opaque ? Opaque : Seen);
    m_textured.program.setUniformValue(m_alphaBelow, part == AlphaPart::Half ? Opaque : All);
}

void ShapeProgram::setBones(const float *matrices, int count)
{
    QOpenGLShaderProgram &program = m_textured.program;
    program.setUniformValue(m_skinned, count > 0 ? 1 : 0);
    if (count > 0)
        QOpenGLContext::currentContext()->functions()->glUniformMatrix4fv(m_bones, count, GL_FALSE, matrices);
}

void ShapeProgram::setBoneColors(const std::vector<QRgb> &colors)
{
    m_textured.program.setUniformValue(m_colored, colors.empty() ? 0 : 1);
    if (colors.empty())
        return;
    std::array<float, 4 * ShaderPrograms::BoneLimit> upload{};
    for (size_t bone = 0; bone < std::min<size_t>(colors.size(), ShaderPrograms::BoneLimit); ++bone) {
        float *part = &upload[4 * bone];
        for (const int value :
             {qRed(colors[bone]), qGreen(colors[bone]), qBlue(colors[bone]), qAlpha(colors[bone])})
            *part++ = float(value) / 255.0f;
    }
    QOpenGLContext::currentContext()->functions()->glUniform4fv(m_colors, ShaderPrograms::BoneLimit,
                                                                upload.data());
}
