// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "Bench.h"
#include "Camera.h"
#include "Playback.h"
#include "SceneBoxes.h"
#include "ScenePainter.h"
#include "ShapeProgram.h"
#include "SkinnedMesh.h"

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QOpenGLFramebufferObject>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <memory>

// Frames of a posed model against the same triangles drawn with the same shaders by bare calls: nothing but
// the pose's upload and one draw call a surface.
namespace {
constexpr int Bones = 40;
constexpr int Segments = 60;
constexpr int Repetitions = 60;
const QSize FrameSize(800, 600);

/// A column of rings, every few of them on a bone of their own, each with a box.
SkinnedMesh makeMesh(int rings, int surfaceCount)
{
    SkinnedMesh mesh;
    mesh.nodes.resize(Bones);
    for (quint16 bone = 1; bone < Bones; ++bone)
        mesh.nodes[bone - 1u].childNodes = {bone};
    for (SkinnedMeshNode &node : mesh.nodes) {
        node.bbMin = {-100.0f, -100.0f, 0.0f};
        node.bbMax = {100.0f, 100.0f, 5.0f};
    }
    for (int ring = 0; ring <= rings; ++ring) {
        const int bone = ring * (Bones - 1) / rings;
        for (int segment = 0; segment < Segments; ++segment) {
            const float angle = float(segment) * 2.0f * float(M_PI) / float(Segments);
            mesh.vertices.push_back(
                {{100.0f * std::cos(angle), 100.0f * std::sin(angle), 5.0f * float(ring - bone)},
                 {float(segment) / float(Segments), float(ring) / float(rings)},
                 {std::cos(angle), std::sin(angle), 0.0f},
                 quint16(bone)});
        }
    }
    mesh.surfaces.resize(size_t(surfaceCount));
    for (int ring = 0; ring < rings; ++ring) {
        SkinnedMeshSurface &surface = mesh.surfaces[size_t(ring * surfaceCount / rings)];
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
            const QImage &image = source.images[m_textures.size()];
            std::shared_ptr<QOpenGLTexture> &copy = m_copies[image.cacheKey()];
            if (!copy) {
                copy = std::make_shared<QOpenGLTexture>(image, QOpenGLTexture::DontGenerateMipMaps);
                copy->setMinMagFilters(QOpenGLTexture::Linear, QOpenGLTexture::Linear);
                copy->setWrapMode(QOpenGLTexture::Repeat);
            }
            m_textures.push_back(copy);
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
        draw();
    }

    /// Lines of the overlay, which stay where they are.
    void setLines(const std::vector<OverlayCanvas::Vertex> &lines)
    {
        m_lineCount = GLsizei(lines.size());
        m_lineArray.create();
        m_lineArray.bind();
        GLuint buffer = 0;
        m_gl.glGenBuffers(1, &buffer);
        m_gl.glBindBuffer(GL_ARRAY_BUFFER, buffer);
        m_gl.glBufferData(GL_ARRAY_BUFFER, GLsizeiptr(lines.size() * sizeof(lines[0])), lines.data(),
                          GL_STATIC_DRAW);
        constexpr GLsizei Stride = sizeof(OverlayCanvas::Vertex);
        m_gl.glEnableVertexAttribArray(AttributeLocation::Position);
        m_gl.glEnableVertexAttribArray(AttributeLocation::Color);
        m_gl.glVertexAttribPointer(AttributeLocation::Position, 2, GL_FLOAT, GL_FALSE, Stride, nullptr);
        m_gl.glVertexAttribPointer(
            AttributeLocation::Color, 4, GL_UNSIGNED_BYTE, GL_TRUE, Stride,
            reinterpret_cast<const void *>(std::uintptr_t(offsetof(OverlayCanvas::Vertex, color))));
        m_lineArray.release();
    }

    void paintWithLines(const std::vector<float> &bones, const QSize &size)
    {
        paint(bones);
        QMatrix4x4 toPicture;
        toPicture.ortho(0.0f, float(size.width()), float(size.height()), 0.0f, -1.0f, 1.0f);
        m_programs.overlay.bind();
        m_programs.overlay.setUniformValue(m_programs.overlayMvpMatrix, toPicture);
        m_gl.glDisable(GL_CULL_FACE);
        m_gl.glDisable(GL_DEPTH_TEST);
        m_lineArray.bind();
        m_gl.glDrawArrays(GL_TRIANGLES, 0, m_lineCount);
        m_gl.glEnable(GL_DEPTH_TEST);
        m_gl.glEnable(GL_CULL_FACE);
    }

    void paintLit(const std::vector<float> &bones, const QVector3D &eye)
    {
        m_gl.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        m_shape.begin(ShapeLook::Lit, eye, 1.0f, m_mvp);
        m_shape.setBones(bones.data(), int(bones.size() / 16));
        m_gl.glUniform4f(m_shape.textured().colorHighlight, 0.0f, 0.0f, 0.0f, 1.0f);
        draw();
    }

private:
    void draw()
    {
        m_array.bind();
        for (size_t i = 0; i < m_indexes.size(); ++i) {
            m_gl.glBindTexture(GL_TEXTURE_2D, m_textures[i]->textureId());
            m_gl.glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, m_indexes[i].first);
            m_gl.glDrawElements(GL_TRIANGLES, m_indexes[i].second, GL_UNSIGNED_SHORT, nullptr);
        }
    }

