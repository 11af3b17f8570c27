// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentPanes.h"

#include "FilterLine.h"
#include "FolderExplorer.h"
#include "Playback.h"
#include "PropertyPages.h"
#include "ViewSelection.h"
#include "ViewportMarks.h"
#include "ui_MainWindow.h"

#include <QBoxLayout>

namespace {
FolderExplorer *newExplorer(DocumentType type, QSplitter *splitter)
{
    auto *explorer = new FolderExplorer(documentKind(type));
    splitter->addWidget(explorer);
    return explorer;
}
} // namespace

DocumentPanes::DocumentPanes(Ui::MainWindow &ui, SkinnedMeshDocument &skinnedMesh, AnimDocument &anim,
                             StaticMeshDocument &staticMesh, QObject *parent)
    : QObject(parent)
    , m_ui(ui)
    , m_skinnedMesh(skinnedMesh)
    , m_anim(anim)
    , m_staticMesh(staticMesh)
    , m_panes{{{&skinnedMesh, ui.treeSkinnedMesh, ui.pagesSkinnedMesh,
                newExplorer(DocumentType::SkinnedMesh, ui.splitterSkinnedExplorers), ui.viewSkinned},
               {&anim, ui.treeAnim, ui.pagesAnim,
                newExplorer(DocumentType::Anim, ui.splitterSkinnedExplorers), ui.viewSkinned},
               {&staticMesh, ui.treeStaticMesh, ui.pagesStaticMesh,
                newExplorer(DocumentType::StaticMesh, ui.splitterStaticExplorer), ui.viewStatic}}}
    , m_selection(new ViewSelection(skinnedMesh, staticMesh,
                                    {{{ui.treeSkinnedMesh, ui.viewSkinned},
                                      {ui.treeAnim, ui.viewSkinned},
                                      {ui.treeStaticMesh, ui.viewStatic}}},
                                    this))
{
    addPages(*ui.pagesSkinnedMesh, skinnedMesh, *ui.treeSkinnedMesh);
    addPages(*ui.pagesAnim, anim, *ui.treeAnim, skinnedMesh);
    addPages(*ui.pagesStaticMesh, staticMesh, *ui.treeStaticMesh);
    ui.viewSkinned->setSkinnedMeshMode(true);
    for (const DocumentPane &each : m_panes)
        connectPane(each);
    connect(m_selection, &ViewSelection::picked, this, &DocumentPanes::showPicked);
    connectPlayback();
    connect(ui.tabWidget, &QTabWidget::currentChanged, this, &DocumentPanes::on_tabWidget_currentChanged);
    connect(ui.tabTrees, &QTabWidget::currentChanged, this, &DocumentPanes::on_tabTrees_currentChanged);
    updateViewports();
}

void DocumentPanes::connectPane(const DocumentPane &pane)
{
    const DocumentType type = pane.document->kind().type;
    // A list that changed may have put another record in the place of the one that is shown.
    connect(pane.document, &Document::structuresChanged, this, [this, type] { m_shown[size_t(type)] = {}; });
    pane.tree->setDocument(pane.document);
    pane.pages->setTree(pane.tree);
    auto *column = static_cast<QBoxLayout *>(pane.tree->parentWidget()->layout());
    auto *filter = new FilterLine(*pane.tree, pane.tree->parentWidget());
    filter->setAction(m_ui.actionFilter);
    column->insertWidget(0, filter);
    pane.tree->setOpenAction(m_ui.actionOpen);
    connect(pane.document, &Document::replaced, this, [this, type] { OnReplaced(type); });
    connect(pane.document, &Document::recordsChanged, this,
            [this, type](const QVector<RecordRef> &records) { OnRecordsChanged(type, records); });
    connect(pane.document, &Document::structuresChanged, this, [this, type] { OnRecordsChanged(type, {}); });
    connect(pane.tree, &KVTreeView::currentRecordChanged, this,
            [this, type](const RecordRef &record) { showInViewport(type, record); });
}

void DocumentPanes::connectPlayback()
{
    AnimTrackFrame *track = m_ui.animTrackFrame;
    connect(m_ui.viewSkinned, &KVOpenGLWidget::frameShown, track, &AnimTrackFrame::showFrame);
    connect(m_ui.viewSkinned, &KVOpenGLWidget::frameLabelChanged, track, &AnimTrackFrame::showLabel);
    connect(track, &AnimTrackFrame::playbackChanged, m_ui.viewSkinned, &KVOpenGLWidget::playbackChanged);
    const auto select = [this](const RecordRef &record) {
        showPane(DocumentType::Anim);
        m_ui.treeAnim->selectRecords({record}, record);
    };
    connect(track, &AnimTrackFrame::blockChosen, this, [select](int block) {
        select({RecordKind::AnimBlock, {block}});
    });
    connect(track, &AnimTrackFrame::actionChosen, this, [select](int block, int action) {
        select({RecordKind::AnimAction, {block, action}});
    });
    track->openAnimation(nullptr);
}

std::array<KVOpenGLWidget *, 2> DocumentPanes::viewports() const
{
    return {m_ui.viewSkinned, m_ui.viewStatic};
}

