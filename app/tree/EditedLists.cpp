// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimCommands.h"
#include "EditedList.h"
#include "NumberedLists.h"
#include "RecordsJson.h"
#include "RemoveRecords.h"
#include "SkinnedMeshCommands.h"
#include "StaticMeshCommands.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace {
struct ListTexts
{
    Q_DECLARE_TR_FUNCTIONS(RecordEdits)
};

/// Why records cannot come into a model; empty when they can.
template <typename Model, typename Record>
QString misfitOf(const Model &, const std::vector<Record> &)
{
    return {};
}

template <typename Model, typename Surface>
QString surfaceMisfit(const Model &mesh, const std::vector<Surface> &surfaces)
{
    for (const Surface &surface : surfaces) {
        const auto &indexes = surface.triangleIndexes;
        const auto beyond = std::find_if(indexes.begin(), indexes.end(),
                                         [&](quint16 index) { return index >= mesh.vertices.size(); });
        if (beyond != indexes.end())
            return ListTexts::tr(
                       "A surface of the clipboard has a corner at vertex %1, and the mesh has %2 vertices. "
                       "Surfaces come without vertices: paste them into the model they were copied of.")
                .arg(QString::number(*beyond), QString::number(mesh.vertices.size()));
    }
    return {};
}

QString misfitOf(const SkinnedMesh &mesh, const std::vector<SkinnedMeshSurface> &surfaces)
{
    return surfaceMisfit(mesh, surfaces);
}

QString misfitOf(const StaticMesh &mesh, const std::vector<StaticMeshSurface> &surfaces)
{
    return surfaceMisfit(mesh, surfaces);
}

/// Whether a list may become empty.
template <typename Record>
inline constexpr bool canBeEmpty =
    !std::is_same_v<Record, SkinnedMeshSurface> && !std::is_same_v<Record, StaticMeshSurface>;

/// A list whose places nothing counts: records go in and come out one by one.
template <typename Insert, typename Remove>
class PlainList final : public EditedList
{
    using Place = typename Insert::Place;
    using Record = typename Insert::Record;
    using Model = typename Insert::Model;
    static constexpr size_t Component = Place::component;

public:
    PlainList(ModelDocument<Model> &document, RecordKind group, std::string_view key)
        : EditedList(Place::kind, group, listWords(key))
        , m_document(document)
    {}

    QByteArray text(const QVector<RecordIndex> &records, const RecordIndex &) const override
    {
        return RecordsJson::text(words().key, copied(records));
    }

    ListEdit cut(const QVector<RecordIndex> &records, const RecordIndex &current) override
    {
        if (!canBeEmpty<Record> && records.size() == m_document.recordCount(kind(), current))
            return {ListTexts::tr("The last surface stays: the file format keeps no vertices without one."),
                    {},
                    {}};
        removeRecords<Remove>(*m_document.undoStack(), m_document.editTarget(), records,
                              ListTexts::tr("Cut"));
        return {};
    }

    ListEdit duplicate(const QVector<RecordIndex> &records, const RecordIndex &current) override
    {
        // Behind the last one of the current record's owner.
        RecordIndex at = current;
        at[Component] = numbersBeside(records, current).last() + 1;
        return insert(at, copied(records), ListTexts::tr("Duplicate"));
    }

    ListEdit move(const QVector<RecordIndex> &records, const RecordIndex &current, int by) override
    {
        QVector<int> numbers = numbersBeside(records, current);
        if (numbers.first() + by < 0 || numbers.last() + by >= m_document.recordCount(kind(), current))
            return {};
        // Those in front go first, so that none has to pass another.
        if (by > 0)
            std::reverse(numbers.begin(), numbers.end());
        QUndoStack &stack = *m_document.undoStack();
        stack.beginMacro(by < 0 ? ListTexts::tr("Move Up") : ListTexts::tr("Move Down"));
        RecordIndex at = current;
        ListEdit edit;
        for (const int number : qAsConst(numbers)) {
            at[Component] = number;
            Record record = *Place::find(m_document.model(), at);
            stack.push(new Remove(m_document.editTarget(), at));
            at[Component] = number + by;
            stack.push(new Insert(m_document.editTarget(), at, std::move(record)));
            edit.selected.append({kind(), at});
        }
        stack.endMacro();
        if (by > 0)
            std::reverse(edit.selected.begin(), edit.selected.end());
        return edit;
    }

    JsonProblem paste(const QByteArray &text, const RecordRef &current, ListEdit &edit) override
    {
        std::vector<Record> records;
        JsonProblem problem = RecordsJson::read(text, words().key, records);
        if (!problem.text.isEmpty())
            return problem;
        edit.refusal = misfitOf(m_document.model(), records);
        RecordIndex at = current.index;
        if (current.kind == kind())
            ++at[Component];
        if (edit.refusal.isEmpty())
            edit = insert(at, std::move(records), ListTexts::tr(words().paste));
        return problem;
    }

private:
    std::vector<Record> copied(const QVector<RecordIndex> &records) const
    {
        std::vector<Record> copies;
        for (const RecordIndex &index : records) {
            if (const auto *record = Place::find(m_document.model(), index))
                copies.push_back(*record);
        }
        return copies;
    }

