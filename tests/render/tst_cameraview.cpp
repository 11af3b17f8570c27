// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BoxTool.h"
#include "GizmoTool.h"
#include "TurntableTool.h"
#include "Viewport.h"

#include <QMouseEvent>
#include <QOpenGLDebugLogger>
#include <QSignalSpy>
#include <QToolTip>

#include <cmath>

// What the camera can be beside flown: lenses, orthographic sides, the gizmo that is clicked, the turntable;
// and the frames around the one that is shown.
class tst_CameraView : public QObject
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
    void whatIsDrawnIsHit();
    void linesLieOnTheirSurface();
    void markersStayAsLarge();
    void theGizmoIsClicked();
    void theGizmoHasTheMouse();
    void theTurntableTurnsUntilItIsTouched();
    void onionSkin_data() { addContexts(); }
    void onionSkin();

private:
    void move(const QPoint &pixel, Qt::MouseButtons held = Qt::NoButton);

    QTemporaryDir m_home;
    std::unique_ptr<Viewport> m_view;
};

namespace {
using Side = Camera::Side;

/// The middle of what is white, and how many pixels are.
QPointF whiteMiddle(const QImage &image, int &count)
{
    QPointF sum;
    count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isWhite(image.pixelColor(x, y))) {
                sum += QPointF(x + 0.5, y + 0.5);
                ++count;
            }
        }
    }
    return count > 0 ? sum / count : QPointF(-1.0, -1.0);
}
} // namespace

void tst_CameraView::move(const QPoint &pixel, Qt::MouseButtons held)
{
    QMouseEvent event(QEvent::MouseMove, pixel, m_view->mapToGlobal(pixel), Qt::NoButton, held,
                      Qt::NoModifier);
    QApplication::sendEvent(m_view.get(), &event);
}

// Under each lens, and orthographic, a place shows where the camera's matrices have it, a click there hits
// it, and one beside it hits nothing.
void tst_CameraView::whatIsDrawnIsHit()
{
    // An octahedron, which looks alike from all sides, beside what is looked at.
    const QVector3D middle(60.0f, 30.0f, 340.0f);
    for (const QVector3D &corner : {QVector3D(12, 0, 0), QVector3D(0, 12, 0), QVector3D(0, 0, 12)}) {
        for (const float sign : {1.0f, -1.0f})
            m_view->square.vertices.push_back({middle + sign * corner, {}, {}});
    }
    m_view->square.surfaces = {{QStringLiteral("_white"), {}}};
    for (const int x : {0, 1}) {
        for (const int y : {2, 3}) {
            for (const int z : {4, 5}) {
                for (const int corner : {x, y, z})
                    m_view->square.surfaces[0].triangleIndexes.push_back(quint16(corner));
            }
        }
    }
    m_view->setStaticMesh(&m_view->square);
    m_view->open();
    QSignalSpy picked(m_view.get(), &KVOpenGLWidget::surfacePicked);
    QSignalSpy nothing(m_view.get(), &KVOpenGLWidget::nothingPicked);
    CameraCommands &commands = m_view->cameraCommands();
    const auto check = [&](const QString &what) {
        int count = 0;
        const QPointF drawn = whiteMiddle(m_view->grabFramebuffer(), count);
        const Camera &camera = m_view->camera();
        QMatrix4x4 toEye = camera.viewMatrix();
        toEye.rotate(ScenePainter::uprightRotation());
        const ScreenMap map(camera.projectionMatrix(400, 300), toEye, {400, 300});
        const QPointF asked = map.pixel(map.toEye(middle));
        QVERIFY2(count > 40 && std::hypot(drawn.x() - asked.x(), drawn.y() - asked.y()) < 1.5,
                 qPrintable(QStringLiteral("%1: %2 pixels at %3,%4 for %5,%6")
                                .arg(what)
                                .arg(count)
                                .arg(drawn.x())
                                .arg(drawn.y())
                                .arg(asked.x())
                                .arg(asked.y())));
        const auto reach = int(14.0f / map.unitsPerPixel(map.toEye(middle))) + 2;
        const int hits = picked.size(), misses = nothing.size();
        QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, drawn.toPoint());
        QVERIFY2(picked.size() == hits + 1 && nothing.size() == misses, qPrintable(what));
        for (const QPoint &way : {QPoint(reach, 0), QPoint(-reach, 0), QPoint(0, reach), QPoint(0, -reach)})
            QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, drawn.toPoint() + way);
        QVERIFY2(picked.size() == hits + 1 && nothing.size() == misses + 4, qPrintable(what));
    };
    commands.setOrthographicSides(true);
    for (const float lens : {90.0f, 60.0f, 45.0f}) {
        m_view->resetCamera();
        m_view->placeCamera(m_view->camera().position() - QVector3D(0, 0, 300), 180.0f, 0.0f);
        commands.setLens(lens);
        check(QStringLiteral("lens %1").arg(double(lens)));
        commands.toggleOrthographic();
        check(QStringLiteral("lens %1, orthographic").arg(double(lens)));
        commands.toggleOrthographic();
        commands.orbit(30.0f, 20.0f);
        check(QStringLiteral("lens %1, turned").arg(double(lens)));
        for (const Side side : {Side::Left, Side::Back, Side::Top}) {
            commands.lookFrom(side);
            QVERIFY(m_view->camera().isOrthographic());
            m_view->frameAll();
            commands.zoom(-6);
            check(QStringLiteral("lens %1, side %2").arg(double(lens)).arg(int(side)));
        }
    }
}

