// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderTree.h"

#include "FileSystem.h"

#include <QDir>
#include <QScrollBar>
#include <QTreeWidgetItemIterator>

#include <algorithm>

namespace {
/// A folder with fewer rows than this opens with all of them in sight.
constexpr int OpenWholeLimit = 200;

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

FolderItem *childOf(const QTreeWidgetItem &parent, int row)
{
    return static_cast<FolderItem *>(parent.child(row));
}

FolderItem *firstFile(const QTreeWidgetItem &parent)
{
    for (int row = 0; row < parent.childCount(); ++row) {
        FolderItem *item = childOf(parent, row);
        if (item->isHidden())
            continue;
        FolderItem *file = item->isFolder() ? firstFile(*item) : item;
        if (file)
            return file;
    }
    return nullptr;
}
} // namespace

FolderTree::FolderTree(const FolderIcons &icons)
    : m_icons(icons)
{
    // Who selects another file meanwhile wants that one.
    connect(this, &QTreeWidget::itemSelectionChanged, this, [this] { m_wantedPath.clear(); });
}

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
    m_wantedPath.clear();
    if (!isSameFolder) {
        const QSignalBlocker silence(this);
        clear();
    }
    const auto read = [folder, extension, icons = &m_icons](const Background::Cancelled &cancelled) {
        // An empty path would be the program's own folder.
        return folder.isEmpty() ? FolderContents() : readFolder(folder, extension, icons, cancelled);
    };
    m_reading.start(read, [this, isSameFolder](FolderContents contents) {
        take(std::move(contents), isSameFolder);
        emit filled();
    });
}

void FolderTree::take(FolderContents contents, bool isSameFolder)
{
    const QSignalBlocker silence(this);
    const int scrolled = verticalScrollBar()->value();
    const QString currentPath = current() ? current()->path() : QString();
    const QString selectedPath = m_wantedPath.isEmpty() ? selectedFile() : m_wantedPath;
    const QSet<QString> branches = openBranches();
    m_isFolderThere = contents.isFolder;
    clear();
    addTopLevelItems(std::exchange(contents.items, {}));
    m_hidesFiles = false;
    updateShown();
    if (isFiltered() || (!isSameFolder && hasFewerRowsThan(this, OpenWholeLimit)))
        expandAll();
    else
        open(branches);
    markLoaded(true);
    if (isSameFolder)
        setCurrentItem(findRow(currentPath), 0, QItemSelectionModel::NoUpdate);
    if (!selectedPath.isEmpty())
        selectFile(selectedPath);
    if (isSameFolder && m_wantedPath.isEmpty())
        verticalScrollBar()->setValue(scrolled);
    m_wantedPath.clear();
}

void FolderTree::setFilter(const QString &words)
{
    const QStringList wanted = words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (wanted == m_words)
        return;
    if (m_words.isEmpty())
        m_openBefore = openBranches();
    m_words = wanted;
    updateShown();
    if (isFiltered()) {
        expandAll();
    } else {
        collapseAll();
        open(m_openBefore);
    }
    if (currentItem())
        scrollToItem(currentItem());
    emit filterChanged();
}

void FolderTree::showEmptyFolders(bool on)
{
    m_emptyFolders = on;
    updateShown();
}

bool FolderTree::hasShownRows() const
{
    for (int row = 0; row < topLevelItemCount(); ++row) {
        if (isFiltered() || !topLevelItem(row)->isHidden())
            return true;
    }
    return false;
}

FolderItem *FolderTree::firstShownFile() const
{
    return firstFile(*invisibleRootItem());
}

void FolderTree::updateShown()
{
    setUpdatesEnabled(false);
    updateShown(*invisibleRootItem(), {});
    m_hidesFiles = isFiltered();
    setUpdatesEnabled(true);
}

/// Returns whether anything in the folder is shown.
bool FolderTree::updateShown(const QTreeWidgetItem &parent, const QModelIndex &index)
{
    bool any = false;
    for (int row = 0; row < parent.childCount(); ++row) {
        const FolderItem *item = childOf(parent, row);
        // Of thousands of files none is hidden as a rule, and they stand behind the folders.
        if (!item->isFolder() && !isFiltered() && !m_hidesFiles)
            return true;
        bool shown = false;
        if (!item->isFolder()) {
            shown = matches(*item);
        } else if (item->isBarren()) {
            shown = m_emptyFolders && !isFiltered();
        } else {
            shown = updateShown(*item, indexFromItem(item));
        }
        if (isRowHidden(row, index) == shown)
            setRowHidden(row, index, !shown);
        any |= shown;
    }
    return any;
}

bool FolderTree::matches(const FolderItem &file) const
{
    const QStringView path = file.pathFrom(m_folder.size());
    return std::all_of(m_words.begin(), m_words.end(),
                       [path](const QString &word) { return path.contains(word, Qt::CaseInsensitive); });
}

QSet<QString> FolderTree::openBranches() const
{
    QSet<QString> open;
    forEachFolder(invisibleRootItem(), [&open](const FolderItem *branch) {
        if (branch->isExpanded())
            open.insert(branch->path());
    });
    return open;
}

void FolderTree::open(const QSet<QString> &branches)
{
    if (branches.isEmpty())
        return;
    forEachFolder(invisibleRootItem(), [&branches](FolderItem *item) {
        if (branches.contains(item->path()))
            item->setExpanded(true);
    });
}

bool FolderTree::selectFile(const QString &path)
{
    if (isReading())
        m_wantedPath = path;
    FolderItem *item = findItem(path);
    const QSignalBlocker silence(this);
    setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect);
    if (item)
        scrollToItem(item);
    return item != nullptr;
}

QString FolderTree::selectedFile() const
{
    const QList<QTreeWidgetItem *> selection = selectedItems();
    return selection.isEmpty() ? QString() : selection.first()->data(0, FolderItem::FilePathRole).toString();
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

FolderItem *FolderTree::findRow(const QString &path) const
{
    if (path.isEmpty())
        return nullptr;
    const QString wanted = QDir::cleanPath(path);
    for (QTreeWidgetItemIterator it(const_cast<FolderTree *>(this)); *it; ++it) {
        auto *item = static_cast<FolderItem *>(*it);
        if (FileSystem::isSamePath(item->path(), wanted))
            return item;
    }
    return nullptr;
}

FolderItem *FolderTree::findItem(const QString &path) const
{
    FolderItem *item = findRow(path);
    return item && !item->isFolder() ? item : nullptr;
}

QStringList FolderTree::files() const
{
    QStringList paths;
    for (QTreeWidgetItemIterator it(const_cast<FolderTree *>(this)); *it; ++it) {
        const auto *item = static_cast<FolderItem *>(*it);
        if (!item->isFolder())
            paths << item->path();
    }
    return paths;
}
