// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MultisampleTarget.h"
#include "Viewport.h"

#include <QOpenGLContext>
#include <QOpenGLDebugLogger>
#include <QOpenGLFunctions>

#include <algorithm>

// What helps to judge surfaces: light, normals, transparency, texels, edges and the ground. While all that is
// off, a frame is as it was before it was ever on.
class tst_Shading : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { m_view = makeView(); }
    void cleanup();

    void looks_data() { addContexts(); }
    void looks();
    void transparencyIsSorted_data() { addContexts(); }
    void transparencyIsSorted();
    void texelsAndEdges_data() { addContexts(); }
    void texelsAndEdges();
    void withoutSamplesEdgesAreAsUsual();
    void theGroundFades();
    void vertexNormals();
    void allWaysWithoutErrors_data() { addContexts(); }
    void allWaysWithoutErrors();

private:
    QTemporaryDir m_home;
    QTemporaryDir m_folder;
    std::unique_ptr<Viewport> m_view;
};

namespace {
/// The materials "m/glass/red" and "m/glass/blue", half transparent, and "m/glass/sharp", black and red.
void putGlass(const QString &folder)
{
    QByteArray materials;
    const auto put = [&](const char *name, const QImage &image) {
        materials +=
            QByteArray("material ") + name + " {\n sampler \"diffuse\" 0 \"" + name + ".png\" {\n}\n}\n";
        QVERIFY(image.save(folder + QStringLiteral("/%1.png").arg(QLatin1String(name))));
    };
    QImage image(2, 1, QImage::Format_RGBA8888);
    image.fill(QColor(255, 0, 0, 128));
    put("red", image);
    image.fill(QColor(0, 0, 255, 128));
    put("blue", image);
    image.setPixelColor(0, 0, Qt::black);
    image.setPixelColor(1, 0, Qt::red);
    put("sharp", image);
    QVERIFY(TestSupport::writeFile(folder + QStringLiteral("/m/glass.kmat"), materials));
}
} // namespace

void tst_Shading::initTestCase()
{
    TestSupport::useSettingsHome(m_home);
    putQuarters(m_folder.path());
    putGlass(m_folder.path());
    Settings::GamePath.setValue(m_folder.path());
}

void tst_Shading::cleanup()
{
    m_view.reset();
    playback() = {};
    Log::setSink({});
}

