// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT

// Long random histories of commands: undo and redo must give back every byte.
#include "SampleCommands.h"

#include <QUndoStack>

#include <numeric>

using SampleModels::bytesOf;

namespace {
/// Keeps a list of identities in step with the blocks of an animation, so that a count change can be repeated
/// on the same block of an otherwise unedited file.
struct TrackBlock : QUndoCommand
{
    TrackBlock(std::vector<int> &list, int position, bool inserts, QUndoCommand *parent)
        : QUndoCommand(parent)
        , ids(list)
        , at(position)
        , isInsertion(inserts)
    {}
    void redo() override { apply(isInsertion); }
    void undo() override { apply(!isInsertion); }
    void apply(bool insert)
    {
        if (insert) {
            ids.insert(ids.begin() + at, id);
        } else {
            id = ids[size_t(at)];
            ids.erase(ids.begin() + at);
        }
    }

    std::vector<int> &ids;
    int at;
    bool isInsertion;
    int id = -1; ///< of a block that the file did not have
};

/// A history of random edits of one model.
template <typename Model>
struct History
{
    History(Model start, quint32 seed)
        : model(std::move(start))
        , random(seed)
    {}

    int below(int bound) { return random.bounded(std::max(1, bound)); }
    EditTarget<Model> target() { return {model, screen}; }

    /// An index of which each part may point a little beyond what is there.
    RecordIndex anyIndex() { return {below(8), below(8), below(8)}; }

    /// One field command of the list, whichever, on a record that may not exist, with the value of another.
    template <typename List, typename Allowed>
    void editField(const List &list, Allowed allowed)
    {
        const int chosen = below(int(std::tuple_size_v<List>));
        int number = 0;
        const auto editIfChosen = [&](auto tag) {
            using Command = typename decltype(tag)::Type;
            if constexpr (SampleCommands::isField<Command>) {
                if (number++ != chosen || !allowed(Command::Place::kind))
                    return;
                typename Command::Value value{};
                if (const auto *donor = Command::Place::find(model, anyIndex()))
                    value = Command::Field::get(*donor);
                stack.push(new Command(target(), anyIndex(), value));
            }
        };
        std::apply([&](auto... tags) { (editIfChosen(tags), ...); }, list);
    }

    template <typename Insertion, typename Removal>
    void changeList(RecordIndex index, std::vector<int> *ids = nullptr)
    {
        using Place = typename Insertion::Place;
        auto *list = Place::list(model, index);
        if (!list)
            return;
        const int count = int(list->size());
        const bool inserts = count == 0 || (count < 8 && below(2));
        const int position = below(inserts ? count + 1 : count);
        index[Place::component] = position;
        auto *step = new QUndoCommand;
        if (inserts) {
            const auto record = count && below(2) ? list->front() : typename Insertion::Record();
            new Insertion(target(), index, record, step);
        } else {
            new Removal(target(), index, step);
        }
        if (ids)
            new TrackBlock(*ids, position, inserts, step);
        stack.push(step);
    }

    void wander()
    {
        for (int i = below(6); i > 0; --i) {
            if (below(3))
                stack.undo();
            else
                stack.redo();
        }
    }

    Model model;
    SampleCommands::BlindView screen;
    QUndoStack stack;
    QRandomGenerator random;
};

constexpr int Steps = 2000;

/// All back, all forth: the bytes must be those of the start and those of the end.
template <typename Model>
void checkEnds(History<Model> &history, const QByteArray &start)
{
    const QByteArray end = bytesOf(history.model);
    const int index = history.stack.index();
    history.stack.setIndex(0);
    QCOMPARE(bytesOf(history.model), start);
    history.stack.setIndex(index);
    QCOMPARE(bytesOf(history.model), end);
}

template <typename Model, typename Step>
void wanderThrough(Step step)
{
    for (const Model &model : SampleCommands::oddAndReal<Model>()) {
        for (const quint32 seed : {1u, 20261121u}) {
            History<Model> history(model, seed);
            for (int i = 0; i < Steps; ++i) {
                step(history);
                if (history.below(4) == 0)
                    history.wander();
            }
            QVERIFY(history.stack.count() > Steps / 20);
            checkEnds(history, bytesOf(model));
        }
    }
}

/// Bones come in, go or move; what is refused is no step.
void changeBones(History<SkinnedMesh> &history)
{
    const int count = int(history.model.nodes.size());
    const int bone = history.below(count);
    const int what = history.below(3);
    auto edit = what == 0   ? MeshBones::with(history.model, bone, {{history.model.nodes[0], 0}})
                : what == 1 ? MeshBones::without(history.model, {bone})
                            : MeshBones::moved(history.model, {bone}, 1);
    if (edit.skeleton)
        history.stack.push(new UC_SkinnedMeshBones(history.target(), {}, std::move(*edit.skeleton), {}, {}));
}

/// Tracks of some block come in or go.
template <typename Command>
void changeTracks(History<AnimFile> &history)
{
    using State = typename Command::State;
    const RecordIndex index = history.anyIndex();
    const AnimBlock *block = Records::Block::find(history.model, index);
    if (!block)
        return;
    State state(*block);
    std::vector<int> places(static_cast<size_t>(State::table(*block).trackCount()));
    std::iota(places.begin(), places.end(), 0);
    if (places.size() > 6 || (!places.empty() && history.below(2)))
        places.erase(places.begin() + history.below(int(places.size())));
    else
        places.insert(places.begin() + history.below(int(places.size()) + 1), -1);
    if (!state.arrange(places, {1, block->frameCount()}))
        history.stack.push(new Command(history.target(), {index[0], 0, 0}, std::move(state), {}, {}));
}

constexpr auto anyField = [](RecordKind) { return true; };
} // namespace

