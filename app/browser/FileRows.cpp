// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileRows.h"

#include "DraggedFile.h"
#include "Files.h"
#include "Icons.h"
#include "KMat.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QMimeData>

#include <algorithm>
#include <utility>

namespace {
constexpr qint64 MostReadBytes = 512 * 1024; ///< of a material file: a few milliseconds
constexpr size_t MostThings = 200;           ///< to choose from in a menu
} // namespace

void FileRows::setFiles(CatalogFilesPtr files)
{
    if (files == m_files)
        return;
    beginResetModel();
    m_unused = nullptr; // they are numbered otherwise now
    Background::discard(std::exchange(m_files, std::move(files)));
    refill();
    endResetModel();
}

void FileRows::setUnused(UnusedFlagsPtr unused)
{
    if (m_filter.state == FileState::Unused)
        beginResetModel();
    m_unused = std::move(unused);
    if (m_filter.state == FileState::Unused) {
        refill();
        endResetModel();
    } else if (!m_rows.empty()) {
        emit dataChanged(index(0), index(rowCount() - 1), {StateRole});
    }
}

void FileRows::setFilter(const FileFilter &filter)
{
    beginResetModel();
    m_filter = filter;
    refill();
    endResetModel();
}

bool FileRows::fits(int number, const QStringList &words) const
{
    const CatalogFile &file = m_files->files[size_t(number)];
    if (m_filter.kinds != 0 && (m_filter.kinds & (1U << unsigned(file.type))) == 0)
        return false;
    switch (m_filter.state) {
    case FileState::Any:
        break;
    case FileState::InMod:
        if (!file.isMod)
            return false;
        break;
    case FileState::InGame:
        if (file.isMod)
            return false;
        break;
    case FileState::ReplacesGame:
        if (!file.isMod || !file.hasTwin)
            return false;
        break;
    case FileState::Unused:
        if (!isUnused(number))
            return false;
        break;
    }
    return std::all_of(words.begin(), words.end(),
                       [&file](const QString &word) { return file.searched.contains(word); });
}

void FileRows::refill()
{
    m_rows.clear();
    if (!m_files)
        return;
    const QString wanted = m_filter.words.simplified().toCaseFolded();
    const QStringList words = wanted.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const int number : m_files->orders[size_t(m_filter.order)]) {
        if (fits(number, words))
            m_rows.push_back(number);
    }
    if (!m_filter.bestFirst || words.isEmpty())
        return;
    const auto nameOf = [this](int number) {
        const CatalogFile &file = m_files->files[size_t(number)];
        return file.searched.midRef(file.searchStart);
    };
    const auto others = std::stable_partition(
        m_rows.begin(), m_rows.end(), [&](int number) { return nameOf(number).startsWith(words.first()); });
    std::stable_partition(others, m_rows.end(), [&](int number) {
        return std::all_of(words.begin(), words.end(),
                           [&](const QString &word) { return nameOf(number).contains(word); });
    });
}

int FileRows::rowOf(const QString &path) const
{
    if (!m_files || path.isEmpty())
        return -1;
    const auto &files = m_files->files;
    const auto file =
        std::lower_bound(files.begin(), files.end(), path,
                         [](const CatalogFile &each, const QString &wanted) { return each.path < wanted; });
    if (file == files.end() || file->path != path)
        return -1;
    const auto row = std::find(m_rows.begin(), m_rows.end(), int(file - files.begin()));
    return row == m_rows.end() ? -1 : int(row - m_rows.begin());
}

int FileRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant FileRows::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int number = m_rows[size_t(index.row())];
    const CatalogFile &file = m_files->files[size_t(number)];
    switch (role) {
    case Qt::DisplayRole:
        return file.name();
    case Qt::DecorationRole:
        return kindIcon(file.type);
    case Qt::ToolTipRole:
        return toolTip(number);
    case Qt::AccessibleTextRole:
        return QStringList{file.name(), kindText(file.type), file.folder(), stateText(number)}.join(
            QStringLiteral(", "));
    case PathRole:
        return file.path;
    case FolderRole:
        return file.folder();
    case StateRole:
        return stateText(number);
    default:
        return {};
    }
}

