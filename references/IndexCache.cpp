// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "IndexCache.h"

#include "FileSystem.h"
#include "Log.h"
#include "OwnFolders.h"
#include "WholeFile.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <future>

namespace {
/// Of another version, everything is read anew.
constexpr quint32 CacheVersion = 1;
constexpr char CacheMark[] = "Korvane references\n";
/// Of so many pairs of folders the indexes are kept.
constexpr int MostCaches = 8;
constexpr qint64 MostCacheBytes = 256 * 1024 * 1024;

// The least that records take, in bytes.
constexpr int TextBytes = 4;
constexpr int FileBytes = 42;
constexpr int NameBytes = 29;
constexpr int PlaceBytes = 16;

const auto cacheNames = QStringLiteral("references-*.index");

QByteArray hashOf(std::initializer_list<QByteArray> parts)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const QByteArray &part : parts)
        hash.addData(part);
    return hash.result();
}

/// Each text once, known by its number.
class CachedTexts
{
public:
    qint32 numberOf(const QString &text)
    {
        const auto known = m_numbers.constFind(text);
        if (known != m_numbers.constEnd())
            return *known;
        m_texts += text;
        return *m_numbers.insert(text, m_texts.size() - 1);
    }
    const QStringList &all() const { return m_texts; }

private:
    QStringList m_texts;
    QHash<QString, qint32> m_numbers;
};

void writeFile(QDataStream &out, const FileNaming &file, CachedTexts &texts)
{
    out << texts.numberOf(file.path) << texts.numberOf(file.relative) << file.isMod << quint8(file.type)
        << file.stamp.size << file.stamp.modified << texts.numberOf(file.error);
    out << qint32(file.materials.size());
    for (const QString &material : file.materials)
        out << texts.numberOf(material);
    out << qint32(file.places.size());
    for (const RecordRef &place : file.places)
        out << qint32(place.kind) << place.index[0] << place.index[1] << place.index[2];
    out << qint32(file.names.size());
    for (const NamedInFile &each : file.names)
        out << quint8(each.thing.kind) << each.thing.number << texts.numberOf(each.thing.path)
            << texts.numberOf(each.key) << qint32(each.count) << qint32(each.firstPlace)
            << qint32(each.placeCount);
}

/// Reads a cache; whatever is wrong with it is noted once, and ends it.
class CacheReader
{
public:
    explicit CacheReader(const QByteArray &bytes)
        : m_at(bytes.constData())
        , m_end(m_at + bytes.size())
    {}

    bool isWhole() const { return m_isWhole; }
    bool isAtEnd() const { return m_at == m_end; }

    void readTexts()
    {
        const int texts = count(TextBytes);
        m_texts.reserve(texts);
        for (int i = 0; i < texts && isWhole(); ++i)
            m_texts += newText();
    }

    QString text()
    {
        const int number = integer();
        if (number < 0 || number >= m_texts.size())
            return fail();
        return m_texts[number];
    }

    /// How many records of so many bytes follow.
    int count(int recordBytes)
    {
        const int records = integer();
        if (records >= 0 && records <= (m_end - m_at) / recordBytes)
            return records;
        fail();
        return 0;
    }

    FileNaming readFile()
    {
        FileNaming file;
        file.path = text();
        file.relative = text();
        file.isMod = value<quint8>() != 0;
        const auto type = value<quint8>();
        file.stamp.size = value<qint64>();
        file.stamp.modified = value<qint64>();
        file.error = text();
        if (type > quint8(IndexedType::Picture))
            fail();
        file.type = IndexedType(type);
        for (int i = count(TextBytes); i > 0 && isWhole(); --i)
            file.materials += text();
        readPlaces(file);
        readNames(file);
        return file;
    }

private:
    void readPlaces(FileNaming &file)
    {
        const int places = count(PlaceBytes);
        file.places.reserve(size_t(places));
        for (int i = 0; i < places && isWhole(); ++i) {
            const int kind = integer();
            const RecordIndex index{integer(), integer(), integer()};
            const bool isMaterial = file.type == IndexedType::Materials;
            if (kind < 0 || kind > int(RecordKind::StaticVertices) ||
                *std::min_element(index.begin(), index.end()) < 0 ||
                (isMaterial && index[0] >= file.materials.size()))
                fail();
            file.places.push_back({RecordKind(kind), index});
        }
    }

    void readNames(FileNaming &file)
    {
        const int names = count(NameBytes);
        file.names.reserve(size_t(names));
        for (int i = 0; i < names && isWhole(); ++i) {
            const auto kind = value<quint8>();
            const auto bits = value<quint64>();
            double number = 0.0;
            std::memcpy(&number, &bits, sizeof number);
            if (kind >= namedKinds.size())
                fail();
            const QString path = text();
            const QString key = text();
            NamedInFile named{{NamedKind(kind), number, path}, key, integer(), integer(), integer()};
            const auto places = qint64(file.places.size());
            if (named.firstPlace < 0 || named.placeCount < 1 || named.count < named.placeCount ||
                qint64(named.firstPlace) + named.placeCount > places)
                fail();
            file.names.push_back(std::move(named));
        }
    }

    int integer() { return value<qint32>(); }

    template <typename Value>
    Value value()
    {
        if (m_end - m_at < qint64(sizeof(Value))) {
            fail();
            return {};
        }
        const auto value = qFromLittleEndian<Value>(m_at);
        m_at += sizeof(Value);
        return value;
    }

