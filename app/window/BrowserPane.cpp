// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BrowserPane.h"

#include "DocumentFiles.h"
#include "DocumentPanes.h"
#include "FileMenu.h"
#include "FileOpener.h"
#include "FilePalette.h"
#include "IndexKeeper.h"
#include "KVOpenGLWidget.h"
#include "MaterialCatalog.h"
#include "ui_MainWindow.h"

#include <QStatusBar>

BrowserPane::BrowserPane(const Ui::MainWindow &ui, DocumentFiles &files, DocumentPanes &panes,
                         QWidget *window)
    : QObject(window)
    , m_ui(ui)
    , m_panes(panes)
    , m_opener(new FileOpener(files, this))
    , m_window(window)
{
    BrowserDock *dock = m_ui.dockBrowser;
    connect(dock, &BrowserDock::fileWanted, this, &BrowserPane::open);
    connect(dock, &BrowserDock::left, this, &BrowserPane::leave);
    connect(dock, &BrowserDock::optionsWanted, m_ui.actionPreferences, &QAction::trigger,
            Qt::QueuedConnection);
    connect(dock, &BrowserDock::told, m_ui.statusBar,
            [bar = m_ui.statusBar](const QString &text) { bar->showMessage(text, 5000); });
    connect(m_opener, &FileOpener::opened, this,
            [this](DocumentType type, const RecordRef &) { m_panes.showOpened(type); });
    connect(
        m_opener, &FileOpener::materialsWanted, this,
        [this](const QString &path) { m_panes.materials().open(path, {}); }, Qt::QueuedConnection);
    connect(m_ui.actionGoToFile, &QAction::triggered, this, &BrowserPane::goToFile);
    dock->menu()->addAction(m_ui.actionWhereUsed);

    IndexKeeper &keeper = m_ui.dockUsedBy->keeper();
    connect(dock, &BrowserDock::indexWanted, &keeper, &IndexKeeper::refresh);
    connect(dock, &BrowserDock::indexGivenUp, &keeper, &IndexKeeper::giveUp);
    connect(&keeper, &IndexKeeper::changed, dock,
            [dock, &keeper] { dock->setIndex(keeper.index(), keeper.isRunning()); });
    connect(&files, &DocumentFiles::saved, dock, &BrowserDock::refresh);
}

void BrowserPane::open(const QString &path)
{
    m_opener->open(path, {});
}

void BrowserPane::goToFile()
{
    BrowserDock *dock = m_ui.dockBrowser;
    FilePalette palette(dock->catalog(), dock->thumbnails(), m_window);
    if (palette.exec() == QDialog::Accepted)
        dock->open(palette.path());
}

void BrowserPane::leave()
{
    if (const DocumentPane *pane = m_panes.current())
        pane->viewport->setFocus();
}
