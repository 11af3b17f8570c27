// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Panes.h"
#include "RecordFilling.h"
#include "RecordItem.h"

namespace {
struct MeshPane : Pane<SkinnedMesh>
{
    MeshPane()
        : Pane(DocumentType::SkinnedMesh, RecordKind::SkinnedMesh)
    {}
};

/// The texts of an item's children.
QStringList texts(const QTreeWidgetItem *item)
{
    QStringList list;
    for (int i = 0; i < item->childCount(); ++i)
        list.append(item->child(i)->text(0));
    return list;
}
} // namespace

class tst_Tree : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        TestSupport::useSettingsHome(m_home);
        m_mesh = SkinnedMesh();
        m_mesh.nodes.resize(3);
        m_mesh.nodes[0].childNodes = {2, 1};
        m_mesh.nodes[1].symbolFlags = 0x46;
        m_mesh.hotPoints.resize(1);
        m_mesh.surfaces = {{QStringLiteral("m/a/b"), {0, 2, 1}}};
        m_mesh.vertices.resize(4);
    }

    void skinnedMesh()
    {
        for (const bool hidden : {true, false}) {
            Settings::HideMeshData.setValue(hidden);
            MeshPane pane;
            const QString path = m_home.filePath(QStringLiteral("a.b.skinnedmesh"));
            QVERIFY(!m_mesh.write(path));
            pane.openFile(path);
            const KVTreeView &tree = pane.tree;
            QCOMPARE(tree.topLevelItemCount(), 1);
            const QTreeWidgetItem *root = tree.topLevelItem(0);
            QCOMPARE(root->text(0), QStringLiteral("a.b.skinnedmesh"));
            QVERIFY(root->isExpanded());
            QCOMPARE(tree.currentItem(), root);
            QCOMPARE(texts(root),
                     QStringList({"Bones (3)", "Hot Points (1)", "Surfaces (1)", "Vertices (4)"}));
            QCOMPARE(texts(root->child(0)),
                     QStringList({"0: Left Root", "1: Right Upper Arm", "2: Left Root"}));
            const QTreeWidgetItem *bone = root->child(0)->child(0);
            const QTreeWidgetItem *surface = root->child(2)->child(0);
            if (hidden) {
                QCOMPARE(bone->childCount() + surface->childCount() + root->child(3)->childCount(), 0);
                // What has no item leads to the deepest that has.
                QCOMPARE(tree.findItem({RecordKind::SkinnedVertex, {3}}), root->child(3));
            } else {
                QCOMPARE(texts(bone), QStringList("Child Bone Indexes (2)"));
                QCOMPARE(texts(bone->child(0)), QStringList({"2", "1"}));
                QCOMPARE(texts(surface->child(0)), QStringList({"0", "2", "1"}));
                QCOMPARE(root->child(3)->childCount(), 4);
                for (QTreeWidgetItemIterator it(&pane.tree); *it; ++it)
                    QCOMPARE(tree.findItem(static_cast<RecordItem *>(*it)->record()), *it);
            }
        }
    }

    void namesStandBehindLabels()
    {
        Panes panes;
        m_mesh.nodes[1].name = QStringLiteral("upper arm.L");
        m_mesh.animationNames = {{9, QStringLiteral("walk")}};
        m_mesh.hotPoints[0].nodeId = 1;
        AnimFile file;
        file.blocks.resize(2);
        for (AnimBlock &block : file.blocks)
            block.nodes.resize(3);
        file.blocks[1].nodes.resize(2);
        file.blocks[0].animId = 9;
        file.blocks[0].setRotationCount(1);
        file.blocks[0].nodes[1].rotationIndex = 0;
        file.blocks[0].actions.resize(1);
        file.blocks[0].actions[0].node = 1;
        Settings::HideMeshData.setValue(false);
        Settings::HideAnimData.setValue(false);
        panes.mesh.document.take(m_mesh, QStringLiteral("man"));
        panes.anim.document.take(file, QStringLiteral("man"));
        panes.anim.document.setNamingMesh(&panes.mesh.document.model());
        const auto name = [](const auto &pane, const RecordRef &record) {
            const RecordItem *item = pane.tree.findItem(record);
            const bool isIt = item->record() == record && !item->text(0).contains("upper arm.L");
            return isIt ? item->data(0, RecordItem::NameRole).toString() : QStringLiteral("another");
        };
        for (const RecordRef &record :
             {RecordRef{RecordKind::Bone, {1}}, {RecordKind::ChildBone, {0, 1}}, {RecordKind::HotPoint, {0}}})
            QCOMPARE(name(panes.mesh, record), QStringLiteral("upper arm.L"));
        QCOMPARE(name(panes.mesh, {RecordKind::Bone, {2}}), QString());
        for (const RecordRef &record : {RecordRef{RecordKind::AnimBone, {0, 1}},
                                        {RecordKind::RotationTrack, {0, 0}},
                                        {RecordKind::AnimAction, {0, 0}}})
            QCOMPARE(name(panes.anim, record), QStringLiteral("upper arm.L"));
        QCOMPARE(name(panes.anim, {RecordKind::AnimBlock, {0}}), QStringLiteral("walk"));
        // A block with other bones is another model's.
        QCOMPARE(name(panes.anim, {RecordKind::AnimBone, {1, 1}}), QString());
        panes.mesh.tree.setFilter(QStringLiteral("bone upper arm.l"));
        QCOMPARE(texts(panes.mesh.tree.topLevelItem(0)->child(0)), QStringList("1: Right Upper Arm"));
        panes.anim.tree.setFilter(QStringLiteral("walk"));
        QCOMPARE(panes.anim.tree.topLevelItem(0)->childCount(), 1);
    }

    void animation()
    {
        AnimFile file;
        file.blocks.resize(2);
        file.blocks[1].nodes.resize(2);
        file.blocks[1].setTranslationCount(2);
        file.blocks[1].setRotationCount(1);
        file.blocks[1].setFrameCount(3);
        file.blocks[1].actions.resize(2);
        for (const bool hidden : {true, false}) {
            Settings::HideAnimData.setValue(hidden);
            Pane<AnimFile> pane(DocumentType::Anim, RecordKind::AnimFile);
            pane.open(file);
            const QTreeWidgetItem *root = pane.tree.topLevelItem(0);
            QCOMPARE(texts(root), QStringList({"Anim 0", "Anim 1"}));
            const QTreeWidgetItem *block = root->child(1);
            QCOMPARE(texts(block), QStringList({"Bones (2)", "Frames (3)", "Translations (2)",
                                                "Rotations (1)", "Key Frame Actions (2)"}));
            QCOMPARE(block->child(0)->childCount(), hidden ? 0 : 2);
            QCOMPARE(block->child(4)->childCount(), 2);
            if (!hidden)
                QCOMPARE(texts(block->child(1)), QStringList({"Frame 0", "Frame 1", "Frame 2"}));
        }
    }

    void changesAreSelected()
    {
        Settings::HideMeshData.setValue(false);
        MeshPane pane;
        pane.open(m_mesh);
        const QVector<RecordRef> vertices{{RecordKind::SkinnedVertex, {0}},
                                          {RecordKind::SkinnedVertex, {1}},
                                          {RecordKind::SkinnedVertex, {3}}};
        pane.select(vertices);
        int shown = 0;
        connect(&pane.tree, &KVTreeView::currentRecordChanged, this, [&shown] { ++shown; });
        emit pane.document.recordsChanged(vertices);
        QCOMPARE(pane.tree.selectedRecords(RecordKind::SkinnedVertex), QVector<RecordIndex>({{0}, {1}, {3}}));
        QCOMPARE(pane.tree.currentRecord(), vertices.first());
        QCOMPARE(shown, 1);

        emit pane.document.recordsChanged({{RecordKind::Bone, {2}}, {RecordKind::Bone, {1}}});
        QCOMPARE(pane.tree.selectedRecords(RecordKind::Bone), QVector<RecordIndex>({{1}, {2}}));
        // The one that single steps would have ended with.
        QCOMPARE(pane.tree.currentRecord(), (RecordRef{RecordKind::Bone, {1}}));

        // A jump in the history goes over steps of several kinds: those of the last one are selected.
        emit pane.document.recordsChanged({{RecordKind::HotPoint, {0}},
                                           {RecordKind::SkinnedVertex, {2}},
                                           {RecordKind::SkinnedVertex, {1}}});
        QCOMPARE(pane.tree.selectedItems().size(), 2);
        QCOMPARE(pane.tree.currentRecord(), (RecordRef{RecordKind::SkinnedVertex, {1}}));
    }

    void hidingTakesEffectAtOnce()
    {
        Settings::HideMeshData.setValue(false);
        MeshPane pane;
        pane.open(m_mesh);
        pane.tree.findItem({RecordKind::Bones, {}})->setExpanded(true);
        pane.select({{RecordKind::Bone, {1}}, {RecordKind::Bone, {2}}});
        for (const bool hidden : {true, false}) {
            Settings::HideMeshData.setValue(hidden);
            pane.tree.updateHiding();
            QCOMPARE(pane.tree.findItem({RecordKind::SkinnedVertices, {}})->childCount(), hidden ? 0 : 4);
            QVERIFY(pane.tree.findItem({RecordKind::Bones, {}})->isExpanded());
            QCOMPARE(pane.tree.selectedRecords(RecordKind::Bone), QVector<RecordIndex>({{1}, {2}}));
        }
        pane.select({{RecordKind::SkinnedVertex, {3}}});
        Settings::HideMeshData.setValue(true);
        pane.tree.updateHiding();
        QCOMPARE(pane.tree.currentRecord(), (RecordRef{RecordKind::SkinnedVertices, {}}));
    }

    void longListsAreFilledWhereTheyAreLookedAt()
    {
        AnimFile file;
        file.blocks.resize(RecordFilling::LongList + 1);
        for (AnimBlock &block : file.blocks)
            block.actions.resize(2);
        Pane<AnimFile> pane(DocumentType::Anim, RecordKind::AnimFile);
        pane.open(file);
        const auto block = [&pane](int row) {
            return static_cast<RecordItem *>(pane.tree.topLevelItem(0)->child(row));
        };
        int items = 0;
        for (QTreeWidgetItemIterator it(&pane.tree); *it; ++it)
            ++items;
        QCOMPARE(items, int(file.blocks.size()) + 1);
        QVERIFY(block(7)->hasBelow() && block(7)->isIncomplete());

        // By a key, by a look for a record below, and by an edit that is taken back.
        pane.tree.show();
        pane.tree.setCurrentItem(block(7));
        QTest::keyClick(&pane.tree, Qt::Key_Right);
        QCOMPARE(texts(block(7)), QStringList({"Bones (0)", "Frames (0)", "Translations (0)", "Rotations (0)",
                                               "Key Frame Actions (2)"}));
        pane.select({{RecordKind::AnimAction, {190, 1}}});
        QCOMPARE(pane.tree.currentRecord(), (RecordRef{RecordKind::AnimAction, {190, 1}}));
        QCOMPARE(pane.tree.currentItem()->parent()->parent(), block(190));
        const RecordRef edited{RecordKind::AnimAction, {200, 0}};
        emit pane.document.recordsChanged({edited});
        QCOMPARE(pane.tree.currentRecord(), edited);
        // What is open stays so where the list is made anew.
        pane.tree.setFilter(QStringLiteral("anim"));
        pane.tree.setFilter({});
        QVERIFY(block(7)->isExpanded() && block(7)->childCount() == 5);
        QCOMPARE(pane.tree.currentRecord(), edited);
        QVERIFY(block(8)->isIncomplete());
        QTest::keyClick(&pane.tree, Qt::Key_Home);
        QTest::keyClick(&pane.tree, Qt::Key_Asterisk);
        QVERIFY(block(8)->isExpanded() && block(8)->child(4)->childCount() == 2);
    }

private:
    QTemporaryDir m_home;
    SkinnedMesh m_mesh;
};

QTEST_MAIN(tst_Tree)
#include "tst_tree.moc"
