// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "StructureActions.h"

#include "AnimCommands.h"
#include "BlockSizes.h"
#include "ChangeSizeDialog.h"
#include "Icons.h"
#include "KVTreeView.h"
#include "RecordEdits.h"
#include "RecordItem.h"
#include "RecordTable.h"
#include "RemoveRecords.h"
#include "Shortcuts.h"
#include "SimilarMenu.h"
#include "SkinnedMeshCommands.h"
#include "UndoSteps.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>

#include <algorithm>

namespace {
void setExpandedBelow(const KVTreeView &tree, RecordItem *item, bool expanded)
{
    if (expanded)
        tree.complete(item);
    for (int i = 0; i < item->childCount(); ++i)
        setExpandedBelow(tree, static_cast<RecordItem *>(item->child(i)), expanded);
    if (item->childCount() > 0)
        item->setExpanded(expanded);
}

QString trackConsequence()
{
    return StructureActions::tr(
        "Fewer tracks: the last ones go, with all their keys; bones keep their track numbers. "
        "More: the last track is repeated.");
}
} // namespace

const std::vector<StructureActions::Offer> &StructureActions::offers()
{
    using R = RecordKind;
    using A = StructureActions;
    // clang-format off
    static const std::vector<Offer> all{
        {R::HotPoints,    Add,        QT_TR_NOOP("Add Hot Point"),              &A::OnActionAddHotPoint},
        {R::HotPoints,    Paste,      nullptr,                                   &A::OnActionPasteHotPoint},
        {R::HotPoint,     Add,        QT_TR_NOOP("Add Hot Point"),              &A::OnActionAddHotPoint},
        {R::HotPoint,     Remove,     QT_TR_NOOP("Remove Hot Point"),           &A::OnActionRemoveHotPoint},
        {R::HotPoint,     Copy,       nullptr,                                   &A::OnActionCopyHotPoint},
        {R::HotPoint,     Paste,      nullptr,                                   &A::OnActionPasteHotPoint},
        {R::SkinnedMesh,  CopyFlags,  QT_TR_NOOP("Copy Bone Flags"),            &A::OnSkinMeshCopyBoneFlags},
        {R::Bones,        CopyFlags,  QT_TR_NOOP("Copy Bone Flags"),            &A::OnSkinMeshCopyBoneFlags},
        {R::Bone,         CopyFlags,  QT_TR_NOOP("Copy Bone Flags"),            &A::OnSkinMeshCopyBoneFlags},

        {R::AnimFile,     Add,        QT_TR_NOOP("Add Animation"),              &A::OnActionAddAnimBlock},
        {R::AnimFile,     Paste,      nullptr,                                   &A::OnActionPasteAnimBlock},
        {R::AnimBlock,    Add,        QT_TR_NOOP("Add Animation"),              &A::OnActionAddAnimBlock},
        {R::AnimBlock,    Remove,     QT_TR_NOOP("Remove Animation"),           &A::OnActionRemoveAnimBlock},
        {R::AnimBlock,    Copy,       nullptr,                                   &A::OnActionCopyAnimBlock},
        {R::AnimBlock,    Paste,      nullptr,                                   &A::OnActionPasteAnimBlock},
        {R::AnimActions,  Add,        QT_TR_NOOP("Add Key Frame Action"),       &A::OnActionAddAnimAction},
        {R::AnimAction,   Add,        QT_TR_NOOP("Add Key Frame Action"),       &A::OnActionAddAnimAction},
        {R::AnimAction,   Remove,     QT_TR_NOOP("Remove Key Frame Action"),    &A::OnActionRemoveAnimAction},
        {R::AnimFrames,   ChangeSize, QT_TR_NOOP("Change Frame Count…"),       &A::OnActionEditFrameCount},
        {R::Translations, ChangeSize, QT_TR_NOOP("Change Translation Count…"), &A::OnActionEditTranslationCount},
        {R::Rotations,    ChangeSize, QT_TR_NOOP("Change Rotation Count…"),    &A::OnActionEditRotationCount},
    };
    // clang-format on
    return all;
}

const StructureActions::Offer *StructureActions::findOffer(RecordKind kind, Verb verb)
{
    for (const Offer &offer : offers()) {
        if (offer.kind == kind && offer.verb == verb)
            return &offer;
    }
    return nullptr;
}

