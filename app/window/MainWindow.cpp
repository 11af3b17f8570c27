// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "AboutDialog.h"
#include "AnimationCommands.h"
#include "AnimationFollower.h"
#include "BrowserPane.h"
#include "CommandPalette.h"
#include "ConsoleButton.h"
#include "ConsoleLog.h"
#include "ControlsDialog.h"
#include "DocumentFiles.h"
#include "DocumentPanes.h"
#include "DocumentTitle.h"
#include "ExplorerFiles.h"
#include "FileComparison.h"
#include "FileReplacing.h"
#include "FilterLine.h"
#include "FlightCommands.h"
#include "FolderExplorer.h"
#include "HistoryView.h"
#include "Icons.h"
#include "ImportExport.h"
#include "LoadingSign.h"
#include "MaterialsPane.h"
#include "ModPacking.h"
#include "ModelShaping.h"
#include "ModelTransforms.h"
#include "NamedFiles.h"
#include "PaneKeys.h"
#include "PictureSaver.h"
#include "Playback.h"
#include "Preferences.h"
#include "Problems.h"
#include "ProblemsButton.h"
#include "RecentFiles.h"
#include "RecordDocks.h"
#include "RecoveryPrompt.h"
#include "ReloadPrompt.h"
#include "Session.h"
#include "Shortcuts.h"
#include "StructureActions.h"
#include "TemporaryFolder.h"
#include "TextureWatch.h"
#include "TexturesAhead.h"
#include "TimelineEdits.h"
#include "UndoActions.h"
#include "UpdatePrompt.h"
#include "ViewMenu.h"
#include "ViewportNotice.h"
#include "WhereUsed.h"
#include "WindowGeometry.h"
#include "WindowLayout.h"
#include "ui_MainWindow.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QTimer>

#include <array>
#include <utility>

namespace {
constexpr int StartPatience = 250; // milliseconds
} // namespace

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_ui(std::make_unique<Ui::MainWindow>())
    , m_skinnedMesh(DocumentType::SkinnedMesh, RecordKind::SkinnedMesh)
    , m_anim(DocumentType::Anim, RecordKind::AnimFile)
    , m_staticMesh(DocumentType::StaticMesh, RecordKind::StaticMesh)
    , m_files(new DocumentFiles({&m_skinnedMesh, &m_anim, &m_staticMesh}, this))
    , m_transforms(new ModelTransforms(m_skinnedMesh, m_staticMesh, this))
    , m_importExport(new ImportExport(m_skinnedMesh, m_anim, m_staticMesh, *m_files, this))
    , m_problems(new Problems(m_skinnedMesh, m_anim, m_staticMesh, this))
    , m_pictures(new PictureSaver(m_skinnedMesh, m_anim, m_staticMesh, this))
{
    m_ui->setupUi(this);
    setNamedIcons(*this);
    for (QAction *action : findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!action->objectName().isEmpty())
            action->setStatusTip(action->toolTip());
    }
    createConsole();
    createDocuments();
    createDocks();
    m_title =
        new DocumentTitle({&m_skinnedMesh, &m_anim, &m_staticMesh}, *m_ui->tabWidget, *m_ui->tabTrees, this);
    m_ui->statusBar->insertPermanentWidget(0, m_title);
    new ViewMenu(*m_ui, *m_panes, m_pictures->action(), this);
    readSettings();
    addUndoActions(m_undoGroup, *m_files, *m_ui->menuEdit, *m_ui->toolBarEdit);
    const auto *structure =
        new StructureActions({m_skinnedMesh, m_ui->treeSkinnedMesh}, {m_anim, m_ui->treeAnim},
                             {m_staticMesh, m_ui->treeStaticMesh}, this);
    new ModelShaping(*m_ui, *m_panes, m_skinnedMesh, m_anim, m_staticMesh, *structure, this);
    new TimelineEdits(m_anim, *m_panes, *m_ui->animTrackFrame, *structure->menu(DocumentType::Anim));
    auto *animations = new AnimationCommands(m_anim, m_skinnedMesh, *m_ui->treeAnim, this);
    animations->addTo(*m_ui->menuEdit, *m_ui->actionScale);
    animations->addToContext(*structure->menu(DocumentType::Anim));
    connect(animations, &AnimationCommands::documentWanted, m_panes, &DocumentPanes::showPane);
    new WhereUsed(*m_ui, *m_files, *m_panes, m_skinnedMesh, m_anim, m_staticMesh, *structure, this);
    new BrowserPane(*m_ui, *m_files, *m_panes, this);
    m_paneKeys = new PaneKeys(*m_ui, this);
    m_ui->menuView->insertMenu(m_ui->actionFullScreen, m_paneKeys);
    m_importExport->addExports(*m_ui->menuFile, *m_ui->actionExport, *m_ui->treeAnim);
    new FileReplacing(*m_files, m_ui->menuEdit, m_ui->statusBar, this);
    // All actions are there by now.
    m_shortcuts = new Shortcuts(*m_ui->menuBar, flightCommands({m_ui->viewSkinned, m_ui->viewStatic}), this);
    m_preferences = new Preferences(*m_shortcuts, this);
    m_named = new NamedFiles(*m_files, *m_importExport, *m_preferences, *m_panes, this);
    m_layout = new WindowLayout(this);
    auto *geometry = new WindowGeometry(this);
    m_layout->restore();
    geometry->restore();
    connectActions();
    updateCurrentDocument();
    QTimer::singleShot(50, m_preferences, &Preferences::OnStartSetupPaths);
    createPrompts();
    m_session = new Session(*m_files, m_panes->all(), {m_ui->tabWidget, m_ui->tabTrees},
                            *m_ui->animTrackFrame, *m_materials, this);
    connect(m_named, &NamedFiles::materialsNamed, m_materials,
            [this](const QString &path) { m_materials->open(path); });
    // The graphics driver is waited for. The threads that read folders could not begin before.
    embedViewport(m_ui->viewSkinned, m_ui->vlviewSkinned);
    embedViewport(m_ui->viewStatic, m_ui->vlviewStatic);
    m_explorerFiles->on_actionRefreshExplorers_triggered();
}

