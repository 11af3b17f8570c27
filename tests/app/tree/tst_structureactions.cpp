// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Panes.h"
#include "RecordItem.h"
#include "SimilarMenu.h"
#include "StructureActions.h"
#include "Validation.h"

using SampleModels::bytesOf;
using K = RecordKind;

namespace {
RecordRef ref(K kind, int first = 0, int second = 0)
{
    return {kind, {first, second, 0}};
}

AnimFile animFile()
{
    AnimFile file;
    file.blocks.resize(3);
    for (int i = 0; i < 3; ++i) {
        file.blocks[size_t(i)].animId = 100 + i;
        file.blocks[size_t(i)].nodes.resize(2);
        file.blocks[size_t(i)].nodes[1].initialPosition = {1.0f, 2.0f, 3.0f};
        file.blocks[size_t(i)].nodes[1].translationIndex = 0;
        file.blocks[size_t(i)].setTranslationCount(1);
        file.blocks[size_t(i)].setFrameCount(4);
        file.blocks[size_t(i)].actions.resize(2);
        file.blocks[size_t(i)].actions[1].frame = 3;
    }
    return file;
}
} // namespace

namespace {
std::vector<Finding> findingsOf(const SkinnedMesh &mesh)
{
    return validate(mesh);
}
std::vector<Finding> findingsOf(const AnimFile &file)
{
    return validate(file, nullptr, {});
}
std::vector<Finding> findingsOf(const StaticMesh &mesh)
{
    return validate(mesh);
}
} // namespace

