// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// Edits of many records at once, with all that follows them on the screen.
#include "Bench.h"
#include "BenchHome.h"
#include "DelimitedText.h"
#include "KVTreeView.h"
#include "MaterialCatalog.h"
#include "PageStack.h"
#include "PropertyPages.h"
#include "RecordTableView.h"
#include "Settings.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>

namespace {
constexpr int Vertices = 20000;
constexpr int PastedRows = 2000;
constexpr int Rounds = 5;

/// A mesh whose vertices stand in the tree, on the page and in the table.
struct Scene
{
    Scene()
    {
        SkinnedMesh mesh;
        mesh.nodes.resize(1);
        mesh.vertices.resize(Vertices);
        tree.setDocument(&document);
        pages.setTree(&tree);
        addPages(pages, document, tree, materials);
        document.take(std::move(mesh), QStringLiteral("many"));
        tree.show();
        pages.show();
        QObject::connect(&document, &Document::recordsChanged, [this] { table.records().refresh(); });
    }

    SkinnedMeshDocument document{DocumentType::SkinnedMesh, RecordKind::SkinnedMesh};
    KVTreeView tree;
    MaterialCatalog materials;
    PageStack pages;
    RecordTableView table;
};

void calculateOnPage()
{
    Scene scene;
    QVector<RecordRef> all;
    for (int i = 0; i < Vertices; ++i)
        all.append({RecordKind::SkinnedVertex, {i}});
    scene.tree.selectRecords(all, all.first());
    auto *field = scene.pages.findChild<QAbstractSpinBox *>(QStringLiteral("sbVertPositionX"));
    std::vector<double> times;
    for (int i = 0; i < Rounds; ++i) {
        field->findChild<QLineEdit *>()->setText(QStringLiteral("=x*1.5+i"));
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        times.push_back(Bench::seconds([&] { QApplication::sendEvent(field, &enter); }) * 1e3);
    }
    if (scene.document.undoStack()->count() != Rounds)
        qFatal("nothing was calculated");
    Bench::addLimitLine("calculate_20000_vertices", Bench::median(times), 150, "ms");
}

void pasteIntoTable()
{
    Scene scene;
    scene.table.show(&scene.document, groupOf(scene.document, {RecordKind::SkinnedVertices, {}}, false));
    scene.table.resize(1200, 400);
    static_cast<QWidget &>(scene.table).show();
    QCoreApplication::processEvents();
    std::vector<double> times;
    for (int i = 0; i < Rounds; ++i) {
        DelimitedText::Rows rows;
        for (int row = 0; row < PastedRows; ++row) {
            QStringList cells;
            for (int column = 0; column < scene.table.model()->columnCount() - 1; ++column)
                cells.append(QString::number(row * 0.125 + column + i));
            rows.append(cells);
        }
        QGuiApplication::clipboard()->setText(DelimitedText::write(rows, QLatin1Char('\t')));
        scene.table.setCurrentIndex(scene.table.model()->index(17, 0));
        times.push_back(Bench::seconds([&] {
                            scene.table.paste();
                            scene.table.repaint();
                        }) *
                        1e3);
    }
    if (scene.document.undoStack()->count() != Rounds)
        qFatal("nothing was pasted");
    Bench::addLimitLine("paste_2000_rows", Bench::median(times), 300, "ms");
}
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const BenchHome home;
    const QApplication application(argc, argv);
    Settings::HideMeshData.setValue(false);
    calculateOnPage();
    pasteIntoTable();
    return Bench::run(argc, argv);
}
