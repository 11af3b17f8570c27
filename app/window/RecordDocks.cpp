// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordDocks.h"

#include "DocumentPanes.h"
#include "MaterialCatalog.h"
#include "ui_MainWindow.h"

#include <QStatusBar>

void wireRecordDocks(const Ui::MainWindow &ui, DocumentPanes &panes, Problems &problems, DocumentFiles &files,
                     QMainWindow &window)
{
    std::array<Document *, 3> documents{};
    std::array<KVTreeView *, 3> trees{};
    std::array<ProblemsDock::Listed, 3> listed{};
    for (size_t i = 0; i < documents.size(); ++i) {
        documents[i] = panes.all()[i].document;
        trees[i] = panes.all()[i].tree;
        listed[i] = {documents[i], trees[i]};
    }
    const auto tell = [bar = window.statusBar()](const QString &text) { bar->showMessage(text, 5000); };
    ui.dockProblems->setProblems(&problems, listed, files);
    ui.menuTools->insertAction(ui.actionAnimSyncSkin, ui.dockProblems->wholeMod());
    QObject::connect(ui.dockProblems, &ProblemsDock::activated, &panes, &DocumentPanes::showRecord);
    QObject::connect(ui.dockProblems, &ProblemsDock::materialsWanted, &panes,
                     [&panes](const QString &path) { panes.materials().open(path, {}); });
    QObject::connect(ui.dockProblems, &ProblemsDock::told, &window, tell);
    ui.dockTable->setDocuments(documents, trees);
    QObject::connect(ui.dockTable, &TableDock::activated, &panes, &DocumentPanes::showRecord);
    QObject::connect(ui.dockTable, &TableDock::told, &window, tell);
    ui.dockFind->setDocuments(documents, trees, {ui.actionFind, ui.actionFindNext, ui.actionFindPrevious});
    QObject::connect(ui.dockFind, &FindDock::activated, &panes, &DocumentPanes::showRecord);
    QObject::connect(ui.dockFind, &FindDock::shown, &panes, &DocumentPanes::selectRecord);
    QObject::connect(ui.dockFind, &FindDock::documentWanted, &panes, &DocumentPanes::showPane);
    QObject::connect(ui.dockFind, &FindDock::told, &window, tell);
}
