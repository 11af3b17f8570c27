// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "CameraMenu.h"
#include "ConsoleButton.h"
#include "ConsoleLog.h"
#include "DisplayOptions.h"
#include "DocumentFiles.h"
#include "ExplorerFiles.h"
#include "FileDrop.h"
#include "FilterLine.h"
#include "FolderExplorer.h"
#include "HistoryView.h"
#include "Icons.h"
#include "ImportExport.h"
#include "ImportFilter.h"
#include "LookMenu.h"
#include "ModelTransforms.h"
#include "PictureSaver.h"
#include "Playback.h"
#include "Problems.h"
#include "ProblemsButton.h"
#include "PropertyPages.h"
#include "QuestionMenu.h"
#include "RecentFiles.h"
#include "RecoveryPrompt.h"
#include "ReloadPrompt.h"
#include "Session.h"
#include "Shortcuts.h"
#include "StructureActions.h"
#include "TemporaryFolder.h"
#include "UndoActions.h"
#include "UpdatePrompt.h"
#include "ViewPreferences.h"
#include "ViewSelection.h"
#include "ViewToolBar.h"
#include "ViewportMarks.h"
#include "ViewportNotice.h"
#include "WindowGeometry.h"
#include "WindowLayout.h"
#include "ui_MainWindow.h"

#include <QBoxLayout>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QTimer>

#include <algorithm>
#include <utility>

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::MainWindow>())
    , m_skinnedMesh(DocumentType::SkinnedMesh, RecordKind::SkinnedMesh)
    , m_anim(DocumentType::Anim, RecordKind::AnimFile)
    , m_staticMesh(DocumentType::StaticMesh, RecordKind::StaticMesh)
    , m_files(new DocumentFiles({&m_skinnedMesh, &m_anim, &m_staticMesh}, this))
    , m_transforms(new ModelTransforms(
          m_skinnedMesh, m_staticMesh, [this] { return currentDocument(); }, this))
    , m_importExport(new ImportExport(m_skinnedMesh, m_anim, m_staticMesh, *m_files, this))
    , m_problems(new Problems(m_skinnedMesh, m_anim, m_staticMesh, this))
    , m_pictures(new PictureSaver(this))
{
    m_ui->setupUi(this);
    setNamedIcons(*this);
    createConsole();
    createPanes();
    createProblems();
    createViewToolBars();
    readSettings();
    addUndoActions(m_undoGroup, *m_ui->menuEdit, *m_ui->toolBarEdit);
    new StructureActions({m_skinnedMesh, m_ui->treeSkinnedMesh}, {m_anim, m_ui->treeAnim},
                         {m_staticMesh, m_ui->treeStaticMesh}, this);
    new QuestionMenu(*m_ui->tabDatabase, this);
    addLookMenu(*m_ui->menuView);
    m_ui->menuView->addSeparator();
    m_ui->menuView->addActions({m_ui->toolBarFile->toggleViewAction(), m_ui->toolBarEdit->toggleViewAction(),
                                m_ui->dockConsole->toggleViewAction(), m_ui->dockProblems->toggleViewAction(),
                                m_ui->dockHistory->toggleViewAction(),
                                m_ui->dockServers->toggleViewAction()});
    m_ui->dockServers->setQueryAction(m_ui->actionQueryServers);
    showHistory(*m_ui->viewHistory, m_undoGroup, m_ui->actionSave->icon());
    connectPlayback();
    m_shortcuts = new Shortcuts(*m_ui->menuBar, {m_ui->viewSkinned, m_ui->viewStatic}, this);
    embedViewport(m_ui->viewSkinned, m_ui->vlviewSkinned);
    embedViewport(m_ui->viewStatic, m_ui->vlviewStatic);
    setDefaultLayout(*this);
    m_defaultLayout = saveState();
    auto *geometry = new WindowGeometry(this);
    restoreLayout(*this);
    geometry->restore();
    updateCurrentDocument();
    QTimer::singleShot(50, this, &MainWindow::OnStartSetupPaths);
    createPrompts();
    m_session = new Session(m_panes, {m_ui->tabWidget, m_ui->tabTrees}, *m_ui->animTrackFrame, this);
}

MainWindow::~MainWindow()
{
    // What is being typed goes to a document that is still there.
    if (QWidget *editor = focusWidget())
        editor->clearFocus();
    // Documents that go tell of it, to a window that is going too.
    for (const DocumentPane &each : m_panes)
        each.document->disconnect();
    Log::setSink({});
    playback() = {};
}

