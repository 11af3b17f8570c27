// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ZipArchive.h"

#include "Memory.h"
#include "ZipNames.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>

#include <algorithm>
#include <cstring>

namespace {
/// As many threads as read at once keep their way into the archive, but not where nobody could replace a file
/// that is open.
#ifdef Q_OS_WIN
constexpr size_t MostIdle = 0;
#else
constexpr size_t MostIdle = 4;
#endif
constexpr int MostLeftOutNames = 5;
constexpr int MostLeftOutBytes = 80;
constexpr int MostFolders = ZipArchive::MostEntries;
/// A header is read without unpacking all that follows it.
constexpr qint64 StepBytes = 64 * 1024;
/// So often it is looked at how much comes of how little.
constexpr qint64 MostStepBytes = 4 * 1024 * 1024;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Archive)
};

/// Whether so much comes of so little as no file of a game does.
bool isTooMuch(qint64 unpacked, qint64 packed)
{
    return unpacked > ZipArchive::FreeBytes && unpacked / ZipArchive::MostRatio > packed;
}

QString damage()
{
    return Texts::tr("It is damaged in its archive.");
}

QString tooMuch()
{
    return Texts::tr("It would unpack to more than %1 times its size.").arg(ZipArchive::MostRatio);
}
} // namespace

/// What is behind ZipArchive::read().
class ZipEntryDevice : public QIODevice
{
public:
    ZipEntryDevice(std::shared_ptr<const ZipArchive> archive, std::unique_ptr<ZipReader> reader, qint64 size)
        : m_archive(std::move(archive))
        , m_reader(std::move(reader))
        , m_size(size)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
        if (m_size == 0)
            unpackTo(0);
    }
    ~ZipEntryDevice() override { letGo(); }

    qint64 size() const override { return m_size; }

protected:
    qint64 readData(char *to, qint64 most) override
    {
        const qint64 end = std::min(pos() + most, m_size);
        unpackTo(end);
        if (m_isFailed)
            return -1;
        const qint64 bytes = std::max<qint64>(end - pos(), 0);
        std::memcpy(to, m_unpacked.constData() + pos(), size_t(bytes));
        return bytes;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    void unpackTo(qint64 end)
    {
        if (end > StepBytes && m_reader)
            m_unpacked.reserve(int(m_size));
        while (m_reader && (end > m_unpacked.size() || m_size == 0))
            unpackStep(end);
    }

    void unpackStep(qint64 end)
    {
        const qint64 before = m_unpacked.size();
        const qint64 wantedEnd = std::min(std::max(end, before + StepBytes), before + MostStepBytes);
        const qint64 after = std::min(m_size, wantedEnd);
        m_unpacked.resize(int(after));
        const int wanted = int(after - before);
        QString error;
        bool isInside = true;
        if (m_reader->read(m_unpacked.data() + before, wanted) != wanted) {
            error = damage();
        } else if (isTooMuch(after, m_reader->taken())) {
            error = tooMuch();
        } else if (after == m_size) {
            isInside = false;
            if (!m_reader->leave()) // the checksum counts when all of it was read
                error = damage();
        }
        m_isFailed = !error.isEmpty();
        if (m_isFailed)
            setErrorString(error);
        if (m_isFailed || !isInside)
            letGo(isInside);
    }

    void letGo(bool isInside = true)
    {
        if (!m_reader)
            return;
        if (isInside)
            (void)m_reader->leave();
        m_archive->giveBack(std::move(m_reader));
    }

    const std::shared_ptr<const ZipArchive> m_archive;
    std::unique_ptr<ZipReader> m_reader; ///< until all is unpacked
    const qint64 m_size;
    QByteArray m_unpacked;
    bool m_isFailed = false;
};

std::shared_ptr<const ZipArchive> ZipArchive::open(const QString &path, QString &reason)
{
    const auto archive = std::make_shared<ZipArchive>();
    const QFileInfo file(path);
    archive->m_path = path;
    archive->m_size = file.size();
    archive->m_changed = file.lastModified();
    return take(archive, reason);
}

std::shared_ptr<const ZipArchive> ZipArchive::open(const QByteArray &bytes, QString &reason)
{
    const auto archive = std::make_shared<ZipArchive>();
    archive->m_bytes = bytes;
    return take(archive, reason);
}

std::shared_ptr<const ZipArchive> ZipArchive::take(std::shared_ptr<ZipArchive> archive, QString &reason)
{
    std::unique_ptr<ZipReader> reader = archive->makeReader();
    if (!reader) {
        reason = Texts::tr("It is no zip archive that can be read.");
        return nullptr;
    }
    const QString lack = withinMemory([&] { archive->index(*reader, reason); });
    if (!lack.isEmpty())
        reason = lack;
    if (!reason.isEmpty())
        return nullptr;
    archive->giveBack(std::move(reader));
    return archive;
}

