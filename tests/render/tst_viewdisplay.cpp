// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "Viewport.h"

#include <QLabel>

// What the view draws besides the plain model: wires, marks, numbers; and its pictures.
class tst_ViewDisplay : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { TestSupport::useSettingsHome(m_home); }
    void init() { m_view = makeView(); }
    void cleanup()
    {
        m_view.reset();
        playback() = {};
    }

    void shadings_data() { addContexts(); }
    void shadings();
    void marksOverTheModel_data() { addContexts(); }
    void marksOverTheModel();
    void pictures();
    void statistics();

private:
    QTemporaryDir m_home;
    std::unique_ptr<Viewport> m_view;
};

void tst_ViewDisplay::shadings()
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
void tst_ViewDisplay::marksOverTheModel()
{
    QFETCH(bool, core33);
    m_view = makeView(core33);
    SkinnedMesh mesh;
    mesh.nodes.resize(2);
    mesh.nodes[0].childNodes = {1, 7};
    mesh.nodes[1].childNodes = {0, 1};
    mesh.hotPoints.resize(1);
    mesh.hotPoints[0] = {{100.0f, 0.0f, 0.0f}, 0, 0, 0, 0};
    AnimFile anim;
    anim.blocks.resize(1);
    anim.blocks[0].nodes.resize(2);
    anim.blocks[0].nodes[0].initialPosition = {0.0f, 0.0f, 300.0f};
    anim.blocks[0].nodes[1].initialPosition = {0.0f, 0.0f, 200.0f};
    m_view->showSkinned(mesh, anim);
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
    anim.blocks[0].nodes[1].initialPosition = {200.0f, 0.0f, 0.0f};
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

void tst_ViewDisplay::pictures()
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
void tst_ViewDisplay::statistics()
{
    m_view->openSquare();
    QVERIFY(!m_view->findChild<QLabel *>());
    m_view->setShowStatistics(true);
    auto *label = m_view->findChild<QLabel *>();
    QVERIFY(label && label->isVisible());
    QVERIFY(label->text().contains(QStringLiteral("2 triangles")));
    QTest::keyPress(m_view.get(), Qt::Key_W);
    QTRY_VERIFY(label->text().contains(QStringLiteral("frames/s")));
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

QTEST_MAIN(tst_ViewDisplay)
#include "tst_viewdisplay.moc"