// --- Construction ------------------------------------------------------------------------------------------

void MainWindow::createConsole()
{
    m_console = new ConsoleLog(m_ui->listConsole, this);
    Log::setSink([this](LogSeverity severity, const QString &text) { m_console->log(severity, text); });
    m_ui->listConsole->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_ui->listConsole, &QWidget::customContextMenuRequested, this,
            &MainWindow::OnConsoleCustomContextMenu);

    m_ui->statusBar->addPermanentWidget(new ConsoleButton(*m_console, *m_ui->dockConsole, this));
}

void MainWindow::createPanes()
{
    const auto explorer = [](DocumentType type, QSplitter *splitter) {
        auto *widget = new FolderExplorer(documentKind(type));
        splitter->addWidget(widget);
        return widget;
    };
    m_panes = {{{&m_skinnedMesh,
                 m_ui->treeSkinnedMesh,
                 m_ui->pagesSkinnedMesh,
                 explorer(DocumentType::SkinnedMesh, m_ui->splitterSkinnedExplorers),
                 m_ui->viewSkinned,
                 {}},
                {&m_anim,
                 m_ui->treeAnim,
                 m_ui->pagesAnim,
                 explorer(DocumentType::Anim, m_ui->splitterSkinnedExplorers),
                 m_ui->viewSkinned,
                 {}},
                {&m_staticMesh,
                 m_ui->treeStaticMesh,
                 m_ui->pagesStaticMesh,
                 explorer(DocumentType::StaticMesh, m_ui->splitterStaticExplorer),
                 m_ui->viewStatic,
                 {}}}};
    addPages(*m_ui->pagesSkinnedMesh, m_skinnedMesh, *m_ui->treeSkinnedMesh);
    addPages(*m_ui->pagesAnim, m_anim, *m_ui->treeAnim, m_skinnedMesh);
    addPages(*m_ui->pagesStaticMesh, m_staticMesh, *m_ui->treeStaticMesh);
    m_ui->viewSkinned->setSkinnedMeshMode(true);

    for (const DocumentKind &kind : documentKinds()) {
        const DocumentType type = kind.type;
        const DocumentPane &made = pane(type);
        // A list that changed may have put another record in the place of the one that is shown.
        connect(made.document, &Document::structuresChanged, this, [this, type] { pane(type).shown = {}; });
        made.tree->setDocument(made.document);
        made.pages->setTree(made.tree);
        auto *column = static_cast<QBoxLayout *>(made.tree->parentWidget()->layout());
        auto *filter = new FilterLine(*made.tree, made.tree->parentWidget());
        filter->setAction(m_ui->actionFilter);
        made.tree->setOpenAction(m_ui->actionOpen);
        column->insertWidget(0, filter);
        m_undoGroup.addStack(made.document->undoStack());
        connect(made.document->undoStack(), &QUndoStack::cleanChanged, this, &MainWindow::OnUndoCleanChanged);
        connect(made.document, &Document::replaced, this, [this, type] { onReplaced(type); });
        connect(made.document, &Document::recordsChanged, this,
                [this, type](const QVector<RecordRef> &records) { onRecordsChanged(type, records); });
        connect(made.document, &Document::structuresChanged, this,
                [this, type] { onRecordsChanged(type, {}); });
        connect(made.tree, &KVTreeView::currentRecordChanged, this,
                [this, type](const RecordRef &record) { showInViewport(type, record); });
    }
    connect(m_ui->tabDatabase, &DatabaseTab::told, this, &MainWindow::tell);
    connect(m_files, &DocumentFiles::saved, this, &MainWindow::onSaved);
    connect(m_importExport, &ImportExport::imported, this, &MainWindow::showPane);

    auto *explorerFiles =
        new ExplorerFiles(*m_files, {m_panes[0].explorer, m_panes[1].explorer, m_panes[2].explorer},
                          m_ui->actionAnimSyncSkin, this);
    connect(explorerFiles, &ExplorerFiles::opened, this, &MainWindow::showPane);
    auto *recent = new RecentFiles(*m_files, *m_ui->menuRecent, this);
    connect(recent, &RecentFiles::opened, this, &MainWindow::showPane);
    connect(new FileDrop(this), &FileDrop::dropped, this, &MainWindow::openFiles);
}