// However near, an orthographic picture has all of a selected surface's lines that lie on it.
void tst_CameraView::linesLieOnTheirSurface()
{
    m_view->square = facingSquare(QStringLiteral("_white"));
    m_view->square.surfaces[0].triangleIndexes = {0, 2, 1}; // whose line is the one across the square
    for (auto &vertex : m_view->square.vertices) {
        const QVector3D place = 0.01f * (vertex.position - QVector3D(0, 0, 300));
        vertex.position = {place.x(), 0.7f * place.z() + 0.3f * place.x(), 300.0f + place.z()};
    }
    m_view->setStaticMesh(&m_view->square);
    m_view->setShowSurfaceTint(false);
    m_view->open();
    m_view->cameraCommands().toggleOrthographic();
    m_view->frameAll();
    const auto lines = [this](SurfaceOverlay overlay) {
        m_view->setSurfSelectType(int(overlay));
        return m_view->count(
            [](const QColor &color) { return color.red() > 200 && color.green() < 60 && color.blue() < 60; });
    };
    m_view->setSelectedSurface(0);
    for (int zoom = 0; zoom < 2; ++zoom) {
        const int all = lines(SurfaceOverlay::LinesHidden);
        const int seen = lines(SurfaceOverlay::Lines);
        QVERIFY2(all > 30 && seen > all * 9 / 10, qPrintable(QStringLiteral("%1 of %2").arg(seen).arg(all)));
        m_view->cameraCommands().zoom(20);
    }
}

// The mark of a selected place is as large under each lens.
void tst_CameraView::markersStayAsLarge()
{
    m_view->showBones({{0, 0, 300}});
    m_view->open();
    m_view->setHighlightPoint({}, false, 0);
    const auto marked = [&] { return m_view->count([](const QColor &color) { return color.green() < 60; }); };
    const int usual = marked();
    QVERIFY(usual > 4);
    for (const float lens : {60.0f, 45.0f}) {
        m_view->cameraCommands().setLens(lens);
        QVERIFY(std::abs(marked() - usual) <= usual / 3);
        m_view->cameraCommands().toggleOrthographic();
        QVERIFY(std::abs(marked() - usual) <= usual / 3);
        m_view->cameraCommands().toggleOrthographic();
    }
}

void tst_CameraView::theGizmoIsClicked()
{
    m_view->openSquare();
    const auto ballOf = [&](Side side) {
        for (const auto &ball : AxisGizmo::balls(m_view->camera().viewMatrix(), m_view->size())) {
            if (ball.side == side)
                return ball.pixel.toPoint();
        }
        return QPoint();
    };
    const QPoint right = ballOf(Side::Right);
    move(right);
    QVERIFY(QToolTip::text().isEmpty()); // it is not shown
    m_view->setShowAxisGizmo(true);
    const QImage plain = m_view->grabFramebuffer();
    move(right);
    QTRY_COMPARE(QToolTip::text(), QStringLiteral("Right (+X)"));
    QVERIFY(isWhite(m_view->pixel(right.x() + 10, right.y())));
    move({300, 20});
    QTRY_VERIFY(!QToolTip::isVisible());
    QCOMPARE(m_view->grabFramebuffer(), plain);

    QSignalSpy nothing(m_view.get(), &KVOpenGLWidget::nothingPicked);
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, right);
    QCOMPARE(m_view->camera().yaw(), 270.0f);
    for (const auto &[side, yaw, pitch] : {std::tuple(Side::Right, 90.0f, 0.0f), // again: across
                                           {Side::Top, 180.0f, -89.0f},
                                           {Side::Top, 180.0f, 89.0f},
                                           {Side::Front, 180.0f, 0.0f}}) {
        QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, ballOf(side));
        QCOMPARE(m_view->camera().yaw(), yaw);
        QCOMPARE(m_view->camera().pitch(), pitch);
    }
    const int frames = m_view->frames;
    QTRY_VERIFY(m_view->frames > frames); // it shows
    // A drag turns and picks no side, from wherever it begins.
    const QPoint start = ballOf(Side::Top);
    QTest::mousePress(m_view.get(), Qt::LeftButton, {}, start);
    move(start + QPoint(20, 0), Qt::LeftButton);
    move(start + QPoint(40, 0), Qt::LeftButton);
    QCOMPARE(m_view->cursor().shape(), Qt::ClosedHandCursor);
    QTest::mouseRelease(m_view.get(), Qt::LeftButton, {}, start + QPoint(40, 0));
    QCOMPARE(m_view->camera().yaw(), 160.0f);
    QCOMPARE(m_view->camera().pitch(), 0.0f);
    QCOMPARE(nothing.size(), 0);
}

