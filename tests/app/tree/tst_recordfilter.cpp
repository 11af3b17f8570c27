// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimCommands.h"
#include "FilterLine.h"
#include "KVTreeView.h"
#include "NameTables.h"
#include "Panes.h"
#include "RecordFilter.h"
#include "RecordItem.h"
#include "RecordOrder.h"

class tst_RecordFilter : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestSupport::useSettingsHome(m_home); }
    void matches()
    {
        const auto check = [](const char *filter, const char *text, bool expected) {
            QVERIFY2(RecordFilter(QString::fromUtf8(filter)).matches(QString::fromUtf8(text)) == expected,
                     filter);
        };
        check(" ,.- ", "vertex 3", true);
        check("ARM le", "bone 4 Left Upper Arm", true);
        check("left leg", "bone 4 Left Upper Arm", false);
        check("links arm", "Knochen 15: Links Oberarm", true);
        check("été", "surface 0 materials/ÉTÉ", true);
        check("ex 12", "vertex 12", false);
        check("ver 12", "vertex 12", true);
        check("vertex 1", "vertex 12", false);
        check("vertex 100-120", "vertex 100", true);
        check("vertex 120 .. 100", "vertex 120", true);
        check("vertex 100–120", "vertex 99", false);
        check("vertex 100-120", "vertex 121", false);
        check("event 30", "action 2 event 30: Play Voice", true);
        check("event 2", "action 2 event 30: Play Voice", false);
        check("action 2 voice", "action 2 event 30: Play Voice", true);
        check("2-3 30", "action 2 event 30: Play Voice", true);
        check("4", "action 2 event 30: Play Voice", false);
        check("999999999999999999999", "vertex 3", false);
        check("0-999999999999999999", "vertex 3", true);
    }

    void conditionsFilterToo()
    {
        // Real keys; what is behind in the tree, root and groups left out.
        Pane<AnimFile> pane(DocumentType::Anim, RecordKind::AnimFile);
        FilterLine line(pane.tree);
        AnimFile file = SampleModels::plainAnim();
        file.blocks[1].actions[2] = AnimAction();
        file.blocks[1].actions[2].frame = 17;
        file.blocks[1].actions[2].args[0] = 12.0f;
        pane.open(file);
        pane.tree.show();
        line.show();
        const auto found = [&](const char *text) {
            line.clear();
            QTest::keyClicks(&line, QString::fromUtf8(text));
            QTest::keyClick(&line, Qt::Key_Return);
            QVector<RecordRef> records;
            for (QTreeWidgetItemIterator it(&pane.tree, QTreeWidgetItemIterator::NoChildren); *it; ++it)
                records << static_cast<RecordItem *>(*it)->record();
            return records;
        };
        const QVector<RecordRef> action{{RecordKind::AnimAction, {1, 2}}};
        QCOMPARE(found("sound = 12, frame > 3"), action);
        QCOMPARE(found("actions frame 10-20"), action);
        QVERIFY(found("frame 10-20").contains(action.first()));
        // What is text as well finds both; what is none of it finds by the text.
        QVERIFY(found("frame 1").contains({RecordKind::AnimFrame, {0, 1}}));
        QCOMPARE(found("sound > twelve").size(), 1);
        // Hidden lists are shown where the line is about them alone.
        Settings::HideAnimData.setValue(true);
        pane.tree.updateHiding();
        QCOMPARE(found("yaw offset = 0, block 2").size(), 3);
        QVERIFY(!found("frame >= 0").contains({RecordKind::AnimFrame, {0, 1}}));
        Settings::HideAnimData.setValue(false);
    }

    void aLineShowsMatchesAndTheirParents()
    {
        Pane<SkinnedMesh> pane(DocumentType::SkinnedMesh, RecordKind::SkinnedMesh);
        FilterLine line(pane.tree);
        pane.open(SampleModels::plainMesh());
        pane.tree.show();
        line.show();
        const QStringList all = rows(pane.tree);
        pane.tree.findItem({RecordKind::HotPoints, {}})->setExpanded(true);
        const RecordRef bone{RecordKind::Bone, {2}};
        pane.select({bone});

        QTest::keyClicks(&line, "bone 1-2");
        const QStringList expected{pane.tree.label({RecordKind::SkinnedMesh, {}}), "Bones (4)",
                                   QString("1: ") + boneSymbolName(pane.document.model(), 1),
                                   QString("2: ") + boneSymbolName(pane.document.model(), 2)};
        QTRY_COMPARE(rows(pane.tree), expected);
        QCOMPARE(pane.tree.currentRecord(), bone);
        QCOMPARE(pane.tree.findItem({RecordKind::Bone, {1}})->record(), (RecordRef{RecordKind::Bone, {1}}));
        QCOMPARE(pane.tree.findItem({RecordKind::Bone, {3}})->record(), (RecordRef{RecordKind::Bones, {}}));

        QTest::keyClick(&line, Qt::Key_Return);
        QCOMPARE(pane.tree.currentRecord(), (RecordRef{RecordKind::Bone, {1}}));

        QTest::keyClick(&line, Qt::Key_Escape);
        QVERIFY(line.text().isEmpty());
        QCOMPARE(rows(pane.tree), all);
        QVERIFY(pane.tree.findItem({RecordKind::HotPoints, {}})->isExpanded());
        QCOMPARE(pane.tree.currentRecord(), (RecordRef{RecordKind::Bone, {1}}));
    }

    void hiddenRecordsAreFoundByTheirNoun()
    {
        Pane<SkinnedMesh> pane(DocumentType::SkinnedMesh, RecordKind::SkinnedMesh);
        pane.open(SampleModels::plainMesh());
        QCOMPARE(pane.tree.findItem({RecordKind::SkinnedVertex, {1}})->record().kind,
                 RecordKind::SkinnedVertices);
        pane.tree.setFilter(QStringLiteral("vertex 1"));
        QCOMPARE(pane.tree.findItem({RecordKind::SkinnedVertex, {1}})->record().kind,
                 RecordKind::SkinnedVertex);
        QCOMPARE(rows(pane.tree).size(), 3);
        // A bare number does not bring out every list that is hidden.
        pane.tree.setFilter(QStringLiteral("1"));
        QCOMPARE(pane.tree.findItem({RecordKind::SkinnedVertex, {1}})->record().kind,
                 RecordKind::SkinnedMesh);
        pane.tree.setFilter(QStringLiteral("materials/a"));
        QCOMPARE(rows(pane.tree).size(), 2 + int(pane.document.model().surfaces.size()));
    }

    void editsUnderAFilter()
    {
        Pane<AnimFile> pane(DocumentType::Anim, RecordKind::AnimFile);
        AnimFile file = SampleModels::plainAnim();
        file.blocks[1].actions[2].eventType = 30;
        pane.open(file);
        pane.tree.setFilter(QStringLiteral("event 30"));
        QCOMPARE(rows(pane.tree).size(), 4);
        const RecordRef action{RecordKind::AnimAction, {1, 2}};
        QCOMPARE(pane.tree.findItem(action)->record(), action);

        // A block is taken out before it.
        std::vector<AnimBlock> &blocks = pane.document.editTarget().edit().blocks;
        blocks.erase(blocks.begin());
        pane.document.changedDirectly({{RecordKind::AnimBlock, {0}}, -1, {RecordKind::AnimFile, {}}});
        const RecordRef moved{RecordKind::AnimAction, {0, 2}};
        QCOMPARE(pane.tree.findItem(moved)->record(), moved);
        QCOMPARE(pane.tree.findItem(action)->record().kind, RecordKind::AnimFile);

        // What an edit is to show is let through, with a word, until the filter is another one.
        const RecordRef hidden{RecordKind::AnimAction, {0, 0}};
        QSignalSpy told(&pane.tree, &KVTreeView::told);
        pane.document.undoStack()->push(new UC_AnimActionFrame(pane.document.editTarget(), hidden.index, 1));
        QCOMPARE(pane.tree.currentRecord(), hidden);
        QCOMPARE(told.count(), 1);
        pane.document.undoStack()->push(new UC_AnimAddAction(pane.document.editTarget(), {0, 0, 0}, {}));
        QCOMPARE(pane.tree.currentRecord(), hidden);
        const RecordRef later{RecordKind::AnimAction, {0, 1}};
        QVERIFY(pane.tree.findItem(later)->record() == later);
        pane.tree.setFilter(QStringLiteral("event"));
        pane.tree.setFilter(QStringLiteral("event 30"));
        QCOMPARE(pane.tree.findItem(later)->record().kind, RecordKind::AnimActions);
    }

    void clearingTheFilterKeepsWhatIsSelectedAndOpen()
    {
        Pane<SkinnedMesh> pane(DocumentType::SkinnedMesh, RecordKind::SkinnedMesh);
        pane.open(SampleModels::plainMesh());
        pane.tree.setFilter(QStringLiteral("bone 1-2"));
        pane.select({{RecordKind::Bone, {1}}, {RecordKind::Bone, {2}}});
        pane.tree.setFilter({});
        QCOMPARE(pane.tree.selectedRecords(RecordKind::Bone), QVector<RecordIndex>({{1}, {2}}));

        QVector<RecordRef> records{
            {RecordKind::Bone, {1}}, {RecordKind::HotPoint, {1}}, {RecordKind::SkinnedTriangleIndexes, {1}}};
        shift(records, {{RecordKind::HotPoint, {0}}, -1, {}});
        QCOMPARE(records[0].index[0] * 100 + records[1].index[0] * 10 + records[2].index[0], 101);
    }

private:
    /// The texts of everything in the tree, in order.
    static QStringList rows(QTreeWidget &tree)
    {
        QStringList texts;
        for (QTreeWidgetItemIterator it(&tree); *it; ++it)
            texts << (*it)->text(0);
        return texts;
    }

    QTemporaryDir m_home;
};

QTEST_MAIN(tst_RecordFilter)
#include "tst_recordfilter.moc"
