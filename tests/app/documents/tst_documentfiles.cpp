// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Hand.h"
#include "OneRun.h"
#include "Playback.h"
#include "Preferences.h"
#include "SampleModels.h"
#include "SpecialFiles.h"
#include "TestArchive.h"

namespace {
void enter(QDialog *dialog)
{
    QTest::keyClick(dialog, Qt::Key_Return);
}

void escape(QDialog *dialog)
{
    QTest::keyClick(dialog, Qt::Key_Escape);
}

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(path);
}
} // namespace

/// What saving asks before it writes, and where it writes then.
class tst_DocumentFiles : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        m_files.emplace();
        for (const char *folder : {"game", "mod"})
            QDir().mkpath(m_files->path(folder));
        Settings::GamePath.setValue(m_files->path("game"));
        Settings::OutputDir.setValue(m_files->path("mod"));
    }

    void theGameFolderIsAskedAbout()
    {
        const QString game = m_files->save("game/models/man.skinnedmesh", triangleMan());
        const QString mod = m_files->path("mod/models/man.skinnedmesh");
        const QByteArray before = TestSupport::readFile(game);
        const QString question = "Save|'" + shown(game) +
                                 "' belongs to the game folder.|In the mod folder it would be\n" + shown(mod);
        ShownWindow window({game});
        int parent = 5;
        const auto save = [&](const QVector<Hand::Answer> &answers, int key = Qt::Key_S) {
            typeParent(window, ++parent);
            QApplication::setActiveWindow(&window); // after a box it may be nobody
            Hand hand(answers);
            if (key)
                QTest::keyClick(&window, Qt::Key(key), Qt::ControlModifier);
            else
                find<QAction>(window, "actionSaveToMod")->trigger();
            return hand.seen;
        };
        const auto path = [&window] { return find<QLabel>(window, "lblDocumentPath")->toolTip(); };

        QCOMPARE(save({escape}), QStringList(question));
        QVERIFY(window.windowTitle().endsWith(" * ") && !QFileInfo::exists(mod));
        QCOMPARE(path(), shown(game));
        // Without a mod folder Enter takes nothing.
        const QString modFolder = Settings::OutputDir.value();
        Settings::OutputDir.setValue(QString());
        QCOMPARE(save({enter}).size(), 1);
        QVERIFY(window.windowTitle().endsWith(" * ") && TestSupport::readFile(game) == before);
        Settings::OutputDir.setValue(modFolder);
        // The mod folder is what Enter takes; from then on the document is there.
        QCOMPARE(save({enter}), QStringList(question));
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - man.skinnedmesh"));
        QCOMPARE(path(), shown(mod));
        QCOMPARE(find<QTabWidget>(window, "tabTrees")->tabToolTip(0), shown(mod));
        QCOMPARE(find<QTabWidget>(window, "tabWidget")->tabToolTip(0),
                 "Characters and their animations\n" + shown(mod));
        QCOMPARE(find<QTabWidget>(window, "tabWidget")->tabToolTip(1), QString("Models without bones"));
        QCOMPARE(save({}), QStringList());
        const QByteArray saved = TestSupport::readFile(mod);
        QVERIFY(saved != before && TestSupport::readFile(game) == before);

        // What the mod has is not replaced unasked.
        const QString replace = "Save|'" + shown(mod) + "' exists already. Replace it?";
        window.openFiles({game});
        QCOMPARE(save({enter}, 0), QStringList(replace)); // No
        QCOMPARE(save({enter, escape}), QStringList({question, replace}));
        QCOMPARE(TestSupport::readFile(mod), saved);
        QCOMPARE(save({Hand::clickOn("Yes")}, 0), QStringList(replace));
        QVERIFY(TestSupport::readFile(mod) != saved);

        // One that is overwritten is asked about once, also by another way that leads there.
        const QString link = m_files->path("mod/link.skinnedmesh");
        if (!SpecialFiles::link(game, link))
            return;
        window.openFiles({link});
        QCOMPARE(path(), shown(link));
        QCOMPARE(save({Hand::clickOn("Overwrite")}).size(), 1);
        QVERIFY(TestSupport::readFile(game) != before && QFileInfo(link).isSymLink());
        window.openFiles({game});
        QCOMPARE(save({}), QStringList());
    }

    /// What is opened from the game's archive is the game's: it goes into the mod folder, never back.
    void theArchiveIsNeverWritten()
    {
        TestArchive made;
        made.add("models/Man.skinnedmesh",
                 TestSupport::readFile(m_files->save("man.skinnedmesh", triangleMan())));
        const QString archive = m_files->path("game.kpf");
        QVERIFY(made.write(archive));
        const QByteArray before = TestSupport::readFile(archive);
        const QString game = archive + "/models/Man.skinnedmesh";
        const QString mod = m_files->path("mod/models/Man.skinnedmesh");
        Settings::GamePath.setValue(archive);
        ShownWindow window({game});
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - Man.skinnedmesh (game.kpf)"));
        QCOMPARE(find<QLabel>(window, "lblDocumentPath")->toolTip(), shown(game));
        const QString asks = "Save|'" + shown(game) + "' stands in an archive, which is never written.|";
        int parent = 5;
        const auto save = [&](const Hand::Answer &answer) {
            typeParent(window, ++parent);
            QApplication::setActiveWindow(&window); // after a box it may be nobody
            Hand hand({answer});
            QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
            return hand.seen;
        };
        // Without a mod folder there is nothing but to give up. The start has looked for one before.
        window.findChild<Preferences *>()->OnStartSetupPaths();
        Settings::OutputDir.setValue(QString());
        QCOMPARE(save(enter).value(0).section('|', 0, 1) + '|', asks);
        Settings::OutputDir.setValue(m_files->path("mod"));
        QCOMPARE(save(escape), QStringList(asks + "In the mod folder it would be\n" + shown(mod)));
        QVERIFY(window.windowTitle().endsWith(" * ") && !QFileInfo::exists(mod));
        save([](QDialog *box) {
            for (const auto *button : box->findChildren<QPushButton *>())
                QVERIFY(!button->text().contains("verwrite"));
            enter(box);
        });
        QCOMPARE(window.windowTitle(), QStringLiteral("Korvane - Man.skinnedmesh"));
        QVERIFY(!TestSupport::readFile(mod).isEmpty());
        QCOMPARE(TestSupport::readFile(archive), before);
        // The list of recent files leads back into the archive.
        auto *recent = find<QMenu>(window, "menuRecent");
        emit recent->aboutToShow();
        const auto actions = recent->actions();
        const auto entry = std::find_if(actions.begin(), actions.end(),
                                        [&](const QAction *each) { return each->toolTip() == shown(game); });
        QVERIFY(entry != actions.end() && (*entry)->isEnabled());
        (*entry)->trigger();
        QTRY_COMPARE(window.windowTitle(), QStringLiteral("Korvane - Man.skinnedmesh (game.kpf)"));
    }

    void aLinkToNowhereLeadsIntoTheGameFolder()
    {
        const QString game = m_files->save("game/models/man.skinnedmesh", triangleMan());
        const QString other = m_files->path("game/models/other.skinnedmesh");
        const QString link = m_files->path("mod/link.skinnedmesh");
        QVERIFY(QFile::link(m_files->path("mod/chain.skinnedmesh"), link));
        QVERIFY(QFile::link("../game/models/other.skinnedmesh", m_files->path("mod/chain.skinnedmesh")));
        OneRun run(m_files->path("recovery"));
        run.openMesh(game);
        run.edit(5);
        {
            Hand hand({Hand::file(link), escape});
            QVERIFY(run.files.saveAs(DocumentType::SkinnedMesh));
            QVERIFY2(hand.seen[1].contains("belongs to the game folder"), qPrintable(hand.seen.join('\n')));
            QVERIFY(!QFileInfo::exists(other));
        }
        // One in the very place of the mod folder leaves no other way than over the original.
        QVERIFY(QDir().mkpath(m_files->path("mod/models")));
        QVERIFY(QFile::link(game, m_files->path("mod/models/man.skinnedmesh")));
        const QByteArray before = TestSupport::readFile(game);
        Hand hand({escape, enter, Hand::clickOn("Overwrite")});
        QVERIFY(run.files.saveToMod(DocumentType::SkinnedMesh));
        QVERIFY(run.files.save(DocumentType::SkinnedMesh));
        QCOMPARE(TestSupport::readFile(game), before);
        QVERIFY(hand.seen[0].contains("leads back") && hand.seen[1].contains("leads back"));
        QVERIFY(!run.files.saveToMod(DocumentType::SkinnedMesh));
        QVERIFY(TestSupport::readFile(game) != before);
    }

    void aLinkedFolderLeadsIntoTheGameFolder()
    {
        const QString game = m_files->save("game/models/sub/man.skinnedmesh", triangleMan());
        const QString other = m_files->path("game/other");
        QVERIFY(QDir().mkpath(other) && QFile::link(other, m_files->path("mod/models")));
        OneRun run(m_files->path("recovery"));
        run.openMesh(game);
        run.edit(5);
        const auto isEmpty = [&other] { return QDir(other).isEmpty(); };
        bool wasEmpty = false;
        const auto look = [&](QDialog *dialog) {
            wasEmpty = isEmpty();
            dialog->reject();
        };
        Hand hand({escape, look, Hand::clickOn("Overwrite")});
        QVERIFY(run.files.saveToMod(DocumentType::SkinnedMesh));
        QVERIFY2(hand.seen.value(0).contains("leads back"), qPrintable(hand.seen.join('\n')));
        QVERIFY(isEmpty());
        QVERIFY(run.files.saveAs(DocumentType::SkinnedMesh));
        QVERIFY(wasEmpty && isEmpty());
        // Who wants it there has the folders made, too.
        QVERIFY(!run.files.saveToMod(DocumentType::SkinnedMesh));
        QVERIFY(QFileInfo::exists(other + "/sub/man.skinnedmesh"));
    }

    void saveAsStartsInTheModFolder()
    {
        OneRun run(m_files->path("recovery"));
        run.openMesh(m_files->save("game/models/deep/man.skinnedmesh", triangleMan()));
        const QString folder = m_files->path("mod/models/deep");
        const auto look = [&folder](QDialog *dialog) {
            QCOMPARE(static_cast<QFileDialog *>(dialog)->directory().path(), folder);
            dialog->reject();
        };
        const QString above = m_files->path("mod/props/box.skinnedmesh");
        Hand hand({look, Hand::file(folder + "/man.skinnedmesh"), Hand::file(above)});
        QVERIFY(run.files.saveAs(DocumentType::SkinnedMesh));
        QVERIFY(!QFileInfo::exists(m_files->path("mod/models")));
        QVERIFY(!run.files.saveAs(DocumentType::SkinnedMesh));
        QCOMPARE(run.mesh.path(), folder + "/man.skinnedmesh");

        // One folder up from where the dialog begins, which is made for it too.
        run.openMesh(m_files->save("game/props/deep/box.skinnedmesh", triangleMan()));
        QVERIFY(!run.files.saveAs(DocumentType::SkinnedMesh));
        QVERIFY(QFileInfo::exists(above) && !QFileInfo::exists(m_files->path("mod/props/deep")));
    }

    void aCompletedNameReplacesNothingUnasked()
    {
        OneRun run(m_files->path("recovery"));
        run.openMesh(m_files->save("mod/n.skinnedmesh", triangleMan()));
        const QString there = m_files->put("mod/n2.v2.skinnedmesh", "old");
        const QString typed = m_files->path("mod/n2.v2");
        Hand hand({Hand::file(typed), enter, Hand::reject, Hand::file(typed), Hand::clickOn("Yes")});
        QVERIFY(run.files.saveAs(DocumentType::SkinnedMesh));
        QCOMPARE(TestSupport::readFile(there), QByteArray("old"));
        QVERIFY(!run.files.saveAs(DocumentType::SkinnedMesh));
        QCOMPARE(run.mesh.path(), there);
        QVERIFY(!QFileInfo::exists(typed));
        QCOMPARE(hand.seen.size(), 5);
    }

    void saveAllGoesOnAndTellsAllAtTheEnd()
    {
        OneRun run(m_files->path("recovery"));
        const QStringList paths{m_files->save("mod/a/x.skinnedmesh", triangleMan()),
                                m_files->save("mod/b/x.anim", twoBlocks()),
                                m_files->save("mod/c/x.staticmesh", SampleModels::plainStatic())};
        QString reason;
        run.openMesh(paths[0]);
        QVERIFY(!run.anim.open(paths[1], &reason) && !run.rigid.open(paths[2], &reason));
        for (Document *document : {static_cast<Document *>(&run.mesh), static_cast<Document *>(&run.anim),
                                   static_cast<Document *>(&run.rigid)})
            document->keepModel();
        for (const char *gone : {"mod/a", "mod/c"})
            QVERIFY(QDir(m_files->path(gone)).removeRecursively());
        Hand hand({enter});
        run.files.saveAll();
        QCOMPARE(hand.seen, QStringList("File error|Failed to save\n" + shown(paths[0]) + '\n' +
                                        shown(paths[2]) + "|x.skinnedmesh: " + SpecialFiles::noFolder() +
                                        "\nx.staticmesh: " + SpecialFiles::noFolder()));
        QVERIFY(run.mesh.isModified() && !run.anim.isModified() && run.rigid.isModified());
    }

    void whateverDiffersFromItsFileIsAskedFor()
    {
        OneRun run(m_files->path("recovery"));
        const auto asked = [&run](DocumentType type) {
            Hand hand({escape});
            const bool goesOn = run.files.promptUnsaved(type);
            return hand.seen.size() == 1 && !goesOn;
        };
        // An import; the animation file without animations that comes with it holds nothing.
        run.mesh.take(triangleMan(), "box");
        run.anim.take(AnimFile(), "box");
        QVERIFY(asked(DocumentType::SkinnedMesh) && !asked(DocumentType::Anim));
        // A count that was changed.
        QString reason;
        QVERIFY(!run.anim.open(m_files->save("mod/x.anim", twoBlocks()), &reason));
        QVERIFY(!asked(DocumentType::Anim));
        run.anim.changedDirectly({});
        QVERIFY(!run.anim.isModified() && asked(DocumentType::Anim));
    }

    void namesGoWithTheMesh()
    {
        OneRun run(m_files->path("recovery"));
        const auto nameOf = [&run] { return run.mesh.model().nodes[1].name; };
        const auto rename = [&run](const char *name) {
            run.mesh.undoStack()->push(new UC_SkinnedMeshNodeName(run.mesh.editTarget(), {1}, QString(name)));
        };
        const QString names = m_files->path("mod/man.names.json");
        const QString path = m_files->save("mod/man.skinnedmesh", triangleMan());
        run.openMesh(path);
        QVERIFY(!run.files.save(DocumentType::SkinnedMesh));
        QVERIFY(!QFileInfo::exists(names)); // nothing has a name
        m_files->put("mod/man.names.json", R"({"bones":{"1":"head","7":"gone"},"animations":{"5":"walk"}})");
        const QByteArray byHand = TestSupport::readFile(names);
        run.openMesh(path);
        QCOMPARE(nameOf(), QString("head"));
        run.edit(3);
        QVERIFY(!run.files.save(DocumentType::SkinnedMesh));
        QCOMPARE(TestSupport::readFile(names), byHand);

        // What is kept of unsaved work has them, and a file that it never had gets them.
        rename("skull");
        const std::vector<uchar> kept = run.mesh.drafter()();
        const QByteArray draft(reinterpret_cast<const char *>(kept.data()), int(kept.size()));
        run.openMesh(path);
        QVERIFY(!run.mesh.restore(draft, path, {}, run.mesh.fileStamp()));
        QVERIFY(nameOf() == "skull" && run.mesh.model().bytesBehind == 0);
        QVERIFY(!run.files.save(DocumentType::SkinnedMesh));
        ModelNames saved;
        QVERIFY(!saved.read(names) && saved.bones.value(1) == "skull" && saved.animations.value(5) == "walk");
        run.mesh.undoStack()->setClean();

        // An import brings names along. Another model's are asked about, and those that another program
        // wrote.
        const QString other = m_files->put("mod/other.names.json", R"({"bones":{"0":"tail"}})");
        const QByteArray tail = TestSupport::readFile(other);
        const auto saveAs = [&](const char *file, const QVector<Hand::Answer> &answers) {
            Hand hand(QVector<Hand::Answer>{Hand::file(m_files->path(file))} + answers);
            run.mesh.take(SkinnedMesh(run.mesh.model()), QStringLiteral("imported"));
            run.files.saveAs(DocumentType::SkinnedMesh);
            return hand.seen.mid(1);
        };
        const QStringList question("Save|'" + shown(other) + "' exists already. Replace it?");
        QCOMPARE(saveAs("mod/other.skinnedmesh", {enter}), question);
        QVERIFY(TestSupport::readFile(other) == tail &&
                !QFileInfo::exists(m_files->path("mod/other.skinnedmesh")));
        QCOMPARE(saveAs("mod/other.skinnedmesh", {Hand::clickOn("Yes")}), question);
        QVERIFY(!saved.read(other) && saved.bones.value(1) == "skull");
        QCOMPARE(saveAs("mod/new.skinnedmesh", {}), QStringList());
        QVERIFY(!saved.read(m_files->path("mod/new.names.json")) && saved.bones.value(1) == "skull");
        rename("");
        m_files->put("mod/new.names.json", "{");
        {
            Hand hand({enter});
            QVERIFY(run.files.save(DocumentType::SkinnedMesh));
            QCOMPARE(hand.seen.size(), 1);
        }
        // A file that cannot be read is no hindrance.
        run.openMesh(m_files->path("mod/new.skinnedmesh"));
        QVERIFY(nameOf().isEmpty());
        // Names of another model do not stick to one that has none.
        QVERIFY(QFile::remove(m_files->path("mod/other.skinnedmesh")));
        QCOMPARE(saveAs("mod/other.skinnedmesh", {Hand::clickOn("Yes")}), question);
        QVERIFY(!saved.read(other) && saved.isEmpty());
    }

    void whatIsRefusedIsNotPassedOver()
    {
        const QString path = m_files->save("mod/man.skinnedmesh", triangleMan());
        const QString other = m_files->save("mod/other.skinnedmesh", triangleMan());
        ShownWindow window({path, m_files->save("mod/man.anim", twoBlocks())});
        const QByteArray before = TestSupport::readFile(path);
        typeParent(window, 0);
        auto *field = find<IntSpinBox>(window, "sbNodeParentNode");
        auto *tree = find<KVTreeView>(window, "treeSkinnedMesh");
        auto *tabs = find<QTabWidget>(window, "tabWidget");
        auto *trees = find<QTabWidget>(window, "tabTrees");
        const QString why = "Parent Bone: '300' is no whole number from 0 to 255.";
        field->selectAll();
        QTest::keyClicks(field, "300");
        auto *undo = find<QAction>(window, "actionUndo");
        const auto press = [&window](Qt::Key key, Qt::KeyboardModifiers keys = Qt::ControlModifier) {
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window, key, keys);
        };
        const QVector<std::function<void()>> ways{
            [&] { press(Qt::Key_S); },
            [&] { press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier); },
            [&] { find<QAction>(window, "actionSaveToMod")->trigger(); },
            [&] {
                tabs->setCurrentIndex(1);
                find<QAction>(window, "actionSaveAll")->trigger();
            },
            [&] {
                QTest::mouseClick(find<QToolBar>(window, "toolBarEdit")->widgetForAction(undo),
                                  Qt::LeftButton);
            },
            [&] {
                tree->setFocus();
                press(Qt::Key_Z);
            },
            [&] {
                find<QUndoView>(window, "viewHistory")
                    ->setCurrentIndex(find<QUndoView>(window, "viewHistory")->model()->index(0, 0));
            },
            // With another window of the program in front.
            [&] {
                find<QAction>(window, "actionRotate")->trigger();
                QTRY_VERIFY(window.findChild<QDialog *>("RotateDialog")->isActiveWindow());
                press(Qt::Key_S);
            },
            [&] { find<QPushButton>(window, "btnYawPlus90")->click(); },
        };
        for (const auto &way : ways) {
            window.statusBar()->clearMessage();
            Hand hand({});
            way();
            QCOMPARE(hand.seen, QStringList());
            QTRY_COMPARE(window.statusBar()->currentMessage(), why);
            QTRY_VERIFY(field->hasFocus());
            QVERIFY(tabs->currentIndex() == 0 && trees->currentIndex() == 0);
            QVERIFY(field->isRefused() && undo->isEnabled());
            QVERIFY(TestSupport::readFile(path) == before);
        }
        // Playing changes nothing of it.
        find<QWidget>(window, "viewSkinned")->setFocus();
        playback().playState = PlayState::InitialPose;
        press(Qt::Key_Space, Qt::NoModifier);
        QVERIFY(playback().playState == PlayState::Playing && field->isRefused());

        // Where the document would go, there is a choice.
        const auto asked = [&](QMessageBox::StandardButton answer, const std::function<void()> &leave) {
            Hand hand({Hand::press(answer)});
            leave();
            return hand.seen;
        };
        const QStringList question{"Not stored|" + why + "\n\nGo on without it?"};
        QCOMPARE(asked(QMessageBox::No, [&] { find<QAction>(window, "actionOpen")->trigger(); }), question);
        QVERIFY(window.focusWidget() == field && field->isRefused());
        QCOMPARE(asked(QMessageBox::No, [&] { window.openFiles({other}); }), question);
        QVERIFY(window.windowTitle().contains("man.skinnedmesh"));
        // The window closes without a question.
        QCOMPARE(asked(QMessageBox::No, [&] { window.close(); }), QStringList());
        QVERIFY(!window.isVisible());
        QCOMPARE(consoleOf(window).last(), "[Close] 'man.skinnedmesh': Not stored. " + why);
    }

private:
    std::optional<ProgramFolder> m_files;
};

QTEST_MAIN(tst_DocumentFiles)
#include "tst_documentfiles.moc"
