// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfExport.h"
#include "Hand.h"
#include "ImportMessages.h"
#include "KVOpenGLWidget.h"
#include "SmallGltf.h"
#include "TestArchive.h"

/// Models of other programs, in and out of the whole window.
class tst_ImportExport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        m_files.emplace();
        m_page.clear();
        Settings::ImportRotPitch.setValue(false);
    }

    void droppedFiles()
    {
        ShownWindow window;
        const auto drop = [&window](const QStringList &paths) {
            QMimeData mime;
            QList<QUrl> urls;
            for (const QString &path : paths)
                urls += QUrl::fromLocalFile(path);
            mime.setUrls(urls);
            QDragEnterEvent enter({5, 5}, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&window, &enter);
            if (!enter.isAccepted())
                return false;
            QDropEvent event({5, 5}, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(&window, &event);
            return event.isAccepted();
        };
        QVERIFY(!drop({}));
        QVERIFY(drop({m_files->save("man.skinnedmesh", triangleMan())}));
        QTRY_COMPARE(rootOf(window, "treeSkinnedMesh"), QStringLiteral("man.skinnedmesh"));

        // An archive may become the game's folder, and nothing does unasked.
        TestArchive made;
        made.add("models/a.skinnedmesh", "x");
        const QString archive = m_files->path("Game.kpf");
        QVERIFY(made.write(archive));
        const QString before = Settings::GamePath.value();
        {
            Hand hand({Hand::press(QMessageBox::No), Hand::press(QMessageBox::Yes),
                       Hand::press(QMessageBox::Ok), Hand::press(QMessageBox::Ok)});
            for (const QString &game : {before, archive, archive}) {
                const int asked = hand.seen.size();
                QVERIFY(drop({archive}));
                QTRY_VERIFY(hand.seen.size() > asked && !QApplication::activeModalWidget());
                QCOMPARE(Settings::GamePath.value(), game);
            }
            QVERIFY(hand.seen.last().contains("already"));
            QVERIFY(drop({m_files->put("broken.kpf", "x")}));
            QTRY_VERIFY(hand.seen.last().contains("It is no zip archive"));
            QCOMPARE(Settings::GamePath.value(), archive);
        }
        Settings::GamePath.setValue(before);

        // On the static tab a foreign model becomes a static mesh.
        find<QTabWidget>(window, "tabWidget")->setCurrentWidget(find<QWidget>(window, "tabStatic"));
        Hand hand({importing()});
        QVERIFY(drop({writeObj(QString("crate %1.obj"))}));
        QTRY_COMPARE_WITH_TIMEOUT(rootOf(window, "treeStaticMesh"), QString("crate %1.staticmesh"), 20000);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QCOMPARE(hand.seen, QStringList(QStringLiteral("Import model to Static Mesh")));
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - crate %1.staticmesh (never saved)"));
        QCOMPARE(rootOf(window, "treeSkinnedMesh"), QStringLiteral("man.skinnedmesh"));
    }

    void onlyAnImportThatSucceedsReplacesBothDocuments()
    {
        const QString original = m_files->save("man.skinnedmesh", triangleMan());
        ShownWindow window({original, m_files->save("man.anim", twoBlocks())});
        const QByteArray before = TestSupport::readFile(original);
        Hand hand({importing(), importing(),
                   // A model without a file asks where to: the file that was open before is left alone.
                   Hand::file(m_files->path(QStringLiteral("saved.skinnedmesh")))});
        window.openFiles({m_files->put("broken.obj", "v")});
        QCOMPARE(m_page, QStringLiteral("pageError"));
        QCOMPARE(rootOf(window, "treeSkinnedMesh"), QStringLiteral("man.skinnedmesh"));
        QCOMPARE(rootOf(window, "treeAnim"), QStringLiteral("man.anim"));

        window.openFiles({writeObj(QStringLiteral("box.obj"))});
        QCOMPARE(m_page, QStringLiteral("pageSuccess"));
        QCOMPARE(rootOf(window, "treeSkinnedMesh"), QStringLiteral("box.skinnedmesh"));
        QCOMPARE(rootOf(window, "treeAnim"), QStringLiteral("box.anim"));
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - box.skinnedmesh (never saved)"));
        trigger(window, "actionSave");
        QCOMPARE(hand.seen.size(), 3);
        QCOMPARE(TestSupport::readFile(original), before);
        SkinnedMesh saved;
        QVERIFY(!saved.read(m_files->path(QStringLiteral("saved.skinnedmesh"))));
        QCOMPARE(saved.vertices.size(), size_t(3));
        QCOMPARE(saved.surfaces.at(0).materialPath, QStringLiteral("materials/mat_box/surf_0_white"));
    }

    void whatArrivesReadyIsSeenAtOnce()
    {
        Settings::ImportReady.setValue(true);
        Settings::ImportReadyTextures.setValue(false);
        Settings::ImportReadyKMat.setValue(false);
        ShownWindow window;
        auto *view = find<KVOpenGLWidget>(window, "viewSkinned");
        Hand hand({importing()});
        // In the animation it is a thousand units away from where it rests.
        window.openFiles(
            {m_files->put("rig.gltf", SmallGltf().file({{"far", {{1, false, {{0, {100, 0, 0, 0}}}}}}}))});
        Settings::ImportReady.setValue(false);
        QCOMPARE(m_page, QStringLiteral("pageSuccess"));
        const auto shown = [view] {
            const QImage picture = view->grabFramebuffer();
            return picture.width() * picture.height() - countPixels(picture, picture.pixelColor(0, 0));
        };
        QTRY_VERIFY(shown() * 50 > view->width() * view->height());
    }

    void unsavedChangesAreAskedFor()
    {
        ShownWindow window({m_files->save("man.skinnedmesh", triangleMan())});
        typeParent(window, 7);
        QVERIFY(window.windowTitle().endsWith(QLatin1String(" * ")));
        Hand hand({Hand::press(QMessageBox::Cancel), Hand::press(QMessageBox::No), Hand::reject});
        trigger(window, "actionImport");
        QCOMPARE(hand.seen.size(), 1);
        QVERIFY(hand.seen[0].startsWith(QLatin1String("Unsaved changes|")));
        trigger(window, "actionImport");
        QCOMPARE(hand.seen.size(), 3);
        QCOMPARE(hand.seen[2], QStringLiteral("Import model to Skinned Mesh"));
        QVERIFY(window.windowTitle().endsWith(QLatin1String(" * ")));
    }

    void comesBackOverTheOpenModel()
    {
        // What another program made of an export: a vertex is elsewhere, a bone turns.
        SkinnedMesh edited = triangleMan();
        AnimFile moved = twoBlocks();
        moved.blocks[1].animId = 7;
        const AnimFile original = moved;
        edited.vertices[0].position = {-100, 0, 50};
        moved.blocks[0].setRotationCount(1);
        moved.blocks[0].nodes[1].rotationIndex = 0;
        moved.blocks[0].rotations.at(0, 5) = {0, 0.6f, 0, 0.8f};
        GltfSource source;
        source.name = QStringLiteral("man");
        ImportMessages messages;
        const QString glb =
            m_files->put("man.glb", exportGltf(edited, &moved, {0, 1}, source, messages).glb());

        const QByteArray names = R"({"bones": {"1": "head"}, "animations": {"7": "walk"}})";
        m_files->put("man.names.json", names);
        ShownWindow window(
            {m_files->save("man.skinnedmesh", triangleMan()), m_files->save("man.anim", original)});
        typeParent(window, 0); // unsaved work, which an update does not touch
        const auto *tree = find<KVTreeView>(window, "treeSkinnedMesh");
        const QVector<RecordIndex> selected = tree->selectedRecords(RecordKind::Bone);
        const auto savedPlace = [&] {
            trigger(window, "actionSave");
            SkinnedMesh saved;
            const bool failed = saved.read(m_files->path(QStringLiteral("man.skinnedmesh")));
            return failed || saved.nodes[1].parentNode != 0 ? QVector3D() : saved.vertices[0].position;
        };
        QStringList lines;
        const Hand::Answer update = [&lines](QDialog *dialog) {
            lines.clear();
            for (QTreeWidgetItemIterator it(find<QTreeWidget>(*dialog, "listChanges")); *it; ++it)
                lines += (*it)->text(0);
            QTest::keyClick(dialog, Qt::Key_Return);
        };
        const Hand::Answer importFile = [&glb](QDialog *dialog) {
            typePath(dialog, glb);
            // What comes up then is to be answered, too.
            QTimer::singleShot(0, dialog, [dialog] {
                QTest::mouseClick(find<QPushButton>(*dialog, "btnImport"), Qt::LeftButton);
            });
        };
        Hand hand({Hand::reject, update, Hand::press(QMessageBox::No), importFile, update});
        const auto *undo = find<QAction>(window, "actionUndo");
        window.openFiles({glb});
        QCOMPARE(undo->text(), QStringLiteral("&Undo Parent Bone Index"));
        window.openFiles({glb});
        QCOMPARE(hand.seen, QStringList({"Update man.skinnedmesh", "Update man.skinnedmesh"}));
        QCOMPARE(lines, QStringList({"Changed", "Vertices with other values: 1",
                                     "Animation 0 '[0]': bones that move otherwise: 1"}));
        QCOMPARE(undo->text(), QStringLiteral("&Undo Update from man.glb"));
        QCOMPARE(tree->selectedRecords(RecordKind::Bone), selected);
        QVERIFY((savedPlace() - QVector3D(-100, 0, 50)).length() < 1.0e-3f);
        QCOMPARE(TestSupport::readFile(m_files->path("man.names.json")), names); // as they were
        trigger(window, "actionUndo");
        QCOMPARE(tree->selectedRecords(RecordKind::Bone), selected);
        QVERIFY((savedPlace() - QVector3D(-100, 0, 0)).length() < 1.0e-3f);
        find<QTabWidget>(window, "tabTrees")->setCurrentIndex(1);
        QCOMPARE(undo->text(), QStringLiteral("&Undo Update from man.glb"));
        find<QTabWidget>(window, "tabTrees")->setCurrentIndex(0);

        // By the import dialog, which asks about unsaved work first, since it may bring another model.
        trigger(window, "actionImport");
        QCOMPARE(hand.seen.mid(3), QStringList({"Import model to Skinned Mesh", "Update man.skinnedmesh"}));
        QCOMPARE(lines.size(), 2);
        QVERIFY((savedPlace() - QVector3D(-100, 0, 50)).length() < 1.0e-3f);
        QCOMPARE(rootOf(window, "treeSkinnedMesh"), QStringLiteral("man.skinnedmesh"));
    }

    void theFileSaysWhichModelIsUpdated()
    {
        SkinnedMesh man = triangleMan();
        StaticMesh hut = wall({{QStringLiteral("m/m/_white"), {0, 1, 2}}});
        ShownWindow window({m_files->save("man.skinnedmesh", man), m_files->save("hut.staticmesh", hut)});
        man.vertices[0].position.setX(-90);
        hut.vertices[0].position.setX(-90);
        GltfSource source;
        ImportMessages messages;
        const QString manFile = m_files->put("man.glb", exportGltf(man, nullptr, {}, source, messages).glb());
        const QString hutFile = m_files->put("hut.glb", exportGltf(hut, source, messages).glb());
        const auto *tabs = find<QTabWidget>(window, "tabWidget");
        const auto *undo = find<QAction>(window, "actionUndo");
        QCOMPARE(tabs->currentWidget()->objectName(), QString("tabSkinned"));
        QStringList stays;
        const Hand::Answer update = [&stays](QDialog *dialog) {
            stays += find<QLabel>(*dialog, "lblUndo")->text().section(' ', 0, 0);
            find<QPushButton>(*dialog, "btnUpdate")->click();
        };
        Hand hand({update, update});
        window.openFiles({hutFile});
        QCOMPARE(tabs->currentWidget()->objectName(), QString("tabStatic"));
        QCOMPARE(undo->text(), QString("&Undo Update from hut.glb"));
        window.openFiles({manFile});
        QCOMPARE(tabs->currentWidget()->objectName(), QString("tabSkinned"));
        QCOMPARE(undo->text(), QString("&Undo Update from man.glb"));
        QCOMPARE(hand.seen, QStringList({"Update hut.staticmesh", "Update man.skinnedmesh"}));
        QCOMPARE(stays, QStringList({"Materials", "Flags,"}));
    }

    /// The animation is found and read after its mesh, which the question is already about.
    void whatArrivesWhileItIsAskedIsAskedAbout()
    {
        SkinnedMesh man = triangleMan();
        const AnimFile moves = twoBlocks();
        ShownWindow window({m_files->save("man.skinnedmesh", man)});
        const QString anim = m_files->save("walk.anim", moves);
        man.vertices[0].position.setX(-90);
        GltfSource source;
        ImportMessages messages;
        const QString glb = m_files->put("man.glb", exportGltf(man, &moves, {}, source, messages).glb());
        const auto *undo = find<QAction>(window, "actionUndo");
        const Hand::Answer animArrives = [&](QDialog *dialog) {
            QTimer::singleShot(0, dialog, [&] { window.openFiles({anim}); });
        };
        const Hand::Answer update = [](QDialog *dialog) { find<QPushButton>(*dialog, "btnUpdate")->click(); };
        Hand hand({animArrives, update});
        withinAMinute([&] { window.openFiles({glb}); });
        QCOMPARE(hand.seen, QStringList({"Update man.skinnedmesh", "Update man.skinnedmesh"}));
        QCOMPARE(rootOf(window, "treeAnim"), QString("walk.anim"));
        find<QTabWidget>(window, "tabTrees")->setCurrentIndex(0); // what arrives comes to the front
        QCOMPARE(undo->text(), QString("&Undo Update from man.glb"));
    }

    void anUpdateThatFailsSaysWhy()
    {
        const auto put = [this](const char *name, const QByteArray &text) {
            QByteArray whole = "{'asset': {'version': '2.0'}, " + text + '}';
            return m_files->put(name, whole.replace('\'', '"'));
        };
        const QString damaged = put("man.gltf", R"('extras': {'korvane': '{\'kind\':\'skinnedmesh\'}'})");
        const QString named = put("rig.gltf", "'nodes': [{'name': 'bone_000'}]");
        ShownWindow window({m_files->save("man.skinnedmesh", triangleMan())});
        const Hand::Answer escape = [](QDialog *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); };
        Hand hand({escape, Hand::clickOn("Import as New"), Hand::reject, Hand::reject});
        window.openFiles({damaged});
        QCOMPARE(hand.seen.size(), 1);
        QVERIFY2(hand.seen[0].startsWith("Update man.skinnedmesh|") && hand.seen[0].contains(damaged),
                 qPrintable(hand.seen[0]));
        window.openFiles({damaged});
        // What only has names like those of an export is not worth a word.
        window.openFiles({named});
        QCOMPARE(hand.seen.mid(2),
                 QStringList({"Import model to Skinned Mesh", "Import model to Skinned Mesh"}));
        QCOMPARE(rootOf(window, "treeSkinnedMesh"), QString("man.skinnedmesh"));
        QVERIFY(!window.windowTitle().endsWith(QLatin1String(" * ")));
    }

    void whatComesAsNewIsOfferedOnce()
    {
        GltfSource source;
        ImportMessages messages;
        const AnimFile moves = twoBlocks();
        const QString glb =
            m_files->put("man.glb", exportGltf(triangleMan(), &moves, {0}, source, messages).glb());
        Settings::ImportReadyTextures.setValue(false);
        Settings::ImportReadyKMat.setValue(false);
        ShownWindow window({m_files->save("man.skinnedmesh", triangleMan())});
        const Hand::Answer twice = [&glb](QDialog *dialog) {
            typePath(dialog, glb);
            const auto *pages = find<QStackedWidget>(*dialog, "stackPages");
            QVector<QPair<QString, const char *>> clicks{{"pageOptions", "btnImport"},
                                                         {"pageSuccess", "btnSuccessAgain"},
                                                         {"pageSuccess", "btnSuccess"}};
            // From the outer loop, so that it sees each page when that is there.
            auto *next = new QTimer(dialog);
            connect(next, &QTimer::timeout, dialog, [dialog, pages, clicks]() mutable {
                if (clicks.isEmpty() || pages->currentWidget()->objectName() != clicks[0].first)
                    return;
                QTest::mouseClick(find<QPushButton>(*dialog, clicks.takeFirst().second), Qt::LeftButton);
            });
            next->start(10);
        };
        Hand hand({twice, Hand::clickOn("Import as New"), [](QDialog *) {}}); // it is in front again
        withinAMinute([&window] { trigger(window, "actionImport"); });
        const bool isReady = Settings::ImportReady.value();
        Settings::ImportReady.setValue(false);
        QCOMPARE(hand.seen, QStringList({"Import model to Skinned Mesh", "Update man.skinnedmesh",
                                         "Import model to Skinned Mesh"}));
        QVERIFY(isReady);
        QCOMPARE(rootOf(window, "treeAnim"), QString("man.anim")); // it came, the second time too
    }

    void exportAndBack()
    {
        ShownWindow window;
        QVERIFY(QDir(m_files->path()).mkpath(QStringLiteral("out")));
        const QString out = m_files->path(QStringLiteral("out"));
        Hand hand({Hand::press(QMessageBox::Ok), importing(), Hand::file(out), Hand::file(out),
                   Hand::press(QMessageBox::No)});
        const auto showTab = [&window](const char *tab) {
            find<QTabWidget>(window, "tabWidget")->setCurrentWidget(find<QWidget>(window, tab));
        };
        // Only static meshes leave.
        trigger(window, "actionExport");
        QCOMPARE(hand.seen, QStringList(QStringLiteral("Error|No dice!")));
        showTab("tabDatabase");
        trigger(window, "actionExport");
        trigger(window, "actionImport");
        QCOMPARE(hand.seen.size(), 1);

        showTab("tabStatic");
        window.openFiles({writeObj(QStringLiteral("box.obj"))});
        QCOMPARE(m_page, QStringLiteral("pageSuccess"));
        trigger(window, "actionExport");
        QCOMPARE(hand.seen.value(2), QStringLiteral("Export To Folder"));
        QCOMPARE(Settings::StaticMeshExportPath.value(), out);
        QCOMPARE(QDir(out).entryList(QDir::Files), QStringList({QString("box.mtl"), QString("box.obj")}));
        const QString obj = out + QString("/box.obj");
        QVERIFY(TestSupport::readFile(obj).contains("vt 0.5 0.25"));

        // What stands there is not replaced unasked.
        QVERIFY(TestSupport::writeFile(obj, "mine"));
        trigger(window, "actionExport");
        QCOMPARE(hand.seen.size(), 5);
        QVERIFY(hand.seen[4].startsWith(QLatin1String("Export|These files exist already.")));
        QCOMPARE(TestSupport::readFile(obj), QByteArray("mine"));
    }

