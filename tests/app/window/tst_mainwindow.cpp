// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimationFollower.h"
#include "FullDisk.h"
#include "Hand.h"
#include "KVOpenGLWidget.h"
#include "NoticeBar.h"
#include "Playback.h"
#include "RecordItem.h"
#include "SpecialFiles.h"

struct PaintCount : QObject
{
    explicit PaintCount(QObject *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int count = 0;
};

class tst_MainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        m_files.emplace();
    }

    void firstStartAsksForTheFolders()
    {
        QSettings().clear();
        MainWindow window;
        window.show();
        Hand hand({Hand::press(QMessageBox::Ok), Hand::reject});
        QTRY_COMPARE(hand.seen,
                     QStringList({"Setup Folder Paths|Please setup your folder paths before using Korvane. "
                                  "Thank you!",
                                  "Options"}));
        for (const char *key :
             {"HideMeshData", "HideAnimData", "SkinnedMeshQuickSelect", "AnimationQuickSelect",
              "StaticMeshQuickSelect", "AnimationSyncSkin", "AnimationAutoPlay"})
            QCOMPARE(QSettings().value(key), QVariant(true));
    }

    void hidingTakesEffectWithTheOptions()
    {
        ShownWindow window({m_files->save("man.skinnedmesh", triangleMan())});
        const auto *tree = find<KVTreeView>(window, "treeSkinnedMesh");
        const auto vertices = [tree] {
            return tree->findItem({RecordKind::SkinnedVertices, {}})->childCount();
        };
        const int before = vertices();
        const Hand hand({[](QDialog *dialog) {
            find<QCheckBox>(*dialog, "cbHideMeshData")->click();
            dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
        }});
        find<QAction>(window, "actionPreferences")->trigger();
        QCOMPARE(vertices(), 3 - before);
        Settings::HideMeshData.setValue(before == 0);
    }

    void editUndoSave()
    {
        const QString path = m_files->save("man.skinnedmesh", triangleMan());
        const QByteArray before = TestSupport::readFile(path);
        ShownWindow window({path});
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh"));

        select(window, "treeSkinnedMesh", {{RecordKind::Bone, {1, 0, 0}}});
        const auto *title =
            find<QWidget>(window, "pagesSkinnedMesh")->findChild<QLabel *>(QStringLiteral("lblPageTitle"));
        QCOMPARE(title->text(), QStringLiteral("Bone 1 Properties"));
        auto *parent = find<IntSpinBox>(window, "sbNodeParentNode");
        QCOMPARE(parent->value(), 255);
        typeNumber(parent, 0);
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh * "));
        auto *undo = find<QAction>(window, "actionUndo");
        QCOMPARE(undo->text(), QStringLiteral("&Undo Parent Bone Index"));

        // Ctrl+Z in the editor that was just used takes the edit back, not the keys.
        QTest::keyClick(parent, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(parent->value(), 255);
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh"));
        select(window, "treeSkinnedMesh", {{RecordKind::SkinnedMesh, {}}});
        QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(parent->value(), 0);
        QCOMPARE(title->text(), QStringLiteral("Bone 1 Properties"));

        QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh"));
        QVERIFY(TestSupport::readFile(path) != before);
        undo->trigger();
        QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(TestSupport::readFile(path), before);

        // Undo on the tool bar takes back what is typed and not ended, and redo brings it again.
        typeNumber(parent, 0);
        parent->selectAll();
        QTest::keyClicks(parent, QStringLiteral("7"));
        QTest::mouseClick(find<QToolBar>(window, "toolBarEdit")->widgetForAction(undo), Qt::LeftButton);
        QCOMPARE(parent->value(), 0);
        find<QAction>(window, "actionRedo")->trigger();
        QCOMPARE(parent->value(), 7);
        undo->trigger();
        undo->trigger();

        // What is typed and not ended is saved, too.
        select(window, "treeSkinnedMesh", {{RecordKind::SkinnedMesh, {}}});
        auto *minimum = find<QWidget>(window, "sbSMBBMinX");
        minimum->setFocus();
        auto *line = minimum->findChild<QLineEdit *>();
        line->selectAll();
        QTest::keyClicks(line, QStringLiteral("70.5"));
        QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
        SkinnedMesh saved;
        QVERIFY(!saved.read(path));
        QCOMPARE(saved.bbMin.x(), 70.5f);
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh"));
        QVERIFY(minimum->hasFocus());
    }

    void aModifiedDocumentGoesWithTheWindow()
    {
        ShownWindow window({m_files->save("man.skinnedmesh", triangleMan()),
                            m_files->save("man.anim", twoBlocks()),
                            m_files->save("box.staticmesh", wall({{"_white", {0, 1, 2}}}))});
        typeParent(window, 7);
        find<QTabWidget>(window, "tabTrees")->setCurrentIndex(1);
        select(window, "treeAnim", {{RecordKind::AnimBlock, {1}}});
        typeNumber(find<IntSpinBox>(window, "sbAnimLoopFrame"), 7);
        QVERIFY(find<QAction>(window, "actionUndo")->isEnabled());

        // What is typed and not ended, too.
        find<QTabWidget>(window, "tabWidget")->setCurrentIndex(1);
        select(window, "treeStaticMesh", {{RecordKind::StaticSurface, {0}}});
        auto *pages = find<QWidget>(window, "pagesStaticMesh");
        auto *material = find<QLineEdit>(*pages, "txtSurfaceMaterial");
        material->setFocus();
        QTest::keyClicks(material, QStringLiteral("typed"));
        QVERIFY(material->hasFocus() && material->text().contains("typed"));
    }

    void whatFailsKeepsDocumentAndFile()
    {
        const QString good = m_files->save("folder/man.skinnedmesh", triangleMan());
        const QByteArray before = TestSupport::readFile(good);
        // The name holds what a text's place holders look like.
        const QString bad = m_files->put("%1 cut.skinnedmesh", before.left(40));
        const QString rigid = m_files->put("cut.staticmesh", "xxx");
        ShownWindow window({good});
        Hand hand(QVector<Hand::Answer>(3, Hand::press(QMessageBox::Ok)));
        window.openFiles({bad, rigid});
        // A static mesh that cannot be read is dropped without a box.
        QStringList boxes("File error|Failed to open\n" + QDir::toNativeSeparators(bad));
        QCOMPARE(hand.seen, boxes);
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh"));
        const QStringList lines = consoleOf(window);
        QVERIFY(lines.filter("%1 cut.skinnedmesh").join(QString()).contains("reached end of file."));
        QVERIFY(!lines.filter("cut.staticmesh").isEmpty());
        // The console came for the other.
        QVERIFY(find<QToolButton>(window, "btnConsole")->text().startsWith(QStringLiteral("Errors: 1, ")));

        QApplication::setActiveWindow(&window); // after a box it may be nobody
        typeParent(window, 7);
        for (const bool isDiskFull : {true, false}) {
            if (isDiskFull && !FullDisk::IsPossible)
                continue;
            std::unique_ptr<FullDisk> disk;
            if (isDiskFull)
                disk = std::make_unique<FullDisk>(16);
            else
                QVERIFY(QDir(m_files->path(QStringLiteral("folder"))).removeRecursively());
            find<QAction>(window, "actionSave")->trigger();
            disk.reset();
            boxes += "File error|Failed to save\n" + QDir::toNativeSeparators(good) +
                     (isDiskFull ? QStringLiteral("|File too large") : '|' + SpecialFiles::noFolder());
            QVERIFY2(hand.seen == boxes,
                     qPrintable((hand.seen + consoleOf(window)).join('\n') + window.windowTitle()));
            QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh * "));
            QCOMPARE(TestSupport::readFile(good), isDiskFull ? before : QByteArray());
        }
        // A number that is typed and not ended goes with its window.
        auto *minimum = find<QWidget>(window, "sbNodeBBMinX");
        minimum->setFocus();
        QTest::keyClicks(minimum, QStringLiteral("7"));
    }

    void theExplorerOpensAndAsks()
    {
        const QString first = m_files->save("models/a/a.skinnedmesh", triangleMan());
        const QString second = m_files->save("models/b/b.skinnedmesh", triangleMan());
        m_files->put("models/c/c.skinnedmesh", "cut");
        m_files->put("models/c/d.skinnedmesh", "cut");
        m_files->save("anims/a/a.anim", twoBlocks());
        m_files->save("anims/other/other.anim", twoBlocks());
        Settings::SkinnedMeshExplorePath.setValue(m_files->path(QStringLiteral("models")));
        Settings::AnimationExplorePath.setValue(m_files->path(QStringLiteral("anims")));
        ShownWindow window;
        auto *tree = find<QTreeWidget>(window, "treeSkinnedMeshFolder");
        QTRY_COMPARE(tree->topLevelItemCount(), 3);
        const auto pick = [tree](int row) { tree->setCurrentItem(tree->topLevelItem(row)->child(0)); };
        pick(0);
        QTRY_COMPARE(window.windowTitle(), QStringLiteral("Korvane - a.skinnedmesh"));
        // The animation follows the mesh.
        QTRY_COMPARE(rootOf(window, "treeAnim"), QStringLiteral("a.anim"));
        QCOMPARE(playback().playState, PlayState::Playing);
        QVERIFY(playback().anim && playback().mesh);

        typeParent(window, 7);
        const QString question =
            "Unsaved changes|Would you like to save the Skinned Mesh?\n\n" + QDir::toNativeSeparators(first);
        Hand hand({Hand::press(QMessageBox::Cancel), Hand::press(QMessageBox::Yes),
                   Hand::press(QMessageBox::Ok), Hand::press(QMessageBox::Ok)});
        pick(1);
        QTRY_COMPARE(hand.seen, QStringList(question));
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - a.skinnedmesh * "));
        QCOMPARE(tree->currentItem(), tree->topLevelItem(0)->child(0));
        pick(1);
        QTRY_COMPARE(window.windowTitle(), QStringLiteral("Korvane - b.skinnedmesh"));
        QCOMPARE(hand.seen, QStringList({question, question}));
        QVERIFY(TestSupport::readFile(first) != TestSupport::readFile(second));

        // The arrow keys pass what cannot be read, and open what can be on the other side.
        tree->setFocus();
        for (const char *name : {"c", "c", "d"}) { // the folder, its files
            QTest::keyClick(tree, Qt::Key_Down);
            QTRY_COMPARE(tree->currentItem()->text(0), QLatin1String(name));
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(hand.seen.size(), 4);
        QCOMPARE(tree->selectedItems().value(0), tree->currentItem());
        pick(0);
        QTRY_COMPARE(window.windowTitle(), QStringLiteral("Korvane - a.skinnedmesh"));
    }

    void theAnimationFollowsHoweverTheMeshIsOpened()
    {
        const QString a = m_files->save("models/a/a.skinnedmesh", triangleMan());
        const QString own = m_files->save("anims/a/a.anim", twoBlocks());
        const QString b = m_files->save("models/b/b.skinnedmesh", triangleMan());
        const QString other = m_files->save("anims/other/walk.anim", twoBlocks());
        ShownWindow window;
        auto *bar = find<NoticeBar>(window, "barNoAnimation");
        auto *offer = find<QPushButton>(window, "btnOfferedAnimation");
        auto *sync = find<QAction>(window, "actionAnimSyncSkin");
        const auto animation = [&window] { return rootOf(window, "treeAnim"); };
        // From the command line, or dropped. A file without one says so, and what was open stays.
        window.openFiles({a});
        QTRY_COMPARE(animation(), QStringLiteral("a.anim"));
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - a.skinnedmesh"));
        window.openFiles({b});
        QTRY_VERIFY(bar->isVisible());
        QCOMPARE(bar->text(),
                 QStringLiteral("No animation was found for 'b.skinnedmesh'; 'a.anim' stays open."));
        QVERIFY(!offer->isVisible());
        QTest::mouseClick(find<QWidget>(*bar, "btnNoticeClose"), Qt::LeftButton);
        QVERIFY(!bar->isVisible());

        // An animation that is opened along is the wanted one, on whichever side of the mesh it is named.
        window.openFiles({other, a});
        const auto *follower = window.findChild<AnimationFollower *>();
        QVERIFY(follower->isSearching());
        QTRY_VERIFY(!follower->isSearching());
        QCOMPARE(animation(), QStringLiteral("walk.anim"));

        // By Open; several to choose from.
        m_files->save("anims/b/run.anim", twoBlocks());
        m_files->save("anims/b/walk.anim", twoBlocks());
        Hand hand({Hand::file(b)});
        find<QTabWidget>(window, "tabTrees")->setCurrentIndex(0);
        find<QAction>(window, "actionOpen")->trigger();
        QTRY_VERIFY(offer->isVisible());
        QCOMPARE(animation(), QStringLiteral("walk.anim"));
        QTimer::singleShot(0, offer->menu(), &QWidget::close);
        offer->click(); // by no mouse: the menu, and what the button does itself
        QCOMPARE(animation(), QStringLiteral("walk.anim"));
        QCOMPARE(hand.seen.size(), 1); // the dialog that Open asked with
        offer->menu()->popup(QPoint());
        QTest::keyClick(offer->menu(), Qt::Key_Down);
        QTest::keyClick(offer->menu(), Qt::Key_Return);
        QTRY_COMPARE(animation(), QStringLiteral("run.anim"));
        QVERIFY(!bar->isVisible());

        // By the list of recent files; without following it is offered where what is open does not fit.
        AnimFile longer = twoBlocks();
        longer.blocks[0].nodes.resize(3);
        sync->trigger();
        window.openFiles({m_files->save("anims/other/longer.anim", longer)});
        QTest::qWait(1); // not at once with the next
        auto *recent = find<QMenu>(window, "menuRecent");
        emit recent->aboutToShow();
        for (QAction *action : recent->actions()) {
            if (action->toolTip() == QDir::toNativeSeparators(a))
                action->trigger();
        }
        QTRY_VERIFY(offer->isVisible());
        QCOMPARE(bar->text(), QStringLiteral("'a.skinnedmesh' was opened without its animation."));
        QTest::mouseClick(offer, Qt::LeftButton);
        QCOMPARE(animation(), QStringLiteral("a.anim"));
        sync->trigger();
    }

    void acceptedOptionsFillTheExplorers()
    {
        m_files->save("models/a/a.skinnedmesh", triangleMan());
        m_files->save("anims/a/a.anim", twoBlocks());
        ShownWindow window;
        QVERIFY(find<QLabel>(window, "lblSkinnedMeshFolderEmpty")->isVisible());
        Hand hand({[](QDialog *options) {
            find<QDialogButtonBox>(*options, "buttonBox")->button(QDialogButtonBox::Ok)->click();
        }});
        find<QAction>(window, "actionPreferences")->trigger();
        for (const char *name : {"treeSkinnedMeshFolder", "treeAnimFolder"})
            QTRY_COMPARE(find<QTreeWidget>(window, name)->topLevelItemCount(), 1);
        QCOMPARE(Settings::AnimationExplorePath.value(), m_files->path(QStringLiteral("anims")));
        QCOMPARE(Settings::StaticMeshExplorePath.value(), m_files->path(QStringLiteral("models")));
    }

    void playingShowsTheFrame()
    {
        ShownWindow window(
            {m_files->save("man.skinnedmesh", triangleMan()), m_files->save("man.anim", twoBlocks())});
        auto *label = find<QLabel>(window, "lblAnimTrackFrames");
        auto *slider = find<QSlider>(window, "sliderAnimTrack");
        QCOMPARE(slider->maximum(), 10);
        QTRY_VERIFY(slider->value() > 0);

        // Another number leaves the rest of the window as it is, and has room in every font.
        PaintCount paints(find<QToolButton>(window, "btnAnimTrackStop"));
        QSignalSpy numbers(find<KVOpenGLWidget>(window, "viewSkinned"), &KVOpenGLWidget::frameLabelChanged);
        const auto areAlone = [&] {
            const int before = numbers.count();
            paints.count = 0;
            return QTest::qWaitFor([&] { return numbers.count() > before + 2; }) && paints.count == 0;
        };
        QTRY_VERIFY(areAlone());
        auto *track = find<QWidget>(window, "animTrackFrame");
        QFont large = track->font();
        large.setPointSizeF(large.pointSizeF() * 1.5);
        track->setFont(large);
        QVERIFY(label->minimumSize().expandedTo(label->sizeHint()) == label->minimumSize());

        find<QToolButton>(window, "btnAnimTrackStop")->click();
        // It may have played on to the very frame, and a slider that is not moved sets no time.
        slider->setValue(9);
        slider->setValue(4);
        QTRY_COMPARE(label->text(), QStringLiteral("Frame: 4 / 10"));
        QCOMPARE(playback().time, 0.4f);
        find<QToolButton>(window, "btnAnimTrackPose")->click();
        QTRY_COMPARE(label->text(), QStringLiteral("Initial Pose"));
        QCOMPARE(slider->value(), 0);

        // Another block starts anew; looking at the same block again does not.
        select(window, "treeAnim", {{RecordKind::AnimBlock, {1, 0, 0}}});
        QCOMPARE(playback().blockIndex, 1);
        QCOMPARE(playback().playState, PlayState::Playing);
        find<QToolButton>(window, "btnAnimTrackStop")->click();
        find<QTabWidget>(window, "tabTrees")->setCurrentIndex(1);
        typeNumber(find<IntSpinBox>(window, "sbAnimLoopFrame"), 3);
        QCOMPARE(playback().playState, PlayState::Paused);
    }

    void everyRealModelOpensAndPlays()
    {
        SKIP_WITHOUT_SHARED("gamedata");
        // Copies, since they are saved.
        const QString original = TestSupport::shared(QStringLiteral("gamedata"));
        const QString root = m_files->path();
        for (QDirIterator it(original, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
            const QString copy = root + it.next().mid(original.size());
            QDir().mkpath(QFileInfo(copy).path());
            QVERIFY(QFile::copy(it.filePath(), copy));
            QVERIFY(QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner));
        }
        Settings::GamePath.setValue(root + "/game");
        Settings::OutputDir.setValue(root + "/mod");
        Settings::BackCull.setValue(true);
        Settings::HideMeshData.setValue(false);
        Settings::HideAnimData.setValue(false);
        ShownWindow window;
        const Hand hand(QVector<Hand::Answer>(50, [](QDialog *dialog) {
            // The question about the game folder.
            for (auto *button : dialog->findChildren<QPushButton *>()) {
                if (button->text() == "&Overwrite")
                    button->click();
            }
        }));
        int opened = 0;
        for (QDirIterator it(root, {"*.skinnedmesh", "*.staticmesh"}, QDir::Files,
                             QDirIterator::Subdirectories);
             it.hasNext(); ++opened) {
            const QString path = it.next();
            window.openFiles({path});
            QCOMPARE(window.windowTitle(), "Korvane - " + QFileInfo(path).fileName());
            const bool isRigid = path.endsWith(".staticmesh");
            QVector<QPair<const char *, QString>> files{
                {isRigid ? "treeStaticMesh" : "treeSkinnedMesh", path}};
            auto *view = find<KVOpenGLWidget>(window, isRigid ? "viewStatic" : "viewSkinned");
            if (!isRigid) {
                const QString anim =
                    QString(path).replace("/models/", "/anims/").replace(".skinnedmesh", ".anim");
                files.append({"treeAnim", anim});
                window.openFiles({anim});
                const int blocks = int(playback().anim->blocks.size());
                for (int block = 0; block < blocks; ++block) {
                    select(window, "treeAnim", {{RecordKind::AnimBlock, {block, 0, 0}}});
                    playback().time = 0.1f;
                    view->grabFramebuffer();
                    QTRY_VERIFY(find<QLabel>(window, "lblAnimTrackFrames")->text().startsWith("Frame: "));
                }
            }
            view->grabFramebuffer();

            // Looking at every record changes nothing, and the files are saved as they were.
            for (const auto &[name, file] : qAsConst(files)) {
                auto *tree = find<KVTreeView>(window, name);
                int shown = 0;
                for (QTreeWidgetItemIterator item(tree); *item; ++item) {
                    // Each of the few, and some of the very many keys and vertices.
                    if ((*item)->childCount() > 0 || shown % 7 == 0)
                        tree->setCurrentItem(*item, 0, QItemSelectionModel::ClearAndSelect);
                    ++shown;
                }
                find<QTabWidget>(window, "tabTrees")->setCurrentIndex(file.endsWith(".anim") ? 1 : 0);
                QVERIFY(!find<QAction>(window, "actionUndo")->isEnabled());
                const QByteArray before = TestSupport::readFile(file);
                QVERIFY(QFile::remove(file));
                find<QAction>(window, "actionSave")->trigger();
                QVERIFY2(TestSupport::readFile(file) == before, qPrintable(file));
            }
            find<QTabWidget>(window, "tabTrees")->setCurrentIndex(0);
        }
        QCOMPARE(opened, 10);
        // One image of the barrel lies in neither folder.
        QCOMPARE(consoleOf(window),
                 QStringList("[GLMesh From Static Mesh] Failed to load texture '" + root +
                             "/mod/textures/barrel_metal.png' using blank texture instead"));
    }

    void theLayoutComesBackAndIsReset()
    {
        const auto sizes = [](MainWindow &window) {
            return find<QSplitter>(window, "splitterSkinned")->sizes();
        };
        QList<int> stored;
        {
            ShownWindow window;
            find<QSplitter>(window, "splitterSkinned")->setSizes({300, 700, 440});
            QVERIFY(!find<QDockWidget>(window, "dockServers")->isVisible());
            find<QAction>(window, "actionQueryServers")->trigger();
            find<QDockWidget>(window, "dockConsole")->show();
            stored = sizes(window);
            window.close();
        }
        {
            // What is not as it was stored is left alone, good as it may look.
            const QVariantMap good = Settings::MainWindowSplitters.value();
            QVariantMap damaged = good;
            damaged.insert("splitterSkinned", damaged.value("splitterStatic"));
            Settings::MainWindowSplitters.setValue(damaged);
            const MainWindow window;
            QVERIFY(find<QDockWidget>(window, "dockServers")->isHidden());
            Settings::MainWindowSplitters.setValue(good);
        }
        ShownWindow window;
        QCOMPARE(sizes(window), stored);
        auto *console = find<QDockWidget>(window, "dockConsole");
        auto *servers = find<QDockWidget>(window, "dockServers");
        QVERIFY(console->isVisible() && servers->isVisible());
        console->setFloating(true);
        auto *tabs = find<QTabWidget>(window, "tabWidget");
        tabs->setCurrentIndex(3);
        QVERIFY(!servers->isVisible());
        find<QAction>(window, "actionResetLayout")->trigger();
        tabs->setCurrentIndex(0);
        QVERIFY(!console->isFloating() && !console->isVisible() && !servers->isVisible());
    }

private:
    std::optional<ProgramFolder> m_files;
};

QTEST_MAIN(tst_MainWindow)
#include "tst_mainwindow.moc"
