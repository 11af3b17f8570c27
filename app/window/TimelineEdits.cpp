// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TimelineEdits.h"

#include "ActionTexts.h"
#include "ActionTrack.h"
#include "AnimCommands.h"
#include "AnimTrackFrame.h"
#include "DocumentPanes.h"
#include "Icons.h"
#include "KVOpenGLWidget.h"
#include "KVTreeView.h"
#include "Playback.h"
#include "RecordFields.h"
#include "RecordsJson.h"
#include "RemoveRecords.h"
#include "Shortcuts.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMenu>

#include <algorithm>
#include <utility>

namespace {
/// What is added most, by event type.
constexpr int CommonEvents[] = {0, 29, 30, 1, 24, 2, 3, 12, 9, 26, 27, 28, 22};

constexpr char TreeGroup[] = QT_TRANSLATE_NOOP("StructureActions", "Trees");
constexpr char TimelineGroup[] = QT_TRANSLATE_NOOP("AnimTrackFrame", "Timeline");

EditedList *listOfActions(const EditedLists &lists)
{
    const auto found = std::find_if(lists.begin(), lists.end(),
                                    [](const auto &list) { return list->kind() == RecordKind::AnimAction; });
    return found->get();
}

RecordIndex indexOf(int action)
{
    return {playback().blockIndex, action};
}

/// Whether the whole block that plays was exchanged. Where only its lists have other lengths, one of them is
/// to be shown.
bool replacesFrames(const StructureChange &change)
{
    const RecordRef block{RecordKind::AnimBlock, {playback().blockIndex}};
    const bool isBlock =
        change.record == block && change.added == 0 && change.select.kind == RecordKind::None;
    return isBlock || change.record.kind == RecordKind::AnimFile;
}
} // namespace

TimelineEdits::TimelineEdits(AnimDocument &document, DocumentPanes &panes, AnimTrackFrame &timeline,
                             QMenu &treeMenu)
    : QObject(&timeline)
    , m_document(document)
    , m_panes(panes)
    , m_tree(*panes.all()[size_t(DocumentType::Anim)].tree)
    , m_track(timeline.actionTrack())
    , m_lists(editedLists(document))
    , m_list(listOfActions(m_lists))
    , m_menu(new QMenu(&m_track))
    , m_kinds(new QMenu(tr("Add &Event"), m_menu))
{
    createActions();
    createMenu();
    // The tree offers it beside its own Add, which knows no frame.
    m_tree.addAction(m_add);
    treeMenu.insertAction(treeMenu.actions().value(1), m_add);
    connect(&treeMenu, &QMenu::aboutToShow, this, [this] {
        const RecordKind kind = m_tree.currentRecord().kind;
        m_add->setText(addText());
        m_add->setVisible(block() && (kind == RecordKind::AnimAction || kind == RecordKind::AnimActions));
    });
    connect(&treeMenu, &QMenu::aboutToHide, this, [this] { m_add->setVisible(true); });

    m_track.setContextMenuPolicy(Qt::CustomContextMenu);
    // Keys ask by themselves what there is to act on.
    connect(m_menu, &QMenu::aboutToHide, this, [this] {
        for (QAction *action : m_menu->actions())
            action->setEnabled(true);
    });
    connect(&m_track, &QWidget::customContextMenuRequested, this, [this](const QPoint &position) {
        updateActions();
        m_menu->popup(m_track.mapToGlobal(position));
    });
    connect(&m_track, &ActionTrack::selectionAsked, this, &TimelineEdits::select);
    connect(&m_track, &ActionTrack::moveAsked, this, &TimelineEdits::move);
    connect(&m_track, &ActionTrack::handleAsked, this, &TimelineEdits::setHandle);
    connect(&m_tree, &KVTreeView::currentRecordChanged, this, &TimelineEdits::followTree);
    connect(&timeline, &AnimTrackFrame::blockChanged, this, [this] {
        m_keepsOwn = false;
        followTree();
    });
    // The tree may have selected records before the track had their marks.
    connect(&document, &Document::structuresChanged, this,
            [this, &timeline](const QVector<StructureChange> &changes) {
                if (std::any_of(changes.begin(), changes.end(), replacesFrames))
                    timeline.forgetFrames();
                followTree();
            });
}

