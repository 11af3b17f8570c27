// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentFiles.h"
#include "Hand.h"
#include "NameTables.h"
#include "SampleModels.h"
#include "TestArchive.h"

/// The window with a model in it, compared with a file.
class tst_Compare : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        m_folder = std::make_unique<ProgramFolder>();
        Settings::AnimationAutoPlay.setValue(false);
        m_window = std::make_unique<ShownWindow>();
        m_window->resize(1400, 1000);
    }
    void cleanup() { m_window.reset(); }

    void takesFieldsAndRecords()
    {
        auto *action = find<QAction>("actionCompare");
        QVERIFY(!action->isEnabled());
        AnimFile mine = SampleModels::plainAnim();
        for (int i = 0; i < 3; ++i)
            mine.blocks[size_t(i)].animId = 10 * i;
        AnimFile theirs = mine;
        theirs.blocks.erase(theirs.blocks.begin() + 1);
        theirs.blocks[1].speed = 2.0f;
        theirs.blocks[1].actions[1].args[0] = 9.0f;
        theirs.blocks[1].actions.pop_back();
        theirs.blocks[0].rotations.at(1, 2) = {1, 0, 0, 0};
        theirs.blocks.push_back(mine.blocks[0]);
        theirs.blocks.back().animId = 77;
        compare(m_folder->save("mine.anim", mine), m_folder->save("theirs.anim", theirs));
        QCOMPARE(find<QLabel>("lblCompare")->text(), QString("mine.anim with theirs.anim, different in: 4"));
        QCOMPARE(rows(), QStringList({"Anim 0 (id 0)||", "> Rotation track 1||up to 180\u00B0 apart",
                                      "> > Frame 2|0, 0, 0, 1|1, 0, 0, 0", "Anim 1 (id 10)|only here|",
                                      "Anim 2 (id 20)||", "> Speed|1|2", "> Action 1||",
                                      "> > Arguments|0, 0, 0, 0, 0, 0, 0, 0|9, 0, 0, 0, 0, 0, 0, 0",
                                      "> Action 2|only here|", "Anim 2 (id 77)||only there"}));

        // Looking changes nothing; Enter leads to the record.
        auto *take = find<QToolButton>("btnCompareTake");
        choose({"Anim 2 (id 20)", "Action 1"});
        QTest::keyClick(tree(), Qt::Key_Return);
        QCOMPARE(find<KVTreeView>("treeAnim")->currentRecord(),
                 (RecordRef{RecordKind::AnimAction, {2, 1, 0}}));
        QVERIFY(!isModified());
        choose({"Anim 0 (id 0)", "Rotation track 1", "Frame 2"});
        QVERIFY(!take->isEnabled());

        // One field.
        choose({"Anim 2 (id 20)", "Speed"});
        press("btnCompareTake");
        QCOMPARE(find<QUndoView>("viewHistory")->stack()->undoText(), QString("Take from theirs.anim"));
        QVERIFY(!rows().contains("> Speed|1|2") && rows().contains("> Action 1||"));
        undo();
        QVERIFY(!isModified());
        QTRY_VERIFY(rows().contains("> Speed|1|2"));

        // All at once: what goes, comes and changes, with an owner and what is in it.
        tree()->selectAll();
        press("btnCompareTake");
        QCOMPARE(rows(), QStringList());
        QCOMPARE(tree()->accessibleDescription(), QString("No record differs."));
        save();
        QCOMPARE(TestSupport::readFile(m_folder->path("mine.anim")), SampleModels::bytesOf(theirs));
        undo();
        save();
        QCOMPARE(TestSupport::readFile(m_folder->path("mine.anim")), SampleModels::bytesOf(mine));

        // The rows within, without their owners, in whatever order they were chosen.
        QTRY_COMPARE(rows().size(), 10);
        choose({"Anim 2 (id 20)", "Action 2"});
        choose({"Anim 2 (id 20)", "Action 1", "Arguments"}, QItemSelectionModel::Select);
        choose({"Anim 1 (id 10)"}, QItemSelectionModel::Select);
        press("btnCompareTake");
        QCOMPARE(rows(), QStringList({"Anim 0 (id 0)||", "> Rotation track 1||up to 180\u00B0 apart",
                                      "> > Frame 2|0, 0, 0, 1|1, 0, 0, 0", "Anim 1 (id 20)||", "> Speed|1|2",
                                      "Anim 2 (id 77)||only there"}));
    }

    /// Fields and values as the pages have them.
    void speaksAsThePages()
    {
        SkinnedMesh mine = SampleModels::plainMesh();
        mine.nodes[0].symbolFlags = 0;
        SkinnedMesh theirs = mine;
        SkinnedMeshNode &bone = theirs.nodes[0];
        bone.symbolFlags = qint8(0x86);
        bone.impactType = quint8(mine.nodes[0].impactType + 1);
        bone.flags = mine.nodes[0].flags ^ 0x11;
        bone.damageScale = 1e-5f;
        bone.bbMin = {1e6f, -0.5f, 0};
        theirs.hotPoints[0].origin.setX(SampleModels::oddFloats[1]);
        theirs.surfaces[0].materialPath = "a, \"b\"";
        compare(m_folder->save("mine.skinnedmesh", mine), m_folder->save("theirs.skinnedmesh", theirs));
        QStringList told;
        for (const QString &row : rows())
            told += row.section('|', 0, 0) + '|' + row.section('|', 2);
        QCOMPARE(told, QStringList(
                           {"Bone 0|", "> Flags|0x" + QString::number(bone.flags, 16).rightJustified(8, '0'),
                            "> Symbol|" + boneTypeNames()[2] + ", Right, " + bonePartNames(2)[2],
                            "> Impact Type|" + impactTypeNames()[bone.impactType], "> Damage Scale|0.00001",
                            "> Bounding Box Min|1000000, -0.5, 0", "Hot point 0|",
                            "> Position On Bone|nan, 0, 0", "Surface 0|", "> Material|a, \"b\""}));
    }

    void followsTheModelAndTheFile()
    {
        SkinnedMesh mine = SampleModels::plainMesh();
        mine.vertices.resize(600);
        SkinnedMesh theirs = mine;
        for (SkinnedMeshVertex &vertex : theirs.vertices)
            vertex.uv.setX(0.5f);
        theirs.unknownA = 4;
        const QString other = m_folder->save("theirs.skinnedmesh", theirs);
        compare(m_folder->save("mine.skinnedmesh", mine), other);
        QCOMPARE(tree()->topLevelItemCount(), 502);
        QCOMPARE(rows().mid(0, 4), QStringList({"mine.skinnedmesh||", "> Header Value 1|0|4", "Vertex 0||",
                                                "> UV|0, 0|0.5, 0"}));
        // The last row stands for all that have none.
        choose({"and 100 more"});
        press("btnCompareTake");
        QCOMPARE(tree()->topLevelItemCount(), 501);
        undo();
        QTRY_COMPARE(tree()->topLevelItemCount(), 502);

        QCOMPARE(tree()->topLevelItem(1)->child(0)->text(0), QString("UV"));

        // An edit here, and another program's there.
        typeParent(*m_window, 3);
        QTRY_VERIFY(rows().contains("Bone 1||"));
        QCOMPARE(rows()[3], QString("> Parent Bone|3|0"));
        QVERIFY(!theirs.write(m_folder->path("new.skinnedmesh")));
        theirs = mine;
        QVERIFY(!theirs.write(other));
        press("btnCompareAgain");
        QCOMPARE(rows(), QStringList({"Bone 1||", "> Parent Bone|3|0"}));
        QVERIFY(TestSupport::writeFile(other, "short"));
        press("btnCompareAgain");
        QCOMPARE(rows(), QStringList());
        QVERIFY(tree()->accessibleDescription().startsWith(
            "theirs.skinnedmesh cannot be read: Attempting to read"));

        {
            Hand hand({Hand::file(m_folder->save("theirs.anim", SampleModels::plainAnim()))});
            QTest::keySequence(m_window.get(), QKeySequence("Ctrl+Shift+D"));
        }
        QCOMPARE(tree()->accessibleDescription(),
                 QString("theirs.anim is a file of another kind: its name does not end in .skinnedmesh."));
        {
            Hand hand({Hand::file(other)});
            QTest::keySequence(m_window.get(), QKeySequence("Ctrl+Shift+D"));
        }

        // Another model has nothing to do with the file; the same one under another name has.
        undo();
        const QString renamed = m_folder->path("renamed.skinnedmesh");
        QVERIFY(!m_window->findChild<DocumentFiles *>()->document(DocumentType::SkinnedMesh)->save(renamed));
        QTRY_VERIFY(find<QLabel>("lblCompare")->text().startsWith("renamed.skinnedmesh with"));
        m_window->openFiles({renamed});
        QVERIFY(tree()->accessibleDescription().startsWith("theirs.skinnedmesh cannot be read"));
        m_window->openFiles({m_folder->path("new.skinnedmesh")});
        QTRY_VERIFY(tree()->accessibleDescription().startsWith("Nothing is compared."));
        QVERIFY(!find<QToolButton>("btnCompareAgain")->isEnabled());
    }

    void findsTheOtherOfGameAndMod()
    {
        AnimFile theirs = SampleModels::plainAnim();
        AnimFile mine = theirs;
        mine.blocks[0].speed = 2.0f;
        QDir(m_folder->path()).mkpath("mod/anims/boss");
        TestArchive made;
        for (const char *name : {"anims/boss/Walk.anim", "anims/walk.anim", "anims/top.anim"})
            made.add(name, SampleModels::bytesOf(theirs));
        QVERIFY(made.write(m_folder->path("game.kpf")));
        Settings::GamePath.setValue(m_folder->path("game.kpf"));
        Settings::OutputDir.setValue(m_folder->path("mod"));
        auto *action = find<QAction>("actionCompareOther");
        QVERIFY(!action->isEnabled());
        // From the mod's to the game's, and back.
        const QString own = m_folder->save("mod/anims/boss/walk.anim", mine);
        for (const QString &opened : {own, m_folder->path("game.kpf/anims/boss/Walk.anim")}) {
            m_window->openFiles({opened});
            action->trigger();
            QTRY_VERIFY(find<QLabel>("lblCompare")->text().endsWith("different in: 1"));
            QVERIFY(tree()->isVisible() && tree()->hasFocus());
        }
        QVERIFY(rows().contains("> Speed|1|2"));
        // By way of a link, and where the game keeps its kind what belongs to no mod.
        QVERIFY(QFile::link(m_folder->path("mod"), m_folder->path("linked")));
        Settings::OutputDir.setValue(m_folder->path("linked"));
        m_window->openFiles({own});
        action->trigger();
        QTRY_COMPARE(find<QLabel>("lblCompare")->toolTip(), m_folder->path("game.kpf/anims/boss/Walk.anim"));
        Settings::OutputDir.setValue({});
        m_window->openFiles({m_folder->save("top.anim", mine)});
        action->trigger();
        QTRY_COMPARE(find<QLabel>("lblCompare")->toolTip(), m_folder->path("game.kpf/anims/top.anim"));
        Settings::OutputDir.setValue(m_folder->path("mod"));
        m_window->openFiles({m_folder->save("mod/anims/boss/other.anim", mine)});
        Hand hand({Hand::press(QMessageBox::Ok)});
        action->trigger();
        QTRY_VERIFY(hand.seen.value(0).contains("'other.anim'"));
    }