private:
    QString writeObj(const QString &name)
    {
        return m_files->put(name, "v 0 0 0\nv 2 0 0\nv 0 4 0\nvt 0.5 0.25\nf 1/1 2/1 3/1\n");
    }
    static void trigger(const MainWindow &window, const char *action)
    {
        find<QAction>(window, action)->trigger();
    }
    static void typePath(QDialog *dialog, const QString &text)
    {
        // A window that is not active yet does not notice that the field loses the keys.
        QApplication::setActiveWindow(dialog);
        auto *path = find<QLineEdit>(*dialog, "txtModelPath");
        path->setFocus();
        path->selectAll();
        QTest::keyClicks(path, text);
    }
    /// Presses Import, waits for the end, notes the page and leaves.
    Hand::Answer importing()
    {
        return [this](QDialog *dialog) {
            const Closing closing(dialog);
            auto *pages = find<QStackedWidget>(*dialog, "stackPages");
            QTest::mouseClick(find<QPushButton>(*dialog, "btnImport"), Qt::LeftButton);
            QTRY_VERIFY_WITH_TIMEOUT(pages->currentWidget()->objectName() != "pageProgress", 20000);
            m_page = pages->currentWidget()->objectName();
            QTest::keyClick(dialog, Qt::Key_Escape);
        };
    }
    /// Does what `work` does, but not for ever: what is still open after a minute is closed.
    template <typename Work>
    static void withinAMinute(Work work)
    {
        QElapsedTimer time;
        time.start();
        QTimer close;
        connect(&close, &QTimer::timeout, &close, [&time] {
            if (time.elapsed() > 60000)
                const Closing closing(qobject_cast<QDialog *>(QApplication::activeModalWidget()));
        });
        close.start(100);
        work();
    }

    std::optional<ProgramFolder> m_files;
    QString m_page;
};

QTEST_MAIN(tst_ImportExport)
#include "tst_importexport.moc"