void MainWindow::createProblems()
{
    connect(m_ui->tabDatabase, &DatabaseTab::reloaded, this,
            [this] { m_problems->setReferenceIds(m_ui->tabDatabase->ids()); });
    m_ui->dockProblems->setProblems(m_problems, {{{&m_skinnedMesh, m_ui->treeSkinnedMesh},
                                                  {&m_anim, m_ui->treeAnim},
                                                  {&m_staticMesh, m_ui->treeStaticMesh}}});
    connect(m_ui->dockProblems, &ProblemsDock::activated, this, &MainWindow::showRecord);
    m_ui->statusBar->insertPermanentWidget(0, new ProblemsButton(*m_problems, *m_ui->dockProblems, this));
}

void MainWindow::createViewMenu(const DisplayOptions &display)
{
    QMenu *menu = m_ui->menuView;
    menu->insertMenu(m_ui->actionResetCamera, display.shadingMenu());
    menu->insertActions(m_ui->actionResetCamera,
                        {display.skeleton(), display.hotPoints(), display.statistics()});
    menu->insertSeparator(m_ui->actionResetCamera);
    auto *camera = new CameraMenu(
        viewports(),
        [this] {
            const DocumentPane *current = currentPane();
            return current ? current->viewport : nullptr;
        },
        [this] {
            const DocumentPane *current = currentPane();
            return current ? m_viewSelection->selected(current->document->kind().type) : ModelSelection();
        },
        this);
    menu->insertMenu(m_ui->actionResetCamera, camera);
    for (const DocumentPane &each : m_panes)
        each.tree->addAction(camera->frameSelection());
    menu->insertAction(m_ui->actionFullScreen, m_pictures->action());
    menu->insertSeparator(m_ui->actionFullScreen);
    connect(m_pictures, &PictureSaver::told, this, &MainWindow::tell);

    m_viewSelection = new ViewSelection(m_skinnedMesh, m_staticMesh,
                                        {{{m_ui->treeSkinnedMesh, m_ui->viewSkinned},
                                          {m_ui->treeAnim, m_ui->viewSkinned},
                                          {m_ui->treeStaticMesh, m_ui->viewStatic}}},
                                        this);
    connect(m_viewSelection, &ViewSelection::picked, this, &MainWindow::showPicked);
}

void MainWindow::createViewToolBars()
{
    auto *display = new DisplayOptions(viewports(), this);
    createViewMenu(*display);
    const ViewActions actions{m_ui->actionGround, m_ui->actionTransGizmo, m_ui->actionCullBack,
                              m_ui->actionResetCamera, display->shadingMenu()};
    ViewActions skinnedActions = actions;
    skinnedActions.marks = {display->skeleton(), display->hotPoints()};
    auto *skinned = new ViewToolBar(tr("Skinned Mesh View"), skinnedActions, m_ui->viewSkinnedPanel);
    auto *rigid = new ViewToolBar(tr("Static Mesh View"), actions, m_ui->viewStaticPanel);
    m_ui->vlviewSkinned->insertWidget(0, skinned);
    m_ui->vlviewStatic->insertWidget(0, rigid);
    new ViewPreferences({skinned, rigid}, viewports(), actions, this);
    for (KVOpenGLWidget *viewport : viewports()) {
        connect(viewport, &KVOpenGLWidget::positionReadOut, this, &MainWindow::showReadOut);
        connect(viewport, &KVOpenGLWidget::contextLost, this, &MainWindow::OnContextLost);
    }
}

void MainWindow::readSettings()
{
    for (const auto *key :
         {&Settings::HideMeshData, &Settings::HideAnimData, &Settings::StaticMeshQuickSelect,
          &Settings::SkinnedMeshQuickSelect, &Settings::AnimationQuickSelect, &Settings::AnimationAutoPlay})
        key->ensure();
}

void MainWindow::connectPlayback()
{
    AnimTrackFrame *track = m_ui->animTrackFrame;
    connect(m_ui->viewSkinned, &KVOpenGLWidget::frameShown, track, &AnimTrackFrame::showFrame);
    connect(m_ui->viewSkinned, &KVOpenGLWidget::frameLabelChanged, track, &AnimTrackFrame::showLabel);
    connect(track, &AnimTrackFrame::playbackChanged, m_ui->viewSkinned, &KVOpenGLWidget::playbackChanged);
    const auto select = [this](const RecordRef &record) {
        showPane(DocumentType::Anim);
        pane(DocumentType::Anim).tree->selectRecords({record}, record);
    };
    connect(track, &AnimTrackFrame::blockChosen, this, [select](int block) {
        select({RecordKind::AnimBlock, {block}});
    });
    connect(track, &AnimTrackFrame::actionChosen, this, [select](int block, int action) {
        select({RecordKind::AnimAction, {block, action}});
    });
    track->serve(*m_ui->viewSkinnedPanel);
    track->openAnimation(nullptr);
}