    /// Bytes of UTF-16 behind their number, as streams of the toolkit have it.
    QString newText()
    {
        constexpr auto Null = ~quint32(0);
        const auto bytes = value<quint32>();
        if (bytes == Null)
            return {};
        if (bytes % sizeof(QChar) != 0 || bytes > m_end - m_at)
            return fail();
        QString text(int(bytes / sizeof(QChar)), Qt::Uninitialized);
        qFromLittleEndian<quint16>(m_at, text.size(), text.data());
        m_at += bytes;
        return text;
    }

    QString fail()
    {
        m_isWhole = false;
        return {};
    }

    const char *m_at;
    const char *m_end;
    QStringList m_texts;
    bool m_isWhole = true;
};

QByteArray folderMark(const MaterialFolders &folders)
{
    const auto mark = [](const QString &folder) {
        return folder.isEmpty() ? QByteArray() : FileSystem::comparable(QDir(folder).absolutePath()).toUtf8();
    };
    return mark(folders.gamePath) + '\n' + mark(folders.outputDir);
}

void removeOldCaches()
{
    const QDir folder(OwnFolders::cache());
    const QStringList kept = folder.entryList({cacheNames}, QDir::Files, QDir::Time);
    for (const QString &name : kept.mid(MostCaches))
        QFile::remove(folder.filePath(name));
}

bool isSameIndex(const ReferenceIndexPtr &a, const ReferenceIndexPtr &b)
{
    return a && b && a->files() == b->files(); // files are shared as long as they are as they were
}
} // namespace

QString IndexCache::pathFor(const MaterialFolders &folders)
{
    const QString name = QString::fromLatin1(hashOf({folderMark(folders)}).toHex().left(16));
    return QDir(OwnFolders::cache()).filePath(QStringLiteral("references-%1.index").arg(name));
}

QByteArray IndexCache::bytesOf(const ReferenceIndex &index)
{
    QByteArray files;
    QByteArray texts;
    CachedTexts cached;
    {
        QDataStream out(&files, QIODevice::WriteOnly);
        out.setVersion(QDataStream::Qt_5_15);
        out.setByteOrder(QDataStream::LittleEndian);
        out << qint32(index.files().size());
        for (const FileNamingPtr &file : index.files())
            writeFile(out, *file, cached);
    }
    QDataStream out(&texts, QIODevice::WriteOnly);
    out.setVersion(QDataStream::Qt_5_15);
    out.setByteOrder(QDataStream::LittleEndian);
    out << qint32(cached.all().size());
    for (const QString &text : cached.all())
        out << text;
    const QByteArray head = CacheMark + QByteArray::number(CacheVersion) + '\n' +
                            hashOf({folderMark(index.folders()), texts, files}).toHex() + '\n';
    return head + texts + files;
}

ReferenceIndexPtr IndexCache::read(const QByteArray &bytes, const MaterialFolders &folders)
{
    const QByteArray start = CacheMark + QByteArray::number(CacheVersion) + '\n';
    const int bodyStart = start.size() + 41; // of the hash, and the end of its line
    if (!bytes.startsWith(start) || bytes.size() < bodyStart)
        return nullptr;
    const QByteArray body = QByteArray::fromRawData(bytes.constData() + bodyStart, bytes.size() - bodyStart);
    return bytes.mid(start.size(), 40) == hashOf({folderMark(folders), body}).toHex()
               ? readBody(body, folders)
               : nullptr;
}

ReferenceIndexPtr IndexCache::readBody(const QByteArray &body, const MaterialFolders &folders)
{
    CacheReader reader(body);
    reader.readTexts();
    const int count = reader.count(FileBytes);
    std::vector<FileNamingPtr> files;
    files.reserve(size_t(count));
    for (int i = 0; i < count && reader.isWhole(); ++i)
        files.push_back(std::make_shared<const FileNaming>(reader.readFile()));
    const auto isBefore = [](const FileNamingPtr &a, const FileNamingPtr &b) { return a->path < b->path; };
    if (!reader.isWhole() || !reader.isAtEnd() || !std::is_sorted(files.begin(), files.end(), isBefore))
        return nullptr;
    return std::make_shared<const ReferenceIndex>(folders, std::move(files));
}

ReferenceIndexPtr IndexCache::load(const MaterialFolders &folders)
{
    QFile file(pathFor(folders));
    if (!file.open(QIODevice::ReadOnly) || file.size() > MostCacheBytes)
        return nullptr;
    return read(file.readAll(), folders);
}

QString IndexCache::store(const ReferenceIndex &index)
{
    const QString path = pathFor(index.folders());
    QDir().mkpath(OwnFolders::cache());
    const QString reason = writeWholeFile(path, bytesOf(index));
    if (reason.isEmpty())
        removeOldCaches();
    return reason;
}

ReferenceIndexPtr IndexCache::bringUpToDate(const MaterialFolders &folders, ReferenceIndexPtr known,
                                            const std::atomic_bool &isCancelled, IndexProgress &progress,
                                            int threads)
{
    // The cache is read while the folders are.
    std::future<ReferenceIndexPtr> loading;
    if (!known)
        loading = std::async(std::launch::async, load, folders);
    const auto before = [&known, &loading] {
        if (loading.valid())
            known = loading.get();
        return known;
    };
    ReferenceIndexPtr made = makeReferenceIndex(folders, before, isCancelled, progress, threads);
    if (made && !isSameIndex(known, made)) {
        const QString reason = store(*made);
        if (!reason.isEmpty())
            Log::sayInTime(LogSeverity::Warning, reason);
    }
    return made;
}
