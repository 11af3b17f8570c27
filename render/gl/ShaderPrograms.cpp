// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ShaderPrograms.h"

namespace {
void buildProgram(QOpenGLShaderProgram &program, const QString &vertexPath, const QString &fragmentPath,
                  const std::function<void()> &stepFailed)
{
    if (!program.addShaderFromSourceFile(QOpenGLShader::Vertex, vertexPath))
        stepFailed();
    if (!program.addShaderFromSourceFile(QOpenGLShader::Fragment, fragmentPath))
        stepFailed();
    program.bindAttributeLocation("a_position", int(AttributeLocation::Position));
    program.bindAttributeLocation("a_texcoord", int(AttributeLocation::TexCoord));
    program.bindAttributeLocation("a_normal", int(AttributeLocation::Normal));
    program.bindAttributeLocation("a_boneID", int(AttributeLocation::BoneId));
    program.bindAttributeLocation("a_color", int(AttributeLocation::Color));
    if (!program.link())
        stepFailed();
}
} // namespace

void TexturedProgram::build(const QString &vertexPath, const QString &fragmentPath,
                            const std::function<void()> &stepFailed)
{
    buildProgram(program, vertexPath, fragmentPath, stepFailed);
    mvpMatrix = program.uniformLocation("mvp_matrix");
    texture = program.uniformLocation("texture");
    brightness = program.uniformLocation("brightness");
    tiling = program.uniformLocation("tiling");
    colorHighlight = program.uniformLocation("color_highlight");
    wireColor = program.uniformLocation("wire_color");
    edges = program.uniformLocation("edges");
}

void TexturedProgram::begin(float brightnessFactor)
{
    if (!program.isLinked())
        return;
    program.bind();
    program.setUniformValue(texture, 0);
    program.setUniformValue(brightness, brightnessFactor);
    program.setUniformValue(tiling, 1.0f);
}

ShaderPrograms::ShaderPrograms(const std::function<void()> &stepFailed)
{
    plain.build(QStringLiteral(":/shaders/vshader.glsl"), QStringLiteral(":/shaders/fshader.glsl"),
                stepFailed);
    buildProgram(highlight, QStringLiteral(":/shaders/vshaderHighlight.glsl"),
                 QStringLiteral(":/shaders/fshaderHighlight.glsl"), stepFailed);
    skin.build(QStringLiteral(":/shaders/vshaderSkin.glsl"), QStringLiteral(":/shaders/fshaderSkin.glsl"),
               stepFailed);
    buildProgram(overlay, QStringLiteral(":/shaders/vshaderOverlay.glsl"),
                 QStringLiteral(":/shaders/fshaderOverlay.glsl"), stepFailed);

    highlightMvpMatrix = highlight.uniformLocation("mvp_matrix");
    overlayMvpMatrix = overlay.uniformLocation("mvp_matrix");

    bones = skin.program.uniformLocation("gBones[0]");
    for (boneCount = 0;; ++boneCount) {
        const QByteArray name = "gBones[" + QByteArray::number(boneCount) + ']';
        if (boneCount < BoneLimit && skin.program.uniformLocation(name.constData()) >= 0)
            continue;
        missingBoneText = name + " not found in shader";
        break;
    }
}