    /// The numbers of those in the current one's list.
    static QVector<int> numbersBeside(const QVector<RecordIndex> &records, const RecordIndex &current)
    {
        QVector<int> numbers;
        for (const RecordIndex &index : records) {
            if (std::equal(index.begin(), index.begin() + Component, current.begin()))
                numbers += index[Component];
        }
        return numbers;
    }

    /// Puts records there, one after the other.
    ListEdit insert(RecordIndex at, std::vector<Record> records, const QString &step)
    {
        ListEdit edit;
        if (records.empty())
            return edit;
        QUndoStack &stack = *m_document.undoStack();
        stack.beginMacro(step);
        for (Record &record : records) {
            edit.selected.append({kind(), at});
            stack.push(new Insert(m_document.editTarget(), at, std::move(record)));
            ++at[Component];
        }
        stack.endMacro();
        return edit;
    }

    ModelDocument<Model> &m_document;
};
} // namespace

const std::array<ListWords, 8> &listWords()
{
    // clang-format off
    static constexpr std::array<ListWords, 8> all{{
        {"hotPoints", QT_TRANSLATE_NOOP("RecordEdits", "hot points"), QT_TRANSLATE_NOOP("RecordEdits", "Copy Hot Point"), QT_TRANSLATE_NOOP("RecordEdits", "Paste Hot Point")},
        {"childBones", QT_TRANSLATE_NOOP("RecordEdits", "child bones"), QT_TRANSLATE_NOOP("RecordEdits", "Copy Child Bone"), QT_TRANSLATE_NOOP("RecordEdits", "Paste Child Bone")},
        {"bones", QT_TRANSLATE_NOOP("RecordEdits", "bones"), QT_TRANSLATE_NOOP("RecordEdits", "Copy Bone"), QT_TRANSLATE_NOOP("RecordEdits", "Paste Bone")},
        {"surfaces", QT_TRANSLATE_NOOP("RecordEdits", "surfaces"), QT_TRANSLATE_NOOP("RecordEdits", "Copy Surface"), QT_TRANSLATE_NOOP("RecordEdits", "Paste Surface")},
        {"blocks", QT_TRANSLATE_NOOP("RecordEdits", "animations"), QT_TRANSLATE_NOOP("RecordEdits", "Copy Animation"), QT_TRANSLATE_NOOP("RecordEdits", "Paste Animation")},
        {"translations", QT_TRANSLATE_NOOP("RecordEdits", "translation tracks"), QT_TRANSLATE_NOOP("RecordEdits", "Copy Translation Track"), QT_TRANSLATE_NOOP("RecordEdits", "Paste Translation Track")},
        {"rotations", QT_TRANSLATE_NOOP("RecordEdits", "rotation tracks"), QT_TRANSLATE_NOOP("RecordEdits", "Copy Rotation Track"), QT_TRANSLATE_NOOP("RecordEdits", "Paste Rotation Track")},
        {"actions", QT_TRANSLATE_NOOP("RecordEdits", "key frame actions"), QT_TRANSLATE_NOOP("RecordEdits", "Copy Key Frame Action"), QT_TRANSLATE_NOOP("RecordEdits", "Paste Key Frame Action")},
    }};
    // clang-format on
    return all;
}

const ListWords &listWords(std::string_view key)
{
    return *std::find_if(listWords().begin(), listWords().end(),
                         [key](const ListWords &each) { return key == each.key; });
}

EditedLists editedLists(Document &document)
{
    EditedLists lists;
    const auto add = [&lists](auto list) { lists.push_back(std::move(list)); };
    switch (document.kind().type) {
    case DocumentType::SkinnedMesh: {
        auto &mesh = static_cast<SkinnedMeshDocument &>(document);
        add(std::make_unique<PlainList<UC_SkinnedMeshPasteHotPoint, UC_SkinnedMeshRemoveHotPoint>>(
            mesh, RecordKind::HotPoints, "hotPoints"));
        add(std::make_unique<PlainList<UC_SkinnedMeshAddCnode, UC_SkinnedMeshRemoveCnode>>(
            mesh, RecordKind::ChildBones, "childBones"));
        add(std::make_unique<PlainList<UC_SkinnedMeshAddSurface, UC_SkinnedMeshRemoveSurface>>(
            mesh, RecordKind::SkinnedSurfaces, "surfaces"));
        add(std::make_unique<BoneList>(mesh));
        break;
    }
    case DocumentType::Anim: {
        auto &anim = static_cast<AnimDocument &>(document);
        add(std::make_unique<PlainList<UC_AnimBlockPaste, UC_AnimBlockRemove>>(anim, RecordKind::AnimFile,
                                                                               "blocks"));
        add(std::make_unique<PlainList<UC_AnimAddAction, UC_AnimRemoveAction>>(anim, RecordKind::AnimActions,
                                                                               "actions"));
        add(std::make_unique<BlockBoneList>(anim));
        add(std::make_unique<TrackList<UC_AnimTranslationTracks>>(anim));
        add(std::make_unique<TrackList<UC_AnimRotationTracks>>(anim));
        break;
    }
    case DocumentType::StaticMesh:
        add(std::make_unique<PlainList<UC_StaticMeshAddSurface, UC_StaticMeshRemoveSurface>>(
            static_cast<StaticMeshDocument &>(document), RecordKind::StaticSurfaces, "surfaces"));
        break;
    }
    return lists;
}
