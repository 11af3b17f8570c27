// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Files.h"

#include "FileStamp.h"
#include "FileSystem.h"
#include "Log.h"
#include "ZipArchive.h"

#include <QCache>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {
/// Of game and mod, and of what somebody looks at beside them.
constexpr int MostArchives = 4;
constexpr int MostListings = 512;
/// A folder that has changed a moment ago may change again without another time.
constexpr qint64 RestMs = 2000;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Archive)
};

/// A state of an archive on the disk, and what came of reading it.
struct OpenArchive
{
    qint64 size = 0;
    qint64 modified = 0; ///< milliseconds since 1970
    std::shared_ptr<const ZipArchive> archive;
    QString reason; ///< why there is none
};

/// The names in a folder by what they are in one case.
struct Listing
{
    qint64 modified = 0;
    QHash<QString, QString> names;
};

struct Kept
{
    QMutex mutex; ///< held while a directory is read: who else asks, asks for the same
    QCache<QString, OpenArchive> archives{MostArchives};
    QMutex listingMutex;
    QCache<QString, Listing> listings{MostListings};
};

/// Never destroyed: a thread may still read when the window system ends the program.
Kept &kept()
{
    static auto *all = new Kept;
    return *all;
}

/// Where the archive's own name ends in a path; -1 where none is called so. Later ones are looked for from
/// `from`.
int archiveNameEnd(const QString &path, int from)
{
    for (int dot = path.indexOf(QLatin1Char('.'), from); dot >= 0;
         dot = path.indexOf(QLatin1Char('.'), dot + 1)) {
        const int end = dot + 4;
        const QStringRef suffix = path.midRef(dot, 4);
        const bool isName = suffix.compare(QLatin1String(".kpf"), Qt::CaseInsensitive) == 0 ||
                            suffix.compare(QLatin1String(".zip"), Qt::CaseInsensitive) == 0;
        if (isName && (end == path.size() || path[end] == QLatin1Char('/')))
            return end;
    }
    return -1;
}

/// A path as archive and place in it. Both are empty where it leads into no archive.
struct Place
{
    QString archive;
    QString inside;

    explicit Place(const QString &path)
    {
        for (int end = archiveNameEnd(path, 0); end >= 0; end = archiveNameEnd(path, end)) {
            if (!QFileInfo(path.left(end)).isFile())
                continue;
            archive = path.left(end);
            inside = path.mid(end + 1);
            // Folders take ".." and double slashes; an archive has none.
            if (inside.contains(QLatin1String("..")) || inside.contains(QLatin1String("//")) ||
                inside.contains(QLatin1String("./")) || inside.endsWith(QLatin1Char('/'))) {
                inside = QDir::cleanPath(inside);
                if (inside == QLatin1String("."))
                    inside.clear();
            }
            return;
        }
    }
    bool isInArchive() const { return !archive.isEmpty(); }
};

void tellLeftOut(const QString &path, const ZipArchive &archive)
{
    if (archive.leftOutCount() == 0)
        return;
    Log::warning(Texts::tr("'%1': %n entries are left out, since their names lead elsewhere: %2", nullptr,
                           archive.leftOutCount())
                     .arg(QDir::toNativeSeparators(path), archive.leftOut().join(QLatin1String(", "))));
}

OpenArchive archiveAt(const QString &path)
{
    const QFileInfo file(path);
    const qint64 modified = file.lastModified().toMSecsSinceEpoch();
    Kept &all = kept();
    const QMutexLocker lock(&all.mutex);
    const OpenArchive *known = all.archives.object(path);
    if (known && known->size == file.size() && known->modified == modified)
        return *known;
    auto *made = new OpenArchive{file.size(), modified, {}, {}};
    made->archive = ZipArchive::open(path, made->reason);
    if (made->archive)
        tellLeftOut(path, *made->archive);
    else
        Log::error(QStringLiteral("'%1': %2").arg(QDir::toNativeSeparators(path), made->reason));
    const OpenArchive result = *made;
    all.archives.insert(path, made);
    return result;
}

/// What a folder calls a name that is given in any case; empty when nothing there is called so.
QString nameIn(const QString &folder, const QString &name)
{
    const qint64 modified = QFileInfo(folder).lastModified().toMSecsSinceEpoch();
    Kept &all = kept();
    const QMutexLocker lock(&all.listingMutex);
    const Listing *known = all.listings.object(folder);
    const bool rests = QDateTime::currentMSecsSinceEpoch() - modified > RestMs;
    if (known && known->modified == modified && rests)
        return known->names.value(name.toCaseFolded());
    auto *made = new Listing{modified, {}};
    const QStringList there = QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &each : there)
        made->names.insert(each.toCaseFolded(), each);
    const QString found = made->names.value(name.toCaseFolded());
    all.listings.insert(folder, made);
    return found;
}

/// A path on the disk in the case that it has there; empty when there is none.
QString caseOnDisk(const QString &path)
{
    // Where the system finds all of them, that one is there says nothing of how it is called.
    static const bool takesAnyCase = FileSystem::isSamePath(QStringLiteral("a"), QStringLiteral("A"));
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    if (!takesAnyCase || slash <= 0) {
        if (QFileInfo::exists(path))
            return path;
        if (slash <= 0)
            return {};
    }
    const QString folder = caseOnDisk(path.left(slash));
    const QString name = folder.isEmpty() ? QString() : nameIn(folder, path.mid(slash + 1));
    return name.isEmpty() ? QString() : folder + QLatin1Char('/') + name;
}

