// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SurfacePainter.h"

#include "Camera.h"

#include <QColor>
#include <QDebug>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QVector4D>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace {
constexpr float OverlayPull = 0.998f;
constexpr float DepthStep = 1.0f / float(1 << 23); // of 24 bits, from -1 to 1
constexpr QVector3D DarkWires(0.08f, 0.08f, 0.1f);
constexpr QVector3D LightWires(0.65f, 0.68f, 0.72f);
constexpr float WiresOnSurfaces = 0.6f; // opacity: where they are dense the texture still shows

bool showsBoneColors(const SceneFrame &frame)
{
    return frame.skinned && !frame.boneColors.empty();
}
} // namespace

/// What is painted at the moment.
struct SurfacePainter::Scene
{
    GLMesh &model;
    const SceneFrame &frame;
    const QMatrix4x4 &modelMatrix;
    QMatrix4x4 mvp;
};

SurfacePainter::SurfacePainter(ShaderPrograms &programs)
    : m_gl(*QOpenGLContext::currentContext()->extraFunctions())
    , m_polygonMode(
          reinterpret_cast<PolygonMode>(QOpenGLContext::currentContext()->getProcAddress("glPolygonMode")))
    , m_programs(programs)
    , m_outline(m_gl)
{}

void SurfacePainter::setUpBlending(QOpenGLExtraFunctions &gl)
{
    gl.glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
}

void SurfacePainter::setBackground(const QColor &color)
{
    m_wireColor = color.alphaF() > 0.5 && qGray(color.rgb()) < 100 ? LightWires : DarkWires;
}

QMatrix4x4 SurfacePainter::pulledMatrix(const SceneFrame &frame, const QMatrix4x4 &modelMatrix)
{
    QMatrix4x4 pull;
    if (isOrthographic(frame.projection)) // by what the depth buffer tells apart, however near it is
        pull.translate(0.0f, 0.0f,
                       std::max((1.0f - OverlayPull) / frame.projection(1, 1),
                                3.0f * DepthStep / std::fabs(frame.projection(2, 2))));
    else
        pull.scale(OverlayPull);
    return frame.projection * pull * frame.view * modelMatrix;
}

void SurfacePainter::paint(GLMesh &model, const SceneFrame &frame, const QMatrix4x4 &modelMatrix)
{
    const Scene scene{model, frame, modelMatrix, frame.projection * frame.view * modelMatrix};
    TexturedProgram &textured = frame.skinned ? m_programs.skin : m_programs.plain;
    if (!textured.program.isLinked())
        return;
    if (frame.skinned)
        fillPalette(model.palette);
    if (frame.skinned && model.palette.size() > size_t(m_programs.boneCount))
        qDebug("%s", m_programs.missingBoneText.constData());
    model.tintsSelected = frame.showSurfaceTint;
    begin(textured, scene);
    model.setSharpTexels(frame.sharpTexels);
    const bool hasWires = frame.shading != Shading::Shaded && m_polygonMode;
    if (hasWires)
        paintWires(textured, scene);
    else
        paintSurfaces(textured, scene);
    if (frame.showVertexNormals) {
        if (!m_normals)
            m_normals = std::make_unique<NormalLines>();
        m_normals->paint(textured, model);
    }
    // The edges of a selected surface are of another color themselves.
    if (!hasWires && frame.showSurfaceTint && model.hasSelectedSurface())
        m_outline.paint(textured, model, pulledMatrix(frame, modelMatrix), frame.viewport);
}

void SurfacePainter::paintGhost(GLMesh &model, const SceneFrame &frame, const OnionSkin::Ghost &ghost,
                                const QMatrix4x4 &mvp)
{
    TexturedProgram &skin = m_programs.skin;
    if (!skin.program.isLinked())
        return;
    fillPalette(ghost.palette);
    begin(skin, {model, frame, mvp, mvp});
    model.tintsSelected = false;
    m_gl.glUniform4f(skin.wireColor, ghost.color.x(), ghost.color.y(), ghost.color.z(), 1.0f);
    // The nearest parts alone, so that the color is as strong everywhere.
    m_gl.glColorMask(GL_FALSE, GL_FALSE, GL_FALSE, GL_FALSE);
    model.draw(skin);
    m_gl.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    m_gl.glDepthFunc(GL_EQUAL);
    m_gl.glBlendColor(0.0f, 0.0f, 0.0f, ghost.color.w());
    m_gl.glBlendFunc(GL_CONSTANT_ALPHA, GL_ONE_MINUS_CONSTANT_ALPHA);
    model.draw(skin);
    setUpBlending(m_gl);
    m_gl.glDepthFunc(GL_LESS);
    m_gl.glUniform4f(skin.wireColor, 0.0f, 0.0f, 0.0f, 0.0f);
}

void SurfacePainter::begin(TexturedProgram &textured, const Scene &scene)
{
    textured.begin(scene.frame.brightness);
    if (scene.frame.skinned)
        m_gl.glUniformMatrix4fv(m_programs.bones, m_programs.boneCount, GL_FALSE, m_boneUpload.data());
    m_gl.glUniformMatrix4fv(textured.mvpMatrix, 1, GL_FALSE, scene.mvp.constData());
}

