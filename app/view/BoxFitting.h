// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

#include <QMenu>

#include <optional>

struct Box;
class RecordSelection;

/// Makes boxes as small as their vertices let them be, one undo step each time: those of bones around the
/// vertices that the bone carries, in the bone's space, and that of the model around the model at rest.
class BoxFitting : public QMenu
{
    Q_OBJECT

public:
    /// `bones` says which are selected of the skinned mesh. All of it outlives the menu.
    BoxFitting(SkinnedMeshDocument &skinned, const AnimDocument &anim, StaticMeshDocument &rigid,
               const RecordSelection &bones, QWidget *window);

    /// The menu once more, for the menu of a tree: offered for what has a box there.
    QAction *treeAction() const { return m_treeAction; }

public slots:
    /// The document that the current tab shows; null for none. One without boxes has nothing to fit.
    void setCurrent(Document *document);
    /// The current record of the tree.
    void setCurrentRecord(const RecordRef &record);
    void OnFitSelectedBones();
    void OnFitAllBones();
    void OnFitModel();

signals:
    void told(const QString &text);

private:
    QAction *addFit(const char *name, const QString &text, const QString &tip, void (BoxFitting::*slot)(),
                    QWidget *window);
    void update();
    void fitBones(const QVector<int> &bones);
    std::optional<Box> restBox() const;

    SkinnedMeshDocument &m_skinned;
    const AnimDocument &m_anim;
    StaticMeshDocument &m_rigid;
    const RecordSelection &m_bones;
    Document *m_current = nullptr;
    QAction *m_treeAction;
    QAction *m_selected;
    QAction *m_all;
    QAction *m_model;
};
