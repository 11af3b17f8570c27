// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GLMesh.h"

#include "Background.h"
#include "PosedVertices.h"
#include "ShaderPrograms.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <limits>
#include <utility>

namespace {
/// Added to the colour of the selected surface: an 8-bit (0, 0, 128).
constexpr float SelectionBlue = 128.0f / 255.0f;

/// Takes less than 10 ms.
constexpr size_t BytesInATurn = 4 * 1024 * 1024;

/// No index is larger, so what comes after is never drawn.
constexpr size_t DrawableVertices = size_t(std::numeric_limits<quint16>::max()) + 1;

/// In whole triangles and in whole lines.
constexpr size_t IndexesInAPart = BytesInATurn / sizeof(quint16) / 6 * 6;

/// Of the texels that are seen at all.
constexpr double TranslucentShare = 0.05;
constexpr int LooksAcross = 128;

/// Whether much of a picture is half transparent. Looks at some of its texels, which takes less than the rest
/// of its way to the card by far.
bool isTranslucentPicture(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return false;
    const int stepX = std::max(1, image.width() / LooksAcross);
    const int stepY = std::max(1, image.height() / LooksAcross);
    int seen = 0;
    int half = 0;
    for (int y = 0; y < image.height(); y += stepY) {
        for (int x = 0; x < image.width(); x += stepX) {
            const int alpha = qAlpha(image.pixel(x, y));
            seen += alpha > 2 ? 1 : 0; // as the programs draw them
            half += alpha > 2 && alpha < 253 ? 1 : 0;
        }
    }
    return half > TranslucentShare * seen;
}

const void *bufferOffset(size_t offset)
{
    return reinterpret_cast<const void *>(std::uintptr_t(offset));
}
} // namespace

void describeVertexLayout(QOpenGLExtraFunctions &gl)
{
    constexpr GLsizei Stride = sizeof(GLVertex);
    for (GLuint location : {AttributeLocation::Position, AttributeLocation::TexCoord,
                            AttributeLocation::Normal, AttributeLocation::BoneId})
        gl.glEnableVertexAttribArray(location);
    gl.glVertexAttribPointer(AttributeLocation::Position, 3, GL_FLOAT, GL_FALSE, Stride,
                             bufferOffset(offsetof(GLVertex, position)));
    gl.glVertexAttribPointer(AttributeLocation::TexCoord, 2, GL_FLOAT, GL_FALSE, Stride,
                             bufferOffset(offsetof(GLVertex, texcoord)));
    gl.glVertexAttribPointer(AttributeLocation::Normal, 3, GL_FLOAT, GL_FALSE, Stride,
                             bufferOffset(offsetof(GLVertex, normal)));
    // The plain call would turn the bone number into a float.
    gl.glVertexAttribIPointer(AttributeLocation::BoneId, 1, GL_INT, Stride,
                              bufferOffset(offsetof(GLVertex, boneId)));
}

GLMesh::GLMesh(MeshSource source)
    : palette(source.boneCount)
    , m_gl(*QOpenGLContext::currentContext()->extraFunctions())
    , m_vertices(std::move(source.vertices))
{
    m_vertexArray.create();
    m_vertexBuffer.create();
    m_vertexArray.bind();
    m_vertexBuffer.bind();
    describeVertexLayout(m_gl);
    m_vertexArray.release();

    m_textures.reserve(source.images.size());
    for (const QImage &image : source.images)
        m_textures.push_back({image, nullptr});
    uploadVertices();
    setIndexes(std::move(source.indexes));
    changed();
}

GLMesh::~GLMesh()
{
    Background::discard(std::make_pair(std::move(m_vertices.vertices), std::move(m_indexes)));
}

void GLMesh::changed()
{
    static std::atomic_int newest{0}; // pictures are painted in threads
    m_revision = ++newest;
}

bool GLMesh::uploadNext()
{
    size_t bytes = 0;
    m_vertexArray.bind();
    while (m_next < m_surfaces.size() && bytes < BytesInATurn) {
        if (const size_t part = uploadPart(m_next))
            bytes += part;
        else
            bytes += uploadTexture(m_next++);
    }
    m_vertexArray.release();
    return m_next < m_surfaces.size();
}

bool GLMesh::needsTexture(size_t surface) const
{
    return surface < m_textures.size() && !m_textures[surface].copy && !m_indexes[surface].empty();
}

/// With a vertex array object bound, which the binding of an index buffer belongs to. Returns how many bytes
/// went to the card, none when all parts are there.
size_t GLMesh::uploadPart(size_t surface)
{
    Surface &uploaded = m_surfaces[surface];
    const std::vector<quint16> &indexes = m_indexes[surface];
    const size_t first = uploaded.uploadedParts * IndexesInAPart;
    if (first >= indexes.size())
        return 0;
    if (uploaded.uploadedParts == uploaded.parts.size()) {
        uploaded.parts.emplace_back(QOpenGLBuffer::IndexBuffer);
        uploaded.parts.back().create();
    }
    uploaded.parts[uploaded.uploadedParts].bind();
    const size_t bytes = std::min(IndexesInAPart, indexes.size() - first) * sizeof(quint16);
    m_gl.glBufferData(GL_ELEMENT_ARRAY_BUFFER, GLsizeiptr(bytes), indexes.data() + first, GL_STATIC_DRAW);
    ++uploaded.uploadedParts;
    return bytes;
}

size_t GLMesh::uploadTexture(size_t surface)
{
    if (!needsTexture(surface))
        return 0;
    Texture &texture = m_textures[surface];
    const QImage image = std::exchange(texture.image, {});
    texture.copy = copyOf(image);
    return size_t(image.sizeInBytes());
}

