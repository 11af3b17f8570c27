// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "ModelPlaces.h"

#include <QObject>

#include <array>

class FolderExplorer;
class KVOpenGLWidget;
class KVTreeView;
class MaterialCatalog;
class PageStack;
class QStackedWidget;
class QTabWidget;
class AnimTrackFrame;
class ViewSelection;

/// What belongs to one document in the window.
struct DocumentPane
{
    Document *document;
    KVTreeView *tree;
    PageStack *pages;
    FolderExplorer *explorer;
    KVOpenGLWidget *viewport;
};

/// What brings the one or the other document to the front.
struct DocumentTabs
{
    QTabWidget *tabs;
    QWidget *skinned;      ///< the tab of skinned mesh and animation
    QWidget *rigid;        ///< the tab of the static mesh
    QTabWidget *trees;     ///< skinned mesh or animation
    QStackedWidget *pages; ///< the property pages that belong to those
};

/// The three documents in the window: what is opened, edited, selected or picked in one place shows in all of
/// them, and the tabs say which document is the current one.
class DocumentPanes : public QObject
{
    Q_OBJECT

public:
    /// `panes` in the order of DocumentType, for these documents. Everything outlives this.
    DocumentPanes(const std::array<DocumentPane, 3> &panes, SkinnedMeshDocument &skinnedMesh,
                  AnimDocument &anim, StaticMeshDocument &staticMesh, const DocumentTabs &tabs,
                  AnimTrackFrame &track, QObject *parent);
    ~DocumentPanes() override;

    /// In the order of DocumentType.
    const std::array<DocumentPane, 3> &all() const { return m_panes; }
    std::array<KVOpenGLWidget *, 2> viewports() const;
    MaterialCatalog &materials() const { return *m_materials; }

    // Of the tab that is shown; null or empty on a tab without a document.
    const DocumentPane *current() const;
    Document *currentDocument() const;
    KVOpenGLWidget *currentViewport() const;
    /// What is selected of the model in its viewport.
    ModelSelection currentSelection() const;

public slots:
    /// Brings a document's tab to the front.
    void showPane(DocumentType type);
    /// The same with what was just opened, which is flown around: its view gets the keys.
    void showOpened(DocumentType type);
    /// The same, with the record current in its tree.
    void selectRecord(DocumentType type, const RecordRef &record);
    /// The same; the tree gets the keys.
    void showRecord(DocumentType type, const RecordRef &record);
    /// The user has opened a file, maybe the same one again, maybe in a tab that stays behind.
    void OnOpened(DocumentType type);
    /// The skinned mesh was posed by the animation that came after it: if its view stands as it was framed
    /// for it, it is framed as it stands now.
    void OnPosed();
    void OnSaved(DocumentType type);
    void OnOptionsAccepted();
    /// Numbers of the game may be called otherwise.
    void OnNamesChanged();
    /// Materials, textures, or the folders that they are in, have changed.
    void OnMaterialsChanged();
    void on_tabWidget_currentChanged();
    void on_tabTrees_currentChanged(int index);

signals:
    /// Another tab is shown.
    void currentChanged();
    /// Something for the status bar.
    void told(const QString &text);

private:
    /// What bones and animations are called has changed.
    void showNames();
    const DocumentPane &pane(DocumentType type) const { return m_panes[size_t(type)]; }
    void connectPane(const DocumentPane &pane);
    void connectPlayback();
    void updateViewports();
    void OnReplaced(DocumentType type);
    void frame(DocumentType type);
    static bool staysInFolder(const DocumentPane &opened);
    void OnRecordsChanged(DocumentType type, const QVector<RecordRef> &records);
    void OnStructuresChanged(DocumentType type, const QVector<StructureChange> &changes);
    void showPicked(DocumentType type, const RecordRef &record);
    bool isMarked(DocumentType type) const;
    void showInViewport(DocumentType type, const RecordRef &record);

    const std::array<DocumentPane, 3> m_panes;
    SkinnedMeshDocument &m_skinnedMesh;
    AnimDocument &m_anim;
    StaticMeshDocument &m_staticMesh;
    const DocumentTabs m_tabs;
    AnimTrackFrame &m_track;
    MaterialCatalog *m_materials;
    std::array<QString, 3> m_paths;     ///< of what was opened, to tell it from what is only read again
    std::array<RecordRef, 3> m_shown{}; ///< what the viewport marks of each
    ViewSelection *m_selection;
};
