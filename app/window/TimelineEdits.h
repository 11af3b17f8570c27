// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "EditedList.h"
#include "Settings.h"

#include <QObject>

class ActionTrack;
class AnimTrackFrame;
class DocumentPanes;
class KVTreeView;
class QAction;
class QKeySequence;
class QMenu;
enum class TrackHandle;

/// What the timeline asks for of the animation, as undo steps: key frame actions moved, added, copied, pasted
/// and removed, its loop frame and its blend. What is selected in the timeline is selected in the tree.
class TimelineEdits : public QObject
{
    Q_OBJECT

public:
    /// Adds to the menu of the animation's tree what depends on the frame that is shown. All outlive this but
    /// the timeline, which owns it.
    TimelineEdits(AnimDocument &document, DocumentPanes &panes, AnimTrackFrame &timeline, QMenu &treeMenu);

private:
    void createActions();
    QAction *addAction(const char *icon, const QString &text, const char *id, const char *group,
                       const QKeySequence &keys, void (TimelineEdits::*slot)());
    void createMenu();
    void addSwitch(const QString &text, const char *name, const SettingKey<bool> &key);
    void updateActions();
    void followTree();
    void markInView();
    QString addText() const;

    void select(const QVector<int> &actions, int current);
    void move(const QVector<int> &actions, int by);
    void setHandle(TrackHandle handle, int frame);
    void add(int eventType);
    void addHere() { add(0); }
    void selectAll();
    void cut();
    void copy();
    void paste();
    void duplicate();
    void remove();

    const AnimBlock *block() const;
    /// Where a new action belongs: behind those of the frame that is shown, and before.
    RecordIndex place() const;
    /// The selected actions, ascending, and the current one of them.
    QVector<RecordIndex> selected() const;
    RecordIndex current() const;
    /// Whether there is something to edit, and nothing typed in its way; its tree is in front then.
    bool isReady(bool needsSelection);
    /// Whether the frame that is shown is one that no action can name; says so.
    bool isBeyond();
    void finish(const ListEdit &edit);

    AnimDocument &m_document;
    DocumentPanes &m_panes;
    KVTreeView &m_tree;
    ActionTrack &m_track;
    EditedLists m_lists;
    EditedList *m_list;      ///< of key frame actions
    RecordRef m_current;     ///< of the tree, as it was told last
    bool m_keepsOwn = false; ///< the track's selection is none of the tree's, until that changes
    QMenu *m_menu;
    QMenu *m_kinds;
    QAction *m_add = nullptr;
    QAction *m_paste = nullptr;
    QList<QAction *> m_ofSelection;
    QAction *m_selectAll = nullptr;
    QAction *m_showRange = nullptr;
    QAction *m_showAll = nullptr;
    QAction *m_clearRange = nullptr;
};
