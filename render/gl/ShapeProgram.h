// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ShaderPrograms.h"

#include <QColor>

#include <vector>

class QVector3D;

/// What the shape program makes of a surface's texture; the numbers are the shader's.
enum class ShapeLook { Textured = 0, Lit = 1, Normals = 2 };

/// Which texels are drawn, by their alpha.
enum class AlphaPart { Seen, Opaque, Half };

/// Draws surfaces by their normals: under a light at the eye, or colored by the axes that they point along;
/// in colors of their bones; and parts of them by the alpha of their textures. A vertex without a usable
/// normal gets that of its triangle. Made with the context current.
class ShapeProgram
{
public:
    /// Says in the log where the driver does not take it.
    ShapeProgram();

    bool isUsable() const { return m_textured.program.isLinked(); }
    /// For GLMesh::draw(), once begin() was called and the matrix is set.
    const TexturedProgram &textured() const { return m_textured; }
    /// Binds it, for all that is seen. `eye` stands in the space that the model is posed in.
    void begin(ShapeLook look, const QVector3D &eye, float brightness, const QMatrix4x4 &mvp);
    void setAlphaPart(AlphaPart part);
    /// The bones of the model; no matrices for one that has none.
    void setBones(const float *matrices, int count);
    /// Laid over the vertices of each bone, as much as the alpha says. Bones without a color stay as they
    /// are.
    void setBoneColors(const std::vector<QRgb> &colors);

private:
    TexturedProgram m_textured;
    int m_look = -1;
    int m_eye = -1;
    int m_alphaFrom = -1;
    int m_alphaBelow = -1;
    int m_skinned = -1;
    int m_bones = -1;
    int m_colored = -1;
    int m_colors = -1;
};