void MainWindow::createPrompts()
{
    new UpdatePrompt(m_ui->actionCheckForUpdates, this);
    new ReloadPrompt(*m_files, m_ui->vlCentral, this);
    auto *recovery = new Recovery(*m_files, SnapshotStore::defaultRoot(), this);
    connect(recovery, &Recovery::restored, this, &MainWindow::showPane);
    new RecoveryPrompt(*recovery, m_ui->actionRecover, m_ui->vlCentral, this);
}

void MainWindow::paintEvent(QPaintEvent *event)
{
    QMainWindow::paintEvent(event);
    // What the first frame need not wait for.
    if (!std::exchange(m_painted, true)) {
        QTimer::singleShot(0, this, [this] {
            m_ui->tabDatabase->load();
            TemporaryFolder::removeAbandoned();
        });
    }
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    storeLayout(*this);
    QMainWindow::closeEvent(event);
}

// --- Documents ---------------------------------------------------------------------------------------------

DocumentPane *MainWindow::currentPane()
{
    if (m_ui->tabWidget->currentWidget() == m_ui->tabSkinned)
        return &pane(m_ui->tabTrees->currentIndex() == 0 ? DocumentType::SkinnedMesh : DocumentType::Anim);
    if (m_ui->tabWidget->currentWidget() == m_ui->tabStatic)
        return &pane(DocumentType::StaticMesh);
    return nullptr;
}

std::array<KVOpenGLWidget *, 2> MainWindow::viewports() const
{
    return {m_ui->viewSkinned, m_ui->viewStatic};
}

void MainWindow::showPane(DocumentType type)
{
    m_ui->tabWidget->setCurrentWidget(type == DocumentType::StaticMesh ? m_ui->tabStatic : m_ui->tabSkinned);
    if (type != DocumentType::StaticMesh)
        m_ui->tabTrees->setCurrentIndex(type == DocumentType::SkinnedMesh ? 0 : 1);
}

void MainWindow::showRecord(DocumentType type, const RecordRef &record)
{
    selectRecord(type, record);
    pane(type).tree->setFocus();
}

void MainWindow::selectRecord(DocumentType type, const RecordRef &record)
{
    showPane(type);
    KVTreeView *tree = pane(type).tree;
    tree->selectRecords({record}, record);
    if (tree->currentRecord() == record)
        return;
    tell(tree->isFiltered() ? tr("The filter above the tree hides %1.").arg(tree->label(record))
                            : tr("The tree leaves such records out. The options can make it show them."));
}

void MainWindow::showPicked(DocumentType type, const RecordRef &record)
{
    // The keys stay with the view.
    const DocumentPane *current = currentPane();
    if (!current || current->document != &m_anim)
        return selectRecord(type, record);
    // A click that gives the view the keys takes nobody away from the animation, which has bones alone.
    const int block = playback().blockIndex;
    if (record.kind == RecordKind::Bone &&
        record.index[0] < m_anim.recordCount(RecordKind::AnimBone, {block}))
        selectRecord(DocumentType::Anim, {RecordKind::AnimBone, {block, record.index[0]}});
}

void MainWindow::tell(const QString &text)
{
    statusBar()->showMessage(text, 5000);
}

void MainWindow::openFiles(const QStringList &paths)
{
    const DocumentKind *first = nullptr;
    for (const QString &path : paths) {
        const DocumentKind *kind = documentKindOfFile(path);
        if (!kind && isImportable(path)) {
            importFile(path);
        } else if (!kind) {
            QMessageBox::warning(this, tr("File error"),
                                 tr("Failed to open\n%1").arg(QDir::toNativeSeparators(path)));
        } else if (m_files->promptUnsaved(kind->type) &&
                   !m_files->open(kind->type, QFileInfo(path).absoluteFilePath()) && !first) {
            first = kind;
        }
    }
    if (first)
        showPane(first->type);
}

void MainWindow::openAtStart(const QStringList &paths)
{
    m_session->restore(paths);
    openFiles(paths);
}

void MainWindow::importFile(const QString &path)
{
    // A model on the command line comes before the question that its output folder depends on.
    OnStartSetupPaths();
    const bool toStatic = m_ui->tabWidget->currentWidget() == m_ui->tabStatic;
    m_importExport->importModel(toStatic ? DocumentType::StaticMesh : DocumentType::SkinnedMesh, path);
}

