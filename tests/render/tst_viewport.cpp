// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Viewport.h"

#include <QLabel>

#include <algorithm>
#include <limits>

// What a frame shows, read back from the framebuffer: in the program's usual context and in a core one.
class tst_Viewport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { m_view = makeView(); }
    void cleanup();

    void texturedSquare_data() { addContexts(); }
    void texturedSquare();
    void holesShowWhatIsBehind();
    void theSelectedSurfaceIsOutlined_data() { addContexts(); }
    void theSelectedSurfaceIsOutlined();
    void overlays();
    void posedOverlay();
    void groundAndGizmo();
    void markers();
    void hostileModel();
    void shadings_data() { addContexts(); }
    void shadings();
    void marksOverTheModel_data() { addContexts(); }
    void marksOverTheModel();
    void pictures();
    void statistics();
    void knight_data() { addContexts(); }
    void knight();

private:
    QTemporaryDir m_home;
    QTemporaryDir m_folder;
    std::unique_ptr<Viewport> m_view;
};

namespace {
bool isRed(const QColor &color)
{
    return isColor(color, 255, 0, 0);
}

bool isForeground(const QColor &color)
{
    return !isBackground(color);
}
} // namespace

void tst_Viewport::initTestCase()
{
    TestSupport::useSettingsHome(m_home);
    putQuarters(m_folder.path());
    Settings::GamePath.setValue(m_folder.path());
}

void tst_Viewport::cleanup()
{
    m_view.reset();
    playback() = {};
    Log::setSink({});
}

void tst_Viewport::texturedSquare()
{
    QFETCH(bool, core33);
    m_view = makeView(core33);
    m_view->openSquare(QStringLiteral("m/a/quarters"));
    QCOMPARE(m_view->format().profile() == QSurfaceFormat::CoreProfile &&
                 !m_view->format().testOption(QSurfaceFormat::DeprecatedFunctions) &&
                 m_view->format().version() >= qMakePair(3, 2),
             core33);

    // A model's right (-x) is on the viewer's left, and the picture stands on its feet.
    const int left = 165, right = 225, upper = 125, lower = 165;
    QVERIFY(isRed(m_view->pixel(left, upper)));
    QVERIFY(isColor(m_view->pixel(right, upper), 0, 0, 255));
    QVERIFY(isWhite(m_view->pixel(left, lower)));
    QVERIFY(isBackground(m_view->pixel(right, lower)));

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
    m_view->setStaticMesh(&m_view->square);
    QVERIFY(isRed(m_view->pixel(left, upper)));
    m_view->setStaticMesh(nullptr);
    QVERIFY(isBackground(m_view->pixel(left, upper)));
    m_view->setBackgroundColor(QColor(1, 2, 3));
    QVERIFY(isColor(m_view->pixel(left, upper), 1, 2, 3));
}

// What is drawn later and lies behind a transparent texel is there, in a picture too; edges cross holes.
void tst_Viewport::holesShowWhatIsBehind()
{
    m_view->openSquare(QStringLiteral("m/a/quarters"));
    const QPoint hole(225, 175);
    QVERIFY(isBackground(m_view->pixel(hole.x(), hole.y())));
    StaticMesh walled = m_view->square;
    for (StaticMeshVertex vertex : m_view->square.vertices) {
        vertex.position.setY(100.0f);
        walled.vertices.push_back(vertex);
    }
    walled.surfaces.push_back({QStringLiteral("_white"), {4, 5, 6, 4, 6, 7}});
    SkinnedMesh skinned;
    skinned.nodes.resize(1);
    for (const StaticMeshVertex &vertex : walled.vertices)
        skinned.vertices.push_back({vertex.position, vertex.uv, {}, 0});
    for (const StaticMeshSurface &surface : walled.surfaces)
        skinned.surfaces.push_back({surface.materialPath, surface.triangleIndexes});
    m_view->setStaticMesh(&walled);
    m_view->setSkinnedMesh(&skinned);
    for (const bool bones : {false, true}) {
        m_view->setSkinnedMeshMode(bones);
        QVERIFY(isWhite(m_view->pixel(hole.x(), hole.y())));
        QVERIFY(isWhite(m_view->picture(m_view->size(), Qt::black).pixelColor(hole)));
    }
    m_view->setSkinnedMeshMode(false);
    m_view->setStaticMesh(&m_view->square);
    m_view->setShading(int(Shading::Wireframe));
    int dark = 0; // of the lower edge, half of which is transparent
    for (int x = 210; x < 240; ++x)
        dark += m_view->pixel(x, 199).green() < 130 || m_view->pixel(x, 200).green() < 130 ? 1 : 0;
    QVERIFY(dark > 20);
    m_view->setSkinnedMesh(nullptr);
    m_view->setStaticMesh(nullptr);
}

