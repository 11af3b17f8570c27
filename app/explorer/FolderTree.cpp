// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderTree.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSet>
#include <QTreeWidgetItemIterator>

namespace {
/// A folder with fewer rows than this opens with all of them in sight.
constexpr int OpenWholeLimit = 200;

template <typename Visit>
void forEachFile(const QTreeWidget *tree, Visit visit)
{
    // The iterator changes nothing, but asks for what could.
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget *>(tree)); *it; ++it) {
        auto *item = static_cast<FolderItem *>(*it);
        if (!item->isFolder())
            visit(item);
    }
}

/// Folders stand before files, so the thousands of files of a folder are not even looked at.
template <typename Visit>
void forEachFolder(QTreeWidgetItem *parent, Visit visit)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        auto *item = static_cast<FolderItem *>(parent->child(i));
        if (!item->isFolder())
            break;
        visit(item);
        forEachFolder(item, visit);
    }
}

bool hasFewerRowsThan(QTreeWidget *tree, int limit)
{
    int rows = 0;
    for (QTreeWidgetItemIterator it(tree); *it && rows < limit; ++it)
        ++rows;
    return rows < limit;
}
} // namespace

FolderTree::~FolderTree()
{
    // Who listens may be going too.
    blockSignals(true);
    clear(); // before the icons that its items share
}

void FolderTree::fill(const QString &folder, const QString &extension)
{
    const bool isSameFolder = folder == m_folder;
    m_folder = folder;
    QSet<QString> expanded;
    forEachFolder(invisibleRootItem(), [&expanded](const FolderItem *branch) {
        if (branch->isExpanded())
            expanded.insert(branch->path());
    });
    clear();
    if (!folder.isEmpty() && QFileInfo(folder).isDir()) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        addTopLevelItems(readFolder(folder, extension, &m_icons));
        QGuiApplication::restoreOverrideCursor();
    }
    const bool openWhole = !isSameFolder && hasFewerRowsThan(this, OpenWholeLimit);
    forEachFolder(invisibleRootItem(), [&expanded, openWhole](FolderItem *item) {
        if (openWhole || expanded.contains(item->path()))
            item->setExpanded(true);
    });
    markLoaded(true);
}

void FolderTree::setLoadedPath(const QString &path)
{
    markLoaded(false);
    m_loadedPath = QDir::cleanPath(path);
    markLoaded(true);
}

void FolderTree::markLoaded(bool on)
{
    if (FolderItem *item = findItem(m_loadedPath))
        item->setLoaded(on);
}

FolderItem *FolderTree::findItem(const QString &path) const
{
    if (path.isEmpty())
        return nullptr;
    const QString wanted = QDir::cleanPath(path);
    for (QTreeWidgetItemIterator it(const_cast<FolderTree *>(this)); *it; ++it) {
        auto *item = static_cast<FolderItem *>(*it);
        if (!item->isFolder() && item->path() == wanted)
            return item;
    }
    return nullptr;
}

QString FolderTree::findMatching(const QString &folderName, const QString &baseName) const
{
    const auto same = [](const QString &a, const QString &b) {
        return a.compare(b, Qt::CaseInsensitive) == 0;
    };
    QStringList both;
    QStringList byName;
    QStringList byFolder;
    forEachFile(this, [&](const FolderItem *item) {
        const bool nameFits = same(item->name(), baseName);
        const bool folderFits = same(QFileInfo(item->path()).dir().dirName(), folderName);
        if (nameFits && folderFits)
            both << item->path();
        if (nameFits)
            byName << item->path();
        if (folderFits)
            byFolder << item->path();
    });
    if (!both.isEmpty())
        return both.first();
    if (byName.size() == 1)
        return byName.first();
    return byFolder.size() == 1 ? byFolder.first() : QString();
}
