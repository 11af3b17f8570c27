// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordEdits.h"

#include "AnimCommands.h"
#include "Icons.h"
#include "KVTreeView.h"
#include "RecordsJson.h"
#include "Shortcuts.h"
#include "SkinnedMeshCommands.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QMimeData>

#include <algorithm>

namespace {
/// A list that records can be put into and taken out of; its name in JSON.
template <typename InsertCommand, typename RemoveCommand, RecordKind Group>
struct EditedList
{
    using Insert = InsertCommand;
    using Remove = RemoveCommand;
    using Place = typename InsertCommand::Place;
    using Record = typename InsertCommand::Record;
    static constexpr RecordKind kind = Place::kind;
    static constexpr RecordKind group = Group;
    static constexpr size_t component = Place::component;
    const char *key;
};
using HotPointList =
    EditedList<UC_SkinnedMeshPasteHotPoint, UC_SkinnedMeshRemoveHotPoint, RecordKind::HotPoints>;
using ChildBoneList = EditedList<UC_SkinnedMeshAddCnode, UC_SkinnedMeshRemoveCnode, RecordKind::ChildBones>;
using BlockList = EditedList<UC_AnimBlockPaste, UC_AnimBlockRemove, RecordKind::AnimFile>;
using ActionList = EditedList<UC_AnimAddAction, UC_AnimRemoveAction, RecordKind::AnimActions>;
} // namespace

RecordEdits::RecordEdits(SkinnedMeshDocument &mesh, AnimDocument &anim, KVTreeView *tree, QWidget *window)
    : QObject(tree)
    , m_mesh(mesh)
    , m_anim(anim)
    , m_tree(tree)
    , m_window(window)
{
    m_cut = addAction("", tr("Cut"), "actionTreeCut", QKeySequence::Cut, &RecordEdits::cut);
    m_actions += addAction("copy", tr("Duplicate"), "actionTreeDuplicate", QStringLiteral("Ctrl+D"),
                           &RecordEdits::duplicate);
    m_actions += addAction("", tr("Move Up"), "actionTreeMoveUp", QStringLiteral("Ctrl+Shift+Up"),
                           &RecordEdits::moveUp);
    m_actions += addAction("", tr("Move Down"), "actionTreeMoveDown", QStringLiteral("Ctrl+Shift+Down"),
                           &RecordEdits::moveDown);
}

QAction *RecordEdits::addAction(const char *icon, const QString &text, const char *id,
                                const QKeySequence &keys, void (RecordEdits::*slot)())
{
    auto *action = new QAction(*icon ? namedIcon(QLatin1String(icon)) : QIcon(), text, this);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    nameShortcut(action, QLatin1String(id), QCoreApplication::translate("StructureActions", "Trees"),
                 QString());
    connect(action, &QAction::triggered, this, slot);
    m_tree->addAction(action);
    return action;
}

/// Calls `body(list)` with the list that the current record, or group, is of.
template <typename Body>
void RecordEdits::withList(Body body) const
{
    switch (m_tree->currentRecord().kind) {
    case RecordKind::HotPoints:
    case RecordKind::HotPoint:
        return body(HotPointList{"hotPoints"});
    case RecordKind::ChildBones:
    case RecordKind::ChildBone:
        return body(ChildBoneList{"childBones"});
    case RecordKind::AnimFile:
    case RecordKind::AnimBlock:
        return body(BlockList{"blocks"});
    case RecordKind::AnimActions:
    case RecordKind::AnimAction:
        return body(ActionList{"actions"});
    default:
        break;
    }
}

template <typename List>
auto &RecordEdits::documentOf() const
{
    if constexpr (std::is_same_v<typename List::Place::Model, SkinnedMesh>)
        return m_mesh;
    else
        return m_anim;
}

void RecordEdits::update()
{
    bool isRecord = false;
    withList([&](auto list) { isRecord = m_tree->currentRecord().kind == list.kind; });
    for (QAction *action : m_actions + QList<QAction *>{m_cut}) {
        action->setVisible(isRecord);
        action->setEnabled(isRecord);
    }
}

bool RecordEdits::hasText()
{
    const QMimeData *held = QApplication::clipboard()->mimeData();
    return held && held->hasText() && !held->text().isEmpty();
}

void RecordEdits::copy() const
{
    withList([this](auto list) {
        using List = decltype(list);
        const auto &model = documentOf<List>().model();
        std::vector<typename List::Record> records;
        for (const RecordIndex &index : m_tree->selectedRecords(list.kind)) {
            if (const auto *record = List::Place::find(model, index))
                records.push_back(*record);
        }
        if (!records.empty())
            QApplication::clipboard()->setText(QString::fromUtf8(RecordsJson::text(list.key, records)));
    });
}

bool RecordEdits::paste(bool hasOther)
{
    const QByteArray text = QApplication::clipboard()->text().toUtf8();
    const QByteArray begin = text.left(1000).trimmed().left(1);
    bool isPasted = false;
    if (begin != "{" && begin != "[")
        return isPasted;
    withList([&](auto list) {
        using List = decltype(list);
        std::vector<typename List::Record> records;
        const JsonProblem problem = RecordsJson::read(text, list.key, records);
        if (!problem.text.isEmpty()) {
            if (!hasOther)
                QMessageBox::warning(m_window, tr("Paste"), misfit(text, problem));
            return;
        }
        isPasted = true;
        RecordIndex at = m_tree->currentRecord().index;
        if (m_tree->currentRecord().kind == list.kind)
            ++at[list.component];
        insert<List>(at, std::move(records),
                     QCoreApplication::translate("UndoCommands", List::Insert::undoText));
    });
    return isPasted;
}