// Blue added to white is white: there is a line around the surface, where it is seen.
void tst_Viewport::theSelectedSurfaceIsOutlined()
{
    QFETCH(bool, core33);
    m_view = makeView(core33);
    m_view->openSquare();
    const auto isOutline = [](const QColor &color) { return isColor(color, 255, 140, 0); };
    QCOMPARE(m_view->count(isOutline), 0);
    m_view->setSelectedSurface(0);
    const int line = m_view->count(isOutline); // three sides of about 100, 100 and 140 pixels
    QVERIFY2(line > 400 && line < 900, qPrintable(QString::number(line)));
    QVERIFY(isWhite(m_view->pixel(170, 120)));
    QVERIFY(isWhite(m_view->pixel(230, 180)));
    const QImage picture = m_view->picture(m_view->size() * 2, Qt::black);
    int inPicture = 0;
    for (int x = 0; x < picture.width(); ++x)
        inPicture += isOutline(picture.pixelColor(x, 250)) ? 1 : 0;
    QVERIFY(inPicture >= 2);

    m_view->setShowSurfaceTint(false);
    QCOMPARE(m_view->count(isOutline), 0);
    m_view->setShowSurfaceTint(true);
    StaticMesh walled = m_view->square;
    for (StaticMeshVertex vertex : m_view->square.vertices) {
        vertex.position = {vertex.position.x() * 2.0f, -20.0f, vertex.position.z() * 2.0f - 300.0f};
        walled.vertices.push_back(vertex);
    }
    walled.surfaces.push_back({QStringLiteral("_white"), {4, 5, 6, 4, 6, 7}});
    m_view->setStaticMesh(&walled);
    m_view->setSelectedSurface(0);
    QCOMPARE(m_view->count(isOutline), 0); // the wall hides it
    m_view->setStaticMesh(nullptr);
}

void tst_Viewport::overlays()
{
    m_view->openSquare();
    StaticMesh &square = m_view->square;
    // The same behind a larger white wall.
    StaticMesh walled = square;
    for (StaticMeshVertex vertex : square.vertices) {
        vertex.position = {vertex.position.x() * 2.0f, -100.0f,
                           (vertex.position.z() - 300.0f) * 2.0f + 300.0f};
        walled.vertices.push_back(vertex);
    }
    walled.surfaces.push_back({QStringLiteral("_white"), {4, 5, 6, 4, 6, 7}});

    enum Shown { Never, InFront, Always };
    const Shown shown[] = {Never, InFront, Always, InFront, Always, Never}; // the last is no type
    for (int type = 0; type < int(std::size(shown)); ++type) {
        m_view->setSurfSelectType(type);
        m_view->setStaticMesh(&square);
        QCOMPARE(m_view->count(isRed), 0); // no surface is selected yet
        m_view->setSelectedSurface(0);
        QCOMPARE(m_view->count(isRed) > 0, shown[type] != Never);
        m_view->setStaticMesh(&walled);
        m_view->setSelectedSurface(0);
        QCOMPARE(m_view->count(isRed) > 0, shown[type] == Always);
    }
    m_view->setStaticMesh(nullptr);
}

// Vertices of a skinned mesh lie in their bones' spaces: the overlay has to follow the pose.
void tst_Viewport::posedOverlay()
{
    m_view->mesh.surfaces = {{QStringLiteral("_white"), {0, 1, 2}}};
    m_view->mesh.vertices = {{{-50, 0, 0}, {}, {}, 0}, {{0, 0, 50}, {}, {}, 0}, {{50, 0, 0}, {}, {}, 0}};
    m_view->showBones({{0.0f, 0.0f, 300.0f}});
    m_view->setSurfSelectType(int(SurfaceOverlay::Points));
    m_view->setSelectedSurface(0);
    m_view->open();
    // Two of its points lie at the height of the bone.
    QVERIFY(isRed(m_view->pixel(187, 150)) && isRed(m_view->pixel(212, 150)));
    m_view->offset(0) = {0.0f, 0.0f, 100.0f};
    QVERIFY(isBackground(m_view->pixel(187, 150)));
    QVERIFY(isRed(m_view->pixel(187, 200)) && isRed(m_view->pixel(212, 200)));
}

