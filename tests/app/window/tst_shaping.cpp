// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Camera.h"
#include "FloatSpinBox.h"
#include "Hand.h"
#include "IndexHint.h"
#include "KVOpenGLWidget.h"
#include "Playback.h"
#include "ScreenMap.h"
#include "Transform.h"

#include <cmath>

/// Boxes and places that are shown, fitted and dragged in the view.
class tst_Shaping : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        m_files.emplace();
        Settings::AnimationAutoPlay.setValue(false);
        Settings::HideMeshData.setValue(false);
        Settings::HideAnimData.setValue(false);
    }

    // Selected ones are bold and orange; switched off again the picture is the one from before.
    void boxesAreShownAndRemembered()
    {
        {
            open();
            const QImage plain = m_view->grabFramebuffer();
            const auto count = [this](QRgb color) {
                return countPixels(m_view->grabFramebuffer(), QColor(color));
            };
            QCOMPARE(count(BoneBox), 0);
            QTest::keyClick(m_view, Qt::Key_X);
            QVERIFY(count(BoneBox) > 100 && count(Orange) > 100); // the root is current
            select(*m_window, "treeSkinnedMesh", {{RecordKind::HotPoints, {}}});
            QVERIFY(count(ModelBox) > 100 && count(Orange) == 0);
            const int thin = count(BoneBox);
            select(*m_window, "treeSkinnedMesh", {{RecordKind::Bone, {1}}});
            QVERIFY(count(BoneBox) < thin && count(Orange) > 100);
            select(*m_window, "treeSkinnedMesh", {{RecordKind::SkinnedMesh, {}}});
            QVERIFY(count(ModelBox) == 0 && count(Orange) > 100);
            // The bone of the animation is that of the mesh.
            find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(1);
            select(*m_window, "treeAnim", {{RecordKind::AnimBone, {0, 1}}});
            QVERIFY(count(BoneBox) < thin && count(ModelBox) > 100 && count(Orange) > 100);
            select(*m_window, "treeAnim", {{RecordKind::AnimFile, {}}});
            QTest::keyClick(m_view, Qt::Key_X);
            QCOMPARE(m_view->grabFramebuffer(), plain);
            QTest::keyClick(m_view, Qt::Key_X);
            m_window.reset();
        }
        m_window = std::make_unique<ShownWindow>(QStringList{m_files->save("wall.staticmesh", [] {
            StaticMesh mesh = wall({{"_white", {0, 1, 2}}});
            mesh.bbMin = {-50, -50, -50};
            mesh.bbMax = {50, 50, 250};
            return mesh;
        }())});
        QVERIFY(find<QAction>(*m_window, "actionBoxes")->isChecked());
        auto *rigid = find<KVOpenGLWidget>(*m_window, "viewStatic");
        QTRY_VERIFY(rigid->isValid());
        QVERIFY(countPixels(rigid->grabFramebuffer(), QColor(Orange)) > 100); // its root is current
        m_view = rigid;
        lookFromFront();
        drag(pixel({50, 0, 100}), pixel({70, 0, 100}));
        const float dragged = find<FloatSpinBox>(*m_window, "sbSTBBMaxX")->value();
        QVERIFY2(std::fabs(dragged - 70.0f) < 2.0f, qPrintable(QString::number(double(dragged))));
        QVERIFY(find<QAction>(*m_window, "actionUndo")->isEnabled());
    }

    void boxesFit()
    {
        open();
        select(*m_window, "treeSkinnedMesh", {{RecordKind::Bone, {1}}});
        const QByteArray before = bytes();
        const auto *undo = find<QAction>(*m_window, "actionUndo");
        fit("actionFitSelectedBoxes");
        QCOMPARE(box(1), (QVector<float>{0, 0, 200, 0, 0, 200}));
        QCOMPARE(box(0), (QVector<float>{-10, -10, -10, 10, 10, 10}));
        QVERIFY(m_window->statusBar()->currentMessage().startsWith(QStringLiteral("Boxes changed: 1.")));
        QVERIFY2(undo->text().contains(QStringLiteral("Fit Boxes to Vertices")), qPrintable(undo->text()));
        fit("actionFitAllBoxes");
        QCOMPARE(box(0), (QVector<float>{-100, 0, 0, 100, 0, 0}));
        QVERIFY(m_window->statusBar()->currentMessage().startsWith(QStringLiteral("Boxes changed: 1.")));
        // Bone 2 has no vertices.
        QCOMPARE(box(2), (QVector<float>{1, 2, 3, 4, 5, 6}));
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("as they are: 1.")));
        // Where bone 1 rests, whatever plays.
        fit("actionFitModelBox");
        select(*m_window, "treeSkinnedMesh", {{RecordKind::SkinnedMesh, {}}});
        QCOMPARE(numbers("SM"), (QVector<float>{-100, 0, 0, 100, 0, 260}));
        fit("actionFitModelBox");
        QCOMPARE(m_window->statusBar()->currentMessage(), QStringLiteral("The model's box fits already."));
        for (int step = 0; step < 3; ++step)
            find<QAction>(*m_window, "actionUndo")->trigger();
        QVERIFY(!undo->isEnabled());
        QCOMPARE(bytes(), before);

        // Nobody knows where bones rest without an animation of theirs.
        AnimFile other = twoBlocks();
        m_window->openFiles({m_files->save("other.anim", other)});
        find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(1);
        QVERIFY(!find<QAction>(*m_window, "actionFitModelBox")->isEnabled());
        find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(0);
        fit("actionFitModelBox");
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("animation")));
        QVERIFY(!undo->isEnabled());
    }

    // A drag is the edit that the page makes of the same number.
    void facesAreDragged()
    {
        open();
        QTest::keyClick(m_view, Qt::Key_X);
        select(*m_window, "treeSkinnedMesh", {{RecordKind::Bone, {1}}});
        const QByteArray before = bytes();
        const auto *undo = find<QAction>(*m_window, "actionUndo");
        auto *number = find<FloatSpinBox>(*m_window, "sbNodeBBMaxX");
        const QPoint grip = pixel({40, 0, 200}), target = pixel({70, 0, 200});
        QTest::mouseClick(m_view, Qt::LeftButton, {}, grip); // nothing is moved, and nothing else is picked
        QVERIFY(!undo->isEnabled() && number->value() == 40.0f);
        QCOMPARE(find<KVTreeView>(*m_window, "treeSkinnedMesh")->currentRecord().kind, RecordKind::Bone);

        move(grip, {});
        QCOMPARE(m_view->cursor().shape(), Qt::OpenHandCursor);
        QVERIFY(countPixels(m_view->grabFramebuffer(), QColor(BoneBox)) > 0);
        const QVector3D eye = m_view->camera().eye();
        QTest::mousePress(m_view, Qt::LeftButton, {}, grip);
        move(target);
        // The page follows, the document does not yet; the keys of commands are the drag's.
        const float shown = number->value();
        QVERIFY2(std::fabs(shown - 70.0f) < 2.0f, qPrintable(QString::number(double(shown))));
        QVERIFY(m_window->statusBar()->currentMessage().contains(QStringLiteral("Esc")));
        QVERIFY(!number->visibleRegion().isEmpty()); // the page was scrolled to it
        QTest::keyClick(m_view, Qt::Key_X);
        QTest::keyClick(m_view, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(find<QAction>(*m_window, "actionBoxes")->isChecked() && !undo->isEnabled());
        QTest::mouseRelease(m_view, Qt::LeftButton, {}, target);
        QCOMPARE(box(1), (QVector<float>{-40, -20, 100, shown, 20, 180}));
        QVERIFY(m_view->camera().eye() == eye && undo->isEnabled());
        const QString step = undo->text();
        const QByteArray dragged = bytes();
        find<QAction>(*m_window, "actionUndo")->trigger();
        QVERIFY(!undo->isEnabled());
        QCOMPARE(bytes(), before);
        number->setFocus();
        number->selectAll();
        QTest::keyClicks(number, QString::number(double(shown), 'g', 9));
        QTest::keyClick(number, Qt::Key_Return);
        QCOMPARE(undo->text(), step);
        QCOMPARE(bytes(), dragged);
        find<QAction>(*m_window, "actionUndo")->trigger();

        // Ctrl snaps, no face passes another, and Esc gives up.
        drag(grip, target + QPoint(1, 0), Qt::ControlModifier);
        QCOMPARE(number->value(), std::round(number->value()));
        QVERIFY(std::fabs(number->value() - 70.0f) < 6.0f);
        find<QAction>(*m_window, "actionUndo")->trigger();
        drag(grip, {3, grip.y()});
        QCOMPARE(number->value(), -40.0f);
        find<QAction>(*m_window, "actionUndo")->trigger();
        QTest::mousePress(m_view, Qt::LeftButton, {}, grip);
        move(target);
        QVERIFY(number->value() != 40.0f);
        QTest::keyClick(m_view, Qt::Key_Escape);
        QVERIFY(number->value() == 40.0f && m_view->cursor().shape() != Qt::ClosedHandCursor);
        QTest::mouseRelease(m_view, Qt::LeftButton, {}, target);
        QVERIFY(!undo->isEnabled());
        QCOMPARE(bytes(), before);
        // Of several nobody could say which is meant.
        select(*m_window, "treeSkinnedMesh", {{RecordKind::Bone, {0}}, {RecordKind::Bone, {1}}});
        move(grip, {});
        QVERIFY(m_view->cursor().shape() == Qt::ArrowCursor);
    }

    // A rotation leaves such ones: the corner that is stored first is the upper one.
    void turnedBoxesKeepTheOtherFace()
    {
        SkinnedMesh mesh = boxedMan();
        std::swap(mesh.nodes[1].bbMin[0], mesh.nodes[1].bbMax[0]);
        mesh.bbMin[0] = 80;
        mesh.bbMax[0] = -80;
        open(mesh);
        QTest::keyClick(m_view, Qt::Key_X);
        select(*m_window, "treeSkinnedMesh", {{RecordKind::Bone, {1}}});
        drag(pixel({40, 0, 200}), pixel({70, 0, 200}));
        const float dragged = box(1).first();
        QVERIFY2(std::fabs(dragged - 70.0f) < 2.0f, qPrintable(QString::number(double(dragged))));
        QCOMPARE(box(1), (QVector<float>{dragged, -20, 100, -40, 20, 180}));
        drag(pixel({-40, 0, 200}), pixel({-60, 0, 200}));
        QVERIFY(box(1).first() == dragged && std::fabs(box(1).at(3) + 60.0f) < 2.0f);
        select(*m_window, "treeSkinnedMesh", {{RecordKind::SkinnedMesh, {}}});
        m_view->grabFramebuffer(); // its box goes with the picture
        drag(pixel({80, 0, 140}), pixel({60, 0, 140}));
        const float model = numbers("SM").first();
        QVERIFY2(std::fabs(model - 60.0f) < 2.0f, qPrintable(QString::number(double(model))));
        QCOMPARE(numbers("SM"), (QVector<float>{model, -30, -10, -80, 30, 290}));
    }

    void hotPointsAreDragged()
    {
        open();
        const RecordRef point{RecordKind::HotPoint, {1}};
        select(*m_window, "treeSkinnedMesh", {point});
        const QByteArray before = bytes();
        const auto *undo = find<QAction>(*m_window, "actionUndo");
        const auto place = [this] { return vector("sbHPOrigin"); };
        const auto bone = [this] { return find<IntSpinBox>(*m_window, "sbHPNodeID")->value(); };
        // On bone 1, which stands 60 above the model's origin.
        const QPoint start = pixel({30, 0, 100}), target = pixel({60, 0, 140});
        QTest::mousePress(m_view, Qt::LeftButton, {}, start);
        move(target);
        QVERIFY(isNear(place(), {60, 0, 80}) && !undo->isEnabled());
        QTest::keyClick(m_view, Qt::Key_X);
        QVERIFY(isNear(place(), {60, 0, 40}) && place().z() == 40.0f);
        QTest::keyClick(m_view, Qt::Key_Escape);
        QTest::mouseRelease(m_view, Qt::LeftButton, {}, target);
        QVERIFY(place() == QVector3D(30, 0, 40) && !undo->isEnabled());

        drag(start, target);
        QVERIFY(isNear(place(), {60, 0, 80}));
        QVERIFY2(undo->text().contains(QStringLiteral("Hot Point Origin")), qPrintable(undo->text()));
        find<QAction>(*m_window, "actionUndo")->trigger();
        QCOMPARE(bytes(), before);
        drag(start, target, Qt::ControlModifier);
        QCOMPARE(place(), QVector3D(std::round(place().x()), 0, std::round(place().z())));
        find<QAction>(*m_window, "actionUndo")->trigger();

        // Bone 0 has the vertex in the lower left corner, and takes over what is dropped there.
        const QPoint corner = pixel({-80, 0, 10});
        drag(start, corner);
        const QVector3D own = place();
        QVERIFY(isNear(own, {-80, 0, -50}) && bone() == 1);
        find<QAction>(*m_window, "actionUndo")->trigger();
        QTest::mousePress(m_view, Qt::LeftButton, {}, start);
        move(corner);
        QTest::keyPress(m_view, Qt::Key_B);
        QVERIFY(bone() == 0 && !find<QAction>(*m_window, "actionSkeleton")->isChecked());
        // Page and status bar say whose it would be.
        const QString taker = find<IndexHint>(*m_window, "hintHPNodeID")->text();
        QVERIFY2(taker.startsWith(QStringLiteral("0")), qPrintable(taker));
        QVERIFY(m_window->statusBar()->currentMessage().contains(taker));
        QTest::mouseRelease(m_view, Qt::LeftButton, {}, corner);
        QTest::keyRelease(m_view, Qt::Key_B);
        QVERIFY(bone() == 0 && m_window->statusBar()->currentMessage().isEmpty());
        QVERIFY((place() - own - QVector3D(0, 0, 60)).length() < 1e-4f);
        find<QAction>(*m_window, "actionUndo")->trigger(); // one step
        QVERIFY(!undo->isEnabled() && bone() == 1);
        QCOMPARE(bytes(), before);
        // The pose stays while it is held.
        Playback &state = playback();
        QTest::mousePress(m_view, Qt::LeftButton, {}, start);
        const float held = state.time;
        state.playState = PlayState::Playing;
        m_view->playbackChanged();
        QTest::qWait(150);
        QVERIFY(state.time == held);
        QTest::mouseRelease(m_view, Qt::LeftButton, {}, start);
        QTRY_VERIFY(state.time != held);
        state.playState = PlayState::InitialPose;
        m_view->grabFramebuffer();

        // What is pressed is gone with the model.
        QTest::mousePress(m_view, Qt::LeftButton, {}, start);
        m_window->openFiles({m_files->save("other.skinnedmesh", boxedMan())});
        select(*m_window, "treeSkinnedMesh", {point});
        move(target);
        QTest::mouseRelease(m_view, Qt::LeftButton, {}, target);
        QVERIFY(place() == QVector3D(30, 0, 40) && !undo->isEnabled());
        // What is pressed beside it has nothing to do with it.
        drag(start + QPoint(40, 40), start + QPoint(90, 40));
        QVERIFY(!undo->isEnabled());
    }

    void actionOffsetsAreDragged()
    {
        open();
        find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(1);
        select(*m_window, "treeAnim", {{RecordKind::AnimAction, {0, 0}}});
        const QByteArray before = bytes();
        const auto *undo = find<QAction>(*m_window, "actionUndo");
        const QPoint start = pixel({0, 0, 60}), target = pixel({40, 0, 90});
        QTest::mousePress(m_view, Qt::LeftButton, {}, start);
        move(target);
        QVERIFY(isNear(vector("sbAnimActionOffset"), {40, 0, 30}) && !undo->isEnabled());
        QTest::mouseRelease(m_view, Qt::LeftButton, {}, target);
        QVERIFY(isNear(vector("sbAnimActionOffset"), {40, 0, 30}));
        QVERIFY2(undo->text().contains(QStringLiteral("Key Frame Action Offset")), qPrintable(undo->text()));
        QVERIFY(bytes() != before);
        find<QAction>(*m_window, "actionUndo")->trigger();
        QVERIFY(!undo->isEnabled());
        QCOMPARE(bytes(), before);
    }

    void damageIsShown()
    {
        open();
        const QImage plain = m_view->grabFramebuffer();
        const auto legend = [this] {
            const auto *label = m_view->findChild<QLabel *>(QStringLiteral("lblDamageLegend"));
            return label ? label->text() : QString();
        };
        QVERIFY(legend().isEmpty());
        find<QAction>(*m_window, "actionDamageScale")->trigger();
        QVERIFY(legend().contains(QStringLiteral("× 10")) && legend().contains(QStringLiteral("× 1&")));
        const QPoint low = pixel({-80, 0, 10}), high = pixel({0, 0, 240});
        const auto color = [this](const QPoint &at) { return m_view->grabFramebuffer().pixelColor(at); };
        QVERIFY(color(high).red() > color(high).blue() + 80 && color(low).green() > color(low).red());
        // Edges have the colors of their bones, and nothing between them has.
        const auto reds = [this] {
            const QImage picture = m_view->grabFramebuffer();
            int count = 0;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x)
                    count += picture.pixelColor(x, y).red() > picture.pixelColor(x, y).blue() + 80 ? 1 : 0;
            }
            return count;
        };
        const int filled = reds();
        find<QAction>(*m_window, "actionWireframe")->trigger();
        const int edges = reds();
        QVERIFY2(edges > 0 && edges < filled / 2,
                 qPrintable(QStringLiteral("%1 of %2").arg(edges).arg(filled)));
        find<QAction>(*m_window, "actionShaded")->trigger();
        // Live, whatever edits it.
        select(*m_window, "treeSkinnedMesh", {{RecordKind::Bone, {1}}});
        auto *scale = find<FloatSpinBox>(*m_window, "sbNodeDamageScale");
        scale->setFocus();
        scale->selectAll();
        QTest::keyClicks(scale, QStringLiteral("0"));
        QTest::keyClick(scale, Qt::Key_Return);
        QVERIFY(!legend().contains(QStringLiteral("× 10")) && legend().contains(QStringLiteral("× 0&")));
        QVERIFY(color(high).red() < 160);
        find<QAction>(*m_window, "actionDamageImpact")->trigger();
        QVERIFY(!legend().contains(QStringLiteral("×  ")) && legend().contains(QStringLiteral("Impact")));
        QCOMPARE(Settings::ShowDamage.value(), 2);
        select(*m_window, "treeSkinnedMesh", {{RecordKind::SkinnedMesh, {}}});
        find<QAction>(*m_window, "actionDamageOff")->trigger();
        QVERIFY(legend().isEmpty());
        QCOMPARE(m_view->grabFramebuffer(), plain);
        Settings::ShowDamage.setValue(1);
        SkinnedMesh odd = boxedMan();
        odd.nodes[0].damageScale = std::numeric_limits<float>::infinity();
        odd.nodes[1].damageScale = std::numeric_limits<float>::quiet_NaN();
        open(odd);
        QVERIFY(legend().contains(QRegularExpression(QStringLiteral("× inf.*× 1&.*× nan"))));
    }

    // Files are made of boxes that fit: a fit moves them by rounding errors at most.
    void realBoxesFitAlready()
    {
        SKIP_WITHOUT_SHARED("gamedata");
        for (const QString &path : TestSupport::modelFiles("skinnedmesh")) {
            SkinnedMesh mesh;
            QVERIFY(!mesh.read(path));
            const std::vector<std::optional<Box>> boxes = boneBoxes(mesh);
            for (size_t bone = 0; bone < boxes.size(); ++bone) {
                if (!boxes[bone])
                    continue;
                const Box held = boxBetween(mesh.nodes[bone].bbMin, mesh.nodes[bone].bbMax);
                const QString where = path + QStringLiteral(" bone %1").arg(bone);
                QVERIFY2((held.min - boxes[bone]->min).length() < 0.02f, qPrintable(where));
                QVERIFY2((held.max - boxes[bone]->max).length() < 0.02f, qPrintable(where));
            }
        }
    }

