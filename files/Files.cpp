// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Files.h"

#include "CaseOnDisk.h"
#include "FileStamp.h"
#include "FileSystem.h"
#include "Log.h"
#include "ZipArchive.h"

#include <QCache>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>

#include <algorithm>
#include <utility>

namespace {
/// Of game and mod, and of what somebody looks at beside them.
constexpr int MostArchives = 4;
/// With names of more than this an archive counts as two, and so on.
constexpr qint64 BytesAsOne = ZipArchive::MostNameBytes / 2;

struct FilesTexts
{
    Q_DECLARE_TR_FUNCTIONS(Archive)
};

/// A state of an archive on the disk, and what came of reading it.
struct OpenArchive
{
    qint64 size = -1;
    qint64 modified = 0; ///< milliseconds since 1970
    std::shared_ptr<const ZipArchive> archive;
    QString reason; ///< why there is none
    bool isTold = false;
};

struct Slot
{
    qint64 size = -1; ///< of what was read, as the next; for who has Kept's mutex
    qint64 modified = 0;
    QMutex mutex; ///< held while the directory is read: who else asks, asks for the same
    OpenArchive held;
};

struct Kept
{
    QMutex mutex; ///< held while nothing is read; taken last
    QCache<QString, std::shared_ptr<Slot>> archives{MostArchives};
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

/// What the console is told of an archive; empty when nothing.
LogLine lineAbout(const QString &path, const OpenArchive &open)
{
    const QString native = QDir::toNativeSeparators(path);
    if (!open.archive)
        return {LogSeverity::Error, QStringLiteral("'%1': %2").arg(native, open.reason)};
    const int count = open.archive->leftOutCount();
    if (count == 0)
        return {LogSeverity::Warning, {}};
    return {
        LogSeverity::Warning,
        FilesTexts::tr("'%1': %n entries are left out: links, and what has no place below the archive: %2",
                       nullptr, count)
            .arg(native, open.archive->leftOut().join(QLatin1String(", ")))};
}

/// With `tells`, the console is told once of what is wrong with a state of the archive.
OpenArchive archiveAt(const QString &path, bool tells = true)
{
    const QFileInfo file(path);
    const qint64 modified = file.lastModified().toMSecsSinceEpoch();
    Kept &all = kept();
    std::shared_ptr<Slot> slot;
    {
        const QMutexLocker lock(&all.mutex);
        const std::shared_ptr<Slot> *known = all.archives.object(path);
        slot = known ? *known : std::make_shared<Slot>();
        if (!known)
            all.archives.insert(path, new std::shared_ptr<Slot>(slot));
    }
    OpenArchive open;
    LogLine line{};
    {
        const QMutexLocker lock(&slot->mutex);
        OpenArchive &held = slot->held;
        if (held.size != file.size() || held.modified != modified) {
            held = {file.size(), modified, {}, {}, false};
            held.archive = ZipArchive::open(path, held.reason);
            const qint64 bytes = held.archive ? held.archive->nameBytes() : 0;
            const QMutexLocker allLock(&all.mutex);
            slot->size = held.size;
            slot->modified = held.modified;
            all.archives.insert(path, new std::shared_ptr<Slot>(slot), int(1 + bytes / BytesAsOne));
        }
        if (tells && !std::exchange(held.isTold, true))
            line = lineAbout(path, held);
        open = held;
    }
    if (!line.text.isEmpty())
        Log::sayInTime(line.severity, line.text);
    return open;
}

/// As folders hide what is called so.
bool isHidden(const QString &path)
{
    return path.midRef(path.lastIndexOf(QLatin1Char('/')) + 1).startsWith(QLatin1Char('.'));
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
            if (!isHidden(m_archive.fileAt(file).path) &&
                !m_visit({m_root + m_archive.fileAt(file).path, number, false}))
                return false;
        }
        for (const int each : folder.folders) {
            const ZipArchive::Folder &below = m_archive.folderAt(each);
            if (isHidden(below.path))
                continue;
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
        const OpenArchive open = archiveAt(place.archive, false); // it may be just being written
        const ZipEntry *entry = open.archive ? open.archive->file(place.inside) : nullptr;
        return entry ? FileStamp{entry->size, entry->checksum} : FileStamp();
    }
    if (path.startsWith(QLatin1Char(':'))) { // a resource of the program
        const QFileInfo resource(path);
        return resource.isFile() ? FileStamp{resource.size(), 0} : FileStamp();
    }
    const auto state = FileSystem::stateOf(path);
    return state ? FileStamp{state->size, state->modified} : FileStamp();
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
    // By name: an archive that is away may come back.
    for (int end = archiveNameEnd(path, 0); end >= 0; end = archiveNameEnd(path, end)) {
        if (!QFileInfo(path.left(end)).isDir())
            return path.left(end);
    }
    return path;
}

QString Files::folderOnDisk(const QString &folder)
{
    const QString held = heldBy(folder);
    return isArchiveName(held) && !QFileInfo(held).isDir() ? QFileInfo(held).path() : folder;
}

QString Files::placeInArchive(const QString &path)
{
    return Place(path).inside;
}

QString Files::archiveProblem(const QString &archive)
{
    return QFileInfo(archive).isFile() ? archiveAt(archive, false).reason : QString();
}

bool Files::isUnread(const QString &path)
{
    const QString archive = archiveOf(path);
    if (archive.isEmpty())
        return false;
    const QFileInfo file(archive);
    Kept &all = kept();
    const QMutexLocker lock(&all.mutex);
    const std::shared_ptr<Slot> *slot = all.archives.object(archive);
    return !slot || (*slot)->size != file.size() ||
           (*slot)->modified != file.lastModified().toMSecsSinceEpoch();
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

QString Files::trueCase(const QString &path, int from)
{
    const Place place(path);
    if (!place.isInArchive()) {
        const QString found = caseOnDisk(path, from);
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
        if (!isHidden(path))
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