StructureActions::StructureActions(Shown<SkinnedMeshDocument> skinnedMesh, Shown<AnimDocument> anim,
                                   Shown<StaticMeshDocument> staticMesh, QWidget *window)
    : QObject(window)
    , m_skinnedMesh(skinnedMesh)
    , m_anim(anim)
    , m_window(window)
    , m_menus{createMenu(skinnedMesh.document, skinnedMesh.tree), createMenu(anim.document, anim.tree),
              createMenu(staticMesh.document, staticMesh.tree)}
{
    connect(skinnedMesh.tree, &QWidget::customContextMenuRequested, this,
            &StructureActions::OnCustomContextMenu);
    connect(anim.tree, &QWidget::customContextMenuRequested, this,
            &StructureActions::OnAnimCustomContextMenu);
    connect(staticMesh.tree, &QWidget::customContextMenuRequested, this,
            &StructureActions::OnStaticMeshCustomContextMenu);
    for (const TreeMenu &menu : m_menus) {
        connect(menu.tree, &KVTreeView::currentRecordChanged, this, [this, &menu] { updateMenu(menu); });
        connect(menu.menu, &QMenu::aboutToHide, this, [this, &menu] { updateMenu(menu); });
        updateMenu(menu);
    }
}

// --- Menus -------------------------------------------------------------------------------------------------

StructureActions::TreeMenu StructureActions::createMenu(Document &document, KVTreeView *tree)
{
    TreeMenu made;
    made.tree = tree;
    made.menu = new QMenu(tree);
    struct Look
    {
        const char *icon;
        const char *id;
        QString name;
        QKeySequence keys;
    };
    const Look looks[VerbCount] = {{"add", "actionTreeAdd", tr("Add"), Qt::Key_Insert},
                                   {"remove", "actionTreeRemove", tr("Remove"), QKeySequence::Delete},
                                   {"copy", "actionTreeCopy", tr("Copy"), QKeySequence::Copy},
                                   {"paste", "actionTreePaste", tr("Paste"), QKeySequence::Paste},
                                   {"frames", "actionTreeChangeSize", tr("Change Count"), {}},
                                   {"copy", "actionTreeCopyFlags", tr("Copy Bone Flags"), {}}};
    // The three trees share their keys.
    const auto addAction = [&made, tree](const char *iconName, const QString &text, const char *id,
                                         const QString &name) {
        QAction *action = made.menu->addAction(namedIcon(QLatin1String(iconName)), text);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        nameShortcut(action, QLatin1String(id), tr("Trees"), name);
        tree->addAction(action);
        return action;
    };
    for (const Verb verb : {Add, Remove, Copy, Paste, ChangeSize, CopyFlags}) {
        const auto first = std::find_if(offers().begin(), offers().end(), [&](const Offer &offer) {
            return offer.verb == verb && belongsTo(offer.kind, document.rootKind());
        });
        if (first == offers().end() && verb != Copy && verb != Paste)
            continue;
        const Look &look = looks[verb];
        QAction *action = addAction(look.icon, look.name, look.id, look.name);
        action->setShortcut(look.keys);
        connect(action, &QAction::triggered, this,
                [this, &document, verb] { choose(m_menus[size_t(document.kind().type)], verb); });
        made.verbs[verb] = action;
    }

    made.edits = new RecordEdits(document, tree, m_window);
    connect(made.edits, &RecordEdits::aboutToCut, made.verbs[Copy], &QAction::trigger);
    made.menu->insertAction(made.verbs[Copy], made.edits->cutAction());
    made.menu->addActions(made.edits->actions());

    made.menu->addMenu(new SimilarMenu(document, tree));
    made.menu->addSeparator();
    const auto addBranchAction = [&addAction, tree](const char *iconName, const QString &text, const char *id,
                                                    bool expanded) {
        QAction *action = addAction(iconName, text, id, QString());
        QObject::connect(action, &QAction::triggered, tree, [tree, expanded] {
            tree->setUpdatesEnabled(false);
            if (RecordItem *item = tree->findItem(tree->currentRecord()))
                setExpandedBelow(*tree, item, expanded);
            tree->setUpdatesEnabled(true);
        });
        return action;
    };
    made.expand = addBranchAction("expand", tr("&Expand All Below"), "actionTreeExpand", true);
    made.collapse = addBranchAction("collapse", tr("&Collapse All Below"), "actionTreeCollapse", false);

    // Each document's own pair. It has no keys: three stacks with the same keys would be ambiguous. The keys
    // belong to the pair that follows the current document.
    made.menu->addSeparator();
    QAction *undo = document.undoStack()->createUndoAction(made.menu, tr("Undo"));
    undo->setIcon(namedIcon(QStringLiteral("undo")));
    QAction *redo = document.undoStack()->createRedoAction(made.menu, tr("Redo"));
    redo->setIcon(fileIcon(QStringLiteral(":Images/Icons/redo.png")));
    for (QAction *action : {undo, redo}) {
        action->setShortcuts(QKeySequence::UnknownKey);
        action->setShortcutContext(Qt::ApplicationShortcut);
    }
    const auto own = [&document] { return &document; };
    stepWithoutTyping(undo, *document.undoStack(), &QUndoStack::undo, own);
    stepWithoutTyping(redo, *document.undoStack(), &QUndoStack::redo, own);
    made.menu->addActions({undo, redo});
    return made;
}