Qt::ItemFlags FileRows::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractListModel::flags(index);
    return index.isValid() ? flags | Qt::ItemIsDragEnabled : flags;
}

QStringList FileRows::mimeTypes() const
{
    return {DraggedFile::mimeType()};
}

QMimeData *FileRows::mimeData(const QModelIndexList &indexes) const
{
    const CatalogFile &file = fileAt(indexes.first().row());
    DraggedFile dragged;
    dragged.kind = file.type == IndexedType::Picture     ? DraggedFile::Kind::Texture
                   : file.type == IndexedType::Materials ? DraggedFile::Kind::Materials
                                                         : DraggedFile::Kind::Model;
    dragged.path = file.path;
    for (const NamedThing &thing : thingsOf(file))
        dragged.names += thing.path;
    return dragged.mime();
}

std::vector<NamedThing> FileRows::thingsOf(const CatalogFile &file)
{
    if (file.type == IndexedType::Picture)
        return {{NamedKind::Texture, 0.0, file.relative}};
    // Whoever asks waits: what is no file of a game, or in an archive that is to be read anew, has none.
    if (file.type != IndexedType::Materials || Files::isUnread(file.path) ||
        FileStamp::of(file.path).size > MostReadBytes)
        return {};
    std::vector<NamedThing> things;
    MaterialTable table;
    if (!readKMat(file.path, table).isEmpty())
        return {};
    const QString folder = file.relative.left(file.relative.lastIndexOf(QLatin1Char('.')));
    for (const auto &[name, texture] : table) {
        if (things.size() < MostThings)
            things.push_back({NamedKind::Material, 0.0, folder + QLatin1Char('/') + name});
    }
    return things;
}

QIcon FileRows::kindIcon(IndexedType type)
{
    static const QString names[] = {QStringLiteral("filemesh"), QStringLiteral("fileanim"),
                                    QStringLiteral("filestatic"), QStringLiteral("surfaces"),
                                    QStringLiteral("frame")};
    return namedIcon(names[size_t(type)]);
}

QString FileRows::kindText(IndexedType type)
{
    const QString texts[] = {tr("Skinned mesh"), tr("Animation"), tr("Static mesh"), tr("Materials"),
                             tr("Texture")};
    return texts[size_t(type)];
}

QString FileRows::stateText(int number) const
{
    const CatalogFile &file = m_files->files[size_t(number)];
    const QString where = file.isMod ? file.hasTwin ? tr("Replaces game's") : tr("Mod")
                                     : (file.hasTwin ? tr("Replaced by mod") : tr("Game"));
    return isUnused(number) ? tr("%1, unused").arg(where) : where;
}

QString FileRows::toolTip(int number) const
{
    const CatalogFile &file = m_files->files[size_t(number)];
    QStringList lines{QDir::toNativeSeparators(file.path)};
    // An archive that was replaced is read by another thread.
    const FileStamp stamp = Files::isUnread(file.path) ? FileStamp() : FileStamp::of(file.path);
    const QLocale locale;
    QStringList facts{kindText(file.type)};
    if (stamp.exists())
        facts += locale.formattedDataSize(stamp.size);
    // An entry's time is not kept, and its archive's tells nothing about it.
    if (stamp.exists() && Files::archiveOf(file.path).isEmpty())
        facts += locale.toString(QDateTime::fromMSecsSinceEpoch(stamp.modified), QLocale::ShortFormat);
    lines += facts.join(QStringLiteral(", "));
    lines += file.isMod ? file.hasTwin ? tr("In the mod, in the place of the game's file of this name")
                                       : tr("In the mod")
                        : (file.hasTwin ? tr("In the game; the mod has a file of this name in its place")
                                        : tr("In the game"));
    if (isUnused(number))
        lines += file.type == IndexedType::Picture
                     ? tr("No material of game and mod names this texture")
                     : tr("No model of game and mod names a material of this file");
    return lines.join(QLatin1Char('\n'));
}
