// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimCommands.h"
#include "NumberedLists.h"
#include "RecordsJson.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
struct BlockBoneTexts
{
    Q_DECLARE_TR_FUNCTIONS(RecordEdits)
};

/// The numbers of the bones, of whatever block, that one with `count` bones has, too; ascending.
QVector<int> boneNumbers(const QVector<RecordIndex> &records, size_t count)
{
    QVector<int> numbers;
    for (const RecordIndex &index : records) {
        if (size_t(index[1]) < count)
            numbers += index[1];
    }
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}
} // namespace

BlockBoneList::BlockBoneList(AnimDocument &document)
    : EditedList(RecordKind::AnimBone, RecordKind::AnimBones, listWords("bones"))
    , m_document(document)
{}

const std::vector<AnimNode> &BlockBoneList::bones(const RecordIndex &index) const
{
    return m_document.model().blocks[size_t(index[0])].nodes;
}

std::vector<AnimNode> BlockBoneList::copied(const RecordIndex &index, const QVector<int> &numbers) const
{
    std::vector<AnimNode> copies;
    for (const int number : numbers)
        copies.push_back(bones(index)[size_t(number)]);
    return copies;
}

/// Makes that one step, where it can be.
ListEdit BlockBoneList::arrange(const std::vector<int> &places, const std::vector<AnimNode> &added,
                                const QVector<int> &copied, const QVector<RecordRef> &selected,
                                const RecordRef &before, const QString &step)
{
    ListEdit edit;
    BlockBones state(m_document.model(), before.index[0]);
    edit.refusal = state.arrange(places, added, copied);
    if (!edit.refusal.isEmpty())
        return edit;
    const int blocks = state.blockCount();
    QUndoStack &stack = *m_document.undoStack();
    stack.beginMacro(step);
    stack.push(new UC_AnimBones(m_document.editTarget(), {}, std::move(state), before, selected.last()));
    stack.endMacro();
    edit.selected = selected;
    edit.told =
        BlockBoneTexts::tr("So in all animations with as many bones: %1. The mesh is another file: change "
                           "its bones there, too.")
            .arg(blocks);
    return edit;
}

QByteArray BlockBoneList::text(const QVector<RecordIndex> &records, const RecordIndex &current) const
{
    return RecordsJson::text(words().key, copied(current, boneNumbers(records, bones(current).size())));
}

ListEdit BlockBoneList::cut(const QVector<RecordIndex> &records, const RecordIndex &current)
{
    const QVector<int> numbers = boneNumbers(records, bones(current).size());
    std::vector<int> places = placesOf(int(bones(current).size()));
    places.erase(std::remove_if(places.begin(), places.end(),
                                [&numbers](int bone) {
                                    return std::binary_search(numbers.begin(), numbers.end(), bone);
                                }),
                 places.end());
    const int next = std::min(numbers.first(), int(places.size()) - 1);
    return arrange(places, {}, {}, {ref(current, 1, next)}, ref(current, 1, numbers.first()),
                   BlockBoneTexts::tr("Cut"));
}

ListEdit BlockBoneList::move(const QVector<RecordIndex> &records, const RecordIndex &current, int by)
{
    QVector<int> numbers = boneNumbers(records, bones(current).size());
    std::vector<int> places = placesOf(int(bones(current).size()));
    if (numbers.first() + by < 0 || numbers.last() + by >= int(places.size()))
        return {};
    QVector<RecordRef> selected;
    for (const int number : qAsConst(numbers))
        selected.append(ref(current, 1, number + by));
    const RecordRef before = ref(current, 1, numbers.first());
    // Those in front go first, so that none has to pass another.
    if (by > 0)
        std::reverse(numbers.begin(), numbers.end());
    for (const int number : qAsConst(numbers))
        std::swap(places[size_t(number)], places[size_t(number + by)]);
    return arrange(places, {}, {}, selected, before,
                   by < 0 ? BlockBoneTexts::tr("Move Up") : BlockBoneTexts::tr("Move Down"));
}

ListEdit BlockBoneList::insert(RecordIndex at, const std::vector<AnimNode> &added, const QVector<int> &copied,
                               const QString &step)
{
    if (added.empty())
        return {};
    std::vector<int> places = placesOf(int(bones(at).size()));
    QVector<RecordRef> selected;
    std::vector<int> fresh;
    for (int i = 0; i < int(added.size()); ++i) {
        fresh.push_back(-1 - i);
        selected.append(ref(at, 1, at[1] + i));
    }
    places.insert(places.begin() + at[1], fresh.begin(), fresh.end());
    return arrange(places, added, copied, selected, ref(at, 1, std::max(at[1] - 1, 0)), step);
}

ListEdit BlockBoneList::duplicate(const QVector<RecordIndex> &records, const RecordIndex &current)
{
    const QVector<int> numbers = boneNumbers(records, bones(current).size());
    return insert({current[0], numbers.last() + 1, 0}, copied(current, numbers), numbers,
                  BlockBoneTexts::tr("Duplicate"));
}

JsonProblem BlockBoneList::paste(const QByteArray &text, const RecordRef &current, ListEdit &edit)
{
    std::vector<AnimNode> added;
    JsonProblem problem = RecordsJson::read(text, words().key, added);
    if (!problem.text.isEmpty())
        return problem;
    const AnimBlock &block = m_document.model().blocks[size_t(current.index[0])];
    constexpr int NoTrack = 0xFFFF;
    for (const AnimNode &bone : added) {
        const auto isMissing = [](int track, int count) { return track >= count && track != NoTrack; };
        const bool lacksTranslation = isMissing(bone.translationIndex, block.translations.trackCount());
        if (lacksTranslation || isMissing(bone.rotationIndex, block.rotations.trackCount())) {
            edit.refusal =
                BlockBoneTexts::tr("A bone of the clipboard follows track %1, which the animation does not "
                                   "have.")
                    .arg(lacksTranslation ? bone.translationIndex : bone.rotationIndex);
            return problem;
        }
    }
    // Bone 0 stays first.
    RecordIndex at = current.index;
    at[1] = std::min(current.kind == kind() ? at[1] + 1 : 1, int(block.nodes.size()));
    edit = insert(at, added, {}, BlockBoneTexts::tr(words().paste));
    return problem;
}
