// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ExplorerFiles.h"

#include "DocumentFiles.h"
#include "FolderExplorer.h"
#include "Settings.h"
#include "Shortcuts.h"

#include <QAction>
#include <QApplication>

ExplorerFiles::ExplorerFiles(DocumentFiles &files, const std::array<FolderExplorer *, 3> &explorers,
                             QObject *parent)
    : QObject(parent)
    , m_files(files)
    , m_explorers(explorers)
{
    for (const DocumentKind &kind : documentKinds()) {
        const DocumentType type = kind.type;
        // Queued: a question asked from within the selection's change would swallow the mouse's release.
        connect(
            &explorer(type), &FolderExplorer::fileChosen, this,
            [this, type](const QString &path) { open(type, path); }, Qt::QueuedConnection);
    }
    // One for all explorers.
    auto *emptyFolders = new QAction(tr("Show Emp&ty Folders"), this);
    emptyFolders->setObjectName(QStringLiteral("actionExplorerEmptyFolders"));
    emptyFolders->setToolTip(tr("Show folders that hold no file for the list, too"));
    emptyFolders->setStatusTip(emptyFolders->toolTip());
    emptyFolders->setCheckable(true);
    emptyFolders->setChecked(Settings::ExplorerEmptyFolders.value());
    emptyFolders->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    nameShortcut(emptyFolders, emptyFolders->objectName(),
                 QCoreApplication::translate("FolderExplorer", "Folders"), QString());
    for (FolderExplorer *each : m_explorers) {
        each->addAction(emptyFolders);
        each->addMenuAction(emptyFolders);
    }
    connect(emptyFolders, &QAction::triggered, this, &ExplorerFiles::OnActionEmptyFolders);
}

void ExplorerFiles::OnOptionsAccepted()
{
    for (FolderExplorer *each : m_explorers)
        each->followOptions();
}

void ExplorerFiles::OnActionEmptyFolders(bool on)
{
    Settings::ExplorerEmptyFolders.setValue(on);
    for (FolderExplorer *each : m_explorers)
        each->showEmptyFolders(on);
}

void ExplorerFiles::on_actionRefreshExplorers_triggered()
{
    for (FolderExplorer *each : m_explorers)
        each->refill();
}

void ExplorerFiles::open(DocumentType type, const QString &path)
{
    // Picked while the question about an earlier pick was still open.
    if (QApplication::activeModalWidget())
        return;
    if (!m_files.promptUnsaved(type)) {
        explorer(type).selectPath(m_files.document(type)->path());
        return;
    }
    // The answer may have saved another file, which was selected then. The selection stays on one that cannot
    // be read, too: the arrow keys would never get past it.
    explorer(type).selectPath(path);
    emit mayComeNext({});
    m_files.open(type, path, [this, type, path](DocumentFiles::Outcome outcome) {
        if (outcome != DocumentFiles::Outcome::GivenUp)
            emit mayComeNext(neighbours(type, path));
        if (outcome == DocumentFiles::Outcome::Opened)
            emit opened(type);
        else if (outcome == DocumentFiles::Outcome::GivenUp)
            explorer(type).selectPath(m_files.document(type)->path());
    });
}

QStringList ExplorerFiles::neighbours(DocumentType type, const QString &path)
{
    const QStringList files = explorer(type).files();
    const int row = files.indexOf(path);
    QStringList beside;
    if (row >= 0)
        beside << files.value(row + 1) << files.value(row - 1);
    beside.removeAll(QString());
    return beside;
}
