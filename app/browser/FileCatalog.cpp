// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileCatalog.h"

#include "Settings.h"

#include <QGuiApplication>
#include <QSet>

#include <algorithm>
#include <numeric>
#include <utility>

namespace {
constexpr int WatchedAtOnce = 100;

/// Files of game and mod that have one name take each other's place.
void findTwins(std::vector<CatalogFile> &files)
{
    std::array<QSet<QString>, 2> names; // of the game, of the mod
    for (const CatalogFile &file : files)
        names[file.isMod ? 1 : 0].insert(file.searched);
    for (CatalogFile &file : files)
        file.hasTwin = names[file.isMod ? 0 : 1].contains(file.searched);
}

/// The mod's before the game's where all else is the same.
int compareNames(const CatalogFile &a, const CatalogFile &b)
{
    const int names = a.searched.midRef(a.searchStart).compare(b.searched.midRef(b.searchStart));
    if (names != 0)
        return names;
    const int paths = a.searched.compare(b.searched);
    return paths != 0 ? paths : int(b.isMod) - int(a.isMod);
}

int compareFolders(const CatalogFile &a, const CatalogFile &b)
{
    return a.searched.leftRef(a.searchStart).compare(b.searched.leftRef(b.searchStart));
}

void sortOrders(CatalogFiles &made)
{
    const auto &files = made.files;
    std::vector<int> numbers(files.size());
    std::iota(numbers.begin(), numbers.end(), 0);
    std::sort(numbers.begin(), numbers.end(),
              [&files](int a, int b) { return compareNames(files[size_t(a)], files[size_t(b)]) < 0; });
    made.orders.fill(numbers);
    auto &byKind = made.orders[size_t(CatalogOrder::Kind)];
    std::stable_sort(byKind.begin(), byKind.end(),
                     [&files](int a, int b) { return files[size_t(a)].type < files[size_t(b)].type; });
    auto &byFolder = made.orders[size_t(CatalogOrder::Folder)];
    std::stable_sort(byFolder.begin(), byFolder.end(), [&files](int a, int b) {
        return compareFolders(files[size_t(a)], files[size_t(b)]) < 0;
    });
}
} // namespace

bool CatalogFiles::isSame(const CatalogFiles &other) const
{
    return folders == other.folders && gaps == other.gaps && isCut == other.isCut &&
           std::equal(files.begin(), files.end(), other.files.begin(), other.files.end(),
                      [](const CatalogFile &a, const CatalogFile &b) { return a.isSame(b); });
}

CatalogFilesPtr makeCatalogFiles(const MaterialFolders &folders, const std::atomic_bool &isCancelled,
                                 std::atomic_int &found)
{
    auto made = std::make_shared<CatalogFiles>();
    FolderListing listing = listFolders(folders, isCancelled, &found);
    made->folders = std::move(listing.folders);
    made->gaps = std::move(listing.gaps);
    made->isCut = listing.isCut;
    made->files.reserve(listing.files.size());
    for (ListedFile &file : listing.files) {
        const int nameStart = file.relative.lastIndexOf(QLatin1Char('/')) + 1;
        QString searched = file.relative.toCaseFolded();
        const int searchStart = searched.lastIndexOf(QLatin1Char('/')) + 1;
        made->files.push_back({std::move(file.path), std::move(file.relative), std::move(searched), nameStart,
                               searchStart, file.type, file.isMod, false});
    }
    findTwins(made->files);
    if (!isCancelled)
        sortOrders(*made);
    return made;
}

FileCatalog::FileCatalog(QObject *parent)
    : QObject(parent)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(RestMs);
    connect(&m_rest, &QTimer::timeout, this, &FileCatalog::refresh);
    connect(&m_turns, &QTimer::timeout, this, &FileCatalog::watchSome);
    const auto changes = [this] { m_rest.start(); };
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, changes);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, changes);
    // Folders of other machines notify nobody.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            refresh();
    });
}

bool FileCatalog::hasFolders()
{
    return !Settings::GamePath.value().isEmpty() || !Settings::OutputDir.value().isEmpty();
}

void FileCatalog::follow(bool on)
{
    m_isFollowed = on;
    if (on)
        return read();
    watch({});
    if (!m_reader.isRunning())
        return;
    m_reader.cancel();
    m_isStale = false;
    emit changed();
}

void FileCatalog::refresh()
{
    if (m_isFollowed)
        read();
}

void FileCatalog::read()
{
    const MaterialFolders folders{Settings::GamePath.value(), Settings::OutputDir.value()};
    const bool isSame = folders == m_folders;
    if (m_reader.isRunning() && isSame) {
        m_isStale = true;
        return;
    }
    m_isStale = false;
    m_isGivenUp = false;
    if (!isSame)
        Background::discard(std::exchange(m_files, nullptr));
    m_folders = folders;
    m_found = std::make_shared<std::atomic_int>(0);
    m_reader.start(
        [folders, found = m_found](const Background::Cancelled &cancelled) {
            return makeCatalogFiles(folders, cancelled, *found);
        },
        [this](CatalogFilesPtr made) { take(std::move(made)); });
    emit changed();
}

void FileCatalog::take(CatalogFilesPtr made)
{
    if (!m_files || !m_files->isSame(*made))
        std::swap(m_files, made);
    Background::discard(std::move(made));
    if (m_isFollowed)
        watch(m_files->folders);
    emit changed();
    emit looked();
    if (std::exchange(m_isStale, false))
        read();
}

void FileCatalog::giveUp()
{
    m_reader.cancel();
    m_isStale = false;
    m_isGivenUp = true;
    emit changed();
}

void FileCatalog::watch(const QStringList &folders)
{
    // A file that was replaced is not watched any more.
    const QStringList now = m_watcher.directories() + m_watcher.files();
    QSet<QString> wanted(folders.begin(), folders.end());
    m_toLeave.clear();
    for (const QString &path : now) {
        if (!wanted.remove(path))
            m_toLeave += path;
    }
    m_toWatch = wanted.values();
    if (!m_toWatch.isEmpty() || !m_toLeave.isEmpty())
        m_turns.start();
}

/// Thousands at once would hold up the window.
void FileCatalog::watchSome()
{
    const auto take = [](QStringList &paths) {
        const QStringList some = paths.mid(0, WatchedAtOnce);
        paths = paths.mid(WatchedAtOnce);
        return some;
    };
    if (!m_toLeave.isEmpty())
        m_watcher.removePaths(take(m_toLeave));
    else if (!m_toWatch.isEmpty())
        m_watcher.addPaths(take(m_toWatch));
    else
        m_turns.stop();
}
