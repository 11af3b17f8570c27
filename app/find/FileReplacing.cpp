// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileReplacing.h"

#include "DocumentFiles.h"
#include "FileRun.h"
#include "FileRunsDialog.h"
#include "Icons.h"
#include "ReplaceFilesDialog.h"
#include "Settings.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QStatusBar>
#include <QToolButton>

#include <algorithm>

FileReplacing::FileReplacing(DocumentFiles &files, QMenu *menu, QStatusBar *bar, QWidget *window)
    : QObject(window)
    , m_files(files)
    , m_window(window)
    , m_brokenOff(new QToolButton(window))
{
    const QList<QAction *> actions = menu->actions();
    const auto found = std::find_if(actions.begin(), actions.end(), [](const QAction *action) {
        return action->objectName() == QLatin1String("actionFindPrevious");
    });
    QAction *behind = found == actions.end() || found + 1 == actions.end() ? nullptr : *(found + 1);
    const auto add = [&](const char *name, const QString &text, const QString &tip,
                         void (FileReplacing::*slot)()) {
        auto *action = new QAction(text, window);
        action->setObjectName(QLatin1String(name));
        action->setToolTip(tip);
        action->setStatusTip(tip);
        menu->insertAction(behind, action);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    add("actionReplaceInFiles", tr("Replace in Files…"),
        tr("Give records in all files of the mod other values, after a list of what would change"),
        &FileReplacing::on_actionReplaceInFiles_triggered)
        ->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+H")));
    add("actionFileRuns", tr("Replacements in Files…"), tr("List what was replaced in files, to undo it"),
        &FileReplacing::on_actionFileRuns_triggered);

    m_brokenOff->setObjectName(QStringLiteral("btnRunBrokenOff"));
    m_brokenOff->setIcon(namedIcon(QStringLiteral("warning")));
    m_brokenOff->setText(tr("Replacement broken off"));
    m_brokenOff->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_brokenOff->setAutoRaise(true);
    m_brokenOff->hide();
    bar->addPermanentWidget(m_brokenOff);
    connect(m_brokenOff, &QToolButton::clicked, this, &FileReplacing::on_actionFileRuns_triggered);
    offer();
}

void FileReplacing::offer()
{
    // Their lists may be long.
    m_work.start(
        [](const Background::Cancelled &) {
            std::vector<FileRun> runs = FileRun::all(FileRun::defaultRoot());
            // One that another program is at work on is not broken off.
            const auto broken = std::find_if(runs.begin(), runs.end(),
                                             [](FileRun &run) { return run.isBrokenOff() && run.hold(); });
            return broken == runs.end() ? std::pair<int, QString>()
                                        : std::pair(broken->count(), broken->title());
        },
        [this](const std::pair<int, QString> &broken) {
            m_brokenOff->setVisible(broken.first > 0);
            m_brokenOff->setToolTip(
                tr("A replacement in %1 files was broken off: %2\nLists the replacements, to end or undo it")
                    .arg(QString::number(broken.first), broken.second));
        });
}

void FileReplacing::on_actionReplaceInFiles_triggered()
{
    ReplaceFilesDialog dialog(m_files, Settings::OutputDir.value(), m_window);
    connect(&dialog, &ReplaceFilesDialog::runsWanted, this, &FileReplacing::on_actionFileRuns_triggered);
    connect(&dialog, &ReplaceFilesDialog::filesChanged, this, &FileReplacing::reload);
    dialog.exec();
    offer();
}

void FileReplacing::on_actionFileRuns_triggered()
{
    FileRunsDialog dialog(m_window);
    connect(&dialog, &FileRunsDialog::filesChanged, this, &FileReplacing::reload);
    dialog.exec();
    offer();
}

/// Documents follow their files, but for those that have changes of their own.
void FileReplacing::reload(const QStringList &paths)
{
    for (const DocumentType type :
         {DocumentType::SkinnedMesh, DocumentType::Anim, DocumentType::StaticMesh}) {
        const Document &document = *m_files.document(type);
        const bool isAmong = std::any_of(paths.begin(), paths.end(), [&](const QString &path) {
            return QFileInfo(path) == QFileInfo(document.path());
        });
        if (isAmong && !document.path().isEmpty() && !document.differsFromFile())
            m_files.reload(type, [](DocumentFiles::Outcome) {});
    }
}
