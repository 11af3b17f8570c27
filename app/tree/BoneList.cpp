// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "JsonReader.h"
#include "JsonWriter.h"
#include "NumberedLists.h"
#include "RecordsJson.h"
#include "SkinnedMeshCommands.h"

#include <QCoreApplication>
#include <QMap>

#include <algorithm>

namespace {
struct BoneTexts
{
    Q_DECLARE_TR_FUNCTIONS(RecordEdits)
};

// Of the bones, in the mesh that they were copied of; what they are called there, by number.
constexpr const char *NumbersKey = "numbers";
constexpr const char *NamesKey = "names";

QVector<int> numbersOf(const QVector<RecordIndex> &records)
{
    QVector<int> numbers;
    for (const RecordIndex &index : records)
        numbers += index[0];
    return numbers;
}

/// The place of each bone's parent among the bones themselves, -1 where it is none of them: by their numbers,
/// if there are as many. A circle is cut open.
QVector<int> parentsAmong(const std::vector<SkinnedMeshNode> &bones, const QVector<int> &numbers)
{
    QVector<int> parents(int(bones.size()), -1);
    if (numbers.size() != parents.size())
        return parents;
    for (int i = 0; i < parents.size(); ++i) {
        int above = numbers.indexOf(bones[size_t(i)].parentNode);
        parents[i] = above;
        for (int steps = 0; above >= 0; above = parents[above]) {
            if (above == i || ++steps > parents.size()) {
                parents[i] = -1;
                break;
            }
        }
    }
    return parents;
}
} // namespace

BoneList::BoneList(SkinnedMeshDocument &document)
    : EditedList(RecordKind::Bone, RecordKind::Bones, listWords("bones"))
    , m_document(document)
{}

/// Makes an edit of the skeleton one step.
template <typename Edit>
ListEdit BoneList::push(Edit made, const QVector<RecordIndex> &before, const QString &step)
{
    ListEdit edit;
    edit.refusal = made.refusal;
    if (!made.skeleton)
        return edit;
    for (const int bone : qAsConst(made.bones))
        edit.selected.append({kind(), {bone, 0, 0}});
    const RecordRef first{before.isEmpty() ? group() : kind(),
                          before.isEmpty() ? RecordIndex{} : before.first()};
    const int rest = m_document.recordCount(kind(), {}) - before.size();
    const RecordRef next{kind(), {std::min(first.index[0], rest - 1), 0, 0}};
    QUndoStack &stack = *m_document.undoStack();
    stack.beginMacro(step);
    stack.push(new UC_SkinnedMeshBones(m_document.editTarget(), {}, std::move(*made.skeleton), first,
                                       edit.selected.isEmpty() ? next : edit.selected.last()));
    stack.endMacro();
    edit.told =
        BoneTexts::tr("The animations of the mesh are another file and have its bones as they were: change "
                      "them there, too.");
    return edit;
}

QByteArray BoneList::text(const QVector<RecordIndex> &records, const RecordIndex &) const
{
    std::vector<SkinnedMeshNode> bones;
    std::vector<quint16> numbers;
    QMap<int, QString> names;
    for (const RecordIndex &index : records) {
        bones.push_back(m_document.model().nodes[size_t(index[0])]);
        numbers.push_back(quint16(index[0]));
        if (!bones.back().name.isEmpty())
            names.insert(index[0], bones.back().name);
    }
    QByteArray text;
    {
        JsonWriter writer([&text](const QByteArray &part) { text += part; });
        writer.beginObject(false);
        writer(JsonField{words().key, ""}, bones);
        writer(JsonField{NumbersKey, ""}, numbers);
        if (!names.isEmpty())
            writer(JsonField{NamesKey, ""}, names);
        writer.endObject();
        writer.endLine();
    }
    return text;
}

ListEdit BoneList::cut(const QVector<RecordIndex> &records, const RecordIndex &)
{
    return push(MeshBones::without(m_document.model(), numbersOf(records)), records, BoneTexts::tr("Cut"));
}

ListEdit BoneList::move(const QVector<RecordIndex> &records, const RecordIndex &, int by)
{
    return push(MeshBones::moved(m_document.model(), numbersOf(records), by), records,
                by < 0 ? BoneTexts::tr("Move Up") : BoneTexts::tr("Move Down"));
}

ListEdit BoneList::duplicate(const QVector<RecordIndex> &records, const RecordIndex &)
{
    std::vector<SkinnedMeshNode> bones;
    for (const RecordIndex &index : records)
        bones.push_back(m_document.model().nodes[size_t(index[0])]);
    return insert(records.last()[0] + 1, std::move(bones), numbersOf(records), -1,
                  BoneTexts::tr("Duplicate"));
}

/// Bones whose parent is none of them hang on `parent` or, when that is -1, on their own or else on bone 0.
ListEdit BoneList::insert(int at, std::vector<SkinnedMeshNode> bones, const QVector<int> &numbers, int parent,
                          const QString &step)
{
    const int count = m_document.recordCount(kind(), {});
    const QVector<int> parents = parentsAmong(bones, numbers);
    std::vector<MeshBones::NewBone> added;
    for (int i = 0; i < parents.size(); ++i) {
        SkinnedMeshNode &bone = bones[size_t(i)];
        const int own = bone.parentNode < count ? bone.parentNode : 0;
        const int above = parents.at(i) >= 0 ? -1 - parents.at(i) : parent >= 0 ? parent : own;
        added.push_back({std::move(bone), above});
    }
    if (added.empty())
        return {};
    const RecordIndex before{at - 1, 0, 0};
    return push(MeshBones::with(m_document.model(), at, added), {before}, step);
}

JsonProblem BoneList::paste(const QByteArray &text, const RecordRef &current, ListEdit &edit)
{
    std::vector<SkinnedMeshNode> bones;
    std::vector<quint16> numbers;
    QMap<int, QString> names;
    JsonReader reader({text.constData(), size_t(text.size())});
    JsonProblem problem;
    if (reader.accept('{') && reader.key() == words().key) {
        reader.read(JsonField{}, bones);
        while (!reader.failed() && reader.accept(',')) {
            const char *at = reader.next();
            const std::string_view key = reader.key();
            if (key == NumbersKey)
                reader.read(JsonField{}, numbers);
            else if (key == NamesKey)
                reader.read(JsonField{}, names);
            else
                reader.fail(at, BoneTexts::tr("\"numbers\" was expected: those of the bones."));
        }
        reader.expect('}');
        reader.expectEnd();
        problem = reader.problem();
    } else {
        problem = RecordsJson::read(text, words().key, bones);
    }
    if (!problem.text.isEmpty())
        return problem;
    for (size_t i = 0; i < std::min(bones.size(), numbers.size()); ++i)
        bones[i].name = names.value(numbers[i]);
    // Beside the current bone, which nothing can be for the first.
    const std::vector<SkinnedMeshNode> &there = m_document.model().nodes;
    const int place = current.kind == kind() ? current.index[0] : 0;
    if (there.empty()) {
        edit.refusal = BoneTexts::tr("The mesh has no bone that these could hang on.");
        return problem;
    }
    const int parent =
        place > 0 && there[size_t(place)].parentNode < there.size() ? there[size_t(place)].parentNode : 0;
    edit = insert(place + 1, std::move(bones), QVector<int>(numbers.begin(), numbers.end()), parent,
                  BoneTexts::tr(words().paste));
    return problem;
}
