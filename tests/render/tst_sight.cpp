// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Camera.h"
#include "Picking.h"
#include "SceneMarks.h"
#include "SkinnedMesh.h"
#include "TestSupport.h"

#include <cmath>
#include <limits>

/// What stands where in the picture, and what the mouse hits, without any graphics.
class tst_Sight : public QObject
{
    Q_OBJECT

private slots:
    void pixelsAndRays();
    void linesEndAtTheNearPlane();
    void skeletonsTakeEachBoneOnce();
    void marksAreFound();
    void hostileMarks();
    void theNearestTriangleIsHit();
    void hostileTriangles();
};

namespace {
constexpr float NaN = std::numeric_limits<float>::quiet_NaN();
const QSize Picture(400, 300);

ScreenMap startMap()
{
    return {Camera().projectionMatrix(Picture.width(), Picture.height()), Camera().viewMatrix(), Picture};
}

/// A bone at each place, each the child of the one before.
SkinnedMesh chain(const std::vector<QVector3D> &places, BonePalette &palette)
{
    SkinnedMesh mesh;
    mesh.nodes.resize(places.size());
    palette.assign(places.size(), {});
    for (size_t i = 0; i < places.size(); ++i) {
        palette[i].translate(places[i]);
        if (i + 1 < places.size())
            mesh.nodes[i].childNodes = {quint16(i + 1)};
    }
    return mesh;
}
} // namespace

void tst_Sight::pixelsAndRays()
{
    const ScreenMap map = startMap();
    // The eye is 300 up at a distance of 600 and sees 90 degrees from top to bottom.
    QCOMPARE(map.pixel(map.toEye({0.0f, 300.0f, 0.0f})).toPoint(), QPoint(200, 150));
    QVERIFY(!map.isVisible(map.toEye({0.0f, 300.0f, -700.0f})));
    QVERIFY(!map.isVisible(map.toEye({NaN, NaN, NaN})));
    for (const QPointF &pixel : {QPointF(200, 150), QPointF(3, 299), QPointF(390, 20)}) {
        const Ray ray = map.ray(pixel);
        const QPointF seen = map.pixel(map.toEye(ray.origin + 1000.0f * ray.direction));
        QVERIFY(std::hypot(seen.x() - pixel.x(), seen.y() - pixel.y()) < 0.01);
        QVERIFY(map.isVisible(map.toEye(ray.origin + 0.1f * ray.direction)));
    }
}

void tst_Sight::linesEndAtTheNearPlane()
{
    const ScreenMap map = startMap();
    QVector3D before(0.0f, 0.0f, -105.12f), behind(100.0f, 0.0f, 94.88f);
    QVERIFY(map.clip(before, behind));
    QVERIFY(std::fabs(behind.z() + Camera::NearPlane) < 0.01f);
    QVERIFY(std::fabs(behind.x() - 50.0f) < 0.01f);
    QVector3D a(0.0f, 0.0f, 1.0f), b(NaN, 0.0f, NaN);
    QVERIFY(!map.clip(a, b));
}

void tst_Sight::skeletonsTakeEachBoneOnce()
{
    SkinnedMesh mesh;
    mesh.nodes.resize(6);
    mesh.nodes[0].childNodes = {2, 1, 1, 65535, 0};
    mesh.nodes[1].childNodes = {2, 3};
    mesh.nodes[3].childNodes = {1, 0, 4};
    Skeleton skeleton;
    const auto found = [&] {
        QStringList texts;
        for (const Skeleton::Bone &bone : skeleton.bones())
            texts << QStringLiteral("%1<%2")
                         .arg(bone.index)
                         .arg(bone.parent < 0 ? -1 : skeleton.bones()[size_t(bone.parent)].index);
        return texts.join(QLatin1Char(' '));
    };
    skeleton.follow(mesh, 100);
    QCOMPARE(found(), QStringLiteral("0<-1 2<0 1<0 3<1 4<3")); // nothing leads to bone 5
    skeleton.follow(mesh, 3);
    QCOMPARE(found(), QStringLiteral("0<-1 2<0 1<0"));
    skeleton.follow(SkinnedMesh(), 100);
    QVERIFY(skeleton.bones().empty());
}

void tst_Sight::marksAreFound()
{
    const ScreenMap map = startMap();
    BonePalette palette;
    SkinnedMesh mesh = chain({{0, 300, 0}, {0, 500, 0}, {0, 500, 10}}, palette);
    mesh.hotPoints.resize(2);
    mesh.hotPoints[0] = {{200, 0, 0}, 0, 1, 0, 0}; // on bone 1
    mesh.hotPoints[1] = {{0, 300, 0}, 0, 77, 0, 0};
    SceneMarks marks;
    MarkedRecords records;
    records.mesh = &mesh;
    records.skeleton = true;
    records.selectedBones = {1};
    marks.place(records, {}, map, palette);
    QCOMPARE(marks.boneAt({203, 147}), 0);
    QCOMPARE(marks.boneAt({200, 100}), 1); // bone 2 lies behind it
    QCOMPARE(marks.boneAt({250, 150}), SceneMarks::None);
    QCOMPARE(marks.hotPointAt({200, 150}), SceneMarks::None);

    records.skeleton = false;
    records.hotPoints = true;
    marks.place(records, {}, map, palette);
    QCOMPARE(marks.hotPointAt({150, 100}), 0);
    QCOMPARE(marks.hotPointAt({200, 150}), 1);
    QCOMPARE(marks.boneAt({200, 150}), SceneMarks::None);
}

