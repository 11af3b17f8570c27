// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SimilarMenu.h"
#include "StructureWindow.h"

class tst_StructureActions : public QObject, private StructureWindow
{
    Q_OBJECT

private slots:
    void init() { open(); }

    void keys()
    {
        // What is copied with Ctrl+C before the rest, what is current then, the key, the step that it makes
        // (none when nothing happens), and what is current after it.
        const auto check = [this](const char *name, const RecordRef &copied, const RecordRef &current,
                                  const char *key, const char *step, const RecordRef &next) {
            init();
            if (copied.kind != K::None)
                QTest::keySequence(select(copied), QKeySequence::Copy);
            KVTreeView *tree = select(current);
            const QUndoStack &stack = isOfMesh(current) ? mesh().undo() : anim().undo();
            const auto bytes = [&] { return isOfMesh(current) ? mesh().bytes() : anim().bytes(); };
            const QByteArray before = bytes();
            QTest::keySequence(tree, QKeySequence(QLatin1String(key)));
            QCOMPARE(name + stack.undoText(), QLatin1String(name) + QLatin1String(step));
            QVERIFY2(stack.count() == (*step ? 1 : 0), name);
            QVERIFY2(tree->currentRecord() == next, name);
            QCOMPARE(tree->selectedItems(), QList<QTreeWidgetItem *>{tree->currentItem()});
            QVERIFY2((bytes() == before) == !*step, name);
        };
        const RecordRef nothing;
        check("hot point, group", nothing, ref(K::HotPoints), "Ins", "Add Hot Point", ref(K::HotPoint, 0));
        check("hot point, behind", nothing, ref(K::HotPoint, 1), "Ins", "Add Hot Point", ref(K::HotPoint, 2));
        check("hot point, remove", nothing, ref(K::HotPoint, 0), "Del", "Remove Hot Point",
              ref(K::HotPoint, 0));
        check("hot point, paste", ref(K::HotPoint, 1), ref(K::HotPoint, 0), "Ctrl+V", "Paste Hot Point",
              ref(K::HotPoint, 1));
        check("hot point, paste first", ref(K::HotPoint, 1), ref(K::HotPoints), "Ctrl+V", "Paste Hot Point",
              ref(K::HotPoint, 0));
        check("hot point, nothing copied", nothing, ref(K::HotPoint, 0), "Ctrl+V", "", ref(K::HotPoint, 0));
        check("bone, remove", nothing, ref(K::Bone, 1), "Del", "", ref(K::Bone, 1));

        check("block, root", nothing, ref(K::AnimFile), "Ins", "Add Animation", ref(K::AnimBlock, 0));
        check("block, behind", nothing, ref(K::AnimBlock, 1), "Ins", "Add Animation", ref(K::AnimBlock, 2));
        check("block, remove", nothing, ref(K::AnimBlock, 2), "Del", "Remove Animation",
              ref(K::AnimBlock, 1));
        check("block, paste first", ref(K::AnimBlock, 2), ref(K::AnimFile), "Ctrl+V", "Paste Animation",
              ref(K::AnimBlock, 0));
        check("block, paste", ref(K::AnimBlock, 0), ref(K::AnimBlock, 2), "Ctrl+V", "Paste Animation",
              ref(K::AnimBlock, 3));
        check("block, on a frame", ref(K::AnimBlock, 0), ref(K::AnimFrame, 1, 2), "Ctrl+V", "",
              ref(K::AnimFrame, 1, 2));
        check("action, group", nothing, ref(K::AnimActions, 1), "Ins", "Add Key Frame Action",
              ref(K::AnimAction, 1, 0));
        check("action, behind", nothing, ref(K::AnimAction, 1, 1), "Ins", "Add Key Frame Action",
              ref(K::AnimAction, 1, 2));
        check("action, remove", nothing, ref(K::AnimAction, 2, 0), "Del", "Remove Key Frame Action",
              ref(K::AnimAction, 2, 0));
    }

    void onlyWhatIsHighlightedGoes()
    {
        SkinnedMesh model = SampleModels::skinnedMesh();
        model.hotPoints.resize(5);
        for (size_t i = 0; i < 5; ++i)
            model.hotPoints[i].nodeId = quint16(i);
        mesh().open(model);
        KVTreeView *tree = select(ref(K::HotPoint, 1));
        const auto click = [tree](int point, Qt::KeyboardModifiers keys) {
            const QRect place = tree->visualItemRect(tree->findItem(ref(K::HotPoint, point)));
            QTest::mouseClick(tree->viewport(), Qt::LeftButton, keys, place.center());
        };
        click(1, {});
        click(4, Qt::ShiftModifier);
        click(3, Qt::ControlModifier);
        QCOMPARE(tree->currentRecord(), ref(K::HotPoint, 1));
        QTest::keyClick(tree, Qt::Key_Delete);
        const auto &points = mesh().document.model().hotPoints;
        QCOMPARE(points.size(), size_t(2));
        QVERIFY(points[0].nodeId == 0 && points[1].nodeId == 3);
        // Nothing is highlighted: nothing is edited or removed.
        click(1, {});
        click(1, Qt::ControlModifier);
        QCOMPARE(tree->currentRecord(), RecordRef());
        QTest::keyClick(tree, Qt::Key_Delete);
        QCOMPARE(points.size(), size_t(2));
    }