private:
    static constexpr QRgb BoneBox = 0xff7fd4e8;
    static constexpr QRgb ModelBox = 0xffd7b5f0;
    static constexpr QRgb Orange = 0xffff8c00;

    /// The man with boxes that are not his, and a bone without vertices.
    static SkinnedMesh boxedMan()
    {
        SkinnedMesh mesh = triangleMan();
        mesh.nodes.resize(3);
        mesh.nodes[1].childNodes = {2};
        mesh.bbMin = {-120, -30, -10};
        mesh.bbMax = {120, 30, 290};
        mesh.nodes[0].bbMin = {-10, -10, -10};
        mesh.nodes[0].bbMax = {10, 10, 10};
        mesh.nodes[1].bbMin = {-40, -20, 100};
        mesh.nodes[1].bbMax = {40, 20, 180};
        mesh.nodes[2].bbMin = {1, 2, 3};
        mesh.nodes[2].bbMax = {4, 5, 6};
        mesh.nodes[0].damageScale = 1.0f;
        mesh.nodes[1].damageScale = 10.0f;
        mesh.nodes[2].damageScale = 1.0f;
        mesh.hotPoints.resize(2);
        mesh.hotPoints[1].origin = {30, 0, 40};
        mesh.hotPoints[1].nodeId = 1;
        return mesh;
    }

    static AnimFile standing()
    {
        AnimFile file = twoBlocks();
        for (AnimBlock &block : file.blocks)
            block.nodes.resize(3);
        file.blocks[0].nodes[1].initialPosition = {0, 0, 60};
        file.blocks[0].actions.resize(1);
        file.blocks[0].actions[0].node = 1;
        return file;
    }

    void open(const SkinnedMesh &mesh = boxedMan())
    {
        m_window.reset();
        m_window = std::make_unique<ShownWindow>(
            QStringList{m_files->save("man.skinnedmesh", mesh), m_files->save("man.anim", standing())});
        m_view = find<KVOpenGLWidget>(*m_window, "viewSkinned");
        lookFromFront();
    }
    void lookFromFront()
    {
        m_view->setFocus();
        m_view->cameraCommands().lookFrom(Camera::Side::Front);
        m_view->frameAll();
        m_view->grabFramebuffer();
    }
    /// Where a place of the model shows.
    QPoint pixel(const QVector3D &place) const
    {
        QMatrix4x4 toEye = m_view->camera().viewMatrix();
        toEye.rotate(QQuaternion::fromDirection({0.0f, 1.0f, 0.0f}, {0.0f, 0.0f, 1.0f}));
        const ScreenMap map(Camera().projectionMatrix(m_view->width(), m_view->height()), toEye,
                            m_view->size());
        return map.pixel(map.toEye(place)).toPoint();
    }
    void move(const QPoint &to, Qt::MouseButtons buttons = Qt::LeftButton, Qt::KeyboardModifiers keys = {})
    {
        QMouseEvent event(QEvent::MouseMove, to, m_view->mapToGlobal(to), Qt::NoButton, buttons, keys);
        QApplication::sendEvent(m_view, &event);
    }
    void drag(const QPoint &from, const QPoint &to, Qt::KeyboardModifiers keys = {})
    {
        QTest::mousePress(m_view, Qt::LeftButton, keys, from);
        move((from + to) / 2, Qt::LeftButton, keys);
        move(to, Qt::LeftButton, keys);
        QTest::mouseRelease(m_view, Qt::LeftButton, keys, to);
    }
    QVector3D vector(const char *fields)
    {
        QVector3D all;
        for (int axis = 0; axis < 3; ++axis)
            all[axis] =
                find<FloatSpinBox>(*m_window, (QByteArray(fields) + "XYZ"[axis]).constData())->value();
        return all;
    }
    /// Within a pixel or two, and exactly in the plane of the view.
    static bool isNear(const QVector3D &a, const QVector3D &b)
    {
        return (a - b).length() < 2.5f && a.y() == b.y();
    }
    void fit(const char *action) { find<QAction>(*m_window, action)->trigger(); }
    /// As the page shows them: minimum, then maximum.
    QVector<float> numbers(const QString &page)
    {
        QVector<float> all;
        for (const QString &corner : {QStringLiteral("Min"), QStringLiteral("Max")}) {
            for (const QChar axis : QStringLiteral("XYZ"))
                all.append(
                    find<FloatSpinBox>(
                        *m_window, qPrintable(QStringLiteral("sb%1BB%2%3").arg(page, corner, QString(axis))))
                        ->value());
        }
        return all;
    }
    QVector<float> box(int bone)
    {
        auto *tree = find<KVTreeView>(*m_window, "treeSkinnedMesh");
        const QVector<RecordRef> selected = tree->selectedRefs();
        tree->selectRecords({{RecordKind::Bone, {bone}}}, {RecordKind::Bone, {bone}});
        const QVector<float> all = numbers("Node");
        tree->selectRecords(selected, selected.last());
        return all;
    }
    /// What a save makes of the mesh.
    QByteArray bytes()
    {
        find<QAction>(*m_window, "actionSaveAll")->trigger();
        return TestSupport::readFile(m_files->path("man.skinnedmesh")) +
               TestSupport::readFile(m_files->path("man.anim"));
    }

    std::optional<ProgramFolder> m_files;
    std::unique_ptr<ShownWindow> m_window;
    KVOpenGLWidget *m_view = nullptr;
};

QTEST_MAIN(tst_Shaping)
#include "tst_shaping.moc"