std::unique_ptr<ZipReader> ZipArchive::makeReader() const
{
    std::unique_ptr<QIODevice> device;
    if (m_path.isEmpty()) {
        auto buffer = std::make_unique<QBuffer>();
        buffer->setData(m_bytes);
        device = std::move(buffer);
    } else {
        device = std::make_unique<QFile>(m_path);
        // Opening a pipe would wait for a writer for ever; and another file may stand there by now.
        const QFileInfo file(m_path);
        if (!file.isFile() || file.size() != m_size || file.lastModified() != m_changed)
            return nullptr;
    }
    if (!device->open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return nullptr;
    return ZipReader::open(std::move(device));
}

std::unique_ptr<ZipReader> ZipArchive::borrow() const
{
    {
        const QMutexLocker lock(&m_mutex);
        if (!m_idle.empty()) {
            std::unique_ptr<ZipReader> reader = std::move(m_idle.back());
            m_idle.pop_back();
            return reader;
        }
    }
    return makeReader();
}

void ZipArchive::giveBack(std::unique_ptr<ZipReader> reader) const
{
    const QMutexLocker lock(&m_mutex);
    if (m_idle.size() < MostIdle)
        m_idle.push_back(std::move(reader));
}

void ZipArchive::index(ZipReader &reader, QString &reason)
{
    m_folders.push_back({});
    m_folderByPath.insert(QString(), 0);
    const int expected = int(std::min<quint64>(reader.count(), MostEntries));
    m_files.reserve(size_t(std::min<qint64>(expected, reader.size() / 46))); // bytes of the shortest entry
    m_fileByPath.reserve(int(m_files.capacity()));
    ZipReader::Listed listed;
    bool isWhole = true;
    int entries = 0;
    while (reader.next(listed, isWhole)) {
        if (++entries > MostEntries) {
            reason = Texts::tr("The archive has more than %1 entries.").arg(MostEntries);
            return;
        }
        add(listed);
        if (m_nameBytes > MostNameBytes) {
            reason = Texts::tr("The names in the archive take more than %1 MiB.").arg(MostNameBytes >> 20);
            return;
        }
    }
    if (!isWhole)
        reason = Texts::tr("The archive is damaged: its directory ends after %1 entries.").arg(entries);
}

void ZipArchive::add(const ZipReader::Listed &listed)
{
    ZipName name = zipName(listed.name, listed.isUtf8);
    if (name.isRefused || listed.isLink)
        return leaveOut(listed.name);
    if (name.isFolder) {
        if (folderFor(name.path) < 0)
            leaveOut(listed.name);
        return;
    }
    const QString key = name.path.toCaseFolded();
    ZipEntry entry = listed.entry;
    entry.path = std::move(name.path);
    const auto known = m_fileByPath.constFind(key);
    if (known != m_fileByPath.constEnd()) {
        // Whoever unpacks the archive ends up with the last one.
        m_files[size_t(*known)] = std::move(entry);
        return;
    }
    const int slash = entry.path.lastIndexOf(QLatin1Char('/'));
    const int folder = slash < 0 ? 0 : folderFor(entry.path.left(slash));
    if (folder < 0 || m_folderByPath.contains(key))
        return leaveOut(listed.name);
    countName(entry.path);
    m_fileByPath.insert(key, int(m_files.size()));
    m_folders[size_t(folder)].files.push_back(int(m_files.size()));
    m_files.push_back(std::move(entry));
}

void ZipArchive::leaveOut(const QByteArray &name)
{
    ++m_leftOutCount;
    if (m_leftOut.size() < MostLeftOutNames)
        m_leftOut.append(
            QString::fromLatin1(name.left(MostLeftOutBytes)).replace(QChar(0), QLatin1Char('?')));
}

/// The number of a folder, which comes to be with those around it; -1 where a file stands, or there are too
/// many.
int ZipArchive::folderFor(const QString &path)
{
    const QString key = path.toCaseFolded();
    const auto known = m_folderByPath.constFind(key);
    if (known != m_folderByPath.constEnd())
        return *known;
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    const int around = slash < 0 ? 0 : folderFor(path.left(slash));
    if (around < 0 || m_fileByPath.contains(key) || m_folders.size() >= size_t(MostFolders))
        return -1;
    countName(path);
    const int number = int(m_folders.size());
    m_folders[size_t(around)].folders.push_back(number);
    m_folders.push_back({path, {}, {}});
    m_folderByPath.insert(key, number);
    return number;
}

void ZipArchive::countName(const QString &path)
{
    m_nameBytes += 2 * qint64(sizeof(QChar)) * path.size(); // it and its key
}

const ZipEntry *ZipArchive::file(const QString &path) const
{
    const auto known = m_fileByPath.constFind(path.toCaseFolded());
    return known == m_fileByPath.constEnd() ? nullptr : &m_files[size_t(*known)];
}

const ZipArchive::Folder *ZipArchive::folder(const QString &path) const
{
    const auto known = m_folderByPath.constFind(path.toCaseFolded());
    return known == m_folderByPath.constEnd() ? nullptr : &m_folders[size_t(*known)];
}

std::unique_ptr<QIODevice> ZipArchive::read(const ZipEntry &entry, QString &reason) const
{
    constexpr int stored = 0, deflated = 8;
    if (entry.isEncrypted)
        reason = Texts::tr("It is encrypted in its archive.");
    else if (entry.method != stored && entry.method != deflated)
        reason = Texts::tr("It is packed in a way that is not read (method %1).").arg(entry.method);
    else if (entry.size > MostBytes)
        reason = Texts::tr("It would unpack to more than %1 MiB.").arg(MostBytes >> 20);
    else if (entry.packed > (m_path.isEmpty() ? m_bytes.size() : m_size))
        reason = damage();
    else if (isTooMuch(entry.size, entry.packed))
        reason = tooMuch();
    if (!reason.isEmpty())
        return nullptr;
    std::unique_ptr<ZipReader> reader = borrow();
    if (!reader || !reader->enter(entry)) {
        reason = damage();
        return nullptr;
    }
    return std::make_unique<ZipEntryDevice>(shared_from_this(), std::move(reader), entry.size);
}
