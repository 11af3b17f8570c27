// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderItem.h"

#include "Files.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QPalette>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace {
struct Branch
{
    FolderItem *item = nullptr; ///< none for the folder that is read itself
    std::vector<FolderItem *> folders;
    std::vector<FolderItem *> files;
};

bool isAscii(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c < QChar(0x80); });
}

/// Appends what compares as people expect of names: without case, accented letters beside plain ones, numbers
/// by their value. A locale's collator would add half of what reading the folder costs, and the tables of
/// case and accents, which few names need, a fifth.
void appendNaturalKey(std::u16string &key, QStringView name)
{
    QString decomposed;
    if (!isAscii(name)) {
        decomposed = name.toString().toCaseFolded().normalized(QString::NormalizationForm_D);
        name = decomposed;
    }
    const auto isDigit = [&name](qsizetype at) {
        return at < name.size() && name[at] >= QLatin1Char('0') && name[at] <= QLatin1Char('9');
    };
    for (qsizetype at = 0; at < name.size();) {
        if (!isDigit(at)) {
            const char16_t c = name[at++].unicode();
            key += c >= u'A' && c <= u'Z' ? char16_t(c + 0x20) : c;
            continue;
        }
        // Among digits, then by the number of digits that count, then by the digits.
        while (name[at] == QLatin1Char('0') && isDigit(at + 1))
            ++at;
        qsizetype end = at;
        while (isDigit(end))
            ++end;
        key += u'0';
        key += char16_t(end - at);
        key.append(name.utf16() + at, size_t(end - at));
        at = end;
    }
}

void appendSorted(QList<QTreeWidgetItem *> &items, const std::vector<FolderItem *> &unsorted)
{
    struct Entry
    {
        size_t start; ///< of its key
        size_t length;
        FolderItem *item;
    };
    std::u16string keys; // one memory for all
    std::vector<Entry> entries;
    entries.reserve(unsorted.size());
    for (FolderItem *item : unsorted) {
        const size_t start = keys.size();
        appendNaturalKey(keys, item->nameView());
        entries.push_back({start, keys.size() - start, item});
    }
    const auto keyOf = [&keys](const Entry &entry) {
        return std::u16string_view(keys).substr(entry.start, entry.length);
    };
    std::sort(entries.begin(), entries.end(), [&keyOf](const Entry &a, const Entry &b) {
        const int order = keyOf(a).compare(keyOf(b));
        return order != 0 ? order < 0 : a.item->path() < b.item->path();
    });
    for (const Entry &entry : entries)
        items << entry.item;
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
        return m_barren ? QApplication::palette().brush(QPalette::PlaceholderText) : QVariant();
    case FilePathRole:
        return m_folder ? QString() : m_path;
    default:
        return QTreeWidgetItem::data(column, role);
    }
}

QString FolderItem::name() const
{
    return nameView().toString();
}

QStringView FolderItem::nameView() const
{
    return QStringView(m_path).mid(m_nameStart, m_nameLength);
}

void FolderItem::setLoaded(bool loaded)
{
    if (m_loaded == loaded)
        return;
    m_loaded = loaded;
    emitDataChanged();
}

FolderContents::~FolderContents()
{
    qDeleteAll(items);
}

FolderContents readFolder(const QString &folder, const QString &extension, const FolderIcons *icons,
                          const std::atomic_bool &cancelled)
{
    FolderContents contents;
    contents.isFolder = Files::isFolder(folder);
    const QString suffix = QLatin1Char('.') + extension;
    std::vector<Branch> branches(1);
    Files::walk(folder, [&](const FolderEntry &entry) {
        const int nameStart = entry.path.lastIndexOf(QLatin1Char('/')) + 1;
        const int nameLength = entry.path.size() - nameStart;
        if (entry.isFolder) {
            auto *item = new FolderItem(entry.path, nameStart, nameLength, true, icons);
            branches[size_t(entry.parent)].folders.push_back(item);
            branches.push_back({item, {}, {}});
        } else if (nameLength > suffix.size() && entry.path.endsWith(suffix, Qt::CaseInsensitive)) {
            branches[size_t(entry.parent)].files.push_back(
                new FolderItem(entry.path, nameStart, nameLength - suffix.size(), false, icons));
        }
        return !cancelled;
    });

    // A folder stands before its sub-folders, so that from behind each knows its contents when its turn
    // comes.
    for (auto branch = branches.rbegin(); branch != branches.rend(); ++branch) {
        QList<QTreeWidgetItem *> items;
        items.reserve(int(branch->folders.size() + branch->files.size()));
        appendSorted(items, branch->folders);
        appendSorted(items, branch->files);
        if (branch->item) {
            branch->item->addChildren(items);
            branch->item->setBarren(branch->files.empty() &&
                                    std::all_of(branch->folders.begin(), branch->folders.end(),
                                                [](const FolderItem *item) { return item->isBarren(); }));
        } else {
            contents.items = items;
        }
    }
    return contents;
}