void TimelineEdits::createActions()
{
    m_add = addAction("add", tr("Add Key Frame Action"), "actionAddActionHere", TimelineGroup,
                      QStringLiteral("Alt+Ins"), &TimelineEdits::addHere);
    // These have the keys of the trees.
    using E = TimelineEdits;
    m_ofSelection += addAction("", tr("Cut"), "actionTreeCut", TreeGroup, QKeySequence::Cut, &E::cut);
    m_ofSelection += addAction("copy", tr("Copy"), "actionTreeCopy", TreeGroup, QKeySequence::Copy, &E::copy);
    m_paste = addAction("paste", tr("Paste"), "actionTreePaste", TreeGroup, QKeySequence::Paste, &E::paste);
    m_ofSelection += addAction("copy", tr("Duplicate"), "actionTreeDuplicate", TreeGroup,
                               QStringLiteral("Ctrl+D"), &E::duplicate);
    m_ofSelection +=
        addAction("remove", tr("Remove"), "actionTreeRemove", TreeGroup, QKeySequence::Delete, &E::remove);
    m_selectAll = addAction("", tr("Select &All Actions"), "actionTimelineSelectAll", TimelineGroup,
                            QKeySequence::SelectAll, &E::selectAll);
    m_showRange = new QAction(tr("&Zoom to Selected Frames"), this);
    connect(m_showRange, &QAction::triggered, &m_track, &ActionTrack::showRange);
    m_showAll = new QAction(tr("Sho&w All Frames"), this);
    connect(m_showAll, &QAction::triggered, &m_track, &ActionTrack::showAllFrames);
    m_clearRange = new QAction(tr("&Play All Frames Again"), this);
    connect(m_clearRange, &QAction::triggered, &m_track, &ActionTrack::clearRange);
}

QAction *TimelineEdits::addAction(const char *icon, const QString &text, const char *id, const char *group,
                                  const QKeySequence &keys, void (TimelineEdits::*slot)())
{
    auto *action = new QAction(*icon ? namedIcon(QLatin1String(icon)) : QIcon(), text, this);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    const char *context = group == TreeGroup ? "StructureActions" : "AnimTrackFrame";
    nameShortcut(action, QLatin1String(id), QCoreApplication::translate(context, group), text);
    connect(action, &QAction::triggered, this, slot);
    m_track.addAction(action);
    return action;
}

void TimelineEdits::createMenu()
{
    for (const int event : CommonEvents)
        connect(m_kinds->addAction(eventText(event)), &QAction::triggered, this,
                [this, event] { add(event); });
    m_menu->addAction(m_add);
    m_menu->addMenu(m_kinds);
    m_menu->addSeparator();
    m_menu->addActions(m_ofSelection.mid(0, 2));
    m_menu->addAction(m_paste);
    m_menu->addActions(m_ofSelection.mid(2));
    m_menu->addAction(m_selectAll);
    m_menu->addSeparator();
    m_menu->addActions({m_showRange, m_showAll, m_clearRange});
    m_menu->addSeparator();
    addSwitch(tr("Show the &Frame of a Selected Action"), "actionGoToSelected", Settings::GoToSelectedAction);
    addSwitch(tr("P&lay Sounds from the Folder"), "actionPlaySounds", Settings::PlayEventSounds);
}

void TimelineEdits::addSwitch(const QString &text, const char *name, const SettingKey<bool> &key)
{
    QAction *action = m_menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    nameShortcut(action, action->objectName(), QCoreApplication::translate("AnimTrackFrame", TimelineGroup),
                 {});
    action->setCheckable(true);
    action->setChecked(key.value());
    connect(action, &QAction::triggered, this, [&key](bool on) { key.setValue(on); });
}

QString TimelineEdits::addText() const
{
    return tr("Add Key Frame Action at Frame %1").arg(m_track.frame());
}

