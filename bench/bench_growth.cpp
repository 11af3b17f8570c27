// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "BenchHome.h"
#include "KVTreeView.h"
#include "LargeModels.h"
#include "MaterialCatalog.h"
#include "PageStack.h"
#include "PropertyPages.h"
#include "StaticMeshCommands.h"

#include <QAbstractSpinBox>
#include <QApplication>

#include <limits>
#include <malloc.h>

// What takes twice as long for twice as much, and no longer: each work at n and at 2n in turns, by the time
// of the processor, and the median of their ratios.
namespace {
constexpr double Budget = 2.2;
constexpr int Repetitions = 9;
constexpr int Vertices = 100000;
constexpr size_t AnimBytes = 20 * 1000 * 1000; // more blocks than a tree fills at once

template <typename Work>
double timed(Work work)
{
    // Of this thread: what others let go of meanwhile is not counted.
    const double before = Bench::threadSeconds();
    work();
    return Bench::threadSeconds() - before;
}

struct OpenedMesh
{
    StaticMeshDocument document{DocumentType::StaticMesh, RecordKind::StaticMesh};
    KVTreeView tree;
    MaterialCatalog materials;
    PageStack pages;

    OpenedMesh()
    {
        tree.setDocument(&document);
        pages.setTree(&tree);
        addPages(pages, document, tree, materials);
    }
    void open(const QString &path)
    {
        QString reason;
        if (document.open(path, &reason))
            qFatal("'%s' cannot be read", qPrintable(path));
    }
};

QString written(const QString &path, int vertices)
{
    StaticMesh mesh;
    mesh.surfaces.resize(1);
    mesh.vertices.resize(size_t(vertices));
    for (size_t i = 0; i < mesh.vertices.size(); ++i)
        mesh.vertices[i].position = QVector3D(float(i % 100), float(i % 7), 1.0f);
    if (mesh.write(path))
        qFatal("no mesh could be written");
    return path;
}

double openSeconds(const QString &path)
{
    OpenedMesh opened;
    return timed([&] { opened.open(path); });
}

double undoSeconds(const QString &path)
{
    OpenedMesh opened;
    opened.open(path);
    opened.document.undoStack()->push(new UC_StaticMeshRotate(opened.document.editTarget(), 10, 20, 30));
    return timed([&] { opened.document.undoStack()->undo(); });
}

double filterSeconds(const QString &path)
{
    OpenedMesh opened;
    opened.open(path);
    return timed([&] {
        QString text;
        for (const char letter : {'v', 'e', 'r', 't', ' ', '1', '2'}) {
            text += QLatin1Char(letter);
            opened.tree.setFilter(text);
        }
    });
}

double editSeconds(const QString &path)
{
    OpenedMesh opened;
    opened.open(path);
    const QModelIndex root = opened.tree.model()->index(0, 0);
    const QModelIndex group = root.model()->index(1, 0, root);
    const int count = opened.tree.model()->rowCount(group);
    opened.tree.setCurrentIndex(group.model()->index(0, 0, group));
    opened.tree.selectionModel()->select(
        {group.model()->index(0, 0, group), group.model()->index(count - 1, 0, group)},
        QItemSelectionModel::ClearAndSelect);
    auto *editor = opened.pages.findChild<QAbstractSpinBox *>(QStringLiteral("sbVertPositionX"));
    if (!editor)
        qFatal("there is no field to edit");
    const double edit = timed([editor] { editor->stepUp(); });
    if (opened.document.undoStack()->count() != 1)
        qFatal("nothing was edited");
    return edit;
}

double openAnimSeconds(const QString &path)
{
    AnimDocument document(DocumentType::Anim, RecordKind::AnimFile);
    KVTreeView tree;
    tree.setDocument(&document);
    return timed([&] {
        QString reason;
        if (document.open(path, &reason))
            qFatal("no animation to measure");
    });
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Memory is not given back to the system between two works, the larger of which would get it again each
    // time.
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_MMAP_THRESHOLD, std::numeric_limits<int>::max());
    const BenchHome home;
    const QApplication application(argc, argv);
    Settings::HideMeshData.setValue(false);
    Settings::HideAnimData.setValue(false);

    const QString once = written(home.filePath(QStringLiteral("once.staticmesh")), Vertices);
    const QString twice = written(home.filePath(QStringLiteral("twice.staticmesh")), 2 * Vertices);
    const auto reportOf = [&](const char *name, double (*work)(const QString &)) {
        Bench::addGrowthLine(
            name, Budget, Repetitions, [&] { return work(once); }, [&] { return work(twice); });
    };
    reportOf("open", openSeconds);
    reportOf("undo_rotation", undoSeconds);
    reportOf("filter", filterSeconds);
    reportOf("edit_all", editSeconds);

    const auto animation = [&home](const char *name, size_t bytes) {
        const QString path = home.filePath(QLatin1String(name));
        if (LargeModels::animFile(bytes).write(path))
            qFatal("no animation could be written");
        return path;
    };
    const QString animOnce = animation("once.anim", AnimBytes);
    const QString animTwice = animation("twice.anim", 2 * AnimBytes);
    Bench::addGrowthLine(
        "open_animation", Budget, Repetitions, [&] { return openAnimSeconds(animOnce); },
        [&] { return openAnimSeconds(animTwice); });
    Bench::printReport();
    return 0;
}
