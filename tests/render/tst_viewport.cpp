// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "Viewport.h"

#include <QOpenGLContext>
#include <QSignalSpy>

#include <cmath>
#include <limits>
#include <memory>

// What a frame shows, read back from the framebuffer: in the program's usual context and in a core one.
class tst_Viewport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void texturedSquare_data() { addContexts(); }
    void texturedSquare();
    void overlays_data();
    void overlays();
    void posedOverlay();
    void groundAndGizmo();
    void markers();
    void culling();
    void refreshedVertices();
    void hostileModel();
    void deferredBuild();
    void knight_data() { addContexts(); }
    void knight();

private:
    void openSquare(const QString &material);

    QTemporaryDir m_home;
    QTemporaryDir m_folder;
    std::unique_ptr<StaticMesh> m_square;
    std::unique_ptr<Viewport> m_view;
};

namespace {
bool isRed(const QColor &color)
{
    return isColor(color, 255, 0, 0);
}
} // namespace

void tst_Viewport::initTestCase()
{
    TestSupport::useSettingsHome(m_home);
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("m")));
    // Upper half red and blue, lower half white and half or wholly transparent.
    QImage image(2, 2, QImage::Format_RGBA8888);
    image.setPixelColor(0, 0, Qt::red);
    image.setPixelColor(1, 0, Qt::blue);
    image.setPixelColor(0, 1, Qt::white);
    image.setPixelColor(1, 1, QColor(255, 255, 255, 2));
    QVERIFY(image.scaled(64, 64).save(m_folder.path() + QStringLiteral("/quarters.png")));
    QVERIFY(TestSupport::writeFile(m_folder.path() + QStringLiteral("/m/a.kmat"),
                                   "material quarters {\n sampler \"diffuse\" 0 \"quarters.png\" {\n}\n}\n"));
    Settings::GamePath.setValue(m_folder.path());
}

void tst_Viewport::init()
{
    playback() = {};
    useSurfaceFormat(false);
    m_view = std::make_unique<Viewport>();
}

void tst_Viewport::cleanup()
{
    m_view.reset();
    Log::setSink({});
}

void tst_Viewport::openSquare(const QString &material)
{
    m_square = std::make_unique<StaticMesh>(facingSquare(material));
    m_view->setBackCull(true);
    m_view->setStaticMesh(m_square.get());
    m_view->open();
}

void tst_Viewport::texturedSquare()
{
    QFETCH(bool, core33);
    useSurfaceFormat(core33);
    m_view = std::make_unique<Viewport>();
    openSquare(QStringLiteral("m/a/quarters"));
    QCOMPARE(m_view->format().profile() == QSurfaceFormat::CoreProfile &&
                 !m_view->format().testOption(QSurfaceFormat::DeprecatedFunctions) &&
                 m_view->format().version() >= qMakePair(3, 2),
             core33);

    // A model's right (-x) is on the viewer's left, and the picture stands on its feet.
    const int left = 175, right = 225, upper = 125, lower = 175;
    QVERIFY(isRed(m_view->pixel(left, upper)));
    QVERIFY(isColor(m_view->pixel(right, upper), 0, 0, 255));
    QVERIFY(isColor(m_view->pixel(left, lower), 255, 255, 255));
    QVERIFY(isBackground(m_view->pixel(right, lower)));
    QVERIFY(isBackground(m_view->pixel(20, 20)));

    // Only the selected surface is tinted, by half of blue; the first is the upper left triangle.
    m_view->setSelectedSurface(0);
    QVERIFY(isColor(m_view->pixel(left, upper), 255, 0, 128));
    m_view->setSelectedSurface(1);
    QVERIFY(isColor(m_view->pixel(170, 120), 255, 0, 0));
    QVERIFY(isBackground(m_view->pixel(right, lower))); // no tint of a transparent texel

    // Brightness scales texture and tint; 0 is black, and transparent texels stay transparent.
    m_view->setSelectedSurface(0);
    m_view->setBrightness(2.0f);
    QVERIFY(isColor(m_view->pixel(left, upper), 255, 0, 255));
    m_view->setBrightness(0.0f);
    QVERIFY(isColor(m_view->pixel(left, upper), 0, 0, 0));
    QVERIFY(isColor(m_view->pixel(left, lower), 0, 0, 0));
    QVERIFY(isBackground(m_view->pixel(right, lower)));

    // Another model forgets the selection.
    m_view->setBrightness(1.0f);
    m_view->setStaticMesh(m_square.get());
    QVERIFY(isRed(m_view->pixel(left, upper)));
    m_view->setStaticMesh(nullptr);
    QVERIFY(isBackground(m_view->pixel(left, upper)));
    m_view->setBackgroundColor(QColor(1, 2, 3));
    QVERIFY(isColor(m_view->pixel(left, upper), 1, 2, 3));
}

