// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderExplorer.h"
#include "FolderItem.h"
#include "ReadingSign.h"
#include "SpecialFiles.h"

#include "Find.h"
#include "TestArchive.h"

class tst_FolderExplorer : public QObject
{
    Q_OBJECT

public slots:
    void rememberUrl(const QUrl &url) { m_url = url; }

private slots:
    void init()
    {
        TestSupport::useSettingsHome(m_home);
        m_folder.emplace();
        Settings::SkinnedMeshExplorePath.setValue(m_folder->path());
    }

    void cleanup()
    {
        QDir::setCurrent(m_home.path());
        m_folder.reset();
    }
    void listsTheFolder()
    {
        for (const char *file :
             {"raptor/Raptor.v2.SkinnedMesh", "raptor/raptor.anim", "raptor/deep/er/tail.skinnedmesh",
              "m10.skinnedmesh", "M2.skinnedmesh", "m1.skinnedmesh", ".skinnedmesh", "m02b.skinnedmesh",
              "z.skinnedmesh", "\u00e4z.skinnedmesh", "xskinnedmesh", "empty/readme.txt", "a%1.skinnedmesh"})
            touch(QString::fromUtf8(file));
        // A link to a folder counts once, and none leads up.
        const TestFolder elsewhere;
        elsewhere.put("sub/far.skinnedmesh", {});
        const QVector<QPair<QString, QString>> links{{m_folder->path(), "raptor/loop"},
                                                     {path("raptor"), "inside"},
                                                     {QFileInfo(m_folder->path()).path(), "up"},
                                                     {"/", "root"},
                                                     {elsewhere.path("sub"), "Link 2"},
                                                     {elsewhere.path(), "Link 1"},
                                                     {path("m1.skinnedmesh"), "linked.skinnedmesh"}};
        bool isLinked = false;
        for (const auto &[target, name] : links)
            isLinked = SpecialFiles::link(target, path(name));

        const auto explorer = createExplorer();
        QStringList names({"empty/", "Link 1/", " sub/", "  far", "raptor/", " deep/", "  er/", "   tail",
                           " Raptor.v2", "a%1", "\u00e4z", "linked", "m1", "M2", "m02b", "m10", "z"});
        for (const char *name : {"Link 1/", " sub/", "  far", "linked"}) {
            if (!isLinked)
                names.removeOne(name);
        }
        QCOMPARE(rows(explorer->tree()->invisibleRootItem()), names);
        // Folders without a file are there, and shown when they are wanted.
        QVERIFY(find(*explorer, "empty")->isHidden());
        QVERIFY(!find(*explorer, "deep")->isHidden());
        explorer->showEmptyFolders(true);
        QVERIFY(!find(*explorer, "empty")->isHidden());
        QCOMPARE(explorer->tree()->headerItem()->text(0), QFileInfo(m_folder->path()).fileName());
        QCOMPARE(find(*explorer, "tail")->data(0, FolderItem::FilePathRole).toString(),
                 path("raptor/deep/er/tail.skinnedmesh"));
        QVERIFY(QSettings().allKeys() == QStringList{Settings::SkinnedMeshExplorePath.name()});
    }

    void emptyStatesLeadToAChoice()
    {
        const auto explorer = createExplorer();
        const auto *label = explorer->findChild<QLabel *>("lblSkinnedMeshFolderEmpty");
        QVERIFY(label->isVisible());
        QVERIFY(label->text().contains(QLatin1String(".skinnedmesh")));

        // The program's own folder has files, and an empty setting must not mean that one.
        QDir::setCurrent(m_folder->path());
        touch("here.skinnedmesh");
        for (const QString &folder : {QString(), path("gone"), path("here.skinnedmesh")}) {
            explorer->setFolder(folder);
            QCOMPARE(explorer->tree()->topLevelItemCount(), 0);
            settle(*explorer);
            QCOMPARE(explorer->tree()->topLevelItemCount(), 0);
            QVERIFY(label->isVisible());
            QVERIFY(folder.isEmpty() ||
                    label->text().remove(QChar(0x200b)).contains(QDir::toNativeSeparators(folder)));
        }

        touch("sub/one.skinnedmesh");
        QStringList asked;
        QString answer;
        explorer->setFolderChooser([&](QWidget *, const QString &title, const QString &start) {
            asked << title << start;
            return answer;
        });
        explorer->changeFolderAction()->trigger();
        QCOMPARE(asked, QStringList({"Skinned Mesh Folder", path("here.skinnedmesh")}));
        QCOMPARE(Settings::SkinnedMeshExplorePath.value(), path("here.skinnedmesh"));
        answer = path("sub/");
        QTest::mouseClick(explorer->findChild<QPushButton *>("btnSkinnedMeshChangeFolder"), Qt::LeftButton);
        QCOMPARE(Settings::SkinnedMeshExplorePath.value(), path("sub"));
        settle(*explorer);
        QCOMPARE(rows(explorer->tree()->invisibleRootItem()), QStringList("one"));
        QVERIFY(explorer->tree()->isVisible() && !label->isVisible());
    }