// A light at the eye shows the shape of both sides, each of which the winding gives its normal; where a
// vertex has none, the triangle's does.
void tst_Shading::looks()
{
    QFETCH(bool, core33);
    m_view = makeView(core33);
    m_view->openSquare(QStringLiteral("m/a/quarters"));
    m_view->setBackCull(false);
    StaticMesh &square = m_view->square;
    const QImage textured = m_view->grabFramebuffer();
    const auto setNormals = [&](const QVector3D &normal) {
        for (StaticMeshVertex &vertex : square.vertices)
            vertex.normal = normal;
        m_view->refreshVertices();
    };
    const auto turnOver = [&] {
        for (StaticMeshSurface &surface : square.surfaces)
            std::reverse(surface.triangleIndexes.begin(), surface.triangleIndexes.end());
        m_view->refreshIndexes();
    };
    const auto isLight = [](const QColor &color, int light) { return isColor(color, light, light, light); };
    const int shade = 76;
    const auto whitePixel = [&] { return m_view->pixel(197, 153); };
    const float nan = std::numeric_limits<float>::quiet_NaN();

    m_view->setSurfaceLook(int(SurfaceLook::Lit));
    const struct
    {
        QVector3D normal;
        int before, behind; // how light it is where the eye sees the front, and where it sees the back
    } rows[] = {{{}, 255, 255},           {{nan, 0, 0}, 255, 255},    {{0, 1e-20f, 0}, 255, 255},
                {{0, -1, 0}, 255, shade}, {{0, 0.2f, 0}, shade, 255}, // any length
                {{1, -1, 0}, 203, shade}};
    for (const auto &row : rows) {
        setNormals(row.normal);
        const QColor before = whitePixel();
        turnOver();
        const QColor behind = whitePixel();
        turnOver();
        QVERIFY2(isLight(before, row.before) && isLight(behind, row.behind),
                 qPrintable(QStringLiteral("%1 %2 for %3 %4 %5")
                                .arg(before.name(), behind.name())
                                .arg(double(row.normal.x()))
                                .arg(double(row.normal.y()))
                                .arg(double(row.normal.z()))));
    }
    QVERIFY(isBackground(m_view->pixel(225, 165))); // a hole
    setNormals({0, 1, 0});
    QVERIFY(isColor(m_view->pixel(165, 125), shade, 0, 0));
    m_view->setBrightness(2.0f);
    m_view->setSelectedSurface(0); // tinted as it is without light
    QVERIFY(isColor(m_view->pixel(165, 125), 2 * shade, 0, 255));
    m_view->setSelectedSurface(-1);

    m_view->setSurfaceLook(int(SurfaceLook::Normals)); // which no brightness changes
    QVERIFY(isColor(whitePixel(), 128, 255, 128));
    setNormals({0, -3, 0});
    QVERIFY(isColor(whitePixel(), 128, 0, 128));
    setNormals({});
    QVERIFY(isColor(whitePixel(), 128, 0, 128));
    turnOver();
    QVERIFY(isColor(whitePixel(), 128, 255, 128));
    turnOver();
    m_view->setShading(int(Shading::ShadedWireframe));
    QVERIFY(m_view->count([](const QColor &color) { return color.lightness() < 50; }) > 100);
    QVERIFY(isColor(m_view->pixel(175, 120), 128, 0, 128));
    m_view->setShading(int(Shading::Shaded));

    // Normals turn with their bone.
    m_view->mesh.surfaces = {{QStringLiteral("_white"), {0, 1, 2}}};
    for (const auto &[x, z] : {qMakePair(-50.0f, 0.0f), qMakePair(0.0f, 50.0f), qMakePair(50.0f, 0.0f)})
        m_view->mesh.vertices.push_back({{x, 0, z}, {}, {1, 0, 0}, 0});
    m_view->showBones({{0.0f, 0.0f, 300.0f}});
    const QPoint inside(200, 144);
    QVERIFY(isColor(m_view->pixel(inside.x(), inside.y()), 255, 128, 128));
    m_view->anim.blocks[0].nodes[0].initialRotation = {0.0f, 0.0f, 1.0f, 0.0f}; // half a turn about z
    QVERIFY(isColor(m_view->pixel(inside.x(), inside.y()), 0, 128, 128));

    m_view->setSurfaceLook(99);
    m_view->setBrightness(1.0f);
    m_view->setSkinnedMeshMode(false);
    QCOMPARE(m_view->grabFramebuffer(), textured);
}

// What is half transparent hides nothing, whatever stands first in the file and however the pose moves it.
void tst_Shading::transparencyIsSorted()
{
    QFETCH(bool, core33);
    m_view = makeView(core33);
    m_view->openSquare();
    // Panes of glass, red and blue, each on a bone, before a white wall.
    SkinnedMesh mesh;
    mesh.nodes.resize(3);
    mesh.nodes[0].childNodes = {1, 2};
    for (const quint16 bone : {quint16(1), quint16(2), quint16(0)}) {
        for (const StaticMeshVertex &vertex : m_view->square.vertices)
            mesh.vertices.push_back({vertex.position, {}, {}, bone});
    }
    mesh.surfaces = {{QStringLiteral("m/glass/red"), {0, 1, 2, 0, 2, 3}},
                     {QStringLiteral("m/glass/blue"), {4, 5, 6, 4, 6, 7}},
                     {QStringLiteral("_white"), {8, 9, 10, 8, 10, 11}}};
    AnimFile anim;
    anim.blocks.resize(1);
    anim.blocks[0].nodes.resize(3);
    const auto place = [&](float red, float blue) {
        anim.blocks[0].nodes[1].initialPosition = {0.0f, red, 0.0f};
        anim.blocks[0].nodes[2].initialPosition = {0.0f, blue, 0.0f};
    };
    place(-40.0f, -20.0f);
    m_view->showSkinned(mesh, anim);
    m_view->setBackCull(false);
    const QImage usual = m_view->grabFramebuffer();
    // The red one is the nearest and is drawn first: it hides both others.
    QVERIFY(isColor(m_view->centrePixel(), 132, 100, 15));

    m_view->setOption(&SceneFrame::sortsTransparency, true);
    QVERIFY(isColor(m_view->centrePixel(), 191, 64, 128)); // white, under blue, under red
    place(-20.0f, -40.0f);
    QVERIFY(isColor(m_view->centrePixel(), 128, 64, 191));
    place(20.0f, -40.0f);
    QVERIFY(isColor(m_view->centrePixel(), 128, 128, 255)); // the wall hides the red one
    place(-40.0f, std::numeric_limits<float>::quiet_NaN());
    QVERIFY(isColor(m_view->centrePixel(), 255, 128, 128));
    place(-40.0f, -20.0f);
    m_view->setSurfaceLook(int(SurfaceLook::Lit));
    QVERIFY(isColor(m_view->centrePixel(), 191, 64, 128));
    m_view->setSurfaceLook(int(SurfaceLook::Textured));
    m_view->setOption(&SceneFrame::sortsTransparency, false);
    QCOMPARE(m_view->grabFramebuffer(), usual);

    // Without glass nothing changes; holes stay holes.
    m_view->setSkinnedMeshMode(false);
    m_view->square = facingSquare(QStringLiteral("m/a/quarters"));
    m_view->rebuildModel();
    const QImage holes = m_view->grabFramebuffer();
    m_view->setOption(&SceneFrame::sortsTransparency, true);
    QCOMPARE(m_view->grabFramebuffer(), holes);
}