Document *MainWindow::currentDocument()
{
    const DocumentPane *current = currentPane();
    return current ? current->document : nullptr;
}

void MainWindow::updateCurrentDocument()
{
    const DocumentPane *current = currentPane();
    Document *document = currentDocument();
    const bool isOpen = document && document->isOpen();
    m_undoGroup.setActiveStack(document ? document->undoStack() : nullptr);
    for (KVOpenGLWidget *viewport : viewports())
        viewport->setActive(current && current->viewport == viewport);

    if (!current)
        statusBar()->clearMessage();
    m_ui->actionOpen->setEnabled(document);
    m_ui->actionImport->setEnabled(document);
    m_ui->actionExport->setEnabled(document);
    m_ui->actionFilter->setEnabled(document);
    m_ui->actionSave->setEnabled(isOpen);
    m_ui->actionSaveAs->setEnabled(isOpen);
    m_ui->actionRotate->setEnabled(isOpen && document != &m_anim);
    m_ui->actionScale->setEnabled(m_ui->actionRotate->isEnabled());
    m_transforms->setAvailable(m_ui->actionRotate->isEnabled());
    m_ui->actionSkinnedSaveAs->setEnabled(m_skinnedMesh.isOpen());
    const Document *model = document == &m_anim ? &m_skinnedMesh : document;
    m_pictures->setSource(model && model->isOpen() ? current->viewport : nullptr,
                          model ? model->fileName() : QString());
    m_ui->actionAnimSaveAs->setEnabled(m_anim.isOpen());
    m_ui->actionSaveAll->setEnabled(std::any_of(
        m_panes.begin(), m_panes.end(), [](const DocumentPane &each) { return each.document->isOpen(); }));
    setWindowTitle(isOpen ? QStringLiteral("Korvane - ") + document->fileName() +
                                (document->isModified() ? QStringLiteral(" * ") : QString())
                          : QStringLiteral("Korvane"));
}

void MainWindow::showReadOut(const QString &text)
{
    // Tips and notes of others are left to be read.
    const QString message = statusBar()->currentMessage();
    if (message.isEmpty() || message == m_readOut)
        statusBar()->showMessage(text);
    m_readOut = text;
}

void MainWindow::onReplaced(DocumentType type)
{
    DocumentPane &replaced = pane(type);
    switch (type) {
    case DocumentType::SkinnedMesh:
        playback().mesh = &m_skinnedMesh.model();
        m_ui->viewSkinned->setSkinnedMesh(&m_skinnedMesh.model());
        break;
    case DocumentType::Anim:
        m_ui->animTrackFrame->openAnimation(&m_anim.model());
        break;
    case DocumentType::StaticMesh:
        m_ui->viewStatic->setStaticMesh(&m_staticMesh.model());
        break;
    }
    replaced.explorer->setLoadedPath(replaced.document->path());
    updateCurrentDocument();
}

void MainWindow::onSaved(DocumentType type)
{
    const DocumentPane &written = pane(type);
    written.explorer->setLoadedPath(written.document->path());
    if (!written.explorer->selectPath(written.document->path())) {
        written.explorer->refill();
        written.explorer->selectPath(written.document->path());
    }
    updateCurrentDocument();
}

void MainWindow::onRecordsChanged(DocumentType type, const QVector<RecordRef> &records)
{
    refreshChanged(*pane(type).viewport, records);
    if (type == DocumentType::Anim)
        m_ui->animTrackFrame->updateRange();
}

void MainWindow::showInViewport(DocumentType type, const RecordRef &record)
{
    m_viewSelection->mark(type);
    DocumentPane &shown = pane(type);
    const bool isNew = shown.shown != record;
    shown.shown = record;
    switch (type) {
    case DocumentType::SkinnedMesh:
        markRecord(*shown.viewport, m_skinnedMesh.model(), record);
        break;
    case DocumentType::Anim: {
        markRecord(*shown.viewport, m_anim.model(), record);
        const bool underBlock = record.kind != RecordKind::None && record.kind != RecordKind::AnimFile;
        const int block = record.index[0];
        if (underBlock && isNew && (record.kind == RecordKind::AnimBlock || block != playback().blockIndex))
            m_ui->animTrackFrame->selectBlock(block);
        break;
    }
    case DocumentType::StaticMesh:
        markRecord(*shown.viewport, m_staticMesh.model(), record);
        break;
    }
}
