// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BrowserDock.h"
#include "FileList.h"
#include "Hand.h"
#include "OwnFolders.h"
#include "SpecialFiles.h"
#include "TestArchive.h"
#include "Thumbnails.h"

/// The window with the files of a game and a mod, and the list of these.
class tst_Browser : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        QDir(OwnFolders::cache()).removeRecursively();
        Settings::GamePath.setValue(m_folder->path("game"));
        Settings::OutputDir.setValue(m_folder->path("mod"));
        Settings::AnimationSyncSkin.setValue(false);
        m_man = m_folder->save("game/models/npc/man.skinnedmesh", triangleMan());
        m_folder->save("game/anims/npc/man.anim", twoBlocks());
        const StaticMesh walls = wall({{"materials/skins/a", {0, 1, 2}}});
        m_folder->save("game/models/wall.staticmesh", walls);
        m_wall = m_folder->save("mod/models/Wall.staticmesh", walls);
        m_folder->put("game/materials/skins.kmat",
                      "material a {\n\tsampler \"diffuse\" 0 \"textures/a.png\"\n}\n"
                      "material b {\n\tsampler \"diffuse\" 0 \"textures/b.png\"\n}\n");
        QImage picture(8, 4, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.save(m_folder->put("game/textures/a.png", {}));
        picture.save(m_folder->put("mod/textures/spare.png", {}));
        m_folder->put("mod/notes.txt", "no file of the game");
    }
    void cleanup() { m_window.reset(); }

    void listsWhatIsWanted_data()
    {
        QTest::addColumn<bool>("isArchive");
        QTest::newRow("folder") << false;
        QTest::newRow("archive") << true;
    }
    /// By what is typed, by kind, by where it is; of an archive as of a folder.
    void listsWhatIsWanted()
    {
        QFETCH(bool, isArchive);
        if (isArchive) {
            TestArchive archive;
            archive.addFolder(m_folder->path("game"));
            QVERIFY(archive.write(m_folder->path("game.kpf")));
            Settings::GamePath.setValue(m_folder->path("game.kpf"));
        }
        show();
        const QStringList all{"a.png | textures | Game",
                              "man.anim | anims/npc | Game",
                              "man.skinnedmesh | models/npc | Game",
                              "skins.kmat | materials | Game",
                              "spare.png | textures | Mod",
                              "Wall.staticmesh | models | Replaces game's",
                              "wall.staticmesh | models | Replaced by mod"};
        QTRY_COMPARE(rows(), all);
        QCOMPARE(label("lblFilesCount")->text(), QString("Files: 7"));

        line()->setFocus();
        QTest::keyClicks(line(), "NPC man");
        QTRY_COMPARE(rows(), all.mid(1, 2));
        QCOMPARE(label("lblFilesCount")->text(), QString("Files: 2 of 7"));
        QVERIFY(!Settings::BrowserOrder.exists()); // who types sets nothing
        QTest::keyClick(line(), Qt::Key_Escape);
        QCOMPARE(rows(), all);
        QVERIFY(list()->hasFocus());

        const auto click = [this](const char *kind) {
            QTest::mouseClick(find<QToolButton>(kind), Qt::LeftButton);
        };
        click("btnFilesStatic");
        click("btnFilesTextures");
        QCOMPARE(rows(), QStringList({all[0], all[4], all[5], all[6]}));
        state()->setFocus();
        QTest::keyClick(state(), Qt::Key_R); // Replace
        QCOMPARE(rows(), QStringList(all[5]));
        QTest::keyClick(state(), Qt::Key_Tab);
        QVERIFY(list()->hasFocus());
        QTest::keyClicks(list(), "x"); // goes on in the line
        QTRY_COMPARE(rows(), QStringList());
        QVERIFY(label("lblNoFiles")->isVisible());
        emit label("lblNoFiles")->linkActivated("all");
        QCOMPARE(rows(), all);
        QVERIFY(list()->isVisible() && line()->text().isEmpty());

        // By folder, and so after a new start.
        const auto orders = find<QToolButton>("btnFilesOrder")->menu()->actions();
        orders[2]->trigger();
        const QStringList byFolder{all[1], all[3], all[5], all[6], all[2], all[0], all[4]};
        QCOMPARE(rows(), byFolder);
        m_window.reset();
        show();
        QTRY_COMPARE(rows(), byFolder);

        QVERIFY(drop("man.skinnedmesh", find<QWidget>("viewSkinned")));
        QTRY_COMPARE(rootOf(*m_window, "treeSkinnedMesh"), QString("man.skinnedmesh"));
    }

    /// Each kind in its way, and nothing that is unsaved is lost.
    void opens()
    {
        show({m_man});
        QTRY_COMPARE(rows().size(), 7);
        typeParent(*m_window, 1);
        const QByteArray before = TestSupport::readFile(m_man);
        choose("man.skinnedmesh"); // is open: comes to the front as it is
        QTest::keyClick(list(), Qt::Key_Return);
        QTRY_VERIFY(find<QWidget>("viewSkinned")->hasFocus());
        QVERIFY(m_window->windowTitle().contains('*'));
        QVERIFY(QFile::copy(m_man, m_folder->path("mod/models/other.skinnedmesh")));
        QTRY_COMPARE(rows().size(), 8); // it is seen to have come
        {
            Hand hand({Hand::press(QMessageBox::Cancel)});
            choose("other.skinnedmesh");
            QTest::keyClick(list(), Qt::Key_Return);
            QTRY_COMPARE(hand.seen.size(), 1);
            QCOMPARE(rootOf(*m_window, "treeSkinnedMesh"), QString("man.skinnedmesh"));
            QCOMPARE(TestSupport::readFile(m_man), before);
        }

        const QRect row = list()->visualRect(choose("Wall.staticmesh"));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, row.center());
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, row.center());
        QTRY_COMPARE(rootOf(*m_window, "treeStaticMesh"), QString("Wall.staticmesh"));
        QTRY_COMPARE(m_window->focusWidget(), find<QWidget>("viewStatic"));
        list()->setFocus();
        QTest::keyClick(list(), Qt::Key_Escape);
        QCOMPARE(m_window->focusWidget(), find<QWidget>("viewStatic"));

        choose("spare.png");
        QTest::keyClick(list(), Qt::Key_Return);
        QWidget *popup = QApplication::activePopupWidget();
        QVERIFY(popup);
        QTRY_COMPARE(popup->accessibleDescription(), QString("8 × 4, PNG"));
        QTest::keyClick(popup, Qt::Key_Escape);
        QVERIFY(!popup->isVisible());

        choose("skins.kmat");
        QTest::keyClick(list(), Qt::Key_Return);
        QTRY_VERIFY(find<QDockWidget>("dockMaterials")->isVisible());
        QTRY_VERIFY(m_window->findChild<QTreeWidget *>("listMaterials")->topLevelItemCount() > 0);
    }

    void goesToFile()
    {
        show();
        find<QDockWidget>("dockBrowser")->close();
        Hand hand({[](QDialog *dialog) {
            auto *typed = ::find<QLineEdit>(*dialog, "lineFile");
            auto *listed = ::find<FileList>(*dialog, "listFilePalette");
            QVERIFY(QTest::qWaitForWindowActive(dialog));
            QTRY_COMPARE(listed->rows().rowCount(), 7);
            QTest::keyClicks(typed, "wal");
            QCOMPARE(listed->rows().rowCount(), 2);
            QTest::keyClick(typed, Qt::Key_Down);
            QTest::keyClick(typed, Qt::Key_Up);
            QTest::keyClick(typed, Qt::Key_Return);
        }});
        QTest::keySequence(m_window.get(), QKeySequence("Ctrl+P"));
        QCOMPARE(hand.seen, QStringList("Go to File"));
        QTRY_COMPARE(rootOf(*m_window, "treeStaticMesh"), QString("Wall.staticmesh"));
    }

    /// By what the files say that name others, which are read when that is asked for.
    void knowsWhatIsUnused()
    {
        show();
        QTRY_COMPARE(rows().size(), 7);
        state()->setFocus();
        QTest::keyClick(state(), Qt::Key_U);
        QTRY_COMPARE(rows(), QStringList("spare.png | textures | Mod, unused"));
        m_folder->put("mod/materials/more.kmat",
                      "material c {\n\tsampler \"diffuse\" 0 \"textures/spare.png\"\n}\n");
        QTRY_COMPARE(rows(), QStringList("more.kmat | materials | Mod, unused"));
        // Of other folders that is not known before they are read.
        find<BrowserDock>("dockBrowser")->setIndex(nullptr, true);
        QVERIFY(!list()->rows().isUsageKnown());
        QVERIFY(label("lblNoFiles")->text().contains("not known yet"));

        // Who names all that a file has: the model of one of its materials.
        QTest::keyClick(state(), Qt::Key_A);
        choose("skins.kmat");
        QTest::keyClick(list(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString("materials/skins/a\nmaterials/skins/b"));
        QTest::keySequence(list(), QKeySequence("Ctrl+Shift+U"));
        const auto *things = find<QComboBox>("cbUsedByThing");
        QCOMPARE(things->count(), 2);
        QCOMPARE(things->currentText(), QString("Material materials/skins/a"));
        QTRY_COMPARE(find<QTreeView>("listUses")->model()->rowCount(), 2);
    }

    void seesAnotherArchive()
    {
        const QString game = m_folder->path("game.kpf");
        for (const char *name : {"models/one.staticmesh", "models/two.staticmesh"}) {
            TestArchive archive;
            archive.add(name, "none");
            QVERIFY(archive.write(game + ".new"));
            QFile::remove(game);
            QVERIFY(QFile::rename(game + ".new", game));
            if (!m_window) {
                Settings::GamePath.setValue(game);
                show();
            }
            const QString shown = QFileInfo(name).fileName() + " | models | Game";
            QTRY_VERIFY2(rows().contains(shown), name);
            QTRY_COMPARE(rows().size(), 3);
        }
    }

    /// What comes, goes and is replaced is seen; what is current and in sight stays.
    void followsTheFolders()
    {
        for (int i = 0; i < 60; ++i)
            m_folder->put(QStringLiteral("mod/textures/t%1.png").arg(i, 2, 10, QLatin1Char('0')), "none");
        show();
        QTRY_COMPARE(rows().size(), 67);
        const QModelIndex current = choose("t30.png");
        list()->scrollTo(current, QAbstractItemView::PositionAtTop);
        const QRect place = list()->visualRect(current);
        QVERIFY(QFile::remove(m_folder->path("mod/textures/t01.png")));
        m_folder->put("mod/textures/new/t00a.png", "none");
        m_folder->put("mod/textures/new/t00b.png", "none");
        QTRY_COMPARE(rows().size(), 68);
        QCOMPARE(list()->currentIndex().data().toString(), QString("t30.png"));
        QCOMPARE(list()->visualRect(list()->currentIndex()), place);
        const QString textures = m_folder->path("mod/textures");
        SpecialFiles::withNameWithoutText(textures, [&] {
            QTRY_COMPARE(label("lblFilesCount")->text(), QString("Files: 68  (incomplete folders: 1)"));
            QVERIFY(label("lblFilesCount")->toolTip().startsWith(textures + ": "));
        });
        QTRY_COMPARE(label("lblFilesCount")->text(), QString("Files: 68"));

        Settings::GamePath.setValue({});
        Settings::OutputDir.setValue({});
        find<QAction>("actionRefreshExplorers")->trigger();
        QTRY_VERIFY(label("lblNoFiles")->text().startsWith("There are no folders"));
        Hand hand({Hand::reject});
        emit label("lblNoFiles")->linkActivated("options");
        QTRY_COMPARE(hand.seen.size(), 1);
    }

    /// Into the view a model is opened, into a field its name goes, as if it was chosen there.
    void drags()
    {
        show({m_man});
        QTRY_COMPARE(rows().size(), 7);
        auto *view = find<QWidget>("viewSkinned");
        QVERIFY(!drop("a.png", view)); // is for fields
        QVERIFY(drop("Wall.staticmesh", view));
        QTRY_COMPARE(rootOf(*m_window, "treeStaticMesh"), QString("Wall.staticmesh"));

        select(*m_window, "treeStaticMesh", {{RecordKind::StaticSurface, {0, 0, 0}}});
        auto *material = find<QWidget>("pagesStaticMesh")->findChild<QLineEdit *>("txtSurfaceMaterial");
        QTRY_VERIFY(material->isVisible());
        const QString before = material->text();
        QVERIFY(drop("skins.kmat", material));
        QTRY_VERIFY(QApplication::activePopupWidget()); // which of the two
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
        QTRY_COMPARE(material->text(), QString("materials/skins/b"));
        QVERIFY(m_window->windowTitle().contains('*'));
        QTest::keySequence(find<QWidget>("treeStaticMesh"), QKeySequence::Undo);
        QCOMPARE(material->text(), before);
        QVERIFY(!m_window->windowTitle().contains('*'));

        choose("skins.kmat");
        QTest::keyClick(list(), Qt::Key_Return);
        QTRY_VERIFY(find<QDockWidget>("dockMaterials")->isVisible());
        auto *texture = find<QLineEdit>("txtMaterialTexture");
        auto *text = find<QPlainTextEdit>("txtMaterialFile");
        QTRY_COMPARE(texture->text(), QString("textures/a.png"));
        const QString file = text->toPlainText();
        QVERIFY(drop("spare.png", texture));
        QTRY_COMPARE(texture->text(), QString("textures/spare.png"));
        QVERIFY(text->toPlainText() != file);
        texture->setFocus();
        QTest::keySequence(texture, QKeySequence::Undo);
        QTRY_COMPARE(text->toPlainText(), file);
    }

    /// Of what is in sight, and of what was damaged it is said.
    void showsPictures()
    {
        m_folder->put("mod/models/broken.staticmesh", "no model");
        show();
        const auto &pictures = find<BrowserDock>("dockBrowser")->thumbnails();
        const auto picture = [&](const QString &path) { return pictures.find(m_folder->path(path)); };
        // A busy machine takes its time to draw.
        QTRY_VERIFY_WITH_TIMEOUT(picture("mod/models/Wall.staticmesh") && picture("game/textures/a.png") &&
                                     picture("mod/models/broken.staticmesh"),
                                 60000);
        QVERIFY(!picture("mod/models/Wall.staticmesh")->picture.isNull());
        QVERIFY(picture("mod/models/broken.staticmesh")->picture.isNull());
        QVERIFY(!picture("mod/models/broken.staticmesh")->error.isEmpty());
        const QModelIndex row = choose("a.png");
        const auto redIn = [&] {
            return countPixels(list()->viewport()->grab(list()->visualRect(row)).toImage(), Qt::red);
        };
        QTRY_COMPARE(redIn(), 32);
        // Another picture of that name is seen as soon as it is there.
        QImage green(8, 4, QImage::Format_RGB32);
        green.fill(Qt::green);
        QVERIFY(QFile::remove(m_folder->path("game/textures/a.png")));
        QVERIFY(green.save(m_folder->path("game/textures/a.png")));
        QTRY_COMPARE_WITH_TIMEOUT(redIn(), 0, 60000);
    }

    /// What is drawn while its file becomes another one is drawn anew.
    void drawsAnewWhatChangesMeanwhile()
    {
        const QString path = m_folder->path("game/textures/a.png");
        Thumbnails pictures(nullptr);
        pictures.setSide(128);
        pictures.want({path});
        while (pictures.drawnCount() == 0)
            QThread::yieldCurrentThread();
        QImage green(8, 4, QImage::Format_RGB32);
        green.fill(Qt::green);
        QVERIFY(green.save(path));
        pictures.lookAgain();
        QTRY_VERIFY(pictures.find(path));
        pictures.want({path});
        QTRY_COMPARE(pictures.find(path)->picture.toImage().pixelColor(0, 0), QColor(Qt::green));
    }

private:
    /// Drags a file of the list onto a widget; false where that refuses it.
    bool drop(const char *name, QWidget *target) const
    {
        const std::unique_ptr<QMimeData> mime(list()->model()->mimeData({choose(name)}));
        const QPoint place = target->rect().center();
        QDragEnterEvent enter(place, Qt::CopyAction, mime.get(), Qt::LeftButton, {});
        QApplication::sendEvent(target, &enter);
        if (!enter.isAccepted())
            return false;
        QDropEvent event(place, Qt::CopyAction, mime.get(), Qt::LeftButton, {});
        QApplication::sendEvent(target, &event);
        return event.isAccepted();
    }
    template <typename Part>
    Part *find(const char *name) const
    {
        return ::find<Part>(*m_window, name);
    }
    void show(const QStringList &paths = {})
    {
        m_window = std::make_unique<ShownWindow>(paths);
        m_window->resize(1366, 768);
        find<QDockWidget>("dockBrowser")->show();
    }
    FileList *list() const { return find<FileList>("listFiles"); }
    QLineEdit *line() const { return find<QLineEdit>("lineFiles"); }
    QComboBox *state() const { return find<QComboBox>("cbFilesState"); }
    QLabel *label(const char *name) const { return find<QLabel>(name); }
    /// Makes a file current, and gives the list the keys.
    QModelIndex choose(const char *name) const
    {
        for (int row = 0; row < list()->rows().rowCount(); ++row) {
            const QModelIndex index = list()->rows().index(row);
            if (index.data().toString() != QLatin1String(name))
                continue;
            list()->setCurrentIndex(index);
            list()->setFocus();
            return index;
        }
        qFatal("no file %s", name);
    }
    QStringList rows() const
    {
        QStringList texts;
        for (int row = 0; row < list()->rows().rowCount(); ++row) {
            const QModelIndex index = list()->rows().index(row);
            texts << QStringList{index.data().toString(), index.data(FileRows::FolderRole).toString(),
                                 index.data(FileRows::StateRole).toString()}
                         .join(" | ");
        }
        return texts;
    }

    std::optional<ProgramFolder> m_folder;
    QString m_man, m_wall;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(tst_Browser)
#include "tst_browser.moc"