void tst_Viewport::groundAndGizmo()
{
    m_view->open();
    const auto shown = [this] { return m_view->count(isForeground); };
    QCOMPARE(shown(), 0);
    m_view->setShowGround(true);
    m_view->setBackCull(true);
    QVERIFY(shown() > 10000);
    m_view->setShowGround(false);
    QCOMPARE(shown(), 0);

    m_view->setShowAxisGizmo(true);
    const int gizmo = shown();
    QVERIFY(gizmo > 100 && gizmo < 5000);
    // In a corner: nothing in the middle.
    QVERIFY(isBackground(m_view->centrePixel()));
    m_view->setBackCull(false);
    QVERIFY(std::abs(shown() - gizmo) < 20);
}

void tst_Viewport::markers()
{
    m_view->showBones({{}, {0.0f, 0.0f, 300.0f}});
    m_view->setBackCull(true);
    m_view->open();
    const auto marked = [this] { return m_view->count(isForeground); };
    QCOMPARE(marked(), 0);
    m_view->setSelectedBone(1);
    QVERIFY(marked() > 20);
    for (int bone : {-1, 2, 65535}) {
        m_view->setSelectedBone(bone);
        QCOMPARE(marked(), 0);
    }

    // The square follows its bone; a bone that is not there leaves it in the model's space.
    for (bool flag : {false, true}) {
        m_view->setHighlightPoint({}, flag, 1);
        QVERIFY(isForeground(m_view->pixel(200, 150)));
        m_view->setHighlightPoint({0.0f, 0.0f, 300.0f}, flag, 7);
        QVERIFY(isForeground(m_view->pixel(200, 150)));
        m_view->setHighlightPoint({0.0f, 0.0f, 300.0f}, flag, 1);
        QVERIFY(isBackground(m_view->pixel(200, 150)));
    }
    m_view->clearHighlightPoint();
    QCOMPARE(marked(), 0);
    m_view->setSelectedBone(1);
    m_view->setSkinnedMesh(&m_view->mesh);
    QCOMPARE(marked(), 0);
}

