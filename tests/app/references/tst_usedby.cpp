// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FloatSpinBox.h"
#include "Hand.h"
#include "OwnFolders.h"
#include "SpecialFiles.h"

/// The window with files of a game and a mod, and the list of who names what.
class tst_UsedBy : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        QDir(OwnFolders::cache()).removeRecursively();
        Settings::GamePath.setValue(m_folder->path("game"));
        Settings::OutputDir.setValue(m_folder->path("mod"));
        Settings::AnimationAutoPlay.setValue(false);
        Settings::AnimationSyncSkin.setValue(false);
        SkinnedMesh man = triangleMan();
        man.surfaces.resize(3, {QStringLiteral("materials/Skins/a"), {0, 2, 1}});
        m_man = m_folder->save("game/models/man.skinnedmesh", man);
        m_wall = m_folder->save("mod/models/wall.staticmesh", wall({{"materials/skins/a", {0, 1, 2}}}));
        m_folder->put("game/materials/skins.kmat",
                      "material a {\n\tsampler \"diffuse\" 0 \"textures/a.png\"\n}\n");
        AnimFile anim = twoBlocks();
        anim.blocks[1].actions.resize(1);
        anim.blocks[1].actions[0].eventType = 29; // a sound and an impact type
        anim.blocks[1].actions[0].args = {10.0f, 7.0f};
        m_anim = m_folder->save("game/anims/man.anim", anim);
        anim.blocks[1].actions[0].args[0] = 11.0f;
        m_other = m_folder->save("mod/anims/other.anim", anim);
        m_window = std::make_unique<ShownWindow>();
        m_window->resize(1400, 1000);
    }
    void cleanup() { m_window.reset(); }

    /// From a surface to the others of its material and of its texture, in another file, which is opened.
    void leadsToWhoNamesTheSame()
    {
        m_window->openFiles({m_man});
        QVERIFY(!find<QDockWidget>("dockUsedBy")->isVisible());
        select(*m_window, "treeSkinnedMesh", {{RecordKind::SkinnedSurface, {1, 0, 0}}});
        press("treeSkinnedMesh", "Ctrl+Shift+U");
        QVERIFY(list()->hasFocus());
        QTRY_COMPARE(records(), QStringList({"Surfaces › 1 | models/man.skinnedmesh | Game | ",
                                             "Surfaces › 2 | models/man.skinnedmesh | Game | ",
                                             "Surfaces › 0 | models/wall.staticmesh | Mod | "}));
        QCOMPARE(find<QLabel>("lblUsedByCount")->text(), QString("Uses: 3"));

        // The texture that the surface has by its material.
        things()->setFocus();
        QTest::keyClick(things(), Qt::Key_Down);
        QCOMPARE(things()->currentText(), QString("Texture textures/a.png"));
        QTRY_COMPARE(records().size(), 4);
        QCOMPARE(records().first(), QString("Material a | materials/skins.kmat | Game | "));
        QCOMPARE(records().last(),
                 QString("Surfaces › 0 | models/wall.staticmesh | Mod | materials/skins/a"));

        // A material file opens in its dock.
        list()->setCurrentIndex(list()->model()->index(0, 0));
        list()->setFocus();
        QTest::keyClick(list(), Qt::Key_Return);
        QTRY_VERIFY(find<QDockWidget>("dockMaterials")->isVisible());
        QCOMPARE(records().size(), 4);
        find<QDockWidget>("dockUsedBy")->raise();

        // The list stays as it is where it leads.
        list()->setCurrentIndex(list()->model()->index(3, 0));
        list()->setFocus();
        QTest::keyClick(list(), Qt::Key_Return);
        auto *tree = find<KVTreeView>("treeStaticMesh");
        QTRY_VERIFY(tree->isVisible() && tree->hasFocus());
        QCOMPARE(tree->currentRecord(), (RecordRef{RecordKind::StaticSurface, {0, 0, 0}}));
        QCOMPARE(records().size(), 4);

        // Back into the file that is open, by the mouse; and the keys go back to its tree.
        const QRect row = list()->visualRect(list()->model()->index(2, 1));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, row.center());
        QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, row.center());
        tree = find<KVTreeView>("treeSkinnedMesh");
        QTRY_VERIFY(tree->isVisible() && tree->hasFocus());
        QCOMPARE(tree->currentRecord(), (RecordRef{RecordKind::SkinnedSurface, {2, 0, 0}}));
        list()->setFocus();
        QTest::keyClick(list(), Qt::Key_Escape);
        QVERIFY(tree->hasFocus());
        for (const char *each : {"treeSkinnedMesh", "treeStaticMesh"})
            QVERIFY(!rootOf(*m_window, each).isEmpty());
        QVERIFY(!m_window->windowTitle().contains('*'));
    }

    /// What is unsaved is asked about before another file takes its place, and who thinks better of it stays.
    void asksBeforeItOpens()
    {
        m_window->openFiles({m_man, m_anim});
        find<QTabWidget>("tabTrees")->setCurrentIndex(1);
        const RecordRef action{RecordKind::AnimAction, {1, 0, 0}};
        select(*m_window, "treeAnim", {action});
        press("treeAnim", "Ctrl+Shift+U");
        QTRY_COMPARE(records(), QStringList("Anim 1 › Key Frame Actions › 0 | anims/man.anim | Game | "));
        // The field with the keys is what is asked about: the impact type that both files name.
        find<FloatSpinBox>("sbAnimActionArg2")->setFocus();
        press("sbAnimActionArg2", "Ctrl+Shift+U");
        QCOMPARE(things()->currentText().left(13), QString("Impact Type 7"));
        QTRY_COMPARE(records().size(), 2);
        // A button beside each such field does the same; arguments that name nothing have none.
        auto *uses = find<QToolButton>("btnUsesAnimActionArg1");
        QVERIFY(uses->isVisible() && !find<QToolButton>("btnUsesAnimActionArg3")->isVisible());
        QTest::mouseClick(uses, Qt::LeftButton);
        QCOMPARE(things()->currentText().left(8), QString("Sound 10"));
        QTRY_COMPARE(records().size(), 1);
        QTest::mouseClick(find<QToolButton>("btnUsesAnimActionArg2"), Qt::LeftButton);
        QTRY_COMPARE(records().size(), 2);

        auto *frame = find<IntSpinBox>("sbAnimActionFrame");
        typeNumber(frame, 3);
        QVERIFY(m_window->windowTitle().contains('*'));
        list()->setCurrentIndex(list()->model()->index(1, 0));
        list()->setFocus();
        Hand hand({Hand::press(QMessageBox::Cancel), Hand::press(QMessageBox::No)});
        QTest::keyClick(list(), Qt::Key_Return);
        QTRY_COMPARE(hand.seen.size(), 1);
        QCOMPARE(rootOf(*m_window, "treeAnim"), QString("man.anim"));
        list()->setFocus();
        QTest::keyClick(list(), Qt::Key_Return);
        QTRY_COMPARE(rootOf(*m_window, "treeAnim"), QString("other.anim"));
        QTRY_COMPARE(find<KVTreeView>("treeAnim")->currentRecord(), action);
    }

    /// A surface's material is asked about where it stands, by the mouse, a key and the menu.
    void asksFromTheMaterialField()
    {
        m_window->openFiles({m_man});
        select(*m_window, "treeSkinnedMesh", {{RecordKind::SkinnedSurface, {1, 0, 0}}});
        const auto *page = find<QWidget>("pagesSkinnedMesh");
        auto *field = ::find<QLineEdit>(*page, "txtSurfaceMaterial");
        auto *uses = ::find<QToolButton>(*page, "btnUsesSurfaceMaterial");
        QVERIFY(uses->isVisible() && uses->isEnabled());
        QCOMPARE(uses->accessibleName(), QString("Where Is This Used?"));
        QCOMPARE(uses->toolTip(), QString("Where Is This Used? (Ctrl+Shift+U)"));
        QTest::mouseClick(uses, Qt::LeftButton);
        QVERIFY(find<QDockWidget>("dockUsedBy")->isVisible() && list()->hasFocus());
        QTRY_COMPARE(records().size(), 3);
        QCOMPARE(things()->currentText(), QString("Material materials/Skins/a"));

        // Back from the texture, which comes behind the material.
        const auto isTexture = [this] { return things()->currentText().startsWith("Texture"); };
        const auto leave = [&] {
            things()->setFocus();
            QTest::keyClick(things(), Qt::Key_End);
            return isTexture();
        };
        QTRY_VERIFY(leave());
        field->setFocus();
        QTest::keySequence(field, QKeySequence("Ctrl+Shift+U"));
        QCOMPARE(things()->currentText(), QString("Material materials/Skins/a"));
        QVERIFY(leave());
        field->setFocus();
        QContextMenuEvent wanted(QContextMenuEvent::Keyboard, field->rect().center(),
                                 field->mapToGlobal(field->rect().center()));
        QCoreApplication::sendEvent(field, &wanted);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_W);
        QTRY_VERIFY(!isTexture());
        QVERIFY(!m_window->windowTitle().contains('*'));

        // What stands there counts; nothing cannot be asked about.
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QVERIFY(!uses->isEnabled());
        QTest::keyClicks(field, "materials/skins/b");
        QTest::mouseClick(uses, Qt::LeftButton);
        QCOMPARE(things()->currentText(), QString("Material materials/skins/b"));
        QTRY_COMPARE(records(), QStringList());
    }

    /// The dock of materials asks about its material, and its field about the texture.
    void asksFromTheDockOfMaterials()
    {
        m_window->openFiles({m_man, m_folder->path("game/materials/skins.kmat")});
        select(*m_window, "treeSkinnedMesh", {{RecordKind::Bone, {1, 0, 0}}});
        auto *materials = find<QTreeWidget>("listMaterials");
        QTRY_COMPARE(materials->topLevelItemCount(), 1);
        press("listMaterials", "Ctrl+Shift+U");
        QCOMPARE(things()->currentText(), QString("Material materials/skins/a"));
        QTRY_COMPARE(records().size(), 3);
        find<QDockWidget>("dockMaterials")->raise();
        QTest::mouseClick(find<QToolButton>("btnUsesMaterialTexture"), Qt::LeftButton);
        QCOMPARE(things()->currentText(), QString("Texture textures/a.png"));
        QTRY_COMPARE(records().size(), 4);
        QVERIFY(list()->hasFocus());
        // Of a file elsewhere there is nothing that a surface could name.
        m_window->openFiles({m_folder->put("elsewhere.kmat", "material b {\n}\n")});
        QTRY_COMPARE(materials->topLevelItem(0)->text(0), QString("b"));
        press("listMaterials", "Ctrl+Shift+U");
        QVERIFY(m_window->statusBar()->currentMessage().contains("Select a material"));
        QCOMPARE(things()->currentText(), QString("Texture textures/a.png"));
    }

    /// The list is of files as they are saved, by this program or another.
    void followsWhatIsSaved()
    {
        m_window->openFiles({m_man, m_other});
        find<QTabWidget>("tabTrees")->setCurrentIndex(1);
        select(*m_window, "treeAnim", {{RecordKind::AnimAction, {1, 0, 0}}});
        press("treeAnim", "Ctrl+Shift+U");
        const QString man = "Anim 1 › Key Frame Actions › 0 | anims/man.anim | Game | ";
        const QString other = "Anim 1 › Key Frame Actions › 0 | anims/other.anim | Mod | ";
        QTRY_COMPARE(records(), QStringList(other));
        auto *sound = find<FloatSpinBox>("sbAnimActionArg1");
        sound->setFocus();
        sound->selectAll();
        QTest::keyClicks(sound, "10");
        QTest::keyClick(sound, Qt::Key_Return);
        QTRY_COMPARE(records(), QStringList(man));
        press("treeAnim", "Ctrl+S");
        QTRY_COMPARE(records(), QStringList({man, other}));

        QVERIFY(QFile::remove(m_anim));
        m_folder->put("game/models/broken.staticmesh", "no model");
        QTest::mouseClick(find<QToolButton>("btnUsedByRead"), Qt::LeftButton);
        QTRY_COMPARE(records(), QStringList(other));
        QCOMPARE(find<QLabel>("lblUsedByCount")->text(), QString("Uses: 1  (not read: 1)"));
        QVERIFY(find<QLabel>("lblUsedByCount")->toolTip().startsWith("models/broken.staticmesh: "));
        const QString models = m_folder->path("game/models");
        SpecialFiles::withNameWithoutText(models, [&] {
            QTest::mouseClick(find<QToolButton>("btnUsedByRead"), Qt::LeftButton);
            QTRY_COMPARE(find<QLabel>("lblUsedByCount")->text(),
                         QString("Uses: 1  (not read: 1)  (incomplete folders: 1)"));
            QVERIFY(find<QLabel>("lblUsedByCount")->toolTip().startsWith(models + ": "));
        });
    }

    void saysWhyThereIsNothing()
    {
        find<QDockWidget>("dockUsedBy")->show();
        QTRY_VERIFY2(list()->accessibleDescription().startsWith("Select a surface"),
                     qUtf8Printable(list()->accessibleDescription()));
        Settings::GamePath.setValue({});
        Settings::OutputDir.setValue({});
        QTest::mouseClick(find<QToolButton>("btnUsedByRead"), Qt::LeftButton);
        QTRY_VERIFY2(list()->accessibleDescription().startsWith("There are no folders"),
                     qUtf8Printable(list()->accessibleDescription()));
    }

private:
    template <typename Widget>
    Widget *find(const char *name) const
    {
        return ::find<Widget>(*m_window, name);
    }
    QTreeView *list() const { return find<QTreeView>("listUses"); }
    QComboBox *things() const { return find<QComboBox>("cbUsedByThing"); }
    void press(const char *widget, const char *keys) const
    {
        find<QWidget>(widget)->setFocus();
        QTest::keySequence(find<QWidget>(widget), QKeySequence(QLatin1String(keys)));
    }
    /// The rows, with what stands in their columns.
    QStringList records() const
    {
        QStringList rows;
        const QAbstractItemModel *model = list()->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells << model->index(row, column).data().toString();
            rows << cells.join(" | ");
        }
        return rows;
    }

    std::optional<ProgramFolder> m_folder;
    QString m_man, m_wall, m_anim, m_other;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(tst_UsedBy)
#include "tst_usedby.moc"