// Over it nothing behind it is hovered, and a second button makes no click of a drag.
void tst_CameraView::theGizmoHasTheMouse()
{
    struct Faces : ViewDrags
    {
        int face = -1;
        void hovered(int now) override { face = now; }
        void grabbed(Handle) override {}
        void dragged(const BoxDrag &) override {}
        void dragged(const PointDrag &) override {}
        void dropped() override {}
        void givenUp() override {}
    } faces;
    m_view->openSquare();
    m_view->square.bbMin = {-200, -1, 100};
    m_view->square.bbMax = {200, 1, 500};
    m_view->setShowBoxes(true);
    m_view->setShowAxisGizmo(true);
    m_view->setHandles(MarkedRecords::ModelBox, false);
    m_view->tools().box->setReceiver(&faces);
    m_view->grabFramebuffer();
    for (int pixel = 0; pixel < 170 && faces.face < 0; ++pixel)
        move({pixel, pixel});
    QVERIFY(faces.face >= 0);
    const QPoint middle(64, 300 - 64);
    move(middle - QPoint(0, 20));
    QCOMPARE(faces.face, -1);
    m_view->tools().box->setReceiver(nullptr);

    const auto send = [&](QEvent::Type type, const QPoint &pixel, Qt::MouseButton button,
                          Qt::MouseButtons held) {
        QMouseEvent event(type, pixel, m_view->mapToGlobal(pixel), button, held, Qt::NoModifier);
        QApplication::sendEvent(m_view.get(), &event);
    };
    const QPoint top = middle - QPoint(0, 48);
    send(QEvent::MouseButtonPress, top, Qt::LeftButton, Qt::LeftButton);
    for (const int x : {40, 80, 0})
        move(top + QPoint(x, 0), Qt::LeftButton);
    send(QEvent::MouseButtonPress, top, Qt::RightButton, Qt::LeftButton | Qt::RightButton);
    send(QEvent::MouseButtonRelease, top, Qt::RightButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, top, Qt::LeftButton, Qt::NoButton);
    QCOMPARE(m_view->camera().pitch(), 0.0f);
}

void tst_CameraView::theTurntableTurnsUntilItIsTouched()
{
    m_view->openSquare();
    TurntableTool *turntable = m_view->tools().turntable;
    const auto start = [&] {
        turntable->start();
        m_view->playbackChanged();
        const float yaw = m_view->camera().yaw();
        QTRY_VERIFY(m_view->camera().yaw() > yaw + 2.0f);
    };
    start();
    QElapsedTimer clock;
    clock.start();
    const int frames = m_view->frames;
    const float yaw = m_view->camera().yaw();
    QTest::qWait(500);
    const double seconds = double(clock.elapsed()) / 1000.0;
    QVERIFY(m_view->frames - frames <= int(60.0 * seconds) + 2);
    QVERIFY(std::fabs(double(m_view->camera().yaw() - yaw) - 30.0 * seconds) < 5.0);
    QCOMPARE(m_view->camera().pitch(), 0.0f);

    // A lens is no touch.
    m_view->cameraCommands().setLens(60.0f);
    QTest::qWait(50);
    m_view->cameraCommands().toggleOrthographic();
    QTest::qWait(50);
    m_view->cameraCommands().toggleOrthographic();
    QTest::qWait(50);
    QVERIFY(turntable->isOn());

    const std::function<void()> touches[] = {
        [this] {
            QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, {10, 10});
        },
        [this] { QTest::keyClick(m_view.get(), Qt::Key_Escape); },
        [this] { QTest::keyClick(m_view.get(), Qt::Key_C); },
        [this] { m_view->cameraCommands().zoom(1); },
        [this] {
            m_view->hide();
            m_view->show();
        },
    };
    for (const auto &touch : touches) {
        start();
        touch();
        QTest::qWait(50);
        QVERIFY(!turntable->isOn());
        const float stands = m_view->camera().yaw();
        QTest::qWait(50);
        QCOMPARE(m_view->camera().yaw(), stands);
    }
}

