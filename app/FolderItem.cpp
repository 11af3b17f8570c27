// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderItem.h"

#include <QApplication>
#include <QCollator>
#include <QDir>
#include <QDirIterator>
#include <QFont>
#include <QHash>
#include <QPalette>

#include <algorithm>
#include <vector>

namespace {
struct Branch
{
    FolderItem *item; ///< none for the folder that is read itself
    std::vector<FolderItem *> folders;
    std::vector<FolderItem *> files;
};

void appendSorted(QList<QTreeWidgetItem *> &items, const std::vector<FolderItem *> &unsorted,
                  const QCollator &collator)
{
    struct Entry
    {
        QCollatorSortKey key;
        FolderItem *item;
    };
    std::vector<Entry> entries;
    entries.reserve(unsorted.size());
    for (FolderItem *item : unsorted)
        entries.push_back({collator.sortKey(item->name()), item});
    std::sort(entries.begin(), entries.end(), [](const Entry &a, const Entry &b) {
        const int order = a.key.compare(b.key);
        return order != 0 ? order < 0 : a.item->path() < b.item->path();
    });
    for (const Entry &entry : entries)
        items << entry.item;
}
} // namespace

FolderItem::FolderItem(QString path, QString name, bool folder, const FolderIcons *icons)
    : m_path(std::move(path))
    , m_name(std::move(name))
    , m_icons(icons)
    , m_folder(folder)
{}

QVariant FolderItem::data(int column, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return m_name;
    case Qt::DecorationRole:
        return !m_folder                          ? m_icons->file
               : isExpanded() && childCount() > 0 ? m_icons->openFolder
                                                  : m_icons->folder;
    case Qt::ToolTipRole:
        return QDir::toNativeSeparators(m_path);
    case Qt::FontRole:
        if (m_loaded) {
            QFont font;
            font.setBold(true);
            return font;
        }
        return {};
    case Qt::ForegroundRole:
        return m_barren ? QApplication::palette().brush(QPalette::Disabled, QPalette::Text) : QVariant();
    case FilePathRole:
        return m_folder ? QString() : m_path;
    default:
        return QTreeWidgetItem::data(column, role);
    }
}

void FolderItem::setLoaded(bool loaded)
{
    if (m_loaded == loaded)
        return;
    m_loaded = loaded;
    emitDataChanged();
}

QList<QTreeWidgetItem *> readFolder(const QString &folder, const QString &extension, const FolderIcons *icons)
{
    const QString suffix = QLatin1Char('.') + extension;
    std::vector<Branch> branches{{nullptr, {}, {}}};
    QHash<QString, size_t> branchOfPath;
    QString root = QDir::cleanPath(folder);
    if (root.endsWith(QLatin1Char('/')))
        root.chop(1); // of the file system: its entries' folder is then empty
    branchOfPath.insert(root, 0);

    QDirIterator it(folder, QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    QString currentFolder = root;
    size_t current = 0;
    while (it.hasNext()) {
        const QString path = it.next();
        const int slash = path.lastIndexOf(QLatin1Char('/'));
        if (path.leftRef(slash) != currentFolder) {
            const auto known = branchOfPath.constFind(path.left(slash));
            if (known == branchOfPath.constEnd())
                continue;
            current = *known;
            currentFolder = known.key();
        }
        // Most entries are told by their name alone, which spares asking the file system about each.
        const QString name = path.mid(slash + 1);
        const bool nameFits = name.size() > suffix.size() && name.endsWith(suffix, Qt::CaseInsensitive);
        const QFileInfo info = it.fileInfo();
        if (info.isDir()) {
            if (info.isSymLink())
                continue;
            auto *item = new FolderItem(path, name, true, icons);
            branches[current].folders.push_back(item);
            branchOfPath.insert(path, branches.size());
            branches.push_back({item, {}, {}});
        } else if (nameFits) {
            branches[current].files.push_back(
                new FolderItem(path, name.chopped(suffix.size()), false, icons));
        }
    }

    QLocale locale;
    if (locale.language() == QLocale::C)
        locale = QLocale(QLocale::English); // the C locale knows neither case nor numbers
    QCollator collator(locale);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setNumericMode(true);

    // A folder stands before its sub-folders, so that from behind each knows its contents when its turn
    // comes.
    QList<QTreeWidgetItem *> top;
    for (auto branch = branches.rbegin(); branch != branches.rend(); ++branch) {
        QList<QTreeWidgetItem *> items;
        items.reserve(int(branch->folders.size() + branch->files.size()));
        appendSorted(items, branch->folders, collator);
        appendSorted(items, branch->files, collator);
        if (branch->item) {
            branch->item->addChildren(items);
            branch->item->setBarren(branch->files.empty() &&
                                    std::all_of(branch->folders.begin(), branch->folders.end(),
                                                [](const FolderItem *item) { return item->isBarren(); }));
        } else {
            top = items;
        }
    }
    return top;
}
