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
#include <numeric>
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
    std::vector<QCollatorSortKey> keys;
    std::vector<size_t> order(unsorted.size());
    keys.reserve(unsorted.size());
    for (const FolderItem *item : unsorted)
        keys.push_back(collator.sortKey(item->name()));
    std::iota(order.begin(), order.end(), size_t(0));
    std::sort(order.begin(), order.end(), [&](size_t a, size_t b) {
        const int difference = keys[a].compare(keys[b]);
        return difference != 0 ? difference < 0 : unsorted[a]->path() < unsorted[b]->path();
    });
    for (const size_t index : order)
        items << unsorted[index];
}
} // namespace

FolderItem::FolderItem(QString path, int nameStart, int nameLength, bool folder, const FolderIcons *icons)
    : m_path(std::move(path))
    , m_icons(icons)
    , m_nameStart(nameStart)
    , m_nameLength(nameLength)
    , m_folder(folder)
{}

QVariant FolderItem::data(int column, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return name();
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

QString FolderItem::name() const
{
    return m_path.mid(m_nameStart, m_nameLength);
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
    QString currentFolder = root; // entries of one folder mostly come in a row
    size_t current = 0;
    while (it.hasNext()) {
        const QString path = it.next();
        const int here = currentFolder.size();
        if (path.size() <= here || !path.startsWith(currentFolder) || path.at(here) != QLatin1Char('/') ||
            path.indexOf(QLatin1Char('/'), here + 1) >= 0) {
            const auto known = branchOfPath.constFind(path.left(path.lastIndexOf(QLatin1Char('/'))));
            if (known == branchOfPath.constEnd())
                continue;
            current = *known;
            currentFolder = known.key();
        }
        const int nameStart = currentFolder.size() + 1;
        const int nameLength = path.size() - nameStart;
        const QFileInfo info = it.fileInfo();
        if (info.isDir()) {
            if (info.isSymLink())
                continue;
            auto *item = new FolderItem(path, nameStart, nameLength, true, icons);
            branches[current].folders.push_back(item);
            branchOfPath.insert(path, branches.size());
            branches.push_back({item, {}, {}});
        } else if (nameLength > suffix.size() && path.endsWith(suffix, Qt::CaseInsensitive)) {
            branches[current].files.push_back(
                new FolderItem(path, nameStart, nameLength - suffix.size(), false, icons));
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