void StructureActions::choose(const TreeMenu &menu, Verb verb)
{
    const RecordKind kind = menu.tree->currentRecord().kind;
    const Offer *chosen = findOffer(kind, verb);
    if (verb == Paste && menu.edits->paste(hasCopy(kind)))
        return;
    if (chosen)
        (this->*chosen->slot)();
    if (verb == Copy)
        menu.edits->copy();
}

/// Keys paste whatever there is by then; the menu tells beforehand.
void StructureActions::updateMenu(const TreeMenu &menu, bool canPasteText) const
{
    const RecordKind kind = menu.tree->currentRecord().kind;
    menu.edits->update();
    for (const Verb verb : {Add, Remove, Copy, Paste, ChangeSize, CopyFlags}) {
        QAction *action = menu.verbs[verb];
        if (!action)
            continue;
        const Offer *offer = findOffer(kind, verb);
        const QString text = verb == Copy    ? menu.edits->copyText()
                             : verb == Paste ? menu.edits->pasteText()
                             : offer         ? tr(offer->text)
                                             : QString();
        action->setVisible(!text.isEmpty());
        action->setEnabled(!text.isEmpty() && (verb != Paste || canPasteText || hasCopy(kind)));
        if (!text.isEmpty())
            action->setText(text);
    }
    const RecordItem *item = menu.tree->findItem(menu.tree->currentRecord());
    for (QAction *action : {menu.expand, menu.collapse})
        action->setVisible(item && item->hasBelow());
}

void StructureActions::popUp(const TreeMenu &menu, const QPoint &position)
{
    updateMenu(menu, RecordEdits::hasText());
    menu.menu->popup(menu.tree->viewport()->mapToGlobal(position));
}

void StructureActions::OnCustomContextMenu(const QPoint &position)
{
    popUp(m_menus[0], position);
}

void StructureActions::OnAnimCustomContextMenu(const QPoint &position)
{
    popUp(m_menus[1], position);
}

void StructureActions::OnStaticMeshCustomContextMenu(const QPoint &position)
{
    popUp(m_menus[2], position);
}

// --- Lists of records --------------------------------------------------------------------------------------

/// Behind the current record, or first when its group is current.
template <typename Command, typename DocumentType>
void StructureActions::insert(const Shown<DocumentType> &shown, RecordKind group,
                              typename Command::Record record)
{
    using Place = typename Command::Place;
    const RecordRef current = shown.tree->currentRecord();
    RecordIndex index = current.index;
    if (current.kind == Place::kind)
        ++index[Place::component];
    else if (current.kind != group)
        return;
    shown.document.undoStack()->push(new Command(shown.document.editTarget(), index, std::move(record)));
}

template <typename Command, typename DocumentType>
void StructureActions::remove(const Shown<DocumentType> &shown)
{
    const RecordRef current = shown.tree->currentRecord();
    if (current.kind != Command::Place::kind)
        return;
    removeRecords<Command>(*shown.document.undoStack(), shown.document.editTarget(),
                           shown.tree->selectedRecords(current.kind),
                           QCoreApplication::translate("UndoCommands", Command::undoText));
}