    void newBlocks()
    {
        // As many bones as the first block, in its pose, and a frame.
        select(ref(K::AnimFile));
        m_actions->OnActionAddAnimBlock();
        const AnimBlock added = anim().document.model().blocks[0];
        QCOMPARE(added.nodes.size(), size_t(2));
        QCOMPARE(added.nodes[1].initialPosition, QVector3D(1.0f, 2.0f, 3.0f));
        QCOMPARE(int(added.nodes[1].translationIndex), 0xFFFF);
        QCOMPARE(added.frameCount(), 1);

        // Without a block as many as the mesh.
        while (!anim().document.model().blocks.empty())
            m_actions->OnActionRemoveAnimBlock();
        QCOMPARE(anim().tree.currentRecord(), ref(K::AnimFile));
        m_actions->OnActionAddAnimBlock();
        QCOMPARE(anim().document.model().blocks[0].nodes.size(), mesh().document.model().nodes.size());
    }

    void oneNoticeAStep()
    {
        int notices = 0;
        connect(&mesh().document, &Document::structuresChanged, this, [&notices] { ++notices; });
        const QByteArray before = mesh().bytes();
        mesh().tree.selectRecords({ref(K::HotPoint, 0), ref(K::HotPoint, 1)}, ref(K::HotPoint, 1));
        m_actions->OnActionRemoveHotPoint();
        QVERIFY(mesh().document.model().hotPoints.empty());
        QCOMPARE(notices, 1);
        QCOMPARE(mesh().undo().count(), 1);
        mesh().undo().undo();
        QCOMPARE(notices, 2);
        QCOMPARE(mesh().bytes(), before);
    }

    void copiesSurviveAnotherDocument()
    {
        select(ref(K::AnimBlock, 1));
        m_actions->OnActionCopyAnimBlock();
        AnimFile other;
        other.blocks.resize(1);
        anim().open(other);
        select(ref(K::AnimFile));
        m_actions->OnActionPasteAnimBlock();
        QCOMPARE(anim().document.model().blocks.size(), size_t(2));
        QCOMPARE(anim().document.model().blocks[0].animId, 101);
    }

    void openBranchesStayOpen()
    {
        const auto open = [this] {
            QStringList all;
            for (QTreeWidgetItemIterator it(&anim().tree); *it; ++it) {
                if ((*it)->isExpanded())
                    all << (*it)->data(0, Qt::UserRole).toStringList().mid(0, 2).join('-');
            }
            return all;
        };
        anim().tree.findItem(ref(K::AnimBlock, 0))->setExpanded(true);
        anim().tree.findItem(ref(K::AnimBlock, 2))->setExpanded(true);
        anim().tree.findItem(ref(K::Translations, 2))->setExpanded(true);
        const QStringList before = open();
        QCOMPARE(before, QStringList({"14-0", "15-0", "15-2", "21-2"}));
        select(ref(K::AnimBlock, 0));
        m_actions->OnActionAddAnimBlock();
        QCOMPARE(open(), QStringList({"14-0", "15-0", "15-3", "21-3"}));
        anim().undo().undo();
        QCOMPARE(open(), before);
        select(ref(K::AnimBlock, 0));
        m_actions->OnActionRemoveAnimBlock();
        QCOMPARE(open(), QStringList({"14-0", "15-1", "21-1"}));
    }

    void menus()
    {
        const auto check = [this](const RecordRef &current, const QStringList &texts) {
            QMenu *menu = openMenu(select(current));
            QVERIFY(menu);
            QStringList offered;
            for (const QAction *action : menu->actions()) {
                if (action->isVisible() && !action->isSeparator())
                    offered << action->text() + QLatin1String(action->isEnabled() ? "" : " (off)");
            }
            QCOMPARE(offered, texts + QStringList({"Undo (off)", "Redo (off)"}));
            menu->close();
        };
        check(ref(K::Bone, 1), {"Cut", "Copy Bone", "Paste Bone (off)", "Copy Bone Flags", "Duplicate",
                                "Move Up", "Move Down", "Select S&imilar"});
        check(ref(K::HotPoint, 1),
              {"Add Hot Point", "Remove Hot Point", "Cut", "Copy Hot Point", "Paste Hot Point (off)",
               "Duplicate", "Move Up", "Move Down", "Select S&imilar"});
        check(ref(K::SkinnedSurface, 0), {"Cut", "Copy Surface", "Paste Surface (off)", "Duplicate",
                                          "Move Up", "Move Down", "Select S&imilar"});
        check(ref(K::AnimBlock, 1), {"Add Animation", "Remove Animation", "Cut", "Copy Animation",
                                     "Paste Animation (off)", "Duplicate", "Move Up", "Move Down",
                                     "Select S&imilar", "&Expand All Below", "&Collapse All Below"});
        check(ref(K::Rotations, 1), {"Paste Rotation Track (off)", "Change Rotation Count…"});
    }