void TimelineEdits::updateActions()
{
    const bool hasBlock = block();
    const QString frame = QString::number(m_track.frame());
    m_add->setText(addText());
    m_kinds->setTitle(tr("Add &Event at Frame %1").arg(frame));
    m_paste->setText(tr("Paste at Frame %1").arg(frame));
    m_add->setEnabled(hasBlock);
    m_kinds->setEnabled(hasBlock);
    m_paste->setEnabled(hasBlock);
    for (QAction *action : qAsConst(m_ofSelection))
        action->setEnabled(!selected().isEmpty());
    m_selectAll->setEnabled(!m_track.places().marks().marks().isEmpty());
    m_showRange->setEnabled(m_track.hasRange());
    m_clearRange->setEnabled(m_track.hasRange());
    m_showAll->setEnabled(m_track.places().scale().isZoomed());
}

// --- Selection ---------------------------------------------------------------------------------------------

const AnimBlock *TimelineEdits::block() const
{
    return Records::Block::find(m_document.model(), {playback().blockIndex});
}

QVector<RecordIndex> TimelineEdits::selected() const
{
    QVector<RecordIndex> records;
    for (const int action : m_track.selection().actions())
        records += indexOf(action);
    return records;
}

RecordIndex TimelineEdits::current() const
{
    return indexOf(m_track.selection().current());
}

void TimelineEdits::followTree()
{
    if (m_keepsOwn && m_tree.currentRecord() == m_current)
        return;
    m_keepsOwn = false;
    QVector<int> actions;
    for (const RecordIndex &record : m_tree.selectedRecords(RecordKind::AnimAction)) {
        if (record[0] == playback().blockIndex)
            actions += record[1];
    }
    m_track.setSelection(actions, m_tree.currentRecord().index[1]);
    markInView();
    // What was selected before is not gone to again when it is edited.
    const RecordRef current = m_tree.currentRecord();
    const bool isNew = std::exchange(m_current, current) != current;
    const bool isHere = current.kind == RecordKind::AnimAction && current.index[0] == playback().blockIndex;
    const AnimAction *action =
        isNew && isHere && block() ? Records::element(block()->actions, current.index[1]) : nullptr;
    if (action && Settings::GoToSelectedAction.value())
        emit m_track.frameAsked(action->frame);
}

void TimelineEdits::markInView()
{
    const QVector<int> &actions = m_track.selection().actions();
    m_panes.all()[size_t(DocumentType::Anim)].viewport->setSelectedActions(playback().blockIndex,
                                                                           {actions.begin(), actions.end()});
}

void TimelineEdits::select(const QVector<int> &actions, int current)
{
    if (actions.isEmpty()) {
        if (m_tree.currentRecord().kind == RecordKind::AnimAction)
            m_tree.selectRecords({}, {});
        return;
    }
    QVector<RecordRef> records;
    for (const int action : actions)
        records += {RecordKind::AnimAction, indexOf(action)};
    const RecordRef shown{RecordKind::AnimAction, indexOf(current)};
    m_panes.showPane(DocumentType::Anim);
    // What a filter hides is selected here alone, until an edit brings it into the tree.
    m_keepsOwn = std::any_of(records.begin(), records.end(),
                             [this](const RecordRef &record) { return !m_tree.isShown(record); });
    m_current = m_tree.currentRecord();
    if (m_keepsOwn)
        return markInView();
    m_tree.selectRecords(records, shown);
}

// --- Edits -------------------------------------------------------------------------------------------------

bool TimelineEdits::isReady(bool needsSelection)
{
    if (!block() || (needsSelection && selected().isEmpty()) || m_document.returnToTyping())
        return false;
    m_panes.showPane(DocumentType::Anim); // whose step can then be undone
    return true;
}

void TimelineEdits::move(const QVector<int> &actions, int by)
{
    if (!isReady(false))
        return;
    const RecordField *field = RecordFields::find(RecordKind::AnimAction, QStringLiteral("frame"));
    QVector<FieldChange> changes;
    for (const int action : actions)
        changes += {field, indexOf(action), double(block()->actions[size_t(action)].frame + by)};
    m_document.changeFields(changes, field->stepText());
}

