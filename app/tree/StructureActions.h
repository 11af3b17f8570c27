// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

#include <array>
#include <optional>

class KVTreeView;
class QAction;
class QMenu;
class RecordEdits;
class QWidget;

/// What the context menus of the trees offer: adding, removing, copying and pasting records, changing the
/// lengths of an animation block's tables, opening and closing branches, undo and redo.
///
/// Everything acts on the current record of its tree, removing on all selected records of its kind; where
/// that is not a fitting one, nothing happens.
class StructureActions : public QObject
{
    Q_OBJECT

public:
    /// A document and the tree that shows it; both outlive the actions.
    template <typename DocumentType>
    struct Shown
    {
        DocumentType &document;
        KVTreeView *tree;
    };

    /// Dialogs stand on `window`.
    StructureActions(Shown<SkinnedMeshDocument> skinnedMesh, Shown<AnimDocument> anim,
                     Shown<StaticMeshDocument> staticMesh, QWidget *window);

    /// The context menu of a tree, for others who have something to offer there.
    QMenu *menu(DocumentType tree) const { return m_menus[size_t(tree)].menu; }

public slots:
    void OnActionAddHotPoint();
    void OnActionRemoveHotPoint();
    void OnActionCopyHotPoint();
    void OnActionPasteHotPoint();
    void OnSkinMeshCopyBoneFlags();

    void OnActionAddAnimBlock();
    void OnActionRemoveAnimBlock();
    void OnActionCopyAnimBlock();
    void OnActionPasteAnimBlock();
    void OnActionAddAnimAction();
    void OnActionRemoveAnimAction();
    void OnActionEditFrameCount();
    void OnActionEditTranslationCount();
    void OnActionEditRotationCount();

    void OnCustomContextMenu(const QPoint &position);
    void OnAnimCustomContextMenu(const QPoint &position);
    void OnStaticMeshCustomContextMenu(const QPoint &position);

private:
    enum Verb { Add, Remove, Copy, Paste, ChangeSize, CopyFlags, VerbCount };
    /// What a kind of record offers for a verb, and who does it. Copying and pasting are offered by
    /// RecordEdits, which also has their texts; who is named here has a buffer of its own.
    struct Offer
    {
        RecordKind kind;
        Verb verb;
        const char *text;
        void (StructureActions::*slot)();
    };
    /// The actions of one tree, null for a verb that its document offers nowhere. A verb is one action
    /// whatever it applies to, so that no key has two owners.
    struct TreeMenu
    {
        KVTreeView *tree = nullptr;
        QMenu *menu = nullptr;
        RecordEdits *edits = nullptr;
        std::array<QAction *, VerbCount> verbs{};
        QAction *expand = nullptr;
        QAction *collapse = nullptr;
    };

    static const std::vector<Offer> &offers();
    static const Offer *findOffer(RecordKind kind, Verb verb);
    TreeMenu createMenu(Document &document, KVTreeView *tree);
    /// Whether something of the kind's list was copied inside of the program.
    bool hasCopy(RecordKind kind) const
    {
        if (kind == RecordKind::HotPoints || kind == RecordKind::HotPoint)
            return m_copiedHotPoint.has_value();
        return (kind == RecordKind::AnimFile || kind == RecordKind::AnimBlock) && m_copiedBlock.has_value();
    }
    void choose(const TreeMenu &menu, Verb verb);
    void updateMenu(const TreeMenu &menu, bool canPasteText = true) const;
    void popUp(const TreeMenu &menu, const QPoint &position);

    template <typename Command, typename DocumentType>
    void insert(const Shown<DocumentType> &shown, RecordKind group, typename Command::Record record);
    template <typename Command, typename DocumentType>
    void remove(const Shown<DocumentType> &shown);
    template <typename RecordType, typename DocumentType>
    void copy(const Shown<DocumentType> &shown, std::optional<typename RecordType::Record> &buffer,
              const TreeMenu &menu);
    void editCount(RecordKind group, const QString &title, const QString &consequence, int least,
                   void (AnimBlock::*resize)(int));

    Shown<SkinnedMeshDocument> m_skinnedMesh;
    Shown<AnimDocument> m_anim;
    QWidget *m_window;
    std::array<TreeMenu, 3> m_menus;
    std::optional<SkinnedMeshHotPoint> m_copiedHotPoint;
    std::optional<AnimBlock> m_copiedBlock;
};
