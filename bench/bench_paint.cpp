// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "Bench.h"
#include "Camera.h"
#include "Playback.h"
#include "ScenePainter.h"
#include "SkinnedMesh.h"

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QOpenGLFramebufferObject>

#include <cmath>
#include <cstdlib>

// A frame of a posed model against the same triangles drawn with the same shaders by bare calls: nothing
// but the pose's upload and one draw call a surface.
namespace {
constexpr int Bones = 40;
constexpr int Rings = 100;
constexpr int Segments = 60;
constexpr int SurfaceCount = 10;
constexpr int Repetitions = 60;
const QSize FrameSize(800, 600);

/// A column of rings, every few of them on a bone of their own.
SkinnedMesh makeMesh()
{
    SkinnedMesh mesh;
    mesh.nodes.resize(Bones);
    for (quint16 bone = 1; bone < Bones; ++bone)
        mesh.nodes[bone - 1u].childNodes = {bone};
    for (int ring = 0; ring <= Rings; ++ring) {
        const int bone = ring * (Bones - 1) / Rings;
        for (int segment = 0; segment < Segments; ++segment) {
            const float angle = float(segment) * 2.0f * float(M_PI) / float(Segments);
            mesh.vertices.push_back(
                {{100.0f * std::cos(angle), 100.0f * std::sin(angle), 5.0f * float(ring - bone)},
                 {float(segment) / float(Segments), float(ring) / float(Rings)},
                 {},
                 quint16(bone)});
        }
    }
    mesh.surfaces.resize(SurfaceCount);
    for (int ring = 0; ring < Rings; ++ring) {
        SkinnedMeshSurface &surface = mesh.surfaces[size_t(ring * SurfaceCount / Rings)];
        surface.materialPath = QStringLiteral("_white");
        for (int segment = 0; segment < Segments; ++segment) {
            const int a = ring * Segments + segment;
            const int b = ring * Segments + (segment + 1) % Segments;
            for (int index : {a, a + Segments, b, b, a + Segments, b + Segments})
                surface.triangleIndexes.push_back(quint16(index));
        }
    }
    return mesh;
}

AnimBlock makeBlock()
{
    AnimBlock block;
    block.nodes.resize(Bones);
    block.setFrameCount(2);
    for (AnimNode &node : block.nodes) {
        node.initialPosition = {0.0f, 0.0f, 5.0f};
        node.initialRotation = {0.0f, 0.0f, 0.01f, 1.0f};
    }
    return block;
}

/// The least a program does for the same picture, with the painter's own shaders.
class BareProgram
{
public:
    BareProgram(const MeshSource &source, const QMatrix4x4 &mvp)
        : m_gl(*QOpenGLContext::currentContext()->extraFunctions())
        , m_programs([] { std::abort(); })
        , m_mvp(mvp)
    {
        m_array.create();
        m_array.bind();
        m_gl.glGenBuffers(1, &m_vertices);
        m_gl.glBindBuffer(GL_ARRAY_BUFFER, m_vertices);
        const std::vector<GLVertex> &vertices = source.vertices.vertices;
        m_gl.glBufferData(GL_ARRAY_BUFFER, GLsizeiptr(vertices.size() * sizeof(GLVertex)), vertices.data(),
                          GL_STATIC_DRAW);
        describeVertexLayout(m_gl);
        for (const std::vector<quint16> &indexes : source.indexes) {
            GLuint buffer = 0;
            m_gl.glGenBuffers(1, &buffer);
            m_gl.glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, buffer);
            m_gl.glBufferData(GL_ELEMENT_ARRAY_BUFFER, GLsizeiptr(2 * indexes.size()), indexes.data(),
                              GL_STATIC_DRAW);
            m_indexes.push_back({buffer, GLsizei(indexes.size())});
            m_textures.push_back(std::make_unique<QOpenGLTexture>(source.images[m_textures.size()],
                                                                  QOpenGLTexture::DontGenerateMipMaps));
            m_textures.back()->setMinMagFilters(QOpenGLTexture::Linear, QOpenGLTexture::Linear);
            m_textures.back()->setWrapMode(QOpenGLTexture::Repeat);
        }
        m_array.release();
    }