class tst_StructureActions : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        TestSupport::useSettingsHome(m_home);
        QApplication::clipboard()->clear();
        Settings::HideAnimData.setValue(false);
        m_panes.reset();
        m_window = std::make_unique<QWidget>();
        m_panes = std::make_unique<Panes>();
        auto *layout = new QVBoxLayout(m_window.get());
        for (KVTreeView *tree : {&mesh().tree, &anim().tree, &m_panes->rigid.tree})
            layout->addWidget(tree);
        m_actions = new StructureActions({mesh().document, &mesh().tree}, {anim().document, &anim().tree},
                                         {m_panes->rigid.document, &m_panes->rigid.tree}, m_window.get());
        SkinnedMesh model = SampleModels::skinnedMesh();
        model.nodes[2].symbolFlags = 5;
        mesh().open(model);
        anim().open(animFile());
        m_window->resize(500, 900);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

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

    void recordsTravelAsText()
    {
        struct Row
        {
            RecordRef first, second, group;
            const char *key;
        };
        const Row rows[] = {
            {ref(K::HotPoint, 0), ref(K::HotPoint, 1), ref(K::HotPoints), "hotPoints"},
            {ref(K::ChildBone, 0, 1), ref(K::ChildBone, 0, 2), ref(K::ChildBones, 0), "childBones"},
            {ref(K::SkinnedSurface, 0), ref(K::SkinnedSurface, 1), ref(K::SkinnedSurfaces), "surfaces"},
            {ref(K::AnimBlock, 0), ref(K::AnimBlock, 1), ref(K::AnimFile), "blocks"},
            {ref(K::AnimAction, 1, 0), ref(K::AnimAction, 1, 1), ref(K::AnimActions, 1), "actions"},
        };
        for (const Row &row : rows) {
            init();
            Settings::HideMeshData.setValue(false);
            SkinnedMesh model = SampleModels::skinnedMesh();
            model.vertices.resize(65535);
            mesh().open(model);
            const bool isMesh = isOfMesh(row.first);
            KVTreeView *tree = select(row.first);
            const auto bytes = [&] { return isMesh ? mesh().bytes() : anim().bytes(); };
            QUndoStack &stack = isMesh ? mesh().undo() : anim().undo();
            const auto press = [&](const char *keys) {
                QTest::keySequence(tree, QKeySequence(QLatin1String(keys)));
            };
            const auto both = [&] {
                tree->selectRecords({row.first, row.second}, row.first);
                return tree->selectedRecords(row.first.kind);
            };
            const QByteArray before = bytes();
            const bool isNested = row.first.kind == K::ChildBone || row.first.kind == K::AnimAction;
            const size_t at = isNested ? 1 : 0;
            const QVector<RecordIndex> indexes = both();
            QCOMPARE(indexes.size(), 2);

            press("Ctrl+C");
            const QString text = QApplication::clipboard()->text();
            QVERIFY2(text.startsWith(QStringLiteral("{\n \"%1\": [").arg(row.key)), qUtf8Printable(text));
            QCOMPARE(bytes(), before);
            // Out and in again: nothing has changed; the step before is one.
            press("Ctrl+X");
            const QByteArray without = bytes();
            QVERIFY(without != before);
            QCOMPARE(stack.count(), 1);
            tree = indexes[0][at] == 0 ? select(row.group) : select({row.first.kind, row.first.index});
            if (indexes[0][at] > 0) {
                RecordRef last = row.first;
                --last.index[at];
                select(last);
            }
            press("Ctrl+V");
            QCOMPARE(bytes(), before);
            QCOMPARE(tree->selectedRecords(row.first.kind), indexes);
            QCOMPARE(stack.count(), 2);
            stack.undo();
            QCOMPARE(bytes(), without);
            stack.undo();
            QCOMPARE(bytes(), before);

            // A copy of each behind them, as the text editor of another program may have it, too.
            both();
            press("Ctrl+D");
            const QByteArray twice = bytes();
            QVERIFY(twice.size() > before.size());
            stack.undo();
            select(row.second);
            QApplication::clipboard()->setText(text.mid(text.indexOf('[')).section(']', 0, -2) + "]\r\n");
            press("Ctrl+V");
            QCOMPARE(bytes(), twice);
            stack.undo();

            // Up and down again, and not beyond the ends.
            select(row.second);
            press("Ctrl+Shift+Up");
            QVERIFY(tree->currentRecord() == row.first);
            QVERIFY(row.first.kind == K::AnimAction || bytes() != before);
            press("Ctrl+Shift+Down");
            QCOMPARE(bytes(), before);
            stack.setIndex(0);
            tree->selectRecords({row.first, row.second}, row.first);
            for (int i = 0; i < 4; ++i)
                press("Ctrl+Shift+Up");
            QCOMPARE(stack.index(), int(indexes[0][at]));

            // What does not fit gives way to what was copied inside; where there is nothing, it says why.
            stack.setIndex(0);
            const bool hasBuffer = row.first.kind == K::HotPoint || row.first.kind == K::AnimBlock;
            for (const char *other : {"{\"vertices\": []}", "[{}]", "[70000]", "{"}) {
                QApplication::clipboard()->setText(other);
                select(row.first);
                const QString said = hasBuffer ? QString() : saidOf([&] { press("Ctrl+V"); });
                if (hasBuffer)
                    press("Ctrl+V");
                QVERIFY2(hasBuffer || said.contains("Line 1, column"), qUtf8Printable(other + said));
                QCOMPARE(stack.index(), hasBuffer ? 1 : 0);
                QCOMPARE(bytes() == before, !hasBuffer);
                stack.setIndex(0);
            }
        }
        init();
        QApplication::clipboard()->setText("{\"blocks\": []}");
        KVTreeView *tree = select(ref(K::HotPoint, 0));
        QCOMPARE(saidOf([tree] { QTest::keySequence(tree, QKeySequence::Paste); }),
                 QString("The clipboard holds animations, not hot points."));
        // What is cut is in the buffer, too.
        QTest::keySequence(tree, QKeySequence::Cut);
        QApplication::clipboard()->clear();
        QTest::keySequence(tree, QKeySequence::Paste);
        QCOMPARE(mesh().document.model().hotPoints.size(), size_t(2));
    }

    void surfacesTravelWithTheirMesh()
    {
        mesh().open(SampleModels::plainMesh());
        KVTreeView *tree = select(ref(K::SkinnedSurface, 0));
        const auto press = [&](const char *keys) {
            return saidOf([&] { QTest::keySequence(tree, QKeySequence(QLatin1String(keys))); });
        };
        const QByteArray before = mesh().bytes();
        QApplication::clipboard()->setText("{\"material\": \"m/a/b\", \"triangles\": [0, 1, 3]}");
        QVERIFY(press("Ctrl+V").contains("a corner at vertex 3, and the mesh has 3 vertices"));
        QCOMPARE(mesh().bytes(), before);
        tree->selectRecords({ref(K::SkinnedSurface, 0), ref(K::SkinnedSurface, 1), ref(K::SkinnedSurface, 2)},
                            ref(K::SkinnedSurface, 1));
        QVERIFY(press("Ctrl+X").contains("The last surface stays"));
        QVERIFY(mesh().undo().count() == 0 && mesh().bytes() == before);

        // Of a static mesh, too, and from one kind to the other.
        QTest::keySequence(tree, QKeySequence::Copy);
        m_panes->rigid.open(SampleModels::plainStatic());
        tree = &m_panes->rigid.tree;
        tree->setFocus();
        tree->selectRecords({ref(K::StaticSurface, 1)}, ref(K::StaticSurface, 1));
        const QByteArray rigid = m_panes->rigid.bytes();
        QCOMPARE(press("Ctrl+V"), QString());
        QCOMPARE(tree->selectedRecords(K::StaticSurface), QVector<RecordIndex>({{2}, {3}, {4}}));
        for (const char *keys : {"Ctrl+X", "Ctrl+Shift+Up", "Ctrl+D"})
            QCOMPARE(press(keys), QString());
        QCOMPARE(m_panes->rigid.document.model().surfaces.size(), size_t(4));
        QCOMPARE(m_panes->rigid.undo().count(), 4);
        m_panes->rigid.undo().setIndex(0);
        QCOMPARE(m_panes->rigid.bytes(), rigid);
    }

    void tracksTakeTheirBonesAlong()
    {
        AnimFile file = animFile();
        AnimBlock &block = file.blocks[1];
        block.setTranslationCount(3);
        block.nodes.resize(3);
        block.nodes[0].translationIndex = block.nodes[2].translationIndex = 2;
        for (int track = 0; track < 3; ++track)
            block.translations.at(track, 1) = {float(track), 0, 0};
        anim().open(file);
        const QByteArray before = anim().bytes();
        KVTreeView *tree = select(ref(K::TranslationTrack, 1, 2));
        QSignalSpy told(tree, &KVTreeView::told);
        const auto press = [&](const char *keys) {
            return saidOf([&] { QTest::keySequence(tree, QKeySequence(QLatin1String(keys))); });
        };
        // The tracks by the first component of a key, and what the bones follow.
        const auto state = [this] {
            const AnimBlock &now = anim().document.model().blocks[1];
            QStringList tracks, bones;
            for (int track = 0; track < now.translations.trackCount(); ++track)
                tracks += QString::number(double(now.translations.at(track, 1).x()));
            for (const AnimNode &bone : now.nodes)
                bones += QString::number(bone.translationIndex);
            return tracks.join(' ') + " | " + bones.join(' ');
        };
        QCOMPARE(state(), QString("0 1 2 | 2 0 2"));
        QCOMPARE(press("Ctrl+Shift+Down"), QString());
        QCOMPARE(anim().undo().count(), 0);
        QCOMPARE(press("Ctrl+Shift+Up"), QString());
        QCOMPARE(state(), QString("0 2 1 | 1 0 1"));
        QCOMPARE(tree->currentRecord(), ref(K::TranslationTrack, 1, 1));
        QCOMPARE(press("Ctrl+D"), QString());
        QCOMPARE(state(), QString("0 2 2 1 | 1 0 1"));
        QCOMPARE(tree->currentRecord(), ref(K::TranslationTrack, 1, 2));
        QVERIFY(told.takeLast().at(0).toString().contains("No bone follows"));
        tree->selectRecords({ref(K::TranslationTrack, 1, 0), ref(K::TranslationTrack, 1, 1)},
                            ref(K::TranslationTrack, 1, 1));
        QCOMPARE(press("Ctrl+X"), QString());
        QCOMPARE(state(), QString("2 1 | 65535 65535 65535"));
        QVERIFY(told.takeLast().at(0).toString().contains("initial position: 3"));
        QCOMPARE(press("Ctrl+V"), QString());
        QCOMPARE(state(), QString("2 0 2 1 | 65535 65535 65535"));
        QCOMPARE(anim().undo().count(), 4);
        for (const char *expected : {"2 1 | 65535 65535 65535", "0 2 2 1 | 1 0 1", "0 2 1 | 1 0 1"}) {
            anim().undo().undo();
            QCOMPARE(state(), QString(expected));
        }
        anim().undo().undo();
        QCOMPARE(anim().bytes(), before);
        QCOMPARE(tree->currentRecord(), ref(K::TranslationTrack, 1, 2));

        tree->selectRecords({ref(K::TranslationTrack, 0, 0), ref(K::TranslationTrack, 1, 2)},
                            ref(K::TranslationTrack, 1, 2));
        QVERIFY(press("Ctrl+X").contains("of several animations"));
        QVERIFY(anim().undo().index() == 0 && anim().bytes() == before);
        select(ref(K::TranslationTrack, 1, 2));
        press("Ctrl+C");

        // Other tables, other lengths, other things.
        select(ref(K::Rotations, 1));
        QVERIFY(press("Ctrl+V").contains("translation tracks, not rotation tracks"));
        anim().document.editTarget().edit().blocks[2].setFrameCount(7);
        select(ref(K::Translations, 2));
        QVERIFY(press("Ctrl+V").contains("4 keys each, and the animation has 7 frames"));
        QApplication::clipboard()->setText("[[[1, 2]]]");
        QVERIFY(press("Ctrl+V").contains("Line 1, column"));
        QCOMPARE(anim().undo().index(), 0);
    }

    void bonesTakeTheirNumbersAlong()
    {
        SkinnedMesh model;
        model.nodes.resize(5);
        const int parents[] = {255, 0, 1, 2, 0};
        for (int b = 0; b < 5; ++b) {
            model.nodes[size_t(b)].parentNode = quint8(parents[b]);
            model.nodes[size_t(b)].name = QString(QChar('a' + b));
            if (b > 0)
                model.nodes[size_t(parents[b] % 255)].childNodes.push_back(quint16(b));
        }
        model.surfaces = {{QString(), {0, 0, 0}}};
        model.vertices = {{{}, {}, {0, 0, 1}, 4}};
        mesh().open(model);
        const QByteArray before = mesh().bytes();
        KVTreeView *tree = select(ref(K::Bone, 4));
        QSignalSpy told(tree, &KVTreeView::told);
        const auto press = [&](const char *keys) {
            return saidOf([&] { QTest::keySequence(tree, QKeySequence(QLatin1String(keys))); });
        };
        // Each bone with its parent, and the bone of the vertex, by their names.
        const auto state = [this] {
            const SkinnedMesh &now = mesh().document.model();
            QString text;
            for (const SkinnedMeshNode &bone : now.nodes)
                text +=
                    bone.name +
                    (bone.parentNode < now.nodes.size() ? now.nodes[bone.parentNode].name : QString("-")) +
                    QLatin1Char(' ');
            for (const Finding &finding : validate(now))
                text += finding.text;
            return text + now.nodes[now.vertices[0].nodeIndex].name;
        };
        QCOMPARE(state(), QString("a- ba cb dc ea e"));
        QCOMPARE(press("Ctrl+Shift+Up"), QString());
        QCOMPARE(state(), QString("a- ba cb ea dc e"));
        QVERIFY(told.takeLast().at(0).toString().contains("another file"));
        QVERIFY(press("Ctrl+X").contains("Bone 3 moves vertices (1)"));
        // A bone with one that hangs on it.
        tree->selectRecords({ref(K::Bone, 2), ref(K::Bone, 4)}, ref(K::Bone, 2));
        QCOMPARE(press("Ctrl+D"), QString());
        QCOMPARE(state(), QString("a- ba cb ea dc cb dc e"));
        QCOMPARE(int(mesh().document.model().nodes[6].parentNode), 5);
        QCOMPARE(tree->selectedRecords(K::Bone), QVector<RecordIndex>({{5}, {6}}));
        QCOMPARE(press("Ctrl+X"), QString());
        QCOMPARE(state(), QString("a- ba cb ea dc e"));
        // They come back beside another one, the lower still on the upper.
        select(ref(K::Bone, 3));
        QCOMPARE(press("Ctrl+V"), QString());
        QCOMPARE(state(), QString("a- ba cb ea ca dc dc e"));
        QCOMPARE(int(mesh().document.model().nodes[5].parentNode), 4);
        mesh().undo().undo();
        QApplication::clipboard()->setText(QApplication::clipboard()->text().replace("numbers", "others"));
        QVERIFY(press("Ctrl+V").contains("\"numbers\" was expected"));
        select(ref(K::Bone, 1));
        QVERIFY(press("Ctrl+Shift+Up").contains("Bone 0 stays"));
        select(ref(K::Bone, 0));
        QVERIFY(press("Ctrl+X").contains("Bone 0 stays"));
        QCOMPARE(mesh().undo().index(), 3);
        mesh().undo().setIndex(0);
        QCOMPARE(mesh().bytes(), before);
    }

    void bonesOfAnimationsGoTogether()
    {
        AnimFile file = animFile();
        for (AnimBlock &block : file.blocks) {
            block.nodes.resize(4);
            for (size_t b = 0; b < 4; ++b)
                block.nodes[b].initialPosition = {float(b), 0, 0};
            block.actions[0].node = 2;
        }
        file.blocks[2].nodes.resize(3);
        anim().open(file);
        const QByteArray before = anim().bytes();
        KVTreeView *tree = select(ref(K::AnimBone, 1, 2));
        QSignalSpy told(tree, &KVTreeView::told);
        const auto press = [&](const char *keys) {
            return saidOf([&] { QTest::keySequence(tree, QKeySequence(QLatin1String(keys))); });
        };
        const auto state = [this](size_t number) {
            const AnimBlock &block = anim().document.model().blocks[number];
            QString text;
            for (const AnimNode &bone : block.nodes)
                text += QString::number(double(bone.initialPosition.x())) + QLatin1Char(' ');
            return text + QString::number(block.actions[0].node);
        };
        QCOMPARE(press("Ctrl+Shift+Down"), QString());
        QVERIFY(state(0) == "0 1 3 2 3" && state(1) == state(0) && state(2) == "0 1 2 2");
        QVERIFY(told.takeLast().at(0).toString().contains("as many bones: 2. The mesh is another file"));
        QVERIFY(press("Ctrl+X").contains("happens at bone 3"));
        QCOMPARE(press("Ctrl+C") + press("Ctrl+Shift+Down"), QString());
        QCOMPARE(press("Ctrl+D"), QString());
        QVERIFY(state(0) == "0 1 3 2 2 3" && state(1) == state(0));
        QCOMPARE(tree->currentRecord(), ref(K::AnimBone, 1, 4));
        QCOMPARE(press("Ctrl+X"), QString());
        QCOMPARE(state(1), QString("0 1 3 2 3"));
        select(ref(K::AnimBones, 2));
        QCOMPARE(press("Ctrl+V"), QString());
        QVERIFY(state(2) == "0 2 1 2 3" && state(1) == "0 1 3 2 3");
        select(ref(K::AnimBone, 0, 1));
        QVERIFY(press("Ctrl+Shift+Up").contains("Bone 0 stays"));
        QApplication::clipboard()->setText(QApplication::clipboard()->text().replace("65535", "9"));
        QVERIFY(press("Ctrl+V").contains("follows track 9"));
        QCOMPARE(anim().undo().count(), 4);
        anim().undo().setIndex(0);
        QCOMPARE(anim().bytes(), before);
    }

    void realModelsStandEveryEdit()
    {
        const auto check = [this](auto &pane, const char *path, const QVector<RecordRef> &records) {
            const QString file = TestSupport::shared(QStringLiteral("gamedata/") + QLatin1String(path));
            if (file.isEmpty())
                return;
            pane.openFile(file);
            const QByteArray before = pane.bytes();
            const auto faults = [&pane] {
                QStringList all;
                for (const Finding &finding : findingsOf(pane.document.model())) {
                    // Copies are copies: what is the same twice, and tracks that nobody follows yet.
                    if (finding.rule != Rule::AnimationIdRepeated && finding.rule != Rule::TrackUnused)
                        all += finding.text;
                }
                return all;
            };
            QCOMPARE(faults(), QStringList());
            for (const RecordRef &record : records) {
                for (const char *keys : {"Ctrl+Shift+Up", "Ctrl+Shift+Down", "Ctrl+D", "Ctrl+X"}) {
                    pane.tree.selectRecords({record}, record);
                    pane.tree.setFocus();
                    saidOf([&] { QTest::keySequence(&pane.tree, QKeySequence(QLatin1String(keys))); });
                    QVERIFY2(faults().isEmpty(), qUtf8Printable(path + faults().join('\n')));
                    QVERIFY(pane.bytes() != before || pane.undo().index() == 0);
                    pane.undo().setIndex(0);
                    QCOMPARE(pane.bytes(), before);
                }
            }
        };
        for (const char *name : {"knight", "fox", "trex"}) {
            const QString number = QLatin1String(name);
            check(mesh(), qUtf8Printable(QStringLiteral("game/models/%1/%1.skinnedmesh").arg(number)),
                  {ref(K::Bone, 5), ref(K::Bone, 8), ref(K::HotPoint, 1), ref(K::SkinnedSurface, 0),
                   ref(K::ChildBone, 0, 0)});
            check(anim(), qUtf8Printable(QStringLiteral("game/anims/%1/%1.anim").arg(number)),
                  {ref(K::AnimBlock, 1), ref(K::TranslationTrack, 1, 1), ref(K::RotationTrack, 1, 2),
                   ref(K::AnimBone, 1, 5)});
        }
        check(m_panes->rigid, "game/models/avocado/avocado.staticmesh", {ref(K::StaticSurface, 0)});
    }

    void boneFlags()
    {
        m_actions->OnSkinMeshCopyBoneFlags();
        QCOMPARE(QApplication::clipboard()->text(),
                 QStringLiteral("BoneSFlags_0 0\nBoneSFlags_1 -71\nBoneSFlags_2 5\n"));
    }

