// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "MotionKind.h"
#include "Records.h"

class KVTreeView;
class QAction;
class QMenu;

/// The commands for whole animations: their menu, their dialogs, and the one undo step that each becomes.
class AnimationCommands : public QObject
{
    Q_OBJECT

public:
    /// What is selected in `tree` says which animations are meant; where none is, the one that plays. The
    /// documents and the tree outlive this; dialogs stand on `window`.
    AnimationCommands(AnimDocument &anim, SkinnedMeshDocument &mesh, KVTreeView &tree, QWidget *window);

    /// Puts the commands as a menu of their own into another one, below this action of it.
    void addTo(QMenu &menu, QAction &above);
    /// The same for the tree's context menu, where they are offered for animations.
    void addToContext(QMenu &menu);

signals:
    /// Animations have changed: what shows them is to come to the front, so that undo goes there.
    void documentWanted(DocumentType type);

private:
    void ask(MotionKind::Name kind);
    void askCopy();
    std::vector<int> chosenBlocks() const;
    void updateActions();

    AnimDocument &m_anim;
    SkinnedMeshDocument &m_mesh;
    KVTreeView &m_tree;
    QWidget *m_window;
    QList<QAction *> m_actions;
};
