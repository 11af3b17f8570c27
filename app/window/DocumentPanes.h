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
class PageStack;
class QAction;
class ViewSelection;

namespace Ui {
class MainWindow;
}

/// What belongs to one document in the window.
struct DocumentPane
{
    Document *document;
    KVTreeView *tree;
    PageStack *pages;
    FolderExplorer *explorer;
    KVOpenGLWidget *viewport;
};

/// The three documents in the window: what is opened, edited, selected or picked in one place shows in all of
/// them, and the tabs say which document is the current one.
class DocumentPanes : public QObject
{
    Q_OBJECT

public:
    /// The form and the documents outlive the panes.
    DocumentPanes(Ui::MainWindow &ui, SkinnedMeshDocument &skinnedMesh, AnimDocument &anim,
                  StaticMeshDocument &staticMesh, QObject *parent);

    /// In the order of DocumentType.
    const std::array<DocumentPane, 3> &all() const { return m_panes; }
    const DocumentPane &pane(DocumentType type) const { return m_panes[size_t(type)]; }
    std::array<KVOpenGLWidget *, 2> viewports() const;

    // Of the tab that is shown; null or empty on a tab without a document.
    const DocumentPane *current() const;
    Document *currentDocument() const;
    KVOpenGLWidget *currentViewport() const;
    /// What is selected of the model in its viewport.
    ModelSelection currentSelection() const;

public slots:
    /// Brings a document's tab to the front.
    void showPane(DocumentType type);
    /// The same, with the record current in its tree, which gets the keys.
    void showRecord(DocumentType type, const RecordRef &record);
    void OnSaved(DocumentType type);
    void on_tabWidget_currentChanged();
    void on_tabTrees_currentChanged(int index);

signals:
    /// Another tab is shown.
    void currentChanged();
    /// Something for the status bar.
    void told(const QString &text);

private:
    void connectPane(const DocumentPane &pane);
    void connectPlayback();
    void updateViewports();
    void OnReplaced(DocumentType type);
    void OnRecordsChanged(DocumentType type, const QVector<RecordRef> &records);
    void selectRecord(DocumentType type, const RecordRef &record);
    void showPicked(DocumentType type, const RecordRef &record);
    void showInViewport(DocumentType type, const RecordRef &record);

    Ui::MainWindow &m_ui;
    SkinnedMeshDocument &m_skinnedMesh;
    AnimDocument &m_anim;
    StaticMeshDocument &m_staticMesh;
    std::array<DocumentPane, 3> m_panes;
    std::array<RecordRef, 3> m_shown{}; ///< what the viewport marks of each
    ViewSelection *m_selection;
};