private:
    Pane<SkinnedMesh> &mesh() const { return m_panes->mesh; }
    Pane<AnimFile> &anim() const { return m_panes->anim; }
    static bool isOfMesh(const RecordRef &record) { return int(record.kind) < int(K::AnimFile); }
    KVTreeView *select(const RecordRef &record) const
    {
        KVTreeView *tree = isOfMesh(record) ? &mesh().tree : &anim().tree;
        tree->selectRecords({record}, record);
        tree->setFocus();
        return tree;
    }
    /// What a message box says that comes of this.
    template <typename Act>
    QString saidOf(Act act)
    {
        m_window->activateWindow();
        if (!QTest::qWaitForWindowActive(m_window.get()))
            return {};
        QString said;
        QTimer answer;
        connect(&answer, &QTimer::timeout, this, [&said] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                said = box->text();
                box->accept();
            }
        });
        answer.start(0);
        act();
        m_window->activateWindow();
        return QTest::qWaitForWindowActive(m_window.get()) ? said : QString();
    }
    /// The context menu that the tree opens for its current item.
    static QMenu *openMenu(KVTreeView *tree)
    {
        const QPoint place = tree->visualItemRect(tree->currentItem()).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, tree->viewport()->mapToGlobal(place));
        QApplication::sendEvent(tree->viewport(), &event);
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }

    QTemporaryDir m_home;
    // The trees of the panes stand in the window, and go before it.
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<Panes> m_panes;
    StructureActions *m_actions = nullptr;
};

QTEST_MAIN(tst_StructureActions)
#include "tst_structureactions.moc"
