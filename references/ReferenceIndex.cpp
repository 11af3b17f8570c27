// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReferenceIndex.h"

#include "FileSystem.h"
#include "FolderListing.h"
#include "ReferenceReading.h"

#include <QThreadPool>

#include <algorithm>
#include <utility>

namespace {
FileNamingPtr namingAsItIs(const ListedFile &listed, const FileStamp &stamp, const ReferenceIndexPtr &known,
                           IndexProgress &progress)
{
    const FileNamingPtr kept = known ? known->fileAt(listed.path) : nullptr;
    if (kept && kept->stamp == stamp && kept->relative == listed.relative && kept->isMod == listed.isMod)
        return kept;
    ++progress.read;
    FileNaming file;
    file.path = listed.path;
    file.relative = listed.relative;
    file.isMod = listed.isMod;
    file.type = listed.type;
    file.stamp = stamp;
    readNaming(file);
    return std::make_shared<const FileNaming>(std::move(file));
}

/// Does `work` for each number below `count`, in so many threads.
template <typename Work>
void forEach(size_t count, int threads, const std::atomic_bool &isCancelled, const Work &work)
{
    std::atomic_size_t next{0};
    QThreadPool pool;
    pool.setMaxThreadCount(std::max(threads, 1));
    for (int i = 0; i < pool.maxThreadCount(); ++i) {
        pool.start([&] {
            for (size_t at = next++; at < count && !isCancelled; at = next++)
                work(at);
        });
    }
    pool.waitForDone();
}
} // namespace

ReferenceIndex::ReferenceIndex(MaterialFolders folders, std::vector<FileNamingPtr> files, QStringList gaps,
                               bool isCut)
    : m_folders(std::move(folders))
    , m_files(std::move(files))
    , m_gaps(std::move(gaps))
    , m_isCut(isCut)
{
    for (const FileNamingPtr &each : m_files) {
        if (!each->error.isEmpty())
            m_unreadable.push_back(each);
    }
}

FileNamingPtr ReferenceIndex::fileAt(const QString &path) const
{
    const auto found = std::lower_bound(
        m_files.begin(), m_files.end(), path,
        [](const FileNamingPtr &file, const QString &wanted) { return file->path < wanted; });
    return found != m_files.end() && (*found)->path == path ? *found : nullptr;
}

FileNamingPtr ReferenceIndex::file(const QString &path) const
{
    if (FileNamingPtr exact = fileAt(path))
        return exact;
    const auto found = std::find_if(m_files.begin(), m_files.end(), [&path](const FileNamingPtr &file) {
        return FileSystem::isSamePath(file->path, path);
    });
    return found == m_files.end() ? nullptr : *found;
}

std::vector<NamedUse> ReferenceIndex::usesOf(const NamedThing &thing) const
{
    std::vector<NamedUse> uses;
    const QString key = isNamedByPath(thing.kind) ? pathKey(thing.path) : QString();
    QHash<QString, QString> materials; // those that name the texture, by their keys
    for (const FileNamingPtr &file : m_files) {
        for (const NamedInFile &named : file->names) {
            if (!named.isAbout(thing, key))
                continue;
            uses.push_back({file, named, {}});
            if (file->type != IndexedType::Materials)
                continue;
            for (const RecordRef &place : file->placesOf(named)) {
                const QString path = file->materialPath(place.index[0]);
                materials.insert(pathKey(path), path);
            }
        }
    }
    if (materials.isEmpty())
        return uses;
    for (const FileNamingPtr &file : m_files) {
        for (const NamedInFile &named : file->names) {
            if (named.thing.kind == NamedKind::Material && materials.contains(named.key))
                uses.push_back({file, named, materials.value(named.key)});
        }
    }
    return uses;
}

QStringList ReferenceIndex::texturesOf(const QString &materialPath) const
{
    const QString key = pathKey(materialPath);
    QStringList textures;
    for (const FileNamingPtr &file : m_files) {
        if (file->type != IndexedType::Materials || !key.startsWith(pathKey(file->materialPath(-1))))
            continue;
        for (const NamedInFile &named : file->names) {
            for (const RecordRef &place : file->placesOf(named)) {
                if (pathKey(file->materialPath(place.index[0])) == key &&
                    !textures.contains(named.thing.path))
                    textures += named.thing.path;
            }
        }
    }
    return textures;
}

QSet<QString> ReferenceIndex::keysNamed(NamedKind kind) const
{
    QSet<QString> keys;
    for (const FileNamingPtr &file : m_files) {
        for (const NamedInFile &each : file->names) {
            if (each.thing.kind == kind)
                keys.insert(each.key);
        }
    }
    return keys;
}

std::vector<ReferenceIndex::Unused> ReferenceIndex::unusedMaterials() const
{
    const QSet<QString> named = keysNamed(NamedKind::Material);
    std::vector<Unused> unused;
    for (const FileNamingPtr &file : m_files) {
        for (int i = 0; i < file->materials.size(); ++i) {
            const QString path = file->materialPath(i);
            if (!named.contains(pathKey(path)))
                unused.push_back({file, path});
        }
    }
    return unused;
}

std::vector<ReferenceIndex::Unused> ReferenceIndex::unusedTextures() const
{
    const QSet<QString> named = keysNamed(NamedKind::Texture);
    std::vector<Unused> unused;
    for (const FileNamingPtr &file : m_files) {
        if (file->type == IndexedType::Picture && !named.contains(pathKey(file->relative)))
            unused.push_back({file, file->relative});
    }
    return unused;
}

QSet<QString> ReferenceIndex::unusedFiles() const
{
    QSet<QString> paths;
    for (const Unused &texture : unusedTextures())
        paths.insert(texture.file->path);
    QHash<QString, int> materials; // that nobody names, by their files
    for (const Unused &material : unusedMaterials()) {
        if (++materials[material.file->path] == material.file->materials.size())
            paths.insert(material.file->path);
    }
    return paths;
}

QSet<int> ReferenceIndex::numbersNamed(NamedKind kind) const
{
    QSet<int> numbers;
    for (const FileNamingPtr &file : m_files) {
        for (const NamedInFile &each : file->names) {
            if (each.thing.kind == kind)
                numbers.insert(int(each.thing.number));
        }
    }
    return numbers;
}

ReferenceIndexPtr makeReferenceIndex(const MaterialFolders &folders,
                                     const std::function<ReferenceIndexPtr()> &known,
                                     const std::atomic_bool &isCancelled, IndexProgress &progress,
                                     int threads)
{
    FolderListing listing = listFolders(folders, isCancelled);
    const std::vector<ListedFile> &files = listing.files;
    std::vector<FileStamp> stamps(files.size());
    progress.files = int(files.size());
    forEach(files.size(), threads, isCancelled,
            [&](size_t at) { stamps[at] = FileStamp::of(files[at].path); });
    std::vector<FileNamingPtr> namings(files.size());
    const ReferenceIndexPtr before = known();
    forEach(files.size(), threads, isCancelled, [&](size_t at) {
        namings[at] = namingAsItIs(files[at], stamps[at], before, progress);
        ++progress.done;
    });
    if (isCancelled)
        return nullptr;
    return std::make_shared<const ReferenceIndex>(folders, std::move(namings), std::move(listing.gaps),
                                                  listing.isCut);
}
