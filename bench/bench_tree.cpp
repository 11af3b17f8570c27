// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "BenchHome.h"
#include "KVTreeView.h"
#include "MaterialCatalog.h"
#include "PageStack.h"
#include "PropertyPages.h"
#include "RecordItem.h"

#include <QApplication>
#include <QTemporaryDir>

#include <malloc.h>

#include <memory>
#include <vector>

// The tree of a mesh with half a million records against as many bare items added at once, the memory of an
// item, making one of them current, and one field edited in 20,000 selected vertices.
namespace {
constexpr int Items = 500000;
constexpr int Edited = 20000;

size_t allocatedBytes()
{
    return mallinfo2().uordblks + mallinfo2().hblkhd;
}

struct MeshTree
{
    SkinnedMeshDocument document{DocumentType::SkinnedMesh, RecordKind::SkinnedMesh};
    KVTreeView tree;

    explicit MeshTree(const SkinnedMesh &mesh)
    {
        // Through a file, as every model comes.
        const QTemporaryDir home;
        const QString path = home.filePath(QStringLiteral("mesh.skinnedmesh"));
        QString reason;
        if (mesh.write(path) || document.open(path, &reason))
            qFatal("no mesh to measure");
        tree.setDocument(&document);
    }
};

SkinnedMesh meshOf(int bones, int vertices)
{
    SkinnedMesh mesh;
    mesh.nodes.resize(size_t(bones));
    mesh.surfaces.resize(1);
    mesh.vertices.resize(size_t(vertices));
    return mesh;
}

/// Selects `count` vertices, edits them as the page's arrow key does, and takes it back, `apart` with
/// something else selected meanwhile: seconds of the processor for each.
std::pair<double, double> editAndUndo(int count, bool apart)
{
    MeshTree vertices(meshOf(1, count));
    MaterialCatalog materials;
    PageStack pages;
    pages.setTree(&vertices.tree);
    addPages(pages, vertices.document, vertices.tree, materials);
    vertices.tree.rebuild();
    // As a hand does: the tree has looked for none of them.
    const QModelIndex root = vertices.tree.model()->index(0, 0);
    const QModelIndex group = vertices.tree.model()->index(3, 0, root);
    const auto vertex = [&group](int row) { return group.model()->index(row, 0, group); };
    vertices.tree.setCurrentIndex(vertex(count - 1));
    vertices.tree.selectionModel()->select({vertex(0), vertex(count - 1)},
                                           QItemSelectionModel::ClearAndSelect);
    auto *editor = pages.findChild<QAbstractSpinBox *>(QStringLiteral("sbVertPositionX"));
    const double edit = Bench::processSeconds([editor] { editor->stepUp(); });
    if (apart)
        vertices.tree.setCurrentIndex(root);
    const double undo = Bench::processSeconds([&vertices] { vertices.document.undoStack()->undo(); });
    if (vertices.document.undoStack()->count() != 1 ||
        vertices.tree.selectedRecords(RecordKind::SkinnedVertex).size() != count)
        qFatal("the edit or the selection was lost");
    return {edit, undo};
}

void reportEdits()
{
    std::vector<double> edits;
    std::vector<double> undos;
    std::vector<double> undosApart;
    std::vector<double> editDoubles;
    std::vector<double> undoDoubles;
    for (int i = 0; i < 9; ++i) {
        const auto [edit, undo] = editAndUndo(Edited, false);
        const double undoApart = editAndUndo(Edited, true).second;
        edits.push_back(edit * 1e3);
        undos.push_back(undo * 1e3);
        undosApart.push_back(undoApart * 1e3);
        const auto [twice, undoTwice] = editAndUndo(2 * Edited, true);
        editDoubles.push_back(twice / edit);
        undoDoubles.push_back(undoTwice / undoApart);
    }
    Bench::addLimitLine("edit_20000_vertices", Bench::median(edits), 150, "ms");
    Bench::addLimitLine("undo_20000_vertices", Bench::median(undos), 150, "ms");
    Bench::addLimitLine("undo_20000_apart", Bench::median(undosApart), 150, "ms");
    Bench::addLimitLine("edit_twice_as_many", Bench::median(editDoubles), 2.3, "x");
    Bench::addLimitLine("undo_apart_twice_as_many", Bench::median(undoDoubles), 2.3, "x");
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const BenchHome settings;
    const QApplication application(argc, argv);
    Settings::HideMeshData.setValue(false);

    MeshTree mesh(meshOf(1, Items));
    // Trees are kept: taking one down is not part of building the next.
    std::vector<std::unique_ptr<KVTreeView>> trees;
    std::vector<std::unique_ptr<QTreeWidget>> bareTrees;
    Bench::ratio(
        "tree_500000_items", 1.2, 7,
        [&mesh, &trees] {
            trees.push_back(std::make_unique<KVTreeView>());
            trees.back()->setDocument(&mesh.document);
            trees.back()->rebuild();
        },
        [&bareTrees] {
            bareTrees.push_back(std::make_unique<QTreeWidget>());
            bareTrees.back()->setUniformRowHeights(true);
            QList<QTreeWidgetItem *> items;
            items.reserve(Items);
            for (int i = 0; i < Items; ++i)
                items.append(new QTreeWidgetItem);
            auto *group = new QTreeWidgetItem(bareTrees.back().get());
            group->addChildren(items);
        });
    int row = 0;
    mesh.tree.show();
    Bench::limit("tree_select_one", 0.005, 20, [&mesh, &row] {
        row = (row + 12345) % Items;
        mesh.tree.selectRecords({{RecordKind::SkinnedVertex, {row, 0, 0}}},
                                {RecordKind::SkinnedVertex, {row, 0, 0}});
    });

    mesh.tree.clear();
    const size_t before = allocatedBytes();
    mesh.tree.rebuild();
    Bench::addLimitLine("tree_bytes_an_item", double(allocatedBytes() - before) / Items, 256, "B");
    reportEdits();
    return Bench::run(argc, argv);
}