void tst_Shading::texelsAndEdges()
{
    QFETCH(bool, core33);
    m_view = makeView(core33);
    m_view->openSquare(QStringLiteral("m/glass/sharp"));
    m_view->setBackCull(false);
    const auto isMixed = [](const QColor &color) {
        return color.red() > 20 && color.red() < 235 && color.green() < 20;
    };
    const QImage usual = m_view->grabFramebuffer();
    QVERIFY(m_view->count(isMixed) > 1000);
    m_view->setOption(&SceneFrame::sharpTexels, true);
    QCOMPARE(m_view->count(isMixed), 0);
    m_view->rebuildModel(); // textures that come later are alike
    QCOMPARE(m_view->count(isMixed), 0);
    m_view->setOption(&SceneFrame::sharpTexels, false);
    QCOMPARE(m_view->grabFramebuffer(), usual);

    // The slanted side of a triangle has steps, or is between white and the background.
    m_view->square = facingSquare(QStringLiteral("_white"));
    m_view->square.surfaces.pop_back();
    m_view->rebuildModel();
    const auto isBetween = [](const QColor &color) { return !isWhite(color) && !isBackground(color); };
    const QImage steps = m_view->grabFramebuffer();
    QCOMPARE(m_view->count(isBetween), 0);
    m_view->setOption(&SceneFrame::smoothEdges, true);
    QVERIFY(m_view->count(isBetween) > 50);
    QVERIFY(isWhite(m_view->pixel(170, 120)));
    m_view->resize(500, 320);
    QVERIFY(m_view->count(isBetween) > 50);
    m_view->setSelectedSurface(0);
    QVERIFY(m_view->count([](const QColor &color) { return isColor(color, 255, 140, 0); }) > 300);
    m_view->setSelectedSurface(-1);
    m_view->resize(400, 300);
    m_view->setOption(&SceneFrame::smoothEdges, false);
    QCOMPARE(m_view->grabFramebuffer(), steps);
}

// One line says so, and what is drawn goes where it always went.
void tst_Shading::withoutSamplesEdgesAreAsUsual()
{
    m_view->openSquare();
    QStringList log;
    Log::setSink([&log](LogSeverity, const QString &text) { log.append(text); });
    m_view->makeCurrent();
    QOpenGLFunctions &gl = *m_view->context()->functions();
    GLint before = 0, after = 0;
    gl.glGetIntegerv(GL_FRAMEBUFFER_BINDING, &before);
    MultisampleTarget target;
    gl.glViewport(0, 0, 0, 0); // no driver takes this
    QVERIFY(!target.begin() && !target.begin());
    gl.glGetIntegerv(GL_FRAMEBUFFER_BINDING, &after);
    QCOMPARE(after, before);
    QCOMPARE(log.size(), 1);
    QVERIFY(log[0].contains(QStringLiteral("cannot smooth edges")));
}

// Nowhere is there a line where it ends.
void tst_Shading::theGroundFades()
{
    m_view->open();
    m_view->setShowGround(true);
    const QImage usual = m_view->grabFramebuffer();
    m_view->setOption(&SceneFrame::fadingGround, true);
    const QImage fading = m_view->grabFramebuffer();
    // Of neighbors in a column.
    const auto largestStep = [](const QImage &image) {
        int largest = 0;
        for (int y = 1; y < image.height(); ++y) {
            const QColor upper = image.pixelColor(200, y - 1), color = image.pixelColor(200, y);
            largest = std::max(
                {largest, std::abs(upper.red() - color.red()), std::abs(upper.green() - color.green())});
        }
        return largest;
    };
    QVERIFY2(largestStep(fading) < 30 && largestStep(usual) > 60,
             qPrintable(QStringLiteral("%1 %2").arg(largestStep(fading)).arg(largestStep(usual))));
    QVERIFY(m_view->count([](const QColor &color) { return !isBackground(color); }) > 10000);
    m_view->setOption(&SceneFrame::fadingGround, false);
    QCOMPARE(m_view->grabFramebuffer(), usual);
}

