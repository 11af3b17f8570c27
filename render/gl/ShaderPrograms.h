// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QOpenGLShaderProgram>

#include <functional>

/// Where the shaders find the parts of a `GLVertex`. Bound before linking, so that one vertex array object
/// serves all programs.
namespace AttributeLocation {
constexpr GLuint Position = 0;
constexpr GLuint TexCoord = 1;
constexpr GLuint Normal = 2;
constexpr GLuint BoneId = 3;
constexpr GLuint Color = 4; ///< of an overlay's vertex
} // namespace AttributeLocation

/// A program that draws textured surfaces, with the places of its uniforms.
struct TexturedProgram
{
    QOpenGLShaderProgram program;
    int mvpMatrix = -1;
    int texture = -1;
    int brightness = -1;
    int tiling = -1;
    int colorHighlight = -1;
    int wireColor = -1; ///< laid over the texture by its alpha
    int edges = -1;     ///< draws edges, where the texture is transparent too

    /// Compiles and links; calls `stepFailed` after each step that fails and goes on.
    void build(const QString &vertexPath, const QString &fragmentPath,
               const std::function<void()> &stepFailed);
    /// Binds it, for the texture of unit 0 as it is. Nothing where it could not be linked.
    void begin(float brightnessFactor);
};

/// The shader programs of one context. Made and destroyed with the context current.
class ShaderPrograms
{
public:
    /// Bones that the skin program holds.
    static constexpr int BoneLimit = 128;

    /// Compiles and links all four; calls `stepFailed` after each step that fails and goes on.
    explicit ShaderPrograms(const std::function<void()> &stepFailed);

    TexturedProgram plain;
    TexturedProgram skin;
    QOpenGLShaderProgram highlight;
    int highlightMvpMatrix = -1;
    QOpenGLShaderProgram overlay;
    int overlayMvpMatrix = -1;

    int bones = -1;             ///< gBones[0] of the skin program
    int boneCount = 0;          ///< entries of gBones before the first that the program does not have
    QByteArray missingBoneText; ///< what a palette beyond those entries writes to the debug output
};
