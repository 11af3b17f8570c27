// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KVTreeView.h"
#include "RecordItem.h"
#include "RecordTable.h"
#include "SampleModels.h"
#include "Settings.h"
#include "StructureActions.h"
#include "TestSupport.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QMenu>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>

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

Q_DECLARE_METATYPE(RecordRef)

class tst_StructureActions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void keys_data();
    void keys();
    void newRecords();
    void oneNoticeAStep();
    void copiesSurviveAnotherDocument();
    void openBranchesStayOpen();
    void menus_data();
    void menus();
    void branches();
    void counts_data();
    void counts();
    void countsOfOtherItems();
    void boneFlags();

private:
    KVTreeView *treeOf(const RecordRef &record) const
    {
        return int(record.kind) < int(K::AnimFile) ? m_skinnedTree : m_animTree;
    }
    KVTreeView *select(const RecordRef &record) const
    {
        KVTreeView *tree = treeOf(record);
        tree->selectRecords({record}, record);
        tree->setFocus();
        return tree;
    }
    /// The context menu that the tree opens for its current item.
    static QMenu *openMenu(KVTreeView *tree)
    {
        const QPoint place = tree->visualItemRect(tree->currentItem()).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, tree->viewport()->mapToGlobal(place));
        QApplication::sendEvent(tree->viewport(), &event);
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }
    QByteArray bytes(const KVTreeView *tree) const
    {
        return tree == m_animTree ? bytesOf(m_anim->model()) : bytesOf(m_skinned->model());
    }

    QTemporaryDir m_home;
    std::unique_ptr<SkinnedMeshDocument> m_skinned;
    std::unique_ptr<AnimDocument> m_anim;
    std::unique_ptr<StaticMeshDocument> m_static;
    std::unique_ptr<QWidget> m_window;
    KVTreeView *m_skinnedTree = nullptr;
    KVTreeView *m_animTree = nullptr;
    KVTreeView *m_staticTree = nullptr;
    StructureActions *m_actions = nullptr;
};

void tst_StructureActions::initTestCase()
{
    TestSupport::useSettingsHome(m_home);
}