    void choosing()
    {
        touch("dir/a.skinnedmesh");
        touch("b.skinnedmesh");
        const auto explorer = createExplorer();
        QSignalSpy chosen(explorer.get(), &FolderExplorer::fileChosen);
        const auto doubleClick = [](QTreeWidgetItem *item) {
            click(item);
            QTest::mouseDClick(item->treeWidget()->viewport(), Qt::LeftButton, {}, center(item));
        };
        // The owner loads what is chosen, and a double click that selects loads once.
        connect(explorer.get(), &FolderExplorer::fileChosen, explorer.get(), &FolderExplorer::setLoadedPath);
        click(find(*explorer, "dir"));
        QCOMPARE(chosen.count(), 0);
        doubleClick(find(*explorer, "b"));
        QTest::keyClick(explorer->tree(), Qt::Key_Up);
        QCOMPARE(chosen, (QList<QVariantList>{{path("b.skinnedmesh")}, {path("dir/a.skinnedmesh")}}));
        QVERIFY(find(*explorer, "a")->font(0).bold() && !find(*explorer, "b")->font(0).bold());
        QVERIFY(!Settings::SkinnedMeshQuickSelect.exists());

        explorer->quickSelectAction()->trigger();
        QVERIFY(Settings::SkinnedMeshQuickSelect.exists() && !Settings::SkinnedMeshQuickSelect.value());
        click(find(*explorer, "b"));
        QCOMPARE(chosen.count(), 2);
        doubleClick(find(*explorer, "a"));
        QCOMPARE(chosen.count(), 3);
        explorer->tree()->setCurrentItem(find(*explorer, "b"));
        QTest::keyClick(explorer->tree(), Qt::Key_Return);
        QCOMPARE(chosen.count(), 4);
        QCOMPARE(chosen.last().first().toString(), path("b.skinnedmesh"));

        explorer->tree()->setCurrentItem(find(*explorer, "dir"));
        QVERIFY(find(*explorer, "dir")->isExpanded());
        QTest::keyClick(explorer->tree(), Qt::Key_Enter);
        QVERIFY(!find(*explorer, "dir")->isExpanded());
        QCOMPARE(chosen.count(), 4);
        explorer->setQuickSelect(true);
        QVERIFY(explorer->quickSelectAction()->isChecked() && Settings::SkinnedMeshQuickSelect.value());
    }