class tst_Histories : public QObject
{
    Q_OBJECT

private slots:
    void randomHistoryOfMeshes()
    {
        wanderThrough<SkinnedMesh>([](History<SkinnedMesh> &history) {
            switch (history.below(8)) {
            case 0:
                history.stack.push(new UC_SkinnedMeshRotate(history.target(), 10.0f, 0.0f, -33.0f));
                break;
            case 1:
                history.stack.push(new UC_SkinnedMeshScale(history.target(), 1.0e6f));
                break;
            case 2:
            case 3:
                history.editField(skinnedMeshCommands, anyField);
                break;
            case 4:
                changeBones(history);
                break;
            default:
                history.changeList<UC_SkinnedMeshPasteHotPoint, UC_SkinnedMeshRemoveHotPoint>({});
            }
        });
        wanderThrough<StaticMesh>([](History<StaticMesh> &history) {
            switch (history.below(8)) {
            case 0:
                history.stack.push(new UC_StaticMeshRotate(history.target(), 0.0f, 45.0f, 1.0f));
                break;
            case 1:
                history.stack.push(new UC_StaticMeshScale(history.target(), 1.0e6f));
                break;
            default:
                history.editField(staticMeshCommands, anyField);
            }
        });
    }

    /// Count changes are no undo steps: they stay, on the blocks that they were made on. Keys that a count
    /// change has cut off or made by copying cannot come back; then it is enough that nothing breaks.
    void randomHistoryOfAnimations()
    {
        for (const quint32 seed : {7u, 20261121u}) {
            for (const AnimFile &file : SampleCommands::oddAndReal<AnimFile>()) {
                wander(file, seed, false, true);
                wander(file, seed, true, false);
                wander(file, seed, true, true);
            }
        }
    }

private:
    static void wander(const AnimFile &file, quint32 seed, bool changesCounts, bool editsKeys)
    {
        AnimFile expected = file;
        History<AnimFile> history(file, seed);
        std::vector<int> ids(file.blocks.size());
        std::iota(ids.begin(), ids.end(), 0);
        const auto isAllowed = [&](RecordKind kind) {
            return editsKeys || (kind != RecordKind::AnimFrame && kind != RecordKind::TranslationKey &&
                                 kind != RecordKind::RotationKey);
        };
        for (int i = 0; i < Steps; ++i) {
            switch (history.below(changesCounts ? 8 : 7)) {
            case 0:
            case 1:
            case 2:
                history.editField(animCommands, isAllowed);
                break;
            case 3:
                history.changeList<UC_AnimBlockPaste, UC_AnimBlockRemove>({}, &ids);
                break;
            case 4:
                // What a count change has cut off is not in the table that comes back.
                if (!changesCounts || editsKeys)
                    changeTracks<UC_AnimRotationTracks>(history);
                break;
            case 7: {
                // In the midst of a history that then goes on forwards, too.
                for (int back = history.below(8); back > 0; --back)
                    history.stack.undo();
                if (ids.empty())
                    break;
                const auto block = size_t(history.below(int(ids.size())));
                const auto resize = std::array{&AnimBlock::setFrameCount, &AnimBlock::setTranslationCount,
                                               &AnimBlock::setRotationCount}[size_t(history.below(3))];
                const int count = history.below(12);
                (history.model.blocks[block].*resize)(count);
                if (ids[block] >= 0)
                    (expected.blocks[size_t(ids[block])].*resize)(count);
                for (int forth = history.below(8); forth > 0; --forth)
                    history.stack.redo();
                break;
            }
            default:
                history.changeList<UC_AnimAddAction, UC_AnimRemoveAction>(history.anyIndex());
            }
            if (history.below(4) == 0)
                history.wander();
        }
        QVERIFY(history.stack.count() > Steps / 20);
        if (changesCounts && editsKeys)
            history.stack.setIndex(0);
        else
            checkEnds(history, bytesOf(expected));
    }
};

QTEST_GUILESS_MAIN(tst_Histories)
#include "tst_histories.moc"
