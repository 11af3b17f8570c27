// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Panes.h"
#include "RecordFilling.h"
#include "RecordItem.h"
#include "SkinnedMeshCommands.h"

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

    void notesStandBehindLabels()
    {
        Panes panes;
        m_mesh.nodes[1].name = QStringLiteral("upper arm.L");
        m_mesh.animationNames = {{9, QStringLiteral("walk")}};
        m_mesh.hotPoints = {{{}, 0, 1, 0xFFFF, 640}, {{}, 0, 2, 3, 0xFFFF}};
        m_mesh.vertices[0].nodeIndex = 1;
        m_mesh.vertices[3] = {{1.5f, 2, 3}, {}, {}, 1};
        AnimFile file;
        file.blocks.resize(2);
        for (AnimBlock &block : file.blocks)
            block.nodes.resize(3);
        file.blocks[1].nodes.resize(2);
        file.blocks[0].animId = 9;
        file.blocks[0].setRotationCount(2);
        file.blocks[0].setFrameCount(2);
        file.blocks[0].rotations.at(1, 1) = {0, 0, 1, 0};
        file.blocks[0].nodes[1].rotationIndex = file.blocks[0].nodes[2].rotationIndex = 0;
        file.blocks[0].frames[1].yawOffset = 0.5f;
        file.blocks[0].actions = {{12, 0, 1, {}, {1}}, {13, 2, 0xFFFF, {}, {300, 16384}}, {0, 99, 7, {}, {}}};
        file.blocks[1].actions.resize(1);
        file.blocks[1].actions[0].node = 1;
        StaticMesh rigid;
        rigid.surfaces = {{QStringLiteral("m/a/gold"), {0, 0, 0, 0, 0, 0}}};
        rigid.vertices.resize(1);
        Settings::HideMeshData.setValue(false);
        Settings::HideAnimData.setValue(false);
        panes.mesh.document.take(m_mesh, QStringLiteral("man"));
        panes.anim.document.take(file, QStringLiteral("man"));
        panes.rigid.document.take(rigid, QStringLiteral("man"));
        panes.anim.document.setNamingMesh(&panes.mesh.document.model());
        const auto noteOf = [](auto &pane, const RecordRef &record) {
            const RecordItem *item = pane.tree.findItem(record);
            return item->record() == record ? item->data(0, RecordItem::NoteRole).toString()
                                            : QStringLiteral("another");
        };
        using K = RecordKind;
        const std::pair<RecordRef, const char *> meshNotes[] = {
            {{K::Bones, {}}, ""},
            {{K::Bone, {0}}, "2 vertices · 2 children"},
            {{K::Bone, {1}}, "upper arm.L · 2 vertices"},
            {{K::Bone, {2}}, ""},
            {{K::ChildBone, {0, 0}}, "Left Root"},
            {{K::ChildBone, {0, 1}}, "upper arm.L"},
            {{K::HotPoint, {0}}, "upper arm.L · damage 2.5"},
            {{K::HotPoint, {1}}, "Left Root · Unnamed_Particle_3.particle"},
            {{K::SkinnedSurface, {0}}, "b · 1 triangle"},
            {{K::SkinnedTriangleIndex, {0, 2}}, "triangle 0"},
            {{K::SkinnedVertex, {3}}, "upper arm.L · at 1.5, 2, 3"},
        };
        for (const auto &[record, expected] : meshNotes)
            QCOMPARE(noteOf(panes.mesh, record), QString::fromUtf8(expected));
        const std::pair<RecordRef, const char *> animNotes[] = {
            {{K::AnimBlock, {0}}, "id 9 · walk · 2 frames"},
            {{K::AnimBlock, {1}}, "id 0 · Unnamed animation 0 · 0 frames"},
            {{K::AnimBone, {0, 1}}, "upper arm.L"},
            {{K::AnimFrame, {0, 0}}, ""},
            {{K::AnimFrame, {0, 1}}, "yaw 0.5"},
            {{K::RotationTrack, {0, 0}}, "upper arm.L · and 1 more"},
            {{K::RotationTrack, {0, 1}}, "no bone follows it"},
            {{K::RotationKey, {0, 1, 1}}, "180° about 0, 0, 1"},
            {{K::AnimAction, {0, 0}}, "frame 12 · Play Sound · Unnamed sound 1 · upper arm.L"},
            {{K::AnimAction, {0, 1}}, "frame 13 · Normal Damage · Radius 300"},
            {{K::AnimAction, {0, 2}}, "frame 0 · event 99 · bone 7"},
            // A block with other bones is another model's.
            {{K::AnimBone, {1, 1}}, ""},
            {{K::AnimAction, {1, 0}}, "frame 0 · Play Sound · Unnamed sound 0 variant 1 · bone 1"},
        };
        for (const auto &[record, expected] : animNotes)
            QCOMPARE(noteOf(panes.anim, record), QString::fromUtf8(expected));
        QCOMPARE(noteOf(panes.rigid, {K::StaticSurface, {0}}), QStringLiteral("gold · 2 triangles"));
        QCOMPARE(noteOf(panes.rigid, {K::StaticVertex, {0}}), QStringLiteral("at 0, 0, 0"));
        QCOMPARE(panes.mesh.tree.findItem({K::Bone, {1}})->data(0, Qt::AccessibleTextRole).toString(),
                 QStringLiteral("1: Right Upper Arm upper arm.L · 2 vertices"));

        // What the record holds now, from the item that stands there.
        const RecordItem *bone = panes.mesh.tree.findItem({K::Bone, {2}});
        panes.mesh.undo().push(
            new UC_SkinnedMeshVertNodeIndex(panes.mesh.document.editTarget(), {0, 0, 0}, 2));
        QCOMPARE(panes.mesh.tree.findItem({K::Bone, {2}}), bone);
        QCOMPARE(noteOf(panes.mesh, {K::Bone, {2}}), QStringLiteral("1 vertex"));
        panes.mesh.undo().undo();
        QCOMPARE(noteOf(panes.mesh, {K::Bone, {2}}), QString());

        // By names, not by figures: 300 and 2 would be numbers of other things.
        const auto found = [](KVTreeView &tree, const char *filter) {
            tree.setFilter(QLatin1String(filter));
            QStringList all;
            for (QTreeWidgetItemIterator it(&tree); *it; ++it)
                all += (*it)->text(0);
            return all;
        };
        const QStringList bones = found(panes.mesh.tree, "bone upper arm.l");
        QVERIFY(bones.contains("1: Right Upper Arm") && !bones.contains("2: Left Root"));
        QCOMPARE(found(panes.mesh.tree, "point particle_3").last(), QStringLiteral("1"));
        QCOMPARE(found(panes.anim.tree, "action sound upper").last(), QStringLiteral("0"));
        QCOMPARE(found(panes.anim.tree, "300"), QStringList("man.anim"));
        QVERIFY(found(panes.anim.tree, "walk").contains("Rotations (2)"));
    }

    void toolTipsHaveAllFields()
    {
        Panes panes;
        m_mesh.nodes[1].name = QStringLiteral("<arm>");
        m_mesh.hotPoints = {{{1, 2, 3}, 5, 1, 3, 0xFFFF}};
        m_mesh.surfaces[0].materialPath = QString(500, QLatin1Char('m'));
        AnimFile file;
        file.blocks.resize(1);
        file.blocks[0].nodes.resize(3);
        file.blocks[0].actions = {{12, 0, 1, {}, {1}}};
        panes.mesh.document.take(m_mesh, QStringLiteral("man"));
        panes.anim.document.take(file, QStringLiteral("man"));
        panes.anim.document.setNamingMesh(&panes.mesh.document.model());
        const auto tip = [](auto &pane, const RecordRef &record) {
            QTextDocument text;
            text.setHtml(pane.tree.findItem(record)->toolTip(0));
            return text.toPlainText().replace(QChar(0xa0), QLatin1Char(' ')).simplified();
        };
        QCOMPARE(tip(panes.mesh, {RecordKind::HotPoint, {0}}),
                 QStringLiteral("0 Position On Bone 1, 2, 3 Bone 1: <arm> Deal Damage no Particle Effect 1 "
                                "3 (Unnamed_Particle_3.particle) Particle Effect 2 65535 Flags 5"));
        const QString action = tip(panes.anim, {RecordKind::AnimAction, {0, 0}});
        QVERIFY2(action.startsWith("0 Event Type 0 (00: Play Sound) Frame 12 Bone 1: <arm> Offset 0, 0, 0 "
                                   "Sound ID 1 (Unnamed sound 1) Arg 2 0 Arg 3 0"),
                 qUtf8Printable(action));
        QVERIFY(tip(panes.mesh, {RecordKind::SkinnedSurface, {0}}).size() < 100);
        QVERIFY(tip(panes.mesh, {RecordKind::Bone, {1}}).contains("Impact Type 0 (Default)"));
        QCOMPARE(tip(panes.mesh, {RecordKind::Bones, {}}), QString());
    }

    void notesTakeNoMoreRoomThanThereIs()
    {
        MeshPane pane;
        m_mesh.nodes[0].name = QString(300, QLatin1Char('n'));
        pane.document.take(m_mesh, QStringLiteral("man"));
        pane.tree.findItem({RecordKind::Bones, {}})->setExpanded(true);
        pane.tree.resize(200, 300);
        pane.tree.show();
        QVERIFY(QTest::qWaitForWindowExposed(&pane.tree));
        QVERIFY(!pane.tree.horizontalScrollBar()->isVisible());
        // Muted beside the label, in either state.
        const RecordItem *item = pane.tree.findItem({RecordKind::Bone, {0}});
        const auto right = [&] {
            const QRect row = pane.tree.visualItemRect(item);
            return pane.tree.viewport()
                ->grab(QRect(row.right() - 30, row.top() + 1, 25, row.height() - 2))
                .toImage();
        };
        for (const bool selected : {false, true}) {
            pane.select({{selected ? RecordKind::Bone : RecordKind::Bones, {0}}});
            const QImage image = right();
            QSet<QRgb> colors;
            for (int x = 0; x < image.width(); ++x) {
                for (int y = 0; y < image.height(); ++y)
                    colors.insert(image.pixel(x, y));
            }
            QVERIFY(colors.size() > 1);
        }
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