    QOpenGLExtraFunctions &m_gl;
    ShaderPrograms m_programs;
    ShapeProgram m_shape;
    QMatrix4x4 m_mvp;
    QOpenGLVertexArrayObject m_array;
    GLuint m_vertices = 0;
    std::vector<std::pair<GLuint, GLsizei>> m_indexes;
    std::map<qint64, std::shared_ptr<QOpenGLTexture>> m_copies; ///< by their images' keys
    std::vector<std::shared_ptr<QOpenGLTexture>> m_textures;
    QOpenGLVertexArrayObject m_lineArray;
    GLsizei m_lineCount = 0;
};

/// A model that moves, painted as the program does and by bare calls.
class Subject
{
public:
    Subject(int rings, int surfaceCount)
        : m_mesh(makeMesh(rings, surfaceCount))
        , m_block(makeBlock())
        , source(MeshSource::from(m_mesh))
        , painter([] { std::abort(); })
    {
        painter.setModel(source);
        painter.setUpState(Qt::darkCyan);
        const Camera camera;
        frame.projection = Camera().projectionMatrix(FrameSize.width(), FrameSize.height());
        frame.view = camera.viewMatrix();
        frame.viewport = FrameSize;
        frame.skinned = true;
        frame.backCull = true;
        frame.marks.mesh = &m_mesh;
        m_state.playState = PlayState::Playing;
        paint();
        const QMatrix4x4 model = ScenePainter::modelMatrix(frame);
        m_eye = (frame.view * model).inverted().column(3).toVector3D();
        m_bare = std::make_unique<BareProgram>(source, frame.projection * frame.view * model);
        for (const QMatrix4x4 &bone : painter.model().palette)
            m_bones.insert(m_bones.end(), bone.constData(), bone.constData() + 16);
        MarkedRecords records;
        records.mesh = &m_mesh;
        records.boxes = true;
        SceneBoxes boxes;
        boxes.place(records, ScreenMap(frame.projection, frame.view * model, FrameSize),
                    painter.model().palette);
        OverlayCanvas canvas;
        boxes.draw(canvas);
        m_bare->setLines(canvas.vertices());
    }

    void paint()
    {
        m_state.time += 0.01f;
        QQuaternion yaw;
        m_poses.evaluateAnimatedPose(painter.model().palette, m_mesh, m_block, m_state, yaw);
        frame.yaw = yaw;
        painter.paint(frame);
        QOpenGLContext::currentContext()->functions()->glFinish();
    }
    void paintBare()
    {
        if (frame.marks.boxes)
            m_bare->paintWithLines(m_bones, FrameSize);
        else if (frame.look == SurfaceLook::Lit)
            m_bare->paintLit(m_bones, m_eye);
        else
            m_bare->paint(m_bones);
        QOpenGLContext::currentContext()->functions()->glFinish();
    }

private:
    SkinnedMesh m_mesh;
    AnimBlock m_block;
    PoseEvaluator m_poses;
    Playback m_state;
    QVector3D m_eye;
    std::unique_ptr<BareProgram> m_bare;
    std::vector<float> m_bones;

public:
    const MeshSource source;
    ScenePainter painter;
    SceneFrame frame;
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

    Subject subject(100, 10);
    Subject parted(200, 200);
    const auto compare = [&](const char *name, double budget, Subject &painted, const SceneFrame &frame) {
        // Both have to have drawn the same picture.
        painted.frame = frame;
        painted.paint();
        const QImage picture = target.toImage();
        painted.paintBare();
        if (target.toImage() != picture)
            std::abort();
        Bench::ratio(
            name, budget, Repetitions,
            [&painted, frame] {
                painted.frame = frame;
                painted.paint();
            },
            [&painted, frame] {
                painted.frame = frame;
                painted.paintBare();
            });
    };
    const SceneFrame usual = subject.frame;
    compare("paint_frame", 1.2, subject, usual);
    compare("paint_200_surfaces", 1.25, parted, parted.frame);
    SceneFrame lit = usual;
    lit.look = SurfaceLook::Lit;
    compare("paint_lit", 1.25, subject, lit);
    SceneFrame boxes = usual;
    boxes.marks.boxes = true;
    compare("paint_boxes", 1.25, subject, boxes);

    // Many surfaces with one large picture cost what the picture does.
    MeshSource alike = subject.source;
    alike.indexes.assign(64, subject.source.indexes.front());
    QImage picture(2048, 2048, QImage::Format_RGBA8888);
    picture.fill(Qt::red);
    alike.images.assign(alike.indexes.size(), picture);
    ScenePainter &painter = parted.painter;
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
