// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimationCommands.h"

#include "AnimCommands.h"
#include "CopyMotionDialog.h"
#include "KVTreeView.h"
#include "MotionDialog.h"
#include "Playback.h"

#include <QAction>
#include <QMenu>

AnimationCommands::AnimationCommands(AnimDocument &anim, SkinnedMeshDocument &mesh, KVTreeView &tree,
                                     QWidget *window)
    : QObject(window)
    , m_anim(anim)
    , m_mesh(mesh)
    , m_tree(tree)
    , m_window(window)
{
    for (int kind = 0; kind < MotionKind::Count; ++kind) {
        const MotionKind &shown = motionKinds()[size_t(kind)];
        auto *action = new QAction(shown.text, this);
        action->setObjectName(QLatin1String(shown.action));
        action->setToolTip(shown.tip);
        action->setStatusTip(shown.tip);
        connect(action, &QAction::triggered, this, [this, kind] { ask(MotionKind::Name(kind)); });
        m_actions += action;
    }
    auto *line = new QAction(this);
    line->setSeparator(true);
    auto *copied = new QAction(tr("Copy from Another S&keleton…"), this);
    copied->setObjectName(QStringLiteral("actionAnimCopyFrom"));
    copied->setToolTip(tr("Animations of another file, for the bones of the open mesh"));
    copied->setStatusTip(copied->toolTip());
    connect(copied, &QAction::triggered, this, &AnimationCommands::askCopy);
    m_actions += {line, copied};
    connect(&m_anim, &Document::replaced, this, &AnimationCommands::updateActions);
    connect(&m_anim, &Document::structuresChanged, this, &AnimationCommands::updateActions);
    updateActions();
}

void AnimationCommands::addTo(QMenu &menu, QAction &above)
{
    auto *own = new QMenu(tr("Ani&mation"), &menu);
    own->setObjectName(QStringLiteral("menuAnimation"));
    own->setToolTipsVisible(true);
    own->addActions(m_actions);
    const QList<QAction *> actions = menu.actions();
    menu.insertMenu(actions.value(actions.indexOf(&above) + 1), own);
}

void AnimationCommands::addToContext(QMenu &menu)
{
    auto *own = new QMenu(tr("Ani&mation"), &menu);
    own->setToolTipsVisible(true);
    own->addActions(m_actions);
    QAction *before = nullptr;
    for (QAction *action : menu.actions()) {
        if (!before && action->menu())
            before = action;
    }
    menu.insertMenu(before, own);
    const auto offer = [this, own] {
        const RecordKind kind = m_tree.currentRecord().kind;
        own->menuAction()->setVisible(kind == RecordKind::AnimFile || kind == RecordKind::AnimBlock);
    };
    connect(&m_tree, &KVTreeView::currentRecordChanged, own, offer);
    offer();
}

void AnimationCommands::updateActions()
{
    for (QAction *action : qAsConst(m_actions))
        action->setEnabled(m_anim.isOpen() && !m_anim.model().blocks.empty());
}

std::vector<int> AnimationCommands::chosenBlocks() const
{
    std::vector<int> blocks;
    for (const RecordRef &record : m_tree.selectedRefs()) {
        if (record.kind != RecordKind::AnimFile && (blocks.empty() || blocks.back() != record.index[0]))
            blocks.push_back(record.index[0]);
    }
    std::sort(blocks.begin(), blocks.end());
    blocks.erase(std::unique(blocks.begin(), blocks.end()), blocks.end());
    const int playing = playback().blockIndex;
    // The root is selected as soon as a file is opened, and means nothing by that.
    if (blocks.empty() && Records::element(m_anim.model().blocks, playing))
        blocks.push_back(playing);
    return blocks;
}

void AnimationCommands::ask(MotionKind::Name kind)
{
    // Pages show other numbers then, in place of what is typed.
    if (m_anim.returnToTyping())
        return;
    MotionDialog dialog(kind, m_anim, m_mesh, chosenBlocks(), m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QUndoStack &stack = *m_anim.undoStack();
    stack.beginMacro(motionKinds()[kind].step);
    for (Motion::BlockChange &change : dialog.takeChanges()) {
        const AnimBlock *old = Records::element(m_anim.model().blocks, change.index);
        if (change.changes && old)
            stack.push(new UC_AnimBlockMotion(m_anim.editTarget(), {change.index, 0, 0},
                                              WholeBlock(*old, std::move(change.block)), {}, {}));
    }
    stack.endMacro();
    emit documentWanted(DocumentType::Anim);
}

void AnimationCommands::askCopy()
{
    if (m_anim.returnToTyping())
        return;
    CopyMotionDialog dialog(m_anim, m_mesh, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QUndoStack &stack = *m_anim.undoStack();
    stack.beginMacro(tr("Copy from Another Skeleton"));
    for (AnimBlock &block : dialog.takeBlocks())
        stack.push(new UC_AnimBlockPaste(m_anim.editTarget(), {int(m_anim.model().blocks.size()), 0, 0},
                                         std::move(block)));
    stack.endMacro();
    emit documentWanted(DocumentType::Anim);
}
