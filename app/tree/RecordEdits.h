// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "EditedList.h"

#include <QKeySequence>

class KVTreeView;
class QAction;

/// What the records of a tree's lists have in common: they are copied as text to the system's clipboard and
/// come back from there, also from another window or a text editor; they are cut, duplicated and moved in
/// their list. Everything acts on all selected records of the current one's kind, as one undo step.
class RecordEdits : public QObject
{
    Q_OBJECT

public:
    /// Acts on records of the document that the tree shows; adds its actions to the tree. Messages stand on
    /// `window`.
    RecordEdits(Document &document, KVTreeView *tree, QWidget *window);

    /// For the tree's menu: the others duplicate and move.
    QAction *cutAction() const { return m_cut; }
    const QList<QAction *> &actions() const { return m_actions; }
    /// Shows those that fit the current record.
    void update();
    /// What copying the current record, and pasting to it or into it, is called; empty where that cannot be.
    QString copyText() const;
    QString pasteText() const;

    /// Whether there is a text to paste. Asks the system, which may take its time.
    static bool hasText();
    /// Puts the selected records on the clipboard.
    void copy() const;
    /// Puts the records of the clipboard behind the current one, or first into the current group. Returns
    /// false when it holds no text of such records; says why, where it holds a text of records and there is
    /// nothing else to paste (`hasOther`), and where the records do not fit.
    bool paste(bool hasOther);

signals:
    /// The selected records go; whoever keeps copies makes them now.
    void aboutToCut();

private:
    void cut();
    void duplicate();
    void moveUp() { move(-1); }
    void moveDown() { move(1); }
    void move(int by);
    QString misfit(const QByteArray &text, const JsonProblem &problem, const ListWords &here) const;
    void finish(const ListEdit &edit, const QString &what);
    QAction *addAction(const char *icon, const QString &text, const char *id, const QKeySequence &keys,
                       void (RecordEdits::*slot)());
    /// The list that the current record is of, or that it is the group of; null when there is none.
    EditedList *list() const;
    /// Calls `edit(list, selected records, current record)` where the current one is of a list.
    template <typename Edit>
    void withRecords(Edit edit) const;

    KVTreeView *m_tree;
    QWidget *m_window;
    EditedLists m_lists;
    QAction *m_cut;
    QList<QAction *> m_actions;
};
