// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

#include <QDockWidget>

#include <functional>

class AnimTrackFrame;
class ChannelList;
class CurveEdits;
class CurveView;
class FloatSpinBox;
class IntSpinBox;
class KVTreeView;
class QCheckBox;
class QHBoxLayout;
class QLabel;

/// The curves of the bones that are selected in a tree or in the view, of the animation that is shown. Hidden
/// it does nothing.
class CurvesDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit CurvesDock(QWidget *parent = nullptr);

    /// Everything outlives the dock.
    void setSources(AnimDocument &anim, const SkinnedMeshDocument &mesh, const KVTreeView &animTree,
                    const KVTreeView &meshTree, AnimTrackFrame &timeline);

    /// A click in the view has hit a bone, which a tree may leave out.
    void showBone(int bone) { showBones({bone}); }

signals:
    /// Another pose is shown.
    void posed();
    /// The animation is about to be edited.
    void documentWanted(DocumentType type);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void createBar(QHBoxLayout *bar);
    void createValue(QHBoxLayout *bar);
    QAction *addAction(const char *name, const char *icon, const QString &text, const QString &tip,
                       const QKeySequence &keys, std::function<void()> deed);
    void follow(const KVTreeView &tree);
    QVector<int> bonesOf(const KVTreeView &tree) const;
    void showBones(const QVector<int> &bones);
    const AnimBlock *block() const;
    void refresh(bool anew);
    void showWords();
    void showSelection();
    QString boneName(int bone) const;
    QString sharers() const;

    AnimDocument *m_anim = nullptr;
    const SkinnedMeshDocument *m_mesh = nullptr;
    const KVTreeView *m_animTree = nullptr;
    const KVTreeView *m_meshTree = nullptr;
    CurveView *m_view;
    CurveEdits *m_edits;
    ChannelList *m_channels;
    QLabel *m_title;
    QCheckBox *m_keep;
    QLabel *m_key;
    FloatSpinBox *m_value;
    IntSpinBox *m_smoothing;
    QList<QAction *> m_ofSelection;
    QVector<int> m_bones; ///< the first is the one that was selected last
};
