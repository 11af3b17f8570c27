// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderExplorer.h"
#include "FolderItem.h"

#include "Find.h"

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
        QVERIFY(QFile::link(m_folder->path(), path("raptor/loop")));
        QVERIFY(QFile::link(path("m1.skinnedmesh"), path("linked.skinnedmesh")));

        const auto explorer = createExplorer();
        QCOMPARE(rows(explorer->tree()->invisibleRootItem()),
                 QStringList({"empty/", "raptor/", " deep/", "  er/", "   tail", " Raptor.v2", "a%1",
                              "\u00e4z", "linked", "m1", "M2", "m02b", "m10", "z"}));
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
            QVERIFY(label->isVisible());
            QVERIFY(folder.isEmpty() || label->text().contains(QDir::toNativeSeparators(folder)));
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
        QCOMPARE(rows(explorer->tree()->invisibleRootItem()),
                 QStringList({"open/", " a", " new", "shut/", " b"}));
        QVERIFY(find(*explorer, "open")->isExpanded());
        QVERIFY(!find(*explorer, "shut")->isExpanded());
        QVERIFY(find(*explorer, "a")->font(0).bold());
        QCOMPARE(explorer->selectedPath(), path("open/a.skinnedmesh"));

        QVERIFY(QFile::remove(path("open/a.skinnedmesh")));
        explorer->refill();
        QVERIFY(explorer->selectedPath().isEmpty());

        // Whatever is selected by the program is opened to, but not chosen.
        QVERIFY(explorer->selectPath(path("open/../shut/b.skinnedmesh")));
        QCOMPARE(explorer->selectedPath(), path("shut/b.skinnedmesh"));
        QVERIFY(find(*explorer, "shut")->isExpanded());
        QVERIFY(!explorer->selectPath(path("shut")));
        QVERIFY(explorer->selectedPath().isEmpty());
        QCOMPARE(chosen.count(), 0);
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

    void findMatching()
    {
        for (const char *file : {"anims/raptor/raptor.anim", "anims/raptor/raptor_old.anim", "a/same.anim",
                                 "b/same.anim", "b/unique.anim", "single/walk.anim", "x/twice/one.anim",
                                 "y/twice/two.anim", "b/mesh.skinnedmesh"})
            touch(QLatin1String(file));
        Settings::AnimationExplorePath.setValue(m_folder->path());
        const FolderExplorer explorer(documentKind(DocumentType::Anim));
        const auto check = [&](const char *folder, const char *baseName, const char *match) {
            QCOMPARE(explorer.findMatching(QLatin1String(folder), QLatin1String(baseName)),
                     *match ? path(QLatin1String(match)) : QString());
        };
        check("Raptor", "RAPTOR", "anims/raptor/raptor.anim");
        check("b", "same", "b/same.anim"); // there is one elsewhere, too
        check("nowhere", "unique", "b/unique.anim");
        check("nowhere", "same", "");
        check("single", "mesh", "single/walk.anim"); // the only one there
        check("b", "mesh", "");
        check("twice", "mesh", "");
        check("nowhere", "nothing", "");
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
        return explorer;
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