void tst_Viewport::hostileModel()
{
    Log::setSink([](LogSeverity, const QString &) {});
    const SkinnedMesh mesh = oddMesh();
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

void tst_Viewport::knight()
{
    SKIP_WITHOUT_SHARED("gamedata/game");
    QFETCH(bool, core33);
    m_view = makeView(core33);
    Settings::GamePath.setValue(TestSupport::shared(QStringLiteral("gamedata/game")));
    QStringList log;
    Log::setSink([&log](LogSeverity, const QString &text) { log.append(text); });
    SkinnedMesh mesh;
    AnimFile anim;
    QVERIFY(
        !mesh.read(TestSupport::shared(QStringLiteral("gamedata/game/models/knight/knight.skinnedmesh"))));
    QVERIFY(!anim.read(TestSupport::shared(QStringLiteral("gamedata/game/anims/knight/knight.anim"))));
    m_view->showSkinned(mesh, anim);
    m_view->resize(800, 600);
    m_view->open();
    Settings::GamePath.setValue(m_folder.path());
    QCOMPARE(log, QStringList());

    // The face, which only its front side shows: the one warm, light patch of the texture.
    m_view->setBackCull(true);
    QVERIFY(m_view->count(isForeground) > 2000);
    QVERIFY(m_view->count([](const QColor &color) {
        return color.red() > 220 && color.green() > 150 && color.blue() > 100 &&
               color.red() > color.blue() + 60;
    }) > 0);

    // Every block plays without a word.
    playback().playState = PlayState::Playing;
    for (int block = 0; block < int(anim.blocks.size()); ++block) {
        playback().blockIndex = block;
        playback().time = 0.1f;
        QVERIFY(m_view->count(isForeground) > 2000);
    }
    QCOMPARE(log, QStringList());
}

void tst_Viewport::shadings()
{
    QFETCH(bool, core33);
    m_view = makeView(core33);
    m_view->openSquare();
    const auto isDark = [](const QColor &color) { return color.lightness() < 130 && color.green() < 130; };
    const auto isOrange = [](const QColor &color) {
        return color.red() > 200 && color.green() > 100 && color.green() < 240 && color.blue() < 150;
    };
    const auto inside = [this] { return m_view->pixel(175, 120); };
    QVERIFY(isWhite(inside()));
    QCOMPARE(m_view->count(isDark), 0);

    m_view->setShading(int(Shading::Wireframe));
    QVERIFY(isBackground(inside()));
    const int edges = m_view->count(isDark);
    QVERIFY(edges > 300 && edges < 1500); // four sides and the diagonal of about 100 pixels each
    m_view->setSelectedSurface(0);
    QVERIFY(m_view->count(isOrange) > 150);
    QVERIFY(m_view->count(isDark) > 100);
    m_view->setSelectedSurface(-1);
    m_view->setBackgroundColor(QColor(20, 20, 20));
    QVERIFY(m_view->count([](const QColor &color) { return color.red() > 140; }) > 300);

    m_view->setBackgroundColor(QColor(10, 200, 30));
    m_view->setShading(int(Shading::ShadedWireframe));
    QVERIFY(isWhite(inside()));
    QVERIFY(m_view->count(isDark) > 100);
    m_view->setShading(99);
    QCOMPARE(m_view->count(isDark), 0);
    QVERIFY(isWhite(inside()));
}

// Bones follow the pose and show through the model; a mesh that leads its bones in a circle is drawn, too.
void tst_Viewport::marksOverTheModel()
{
    QFETCH(bool, core33);
    m_view = makeView(core33);
    m_view->mesh.hotPoints = {{{100.0f, 0.0f, 0.0f}, 0, 0, 0, 0}};
    m_view->showBones({{0.0f, 0.0f, 300.0f}, {0.0f, 0.0f, 200.0f}});
    m_view->mesh.nodes[0].childNodes = {1, 7};
    m_view->mesh.nodes[1].childNodes = {0, 1};
    m_view->setBackCull(true);
    m_view->open();
    const auto isBone = [](const QColor &color) { return isColor(color, 0xe8, 0xea, 0xf0); };
    const auto isSelected = [](const QColor &color) { return isColor(color, 0xff, 0x8c, 0); };
    const auto isHotPoint = [](const QColor &color) { return isColor(color, 0xff, 0xe1, 0x4d); };
    QCOMPARE(m_view->count(isBone), 0);
    m_view->setShowSkeleton(true);
    const int bones = m_view->count(isBone);
    QVERIFY2(bones > 100 && bones < 400, qPrintable(QString::number(bones)));
    QVERIFY(isBone(m_view->pixel(200, 125)) || isBone(m_view->pixel(199, 125)));
    m_view->setMarkedSelection({0}, {});
    QVERIFY(m_view->count(isSelected) > 60);
    m_view->offset(1) = {200.0f, 0.0f, 0.0f};
    QVERIFY(isBackground(m_view->pixel(200, 125)));

    m_view->setShowSkeleton(false);
    QCOMPARE(m_view->count(isBone), 0);
    m_view->setShowHotPoints(true);
    QVERIFY(isHotPoint(m_view->pixel(225, 150)));
    m_view->setMarkedSelection({}, {0});
    QVERIFY(isSelected(m_view->pixel(225, 150)));
    m_view->setSkinnedMeshMode(false);
    QCOMPARE(m_view->count(isSelected), 0);
}

void tst_Viewport::pictures()
{
    QVERIFY(m_view->picture({10, 10}, Qt::red).isNull()); // no context yet
    m_view->openSquare();
    const QImage open = m_view->grabFramebuffer();
    for (const QSize &size : {QSize(400, 300), QSize(1000, 200), QSize(3000, 3000), QSize(1, 1)}) {
        const QImage clear = m_view->picture(size, QColor(0, 0, 0, 0));
        QCOMPARE(clear.size(), size);
        if (size.height() > 100) {
            QCOMPARE(clear.pixelColor(2, 2).alpha(), 0);
            QCOMPARE(clear.pixelColor(size.width() / 2 + 3, size.height() / 2 + 9), QColor(Qt::white));
        }
    }
    // The view itself goes on as it was.
    QCOMPARE(m_view->grabFramebuffer(), open);
}

// The text changes when a number does, and a view at rest rests.
void tst_Viewport::statistics()
{
    m_view->openSquare();
    QVERIFY(!m_view->findChild<QLabel *>());
    m_view->setShowStatistics(true);
    auto *label = m_view->findChild<QLabel *>();
    QVERIFY(label && label->isVisible());
    QVERIFY(label->text().contains(QStringLiteral("2 triangles")));
    QTest::keyPress(m_view.get(), Qt::Key_W);
    QTRY_VERIFY(label->text().contains(QStringLiteral("frames/s")));
    if (m_view->format().version() >= qMakePair(3, 3)) // which can tell
        QTRY_VERIFY(label->text().contains(QStringLiteral("ms on the graphics card")));
    QTest::keyRelease(m_view.get(), Qt::Key_W);
    QTRY_COMPARE(label->text(), QStringLiteral("2 triangles"));
    QTest::qWait(100);
    const int frames = m_view->frames;
    QTest::qWait(700);
    QCOMPARE(m_view->frames, frames);
    m_view->square.surfaces.pop_back();
    m_view->rebuildModel();
    QVERIFY(label->text().startsWith(QStringLiteral("1 triangle")));
    m_view->setShowStatistics(false);
    QVERIFY(!m_view->findChild<QLabel *>());
}

QTEST_MAIN(tst_Viewport)
#include "tst_viewport.moc"