// The frame before is blue, the one after orange, each where it stands, and the model as it always is.
void tst_CameraView::onionSkin()
{
    QFETCH(bool, core33);
    m_view = makeView(core33);
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setOption(QSurfaceFormat::DebugContext);
    m_view->setFormat(format);
    SkinnedMesh &mesh = m_view->mesh;
    mesh.surfaces = {{QStringLiteral("_white"), {0, 1, 2, 0, 2, 3}}};
    for (const QPointF &corner : {QPointF(-50, -50), QPointF(-50, 50), QPointF(50, 50), QPointF(50, -50)})
        mesh.vertices.push_back({{float(corner.x()), 0.0f, float(corner.y())}, {}, {}, 0});
    m_view->showBones({{0, 0, 300}});
    AnimBlock &block = m_view->anim.blocks[0];
    block.setFrameCount(5);
    block.setTranslationCount(1);
    for (int frame = 0; frame < 5; ++frame)
        block.translations.at(0, frame) = {200.0f * float(frame - 2), 0.0f, 300.0f};
    block.nodes[0].translationIndex = 0;
    playback().playState = PlayState::Paused;
    playback().time = 2.0f / std::max(1.0f, block.speed);
    m_view->open();
    m_view->makeCurrent();
    QOpenGLDebugLogger logger;
    QStringList complaints;
    if (logger.initialize()) {
        connect(&logger, &QOpenGLDebugLogger::messageLogged, this, [&](const QOpenGLDebugMessage &message) {
            if (message.type() == QOpenGLDebugMessage::ErrorType)
                complaints.append(message.message());
        });
        logger.startLogging(QOpenGLDebugLogger::SynchronousLogging);
    }
    const QImage plain = m_view->grabFramebuffer();
    // +x is to the right, 200 units are 50 pixels there.
    const auto colors = [&] {
        const QImage image = m_view->grabFramebuffer();
        QString words;
        for (const int pixel : {100, 150, 200, 250, 300}) {
            const QColor color = image.pixelColor(pixel, 150);
            words += isBackground(color)          ? '.'
                     : isWhite(color)             ? 'w'
                     : color.blue() > color.red() ? 'b'
                     : color.red() > color.blue() ? 'o'
                                                  : '?';
        }
        return words;
    };
    QCOMPARE(colors(), QStringLiteral("..w.."));
    m_view->setOnionSkin({true, 1, 1});
    QCOMPARE(colors(), QStringLiteral(".bwo."));
    m_view->setOnionSkin({true, 5, 1});
    QCOMPARE(colors(), QStringLiteral("bbwoo")); // and no more, since the animation ends there
    m_view->setOnionSkin({true, 1, 2});
    QCOMPARE(colors(), QStringLiteral("b.w.o"));
    playback().time = 0.0f;
    QCOMPARE(colors(), QStringLiteral("w.o.."));
    QSignalSpy picked(m_view.get(), &KVOpenGLWidget::surfacePicked);
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, {200, 150}); // nobody is there
    QCOMPARE(picked.size(), 0);
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, {100, 150});
    QCOMPARE(picked.size(), 1);
    const QImage transparent = m_view->picture({400, 300}, QColor(0, 0, 0, 0));
    QVERIFY(transparent.pixelColor(200, 150).alpha() > 60 && transparent.pixelColor(200, 150).alpha() < 200);
    QCOMPARE(transparent.pixelColor(300, 150).alpha(), 0);
    playback().playState = PlayState::InitialPose;
    QCOMPARE(colors(), QStringLiteral("..w.."));
    playback().playState = PlayState::Paused;
    playback().time = 2.0f / std::max(1.0f, block.speed);
    m_view->setOnionSkin({false, 5, 1});
    QCOMPARE(m_view->grabFramebuffer(), plain);
    QCOMPARE(complaints, QStringList());
    m_view->makeCurrent();
}

QTEST_MAIN(tst_CameraView)
#include "tst_cameraview.moc"