    void refillKeepsTheView()
    {
        touch("open/a.skinnedmesh");
        touch("shut/b.skinnedmesh");
        const auto explorer = createExplorer();
        QVERIFY(find(*explorer, "open")->isExpanded()); // a small folder shows all it has
        find(*explorer, "shut")->setExpanded(false);
        explorer->setLoadedPath(path("open/a.skinnedmesh"));
        QVERIFY(explorer->selectPath(path("open/a.skinnedmesh")));

        QSignalSpy chosen(explorer.get(), &FolderExplorer::fileChosen);
        touch("open/new.skinnedmesh");
        explorer->refreshAction()->trigger();
        settle(*explorer);
        QCOMPARE(rows(explorer->tree()->invisibleRootItem()),
                 QStringList({"open/", " a", " new", "shut/", " b"}));
        QVERIFY(find(*explorer, "open")->isExpanded());
        QVERIFY(!find(*explorer, "shut")->isExpanded());
        QVERIFY(find(*explorer, "a")->font(0).bold());
        QCOMPARE(explorer->selectedPath(), path("open/a.skinnedmesh"));

        QVERIFY(QFile::remove(path("open/a.skinnedmesh")));
        explorer->refill();
        settle(*explorer);
        QVERIFY(explorer->selectedPath().isEmpty());

        // Whatever is selected by the program is opened to, but not chosen.
        QVERIFY(explorer->selectPath(path("open/../shut/b.skinnedmesh")));
        QCOMPARE(explorer->selectedPath(), path("shut/b.skinnedmesh"));
        QVERIFY(find(*explorer, "shut")->isExpanded());
        QVERIFY(!explorer->selectPath(path("shut")));
        QVERIFY(explorer->selectedPath().isEmpty());
        QCOMPARE(chosen.count(), 0);
        QApplication::processEvents();

        // What is written elsewhere reads nothing; what is new here is found, and selected unless the user
        // selects something else meanwhile.
        const TestFolder elsewhere;
        explorer->showWritten(elsewhere.put("c.skinnedmesh", {}));
        explorer->showWritten(path("shut/c.anim"));
        QVERIFY(!explorer->isReading() && explorer->selectedPath().isEmpty());
        touch("shut/c.skinnedmesh");
        explorer->showWritten(path("shut/c.skinnedmesh"));
        QVERIFY(explorer->isReading() && !find(*explorer, "c"));
        settle(*explorer);
        QCOMPARE(explorer->selectedPath(), path("shut/c.skinnedmesh"));
        touch("shut/d.skinnedmesh");
        explorer->showWritten(path("shut/d.skinnedmesh"));
        click(find(*explorer, "b"));
        settle(*explorer);
        QCOMPARE(explorer->selectedPath(), path("shut/b.skinnedmesh"));
        QCOMPARE(chosen.count(), 1);
    }

    void anotherChoiceCancelsReading()
    {
        touch("one/a.skinnedmesh");
        touch("two/b.skinnedmesh");
        const auto explorer = createExplorer();
        QSignalSpy filled(explorer.get(), &FolderExplorer::filled);
        explorer->setFolder(path("one"));
        QVERIFY(explorer->isReading());
        explorer->setFolder(path("two"));
        QCOMPARE(explorer->tree()->headerItem()->text(0), QStringLiteral("two"));
        settle(*explorer);
        QCOMPARE(rows(explorer->tree()->invisibleRootItem()), QStringList("b"));
        QCOMPARE(filled.count(), 1);

        // The sign of a reading that takes its time stops it.
        ReadingSign sign;
        sign.begin();
        QTRY_VERIFY(sign.isVisible());
        QSignalSpy stopped(&sign, &ReadingSign::stopped);
        QTest::mouseClick(::find<QWidget>(sign, "btnStopReading"), Qt::LeftButton);
        QCOMPARE(stopped.count(), 1);
        explorer->setFolder(path("one"));
        emit explorer->findChild<ReadingSign *>()->stopped();
        QVERIFY(!explorer->isReading());
        explorer->showEmptyFolders(true);
        const auto *label = ::find<QLabel>(*explorer, "lblSkinnedMeshFolderEmpty");
        QVERIFY(label->text().startsWith("Stopped"));
        explorer->refreshAction()->trigger();
        settle(*explorer);
        QVERIFY(!label->isVisible());
    }

    void switchesBetweenGameModAndOther()
    {
        touch("game/models/g.skinnedmesh");
        touch("mod/m.skinnedmesh");
        touch("other/o.skinnedmesh");
        Settings::SkinnedMeshExplorePath.setValue({});
        const auto explorer = createExplorer();
        const auto *button = ::find<QToolButton>(*explorer, "btnSkinnedMeshFolderSource");
        const auto pick = [&](const char *action) {
            ::find<QMenu>(*explorer, "menuSkinnedMeshFolderSource"); // where the button leads to
            auto *chosen = explorer->findChild<QAction *>(QLatin1String(action));
            if (!chosen->isEnabled())
                return QStringLiteral("nothing");
            chosen->trigger();
            settle(*explorer);
            return button->text() + ": " + rows(explorer->tree()->invisibleRootItem()).join(' ');
        };
        QCOMPARE(pick("actionSkinnedMeshGame"), QStringLiteral("nothing"));
        // The options name folders: the list gets the game's own.
        Settings::OutputDir.setValue(path("mod"));
        Settings::GamePath.setValue(path("game"));
        explorer->followOptions();
        settle(*explorer);
        QCOMPARE(Settings::SkinnedMeshExplorePath.value(), path("game/models"));
        QCOMPARE(button->text(), QStringLiteral("Game"));
        QCOMPARE(pick("actionSkinnedMeshMod"), QStringLiteral("Mod: m"));
        QCOMPARE(pick("actionSkinnedMeshOther"), QStringLiteral("nothing"));
        explorer->setFolder(path("other"));
        QCOMPARE(pick("actionSkinnedMeshGame"), QStringLiteral("Game: g"));
        QCOMPARE(pick("actionSkinnedMeshOther"), QStringLiteral("Other: o"));
        // What is listed follows to where it is now, a folder of one's own does not.
        Settings::OutputDir.setValue(path("other"));
        explorer->followOptions();
        QCOMPARE(explorer->files(), QStringList(path("other/o.skinnedmesh")));
        QCOMPARE(pick("actionSkinnedMeshGame"), QStringLiteral("Game: g"));
        Settings::GamePath.setValue(path("mod"));
        explorer->followOptions();
        settle(*explorer);
        QCOMPARE(explorer->files(), QStringList(path("mod/m.skinnedmesh")));
    }