/// Why the text has no records for the current list.
QString RecordEdits::misfit(const QByteArray &text, const JsonProblem &problem) const
{
    const std::pair<std::string_view, QString> names[] = {{"hotPoints", tr("hot points")},
                                                          {"childBones", tr("child bones")},
                                                          {"blocks", tr("animations")},
                                                          {"actions", tr("key frame actions")}};
    QString here;
    withList([&](auto list) {
        for (const auto &each : names)
            here = each.first == list.key ? each.second : here;
    });
    JsonReader reader({text.constData(), size_t(text.size())});
    const std::string_view first = reader.accept('{') ? reader.key() : std::string_view();
    for (const auto &each : names) {
        if (first == each.first && each.second != here)
            return tr("The clipboard holds %1, not %2.").arg(each.second, here);
    }
    return tr("The text of the clipboard cannot be pasted here. Line %1, column %2: %3")
        .arg(QString::number(problem.line), QString::number(problem.column), problem.text);
}

void RecordEdits::cut()
{
    emit aboutToCut();
    withList([this](auto list) {
        if (m_tree->currentRecord().kind == list.kind)
            removeSelected<decltype(list)>();
    });
}

void RecordEdits::duplicate()
{
    withList([this](auto list) {
        using List = decltype(list);
        const QVector<RecordIndex> selected = m_tree->selectedRecords(list.kind);
        if (selected.isEmpty() || m_tree->currentRecord().kind != list.kind)
            return;
        std::vector<typename List::Record> records;
        for (const RecordIndex &index : selected)
            records.push_back(*List::Place::find(documentOf<List>().model(), index));
        // Behind the last one of the current record's owner.
        RecordIndex at = m_tree->currentRecord().index;
        for (const RecordIndex &index : selected) {
            if (std::equal(index.begin(), index.begin() + list.component, at.begin()))
                at[list.component] = std::max(at[list.component], index[list.component]);
        }
        ++at[list.component];
        insert<List>(at, std::move(records), tr("Duplicate"));
    });
}

void RecordEdits::move(int by)
{
    withList([&](auto list) {
        using List = decltype(list);
        auto &document = documentOf<List>();
        RecordIndex at = m_tree->currentRecord().index;
        if (m_tree->currentRecord().kind != list.kind)
            return;
        QVector<int> numbers;
        for (const RecordIndex &index : m_tree->selectedRecords(list.kind)) {
            if (std::equal(index.begin(), index.begin() + list.component, at.begin()))
                numbers += index[list.component];
        }
        const int count = document.recordCount(list.kind, at);
        if (numbers.isEmpty() || numbers.first() + by < 0 || numbers.last() + by >= count)
            return;
        // Those in front go first, so that none has to pass another.
        if (by > 0)
            std::reverse(numbers.begin(), numbers.end());
        QUndoStack &stack = *document.undoStack();
        stack.beginMacro(by < 0 ? tr("Move Up") : tr("Move Down"));
        for (int &number : numbers) {
            at[list.component] = number;
            auto record = *List::Place::find(document.model(), at);
            stack.push(new typename List::Remove(document.editTarget(), at));
            at[list.component] = number += by;
            stack.push(new typename List::Insert(document.editTarget(), at, std::move(record)));
        }
        stack.endMacro();
        std::sort(numbers.begin(), numbers.end());
        select<List>(at, numbers);
    });
}

/// Puts records there, one after the other, and selects them.
template <typename List>
void RecordEdits::insert(RecordIndex at, std::vector<typename List::Record> records, const QString &step)
{
    if (records.empty())
        return;
    auto &document = documentOf<List>();
    QUndoStack &stack = *document.undoStack();
    const int first = at[List::component];
    QVector<int> numbers;
    stack.beginMacro(step);
    for (auto &record : records) {
        at[List::component] = first + int(numbers.size());
        numbers += at[List::component];
        stack.push(new typename List::Insert(document.editTarget(), at, std::move(record)));
    }
    stack.endMacro();
    select<List>(at, numbers);
}

template <typename List>
void RecordEdits::removeSelected()
{
    auto &document = documentOf<List>();
    const QVector<RecordIndex> selected = m_tree->selectedRecords(List::kind);
    if (selected.isEmpty())
        return;
    QUndoStack &stack = *document.undoStack();
    stack.beginMacro(tr("Cut"));
    // From the last to the first, so that the indexes of those that are left hold.
    for (int i = selected.size() - 1; i >= 0; --i)
        stack.push(new typename List::Remove(document.editTarget(), selected.at(i)));
    stack.endMacro();
}

template <typename List>
void RecordEdits::select(RecordIndex first, const QVector<int> &numbers)
{
    QVector<RecordRef> records;
    for (const int number : numbers) {
        first[List::component] = number;
        records += RecordRef{List::kind, first};
    }
    m_tree->selectRecords(records, records.last());
}