void GLMesh::uploadSurface(size_t surface)
{
    while (uploadPart(surface) > 0) {
    }
    uploadTexture(surface);
}

std::shared_ptr<GLMesh::PictureCopy> GLMesh::copyOf(const QImage &image)
{
    std::weak_ptr<PictureCopy> &known = m_copies[image.cacheKey()];
    if (std::shared_ptr<PictureCopy> copy = known.lock())
        return copy;
    GLint limit = 0;
    m_gl.glGetIntegerv(GL_MAX_TEXTURE_SIZE, &limit);
    const bool fits = image.width() <= limit && image.height() <= limit;
    // Not mirrored: the texture coordinates count from the image's top row.
    const std::shared_ptr<PictureCopy> copy(new PictureCopy{
        QOpenGLTexture(fits ? image
                            : image.scaled(limit, limit, Qt::KeepAspectRatio, Qt::SmoothTransformation),
                       QOpenGLTexture::DontGenerateMipMaps),
        isTranslucentPicture(image)});
    applyFilter(copy->texture);
    copy->texture.setWrapMode(QOpenGLTexture::Repeat);
    known = copy;
    return copy;
}

void GLMesh::applyFilter(QOpenGLTexture &texture) const
{
    const QOpenGLTexture::Filter filter = m_sharpTexels ? QOpenGLTexture::Nearest : QOpenGLTexture::Linear;
    texture.setMinMagFilters(filter, filter);
}

void GLMesh::setSharpTexels(bool on)
{
    if (std::exchange(m_sharpTexels, on) == on)
        return;
    for (const Texture &texture : m_textures) {
        if (texture.copy)
            applyFilter(texture.copy->texture);
    }
}

bool GLMesh::isTranslucent(int surface)
{
    if (size_t(surface) >= m_textures.size())
        return false;
    if (!m_textures[size_t(surface)].copy) {
        m_vertexArray.bind();
        uploadSurface(size_t(surface));
        m_vertexArray.release();
    }
    const auto &copy = m_textures[size_t(surface)].copy;
    return copy && copy->isTranslucent;
}

template <typename Model>
void GLMesh::refreshFrom(const Model &mesh, bool indexesToo)
{
    const size_t vertexCount = m_vertices.vertices.size();
    m_vertices.assign(mesh);
    uploadVertices();
    if (indexesToo || m_vertices.vertices.size() != vertexCount)
        setIndexes(drawableIndexes(mesh));
    changed();
}

void GLMesh::refresh(const SkinnedMesh &mesh, bool indexesToo)
{
    refreshFrom(mesh, indexesToo);
}

void GLMesh::refresh(const StaticMesh &mesh, bool indexesToo)
{
    refreshFrom(mesh, indexesToo);
}

QVector3D GLMesh::place(quint16 vertex) const
{
    return posedPlace(m_vertices.vertices[vertex], palette);
}

void GLMesh::uploadVertices()
{
    m_vertexBuffer.bind();
    const size_t count = std::min(m_vertices.vertices.size(), DrawableVertices);
    m_gl.glBufferData(GL_ARRAY_BUFFER, GLsizeiptr(count * sizeof(GLVertex)), m_vertices.vertices.data(),
                      GL_STATIC_DRAW);
    m_vertexBuffer.release();
}

void GLMesh::setIndexes(std::vector<std::vector<quint16>> indexes)
{
    m_surfaces.resize(indexes.size());
    m_indexes.resize(indexes.size());
    for (size_t i = 0; i < indexes.size(); ++i) {
        if (m_indexes[i] != indexes[i])
            m_surfaces[i] = {};
    }
    m_indexes = std::move(indexes);
    m_next = 0;
}

void GLMesh::draw(const TexturedProgram &program, GLenum mode)
{
    m_vertexArray.bind();
    for (size_t i = 0; i < m_surfaces.size(); ++i)
        drawSurface(i, program, mode);
    m_vertexArray.release();
}

void GLMesh::draw(int surface, const TexturedProgram &program)
{
    m_vertexArray.bind();
    drawSurface(size_t(surface), program, GL_TRIANGLES);
    m_vertexArray.release();
}

void GLMesh::drawSurface(size_t surface, const TexturedProgram &program, GLenum mode)
{
    if (surface >= m_textures.size())
        return;
    uploadSurface(surface);
    if (!m_textures[surface].copy)
        return;
    const bool tinted = tintsSelected && int(surface) == selectedSurface;
    m_gl.glUniform4f(program.colorHighlight, 0.0f, 0.0f, tinted ? SelectionBlue : 0.0f, 1.0f);
    m_gl.glBindTexture(GL_TEXTURE_2D, m_textures[surface].copy->texture.textureId());
    drawIndexes(int(surface), mode);
}

void GLMesh::drawPlain(int surface, GLenum mode)
{
    m_vertexArray.bind();
    drawIndexes(surface, mode);
    m_vertexArray.release();
}

void GLMesh::drawIndexes(int surface, GLenum mode)
{
    const std::vector<quint16> &drawn = indexes(surface);
    if (drawn.empty())
        return;
    uploadSurface(size_t(surface));
    for (size_t part = 0; part < m_surfaces[size_t(surface)].uploadedParts; ++part) {
        m_surfaces[size_t(surface)].parts[part].bind();
        const size_t count = std::min(IndexesInAPart, drawn.size() - part * IndexesInAPart);
        m_gl.glDrawElements(mode, GLsizei(count), GL_UNSIGNED_SHORT, nullptr);
    }
}
