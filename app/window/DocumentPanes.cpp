// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentPanes.h"

#include "AnimTrackFrame.h"
#include "AnimationNaming.h"
#include "FileSystem.h"
#include "FolderExplorer.h"
#include "KVOpenGLWidget.h"
#include "KVTreeView.h"
#include "MaterialCatalog.h"
#include "MeshSource.h"
#include "PageStack.h"
#include "Playback.h"
#include "PropertyPages.h"
#include "ViewSelection.h"
#include "ViewportMarks.h"

#include <QApplication>
#include <QStackedWidget>
#include <QTabWidget>

#include <algorithm>
#include <utility>

namespace {
/// Has what a view needs of each model made while its file is read.
template <typename Model>
void prepareViewOf(ModelDocument<Model> &document)
{
    document.setPreparation([] {
        return [gamePath = Settings::GamePath.value(), outputDir = Settings::OutputDir.value()](
                   const Model &model, const ReadProgress &progress) -> std::any {
            return std::make_shared<MeshSource>(MeshSource::from(model, gamePath, outputDir, &progress));
        };
    });
}

std::shared_ptr<MeshSource> preparedView(Document &document)
{
    const std::any prepared = document.takePrepared();
    const auto *source = std::any_cast<std::shared_ptr<MeshSource>>(&prepared);
    return source ? *source : nullptr;
}

ShownRecords shownRecords(const DocumentPane &pane)
{
    return {pane.tree, pane.viewport};
}
} // namespace

DocumentPanes::DocumentPanes(const std::array<DocumentPane, 3> &panes, SkinnedMeshDocument &skinnedMesh,
                             AnimDocument &anim, StaticMeshDocument &staticMesh, const DocumentTabs &tabs,
                             AnimTrackFrame &track, QObject *parent)
    : QObject(parent)
    , m_panes(panes)
    , m_skinnedMesh(skinnedMesh)
    , m_anim(anim)
    , m_staticMesh(staticMesh)
    , m_tabs(tabs)
    , m_track(track)
    , m_materials(new MaterialCatalog(this))
    , m_selection(new ViewSelection(skinnedMesh, staticMesh,
                                    {shownRecords(panes[0]), shownRecords(panes[1]), shownRecords(panes[2])},
                                    this))
{
    const auto &[meshPane, animPane, rigidPane] = m_panes;
    addPages(*meshPane.pages, skinnedMesh, *meshPane.tree, *m_materials);
    addPages(*animPane.pages, anim, *animPane.tree, skinnedMesh);
    addPages(*rigidPane.pages, staticMesh, *rigidPane.tree, *m_materials);
    prepareViewOf(skinnedMesh);
    prepareViewOf(staticMesh);
    meshPane.viewport->setSkinnedMeshMode(true);
    AnimationNaming::setMesh(AnimationNaming::Mesh{skinnedMesh.editTarget(), skinnedMesh.undoStack(),
                                                   [&skinnedMesh] { return skinnedMesh.isOpen(); }});
    for (const DocumentPane &each : m_panes)
        connectPane(each);
    connect(m_selection, &ViewSelection::picked, this, &DocumentPanes::showPicked);
    connectPlayback();
    for (const KVOpenGLWidget *viewport : viewports())
        connect(viewport, &KVOpenGLWidget::told, this, &DocumentPanes::told);
    connect(m_tabs.tabs, &QTabWidget::currentChanged, this, &DocumentPanes::on_tabWidget_currentChanged);
    connect(m_tabs.trees, &QTabWidget::currentChanged, this, &DocumentPanes::on_tabTrees_currentChanged);
    updateViewports();
}

DocumentPanes::~DocumentPanes()
{
    AnimationNaming::setMesh({});
}