// Lines from the corners, of the selected surface or all; where there is no normal there is no line.
void tst_Shading::vertexNormals()
{
    m_view->resize(1200, 900);
    m_view->openSquare();
    m_view->setBackgroundColor(Qt::black);
    const auto isLine = [](const QColor &color) { return isColor(color, 255, 235, 51); };
    m_view->setShowSurfaceTint(false);
    m_view->setOption(&SceneFrame::showVertexNormals, true);
    QCOMPARE(m_view->count(isLine), 0);
    for (StaticMeshVertex &vertex : m_view->square.vertices)
        vertex.normal = {-7.0f, -1.0f, 0.0f}; // to the right and to the eye
    m_view->refreshVertices();
    const int four = m_view->count(isLine);
    QVERIFY2(four > 20 && four < 60, qPrintable(QString::number(four)));
    m_view->setSelectedSurface(0);
    QVERIFY(std::abs(4 * m_view->count(isLine) - 3 * four) <= 4);
    m_view->setSelectedSurface(-1);
    m_view->square.vertices[0].normal = {0.0f, std::numeric_limits<float>::quiet_NaN(), 0.0f};
    m_view->refreshVertices();
    QVERIFY(std::abs(4 * m_view->count(isLine) - 3 * four) <= 4);
    m_view->setOption(&SceneFrame::showVertexNormals, false);
    QCOMPARE(m_view->count(isLine), 0);
}

// The driver has nothing to say to whatever is drawn of models that say nonsense.
void tst_Shading::allWaysWithoutErrors()
{
    QFETCH(bool, core33);
    Log::setSink([](LogSeverity, const QString &) {});
    m_view = makeView(core33);
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setOption(QSurfaceFormat::DebugContext);
    m_view->setFormat(format);
    SkinnedMesh odd = oddMesh();
    odd.nodes.resize(128);
    odd.surfaces.push_back({QStringLiteral("m/glass/red"), {0, 5, 7, 1, 2, 3}});
    StaticMesh empty;
    m_view->setStaticMesh(&empty);
    m_view->setSkinnedMesh(&odd);
    m_view->setShowGround(true);
    m_view->setShowStatistics(true);
    m_view->open();
    m_view->makeCurrent();
    QOpenGLDebugLogger logger;
    if (!logger.initialize())
        QSKIP("the driver does not tell");
    QStringList complaints;
    connect(&logger, &QOpenGLDebugLogger::messageLogged, this, [&](const QOpenGLDebugMessage &message) {
        if (message.type() == QOpenGLDebugMessage::ErrorType ||
            message.type() == QOpenGLDebugMessage::UndefinedBehaviorType)
            complaints.append(message.message());
    });
    logger.startLogging(QOpenGLDebugLogger::SynchronousLogging);
    QOpenGLContext::currentContext()->functions()->glBindTexture(0x1234, 0);
    QCOMPARE(complaints.size(), 1); // it does
    complaints.clear();
    bool SceneFrame::*const options[] = {&SceneFrame::showVertexNormals, &SceneFrame::sortsTransparency,
                                         &SceneFrame::sharpTexels, &SceneFrame::smoothEdges,
                                         &SceneFrame::fadingGround};
    for (const bool on : {false, true}) {
        for (const auto option : options)
            m_view->setOption(option, on);
        m_view->setShowBoxes(on);
        m_view->setBoneColors(std::vector<QRgb>(on ? 130 : 0, 0xccff0000));
        for (const bool skinned : {false, true}) {
            m_view->setSkinnedMeshMode(skinned);
            for (const int shading : {0, 1, 2}) {
                m_view->setShading(shading);
                for (const int look : {0, 1, 2}) {
                    m_view->setSurfaceLook(look);
                    m_view->setSelectedSurface(look - 1);
                    QVERIFY(!m_view->grabFramebuffer().isNull());
                }
            }
        }
    }
    QCOMPARE(complaints, QStringList());
    m_view->makeCurrent();
    logger.stopLogging();
    m_view->setSkinnedMesh(nullptr);
    m_view->setStaticMesh(nullptr);
}

QTEST_MAIN(tst_Shading)
#include "tst_shading.moc"