void TimelineEdits::setHandle(TrackHandle handle, int frame)
{
    if (!isReady(false))
        return;
    const char *const ids[] = {"loopFrame", "blendStart", "blendEnd"}; // by handle
    const RecordField *field = RecordFields::find(RecordKind::AnimBlock, QLatin1String(ids[int(handle)]));
    m_document.changeFields({{field, {playback().blockIndex}, double(frame)}}, field->stepText());
}

RecordIndex TimelineEdits::place() const
{
    const auto &actions = block()->actions;
    const auto isBefore = [this](const AnimAction &each) { return each.frame <= m_track.frame(); };
    const auto last = std::find_if(actions.rbegin(), actions.rend(), isBefore);
    return indexOf(int(actions.rend() - last));
}

void TimelineEdits::add(int eventType)
{
    if (!isReady(false) || isBeyond())
        return;
    AnimAction action;
    action.frame = quint16(m_track.frame());
    action.eventType = quint16(eventType);
    m_document.undoStack()->push(new UC_AnimAddAction(m_document.editTarget(), place(), action));
}

void TimelineEdits::selectAll()
{
    m_track.selectAll();
}

void TimelineEdits::cut()
{
    if (!isReady(true))
        return;
    copy();
    finish(m_list->cut(selected(), current()));
}

void TimelineEdits::copy()
{
    if (!selected().isEmpty())
        QApplication::clipboard()->setText(QString::fromUtf8(m_list->text(selected(), current())));
}

bool TimelineEdits::isBeyond()
{
    if (m_track.frame() <= TrackLayout::MostFrame)
        return false;
    emit m_panes.told(tr("A key frame action can stand on frame %1 at most.").arg(TrackLayout::MostFrame));
    return true;
}

void TimelineEdits::paste()
{
    if (!isReady(false) || isBeyond())
        return;
    std::vector<AnimAction> actions;
    const QByteArray text = QApplication::clipboard()->text().toUtf8();
    if (!RecordsJson::read(text, "actions", actions).text.isEmpty() || actions.empty()) {
        emit m_panes.told(tr("The clipboard holds no key frame actions."));
        return;
    }
    // The first of them falls on the frame that is shown, the others follow as they did.
    const auto first = std::min_element(actions.begin(), actions.end(),
                                        [](const auto &a, const auto &b) { return a.frame < b.frame; });
    const int by = m_track.frame() - first->frame;
    const int last = std::min(m_track.places().scale().lastFrame(), TrackLayout::MostFrame);
    int beyond = 0;
    for (AnimAction &action : actions) {
        beyond += action.frame + by > last ? 1 : 0;
        action.frame = quint16(std::clamp(action.frame + by, 0, last));
    }
    if (beyond > 0)
        emit m_panes.told(tr("Actions that would lie behind the last frame were put on it: %1").arg(beyond));
    const RecordIndex at = place();
    const RecordRef before = at[1] > 0 ? RecordRef{RecordKind::AnimAction, {at[0], at[1] - 1}}
                                       : RecordRef{RecordKind::AnimActions, {at[0]}};
    ListEdit edit;
    static_cast<void>(m_list->paste(RecordsJson::text("actions", actions), before, edit)); // was just read
    finish(edit);
}

void TimelineEdits::duplicate()
{
    if (isReady(true))
        finish(m_list->duplicate(selected(), current()));
}

void TimelineEdits::remove()
{
    if (!isReady(true))
        return;
    removeRecords<UC_AnimRemoveAction>(
        *m_document.undoStack(), m_document.editTarget(), selected(),
        QCoreApplication::translate("UndoCommands", UC_AnimRemoveAction::undoText));
}

void TimelineEdits::finish(const ListEdit &edit)
{
    if (!edit.selected.isEmpty())
        m_tree.selectRecords(edit.selected, edit.selected.last());
}
