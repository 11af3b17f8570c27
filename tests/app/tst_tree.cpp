// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KVTreeView.h"
#include "RecordItem.h"
#include "RecordTable.h"
#include "TestSupport.h"

namespace {
constexpr RecordIndex at(int a = 0, int b = 0, int c = 0)
{
    return {a, b, c};
}

/// A document opened in a tree.
template <typename Model>
struct Opened
{
    Opened(const Model &model, DocumentType type, RecordKind root, const QString &name)
        : document(type, root)
    {
        const QTemporaryDir home;
        const QString path = home.filePath(name);
        QString reason;
        tree.setDocument(&document);
        if (model.write(path) || document.open(path, &reason))
            qFatal("%s", qPrintable(reason));
    }
    const QTreeWidgetItem *root() const { return tree.topLevelItem(0); }

    ModelDocument<Model> document;
    KVTreeView tree;
};

struct OpenedMesh : Opened<SkinnedMesh>
{
    explicit OpenedMesh(const SkinnedMesh &mesh)
        : Opened(mesh, DocumentType::SkinnedMesh, RecordKind::SkinnedMesh, QStringLiteral("a.b.skinnedmesh"))
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
    void init();
    void skinnedMesh_data();
    void skinnedMesh();
    void animation_data();
    void animation();
    void staticMesh();
    void everyItemIsFoundByItsRecord();
    void anEditOfTheSelectionKeepsIt();
    void aChangeElsewhereIsSelected();

private:
    QTemporaryDir m_home;
    SkinnedMesh m_mesh;
};

void tst_Tree::init()
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

void tst_Tree::skinnedMesh_data()
{
    QTest::addColumn<bool>("hidden");
    QTest::newRow("hidden") << true;
    QTest::newRow("shown") << false;
}

void tst_Tree::skinnedMesh()
{
    QFETCH(bool, hidden);
    Settings::HideMeshData.setValue(hidden);
    const OpenedMesh opened(m_mesh);
    const KVTreeView &tree = opened.tree;
    QCOMPARE(tree.topLevelItemCount(), 1);
    const QTreeWidgetItem *root = opened.root();
    QCOMPARE(root->text(0), QStringLiteral("a.b.skinnedmesh"));
    QVERIFY(root->isExpanded());
    QCOMPARE(tree.currentItem(), root);
    QCOMPARE(texts(root), QStringList({"Bones (3)", "Hot Points (1)", "Surfaces (1)", "Vertices (4)"}));
    QCOMPARE(texts(root->child(0)), QStringList({"0: Left Root", "1: Right Upper Arm", "2: Left Root"}));
    QCOMPARE(root->child(0)->child(1)->data(0, Qt::UserRole).toList(), QVariantList({6, 1, 0, 0}));
    const QTreeWidgetItem *bone = root->child(0)->child(0);
    const QTreeWidgetItem *surface = root->child(2)->child(0);
    if (hidden) {
        QCOMPARE(bone->childCount(), 0);
        QCOMPARE(surface->childCount(), 0);
        QCOMPARE(root->child(3)->childCount(), 0);
        // What has no item leads to the deepest that has.
        QCOMPARE(tree.findItem({RecordKind::SkinnedVertex, at(3)}), root->child(3));
    } else {
        QCOMPARE(texts(bone), QStringList("Child Bone Indexes (2)"));
        QCOMPARE(texts(bone->child(0)), QStringList({"2", "1"}));
        QCOMPARE(bone->child(0)->child(1)->data(0, Qt::UserRole).toList(), QVariantList({2, 0, 1, 0}));
        QCOMPARE(texts(surface->child(0)), QStringList({"0", "2", "1"}));
        QCOMPARE(root->child(3)->childCount(), 4);
    }
}

void tst_Tree::animation_data()
{
    skinnedMesh_data();
}

void tst_Tree::animation()
{
    QFETCH(bool, hidden);
    Settings::HideAnimData.setValue(hidden);
    AnimFile file;
    file.blocks.resize(2);
    file.blocks[1].nodes.resize(2);
    file.blocks[1].setTranslationCount(2);
    file.blocks[1].setRotationCount(1);
    file.blocks[1].setFrameCount(3);
    file.blocks[1].actions.resize(2);
    const Opened<AnimFile> opened(file, DocumentType::Anim, RecordKind::AnimFile, QStringLiteral("a.anim"));
    const QTreeWidgetItem *root = opened.root();
    QCOMPARE(texts(root), QStringList({"Anim 0", "Anim 1"}));
    const QTreeWidgetItem *block = root->child(1);
    QCOMPARE(texts(block), QStringList({"Bones (2)", "Frames (3)", "Translations (2)", "Rotations (1)",
                                        "Key Frame Actions (2)"}));
    QCOMPARE(block->child(4)->child(1)->data(0, Qt::UserRole).toList(), QVariantList({26, 1, 1, 0}));
    QCOMPARE(block->child(0)->childCount(), hidden ? 0 : 2);
    QCOMPARE(block->child(4)->childCount(), 2);
    if (!hidden) {
        QCOMPARE(texts(block->child(1)), QStringList({"Frame 0", "Frame 1", "Frame 2"}));
        QCOMPARE(block->child(2)->child(1)->child(2)->data(0, Qt::UserRole).toList(),
                 QVariantList({20, 1, 1, 2}));
    }
}

void tst_Tree::staticMesh()
{
    Settings::HideMeshData.setValue(false);
    StaticMesh mesh;
    mesh.surfaces = {{QStringLiteral("m/a/b"), {0, 2, 1}}};
    mesh.vertices.resize(3);
    const Opened<StaticMesh> opened(mesh, DocumentType::StaticMesh, RecordKind::StaticMesh,
                                    QStringLiteral("a.staticmesh"));
    const QTreeWidgetItem *root = opened.root();
    QCOMPARE(texts(root), QStringList({"Surfaces (1)", "Vertices (3)"}));
    QCOMPARE(texts(root->child(0)->child(0)->child(0)), QStringList({"0", "2", "1"}));
}

void tst_Tree::everyItemIsFoundByItsRecord()
{
    Settings::HideMeshData.setValue(false);
    OpenedMesh opened(m_mesh);
    KVTreeView &tree = opened.tree;
    int count = 0;
    for (QTreeWidgetItemIterator it(&tree); *it; ++it, ++count)
        QCOMPARE(tree.findItem(static_cast<RecordItem *>(*it)->record()), *it);
    QCOMPARE(count, 1 + 4 + 3 + 3 + 2 + 1 + 1 + 1 + 3 + 4);
    QVERIFY(indexPath({}).isEmpty());
}

void tst_Tree::anEditOfTheSelectionKeepsIt()
{
    Settings::HideMeshData.setValue(false);
    OpenedMesh opened(m_mesh);
    KVTreeView &tree = opened.tree;
    const QVector<RecordRef> vertices{{RecordKind::SkinnedVertex, at(0)},
                                      {RecordKind::SkinnedVertex, at(1)},
                                      {RecordKind::SkinnedVertex, at(3)}};
    tree.selectRecords(vertices, vertices.last());
    QCOMPARE(tree.selectedRecords(RecordKind::SkinnedVertex), QVector<RecordIndex>({at(0), at(1), at(3)}));
    QCOMPARE(tree.currentRecord(), vertices.last());

    int shown = 0;
    connect(&tree, &KVTreeView::currentRecordChanged, this, [&shown] { ++shown; });
    emit opened.document.recordsChanged(vertices);
    QCOMPARE(tree.selectedRecords(RecordKind::SkinnedVertex).size(), 3);
    QCOMPARE(shown, 1);
}

void tst_Tree::aChangeElsewhereIsSelected()
{
    OpenedMesh opened(m_mesh);
    KVTreeView &tree = opened.tree;
    emit opened.document.recordsChanged({{RecordKind::Bone, at(2)}, {RecordKind::Bone, at(1)}});
    QCOMPARE(tree.selectedRecords(RecordKind::Bone), QVector<RecordIndex>({at(1), at(2)}));
    // The one that single steps would have ended with.
    QCOMPARE(tree.currentRecord(), (RecordRef{RecordKind::Bone, at(1)}));
}

QTEST_MAIN(tst_Tree)
#include "tst_tree.moc"
