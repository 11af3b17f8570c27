// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordDocks.h"

#include "DocumentPanes.h"
#include "ui_MainWindow.h"

#include <QStatusBar>

void wireRecordDocks(const Ui::MainWindow &ui, DocumentPanes &panes, QMainWindow &window)
{
    std::array<Document *, 3> documents{};
    std::array<KVTreeView *, 3> trees{};
    for (size_t i = 0; i < documents.size(); ++i) {
        documents[i] = panes.all()[i].document;
        trees[i] = panes.all()[i].tree;
    }
    const auto tell = [bar = window.statusBar()](const QString &text) { bar->showMessage(text, 5000); };
    ui.dockTable->setDocuments(documents, trees);
    QObject::connect(ui.dockTable, &TableDock::activated, &panes, &DocumentPanes::showRecord);
    QObject::connect(ui.dockTable, &TableDock::told, &window, tell);
    ui.dockFind->setDocuments(documents, trees, {ui.actionFind, ui.actionFindNext, ui.actionFindPrevious});
    QObject::connect(ui.dockFind, &FindDock::activated, &panes, &DocumentPanes::showRecord);
    QObject::connect(ui.dockFind, &FindDock::shown, &panes, &DocumentPanes::selectRecord);
    QObject::connect(ui.dockFind, &FindDock::documentWanted, &panes, &DocumentPanes::showPane);
    QObject::connect(ui.dockFind, &FindDock::told, &window, tell);
}