template <typename RecordType, typename DocumentType>
void StructureActions::copy(const Shown<DocumentType> &shown,
                            std::optional<typename RecordType::Record> &buffer, const TreeMenu &menu)
{
    const RecordRef current = shown.tree->currentRecord();
    if (current.kind != RecordType::kind)
        return;
    buffer = *RecordType::find(shown.document.model(), current.index);
    updateMenu(menu);
}

void StructureActions::OnActionAddHotPoint()
{
    insert<UC_SkinnedMeshAddHotPoint>(m_skinnedMesh, RecordKind::HotPoints, {});
}

void StructureActions::OnActionRemoveHotPoint()
{
    remove<UC_SkinnedMeshRemoveHotPoint>(m_skinnedMesh);
}

void StructureActions::OnActionCopyHotPoint()
{
    copy<Records::HotPoint>(m_skinnedMesh, m_copiedHotPoint, m_menus[0]);
}

void StructureActions::OnActionPasteHotPoint()
{
    if (m_copiedHotPoint)
        insert<UC_SkinnedMeshPasteHotPoint>(m_skinnedMesh, RecordKind::HotPoints, *m_copiedHotPoint);
}

void StructureActions::OnActionAddAnimBlock()
{
    insert<UC_AnimBlockAdd>(m_anim, RecordKind::AnimFile,
                            newBlock(m_anim.document.model(), m_skinnedMesh.document.model()));
}

void StructureActions::OnActionRemoveAnimBlock()
{
    remove<UC_AnimBlockRemove>(m_anim);
}

void StructureActions::OnActionCopyAnimBlock()
{
    copy<Records::Block>(m_anim, m_copiedBlock, m_menus[1]);
}

void StructureActions::OnActionPasteAnimBlock()
{
    if (m_copiedBlock)
        insert<UC_AnimBlockPaste>(m_anim, RecordKind::AnimFile, *m_copiedBlock);
}

void StructureActions::OnActionAddAnimAction()
{
    insert<UC_AnimAddAction>(m_anim, RecordKind::AnimActions, {});
}

void StructureActions::OnActionRemoveAnimAction()
{
    remove<UC_AnimRemoveAction>(m_anim);
}

// --- Lengths of tables -------------------------------------------------------------------------------------

void StructureActions::OnActionEditFrameCount()
{
    editCount(RecordKind::AnimFrames, tr("Frame Count"),
              tr("Fewer frames: the last ones go, with their keys in all tracks. More: the last keys are "
                 "repeated."),
              1, &AnimBlock::setFrameCount);
}

void StructureActions::OnActionEditTranslationCount()
{
    editCount(RecordKind::Translations, tr("Translation Count"), trackConsequence(), 0,
              &AnimBlock::setTranslationCount);
}

void StructureActions::OnActionEditRotationCount()
{
    editCount(RecordKind::Rotations, tr("Rotation Count"), trackConsequence(), 0,
              &AnimBlock::setRotationCount);
}

void StructureActions::editCount(RecordKind group, const QString &title, const QString &consequence,
                                 int least, void (AnimBlock::*resize)(int))
{
    const RecordRef current = m_anim.tree->currentRecord();
    if (current.kind != group)
        return;
    const int count = m_anim.document.recordCount(recordRow(group)->counted, current.index);
    const AnimBlock &resized = m_anim.document.model().blocks[size_t(current.index[0])];
    ChangeSizeDialog dialog(title, consequence, least, mostEntries(resized, group), count, m_window);
    if (dialog.exec() != QDialog::Accepted || dialog.size() == count)
        return;
    // Not an undo step, on purpose. Commands on the stack leave records alone that are gone.
    AnimBlock *block = Records::Block::find(m_anim.document.editTarget().edit(), current.index);
    (block->*resize)(dialog.size());
    m_anim.document.changedDirectly({{RecordKind::AnimBlock, current.index}, 0, current});
    m_anim.tree->findItem(current)->setExpanded(true);
}

void StructureActions::OnSkinMeshCopyBoneFlags()
{
    if (!m_skinnedMesh.document.isOpen())
        return;
    QString text;
    int index = 0;
    for (const SkinnedMeshNode &bone : m_skinnedMesh.document.model().nodes)
        text += QStringLiteral("BoneSFlags_%1 %2\n").arg(index++).arg(int(bone.symbolFlags));
    QApplication::clipboard()->setText(text);
}