void tst_Viewport::overlays_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("front");
    QTest::addColumn<bool>("behind");
    QTest::newRow("none") << 0 << false << false;
    QTest::newRow("lines") << 1 << true << false;
    QTest::newRow("lines hidden") << 2 << true << true;
    QTest::newRow("points") << 3 << true << false;
    QTest::newRow("points hidden") << 4 << true << true;
    QTest::newRow("out of range") << 5 << false << false;
}

void tst_Viewport::overlays()
{
    QFETCH(int, type);
    QFETCH(bool, front);
    QFETCH(bool, behind);
    openSquare(QStringLiteral("_white"));
    m_view->setSurfSelectType(type);
    QCOMPARE(m_view->count(isRed), 0); // no surface is selected yet
    m_view->setSelectedSurface(0);
    QCOMPARE(m_view->count(isRed) > 0, front);

    // Behind a larger white wall.
    StaticMesh walled = *m_square;
    for (const StaticMeshVertex &vertex : m_square->vertices) {
        walled.vertices.push_back(vertex);
        walled.vertices.back().position -= QVector3D(0.0f, 100.0f, 0.0f);
        walled.vertices.back().position.setX(vertex.position.x() * 2.0f);
        walled.vertices.back().position.setZ((vertex.position.z() - 300.0f) * 2.0f + 300.0f);
    }
    walled.surfaces.push_back({QStringLiteral("_white"), {4, 5, 6, 4, 6, 7}});
    m_view->setStaticMesh(&walled);
    m_view->setSelectedSurface(0);
    QCOMPARE(m_view->count(isRed) > 0, behind);
    m_view->setStaticMesh(nullptr);
}

// Vertices of a skinned mesh lie in their bones' spaces: the overlay has to follow the pose.
void tst_Viewport::posedOverlay()
{
    SkinnedMesh mesh;
    mesh.nodes.resize(1);
    mesh.surfaces = {{QStringLiteral("_white"), {0, 1, 2}}};
    mesh.vertices = {{{-50.0f, 0.0f, 0.0f}, {}, {}, 0},
                     {{0.0f, 0.0f, 50.0f}, {}, {}, 0},
                     {{50.0f, 0.0f, 0.0f}, {}, {}, 0}};
    AnimFile anim;
    anim.blocks.resize(1);
    anim.blocks[0].nodes.resize(1);
    anim.blocks[0].nodes[0].initialPosition = {0.0f, 0.0f, 300.0f};
    playback().mesh = &mesh;
    playback().anim = &anim;
    m_view->setSkinnedMeshMode(true);
    m_view->setSkinnedMesh(&mesh);
    m_view->setSurfSelectType(int(SurfaceOverlay::Points));
    m_view->setSelectedSurface(0);
    m_view->open();
    const int half = m_view->height() / 2;
    const auto redIn = [this](int top, int bottom) {
        const QImage image = m_view->grabFramebuffer();
        int found = 0;
        for (int y = top; y < bottom; ++y) {
            for (int x = 0; x < image.width(); ++x)
                found += isRed(image.pixelColor(x, y)) ? 1 : 0;
        }
        return found;
    };
    QVERIFY(redIn(half - 30, half + 30) > 40); // three points of 5 by 5
    anim.blocks[0].nodes[0].initialPosition = {0.0f, 0.0f, 100.0f};
    QCOMPARE(redIn(half - 30, half + 30), 0);
    QVERIFY(redIn(half + 30, 2 * half) > 40);
    playback() = {};
}

void tst_Viewport::groundAndGizmo()
{
    m_view->open();
    const auto notBackground = [](const QColor &color) { return !isBackground(color); };
    QCOMPARE(m_view->count(notBackground), 0);
    m_view->setShowGround(true);
    m_view->setBackCull(true);
    const int ground = m_view->count(notBackground);
    QVERIFY(ground > 10000);
    m_view->setShowGround(false);
    QCOMPARE(m_view->count(notBackground), 0);

    m_view->setShowAxisGizmo(true);
    const int gizmo = m_view->count(notBackground);
    QVERIFY(gizmo > 100);
    QVERIFY(gizmo < 5000);
    // In a corner: nothing in the middle.
    QVERIFY(isBackground(m_view->centrePixel()));
    m_view->setBackCull(false);
    QVERIFY(std::abs(m_view->count(notBackground) - gizmo) < 20);
    m_view->setShowAxisGizmo(false);
    QCOMPARE(m_view->count(notBackground), 0);
}

