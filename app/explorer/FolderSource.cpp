// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderSource.h"

#include "DocumentKind.h"
#include "Files.h"
#include "FolderAction.h"
#include "FolderChooser.h"

#include <QDir>
#include <QMenu>

#include <utility>

QString ownFolder(const DocumentKind &kind, FolderSource source)
{
    const QString root = normalizedFolder(source == FolderSource::Game  ? Settings::GamePath.value()
                                          : source == FolderSource::Mod ? Settings::OutputDir.value()
                                                                        : QString());
    if (root.isEmpty())
        return {};
    const QString own = QDir(root).filePath(kind.gameFolder);
    return Files::isFolder(own) ? own : root;
}

FolderSwitch::FolderSwitch(const DocumentKind &kind, QWidget &explorer, const FolderNames &names,
                           QAction *change)
    : m_kind(kind)
{
    setObjectName(names.of("btn%1FolderSource"));
    setPopupMode(QToolButton::InstantPopup);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    setAutoRaise(true);
    auto *menu = new QMenu(this);
    menu->setObjectName(names.of("menu%1FolderSource"));
    menu->setToolTipsVisible(true);
    m_choices = {
        {FolderSource::Game, addFolderAction(explorer, names, "Game", "folder", tr("&Game Folder"), {})},
        {FolderSource::Mod, addFolderAction(explorer, names, "Mod", "folder", tr("&Mod Folder"), {})},
        {FolderSource::Other, addFolderAction(explorer, names, "Other", "folder", tr("&Other Folder"), {})}};
    for (const Choice &choice : qAsConst(m_choices)) {
        choice.action->setCheckable(true);
        menu->addAction(choice.action);
        connect(choice.action, &QAction::triggered, this, [this, source = choice.source] {
            m_source = source;
            emit folderChosen(folderOf(source));
        });
    }
    menu->addSeparator();
    menu->addAction(change);
    setMenu(menu);
}

QString FolderSwitch::folderOf(FolderSource source) const
{
    return source == FolderSource::Other ? normalizedFolder(m_kind.otherFolder.value())
                                         : ownFolder(m_kind, source);
}

void FolderSwitch::setFolder(const QString &folder)
{
    m_ahead.read({normalizedFolder(Settings::GamePath.value())}, [this, folder] { show(folder); });
}

void FolderSwitch::show(const QString &folder)
{
    if (folder.isEmpty())
        m_source = FolderSource::None;
    // Game and mod may be the same; then it stays what it was called.
    else if (m_source == FolderSource::None || m_source == FolderSource::Other ||
             folderOf(m_source) != folder)
        m_source = folder == folderOf(FolderSource::Game)  ? FolderSource::Game
                   : folder == folderOf(FolderSource::Mod) ? FolderSource::Mod
                                                           : FolderSource::Other;
    if (std::exchange(m_keepsNext, false) && m_source == FolderSource::Other)
        m_kind.otherFolder.setValue(folder);
    for (const Choice &choice : qAsConst(m_choices)) {
        const QString path = choice.source == m_source ? folder : folderOf(choice.source);
        choice.action->setEnabled(!path.isEmpty());
        choice.action->setChecked(choice.source == m_source);
        choice.action->setToolTip(path.isEmpty() ? choice.source == FolderSource::Other
                                                       ? tr("No other folder was chosen yet")
                                                       : tr("The options name no such folder")
                                                 : tr("List %1").arg(QDir::toNativeSeparators(path)));
        choice.action->setStatusTip(choice.action->toolTip());
    }
    setText(m_source == FolderSource::Game    ? tr("Game")
            : m_source == FolderSource::Mod   ? tr("Mod")
            : m_source == FolderSource::Other ? tr("Other")
                                              : tr("Folder"));
    setToolTip(folder.isEmpty() ? tr("Choose the folder to list") : QDir::toNativeSeparators(folder));
    setAccessibleName(tr("Folder: %1").arg(text()));
}