MainWindow::~MainWindow()
{
    // What is being typed goes to a document that is still there.
    if (QWidget *editor = focusWidget())
        editor->clearFocus();
    delete m_materials; // the dock loses the keys once more
    // Documents that go tell of it, to a window that is going too.
    for (const DocumentPane &each : m_panes->all())
        each.document->disconnect();
    Log::setSink({});
    playback() = {};
}

// --- Construction ------------------------------------------------------------------------------------------

void MainWindow::createConsole()
{
    m_console = new ConsoleLog(m_ui->listConsole, this);
    m_console->setClearAction(m_ui->actionConsoleClear);
    Log::setSink([this](LogSeverity severity, const QString &text) { m_console->log(severity, text); });
    m_ui->statusBar->addPermanentWidget(new ConsoleButton(*m_console, *m_ui->dockConsole, this));
}

void MainWindow::createDocuments()
{
    const auto explorer = [](DocumentType type, QSplitter *splitter) {
        auto *made = new FolderExplorer(documentKind(type));
        splitter->addWidget(made);
        return made;
    };
    const std::array<FolderExplorer *, 3> explorers{
        explorer(DocumentType::SkinnedMesh, m_ui->splitterSkinnedExplorers),
        explorer(DocumentType::Anim, m_ui->splitterSkinnedExplorers),
        explorer(DocumentType::StaticMesh, m_ui->splitterStaticExplorer)};
    m_panes = new DocumentPanes(
        {{{&m_skinnedMesh, m_ui->treeSkinnedMesh, m_ui->pagesSkinnedMesh, explorers[0], m_ui->viewSkinned},
          {&m_anim, m_ui->treeAnim, m_ui->pagesAnim, explorers[1], m_ui->viewSkinned},
          {&m_staticMesh, m_ui->treeStaticMesh, m_ui->pagesStaticMesh, explorers[2], m_ui->viewStatic}}},
        m_skinnedMesh, m_anim, m_staticMesh,
        {m_ui->tabWidget, m_ui->tabSkinned, m_ui->tabStatic, m_ui->tabTrees, m_ui->stackSkinned},
        *m_ui->animTrackFrame, this);
    connect(m_panes, &DocumentPanes::told, this, &MainWindow::tell);
    connect(m_pictures, &PictureSaver::told, this, &MainWindow::tell);
    for (const KVOpenGLWidget *viewport : m_panes->viewports())
        connect(viewport, &KVOpenGLWidget::contextLost, this, &MainWindow::OnContextLost);
    connect(m_panes, &DocumentPanes::currentChanged, this, &MainWindow::updateCurrentDocument);
    for (const DocumentPane &each : m_panes->all()) {
        auto *filter = new FilterLine(*each.tree, each.tree->parentWidget());
        filter->setAction(m_ui->actionFilter);
        static_cast<QBoxLayout *>(each.tree->parentWidget()->layout())->insertWidget(0, filter);
        each.tree->setOpenAction(m_ui->actionOpen);
        m_undoGroup.addStack(each.document->undoStack());
        connect(each.document->undoStack(), &QUndoStack::cleanChanged, this, &MainWindow::OnUndoCleanChanged);
        connect(each.document, &Document::replaced, this, &MainWindow::updateCurrentDocument);
    }
    connect(m_files, &DocumentFiles::opened, m_panes, &DocumentPanes::OnOpened);
    connect(m_files, &DocumentFiles::saved, m_panes, &DocumentPanes::OnSaved);
    connect(m_files, &DocumentFiles::saved, this, &MainWindow::updateCurrentDocument);
    connect(m_importExport, &ImportExport::cameToFront, m_panes, &DocumentPanes::showOpened);

    m_explorerFiles = new ExplorerFiles(*m_files, explorers, this);
    const auto *follower =
        new AnimationFollower(*m_files, *explorers[1], *m_ui->actionAnimSyncSkin, *m_ui->vlviewSkinned, this);
    connect(follower, &AnimationFollower::posed, m_panes, &DocumentPanes::OnPosed);
    connect(m_explorerFiles, &ExplorerFiles::opened, m_panes, &DocumentPanes::showOpened);
    connect(m_explorerFiles, &ExplorerFiles::mayComeNext, new NeighboursAhead(this),
            &NeighboursAhead::expect);
    connect(m_ui->actionRefreshExplorers, &QAction::triggered, m_explorerFiles,
            &ExplorerFiles::on_actionRefreshExplorers_triggered);
    addLoadingSigns(*m_files, *m_ui->viewSkinned, *m_ui->viewStatic, *m_ui->statusBar);
    auto *recent = new RecentFiles(*m_files, *m_ui->menuRecent, this);
    connect(recent, &RecentFiles::opened, m_panes, &DocumentPanes::showOpened);
}

