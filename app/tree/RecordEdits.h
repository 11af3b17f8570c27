// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

class KVTreeView;
struct JsonProblem;
class QAction;
class QMenu;

/// What the records of a tree's lists have in common: they are copied as text to the system's clipboard and
/// come back from there, also from another window or a text editor; they are cut, duplicated and moved in
/// their list. Everything acts on all selected records of the current one's kind, as one undo step.
class RecordEdits : public QObject
{
    Q_OBJECT

public:
    /// Acts on records of either document that the tree shows; adds its actions to the tree. Messages stand
    /// on `window`.
    RecordEdits(SkinnedMeshDocument &mesh, AnimDocument &anim, KVTreeView *tree, QWidget *window);

    /// For the tree's menu: the others duplicate and move.
    QAction *cutAction() const { return m_cut; }
    const QList<QAction *> &actions() const { return m_actions; }
    /// Shows those that fit the current record.
    void update();

    /// Whether there is a text to paste. Asks the system, which may take its time.
    static bool hasText();
    /// Puts the selected records on the clipboard.
    void copy() const;
    /// Puts the records of the clipboard behind the current one, or first into the current group. Returns
    /// false when it holds none that fit; says why, where it holds a text of records and there is nothing
    /// else to paste (`hasOther`).
    bool paste(bool hasOther);

signals:
    /// The selected records go; whoever keeps copies makes them now.
    void aboutToCut();

private:
    void cut();
    QString misfit(const QByteArray &text, const JsonProblem &problem) const;
    void duplicate();
    void move(int by);
    QAction *addAction(const char *icon, const QString &text, const char *id, const QKeySequence &keys,
                       void (RecordEdits::*slot)());
    void moveUp() { move(-1); }
    void moveDown() { move(1); }

    template <typename List>
    auto &documentOf() const;
    template <typename Body>
    void withList(Body body) const;
    template <typename List>
    void insert(RecordIndex at, std::vector<typename List::Record> records, const QString &step);
    template <typename List>
    void removeSelected();
    template <typename List>
    void select(RecordIndex first, const QVector<int> &numbers);

    SkinnedMeshDocument &m_mesh;
    AnimDocument &m_anim;
    KVTreeView *m_tree;
    QWidget *m_window;
    QAction *m_cut;
    QList<QAction *> m_actions;
};
