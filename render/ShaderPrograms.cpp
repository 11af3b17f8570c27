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

void locateUniforms(TexturedProgram &textured)
{
    const QOpenGLShaderProgram &program = textured.program;
    textured.mvpMatrix = program.uniformLocation("mvp_matrix");
    textured.texture = program.uniformLocation("texture");
    textured.brightness = program.uniformLocation("brightness");
    textured.tiling = program.uniformLocation("tiling");
    textured.colorHighlight = program.uniformLocation("color_highlight");
    textured.wireColor = program.uniformLocation("wire_color");
    textured.edges = program.uniformLocation("edges");
}
} // namespace

ShaderPrograms::ShaderPrograms(const std::function<void()> &stepFailed)
{
    buildProgram(plain.program, QStringLiteral(":/shaders/vshader.glsl"),
                 QStringLiteral(":/shaders/fshader.glsl"), stepFailed);
    buildProgram(highlight, QStringLiteral(":/shaders/vshaderHighlight.glsl"),
                 QStringLiteral(":/shaders/fshaderHighlight.glsl"), stepFailed);
    buildProgram(skin.program, QStringLiteral(":/shaders/vshaderSkin.glsl"),
                 QStringLiteral(":/shaders/fshaderSkin.glsl"), stepFailed);
    buildProgram(overlay, QStringLiteral(":/shaders/vshaderOverlay.glsl"),
                 QStringLiteral(":/shaders/fshaderOverlay.glsl"), stepFailed);

    locateUniforms(plain);
    locateUniforms(skin);
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