void tst_StructureActions::init()
{
    m_window.reset();
    m_skinned = std::make_unique<SkinnedMeshDocument>(DocumentType::SkinnedMesh, K::SkinnedMesh);
    m_anim = std::make_unique<AnimDocument>(DocumentType::Anim, K::AnimFile);
    m_static = std::make_unique<StaticMeshDocument>(DocumentType::StaticMesh, K::StaticMesh);
    m_window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(m_window.get());
    const auto tree = [layout](Document *document) {
        auto *made = new KVTreeView;
        made->setDocument(document);
        layout->addWidget(made);
        return made;
    };
    m_skinnedTree = tree(m_skinned.get());
    m_animTree = tree(m_anim.get());
    m_staticTree = tree(m_static.get());
    m_actions = new StructureActions({*m_skinned, m_skinnedTree}, {*m_anim, m_animTree},
                                     {*m_static, m_staticTree}, m_window.get());
    Settings::HideAnimData.setValue(false);
    SkinnedMesh mesh = SampleModels::skinnedMesh();
    mesh.nodes[2].symbolFlags = 5;
    QString reason;
    QVERIFY(!mesh.write(m_home.filePath("a.skinnedmesh")));
    QVERIFY(!m_skinned->open(m_home.filePath("a.skinnedmesh"), &reason));
    QVERIFY(!animFile().write(m_home.filePath("a.anim")));
    QVERIFY(!m_anim->open(m_home.filePath("a.anim"), &reason));
    m_window->resize(500, 900);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_StructureActions::keys_data()
{
    QTest::addColumn<RecordRef>("copied"); // with Ctrl+C, before the rest
    QTest::addColumn<RecordRef>("current");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("step");   // empty: nothing happens
    QTest::addColumn<RecordRef>("next"); // what is current then
    const auto add = [](const char *name, const RecordRef &copied, const RecordRef &current, const char *key,
                        const char *step, const RecordRef &next) {
        QTest::newRow(name) << copied << current << QString::fromLatin1(key) << QString::fromLatin1(step)
                            << next;
    };
    const RecordRef nothing;
    add("hot point, group", nothing, ref(K::HotPoints), "Ins", "Add Hot Point", ref(K::HotPoint, 0));
    add("hot point, behind", nothing, ref(K::HotPoint, 1), "Ins", "Add Hot Point", ref(K::HotPoint, 2));
    add("hot point, remove", nothing, ref(K::HotPoint, 0), "Del", "Remove Hot Point", ref(K::HotPoint, 0));
    add("hot point, remove last", nothing, ref(K::HotPoint, 1), "Del", "Remove Hot Point",
        ref(K::HotPoint, 0));
    add("hot point, paste", ref(K::HotPoint, 1), ref(K::HotPoint, 0), "Ctrl+V", "Paste Hot Point",
        ref(K::HotPoint, 1));
    add("hot point, paste first", ref(K::HotPoint, 1), ref(K::HotPoints), "Ctrl+V", "Paste Hot Point",
        ref(K::HotPoint, 0));
    add("hot point, nothing copied", nothing, ref(K::HotPoint, 0), "Ctrl+V", "", ref(K::HotPoint, 0));
    add("bone", ref(K::HotPoint, 1), ref(K::Bone, 1), "Ctrl+V", "", ref(K::Bone, 1));
    add("bone, remove", nothing, ref(K::Bone, 1), "Del", "", ref(K::Bone, 1));

    add("block, root", nothing, ref(K::AnimFile), "Ins", "Add Animation", ref(K::AnimBlock, 0));
    add("block, behind", nothing, ref(K::AnimBlock, 1), "Ins", "Add Animation", ref(K::AnimBlock, 2));
    add("block, remove", nothing, ref(K::AnimBlock, 2), "Del", "Remove Animation", ref(K::AnimBlock, 1));
    add("block, paste first", ref(K::AnimBlock, 2), ref(K::AnimFile), "Ctrl+V", "Paste Animation",
        ref(K::AnimBlock, 0));
    add("block, paste", ref(K::AnimBlock, 0), ref(K::AnimBlock, 2), "Ctrl+V", "Paste Animation",
        ref(K::AnimBlock, 3));
    add("block, on a frame", ref(K::AnimBlock, 0), ref(K::AnimFrame, 1, 2), "Ctrl+V", "",
        ref(K::AnimFrame, 1, 2));
    add("action, group", nothing, ref(K::AnimActions, 1), "Ins", "Add Key Frame Action",
        ref(K::AnimAction, 1, 0));
    add("action, behind", nothing, ref(K::AnimAction, 1, 1), "Ins", "Add Key Frame Action",
        ref(K::AnimAction, 1, 2));
    add("action, remove", nothing, ref(K::AnimAction, 2, 0), "Del", "Remove Key Frame Action",
        ref(K::AnimAction, 2, 0));
    add("action, paste", ref(K::AnimBlock, 0), ref(K::AnimAction, 1, 1), "Ctrl+V", "",
        ref(K::AnimAction, 1, 1));
}

void tst_StructureActions::keys()
{
    QFETCH(RecordRef, copied);
    QFETCH(RecordRef, current);
    QFETCH(QString, key);
    QFETCH(QString, step);
    QFETCH(RecordRef, next);
    const auto press = [](QWidget *widget, const QString &keys) {
        const int code = QKeySequence(keys)[0];
        QTest::keyClick(widget, Qt::Key(code & ~int(Qt::KeyboardModifierMask)),
                        Qt::KeyboardModifiers(code & int(Qt::KeyboardModifierMask)));
    };
    if (copied.kind != K::None)
        press(select(copied), QStringLiteral("Ctrl+C"));
    KVTreeView *tree = select(current);
    QUndoStack *stack = tree == m_animTree ? m_anim->undoStack() : m_skinned->undoStack();
    const QByteArray before = bytes(tree);
    press(tree, key);
    QCOMPARE(stack->undoText(), step);
    QCOMPARE(stack->count(), step.isEmpty() ? 0 : 1);
    QCOMPARE(tree->currentRecord(), next);
    QCOMPARE(tree->selectedItems(), QList<QTreeWidgetItem *>{tree->currentItem()});
    if (step.isEmpty())
        return;
    QVERIFY(bytes(tree) != before);
}

void tst_StructureActions::newRecords()
{
    select(ref(K::HotPoints));
    m_actions->OnActionAddHotPoint();
    const SkinnedMeshHotPoint &hotPoint = m_skinned->model().hotPoints[0];
    QCOMPARE(hotPoint.origin, QVector3D());
    QCOMPARE(hotPoint.flags + hotPoint.nodeId + hotPoint.particleEffect1 + hotPoint.particleEffect2, 0);

    select(ref(K::AnimActions));
    m_actions->OnActionAddAnimAction();
    const AnimAction &action = m_anim->model().blocks[0].actions[0];
    QCOMPARE(int(action.node), 0xFFFF);
    QCOMPARE(action.frame + action.eventType, 0);

    // As many bones as the first block, in its pose, and a frame.
    select(ref(K::AnimFile));
    m_actions->OnActionAddAnimBlock();
    const AnimBlock added = m_anim->model().blocks[0];
    QCOMPARE(added.nodes.size(), size_t(2));
    QCOMPARE(added.nodes[1].initialPosition, QVector3D(1.0f, 2.0f, 3.0f));
    QCOMPARE(int(added.nodes[1].translationIndex), 0xFFFF);
    QCOMPARE(added.frameCount(), 1);

    // Without a block as many as the mesh.
    while (!m_anim->model().blocks.empty())
        m_actions->OnActionRemoveAnimBlock();
    QCOMPARE(m_animTree->currentRecord(), ref(K::AnimFile));
    m_actions->OnActionAddAnimBlock();
    QCOMPARE(m_anim->model().blocks[0].nodes.size(), m_skinned->model().nodes.size());
}

void tst_StructureActions::oneNoticeAStep()
{
    int notices = 0;
    connect(m_skinned.get(), &Document::structuresChanged, this, [&notices] { ++notices; });
    m_skinned->undoStack()->beginMacro(QStringLiteral("Both"));
    select(ref(K::HotPoint, 0));
    m_actions->OnActionRemoveHotPoint();
    m_actions->OnActionAddHotPoint();
    QCOMPARE(notices, 0);
    m_skinned->undoStack()->endMacro();
    QCOMPARE(notices, 1);
    m_skinned->undoStack()->undo();
    QCOMPARE(notices, 2);
}

void tst_StructureActions::copiesSurviveAnotherDocument()
{
    select(ref(K::AnimBlock, 1));
    m_actions->OnActionCopyAnimBlock();
    AnimFile other;
    other.blocks.resize(1);
    const QString path = m_home.filePath(QStringLiteral("b.anim"));
    QString reason;
    QVERIFY(!other.write(path) && !m_anim->open(path, &reason));
    select(ref(K::AnimFile));
    m_actions->OnActionPasteAnimBlock();
    QCOMPARE(m_anim->model().blocks.size(), size_t(2));
    QCOMPARE(m_anim->model().blocks[0].animId, 101);
}

void tst_StructureActions::openBranchesStayOpen()
{
    const auto open = [this] {
        QStringList all;
        for (QTreeWidgetItemIterator it(m_animTree); *it; ++it) {
            if ((*it)->isExpanded())
                all << (*it)->data(0, Qt::UserRole).toStringList().mid(0, 2).join('-');
        }
        return all;
    };
    m_animTree->findItem(ref(K::AnimBlock, 0))->setExpanded(true);
    m_animTree->findItem(ref(K::AnimBlock, 2))->setExpanded(true);
    m_animTree->findItem(ref(K::Translations, 2))->setExpanded(true);
    const QStringList before = open();
    QCOMPARE(before, QStringList({"14-0", "15-0", "15-2", "21-2"}));
    select(ref(K::AnimBlock, 0));
    m_actions->OnActionAddAnimBlock();
    QCOMPARE(open(), QStringList({"14-0", "15-0", "15-3", "21-3"}));
    m_anim->undoStack()->undo();
    QCOMPARE(open(), before);
    select(ref(K::AnimBlock, 0));
    m_actions->OnActionRemoveAnimBlock();
    QCOMPARE(open(), QStringList({"14-0", "15-1", "21-1"}));
}

void tst_StructureActions::menus_data()
{
    QTest::addColumn<RecordRef>("current");
    QTest::addColumn<QStringList>("texts");
    const QStringList branch{"&Expand All Below", "&Collapse All Below"};
    const QStringList paste{"Paste Animation (off)"};
    QTest::newRow("mesh") << ref(K::SkinnedMesh) << QStringList("Copy Bone Flags") + branch;
    QTest::newRow("bone") << ref(K::Bone, 1) << QStringList("Copy Bone Flags");
    QTest::newRow("hot points") << ref(K::HotPoints)
                                << QStringList({"Add Hot Point", "Paste Hot Point (off)"}) + branch;
    QTest::newRow("hot point") << ref(K::HotPoint, 1)
                               << QStringList({"Add Hot Point", "Remove Hot Point", "Copy Hot Point",
                                               "Paste Hot Point (off)"});
    QTest::newRow("surface") << ref(K::SkinnedSurface, 0) << QStringList();
    QTest::newRow("animation") << ref(K::AnimFile) << QStringList("Add Animation") + paste + branch;
    QTest::newRow("block") << ref(K::AnimBlock, 1)
                           << QStringList({"Add Animation", "Remove Animation", "Copy Animation"}) + paste +
                                  branch;
    QTest::newRow("frames") << ref(K::AnimFrames, 1) << QStringList("Change Frame Count…") + branch;
    QTest::newRow("translations") << ref(K::Translations, 1)
                                  << QStringList("Change Translation Count…") + branch;
    QTest::newRow("rotations") << ref(K::Rotations, 1) << QStringList("Change Rotation Count…");
    QTest::newRow("actions") << ref(K::AnimActions, 1) << QStringList("Add Key Frame Action") + branch;
    QTest::newRow("action") << ref(K::AnimAction, 1, 1)
                            << QStringList({"Add Key Frame Action", "Remove Key Frame Action"});
}

void tst_StructureActions::menus()
{
    QFETCH(RecordRef, current);
    QFETCH(QStringList, texts);
    QMenu *menu = openMenu(select(current));
    QVERIFY(menu);
    QStringList offered;
    for (const QAction *action : menu->actions()) {
        if (action->isVisible() && !action->isSeparator())
            offered << action->text() + QLatin1String(action->isEnabled() ? "" : " (off)");
    }
    QCOMPARE(offered, texts + QStringList({"Undo (off)", "Redo (off)"}));
    menu->close();
}

void tst_StructureActions::branches()
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

void tst_StructureActions::counts_data()
{
    QTest::addColumn<RecordRef>("group");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("current");
    QTest::newRow("frames") << ref(K::AnimFrames, 1) << "Frame Count" << 1 << 4;
    QTest::newRow("translations") << ref(K::Translations, 1) << "Translation Count" << 0 << 1;
    QTest::newRow("rotations") << ref(K::Rotations, 1) << "Rotation Count" << 0 << 0;
}

void tst_StructureActions::counts()
{
    QFETCH(RecordRef, group);
    QFETCH(QString, title);
    QFETCH(int, least);
    QFETCH(int, current);
    AnimFile expected = animFile();
    if (group.kind == K::AnimFrames)
        expected.blocks[1].setFrameCount(7);
    else if (group.kind == K::Translations)
        expected.blocks[1].setTranslationCount(7);
    else
        expected.blocks[1].setRotationCount(7);

    int notices = 0;
    connect(m_anim.get(), &Document::structuresChanged, this, [&notices] { ++notices; });
    for (const char *text : {"", "7"}) {
        bool asked = false;
        QTimer::singleShot(0, this, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            auto *box = dialog->findChild<QSpinBox *>(QStringLiteral("sbSize"));
            asked = dialog->windowTitle() == title && box->minimum() == least && box->maximum() == 65535 &&
                    box->value() == current && !(dialog->windowFlags() & Qt::WindowContextHelpButtonHint);
            // The number is selected: typing replaces it.
            QTest::keyClicks(box, QLatin1String(text));
            QTest::keyClick(box, Qt::Key_Return);
        });
        select(group);
        QMenu *menu = openMenu(m_animTree);
        menu->setActiveAction(menu->actions().at(4));
        QTest::keyClick(menu, Qt::Key_Return);
        QVERIFY(asked);
        QCOMPARE(notices, text[0] ? 1 : 0);
    }
    QCOMPARE(bytesOf(m_anim->model()), bytesOf(expected));
    QCOMPARE(m_animTree->currentRecord(), group);
    QVERIFY(m_animTree->currentItem()->isExpanded());
    QVERIFY(m_animTree->currentItem()->text(0).endsWith(QLatin1String("(7)")));
    QCOMPARE(m_animTree->currentItem()->childCount(), 7);
    QVERIFY(m_anim->undoStack()->isClean());
}

void tst_StructureActions::countsOfOtherItems()
{
    // A dialog would block the test until its time is over.
    select(ref(K::AnimFrame, 1, 0));
    m_actions->OnActionEditFrameCount();
    select(ref(K::AnimFrames, 1));
    m_actions->OnActionEditTranslationCount();
    m_actions->OnActionEditRotationCount();
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_StructureActions::boneFlags()
{
    m_actions->OnSkinMeshCopyBoneFlags();
    QCOMPARE(QApplication::clipboard()->text(),
             QStringLiteral("BoneSFlags_0 0\nBoneSFlags_1 -71\nBoneSFlags_2 5\n"));
}

QTEST_MAIN(tst_StructureActions)
#include "tst_structureactions.moc"