void tst_Sight::hostileMarks()
{
    BonePalette palette;
    SkinnedMesh mesh = chain({{0, 0, 0}, {NaN, 0, 0}, {3e38f, 3e38f, -3e38f}, {0, 0, -599}}, palette);
    for (auto &node : mesh.nodes)
        node.childNodes.push_back(0);
    mesh.nodes.resize(70); // more than the palette has
    mesh.hotPoints.resize(3);
    mesh.hotPoints[0].origin = {NaN, NaN, NaN};
    mesh.hotPoints[1].nodeId = 65535;
    mesh.hotPoints[2] = {{3e38f, -3e38f, 3e38f}, 0, 2, 0, 0};
    SceneMarks marks;
    OverlayCanvas canvas;
    MarkedRecords records;
    records.mesh = &mesh;
    records.skeleton = records.hotPoints = records.boxes = true;
    records.selectedBones = {-1, 5, 900};
    records.selectedHotPoints = {2, 3};
    marks.place(records, {}, startMap(), palette);
    marks.draw(canvas);
    for (const QPointF &pixel : {QPointF(0, 0), QPointF(200, 300), QPointF(qQNaN(), 0)})
        QVERIFY(marks.boneAt(pixel) < 4 && marks.hotPointAt(pixel) < 3);
    QCOMPARE(marks.boneAt({200, 225}), 0);
}

void tst_Sight::theNearestTriangleIsHit()
{
    // Three walls across the sight, at 0, 100 and -100; the second one stands on a bone that moves it there.
    std::vector<GLVertex> vertices;
    for (const float depth : {0.0f, 0.0f, -100.0f}) {
        const int bone = vertices.size() == 3 ? 1 : 0;
        for (const QPointF &corner : {QPointF(-500, -500), QPointF(0, 800), QPointF(500, -500)})
            vertices.push_back({{float(corner.x()), float(corner.y()), depth}, {}, {}, bone});
    }
    const BonePalette palette = [] {
        BonePalette made(2);
        made[1].translate(0.0f, 0.0f, 100.0f);
        return made;
    }();
    const Ray ray{{0, 0, -600}, {0, 0, 2}};
    const auto hit = [&](bool frontOnly, std::initializer_list<std::vector<quint16>> surfaces) {
        SurfacePicker picker(vertices, palette, ray, frontOnly);
        int number = 0;
        for (const auto &indexes : surfaces)
            picker.tryTriangles(number++, indexes);
        return qMakePair(picker.surface(), picker.surface() < 0 ? 0.0f : picker.place().z());
    };
    QCOMPARE(hit(false, {{0, 1, 2}, {3, 4, 5}}), qMakePair(0, 0.0f));
    QCOMPARE(hit(false, {{3, 4, 5}, {0, 1, 2}}), qMakePair(1, 0.0f));
    QCOMPARE(hit(false, {{3, 4, 5}}), qMakePair(0, 100.0f));
    QCOMPARE(hit(false, {{0, 1, 2}, {}, {3, 4, 5, 6, 7, 8}}), qMakePair(2, -100.0f));
    // Seen along the ray +x is on the left, so this one is counter-clockwise and the reverse clockwise.
    QCOMPARE(hit(true, {{6, 7, 8}, {2, 1, 0}}).first, 1 - hit(true, {{8, 7, 6}, {0, 1, 2}}).first);
    QCOMPARE(hit(true, {{0, 1, 2}}).first + hit(true, {{2, 1, 0}}).first, -1); // just one of them
    SurfacePicker beside(vertices, palette, {{0, 0, 600}, {0, 0, 1}}, false);
    beside.tryTriangles(0, {0, 1, 2});
    QCOMPARE(beside.surface(), SurfacePicker::None);
}

void tst_Sight::hostileTriangles()
{
    const float big = 3e38f, infinite = std::numeric_limits<float>::infinity();
    const std::vector<GLVertex> vertices{{{NaN, 0, 0}, {}, {}, 0},      {{big, -big, big}, {}, {}, 65535},
                                         {{infinite, 1, 0}, {}, {}, 3}, {{0, 0, 0}, {}, {}, 0},
                                         {{1, 0, 0}, {}, {}, 0},        {{2, 0, 0}, {}, {}, 0}};
    const BonePalette palette(2);
    SurfacePicker picker(vertices, palette, {{0.5f, 0, -5}, {0, 0, 1}}, false);
    picker.tryTriangles(0, {0, 1, 2, 3, 4, 5, 3, 3, 3, 0, 3, 4, 2, 3, 4, 3, 4});
    QCOMPARE(picker.surface(), SurfacePicker::None);
}

QTEST_APPLESS_MAIN(tst_Sight)
#include "tst_sight.moc"