void MainWindow::readSettings()
{
    for (const auto *key :
         {&Settings::HideMeshData, &Settings::HideAnimData, &Settings::StaticMeshQuickSelect,
          &Settings::SkinnedMeshQuickSelect, &Settings::AnimationQuickSelect, &Settings::AnimationAutoPlay})
        key->ensure();
}

void MainWindow::createDocks()
{
    m_ui->statusBar->insertPermanentWidget(0, new ProblemsButton(*m_problems, *m_ui->dockProblems, this));
    m_ui->dockCompare->setComparison(new FileComparison(m_skinnedMesh, m_anim, m_staticMesh, this), *m_files,
                                     m_ui->actionCompare, m_ui->actionCompareOther);
    connect(m_ui->dockCompare, &CompareDock::activated, m_panes, &DocumentPanes::showRecord);
    connect(m_ui->tabDatabase, &DatabaseTab::told, this, &MainWindow::tell);
    connect(m_ui->tabDatabase, &DatabaseTab::namesChanged, m_problems, &Problems::loadReferenceIds);
    connect(m_ui->tabDatabase, &DatabaseTab::namesChanged, m_panes, &DocumentPanes::OnNamesChanged);
    wireRecordDocks(*m_ui, *m_panes, *m_problems, *m_files, *this);
    m_ui->dockServers->setQueryAction(m_ui->actionQueryServers);
    m_materials = new MaterialsPane(
        *m_ui->dockMaterials, m_undoGroup, *m_files, m_panes->materials(),
        {m_ui->actionSave, m_ui->actionSaveAs, m_ui->actionSaveToMod, m_ui->actionSaveAll}, this);
    connect(m_materials, &MaterialsPane::activeChanged, this, &MainWindow::updateCurrentDocument);
    showHistory(*m_ui->viewHistory, m_undoGroup, *m_files, m_ui->actionSave->icon());
}

