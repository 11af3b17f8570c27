// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BoxTool.h"
#include "PointTool.h"
#include "RecordedHand.h"

using namespace RecordedHand;

/// Boxes and places that are dragged in the view, by recorded input.
class tst_DragTools : public QObject
{
    Q_OBJECT

private slots:
    void facesAreDragged();
    void placesAreDragged();
};

namespace {
/// From 500 units away 150 pixels are 500 units; a box of 100 units, turned by 90 degrees about z when it is
/// a bone's, and a place at its upper corner. Bone 7 is below the left half.
class HandleSight : public FixedSight
{
public:
    /// An orthographic picture is as large where the box and the place are.
    explicit HandleSight(bool isOrthographic = false)
    {
        if (isOrthographic)
            m_camera.setOrthographic(true, m_camera.eye() + 500.0f * m_camera.sight());
    }

    std::optional<BoxHandle> boxHandle() const override { return hasBox ? box : std::nullopt; }
    std::optional<PointHandle> pointHandle() const override { return point; }
    int boneAt(const QPoint &pixel) const override { return pixel.x() < 200 ? 7 : HitMarks::None; }
    std::optional<QMatrix4x4> boneToModel(int bone) const override
    {
        QMatrix4x4 matrix;
        matrix.translate(-100.0f, 0.0f, 0.0f);
        return bone == 7 ? std::optional<QMatrix4x4>(matrix) : std::nullopt;
    }
    ScreenMap screenMap() const override
    {
        QMatrix4x4 toEye;
        toEye.translate(0.0f, 0.0f, -500.0f);
        return {m_camera.projectionMatrix(400, 300), toEye, {400, 300}};
    }

    bool hasBox = true;
    std::optional<BoxHandle> box = BoxHandle({-50, -50, -50}, {50, 50, 50}, {});
    std::optional<PointHandle> point;

private:
    Camera m_camera;
};

/// Notes what is dragged: the numbers that changed, "drop" and "giveup".
class NotedDrags : public ViewDrags
{
public:
    void hovered(int face) override { hover = face; }
    void grabbed(Handle) override { ends += "grab "; }
    void dragged(const BoxDrag &drag) override { box = drag; }
    void dragged(const PointDrag &drag) override { point = drag; }
    void dropped() override { ends += "drop "; }
    void givenUp() override { ends += "giveup "; }

    int hover = -1;
    std::optional<BoxDrag> box;
    std::optional<PointDrag> point;
    std::string ends;
};
} // namespace

void tst_DragTools::facesAreDragged()
{
    struct Row
    {
        const char *words;
        float max; ///< of x
        const char *ends;
    };
    // The grips of x stand at 185,150 and 215,150, those of y at 200,135 and 200,165.
    for (const Row &row : {Row{"@215,150 L @230,150 l", 100.0f, "grab drop "},
                           {"@218,153 L @233,154 l", 100.0f, "grab drop "}, // it is where it was taken
                           {"@215,150 L ctrl @230,150 @219,150 l", 60.0f, "grab drop "},
                           {"@215,150 L @50,150 l", -50.0f, "grab drop "}, // not past the other one
                           {"@215,150 L @230,150 +esc l", 100.0f, "grab giveup "},
                           {"@215,150 L @230,150 cancel l", 100.0f, "grab giveup "},
                           {"@215,150 L @230,150 wide @240,150 l", 100.0f, "grab giveup "},
                           {"@215,150 L R r @230,150 l", 100.0f, "grab drop "}}) {
        for (const bool orthographic : {false, true}) {
            const HandleSight sight(orthographic);
            NotedDrags drags;
            Hand hand("", sight);
            hand.tools.box->setReceiver(&drags);
            hand.play(row.words);
            QVERIFY2(drags.box && drags.box->face == 1, row.words);
            QVERIFY2(std::fabs(drags.box->box.max.x() - row.max) < 0.1f, row.words);
            QCOMPARE(drags.box->box.min, QVector3D(-50, -50, -50));
            QVERIFY2(drags.ends == row.ends && hand.told.empty(), row.words);
            QVERIFY2(near(hand.way(), {}), row.words);
        }
    }
    // The mouse tells what it would take; all keys are the drag's, and elsewhere the camera flies.
    HandleSight sight;
    NotedDrags drags;
    Hand hand("", sight);
    hand.tools.box->setReceiver(&drags);
    hand.play("@200,136");
    QVERIFY(drags.hover == 3 && hand.tools.cursor() == ViewCursor::OpenHand && !hand.tools.takesKeys());
    hand.play("L +x +w . -w");
    QVERIFY(hand.told.empty() && hand.tools.takesKeys() && hand.tools.cursor() == ViewCursor::ClosedHand);
    hand.play("l @300,100");
    QVERIFY(drags.hover == -1 && hand.tools.cursor() == ViewCursor::Arrow && near(hand.way(), {}));
    drags.ends.clear();
    hand.play("L . 10,20 ~ l");
    QVERIFY(near(hand.way(), {10, 0, 20}) && drags.ends.empty());
    hand.play("@215,150 alt L");
    QVERIFY(drags.ends.empty() && !hand.tools.takesKeys());
    // Turned by 90 degrees, what moves to the right is the lower face of y.
    sight.box->toModel.rotate(90.0f, 0.0f, 0.0f, 1.0f);
    hand.play("l plain @215,150 L @230,150 l");
    QVERIFY(drags.box->face == 2 && std::fabs(drags.box->box.min.y() + 100.0f) < 0.1f);
    sight.hasBox = false;
    hand.play("@215,150");
    QCOMPARE(drags.hover, -1);
}

