// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "BenchHome.h"
#include "KVTreeView.h"
#include "LargeModels.h"
#include "Settings.h"

#include <QApplication>

// A condition asked of all records of models of 64 MB, against reading the same values by the same fields,
// and the line above a tree with a condition in it, against one with words.
namespace {
constexpr int Rounds = 5;

template <typename Model>
struct Searched
{
    explicit Searched(Model large, const char *text)
        : model(std::move(large))
    {
        if (!condition.read(QLatin1String(text), nullptr).isEmpty())
            qFatal("no condition: %s", text);
    }

    const Model model;
    const ModelValues<Model> values{model};
    Condition condition;
};

template <typename Model>
void addSearch(const char *name, Model large, const char *text, RecordKind root, RecordKind kind,
               const QStringList &fields)
{
    const auto searched = std::make_shared<Searched<Model>>(std::move(large), text);
    if (findRecords(searched->condition, searched->values, root).empty())
        qFatal("nothing is found: %s", text);
    Condition every;
    if (!every.read(QString::fromUtf8(RecordWords::kindOf(kind)->plural), nullptr).isEmpty())
        qFatal("no kind");
    const std::vector<RecordRef> all = findRecords(every, searched->values, root);
    QVector<const RecordField *> read;
    for (const QString &field : fields)
        read.append(RecordFields::find(kind, field));
    Bench::ratio(
        name, 10.0, Rounds,
        [searched, root] {
            benchmark::DoNotOptimize(findRecords(searched->condition, searched->values, root));
        },
        [searched, all, read] {
            double sum = 0.0;
            for (const RecordRef &record : all) {
                for (const RecordField *field : read)
                    sum += std::get<double>(searched->values.value(*field, record.index));
            }
            benchmark::DoNotOptimize(sum);
        });
}

/// The tree of such a mesh with all its vertices.
struct FilteredTree
{
    FilteredTree()
    {
        tree.setDocument(&document);
        document.take(LargeModels::skinnedMesh(), QStringLiteral("large"));
    }

    /// Shows what matches.
    void filter(const char *text)
    {
        tree.setFilter(QString());
        tree.setFilter(QString::fromUtf8(text));
    }

    SkinnedMeshDocument document{DocumentType::SkinnedMesh, RecordKind::SkinnedMesh};
    KVTreeView tree;
};
} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const BenchHome home;
    const QApplication application(argc, argv);
    Settings::HideMeshData.setValue(false);
    addSearch("find_vertices", LargeModels::skinnedMesh(), "vertices position > 300000",
              RecordKind::SkinnedMesh, RecordKind::SkinnedVertex, {"position.x", "position.y", "position.z"});
    addSearch("find_keys", LargeModels::animFile(), "translation keys position = 0", RecordKind::AnimFile,
              RecordKind::TranslationKey, {"position.x"});
    const auto tree = std::make_shared<FilteredTree>();
    Bench::ratio(
        "filter_by_condition", 1.2, Rounds, [tree] { tree->filter("vertices position > 300000"); },
        [tree] { tree->filter("vertex 1200000-1200010"); });
    return Bench::run(argc, argv);
}