void DocumentPanes::connectPane(const DocumentPane &pane)
{
    const DocumentType type = pane.document->kind().type;
    // A list that changed may have put another record in the place of the one that is shown.
    connect(pane.document, &Document::structuresChanged, this, [this, type] { m_shown[size_t(type)] = {}; });
    pane.tree->setDocument(pane.document);
    pane.pages->setTree(pane.tree);
    connect(pane.document, &Document::replaced, this, [this, type] { OnReplaced(type); });
    connect(pane.document, &Document::recordsChanged, this,
            [this, type](const QVector<RecordRef> &records) { OnRecordsChanged(type, records); });
    connect(pane.document, &Document::structuresChanged, this,
            [this, type](const QVector<StructureChange> &changes) { OnStructuresChanged(type, changes); });
    connect(pane.tree, &KVTreeView::currentRecordChanged, this,
            [this, type](const RecordRef &record) { showInViewport(type, record); });
    connect(pane.tree, &KVTreeView::told, this, &DocumentPanes::told);
    connect(pane.pages, &PageStack::told, this, &DocumentPanes::told);
    connect(pane.pages, &PageStack::boneWanted, this, [this, pane](bool on) {
        pane.viewport->waitForBone(on ? [pages = pane.pages](int bone) { pages->takeBone(bone); }
                                      : PickTool::BonePicked());
        if (!on || m_skinnedMesh.isOpen())
            return;
        pane.pages->giveUpPicking();
        emit told(tr("The mesh that has the bones is not open."));
    });
    pane.document->setEditors(pane.pages);
    connect(pane.document, &Document::typingRefused, this, [this, type](const QString &refusal) {
        showPane(type);
        emit told(refusal);
    });
}

void DocumentPanes::OnOptionsAccepted()
{
    for (const DocumentPane &each : m_panes)
        each.tree->updateHiding();
}

void DocumentPanes::connectPlayback()
{
    KVOpenGLWidget *view = pane(DocumentType::SkinnedMesh).viewport;
    AnimTrackFrame *track = &m_track;
    connect(view, &KVOpenGLWidget::frameShown, track, &AnimTrackFrame::showFrame);
    connect(view, &KVOpenGLWidget::frameLabelChanged, track, &AnimTrackFrame::showLabel);
    connect(track, &AnimTrackFrame::playbackChanged, view, &KVOpenGLWidget::playbackChanged);
    connect(track, &AnimTrackFrame::actionChosen, this, [this](int block, int action) {
        const RecordRef record{RecordKind::AnimAction, {block, action}};
        showPane(DocumentType::Anim);
        pane(DocumentType::Anim).tree->selectRecords({record}, record);
    });
    track->openAnimation(nullptr);
}

std::array<KVOpenGLWidget *, 2> DocumentPanes::viewports() const
{
    return {pane(DocumentType::SkinnedMesh).viewport, pane(DocumentType::StaticMesh).viewport};
}

const DocumentPane *DocumentPanes::current() const
{
    if (m_tabs.tabs->currentWidget() == m_tabs.skinned)
        return &pane(m_tabs.trees->currentIndex() == 0 ? DocumentType::SkinnedMesh : DocumentType::Anim);
    if (m_tabs.tabs->currentWidget() == m_tabs.rigid)
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
    m_tabs.tabs->setCurrentWidget(type == DocumentType::StaticMesh ? m_tabs.rigid : m_tabs.skinned);
    if (type != DocumentType::StaticMesh)
        m_tabs.trees->setCurrentIndex(type == DocumentType::SkinnedMesh ? 0 : 1);
}

// The keys that go through a folder, file by file, stay there.
bool DocumentPanes::staysInFolder(const DocumentPane &opened)
{
    return opened.document->kind().quickSelect.value() &&
           opened.explorer->isAncestorOf(QApplication::focusWidget());
}

void DocumentPanes::showOpened(DocumentType type)
{
    const bool stays = staysInFolder(pane(type)); // before another tab has them
    showPane(type);
    if (!stays)
        pane(type).viewport->setFocus();
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
    if (record.kind == RecordKind::None)
        return current()->tree->selectRecords({}, {});
    if (currentDocument() != &m_anim)
        return selectRecord(type, record);
    // A click that gives the view the keys takes nobody away from the animation, which has bones alone.
    const int block = playback().blockIndex;
    const QString label = pane(type).tree->label(record);
    if (record.kind != RecordKind::Bone)
        emit told(tr("%1 belongs to the skinned mesh, whose tree can select it.").arg(label));
    else if (record.index[0] < m_anim.recordCount(RecordKind::AnimBone, {block}))
        selectRecord(DocumentType::Anim, {RecordKind::AnimBone, {block, record.index[0]}});
    else
        emit told(tr("The animation that plays does not have %1.").arg(label));
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
    m_tabs.pages->setCurrentIndex(index);
    const DocumentType type = index == 0 ? DocumentType::SkinnedMesh : DocumentType::Anim;
    showInViewport(type, pane(type).tree->currentRecord());
    emit currentChanged();
}

