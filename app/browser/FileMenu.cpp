// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileMenu.h"

#include "FileList.h"
#include "Files.h"
#include "Icons.h"
#include "Shortcuts.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

FileMenu::FileMenu(FileList &list, QWidget *parent)
    : QMenu(parent)
    , m_list(list)
{
    setObjectName(QStringLiteral("menuFiles"));
    setDefaultAction(add("actionBrowserOpen", "open", tr("&Open"), tr("Open this file, or show the texture"),
                         &FileMenu::openCurrent));
    add("actionBrowserOpenFolder", "folderopen", tr("Open Containing &Folder"),
        tr("Show the folder in the desktop's file manager"), &FileMenu::openFolder);
    addSeparator();
    add("actionBrowserCopyName", "copy", tr("Copy &Name"),
        tr("Copy the name by which models and materials name this file, below the folder of game or mod"),
        &FileMenu::copyName)
        ->setShortcut(QKeySequence::Copy);
    add("actionBrowserCopyPath", "copy", tr("Copy &Path"), tr("Copy the full path to the clipboard"),
        &FileMenu::copyPath);
    addSeparator();
    m_list.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&m_list, &QWidget::customContextMenuRequested, this, &FileMenu::OnContextMenu);
    connect(&m_list, &QAbstractItemView::activated, this, &FileMenu::openCurrent);
}

QAction *FileMenu::add(const char *name, const char *icon, const QString &text, const QString &tip,
                       void (FileMenu::*slot)())
{
    auto *action = new QAction(namedIcon(QLatin1String(icon)), text, this);
    action->setObjectName(QLatin1String(name));
    action->setToolTip(tip);
    action->setStatusTip(tip);
    action->setShortcutContext(Qt::WidgetShortcut);
    nameShortcut(action, action->objectName(), tr("Mod Browser"), {});
    connect(action, &QAction::triggered, this, slot);
    m_list.addAction(action);
    addAction(action);
    return action;
}

void FileMenu::openCurrent()
{
    if (const CatalogFile *file = m_list.current())
        emit openWanted(QString(file->path));
}

void FileMenu::openFolder()
{
    const CatalogFile *file = m_list.current();
    if (!file)
        return;
    const QString folder = QFileInfo(Files::heldBy(file->path)).path();
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(folder)))
        emit told(tr("Failed to open %1").arg(QDir::toNativeSeparators(folder)));
}

void FileMenu::copyPath()
{
    if (const CatalogFile *file = m_list.current())
        QApplication::clipboard()->setText(QDir::toNativeSeparators(file->path));
}

void FileMenu::copyName()
{
    const CatalogFile *file = m_list.current();
    if (!file)
        return;
    QStringList names;
    for (const NamedThing &thing : thingsOfCurrent())
        names += thing.path;
    if (names.isEmpty() && file->type == IndexedType::Materials)
        return emit told(tr("'%1' has no materials that could be named.").arg(file->name()));
    QApplication::clipboard()->setText(names.isEmpty() ? file->relative : names.join(QLatin1Char('\n')));
}

std::vector<NamedThing> FileMenu::thingsOfCurrent() const
{
    const CatalogFile *file = m_list.current();
    return file ? FileRows::thingsOf(*file) : std::vector<NamedThing>();
}

void FileMenu::OnContextMenu(const QPoint &position)
{
    const QModelIndex index = m_list.indexAt(position);
    if (!index.isValid())
        return;
    m_list.setCurrentIndex(index);
    popup(m_list.viewport()->mapToGlobal(position));
}