    void paint(const std::vector<float> &bones)
    {
        m_gl.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        m_programs.skin.program.bind();
        m_gl.glUniform1i(m_programs.skin.texture, 0);
        m_gl.glUniform1f(m_programs.skin.brightness, 1.0f);
        m_gl.glUniform1f(m_programs.skin.tiling, 1.0f);
        m_gl.glUniform4f(m_programs.skin.colorHighlight, 0.0f, 0.0f, 0.0f, 1.0f);
        m_gl.glUniformMatrix4fv(m_programs.skin.mvpMatrix, 1, GL_FALSE, m_mvp.constData());
        m_gl.glUniformMatrix4fv(m_programs.bones, GLsizei(bones.size() / 16), GL_FALSE, bones.data());
        m_array.bind();
        for (size_t i = 0; i < m_indexes.size(); ++i) {
            m_gl.glBindTexture(GL_TEXTURE_2D, m_textures[i]->textureId());
            m_gl.glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, m_indexes[i].first);
            m_gl.glDrawElements(GL_TRIANGLES, m_indexes[i].second, GL_UNSIGNED_SHORT, nullptr);
        }
    }

private:
    QOpenGLExtraFunctions &m_gl;
    ShaderPrograms m_programs;
    QMatrix4x4 m_mvp;
    QOpenGLVertexArrayObject m_array;
    GLuint m_vertices = 0;
    std::vector<std::pair<GLuint, GLsizei>> m_indexes;
    std::vector<std::unique_ptr<QOpenGLTexture>> m_textures;
};
} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setProfile(QSurfaceFormat::CoreProfile);
    QOffscreenSurface surface;
    surface.setFormat(format);
    surface.create();
    QOpenGLContext context;
    context.setFormat(format);
    if (!context.create() || !context.makeCurrent(&surface))
        std::abort();
    QOpenGLFramebufferObject target(FrameSize, QOpenGLFramebufferObject::Depth);
    target.bind();
    context.functions()->glViewport(0, 0, FrameSize.width(), FrameSize.height());

    const SkinnedMesh mesh = makeMesh();
    const AnimBlock block = makeBlock();
    const MeshSource source = MeshSource::from(mesh);
    ScenePainter painter([] { std::abort(); });
    painter.setModel(source);
    painter.setUpState(Qt::darkCyan);

    const Camera camera;
    SceneFrame frame;
    frame.projection = Camera::projectionMatrix(FrameSize.width(), FrameSize.height());
    frame.view = camera.viewMatrix();
    frame.viewport = FrameSize;
    frame.skinned = true;
    frame.backCull = true;
    PoseEvaluator poses;
    Playback state;
    state.playState = PlayState::Playing;
    const auto paint = [&] {
        state.time += 0.01f;
        QQuaternion yaw;
        poses.evaluateAnimatedPose(painter.model().palette, mesh, block, state, yaw);
        frame.yaw = yaw;
        painter.paint(frame);
        context.functions()->glFinish();
    };
    paint();

    QMatrix4x4 model;
    model.rotate(ScenePainter::uprightRotation());
    BareProgram bare(source, frame.projection * frame.view * model);
    std::vector<float> bones;
    for (const QMatrix4x4 &bone : painter.model().palette)
        bones.insert(bones.end(), bone.constData(), bone.constData() + 16);
    const auto paintBare = [&] {
        bare.paint(bones);
        context.functions()->glFinish();
    };

    // Both have to have drawn the same picture.
    paint();
    const QImage painted = target.toImage();
    paintBare();
    if (target.toImage() != painted)
        std::abort();
    Bench::ratio("paint_frame", 1.2, Repetitions, paint, paintBare);

    // Many surfaces with one large picture cost what the picture does.
    MeshSource alike = source;
    alike.indexes.assign(64, source.indexes.front());
    QImage picture(2048, 2048, QImage::Format_RGBA8888);
    picture.fill(Qt::red);
    alike.images.assign(alike.indexes.size(), picture);
    Bench::ratio(
        "upload_64_alike", 2.0, 5,
        [&] {
            painter.setModel(alike);
            while (painter.model().uploadNext()) {
            }
            context.functions()->glFinish();
        },
        [&] {
            const QOpenGLTexture texture(picture, QOpenGLTexture::DontGenerateMipMaps);
            context.functions()->glFinish();
        });
    return Bench::run(argc, argv);
}
