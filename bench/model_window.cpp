// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
//
// The least that a program which shows a textured model in a window has to do before its first frame. It is
// called with the model and its texture, which are read while the graphics driver is loaded.
#include "PictureFile.h"
#include "SkinnedMesh.h"

#include <QApplication>
#include <QMainWindow>
#include <QOpenGLBuffer>
#include <QOpenGLExtraFunctions>
#include <QOpenGLShaderProgram>
#include <QOpenGLTexture>
#include <QOpenGLVertexArrayObject>
#include <QOpenGLWidget>
#include <QSurfaceFormat>

#include <algorithm>
#include <future>
#include <memory>

namespace {
struct Content
{
    SkinnedMesh mesh;
    QImage texture;
};

Content read(const QString &model, const QString &texture)
{
    Content content;
    if (content.mesh.read(model))
        qFatal("the model cannot be read");
    content.texture = readPicture(texture).image.convertToFormat(QImage::Format_RGBA8888).mirrored();
    if (content.texture.isNull())
        qFatal("the texture cannot be read");
    return content;
}

class View : public QOpenGLWidget
{
public:
    explicit View(std::future<Content> content)
        : m_content(std::move(content))
    {}

protected:
    void initializeGL() override
    {
        const Content content = m_content.get();
        std::vector<quint16> indices;
        for (const SkinnedMeshSurface &surface : content.mesh.surfaces)
            indices.insert(indices.end(), surface.triangleIndexes.begin(), surface.triangleIndexes.end());
        m_count = int(indices.size());
        float size = 0.0f;
        for (const SkinnedMeshVertex &vertex : content.mesh.vertices)
            size = std::max(size, vertex.position.length());
        m_toView.scale(1.0f / size);
        m_program.addShaderFromSourceCode(QOpenGLShader::Vertex, R"(#version 150
            uniform mat4 toView;
            in vec3 position;
            in vec2 uv;
            out vec2 place;
            void main() { gl_Position = toView * vec4(position, 1.0); place = uv; })");
        m_program.addShaderFromSourceCode(QOpenGLShader::Fragment, R"(#version 150
            uniform sampler2D picture;
            in vec2 place;
            out vec4 color;
            void main() { color = texture(picture, place); })");
        if (!m_program.link())
            qFatal("no shader program");
        m_state.create();
        m_state.bind();
        m_vertices.create();
        m_vertices.bind();
        m_vertices.allocate(content.mesh.vertices.data(),
                            int(content.mesh.vertices.size() * sizeof(SkinnedMeshVertex)));
        m_indices.create();
        m_indices.bind();
        m_indices.allocate(indices.data(), int(indices.size() * sizeof(quint16)));
        m_program.bind();
        m_program.enableAttributeArray("position");
        m_program.setAttributeBuffer("position", GL_FLOAT, offsetof(SkinnedMeshVertex, position), 3,
                                     sizeof(SkinnedMeshVertex));
        m_program.enableAttributeArray("uv");
        m_program.setAttributeBuffer("uv", GL_FLOAT, offsetof(SkinnedMeshVertex, uv), 2,
                                     sizeof(SkinnedMeshVertex));
        m_state.release();
        m_texture = std::make_unique<QOpenGLTexture>(content.texture, QOpenGLTexture::DontGenerateMipMaps);
        m_texture->setMinMagFilters(QOpenGLTexture::Linear, QOpenGLTexture::Linear);
    }

    void paintGL() override
    {
        QOpenGLFunctions &gl = *context()->functions();
        gl.glEnable(GL_DEPTH_TEST);
        gl.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        m_program.bind();
        m_program.setUniformValue("toView", m_toView);
        m_texture->bind();
        m_state.bind();
        gl.glDrawElements(GL_TRIANGLES, m_count, GL_UNSIGNED_SHORT, nullptr);
        m_state.release();
    }

private:
    std::future<Content> m_content;
    QMatrix4x4 m_toView;
    QOpenGLShaderProgram m_program;
    QOpenGLVertexArrayObject m_state;
    QOpenGLBuffer m_vertices{QOpenGLBuffer::VertexBuffer};
    QOpenGLBuffer m_indices{QOpenGLBuffer::IndexBuffer};
    std::unique_ptr<QOpenGLTexture> m_texture;
    int m_count = 0;
};
} // namespace

int main(int argc, char *argv[])
{
    std::future<Content> content = std::async(std::launch::async, read, QString::fromLocal8Bit(argv[1]),
                                              QString::fromLocal8Bit(argv[2]));
    const QApplication application(argc, argv);
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(format);
    QMainWindow window;
    window.setCentralWidget(new View(std::move(content)));
    window.resize(1440, 900);
    window.show();
    return QApplication::exec();
}