/// An archive's folders and files below one of them, each folder before what is in it.
class ArchiveWalk
{
public:
    ArchiveWalk(const ZipArchive &archive, QString root,
                const std::function<bool(const FolderEntry &)> &visit)
        : m_archive(archive)
        , m_root(std::move(root))
        , m_visit(visit)
    {}

    /// As deep as the archive lets folders be.
    bool go(const ZipArchive::Folder &folder, int number)
    {
        for (const int file : folder.files) {
            if (!m_visit({m_root + m_archive.fileAt(file).path, number, false}))
                return false;
        }
        for (const int each : folder.folders) {
            const ZipArchive::Folder &below = m_archive.folderAt(each);
            const int belowNumber = ++m_folders;
            if (!m_visit({m_root + below.path, number, true}) || !go(below, belowNumber))
                return false;
        }
        return true;
    }

private:
    const ZipArchive &m_archive;
    const QString m_root;
    const std::function<bool(const FolderEntry &)> &m_visit;
    int m_folders = 0;
};
} // namespace

FileStamp FileStamp::of(const QString &path)
{
    const Place place(path);
    if (place.isInArchive() && !place.inside.isEmpty()) {
        const OpenArchive open = archiveAt(place.archive);
        const ZipEntry *entry = open.archive ? open.archive->file(place.inside) : nullptr;
        return entry ? FileStamp{entry->size, entry->checksum} : FileStamp();
    }
    const QFileInfo file(path);
    return file.isFile() ? FileStamp{file.size(), file.lastModified().toMSecsSinceEpoch()} : FileStamp();
}

bool Files::isArchiveName(const QString &path)
{
    for (int end = archiveNameEnd(path, 0); end >= 0; end = archiveNameEnd(path, end)) {
        if (end == path.size())
            return true;
    }
    return false;
}

QString Files::archiveOf(const QString &path)
{
    return Place(path).archive;
}

QString Files::heldBy(const QString &path)
{
    const QString archive = archiveOf(path);
    return archive.isEmpty() ? path : archive;
}

QString Files::placeInArchive(const QString &path)
{
    return Place(path).inside;
}

QString Files::archiveProblem(const QString &archive)
{
    return archiveAt(archive).reason;
}

bool Files::isFile(const QString &path)
{
    const Place place(path);
    if (!place.isInArchive() || place.inside.isEmpty())
        return QFileInfo(path).isFile();
    const OpenArchive open = archiveAt(place.archive);
    return open.archive && open.archive->file(place.inside);
}

bool Files::isFolder(const QString &path)
{
    const Place place(path);
    if (!place.isInArchive())
        return QFileInfo(path).isDir();
    const OpenArchive open = archiveAt(place.archive);
    return open.archive && open.archive->folder(place.inside);
}

QString Files::trueCase(const QString &path)
{
    const Place place(path);
    if (!place.isInArchive()) {
        const QString found = caseOnDisk(path);
        return found.isEmpty() ? path : found;
    }
    const OpenArchive open = archiveAt(place.archive);
    const ZipEntry *file = open.archive ? open.archive->file(place.inside) : nullptr;
    const ZipArchive::Folder *folder = open.archive ? open.archive->folder(place.inside) : nullptr;
    const QString found = file ? file->path : folder ? folder->path : place.inside;
    return found.isEmpty() ? place.archive : place.archive + QLatin1Char('/') + found;
}

std::unique_ptr<QIODevice> Files::open(const QString &path, QString *reason, QIODevice::OpenMode mode)
{
    const Place place(path);
    QString why;
    std::unique_ptr<QIODevice> device;
    if (place.isInArchive() && !place.inside.isEmpty()) {
        const OpenArchive open = archiveAt(place.archive);
        const ZipEntry *entry = open.archive ? open.archive->file(place.inside) : nullptr;
        if (entry)
            device = open.archive->read(*entry, why);
        else
            why = open.reason;
    } else if (QFileInfo(path).isFile()) { // opening a pipe would wait for a writer for ever
        device = std::make_unique<QFile>(path);
        if (!device->open(mode)) {
            why = device->errorString();
            device.reset();
        }
    }
    if (reason)
        *reason = why;
    return device;
}

QByteArray Files::read(const QString &path, qint64 most)
{
    const std::unique_ptr<QIODevice> device = open(path);
    return device && device->size() <= most ? device->readAll() : QByteArray();
}

QStringList Files::names(const QString &folder, Kind kind)
{
    const Place place(folder);
    if (!place.isInArchive()) {
        return QDir(folder).entryList(kind == Kind::File ? QDir::Files : QDir::Dirs | QDir::NoDotAndDotDot,
                                      QDir::Name);
    }
    const OpenArchive open = archiveAt(place.archive);
    const ZipArchive::Folder *found = open.archive ? open.archive->folder(place.inside) : nullptr;
    QStringList names;
    if (!found)
        return names;
    for (const int each : kind == Kind::File ? found->files : found->folders) {
        const QString &path =
            kind == Kind::File ? open.archive->fileAt(each).path : open.archive->folderAt(each).path;
        names.append(path.mid(path.lastIndexOf(QLatin1Char('/')) + 1));
    }
    names.sort();
    return names;
}

void Files::walk(const QString &folder, const std::function<bool(const FolderEntry &)> &visit)
{
    const Place place(folder);
    if (!place.isInArchive())
        return walkFolder(folder, visit);
    const OpenArchive open = archiveAt(place.archive);
    if (const ZipArchive::Folder *found = open.archive ? open.archive->folder(place.inside) : nullptr)
        ArchiveWalk(*open.archive, place.archive + QLatin1Char('/'), visit).go(*found, 0);
}
