// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// Everything about every command, on small models and on real ones: the list of them is the program's own.
#include "SampleCommands.h"

#include <QUndoStack>

using namespace SampleCommands;
using SampleModels::bytesOf;

namespace {
struct RecordingView : DocumentView
{
    void aboutToChange() override { isAnnounced = true; }
    void recordChanged(const RecordRef &record) override { records.append(record); }
    void structureChanged(const StructureChange &change) override { structures.append(change); }
    bool isAnnounced = false;
    QVector<RecordRef> records;
    QVector<StructureChange> structures;
};

/// Also of a model that could not be saved.
template <typename Model>
QByteArray draftOf(const Model &model)
{
    BinaryFileWriter writer;
    model.writeDraft(writer);
    return bytesOf(writer);
}

/// From and to which byte two files of one length differ.
int differentBytes(const QByteArray &a, const QByteArray &b)
{
    const auto first = std::mismatch(a.begin(), a.end(), b.begin()).first;
    const auto last = std::mismatch(a.rbegin(), a.rend(), b.rbegin()).first.base();
    return int(last - first);
}

template <typename Command>
void checkAt(typename Command::Model model, const RecordIndex &index)
{
    using Place = typename Command::Place;
    RecordingView view;
    QUndoStack stack;
    const QByteArray before = bytesOf(model);
    auto *command = make<Command>({model, view}, index);
    QCOMPARE(bytesOf(model), before);
    QVERIFY(!view.isAnnounced);
    QCOMPARE(command->text(), QString::fromLatin1(Command::undoText).replace("%1", "a.glb"));
    stack.push(command);
    const QByteArray after = bytesOf(model);
    QVERIFY(after != before);
    QVERIFY(view.isAnnounced);
    if constexpr (isField<Command>) {
        if (after.size() == before.size())
            QVERIFY(differentBytes(before, after) <= int(sizeof(typename Command::Value)));
    }
    if constexpr (isInsertion<Command>()) {
        // Nothing else than the insertion has happened.
        auto rest = model;
        auto *list = Place::list(rest, index);
        list->erase(list->begin() + index[Place::component]);
        QCOMPARE(bytesOf(rest), before);
    }
    for (int round = 0; round < 2; ++round) {
        stack.undo();
        QCOMPARE(bytesOf(model), before);
        stack.redo();
        QCOMPARE(bytesOf(model), after);
    }
    if constexpr (isReplacement<Command>) {
        QVERIFY(view.records.isEmpty());
        QCOMPARE(view.structures.size(), 5);
        QCOMPARE(view.structures.last().record, (RecordRef{Place::kind, {}}));
        QCOMPARE(view.structures.last().added, 0);
        QCOMPARE(view.structures.last().select.kind, RecordKind::None);
    } else if constexpr (isExchange<Command>) {
        QVERIFY(view.records.isEmpty());
        QCOMPARE(view.structures.size(), 5);
        const StructureChange &change = view.structures.last();
        QCOMPARE(change.record, (RecordRef{Place::kind, index}));
        QVERIFY(change.added == 0 && change.select == change.record);
    } else if constexpr (isStructure<Command>) {
        QVERIFY(view.records.isEmpty());
        QCOMPARE(view.structures.size(), 5);
        const StructureChange &change = view.structures.last();
        QCOMPARE(change.record, (RecordRef{Place::kind, index}));
        QCOMPARE(change.added, isInsertion<Command>() ? 1 : -1);
        const bool isEmpty = Place::list(model, index)->empty();
        QCOMPARE(change.select.kind == Place::kind, !isEmpty);
        QVERIFY(isEmpty || Place::find(model, change.select.index));
    } else {
        QVERIFY(view.structures.isEmpty());
        QCOMPARE(view.records, QVector<RecordRef>(5, {Place::kind, index}));
    }

    // No command merges: the next one is a step of its own.
    if (!isStructure<Command> && !isExchange<Command>) {
        stack.push(make<Command>({model, view}, index));
        QCOMPARE(stack.count(), 2);
    }
}

template <typename Command>
void checkEverywhere()
{
    using Place = typename Command::Place;
    auto models = oddAndReal<typename Command::Model>();
    models.push_back(SampleModels::plainModel<typename Command::Model>());
    for (auto &model : models) {
        RecordIndex index = someIndex<Place>(model);
        if constexpr (std::is_same_v<Command, UC_AnimKeys>)
            index = {}; // other blocks have no frames
        if constexpr (isStructure<Command>) {
            index[Place::component] = 0;
            const int count = int(Place::list(model, index)->size());
            for (const int place : {0, count / 2, isInsertion<Command>() ? count : count - 1}) {
                index[Place::component] = place;
                checkAt<Command>(model, index);
            }
        } else {
            QVERIFY(Place::find(model, index));
            checkAt<Command>(model, index);
        }
    }
}
} // namespace

class tst_Commands : public QObject
{
    Q_OBJECT

private slots:
    void everyCommandGoesBackAndForth()
    {
        forEach([](auto tag) {
            using Command = typename decltype(tag)::Type;
            checkEverywhere<Command>();
            QVERIFY2(!QTest::currentTestFailed(), Command::name);
        });
    }

    void emptiedListShowsItsGroup()
    {
        SkinnedMesh mesh = SampleModels::skinnedMesh();
        mesh.hotPoints.resize(1);
        checkAt<UC_SkinnedMeshRemoveHotPoint>(mesh, {});
        AnimFile file = SampleModels::animFile();
        file.blocks[2].actions.resize(1);
        checkAt<UC_AnimRemoveAction>(file, {2, 0, 0});
    }

    void aRecordThatIsGoneIsLeftAlone()
    {
        forEach([](auto tag) {
            using Command = typename decltype(tag)::Type;
            using Place = typename Command::Place;
            auto model = SampleModels::plainModel<typename Command::Model>();
            typename Command::Model empty;
            RecordIndex index = someIndex<Place>(model);
            if constexpr (isStructure<Command>)
                index[Place::component] = 2;
            // The fields of the model itself are never gone.
            if (Place::find(empty, index))
                return;
            RecordingView view;
            QUndoStack stack;
            stack.push(make<Command>({model, view}, index));
            model = empty;
            view.records.clear();
            view.structures.clear();
            const QByteArray before = draftOf(model);
            for (int round = 0; round < 2; ++round) {
                stack.undo();
                QVERIFY2(draftOf(model) == before, Command::name);
                stack.redo();
                QVERIFY2(draftOf(model) == before, Command::name);
            }
            QVERIFY2(view.records.isEmpty() && view.structures.isEmpty(), Command::name);
        });
    }
};

QTEST_GUILESS_MAIN(tst_Commands)
#include "tst_commands.moc"
