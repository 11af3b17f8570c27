// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimationFollower.h"
#include "FloatSpinBox.h"
#include "Hand.h"
#include "KVOpenGLWidget.h"
#include "NoticeBar.h"
#include "TextureWatch.h"

#include <cmath>

/// What the View menu and its keys do to the viewports, and what clicks in these do to the trees.
class tst_ViewMenu : public QObject
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

    void displayIsRemembered()
    {
        {
            const auto window = open();
            auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
            QVERIFY(!view->findChild<QLabel *>(QStringLiteral("lblViewStatistics")));
            QTest::keyClick(view, Qt::Key_4);
            QTest::keyClick(view, Qt::Key_B);
            QTest::keyClick(view, Qt::Key_H);
            QTest::keyClick(view, Qt::Key_T);
            QTest::keyClick(view, Qt::Key_L);
            QTest::keyClick(view, Qt::Key_L); // again: back
            QVERIFY(find<QAction>(*window, "actionTextured")->isChecked());
            QTest::keyClick(view, Qt::Key_L);
            QTest::keyClick(view, Qt::Key_N);
            QTest::keyClick(view, Qt::Key_N, Qt::ShiftModifier);
            for (const char *name :
                 {"actionStatistics", "actionOrbit", "actionGround", "actionTransGizmo", "actionCullBack",
                  "actionSortTransparency", "actionSharpTexels", "actionSmoothEdges", "actionFadingGround"})
                find<QAction>(*window, name)->trigger();
            // The bars of both views show the same.
            const auto bars = window->findChildren<QComboBox *>(QStringLiteral("cbSurfSelect"));
            bars.at(0)->setFocus();
            QTest::keyClick(bars.at(0), Qt::Key_End);
            QCOMPARE(bars.at(1)->currentIndex(), 4);
            const auto speeds = window->findChildren<QSlider *>(QStringLiteral("sliderMoveSpeed"));
            speeds.at(1)->setSliderDown(true);
            for (int position = 200; position <= 250; ++position)
                speeds.at(1)->setSliderPosition(position);
            QVERIFY(QSettings().value(QStringLiteral("MouseSpeed")).toFloat() < 2.5f);
            speeds.at(1)->setSliderDown(false);
            QCOMPARE(QSettings().value(QStringLiteral("MouseSpeed")).toFloat(), 2.5f);
            QCOMPARE(speeds.at(0)->value(), 250);
            find<QSlider>(*window, "sliderBrightness")->setValue(4);
            QVERIFY(view->findChild<QLabel *>(QStringLiteral("lblViewStatistics")));
        }
        QCOMPARE(Settings::Shading.value(), 1);
        QCOMPARE(Settings::MouseSpeed.value(), 2.5f);
        QCOMPARE(Settings::Brightness.value(), 2.0f);
        QCOMPARE(Settings::SurfSelectType.value(), 4);
        const auto window = open();
        for (const char *name :
             {"actionWireframe", "actionSkeleton", "actionHotPoints", "actionStatistics", "actionOrbit",
              "actionGround", "actionTransGizmo", "actionCullBack", "actionNormals", "actionVertexNormals",
              "actionSortTransparency", "actionSharpTexels", "actionSmoothEdges", "actionFadingGround"})
            QVERIFY2(find<QAction>(*window, name)->isChecked(), name);
        QVERIFY(!find<QAction>(*window, "actionShaded")->isChecked());
        QVERIFY(!find<QAction>(*window, "actionSurfaceTint")->isChecked());
        QVERIFY(find<KVOpenGLWidget>(*window, "viewStatic")->findChild<QLabel *>());
    }

    // Letters and digits are typed elsewhere.
    void keysBelongToTheView()
    {
        const auto window = open();
        auto *filter = find<KVTreeView>(*window, "treeSkinnedMesh")->parentWidget()->findChild<QLineEdit *>();
        filter->setFocus();
        QTest::keyClicks(filter, QStringLiteral("bone 14f"));
        QCOMPARE(filter->text(), QStringLiteral("bone 14f"));
        QVERIFY(!find<QAction>(*window, "actionWireframe")->isChecked());
        auto *speed = find<FloatSpinBox>(*window, "sbAnimTrackSpeed");
        speed->setFocus();
        speed->selectAll();
        QTest::keyClicks(speed, QStringLiteral("3"));
        auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
        QCOMPARE(view->camera().yaw(), 180.0f);

        const auto yaw = [view](int key, Qt::KeyboardModifiers keys) {
            view->setFocus();
            QTest::keyClick(view, Qt::Key(key), keys);
            return view->camera().yaw();
        };
        QCOMPARE(yaw(Qt::Key_3, Qt::NoModifier), 270.0f);
        QCOMPARE(yaw(Qt::Key_3, Qt::AltModifier), 90.0f);
        QCOMPARE(yaw(Qt::Key_1, Qt::KeypadModifier), 180.0f);
        QCOMPARE(yaw(Qt::Key_1, Qt::AltModifier | Qt::KeypadModifier), 0.0f);
        QCOMPARE(yaw(Qt::Key_7, Qt::KeypadModifier), 180.0f);
        QCOMPARE(view->camera().pitch(), -89.0f);
        QCOMPARE(yaw(Qt::Key_7, Qt::AltModifier), 180.0f);
        QCOMPARE(view->camera().pitch(), 89.0f);

        // The keypad's own.
        const auto keypad = [&](int key) { return yaw(key, Qt::KeypadModifier); };
        QCOMPARE(yaw(Qt::Key_1, Qt::ControlModifier | Qt::KeypadModifier), 0.0f);
        QCOMPARE(keypad(Qt::Key_1), 180.0f);
        QCOMPARE(keypad(Qt::Key_6), 195.0f);
        keypad(Qt::Key_4);
        QCOMPARE(keypad(Qt::Key_4), 165.0f);
        keypad(Qt::Key_8);
        keypad(Qt::Key_8);
        keypad(Qt::Key_2);
        QCOMPARE(view->camera().pitch(), -15.0f);
        QVERIFY(find<QAction>(*window, "actionShaded")->isChecked());
        keypad(Qt::Key_5);
        QVERIFY(view->camera().isOrthographic());
        keypad(Qt::Key_5);
        QVERIFY(!view->camera().isOrthographic());
        const QVector3D eye = view->camera().eye();
        keypad(Qt::Key_Plus);
        QVERIFY(view->camera().eye() != eye);
        keypad(Qt::Key_Minus);
        QVERIFY((view->camera().eye() - eye).length() < 1.0f);
        view->resetCamera();
        QVERIFY(!view->camera().framed());
        keypad(Qt::Key_Period);
        QVERIFY(view->camera().framed());
        const QVector3D stands = view->camera().eye();
        speed->setFocus();
        speed->selectAll();
        for (const Qt::Key key : {Qt::Key_1, Qt::Key_Period, Qt::Key_5})
            QTest::keyClick(speed, key, Qt::KeypadModifier);
        const QString typed = speed->findChild<QLineEdit *>()->text();
        QVERIFY2(typed.contains(QStringLiteral("1.5")), qPrintable(typed));
        QCOMPARE(view->camera().eye(), stands);
    }

    void lensAndSidesAreRemembered()
    {
        for (const bool again : {false, true}) {
            const auto window = open();
            auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
            QCOMPARE(view->camera().lens(), again ? 45.0f : 90.0f);
            find<QAction>(*window, "actionLens45")->trigger();
            if (!again)
                find<QAction>(*window, "actionOrthographicSides")->trigger();
            QCOMPARE(find<KVOpenGLWidget>(*window, "viewStatic")->camera().lens(), 45.0f);
            view->setFocus();
            QTest::keyClick(view, Qt::Key_3);
            QVERIFY(view->camera().isOrthographic());
            QTest::keyClick(view, Qt::Key_6, Qt::KeypadModifier);
            QVERIFY(!view->camera().isOrthographic());
        }
    }

    // Through the native window, where the menu bar looks at the key of its own.
    void theWheelLeavesTheMenuBarAlone()
    {
        const auto window = open();
        auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
        QWindow *native = window->windowHandle();
        const QPoint centre = view->mapTo(window.get(), view->rect().center());
        for (const bool turns : {true, false}) {
            view->setFocus();
            const QVector3D eye = view->camera().eye();
            QTest::keyPress(native, Qt::Key_Alt, Qt::AltModifier);
            QWheelEvent wheel(centre, window->mapToGlobal(centre), {}, {0, 120}, Qt::NoButton,
                              Qt::AltModifier, Qt::NoScrollPhase, false);
            if (turns)
                QApplication::sendEvent(native, &wheel);
            QTest::keyRelease(native, Qt::Key_Alt);
            QCOMPARE(view->hasFocus(), turns);
            QCOMPARE(view->camera().eye() != eye, turns);
        }
    }

    void whatIsOpenedHasTheKeys()
    {
        Settings::SkinnedMeshExplorePath.setValue(m_files->path(QString()));
        const auto window = open();
        auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
        auto *tree = find<KVTreeView>(*window, "treeSkinnedMesh");
        tree->setFocus();
        window->openFiles({m_files->save("wall.staticmesh", wall({{"_white", {0, 1, 2}}}))});
        QCOMPARE(QApplication::focusWidget(), find<KVOpenGLWidget>(*window, "viewStatic"));
        window->openFiles({m_files->save("other.skinnedmesh", triangleMan())});
        QCOMPARE(QApplication::focusWidget(), view);
        tree->setFocus();
        window->openFiles({m_files->path("other.skinnedmesh")}); // again
        QVERIFY(view->hasFocus());
        tree->setFocus();
        window->openFiles({m_files->save("walk.anim", twoBlocks())});
        QVERIFY(view->hasFocus());
        // A file that stays behind does not take them whenever its tab is visited.
        auto *tabs = find<QTabWidget>(*window, "tabWidget");
        tabs->setCurrentIndex(1);
        find<KVTreeView>(*window, "treeStaticMesh")->setFocus();
        tabs->setCurrentIndex(0);
        window->openFiles({m_files->path("other.skinnedmesh"), m_files->path("wall.staticmesh")});
        QVERIFY(view->hasFocus());
        tabs->setCurrentIndex(1);
        QVERIFY(find<KVTreeView>(*window, "treeStaticMesh")->hasFocus());
        tabs->setCurrentIndex(0);

        // Whoever goes through a folder file by file goes on; one that is chosen there is left for the view.
        auto *folder = find<QTreeWidget>(*window, "treeSkinnedMeshFolder");
        find<QAction>(*window, "actionSkinnedMeshRefresh")->trigger();
        QTRY_VERIFY(!window->findChild<AnimationFollower *>()->isSearching());
        folder->setFocus();
        const auto opens = [&](Qt::Key key, const char *name) {
            QTest::keyClick(folder, key);
            return QTest::qWaitFor([&] { return window->windowTitle().contains(QLatin1String(name)); });
        };
        QVERIFY(opens(Qt::Key_M, "man"));
        QVERIFY(folder->hasFocus());
        QTRY_COMPARE(rootOf(*window, "treeAnim"), QStringLiteral("man.anim")); // follows
        QVERIFY(folder->hasFocus());
        find<QAction>(*window, "actionSkinnedMeshQuickSelect")->setChecked(false);
        QTRY_COMPARE(folder->findItems(QStringLiteral("other"), Qt::MatchExactly).size(), 1);
        folder->setCurrentItem(folder->findItems(QStringLiteral("other"), Qt::MatchExactly).first());
        QVERIFY(opens(Qt::Key_Return, "other"));
        QCOMPARE(QApplication::focusWidget(), view);
    }

    void docksComeInFront()
    {
        const auto window = open();
        for (int round = 0; round < 2; ++round) {
            for (const char *name : {"dockProblems", "dockUsedBy", "dockFind"}) {
                auto *dock = find<QDockWidget>(*window, name);
                dock->hide();
                dock->toggleViewAction()->trigger();
                QTRY_VERIFY(!dock->widget()->visibleRegion().isEmpty());
            }
        }
    }

    void modelsAreFramedWhenTheyOpen()
    {
        AnimFile high = twoBlocks();
        for (AnimBlock &block : high.blocks)
            block.nodes[0].initialPosition = {0, 0, 3000};
        const QString man = m_files->save("man.skinnedmesh", triangleMan());
        ShownWindow window({man, m_files->save("man.anim", high)});
        auto *view = find<KVOpenGLWidget>(window, "viewSkinned");
        const auto opened = [&](const QString &path) {
            window.openFiles({path});
            view->grabFramebuffer();
            return view->camera().framed();
        };
        QTRY_VERIFY(view->camera().framed());
        QVERIFY(std::fabs(view->camera().framed()->y() - 3000.0f) < 200.0f); // where it is posed
        QTest::keyClick(view, Qt::Key_C);
        find<QPushButton>(*find<NoticeBar>(window, "barReload_skinnedmesh"), "btnReload")->click();
        view->grabFramebuffer();
        QVERIFY(!view->camera().framed()); // read again
        QCOMPARE(view->camera().position(), Camera().position());
        QVERIFY(opened(man));
        auto *framing = find<QAction>(window, "actionFrameOnOpen");
        framing->trigger();
        QVERIFY(!opened(m_files->save("other.skinnedmesh", triangleMan())));
        framing->trigger();

        SkinnedMesh stray = triangleMan();
        for (int i = 0; i < 30; ++i) {
            stray.vertices.push_back({{float(i), 0, float(i % 7)}, {}, {}, 0});
            stray.surfaces[0].triangleIndexes.push_back(quint16(i + 3));
        }
        stray.vertices[5].position = {1e6f, 0, 0};
        const auto middle = opened(m_files->save("stray.skinnedmesh", stray));
        QVERIFY(middle && middle->length() < 4000.0f);
        QVERIFY(window.statusBar()->currentMessage().contains(QStringLiteral("(1)")));
    }

    void theFramedModelIsThePosedOne()
    {
        AnimFile high = twoBlocks();
        for (AnimBlock &block : high.blocks)
            block.nodes[0].initialPosition = {0, 0, 3000};
        m_files->save("man.anim", high);
        const QString man = m_files->save("man.skinnedmesh", triangleMan());
        for (const bool moves : {false, true}) {
            ShownWindow window;
            auto *view = find<KVOpenGLWidget>(window, "viewSkinned");
            window.openFiles({man});
            view->grabFramebuffer(); // before its animation comes
            QVERIFY(view->camera().framed()->y() < 200.0f);
            if (moves)
                QTest::keyClick(view, Qt::Key_3);
            const QVector3D eye = view->camera().eye();
            QTRY_COMPARE(rootOf(window, "treeAnim"), QStringLiteral("man.anim"));
            view->grabFramebuffer();
            QCOMPARE(std::fabs(view->camera().framed()->y() - 3000.0f) < 200.0f, !moves);
            QCOMPARE(view->camera().eye() == eye, moves);
        }
    }

    void texturesThatChangeShowAtOnce()
    {
        const auto paint = [this](const char *name, const QColor &color) {
            QImage image(8, 8, QImage::Format_RGB32);
            image.fill(color);
            QVERIFY(image.save(m_files->path(name)));
        };
        const auto use = [this](const QByteArray &texture) {
            QVERIFY(
                TestSupport::writeFile(m_files->path("m.kmat"),
                                       "material a {\n sampler \"diffuse\" 0 \"" + texture + "\" {\n}\n}\n"));
        };
        use("missing.png");
        ShownWindow window({m_files->save("wall.staticmesh", wall({{"m/a", {0, 1, 2}}}))});
        auto *view = find<KVOpenGLWidget>(window, "viewStatic");
        const auto shows = [view](const QColor &color) {
            return countPixels(view->grabFramebuffer(), color) > 100;
        };
        QTRY_VERIFY(shows(Qt::white));
        paint("Missing.png", Qt::red); // is there now, in another case than it is named
        QTRY_VERIFY(shows(Qt::red));
        paint("Missing.png", Qt::green);
        QTRY_VERIFY(shows(Qt::green));
        paint("other.png", Qt::yellow);
        use("other.png");
        QTRY_VERIFY(shows(Qt::yellow));
        paint("other.png", Qt::magenta);
        QTest::keyClick(&window, Qt::Key_F5);
        QVERIFY(shows(Qt::magenta)); // without waiting

        // What else happens meanwhile hides no change.
        paint("other.png", Qt::cyan);
        window.openFiles({m_files->save("man.skinnedmesh", triangleMan())});
        find<QTabWidget>(window, "tabWidget")->setCurrentIndex(1);
        QTRY_VERIFY(shows(Qt::cyan));
        // A file is read when it is whole.
        QSignalSpy reloaded(window.findChild<TextureWatch *>(), &TextureWatch::reloaded);
        for (int part = 1; part <= 10; ++part) {
            QVERIFY(TestSupport::writeFile(m_files->path("other.png"), QByteArray(part, 'x')));
            QTest::qWait(TextureWatch::RestMs / 5);
        }
        QCOMPARE(reloaded.size(), 0);
        paint("other.png", Qt::blue);
        QTRY_VERIFY(shows(Qt::blue));
        QCOMPARE(reloaded.size(), 1);
    }

    void clicksSelect()
    {
        const StaticMesh second = wall({{"_white", {}}, {"_white", {0, 1, 2}}});
        const auto window = open({m_files->save("wall.staticmesh", second)});
        auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
        auto *tree = find<KVTreeView>(*window, "treeSkinnedMesh");
        auto *tabs = find<QTabWidget>(*window, "tabTrees");
        const auto click = [](QWidget *where, const QPoint &offset) {
            QTest::mouseClick(where, Qt::LeftButton, {}, where->rect().center() + offset);
        };
        QTest::keyClick(view, Qt::Key_Home);
        view->grabFramebuffer();
        click(view, {0, 30});
        QCOMPARE(tree->currentRecord(), (RecordRef{RecordKind::SkinnedSurface, {0}}));
        QVERIFY(view->hasFocus());
        const RecordRef root{RecordKind::SkinnedMesh, {}};
        click(view, {-view->width() / 2 + 5, 0}); // the background
        QCOMPARE(tree->currentRecord().kind, RecordKind::None);
        QVERIFY(tree->selectedItems().isEmpty());

        // Bone 0 stands in the middle of its vertices.
        find<QAction>(*window, "actionSkeleton")->trigger();
        select(*window, "treeSkinnedMesh", {{RecordKind::Bone, {0}}});
        QTest::keyClick(view, Qt::Key_F);
        select(*window, "treeSkinnedMesh", {root});
        view->grabFramebuffer();
        click(view, {});
        QCOMPARE(tree->currentRecord(), (RecordRef{RecordKind::Bone, {0}}));

        // The animation stays in front, and has the bone too; it has no surfaces.
        tabs->setCurrentIndex(1);
        select(*window, "treeSkinnedMesh", {root});
        click(view, {});
        const RecordRef bone{RecordKind::AnimBone, {0, 0}};
        QCOMPARE(find<KVTreeView>(*window, "treeAnim")->currentRecord(), bone);
        find<QAction>(*window, "actionSkeleton")->trigger();
        QTest::keyClick(view, Qt::Key_Home);
        click(view, {0, 30});
        QCOMPARE(find<KVTreeView>(*window, "treeAnim")->currentRecord(), bone);
        QVERIFY(
            window->statusBar()->currentMessage().startsWith(tree->label({RecordKind::SkinnedSurface, {0}})));
        QCOMPARE(tree->currentRecord(), root);
        QCOMPARE(tabs->currentIndex(), 1);
        tabs->setCurrentIndex(0);

        // A record that the filter hides is named.
        tree->setFilter(QStringLiteral("bone 0"));
        QTest::keyClick(view, Qt::Key_Home);
        click(view, {0, 30});
        QVERIFY(window->statusBar()->currentMessage().contains(QStringLiteral("filter")));

        find<QTabWidget>(*window, "tabWidget")->setCurrentIndex(1);
        auto *rigid = find<KVOpenGLWidget>(*window, "viewStatic");
        QTRY_VERIFY(rigid->isValid());
        rigid->grabFramebuffer();
        rigid->setFocus();
        QTest::keyClick(rigid, Qt::Key_Home);
        click(rigid, {0, 30});
        QCOMPARE(find<KVTreeView>(*window, "treeStaticMesh")->currentRecord(),
                 (RecordRef{RecordKind::StaticSurface, {1}}));
    }

    void selectionIsMarkedAndFramed()
    {
        const auto window = open();
        auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
        auto *tree = find<KVTreeView>(*window, "treeSkinnedMesh");
        const auto eyeAfter = [&](Qt::Key key, QWidget *where) {
            where->setFocus();
            QTest::keyClick(where, key);
            return view->camera().eye();
        };
        const QVector3D all = eyeAfter(Qt::Key_Home, view);
        const auto framed = [&](const QVector<RecordRef> &records) {
            select(*window, "treeSkinnedMesh", records);
            return eyeAfter(Qt::Key_F, tree);
        };
        // Without anything that has a place it is the whole model.
        for (const RecordRef &record :
             {RecordRef{RecordKind::SkinnedMesh, {}}, RecordRef{RecordKind::SkinnedSurface, {1}},
              RecordRef{RecordKind::SkinnedSurface, {0}},
              RecordRef{RecordKind::SkinnedTriangleIndex, {0, 1}}})
            QVERIFY((framed({record}) - all).length() < 1.0f);
        // The view has a model's +x at -x, its y at z and its z at y.
        const QVector3D vertex = framed({{RecordKind::SkinnedVertex, {1}}});
        QVERIFY(std::fabs(vertex.x() + 100.0f) < 1.0f && std::fabs(vertex.y()) < 1.0f &&
                vertex.z() > all.z());
        const QVector3D point = framed({{RecordKind::HotPoint, {1}}});
        QVERIFY(std::fabs(point.y() - 150.0f) < 1.0f && point.z() > all.z());
        const QVector3D bone = framed({{RecordKind::Bone, {1}}}); // with the vertex at its end, 200 above it
        QVERIFY(std::fabs(bone.y() - 160.0f) < 1.0f);
        const QVector3D both = framed({{RecordKind::SkinnedVertex, {0}}, {RecordKind::SkinnedVertex, {1}}});
        QVERIFY(std::fabs(both.x()) < 1.0f && both.z() < vertex.z());

        // Selected bones are orange.
        find<QAction>(*window, "actionSkeleton")->trigger();
        QTest::keyClick(view, Qt::Key_Home);
        const auto orange = [view] { return countPixels(view->grabFramebuffer(), QColor(0xffff8c00)); };
        select(*window, "treeSkinnedMesh", {{RecordKind::SkinnedVertex, {0}}});
        QCOMPARE(orange(), 0);
        select(*window, "treeSkinnedMesh", {{RecordKind::Bone, {1}}});
        const int one = orange();
        QVERIFY(one > 0);
        select(*window, "treeSkinnedMesh", {{RecordKind::Bone, {1}}, {RecordKind::Bone, {0}}});
        QVERIFY(orange() > one);
    }

private:
    /// A window that shows the man with its skinned view in front, posed.
    std::unique_ptr<MainWindow> open(const QStringList &more = {})
    {
        SkinnedMesh mesh = triangleMan();
        mesh.surfaces.push_back({QStringLiteral("materials/m/_white"), {}});
        mesh.hotPoints.resize(2);
        mesh.hotPoints[1].origin = {0, 0, 150};
        AnimFile file = twoBlocks();
        file.blocks[0].nodes[1].initialPosition = {0, 0, 60};
        const QStringList man{m_files->save("man.skinnedmesh", mesh), m_files->save("man.anim", file)};
        auto window = std::make_unique<ShownWindow>(man + more);
        auto *view = find<KVOpenGLWidget>(*window, "viewSkinned");
        view->setFocus();
        view->grabFramebuffer();
        return window;
    }

    std::optional<ProgramFolder> m_files;
};

QTEST_MAIN(tst_ViewMenu)
#include "tst_viewmenu.moc"