    void listsAnArchive()
    {
        TestArchive made;
        made.add("models/raptor/Walk 10.skinnedmesh", "x");
        made.add("models/raptor/Walk 9.skinnedmesh", "x");
        made.add("models/flier.skinnedmesh", "x");
        made.add("anims/flier.anim", "x");
        QVERIFY(made.write(path("game.kpf")));
        Settings::GamePath.setValue(path("game.kpf"));
        Settings::SkinnedMeshExplorePath.setValue({});
        const auto explorer = createExplorer();
        explorer->followOptions();
        settle(*explorer);
        const QString models = path("game.kpf/models");
        QCOMPARE(explorer->files(),
                 QStringList({models + "/raptor/Walk 9.skinnedmesh", models + "/raptor/Walk 10.skinnedmesh",
                              models + "/flier.skinnedmesh"}));
        QSignalSpy chosen(explorer.get(), &FolderExplorer::fileChosen);
        QVERIFY(explorer->selectPath(models + "/flier.skinnedmesh"));
        QTest::keyClick(explorer->tree(), Qt::Key_Return);
        QCOMPARE(chosen.value(0).value(0).toString(), models + "/flier.skinnedmesh");
        // Another in its place is listed without being asked for, and one that cannot be read says why.
        made.add("models/grunt.skinnedmesh", "x");
        QVERIFY(made.write(path("game.kpf")));
        QTRY_VERIFY(explorer->files().contains(models + "/grunt.skinnedmesh"));
        QCOMPARE(explorer->selectedPath(), models + "/flier.skinnedmesh");
        QVERIFY(TestSupport::writeFile(path("game.kpf"), "no archive"));
        const auto *told = ::find<QLabel>(*explorer, "lblSkinnedMeshFolderEmpty");
        QTRY_VERIFY(told->text().endsWith("It is no zip archive that can be read."));
        QCOMPARE(chosen.count(), 1);
    }

    void theFilterHides()
    {
        for (const char *file : {"raptor/walk.skinnedmesh", "raptor/old/run.skinnedmesh",
                                 "flier/walk.skinnedmesh", "trex.skinnedmesh"})
            touch(QLatin1String(file));
        const auto explorer = createExplorer();
        QSignalSpy chosen(explorer.get(), &FolderExplorer::fileChosen);
        find(*explorer, "raptor")->setExpanded(false);
        auto *line = ::find<QLineEdit>(*explorer, "txtSkinnedMeshFolderFilter");
        const auto shown = [&] {
            QStringList names;
            for (QTreeWidgetItem *item = explorer->tree()->itemAt(1, 1); item;
                 item = explorer->tree()->itemBelow(item))
                names << item->text(0);
            return names;
        };
        line->setFocus();
        QTest::keyClicks(line, QStringLiteral("RAP r"));
        QTRY_COMPARE(shown(), QStringList({"raptor", "old", "run", "walk"}));
        QTest::keyClicks(line, QStringLiteral("un"));
        QTRY_COMPARE(shown(), QStringList({"raptor", "old", "run"}));
        explorer->refill();
        settle(*explorer);
        QCOMPARE(shown(), QStringList({"raptor", "old", "run"}));
        QCOMPARE(chosen.count(), 0);
        QTest::keyClick(line, Qt::Key_Return);
        QCOMPARE(chosen, QList<QVariantList>{{path("raptor/old/run.skinnedmesh")}});
        QVERIFY(explorer->tree()->hasFocus());
        QTest::keyClick(line, Qt::Key_Escape);
        QVERIFY(line->text().isEmpty());
        find(*explorer, "flier")->setExpanded(true);
        QVERIFY(shown().contains("trex") && shown().contains("flier"));
        line->setFocus();
        QTest::keyClicks(line, QStringLiteral("rex xyz"));
        const auto *label = ::find<QLabel>(*explorer, "lblSkinnedMeshFolderEmpty");
        QTRY_COMPARE(label->text(), QStringLiteral("No file matches"));
        QVERIFY(label->isVisible() && line->hasFocus());
        QTest::keyClick(line, Qt::Key_Escape);
        QVERIFY(!label->isVisible() && explorer->tree()->hasFocus());
    }