void MainWindow::createPrompts()
{
    new UpdatePrompt(m_ui->actionCheckForUpdates, this);
    new ReloadPrompt(*m_files, m_ui->vlCentral, this);
    auto *recovery = new Recovery(*m_files, SnapshotStore::defaultRoot(), this);
    connect(recovery, &Recovery::restored, m_panes, &DocumentPanes::showOpened);
    recovery->add(m_materials->work());
    new RecoveryPrompt(*recovery, m_ui->actionRecover, m_ui->vlCentral, this);
}

void MainWindow::connectActions()
{
    const auto wire = [](const QAction *action, auto *receiver, auto slot) {
        connect(action, &QAction::triggered, receiver, slot);
    };
    wire(m_ui->actionOpen, m_files, &DocumentFiles::on_actionOpen_triggered);
    wire(m_ui->actionSkinnedSaveAs, m_files, &DocumentFiles::on_actionSkinnedSaveAs_triggered);
    wire(m_ui->actionAnimSaveAs, m_files, &DocumentFiles::on_actionAnimSaveAs_triggered);
    // What an import writes depends on the folders.
    wire(m_ui->actionImport, m_preferences, &Preferences::OnStartSetupPaths);
    wire(m_ui->actionImport, m_importExport, &ImportExport::on_actionImport_triggered);
    wire(m_ui->actionExport, m_importExport, &ImportExport::on_actionExport_triggered);
    wire(m_ui->actionPackMod, new ModPacking(*m_files, m_materials->work(), this),
         &ModPacking::on_actionPackMod_triggered);
    wire(m_ui->actionRotate, m_transforms, &ModelTransforms::on_actionRotate_triggered);
    wire(m_ui->actionScale, m_transforms, &ModelTransforms::on_actionScale_triggered);
    wire(m_ui->actionPreferences, m_preferences, &Preferences::on_actionPreferences_triggered);
    wire(m_ui->actionFullScreen, m_layout, &WindowLayout::on_actionFullScreen_triggered);
    wire(m_ui->actionResetLayout, m_layout, &WindowLayout::on_actionResetLayout_triggered);
    auto *textures = new TextureWatch(m_skinnedMesh, m_staticMesh, m_panes->viewports(), this);
    wire(m_ui->actionRefreshExplorers, textures, &TextureWatch::reload);
    connect(m_preferences, &Preferences::foldersChanged, textures, &TextureWatch::reload);
    connect(textures, &TextureWatch::reloaded, m_problems, &Problems::recheck);
    connect(textures, &TextureWatch::reloaded, m_panes, &DocumentPanes::OnMaterialsChanged);
    connect(textures, &TextureWatch::reloaded, m_ui->dockUv, &UvDock::reload);
    connect(textures, &TextureWatch::reloaded, m_ui->dockUsedBy, &UsedByDock::refresh);
    connect(textures, &TextureWatch::reloaded, m_ui->dockBrowser, &BrowserDock::refresh);
    connect(m_preferences, &Preferences::accepted, m_panes, &DocumentPanes::OnOptionsAccepted);
    connect(m_preferences, &Preferences::accepted, m_explorerFiles, &ExplorerFiles::OnOptionsAccepted);
    connect(m_panes, &DocumentPanes::currentChanged, m_layout,
            [this] { m_layout->setModelShown(m_panes->current()); });
}

