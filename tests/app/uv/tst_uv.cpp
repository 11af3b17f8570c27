// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FloatSpinBox.h"
#include "Hand.h"
#include "KVOpenGLWidget.h"
#include "MeshSource.h"
#include "TextureWatch.h"
#include "UvDock.h"
#include "UvView.h"

#include <cmath>
#include <limits>

using Vertices = std::vector<int>;

/// The dock that shows a surface over its texture.
class tst_Uv : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_files.emplace();
        Settings::AnimationAutoPlay.setValue(false);
        Settings::HideMeshData.setValue(false);
        QImage texture(4, 2, QImage::Format_RGB32);
        texture.fill(Qt::green);
        texture.setPixelColor(0, 0, Qt::red);
        texture.setPixelColor(3, 1, Qt::blue);
        QVERIFY(texture.save(m_files->path("t.png")));
        m_files->put("m.kmat", "material on {\n sampler \"diffuse\" 0 \"t.png\" {\n}\n}\n");
    }
    void cleanup() { m_window.reset(); }

    void aMapKnowsItsTriangles()
    {
        const float nowhere = std::numeric_limits<float>::quiet_NaN();
        const UvMap map({{0, 1}, {1, 1}, {1, 0}, {0, 0}, {nowhere, 0}, {1.5f, -0.5f}},
                        {0, 1, 2, 2, 3, 0, 3, 2, 5, 0, 1, 4, 0, 1, 9, 0, 1});
        QCOMPARE(map.triangles().size(), size_t(3));
        QCOMPARE(map.leftOutCount(), 2);
        QCOMPARE(map.beyondCount(), 1);
        QCOMPARE(map.edges().size(), size_t(7)); // shared ones once
        QCOMPARE(map.vertices(), Vertices({0, 1, 2, 3, 5}));
        QVERIFY(!map.has(4) && !map.has(9) && !map.has(-1));
        QCOMPARE(map.bounds(), QRectF(0, 0, 1.5, 1.5));
        QCOMPARE(map.verticesAt({0.98, 0.0}, {0.05, 0.05}), Vertices({1}));
        QCOMPARE(map.verticesAt({0.98, 0.0}, {0.01, 0.05}), Vertices());
        QCOMPARE(map.trianglesAt({0.9, 0.1}), Vertices({0}));
        QCOMPARE(map.trianglesAt({0.1, 0.9}), Vertices({1}));
        QCOMPARE(map.trianglesAt({3, 3}), Vertices());
        QCOMPARE(map.verticesIn({-0.1, -0.1, 1.2, 0.2}), Vertices({0, 1}));
        QVERIFY(UvMap({}, {0, 1, 2}).bounds().isNull());
    }

    void itShowsAndPicksBothKinds_data()
    {
        QTest::addColumn<bool>("skinned");
        QTest::newRow("skinned mesh") << true;
        QTest::newRow("static mesh") << false;
    }
    void itShowsAndPicksBothKinds()
    {
        QFETCH(const bool, skinned);
        open(skinned);
        const QImage before = onView();
        openDock();
        QVERIFY(view()->hasFocus());
        // The texel under a vertex is the one that the card gets for it.
        const GLVertex first = MeshSource::from(square<StaticMesh>()).vertices.vertices[1];
        QCOMPARE(view()->map().place(1), QPointF(double(first.texcoord[0]), double(first.texcoord[1])));
        QCOMPARE(colorAt({0.1, 0.2}), QColor(Qt::red));
        QCOMPARE(colorAt({0.9, 0.8}), QColor(Qt::blue));
        QVERIFY(label("lblUvWords").contains("triangles: 2 · vertices: 4 · t.png, 4 × 2"));

        // A vertex, with another one, all in a rectangle, a triangle, nothing.
        click({1, 0});
        QCOMPARE(selectedVertices(), Vertices({1}));
        QVERIFY(label("lblUvPlace").contains("u 1.0000  v 1.0000") &&
                label("lblUvPlace").contains("vertex 1"));
        QVERIFY(countPixels(onView(), Orange) > 10 && countPixels(before, Orange) == 0);
        click({0, 1}, Qt::ShiftModifier);
        QCOMPARE(selectedVertices(), Vertices({1, 3}));
        click({1, 0}, Qt::ControlModifier);
        QCOMPARE(selectedVertices(), Vertices({3}));
        drag({-0.1, -0.1}, {1.1, 0.1});
        QCOMPARE(selectedVertices(), Vertices({0, 1}));
        click({0.8, 0.35});
        QCOMPARE(selectedVertices(), Vertices({0, 1, 2}));
        QTest::keyClick(view(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(selectedVertices(), Vertices({0, 1, 2, 3}));
        click({1.3, 0.5});
        QCOMPARE(selectedVertices(), Vertices());
        QCOMPARE(tree()->currentRecord(), (RecordRef{surfaceKind(), {0}}));
        // Given up, a drag does nothing.
        QTest::mousePress(view(), Qt::LeftButton, {}, pixel({-0.1, -0.1}));
        move(pixel({1.1, 1.1}));
        QTest::keyClick(view(), Qt::Key_Escape);
        QTest::mouseRelease(view(), Qt::LeftButton, {}, pixel({1.1, 1.1}));
        QCOMPARE(selectedVertices(), Vertices());

        // The other way: a vertex, the corners of a triangle, and the surface that has them.
        tree()->selectRecords({{vertexKind(), {2}}}, {vertexKind(), {2}});
        QCOMPARE(view()->marked(), Vertices({2}));
        const RecordRef index{skinned ? RecordKind::SkinnedTriangleIndex : RecordKind::StaticTriangleIndex,
                              {0, 4}};
        tree()->selectRecords({index}, index);
        QCOMPARE(view()->marked(), Vertices({0, 2, 3}));
        auto *surfaces = find<QComboBox>(*m_window, "cbUvSurface");
        tree()->selectRecords({{vertexKind(), {4}}}, {vertexKind(), {4}});
        QCOMPARE(surfaces->currentIndex(), 1);
        QVERIFY(label("lblUvWords").contains("no texture"));
        QVERIFY(label("lblUvWords").contains("triangles beyond its edges: 1"));
        surfaces->setFocus();
        QTest::keyClick(surfaces, Qt::Key_Up);
        QCOMPARE(tree()->currentRecord(), (RecordRef{surfaceKind(), {0}}));
        QCOMPARE(view()->map().triangles().size(), size_t(2));

        // Hidden it marks nothing, and nothing was changed.
        tree()->selectRecords({{vertexKind(), {2}}}, {vertexKind(), {2}});
        QVERIFY(countPixels(onView(), Orange) > 10);
        find<QDockWidget>(*m_window, "dockUv")->close();
        QCOMPARE(countPixels(onView(), Orange), 0);
        for (const auto *stack : m_window->findChildren<QUndoStack *>())
            QCOMPARE(stack->count(), 0);
    }

    void mouseAndKeysMoveIt()
    {
        open(false);
        openDock();
        const QPoint at = pixel({0.25, 0.5});
        move(at);
        QVERIFY(label("lblUvPlace").startsWith("u 0.25"));
        QVERIFY(label("lblUvPlace").contains("texel 1, 1") || label("lblUvPlace").contains("texel 0, 1"));
        // What is under the mouse stays there.
        const QPoint middle = view()->rect().center();
        const QPointF looked = view()->toMap(middle);
        const double width = view()->toWidget({1, 0}).x() - view()->toWidget({0, 0}).x();
        turnWheel(view(), 240);
        QVERIFY(QLineF(view()->toMap(middle), looked).length() < 0.01);
        QVERIFY(view()->toWidget({1, 0}).x() - view()->toWidget({0, 0}).x() > 1.5 * width);
        for (const auto &[button, keys] :
             {std::pair(Qt::MiddleButton, Qt::NoModifier), std::pair(Qt::LeftButton, Qt::AltModifier)}) {
            const QPointF from = view()->toWidget({0, 0});
            QTest::mousePress(view(), button, keys, middle);
            move(middle + QPoint(31, -17), button, keys);
            QTest::mouseRelease(view(), button, keys, middle + QPoint(31, -17));
            QCOMPARE(view()->toWidget({0, 0}), from + QPointF(31, -17));
        }
        // What was moved is what would be drawn anew.
        const QImage moved = view()->grab().toImage();
        view()->setEmptyText({});
        QCOMPARE(moved, view()->grab().toImage());
        QTest::keyClick(view(), Qt::Key_Home);
        QCOMPARE(pixel({0.25, 0.5}), at);
        click({1, 0});
        QTest::keyClick(view(), Qt::Key_F);
        QVERIFY(QLineF(view()->toWidget({1, 0}), middle).length() < 2.0);
        QVERIFY(view()->toWidget({1, 0}).x() - view()->toWidget({0, 0}).x() > 1.5 * width);
    }

    // As they are at first, trees leave vertices out.
    void verticesThatTheTreeLeavesOutAreMarked()
    {
        Settings::HideMeshData.setValue(true);
        open(true);
        openDock();
        auto *offer = find<QLabel>(*m_window, "lblUvHidden");
        click({1, 0});
        QCOMPARE(view()->marked(), Vertices({1}));
        QVERIFY(countPixels(onView(), Orange) > 10);
        QVERIFY(offer->isVisible());
        emit offer->linkActivated(QString());
        QCOMPARE(selectedVertices(), Vertices({1}));
        QVERIFY(!offer->isVisible() && !Settings::HideMeshData.value());
    }

    void itFollowsEditsAndTextures()
    {
        open(true);
        openDock();
        click({1, 0});
        auto *u = find<FloatSpinBox>(*find<QWidget>(*m_window, "pagesSkinnedMesh"), "sbVertUVX");
        QVERIFY(u->isVisible());
        u->setFocus();
        u->selectAll();
        QTest::keyClicks(u, "0.5");
        QTest::keyClick(u, Qt::Key_Return);
        QCOMPARE(view()->map().place(1), QPointF(0.5, 0.0));
        QCOMPARE(view()->marked(), Vertices({1}));
        find<QAction>(*m_window, "actionUndo")->trigger();
        QCOMPARE(view()->map().place(1), QPointF(1.0, 0.0));
        QImage other(4, 2, QImage::Format_RGB32);
        other.fill(Qt::yellow);
        QSignalSpy reloaded(m_window->findChild<TextureWatch *>(), &TextureWatch::reloaded);
        QVERIFY(other.save(m_files->path("t.png")));
        QTRY_COMPARE(reloaded.size(), 1);
        QTRY_COMPARE(colorAt({0.1, 0.2}), QColor(Qt::yellow));
        // Another model, then none.
        m_files->save("man.skinnedmesh", triangleMan());
        find<QTabWidget>(*m_window, "tabWidget")->setCurrentIndex(1);
        QTest::keyClick(m_window.get(), Qt::Key_F4, Qt::ShiftModifier);
        QVERIFY(view()->map().triangles().empty());
        QVERIFY(!find<QComboBox>(*m_window, "cbUvSurface")->isEnabled());
    }

    // Its numbers are those of another surface than the one that is shown.
    void aMapThatIsNotThereYetAnswersNoHand()
    {
        open(true);
        openDock();
        const QByteArray patience = qgetenv("KORVANE_PATIENCE");
        qputenv("KORVANE_PATIENCE", "0");
        auto *surfaces = find<QComboBox>(*m_window, "cbUvSurface");
        const auto selectAllOf = [&](int key, int surface) {
            surfaces->setFocus();
            QTest::keyClick(surfaces, Qt::Key(key));
            view()->setFocus();
            QTest::keyClick(view(), Qt::Key_A, Qt::ControlModifier);
            const QVector<RecordIndex> marked = tree()->selectedRecords(vertexKind());
            return std::all_of(marked.begin(), marked.end(), [surface](const RecordIndex &vertex) {
                return (vertex[0] >= 4) == (surface == 1);
            });
        };
        for (int i = 0; i < 5; ++i) {
            QVERIFY(selectAllOf(Qt::Key_Down, 1));
            QTRY_COMPARE(view()->map().triangles().size(), size_t(1));
            QVERIFY(selectAllOf(Qt::Key_Up, 0));
            QTRY_COMPARE(view()->map().triangles().size(), size_t(2));
        }
        qputenv("KORVANE_PATIENCE", patience);
        QTest::keyClick(view(), Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(selectedVertices(), Vertices({0, 1, 2, 3}));
    }

private:
    static constexpr auto Orange = QColor(0xff, 0x8c, 0x00);

    /// Two triangles that cover a texture, and one beyond it without a texture.
    template <typename Mesh>
    static Mesh square()
    {
        Mesh mesh;
        mesh.vertices.resize(7);
        const float places[7][4] = {{-100, 200, 0, 1},   {100, 200, 1, 1},  {100, 0, 1, 0},
                                    {-100, 0, 0, 0},     {0, 100, 0.5f, 1}, {9, 100, 1.5f, 1},
                                    {0, 109, 0.5f, 0.5f}};
        for (size_t i = 0; i < mesh.vertices.size(); ++i) {
            mesh.vertices[i].position = {places[i][0], 0, places[i][1]};
            mesh.vertices[i].uv = {places[i][2], places[i][3]};
        }
        mesh.surfaces.resize(2);
        mesh.surfaces[0].materialPath = QStringLiteral("m/on");
        mesh.surfaces[0].triangleIndexes = {0, 1, 2, 2, 3, 0};
        mesh.surfaces[1].materialPath = QStringLiteral("_white");
        mesh.surfaces[1].triangleIndexes = {4, 5, 6};
        if constexpr (std::is_same_v<Mesh, SkinnedMesh>)
            mesh.nodes.resize(1);
        return mesh;
    }

    void open(bool skinned)
    {
        m_isSkinned = skinned;
        m_window = std::make_unique<ShownWindow>(
            QStringList{skinned ? m_files->save("man.skinnedmesh", square<SkinnedMesh>())
                                : m_files->save("wall.staticmesh", square<StaticMesh>())});
        m_window->resize(1300, 900);
        QTRY_COMPARE(tree()->model()->rowCount(), 1);
    }
    void openDock()
    {
        QTest::keyClick(m_window.get(), Qt::Key_F4, Qt::ShiftModifier);
        QTRY_VERIFY(view()->isVisible() && !view()->map().triangles().empty());
    }
    UvView *view() const { return find<UvView>(*m_window, "viewUv"); }
    KVTreeView *tree() const
    {
        return find<KVTreeView>(*m_window, m_isSkinned ? "treeSkinnedMesh" : "treeStaticMesh");
    }
    QImage onView() const
    {
        return find<KVOpenGLWidget>(*m_window, m_isSkinned ? "viewSkinned" : "viewStatic")->grabFramebuffer();
    }
    RecordKind vertexKind() const
    {
        return m_isSkinned ? RecordKind::SkinnedVertex : RecordKind::StaticVertex;
    }
    RecordKind surfaceKind() const
    {
        return m_isSkinned ? RecordKind::SkinnedSurface : RecordKind::StaticSurface;
    }
    Vertices selectedVertices() const
    {
        Vertices found;
        for (const RecordIndex &record : tree()->selectedRecords(vertexKind()))
            found.push_back(record[0]);
        return found == view()->marked() ? found : Vertices({-1});
    }
    QString label(const char *name) const { return find<QLabel>(*m_window, name)->text(); }
    QPoint pixel(const QPointF &place) const { return view()->toWidget(place).toPoint(); }
    QColor colorAt(const QPointF &place) const { return view()->grab().toImage().pixelColor(pixel(place)); }
    void move(const QPoint &to, Qt::MouseButtons buttons = Qt::LeftButton, Qt::KeyboardModifiers keys = {})
    {
        QMouseEvent event(QEvent::MouseMove, to, view()->mapToGlobal(to), Qt::NoButton, buttons, keys);
        QApplication::sendEvent(view(), &event);
    }
    void click(const QPointF &place, Qt::KeyboardModifiers keys = {})
    {
        move(pixel(place), Qt::NoButton, keys);
        QTest::mouseClick(view(), Qt::LeftButton, keys, pixel(place));
    }
    void drag(const QPointF &from, const QPointF &to)
    {
        QTest::mousePress(view(), Qt::LeftButton, {}, pixel(from));
        move(pixel(to));
        QTest::mouseRelease(view(), Qt::LeftButton, {}, pixel(to));
    }

    std::optional<ProgramFolder> m_files;
    std::unique_ptr<ShownWindow> m_window;
    bool m_isSkinned = true;
};

QTEST_MAIN(tst_Uv)
#include "tst_uv.moc"