const DocumentPane *DocumentPanes::current() const
{
    if (m_ui.tabWidget->currentWidget() == m_ui.tabSkinned)
        return &pane(m_ui.tabTrees->currentIndex() == 0 ? DocumentType::SkinnedMesh : DocumentType::Anim);
    if (m_ui.tabWidget->currentWidget() == m_ui.tabStatic)
        return &pane(DocumentType::StaticMesh);
    return nullptr;
}

Document *DocumentPanes::currentDocument() const
{
    const DocumentPane *shown = current();
    return shown ? shown->document : nullptr;
}

KVOpenGLWidget *DocumentPanes::currentViewport() const
{
    const DocumentPane *shown = current();
    return shown ? shown->viewport : nullptr;
}

ModelSelection DocumentPanes::currentSelection() const
{
    const Document *document = currentDocument();
    return document ? m_selection->selected(document->kind().type) : ModelSelection();
}

void DocumentPanes::showPane(DocumentType type)
{
    m_ui.tabWidget->setCurrentWidget(type == DocumentType::StaticMesh ? m_ui.tabStatic : m_ui.tabSkinned);
    if (type != DocumentType::StaticMesh)
        m_ui.tabTrees->setCurrentIndex(type == DocumentType::SkinnedMesh ? 0 : 1);
}

void DocumentPanes::showRecord(DocumentType type, const RecordRef &record)
{
    selectRecord(type, record);
    pane(type).tree->setFocus();
}

void DocumentPanes::selectRecord(DocumentType type, const RecordRef &record)
{
    showPane(type);
    KVTreeView *tree = pane(type).tree;
    tree->selectRecords({record}, record);
    if (tree->currentRecord() == record)
        return;
    emit told(tree->isFiltered()
                  ? tr("The filter above the tree hides %1.").arg(tree->label(record))
                  : tr("The tree leaves such records out. The options can make it show them."));
}

void DocumentPanes::showPicked(DocumentType type, const RecordRef &record)
{
    // The keys stay with the view.
    if (currentDocument() != &m_anim)
        return selectRecord(type, record);
    // A click that gives the view the keys takes nobody away from the animation, which has bones alone.
    const int block = playback().blockIndex;
    if (record.kind == RecordKind::Bone &&
        record.index[0] < m_anim.recordCount(RecordKind::AnimBone, {block}))
        selectRecord(DocumentType::Anim, {RecordKind::AnimBone, {block, record.index[0]}});
}

void DocumentPanes::updateViewports()
{
    const KVOpenGLWidget *shown = currentViewport();
    for (KVOpenGLWidget *viewport : viewports())
        viewport->setActive(viewport == shown);
}

void DocumentPanes::on_tabWidget_currentChanged()
{
    updateViewports();
    emit currentChanged();
}

void DocumentPanes::on_tabTrees_currentChanged(int index)
{
    m_ui.stackSkinned->setCurrentIndex(index);
    const DocumentType type = index == 0 ? DocumentType::SkinnedMesh : DocumentType::Anim;
    showInViewport(type, pane(type).tree->currentRecord());
    emit currentChanged();
}

void DocumentPanes::OnReplaced(DocumentType type)
{
    switch (type) {
    case DocumentType::SkinnedMesh:
        playback().mesh = &m_skinnedMesh.model();
        m_ui.viewSkinned->setSkinnedMesh(&m_skinnedMesh.model());
        break;
    case DocumentType::Anim:
        m_ui.animTrackFrame->openAnimation(&m_anim.model());
        break;
    case DocumentType::StaticMesh:
        m_ui.viewStatic->setStaticMesh(&m_staticMesh.model());
        break;
    }
    const DocumentPane &replaced = pane(type);
    replaced.viewport->playbackChanged();
    replaced.explorer->setLoadedPath(replaced.document->path());
}

void DocumentPanes::OnSaved(DocumentType type)
{
    const DocumentPane &written = pane(type);
    written.explorer->setLoadedPath(written.document->path());
    if (!written.explorer->selectPath(written.document->path())) {
        written.explorer->refill();
        written.explorer->selectPath(written.document->path());
    }
}

void DocumentPanes::OnRecordsChanged(DocumentType type, const QVector<RecordRef> &records)
{
    refreshChanged(*pane(type).viewport, records);
    if (type == DocumentType::Anim)
        m_ui.animTrackFrame->updateRange();
}

void DocumentPanes::showInViewport(DocumentType type, const RecordRef &record)
{
    m_selection->mark(type);
    const bool isNew = m_shown[size_t(type)] != record;
    m_shown[size_t(type)] = record;
    switch (type) {
    case DocumentType::SkinnedMesh:
        markRecord(*m_ui.viewSkinned, m_skinnedMesh.model(), record);
        break;
    case DocumentType::Anim: {
        markRecord(*m_ui.viewSkinned, m_anim.model(), record);
        const bool underBlock = record.kind != RecordKind::None && record.kind != RecordKind::AnimFile;
        const int block = record.index[0];
        if (underBlock && isNew && (record.kind == RecordKind::AnimBlock || block != playback().blockIndex))
            m_ui.animTrackFrame->selectBlock(block);
        break;
    }
    case DocumentType::StaticMesh:
        markRecord(*m_ui.viewStatic, m_staticMesh.model(), record);
        break;
    }
}