private:
    template <typename Widget>
    Widget *find(const char *name) const
    {
        return ::find<Widget>(*m_window, name);
    }
    void compare(const QString &mine, const QString &theirs)
    {
        m_window->openFiles({mine});
        Hand hand({Hand::file(theirs)});
        QTest::keySequence(m_window.get(), QKeySequence("Ctrl+Shift+D"));
        QCOMPARE(hand.seen, QStringList("Compare with File"));
        QVERIFY(tree()->isVisible() && tree()->hasFocus());
    }
    QTreeWidget *tree() const { return find<QTreeWidget>("treeCompare"); }
    /// "> record|here|there", a mark for each level.
    QStringList rows() const
    {
        QStringList lines;
        for (QTreeWidgetItemIterator item(tree()); *item; ++item) {
            QString line = (*item)->text(0) + '|' + (*item)->text(1) + '|' + (*item)->text(2);
            for (auto *owner = (*item)->parent(); owner; owner = owner->parent())
                line.prepend("> ");
            lines += line;
        }
        return lines;
    }
    void choose(const QStringList &path,
                QItemSelectionModel::SelectionFlags flags = QItemSelectionModel::ClearAndSelect)
    {
        QTreeWidgetItem *found = tree()->invisibleRootItem();
        for (const QString &text : path) {
            QTreeWidgetItem *child = nullptr;
            for (int i = 0; i < found->childCount() && !child; ++i)
                child = found->child(i)->text(0) == text ? found->child(i) : nullptr;
            QVERIFY2(child, qUtf8Printable(text));
            found = child;
        }
        tree()->setCurrentItem(found, 0, flags | QItemSelectionModel::Rows);
    }
    void press(const char *button) const
    {
        QVERIFY2(find<QToolButton>(button)->isEnabled(), button);
        QTest::mouseClick(find<QToolButton>(button), Qt::LeftButton);
    }
    void undo() const { QTest::keySequence(m_window.get(), QKeySequence::Undo); }
    void save() const { QTest::keySequence(m_window.get(), QKeySequence::Save); }
    bool isModified() const { return m_window->windowTitle().endsWith(QStringLiteral(" * ")); }

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<MainWindow> m_window;
};

QTEST_MAIN(tst_Compare)
#include "tst_compare.moc"