    void branches()
    {
        KVTreeView *tree = select(ref(K::AnimBlock, 1));
        const auto choose = [tree](const QString &text) {
            QMenu *menu = openMenu(tree);
            for (QAction *action : menu->actions()) {
                if (action->text() == text)
                    action->trigger();
            }
            menu->close();
        };
        choose(QStringLiteral("&Expand All Below"));
        QVERIFY(tree->findItem(ref(K::AnimBlock, 1))->isExpanded());
        QVERIFY(tree->findItem(ref(K::TranslationTrack, 1, 0))->isExpanded());
        QVERIFY(!tree->findItem(ref(K::AnimBlock, 0))->isExpanded());
        choose(QStringLiteral("&Collapse All Below"));
        QVERIFY(!tree->findItem(ref(K::AnimBlock, 1))->isExpanded());
        QVERIFY(!tree->findItem(ref(K::TranslationTrack, 1, 0))->isExpanded());
    }

    void counts()
    {
        const struct
        {
            RecordRef group;
            int least, current;
            void (AnimBlock::*resize)(int);
        } rows[] = {{ref(K::AnimFrames, 1), 1, 4, &AnimBlock::setFrameCount},
                    {ref(K::Translations, 1), 0, 1, &AnimBlock::setTranslationCount},
                    {ref(K::Rotations, 1), 0, 0, &AnimBlock::setRotationCount}};
        AnimFile expected = animFile();
        int notices = 0;
        connect(&anim().document, &Document::structuresChanged, this, [&notices] { ++notices; });
        for (const auto &row : rows) {
            notices = 0;
            for (const char *text : {"", "7"}) {
                bool asked = false;
                QTimer::singleShot(0, this, [&] {
                    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
                    auto *box = dialog->findChild<IntSpinBox *>(QStringLiteral("sbSize"));
                    QVERIFY(dialog->findChild<QLabel *>(QStringLiteral("lblConsequence"))
                                ->text()
                                .endsWith(QLatin1String("cannot be undone.")));
                    asked =
                        box->minimum() == row.least && box->maximum() == 65535 && box->value() == row.current;
                    // The number is selected: typing replaces it.
                    QTest::keyClicks(box, QLatin1String(text));
                    QTest::keyClick(box, Qt::Key_Return);
                });
                select(row.group);
                QMenu *menu = openMenu(&anim().tree);
                for (QAction *action : menu->actions()) {
                    if (action->isVisible() && action->text().startsWith(QLatin1String("Change")))
                        menu->setActiveAction(action);
                }
                QTest::keyClick(menu, Qt::Key_Return);
                QVERIFY(asked);
                QCOMPARE(notices, text[0] ? 1 : 0);
            }
            (expected.blocks[1].*row.resize)(7);
            QCOMPARE(anim().bytes(), bytesOf(expected));
            QCOMPARE(anim().tree.currentRecord(), row.group);
            const QTreeWidgetItem *item = anim().tree.currentItem();
            QVERIFY(item->isExpanded() && item->text(0).endsWith(QLatin1String("(7)")));
            QCOMPARE(item->childCount(), 7);
            QVERIFY(anim().undo().isClean());
        }
    }

    void selectsWhatIsSimilar()
    {
        AnimFile file = animFile();
        file.blocks[0].actions[0].frame = 3;
        anim().open(file);
        const auto choose = [](KVTreeView *tree, const QString &text) {
            QMenu *menu = openMenu(tree);
            auto *similar = tree->findChild<SimilarMenu *>();
            emit similar->aboutToShow();
            for (QAction *action : similar->actions()) {
                if (action->text() == text)
                    action->trigger();
            }
            menu->close();
        };
        // Of all blocks, where the same.
        KVTreeView *tree = select(ref(K::AnimAction, 1, 1));
        choose(tree, "Frame: 3");
        QCOMPARE(tree->selectedRecords(K::AnimAction),
                 QVector<RecordIndex>({{0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {2, 1, 0}}));
        QCOMPARE(tree->currentRecord(), ref(K::AnimAction, 1, 1));
        tree = select(ref(K::Bone, 0));
        choose(tree, "Flags: 0");
        QCOMPARE(tree->selectedRecords(K::Bone), QVector<RecordIndex>({{0, 0, 0}, {2, 0, 0}}));
        QVERIFY(mesh().undo().count() == 0 && anim().undo().count() == 0);
    }

    void boneFlags()
    {
        m_actions->OnSkinMeshCopyBoneFlags();
        QCOMPARE(QApplication::clipboard()->text(),
                 QStringLiteral("BoneSFlags_0 0\nBoneSFlags_1 -71\nBoneSFlags_2 5\n"));
    }
};

QTEST_MAIN(tst_StructureActions)
#include "tst_structureactions.moc"