void tst_Viewport::markers()
{
    SkinnedMesh mesh;
    mesh.nodes.resize(2);
    AnimFile anim;
    anim.blocks.resize(1);
    anim.blocks[0].nodes.resize(2);
    mesh.nodes[0].childNodes = {1};
    anim.blocks[0].nodes[1].initialPosition = {0.0f, 0.0f, 300.0f};
    playback().mesh = &mesh;
    playback().anim = &anim;
    m_view->setSkinnedMeshMode(true);
    m_view->setSkinnedMesh(&mesh);
    m_view->setBackCull(true);
    m_view->open();
    const auto marked = [this] {
        return m_view->count([](const QColor &color) { return !isBackground(color); });
    };
    QCOMPARE(marked(), 0);
    m_view->setSelectedBone(1);
    QVERIFY(marked() > 20);
    QVERIFY(!isBackground(m_view->pixel(200, 150)) || !isBackground(m_view->pixel(200, 146)));
    for (int bone : {-1, 2, 65535}) {
        m_view->setSelectedBone(bone);
        QCOMPARE(marked(), 0);
    }

    // The square follows its bone; a bone that is not there leaves it in the model's space.
    for (bool flag : {false, true}) {
        m_view->setHighlightPoint({}, flag, 1);
        QVERIFY(!isBackground(m_view->pixel(200, 150)));
        QVERIFY(marked() > 3);
        m_view->setHighlightPoint({0.0f, 0.0f, 300.0f}, flag, 7);
        QVERIFY(!isBackground(m_view->pixel(200, 150)));
        m_view->setHighlightPoint({0.0f, 0.0f, 300.0f}, flag, 1);
        QVERIFY(isBackground(m_view->pixel(200, 150)));
    }
    m_view->clearHighlightPoint();
    QCOMPARE(marked(), 0);
    m_view->setSelectedBone(1);
    m_view->setSkinnedMesh(&mesh);
    QCOMPARE(marked(), 0);
    playback() = {};
}

// Clockwise faces the viewer; the setting works from one frame to the next.
void tst_Viewport::culling()
{
    openSquare(QStringLiteral("_white"));
    QVERIFY(isColor(m_view->centrePixel(), 255, 255, 255));
    m_square->surfaces = {{QStringLiteral("_white"), {2, 1, 0, 3, 2, 0}}};
    m_view->refreshIndexes();
    QVERIFY(isBackground(m_view->centrePixel()));
    m_view->setBackCull(false);
    QVERIFY(isColor(m_view->centrePixel(), 255, 255, 255));
    m_view->setBackCull(true);
    QVERIFY(isBackground(m_view->centrePixel()));
}

void tst_Viewport::refreshedVertices()
{
    QStringList log;
    Log::setSink([&log](LogSeverity, const QString &text) { log.append(text); });
    openSquare(QStringLiteral("m/missing/x"));
    const int built = log.size();
    QVERIFY(built > 0);
    m_square->scale(0.01f);
    QVERIFY(isColor(m_view->centrePixel(), 255, 255, 255)); // not told yet
    m_view->refreshVertices();
    m_view->refreshVertices();
    QVERIFY(isBackground(m_view->centrePixel()));
    // Textures are not looked up again.
    QCOMPARE(log.size(), built);
    m_view->rebuildModel();
    QCOMPARE(log.size(), 2 * built);

    // Fewer vertices than the indexes name.
    m_square->scale(100.0f);
    m_square->vertices.pop_back();
    m_view->refreshVertices();
    QVERIFY(isColor(m_view->pixel(175, 120), 255, 255, 255));
    QVERIFY(isBackground(m_view->pixel(225, 180)));
}

// Bone numbers and indexes from nowhere, more bones than the program holds, numbers that are none.
void tst_Viewport::hostileModel()
{
    Log::setSink([](LogSeverity, const QString &) {});
    const float nan = std::numeric_limits<float>::quiet_NaN();
    SkinnedMesh mesh;
    mesh.nodes.resize(300);
    mesh.bbMin = mesh.bbMax = {nan, nan, nan};
    for (int i = 0; i < 1000; ++i)
        mesh.vertices.push_back({{float(i), nan, 3e38f}, {nan, 1e30f}, {}, quint16(i * 65)});
    mesh.surfaces = {{QString(), {0, 999, 1000, 65535, 1, 2, 3, 4, 5, 6}}, {QStringLiteral("_white"), {}}};
    m_view->setSkinnedMeshMode(true);
    m_view->setSkinnedMesh(&mesh);
    m_view->setSurfSelectType(int(SurfaceOverlay::LinesHidden));
    m_view->setShowGround(true);
    QTest::ignoreMessage(QtDebugMsg, "gBones[128] not found in shader");
    m_view->open();
    for (int surface : {0, 1, 2, -5, std::numeric_limits<int>::max()}) {
        m_view->setSelectedSurface(surface);
        QVERIFY(!m_view->grabFramebuffer().isNull());
    }
}