bool MainWindow::focusNextPrevChild(bool next)
{
    return m_paneKeys && m_paneKeys->focusNext(next);
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
    m_files->finishAllTyping();
    m_files->finishAllSaving();
    m_layout->store();
    QMainWindow::closeEvent(event);
}

// --- Documents ---------------------------------------------------------------------------------------------

void MainWindow::openFiles(const QStringList &paths)
{
    m_named->open(paths);
}

void MainWindow::openAtStart(const QStringList &paths)
{
    // Before its first picture the window can wait for what is to be in it.
    m_files->setPatience(std::max(StartPatience, DocumentLoader::usualPatience()));
    m_session->restore(paths);
    for (const DocumentPane &each : m_panes->all()) {
        if (each.document->isOpen() && each.viewport == m_panes->currentViewport())
            each.viewport->setFocus();
    }
    openFiles(paths);
    m_files->setPatience(DocumentLoader::usualPatience());
}

void MainWindow::updateCurrentDocument()
{
    Document *document = m_panes->currentDocument();
    const bool isOpen = document && document->isOpen();
    m_ui->dockTable->setCurrent(document);
    m_ui->dockFind->setCurrent(document);
    m_undoGroup.setActiveStack(document ? document->undoStack() : nullptr);
    m_files->setCurrent(document);
    m_importExport->setCurrent(document);
    m_transforms->setCurrent(document);
    const Document *model = document == &m_anim ? &m_skinnedMesh : document;
    m_pictures->setSource(model && model->isOpen() ? m_panes->currentViewport() : nullptr,
                          model ? model->fileName() : QString());
    if (!document)
        statusBar()->clearMessage();

    for (QAction *action : {m_ui->actionOpen, m_ui->actionImport, m_ui->actionExport, m_ui->actionFilter})
        action->setEnabled(document);
    m_ui->actionCompare->setEnabled(isOpen);
    m_ui->actionSave->setEnabled(isOpen);
    m_ui->actionSaveAs->setEnabled(isOpen);
    m_ui->actionSaveToMod->setEnabled(isOpen);
    m_ui->actionRotate->setEnabled(m_transforms->isAvailable());
    m_ui->actionScale->setEnabled(m_transforms->isAvailable());
    m_ui->actionSkinnedSaveAs->setEnabled(m_skinnedMesh.isOpen());
    m_ui->actionAnimSaveAs->setEnabled(m_anim.isOpen());
    m_ui->actionSaveAll->setEnabled(m_skinnedMesh.isOpen() || m_anim.isOpen() || m_staticMesh.isOpen());
    m_title->show(isOpen ? document : nullptr);
    m_materials->update();
}

void MainWindow::OnUndoCleanChanged()
{
    updateCurrentDocument();
}

// --- The window --------------------------------------------------------------------------------------------

void MainWindow::tell(const QString &text)
{
    statusBar()->showMessage(text, 5000);
}

void MainWindow::on_actionExit_triggered()
{
    close();
}

void MainWindow::on_actionCommands_triggered()
{
    const DocumentPane *current = m_panes->current();
    CommandPalette palette(*m_ui->menuBar, current ? current->tree->actions() : QList<QAction *>(), this);
    palette.add(m_shortcuts->commands());
    palette.exec();
}

void MainWindow::on_actionControls_triggered()
{
    ControlsDialog dialog(*m_shortcuts, this);
    dialog.exec();
}

void MainWindow::on_actionAbout_triggered()
{
    AboutDialog dialog(this);
    dialog.exec();
}

// The context that puts the window together shares with the viewports' and is lost with them; only a new
// native window has a new one.
void MainWindow::OnContextLost()
{
    const QPoint place = pos(); // a window manager would choose another
    hide();
    destroy();
    for (KVOpenGLWidget *viewport : m_panes->viewports())
        viewport->renewContext();
    if (!(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
        move(place);
    show();
}