void tst_DragTools::placesAreDragged()
{
    struct Row
    {
        const char *words;
        QVector3D place;
        int bone;
        const char *ends;
    };
    // The place stands at 230,120, its bone is turned: its x goes up, its y to the left.
    for (const Row &row : {Row{"@230,120 L @245,135 l", {50, -150, 0}, 3, "grab drop "},
                           {"@232,121 L @247,136 l", {50, -150, 0}, 3, "grab drop "},
                           {"@230,120 L @245,135 +x l", {100, -150, 0}, 3, "grab drop "},
                           {"@230,120 L @245,135 +y l", {50, -100, 0}, 3, "grab drop "},
                           {"@230,120 L @245,135 +x -x +x l", {50, -100, 0}, 3, "grab drop "},
                           {"@230,120 L @245,135 +x +x +x l", {50, -150, 0}, 3, "grab drop "},
                           {"@230,120 L ctrl @244,121 l", {100, -150, 0}, 3, "grab drop "},
                           {"@230,120 L @170,120 +b l", {0, 100, 0}, 7, "grab drop "},
                           {"@230,120 L @170,120 +b -b l", {100, 100, 0}, 3, "grab drop "},
                           {"@230,120 L @245,135 +b l", {50, -150, 0}, 3, "grab drop "}, // nobody is there
                           {"@230,120 L @245,135 +x @230,120 l", {100, -100, 0}, 3, "grab drop "},
                           {"@230,120 L @245,135 wide +x l", {50, -150, 0}, 3, "grab giveup "},
                           {"@230,120 L @245,135 +esc @9,9 l", {50, -150, 0}, 3, "grab giveup "}}) {
        for (const bool orthographic : {false, true}) {
            HandleSight sight(orthographic);
            sight.hasBox = false;
            sight.point = PointHandle{{100, -100, 0}, 3, {}};
            sight.point->toModel.rotate(90.0f, 0.0f, 0.0f, 1.0f);
            NotedDrags drags;
            Hand hand("", sight);
            hand.tools.point->setReceiver(&drags);
            hand.play(row.words);
            QVERIFY2(drags.point, row.words);
            const QVector3D off = drags.point->place - row.place;
            // Beside its axis the mouse is not quite where the place is.
            QVERIFY2(off.length() < (drags.point->lock == PointDrag::Lock::Free ? 0.1f : 2.0f),
                     qPrintable(QStringLiteral("%1: %2 %3 %4")
                                    .arg(QLatin1String(row.words))
                                    .arg(double(drags.point->place.x()))
                                    .arg(double(drags.point->place.y()))
                                    .arg(double(drags.point->place.z()))));
            QVERIFY2(drags.point->bone == row.bone && drags.ends == row.ends, row.words);
        }
    }
    // What does not move keeps its number, whatever the rounding, and a click moves nothing.
    for (int place = 0; place < 24; ++place) {
        HandleSight sight;
        sight.hasBox = false;
        const QVector3D start(10.1f + 2.137f * float(place), -31.3f, 7.77f);
        sight.point = PointHandle{start, 3, {}};
        sight.point->toModel.translate(0.3f, 17.17f, 4.4f);
        sight.point->toModel.rotate(90.0f * float(place % 4), 0.0f, 0.0f, 1.0f);
        sight.point->toModel.translate(-start);
        const ScreenMap map = sight.screenMap();
        const QPoint at = map.pixel(map.toEye(sight.point->toModel.map(start))).toPoint();
        NotedDrags drags;
        Hand hand("", sight);
        hand.tools.point->setReceiver(&drags);
        const QString press = QStringLiteral("@%1,%2 L ").arg(at.x()).arg(at.y());
        hand.play(qPrintable(press + QStringLiteral("+x -x +b -b 1,1 +y l")));
        QVERIFY(!drags.point && drags.ends == "grab drop ");
        hand.play(qPrintable(press + QStringLiteral("37,11")));
        QVERIFY(drags.point->place != start && drags.point->place.z() == start.z());
        const int moved = place % 2; // on an axis of the model, then on one of its own
        for (const int axis : {moved, 0}) {
            hand.play("+x");
            QVector3D expected = start;
            expected[axis] = drags.point->place[axis];
            QVERIFY(expected != start && drags.point->place == expected);
        }
        hand.play("+x -37,-11");
        QCOMPARE(drags.point->place, start);
        hand.play("l");
    }
}

QTEST_GUILESS_MAIN(tst_DragTools)
#include "tst_dragtools.moc"