/// With its program bound, and again afterwards.
void SurfacePainter::paintSurfaces(TexturedProgram &textured, const Scene &scene)
{
    const SurfaceLook look = scene.frame.look;
    const bool isColored = showsBoneColors(scene.frame);
    const bool hasPasses = scene.frame.sortsTransparency && findTranslucent(scene);
    if (look == SurfaceLook::Textured && !hasPasses && !isColored)
        return scene.model.draw(textured);
    if (!m_shape)
        m_shape = std::make_unique<ShapeProgram>();
    if (!m_shape->isUsable())
        return scene.model.draw(textured);
    const QMatrix4x4 fromEye = (scene.frame.view * scene.modelMatrix).inverted();
    QVector3D eye = fromEye.column(3).toVector3D();
    if (isOrthographic(scene.frame.projection)) // the light comes from everywhere before the picture
        eye += Camera::FarPlane * fromEye.column(2).toVector3D();
    m_shape->begin(ShapeLook(look), eye, scene.frame.brightness, scene.mvp);
    m_shape->setBones(m_boneUpload.data(), scene.frame.skinned ? m_programs.boneCount : 0);
    m_shape->setBoneColors(isColored ? scene.frame.boneColors : std::vector<QRgb>());
    if (hasPasses)
        paintInPasses(scene);
    else
        scene.model.draw(m_shape->textured());
    begin(textured, scene);
}

bool SurfacePainter::findTranslucent(const Scene &scene)
{
    m_translucent.clear();
    for (int surface = 0; surface < scene.model.surfaceCount(); ++surface) {
        if (scene.model.isTranslucent(surface))
            m_translucent.emplace_back(0.0f, surface);
    }
    if (m_translucent.empty())
        return false;
    m_middles.update(scene.model);
    const QMatrix4x4 toEye = scene.frame.view * scene.modelMatrix;
    for (auto &[depth, surface] : m_translucent)
        depth = toEye.map(m_middles.middle(scene.model, surface)).z();
    // Those that stand equally far stay in their order.
    std::sort(m_translucent.begin(), m_translucent.end());
    return true;
}

// All that is opaque hides what is behind it, the rest hides nothing.
void SurfacePainter::paintInPasses(const Scene &scene)
{
    const auto isLater = [this](int surface) {
        return std::any_of(m_translucent.begin(), m_translucent.end(),
                           [surface](const auto &each) { return each.second == surface; });
    };
    for (int surface = 0; surface < scene.model.surfaceCount(); ++surface) {
        m_shape->setAlphaPart(isLater(surface) ? AlphaPart::Opaque : AlphaPart::Seen);
        scene.model.draw(surface, m_shape->textured());
    }
    m_shape->setAlphaPart(AlphaPart::Half);
    m_gl.glDepthMask(GL_FALSE);
    for (const auto &each : m_translucent)
        scene.model.draw(each.second, m_shape->textured());
    m_gl.glDepthMask(GL_TRUE);
}

void SurfacePainter::paintWires(TexturedProgram &textured, const Scene &scene)
{
    if (scene.frame.shading == Shading::Wireframe && showsBoneColors(scene.frame)) {
        m_polygonMode(GL_FRONT_AND_BACK, GL_LINE);
        paintSurfaces(textured, scene);
        m_polygonMode(GL_FRONT_AND_BACK, GL_FILL);
        return;
    }
    QVector4D color(m_wireColor, 1.0f);
    if (scene.frame.shading == Shading::ShadedWireframe) {
        color = QVector4D(DarkWires, WiresOnSurfaces);
        // Surfaces step back a little, so that they do not hide their own edges.
        m_gl.glEnable(GL_POLYGON_OFFSET_FILL);
        m_gl.glPolygonOffset(1.0f, 1.0f);
        paintSurfaces(textured, scene);
        m_gl.glDisable(GL_POLYGON_OFFSET_FILL);
    }
    // The program mixes edges with the texture. What lies below has other colors in another look.
    const bool blends = scene.frame.look != SurfaceLook::Textured || showsBoneColors(scene.frame);
    if (blends) {
        m_gl.glBlendColor(0.0f, 0.0f, 0.0f, std::exchange(color[3], 1.0f));
        m_gl.glBlendFuncSeparate(GL_CONSTANT_ALPHA, GL_ONE_MINUS_CONSTANT_ALPHA, GL_ONE,
                                 GL_ONE_MINUS_SRC_ALPHA);
    }
    m_gl.glUniform4f(textured.wireColor, color.x(), color.y(), color.z(), color.w());
    m_gl.glUniform1i(textured.edges, 1);
    m_polygonMode(GL_FRONT_AND_BACK, GL_LINE);
    scene.model.draw(textured);
    m_polygonMode(GL_FRONT_AND_BACK, GL_FILL);
    if (blends)
        setUpBlending(m_gl);
    m_gl.glUniform1i(textured.edges, 0);
    m_gl.glUniform4f(textured.wireColor, 0.0f, 0.0f, 0.0f, 0.0f);
}

void SurfacePainter::fillPalette(const BonePalette &palette)
{
    const QMatrix4x4 identity;
    const size_t held = size_t(m_programs.boneCount);
    // Entries beyond the palette are reached by bad bone numbers only; they must not show an older model's.
    for (size_t bone = 0; bone < held; ++bone) {
        const QMatrix4x4 &matrix = bone < palette.size() ? palette[bone] : identity;
        std::memcpy(&m_boneUpload[16 * bone], matrix.constData(), 16 * sizeof(float));
    }
}