    void rightClickOpensOnlyTheMenu()
    {
        touch("dir/a.skinnedmesh");
        const auto explorer = createExplorer();
        QAction extra("Extra");
        explorer->addExtraAction(&extra);
        QSignalSpy chosen(explorer.get(), &FolderExplorer::fileChosen);
        auto *menu = explorer->findChild<QMenu *>("menuSkinnedMeshFolder");
        const auto openMenu = [&](const QPoint &position) {
            QTest::mouseClick(explorer->tree()->viewport(), Qt::RightButton, {}, position);
            emit explorer->tree()->customContextMenuRequested(position);
            return menu->isVisible();
        };
        const auto pick = [&](const char *text) {
            for (QAction *action : menu->actions()) {
                if (action->text().remove('&') == QLatin1String(text)) {
                    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
                    return;
                }
            }
            QFAIL(text);
        };

        QVERIFY(openMenu(center(find(*explorer, "a"))));
        QVERIFY(menu->actions().contains(&extra));
        QCOMPARE(chosen.count(), 0);
        pick("Open");
        QCOMPARE(chosen, QList<QVariantList>{{path("dir/a.skinnedmesh")}});

        QVERIFY(openMenu(center(find(*explorer, "dir"))));
        pick("Copy Path");
        QCOMPARE(QApplication::clipboard()->text(), QDir::toNativeSeparators(path("dir")));

        QDesktopServices::setUrlHandler("file", this, "rememberUrl");
        QVERIFY(openMenu(center(find(*explorer, "a"))));
        pick("Open Containing Folder");
        QCOMPARE(m_url, QUrl::fromLocalFile(path("dir")));
        QVERIFY(openMenu({50, 350})); // below the last row: the listed folder itself
        pick("Open Containing Folder");
        QCOMPARE(m_url, QUrl::fromLocalFile(m_folder->path()));
        QDesktopServices::unsetUrlHandler("file");
    }

private:
    void touch(const QString &relativePath) const { m_folder->put(relativePath, {}); }
    QString path(const QString &relativePath) const { return m_folder->path(relativePath); }
    std::unique_ptr<FolderExplorer> createExplorer() const
    {
        auto explorer = std::make_unique<FolderExplorer>(documentKind(DocumentType::SkinnedMesh));
        explorer->resize(300, 400);
        explorer->show();
        QApplication::setActiveWindow(explorer.get());
        explorer->setFocus();
        explorer->refill();
        settle(*explorer);
        return explorer;
    }
    /// Lets the folder be read.
    static void settle(const FolderExplorer &explorer)
    {
        QVERIFY(QTest::qWaitFor([&explorer] { return !explorer.isReading(); }));
    }

    /// Every row below `parent`, branches with a slash behind them, children indented.
    static QStringList rows(QTreeWidgetItem *parent)
    {
        QStringList result;
        for (int i = 0; i < parent->childCount(); ++i) {
            QTreeWidgetItem *item = parent->child(i);
            const bool branch = item->data(0, FolderItem::FilePathRole).toString().isEmpty();
            result << item->text(0) + (branch ? "/" : "");
            for (const QString &row : rows(item))
                result << " " + row;
        }
        return result;
    }

    static QTreeWidgetItem *find(const FolderExplorer &explorer, const QString &text)
    {
        return explorer.tree()->findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    static QPoint center(QTreeWidgetItem *item) { return item->treeWidget()->visualItemRect(item).center(); }
    static void click(QTreeWidgetItem *item)
    {
        QTest::mouseClick(item->treeWidget()->viewport(), Qt::LeftButton, {}, center(item));
    }

    QTemporaryDir m_home;
    std::optional<TestFolder> m_folder;
    QUrl m_url;
};

QTEST_MAIN(tst_FolderExplorer)
#include "tst_folderexplorer.moc"
