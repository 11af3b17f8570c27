// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MeshSource.h"
#include "Pose.h"

#include <QHash>
#include <QOpenGLBuffer>
#include <QOpenGLTexture>
#include <QOpenGLVertexArrayObject>

#include <memory>

class QOpenGLExtraFunctions;
struct TexturedProgram;

/// Describes the `GLVertex` layout of the bound vertex buffer to the bound vertex array object.
void describeVertexLayout(QOpenGLExtraFunctions &gl);

/// The graphics card's copy of a model: one vertex buffer, and index buffers and one texture per surface that
/// has triangles. Textures of one picture share its copy. A surface goes to the card when uploadNext() comes
/// to it, or else when it is drawn. Belongs to the context that was current when it was made; every call, the
/// destructor too, needs it current.
class GLMesh
{
public:
    static constexpr int NoSurface = -1;

    explicit GLMesh(MeshSource source);
    GLMesh(const GLMesh &) = delete;
    GLMesh &operator=(const GLMesh &) = delete;
    ~GLMesh();

    /// Follows the model's current vertices, and its triangle indexes too where `indexesToo` says so or the
    /// vertices have become another number. Textures and palette stay; the model has its old surfaces.
    void refresh(const SkinnedMesh &mesh, bool indexesToo);
    void refresh(const StaticMesh &mesh, bool indexesToo);

    /// Lets what is not on the card yet go there, surface after surface, as much as makes some MB; false when
    /// all is there.
    bool uploadNext();

    const MeshVertices &vertices() const { return m_vertices; }
    /// Where a vertex stands in the model's space, posed by the palette.
    QVector3D place(quint16 vertex) const;
    QVector3D boxMin() const { return m_vertices.boxMin; }
    QVector3D boxMax() const { return m_vertices.boxMax; }

    int surfaceCount() const { return int(m_surfaces.size()); }
    const std::vector<quint16> &indexes(int surface) const { return m_indexes[size_t(surface)]; }
    bool hasSelectedSurface() const { return selectedSurface >= 0 && selectedSurface < surfaceCount(); }

    // With `program`, which is bound and has its matrix set; the selected one tinted, where that is wanted.

    /// Draws all surfaces.
    void draw(const TexturedProgram &program, GLenum mode = GL_TRIANGLES);
    /// Draws one that there is.
    void draw(int surface, const TexturedProgram &program);
    /// Draws the index list of a surface as triangles, lines or points over this mesh's vertices.
    void drawPlain(int surface, GLenum mode);
    /// The same over the vertices of whatever vertex array object is bound.
    void drawIndexes(int surface, GLenum mode);

    /// Whether much of the surface's texture is half transparent. Brings the surface to the card.
    bool isTranslucent(int surface);
    /// Textures are smoothed between their texels, unless this is on.
    void setSharpTexels(bool on);
    /// Another number, which no other mesh has, after each change of vertices or indexes.
    int revision() const { return m_revision; }

    BonePalette palette; ///< one matrix per bone of a skinned mesh, identity until posed
    int selectedSurface = NoSurface;
    bool tintsSelected = true; ///< with blue

private:
    /// Its indexes on the card, cut so that none takes long to go there.
    struct Surface
    {
        std::vector<QOpenGLBuffer> parts; ///< all full but the last
        size_t uploadedParts = 0;         ///< from the first on
    };

    /// On the card; surfaces share it.
    struct PictureCopy
    {
        QOpenGLTexture texture;
        bool isTranslucent;
    };

    /// A surface's own; its picture goes to the card with its triangles.
    struct Texture
    {
        QImage image; ///< none where it is on the card
        std::shared_ptr<PictureCopy> copy;
    };

    template <typename Model>
    void refreshFrom(const Model &mesh, bool indexesToo);
    void drawSurface(size_t surface, const TexturedProgram &program, GLenum mode);
    void uploadVertices();
    void setIndexes(std::vector<std::vector<quint16>> indexes);
    size_t uploadPart(size_t surface);
    size_t uploadTexture(size_t surface);
    void uploadSurface(size_t surface);
    bool needsTexture(size_t surface) const;
    std::shared_ptr<PictureCopy> copyOf(const QImage &image);
    void applyFilter(QOpenGLTexture &texture) const;
    void changed();

    QOpenGLExtraFunctions &m_gl;
    QOpenGLVertexArrayObject m_vertexArray;
    QOpenGLBuffer m_vertexBuffer{QOpenGLBuffer::VertexBuffer};
    MeshVertices m_vertices;
    std::vector<Surface> m_surfaces;
    size_t m_next = 0;                                  ///< the surface that uploadNext() comes to
    std::vector<std::vector<quint16>> m_indexes;        ///< by surface
    std::vector<Texture> m_textures;                    ///< by surface
    QHash<qint64, std::weak_ptr<PictureCopy>> m_copies; ///< by their images' keys
    bool m_sharpTexels = false;
    int m_revision = 0;
};