void DocumentPanes::OnReplaced(DocumentType type)
{
    switch (type) {
    case DocumentType::SkinnedMesh:
        playback().mesh = &m_skinnedMesh.model();
        pane(type).viewport->setSkinnedMesh(&m_skinnedMesh.model(), preparedView(m_skinnedMesh));
        showNames();
        break;
    case DocumentType::Anim:
        m_track.openAnimation(&m_anim.model());
        break;
    case DocumentType::StaticMesh:
        pane(type).viewport->setStaticMesh(&m_staticMesh.model(), preparedView(m_staticMesh));
        break;
    }
    const DocumentPane &replaced = pane(type);
    showInViewport(type, replaced.tree->currentRecord()); // the view has forgotten what is selected
    replaced.viewport->playbackChanged();                 // at once, rather than at the next idle look
    const QString path = replaced.document->path();
    if (FileSystem::isSamePath(std::exchange(m_paths[size_t(type)], path), path) && !path.isEmpty())
        return; // only read again
    frame(type);
    replaced.explorer->setLoadedPath(replaced.document->path());
}

void DocumentPanes::frame(DocumentType type)
{
    if (type != DocumentType::Anim && Settings::FrameOnOpen.value())
        pane(type).viewport->frameWhenShown();
}

void DocumentPanes::OnOpened(DocumentType type)
{
    frame(type);
    if (pane(type).viewport == currentViewport() && !staysInFolder(pane(type)))
        pane(type).viewport->setFocus();
}

void DocumentPanes::OnPosed()
{
    if (Settings::FrameOnOpen.value())
        pane(DocumentType::SkinnedMesh).viewport->frameAgain();
}

void DocumentPanes::OnSaved(DocumentType type)
{
    const DocumentPane &written = pane(type);
    m_paths[size_t(type)] = written.document->path();
    written.explorer->setLoadedPath(written.document->path());
    written.explorer->showWritten(written.document->path());
}

void DocumentPanes::OnRecordsChanged(DocumentType type, const QVector<RecordRef> &records)
{
    refreshChanged(*pane(type).viewport, records);
    if (type == DocumentType::Anim)
        m_track.updateRange();
    if (type == DocumentType::SkinnedMesh)
        showNames();
}

void DocumentPanes::showNames()
{
    const DocumentPane &anim = pane(DocumentType::Anim);
    for (const DocumentPane &each : m_panes)
        each.tree->viewport()->update();
    if (anim.document->isOpen())
        anim.pages->refresh();
    m_track.updateRange();
}

void DocumentPanes::OnMaterialsChanged()
{
    m_materials->reload();
}

void DocumentPanes::OnNamesChanged()
{
    showNames();
    pane(DocumentType::SkinnedMesh).pages->refresh();
}

void DocumentPanes::OnStructuresChanged(DocumentType type, const QVector<StructureChange> &changes)
{
    Document &document = *pane(type).document;
    const bool isWhole = std::any_of(changes.begin(), changes.end(), [&](const StructureChange &change) {
        const RecordKind kind = change.record.kind;
        return kind == document.rootKind() || kind == RecordKind::SkinnedSurface ||
               kind == RecordKind::StaticSurface;
    });
    // An animation poses the mesh that the view shows, and is no part of it.
    if (isWhole && type == DocumentType::Anim)
        pane(type).viewport->playbackChanged();
    else if (isWhole)
        pane(type).viewport->rebuildModel(preparedView(document));
    OnRecordsChanged(type, {});
}

// A view that two trees share marks what is selected in the one in front.
bool DocumentPanes::isMarked(DocumentType type) const
{
    return type == DocumentType::StaticMesh ||
           (m_tabs.trees->currentIndex() == 0) == (type == DocumentType::SkinnedMesh);
}

void DocumentPanes::showInViewport(DocumentType type, const RecordRef &record)
{
    const bool isNew = std::exchange(m_shown[size_t(type)], record) != record;
    const bool underBlock =
        type == DocumentType::Anim && record.kind != RecordKind::None && record.kind != RecordKind::AnimFile;
    const int block = record.index[0];
    if (underBlock && isNew && (record.kind == RecordKind::AnimBlock || block != playback().blockIndex))
        m_track.selectBlock(block);
    if (!isMarked(type))
        return;
    m_selection->mark(type);
    switch (type) {
    case DocumentType::SkinnedMesh:
        markRecord(*pane(type).viewport, m_skinnedMesh.model(), record);
        break;
    case DocumentType::Anim:
        markRecord(*pane(type).viewport, m_anim.model(), record);
        break;
    case DocumentType::StaticMesh:
        markRecord(*pane(type).viewport, m_staticMesh.model(), record);
        break;
    }
}
