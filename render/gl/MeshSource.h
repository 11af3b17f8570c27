// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QVector3D>

#include <cstddef>
#include <vector>

class MaterialTextures;
struct ReadProgress;
struct SkinnedMesh;
struct StaticMesh;

/// A vertex as the graphics card gets it: 36 bytes, interleaved.
struct GLVertex
{
    float position[3];
    float texcoord[2]; ///< (u, 1 - v) of the file: v from the image's top row
    float normal[3];
    qint32 boneId; ///< unsigned 16 bits of the file; 0 in a static mesh
};
static_assert(sizeof(GLVertex) == 36 && offsetof(GLVertex, texcoord) == 12 &&
                  offsetof(GLVertex, normal) == 20 && offsetof(GLVertex, boneId) == 32,
              "the layout is the vertex buffer's");

/// Vertices and the box around their positions, from 999999 to -999999 when there are none.
struct MeshVertices
{
    std::vector<GLVertex> vertices;
    QVector3D boxMin;
    QVector3D boxMax;

    /// Replaces everything by the model's vertices as they are now; keeps the memory.
    void assign(const SkinnedMesh &mesh);
    void assign(const StaticMesh &mesh);
    void assign(std::vector<GLVertex> ready);

private:
    template <typename Model>
    void assignModel(const Model &mesh);
    void measure();
};

/// Everything a `GLMesh` is made from, without any graphics: built and checked in main memory.
struct MeshSource
{
    MeshVertices vertices;
    std::vector<std::vector<quint16>> indexes; ///< one list per surface, all below the vertex count
    std::vector<QImage> images;                ///< one per surface
    size_t boneCount = 0;

    /// Copies a model and finds its textures in the folders of the settings. Logs what is missing and which
    /// triangles cannot be drawn.
    static MeshSource from(const SkinnedMesh &mesh);
    static MeshSource from(const StaticMesh &mesh);
    /// The same with other folders; an empty one is not searched. Whoever does not want it any more cancels
    /// `progress`, if there is one: no texture is read from then on.
    static MeshSource from(const SkinnedMesh &mesh, const QString &gamePath, const QString &outputDir,
                           const ReadProgress *progress = nullptr);
    static MeshSource from(const StaticMesh &mesh, const QString &gamePath, const QString &outputDir,
                           const ReadProgress *progress = nullptr);
    /// The same with one image for all surfaces, without a look at materials and without a log line.
    static MeshSource from(const StaticMesh &mesh, const QImage &image);
};

/// The index lists of a model as they may be drawn: triangles that name a vertex that is not there are left
/// out and named in the log. The model's own lists stay as they are.
std::vector<std::vector<quint16>> drawableIndexes(const SkinnedMesh &mesh);
std::vector<std::vector<quint16>> drawableIndexes(const StaticMesh &mesh);