// A view on a tab that was never shown has no context yet.
void tst_Viewport::deferredBuild()
{
    QStringList log;
    Log::setSink([&log](LogSeverity, const QString &text) { log.append(text); });
    StaticMesh mesh;
    mesh.surfaces.resize(1);
    m_view->setStaticMesh(&mesh);
    m_view->setSelectedSurface(0);
    m_view->refreshVertices();
    m_view->rebuildModel();
    QCOMPARE(log.size(), 0);
    m_view->open();
    QVERIFY(!log.isEmpty());
}

void tst_Viewport::knight()
{
    SKIP_WITHOUT_SHARED("gamedata/game");
    QFETCH(bool, core33);
    useSurfaceFormat(core33);
    Settings::GamePath.setValue(TestSupport::shared(QStringLiteral("gamedata/game")));
    QStringList log;
    Log::setSink([&log](LogSeverity, const QString &text) { log.append(text); });
    SkinnedMesh mesh;
    AnimFile anim;
    QVERIFY(
        !mesh.read(TestSupport::shared(QStringLiteral("gamedata/game/models/knight/knight.skinnedmesh"))));
    QVERIFY(!anim.read(TestSupport::shared(QStringLiteral("gamedata/game/anims/knight/knight.anim"))));
    playback().mesh = &mesh;
    playback().anim = &anim;
    m_view = std::make_unique<Viewport>();
    m_view->setSkinnedMeshMode(true);
    m_view->setSkinnedMesh(&mesh);
    m_view->resize(800, 600);
    m_view->open();
    Settings::GamePath.setValue(m_folder.path());
    QCOMPARE(log, QStringList());

    // From the front culling leaves out nothing but the cape, whose inside is no surface: it is red.
    const QImage open = m_view->grabFramebuffer();
    m_view->setBackCull(true);
    const QImage culled = m_view->grabFramebuffer();
    int silhouette = 0, missing = 0, skin = 0, top = 1000, bottom = 0;
    for (int y = 0; y < open.height(); ++y) {
        for (int x = 0; x < open.width(); ++x) {
            const QColor color = culled.pixelColor(x, y);
            const QColor unculled = open.pixelColor(x, y);
            if (!isBackground(unculled)) {
                ++silhouette;
                const bool cape = unculled.red() > unculled.green() + 60 && unculled.green() < 100;
                missing += isBackground(color) && !cape ? 1 : 0;
            }
            if (isBackground(color))
                continue;
            top = std::min(top, y);
            bottom = std::max(bottom, y);
            // The face: the one warm, light patch of the texture.
            if (color.red() > 220 && color.green() > 150 && color.blue() > 100 &&
                color.red() > color.blue() + 60)
                skin += y;
        }
    }
    QVERIFY(silhouette > 2000);
    QVERIFY(missing < silhouette / 500);
    QVERIFY(skin > 0);
    // 200 units tall, standing 300 below the eye at a distance of 600.
    QVERIFY(top > 330 && top < 360);
    QVERIFY(bottom > 430 && bottom < 480);

    // Each surface tinted in turn: what changes only gains blue, and something does.
    int tinted = 0;
    for (int surface = 0; surface < int(mesh.surfaces.size()); ++surface) {
        m_view->setSelectedSurface(surface);
        const QImage image = m_view->grabFramebuffer();
        for (int y = top; y <= bottom; ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor from = culled.pixelColor(x, y), to = image.pixelColor(x, y);
                if (from == to)
                    continue;
                ++tinted;
                QVERIFY(to.blue() > from.blue() && to.red() == from.red() && to.green() == from.green());
            }
        }
    }
    QVERIFY(tinted > silhouette / 2);

    // Every block plays without a word.
    playback().playState = PlayState::Playing;
    for (int block = 0; block < int(anim.blocks.size()); ++block) {
        playback().blockIndex = block;
        playback().time = 0.1f;
        QVERIFY(m_view->count([](const QColor &color) { return !isBackground(color); }) > 2000);
    }
    QCOMPARE(log, QStringList());
    playback() = {};
}

QTEST_MAIN(tst_Viewport)
#include "tst_viewport.moc"
