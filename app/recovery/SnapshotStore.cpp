// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SnapshotStore.h"

#include "FolderLock.h"
#include "Log.h"
#include "Memory.h"
#include "OwnFolders.h"
#include "SnapshotFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QRunnable>

#include <algorithm>

namespace {
constexpr int MostReports = 5;
const QString Suffix = QStringLiteral(".snapshot");
const QString DamagedSuffix = QStringLiteral(".damaged");
const QString LockFile = QStringLiteral("lock");
const QString ReportFile = QStringLiteral("crash.txt");

/// The newest first; of the same time, as file systems tell it, those with the later names.
QFileInfoList filesOf(const QString &folder, const QString &pattern)
{
    QFileInfoList files =
        QDir(folder).entryInfoList({pattern}, QDir::Files, QDir::SortFlags(QDir::Name | QDir::Reversed));
    std::stable_sort(files.begin(), files.end(), [](const QFileInfo &a, const QFileInfo &b) {
        return a.lastModified() > b.lastModified();
    });
    return files;
}

class Job : public QRunnable
{
public:
    explicit Job(std::function<void()> work)
        : m_work(std::move(work))
    {}
    void run() override { m_work(); }

private:
    std::function<void()> m_work;
};

/// What a folder keeps, the newest first; what is damaged has no sequence.
QVector<Snapshot> snapshotsIn(const QString &folder)
{
    QVector<Snapshot> all;
    const QFileInfoList files = filesOf(folder, QLatin1Char('*') + Suffix);
    for (const QFileInfo &file : files) {
        Snapshot snapshot;
        if (SnapshotFile::readHeader(file.filePath(), &snapshot))
            snapshot = {};
        snapshot.file = file.fileName();
        all.append(snapshot);
    }
    std::stable_sort(all.begin(), all.end(),
                     [](const Snapshot &a, const Snapshot &b) { return a.sequence > b.sequence; });
    return all;
}

/// Of what is left after `spared`, the oldest go.
void removeOldest(const QString &folder, const QSet<QString> &spared)
{
    const QVector<Snapshot> all = snapshotsIn(folder);
    int surplus = all.size() - SnapshotStore::MostKept;
    for (int i = all.size() - 1; i >= 0 && surplus > 0; --i) {
        if (!spared.contains(all.at(i).file)) {
            QFile::remove(folder + QLatin1Char('/') + all.at(i).file);
            --surplus;
        }
    }
}

/// Removes those of the folders that hold nothing any more and that no program has.
void removeEmpty(const QString &root, const QStringList &folders)
{
    const FolderLock all(root + QLatin1Char('/') + LockFile, FolderLock::Yes);
    for (const QString &folder : folders) {
        FolderLock lock(folder + QLatin1Char('/') + LockFile);
        // The lock file goes last, and only with the folder.
        if (all.isHeld() && lock.isHeld() &&
            QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot) ==
                QStringList(LockFile)) {
            lock.removeFile();
            QDir().rmdir(folder);
        }
    }
}
} // namespace

SnapshotStore::SnapshotStore(const QString &root, QObject *parent)
    : QObject(parent)
    , m_root(root)
{
    // One thread: a file is removed after it was written, not before.
    m_thread.setMaxThreadCount(1);
    if (createFolder())
        takeOver();
    else
        Log::warning(
            tr("[Recovery] Unsaved work cannot be kept in '%1'").arg(QDir::toNativeSeparators(root)));
}

SnapshotStore::~SnapshotStore()
{
    waitForDone();
    if (m_folder.isEmpty())
        return;
    const FolderLock root(m_root + QLatin1Char('/') + LockFile, FolderLock::Yes);
    QDir folder(m_folder);
    if (root.isHeld() && folder.entryList(QDir::Files) == QStringList(LockFile)) {
        m_lock->removeFile();
        folder.rmdir(m_folder);
    }
}

QString SnapshotStore::defaultRoot()
{
    return OwnFolders::local() + QStringLiteral("/recovery");
}

QString SnapshotStore::crashReportPath() const
{
    return m_folder.isEmpty() ? QString() : pathOf(ReportFile);
}

bool SnapshotStore::createFolder()
{
    if (!QDir().mkpath(m_root))
        return false;
    // Nobody takes the new folder for a left one before it is locked.
    const FolderLock root(m_root + QLatin1Char('/') + LockFile, FolderLock::Yes);
    if (!root.isHeld())
        return false;
    const QString stem = QStringLiteral("%1/%2-%3")
                             .arg(m_root)
                             .arg(QCoreApplication::applicationPid())
                             .arg(QDateTime::currentMSecsSinceEpoch());
    for (int i = 0; i < 100 && m_folder.isEmpty(); ++i) {
        const QString folder = stem + QLatin1Char('-') + QString::number(i);
        if (!QDir().mkdir(folder))
            continue;
        m_lock = std::make_unique<FolderLock>(folder + QLatin1Char('/') + LockFile);
        if (!m_lock->isHeld())
            return false;
        m_folder = folder;
    }
    return !m_folder.isEmpty();
}

void SnapshotStore::takeOver()
{
    QStringList left;
    {
        const FolderLock root(m_root + QLatin1Char('/') + LockFile, FolderLock::Yes);
        const QFileInfoList folders = QDir(m_root).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QFileInfo &folder : folders) {
            if (root.isHeld() && folder.filePath() != m_folder && takeOver(folder.filePath()))
                left.append(folder.filePath());
        }
    }
    keepNewest(QStringLiteral("crash-*.txt"), MostReports);
    keepNewest(QLatin1Char('*') + DamagedSuffix, MostKept);
    removeOldest(m_folder, {});
    findLast();
    // A disk may take its time for that, and the window waits.
    if (!left.isEmpty())
        run([root = m_root, left] { removeEmpty(root, left); });
}

void SnapshotStore::keepNewest(const QString &pattern, int count)
{
    const QFileInfoList files = filesOf(m_root, pattern);
    for (int i = count; i < files.size(); ++i)
        QFile::remove(files.at(i).filePath());
}

void SnapshotStore::findLast()
{
    // Those of programs that run are later offered beside ours.
    const QFileInfoList folders = QDir(m_root).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QFileInfo &folder : folders) {
        const QVector<Snapshot> all = snapshotsIn(folder.filePath());
        if (!all.isEmpty())
            m_last = std::max(m_last, all.first().sequence);
    }
}

bool SnapshotStore::takeOver(const QString &folder)
{
    const FolderLock lock(folder + QLatin1Char('/') + LockFile);
    if (!lock.isHeld())
        return false;
    const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden, QDir::Time);
    for (const QFileInfo &file : files) {
        if (file.fileName() == ReportFile)
            takeOverReport(file.filePath());
        else if (file.fileName().endsWith(Suffix))
            QFile::rename(file.filePath(), pathOf(file.fileName()));
        else if (file.fileName().contains(Suffix + QLatin1Char('.')))
            QFile::remove(file.filePath()); // half written when its program ended
    }
    return true;
}

void SnapshotStore::takeOverReport(const QString &report)
{
    const QString time = QFileInfo(report).lastModified().toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"));
    const QString path = QStringLiteral("%1/crash-%2.txt").arg(m_root, time);
    if (QFile::rename(report, path))
        m_crashReports.prepend(path);
}

QString SnapshotStore::newFile(const QString &extension)
{
    return QStringLiteral("%1-%2-%3.%4%5")
        .arg(QDateTime::currentMSecsSinceEpoch())
        .arg(QCoreApplication::applicationPid())
        .arg(++m_files, 6, 10, QLatin1Char('0'))
        .arg(extension, Suffix);
}

void SnapshotStore::run(const std::function<void()> &job)
{
    ++m_jobs;
    m_thread.start(new Job([this, job] {
        job();
        --m_jobs;
    }));
}

void SnapshotStore::keep(const Snapshot &snapshot, std::function<std::vector<uchar>()> model,
                         const QSet<QString> &spared)
{
    if (m_folder.isEmpty())
        return;
    const QString path = pathOf(snapshot.file);
    m_last = std::max(QDateTime::currentMSecsSinceEpoch(), m_last + 1);
    Snapshot kept = snapshot;
    kept.sequence = m_last;
    run([this, kept, model = std::move(model), path, spared] {
        QString reason;
        const QString lack = withinMemory([&] { reason = SnapshotFile::write(path, kept, model()); });
        if (!lack.isEmpty())
            reason = lack;
        if (reason.isEmpty())
            removeOldest(m_folder, spared);
        else
            emit failed(kept.file, reason);
    });
}

void SnapshotStore::remove(const QString &file)
{
    if (!m_folder.isEmpty())
        run([path = pathOf(file)] { QFile::remove(path); });
}

void SnapshotStore::waitForDone()
{
    m_thread.waitForDone();
}

QVector<Snapshot> SnapshotStore::snapshots()
{
    waitForDone();
    if (m_folder.isEmpty())
        return {};
    QVector<Snapshot> all = snapshotsIn(m_folder);
    while (!all.isEmpty() && !all.last().time.isValid()) {
        const Snapshot damaged = all.takeLast();
        if (m_stuck.contains(damaged.file))
            continue;
        setAside(damaged);
        Log::warning(tr("[Recovery] '%1' is damaged and was left out")
                         .arg(QDir::toNativeSeparators(m_damaged.constLast().path)));
    }
    return all;
}

void SnapshotStore::setAside(const Snapshot &snapshot)
{
    waitForDone();
    const QString path = m_root + QLatin1Char('/') + snapshot.file + DamagedSuffix;
    QFile::remove(path);
    const bool moved = QFile::rename(pathOf(snapshot.file), path);
    if (!moved)
        m_stuck.insert(snapshot.file);
    const QString where = moved ? path : pathOf(snapshot.file);
    const bool isKnown = std::any_of(m_damaged.cbegin(), m_damaged.cend(),
                                     [&where](const Damaged &each) { return each.path == where; });
    if (!isKnown)
        m_damaged.append({snapshot.name, where});
}

bool SnapshotStore::read(const Snapshot &snapshot, QByteArray *model)
{
    waitForDone();
    return SnapshotFile::readModel(pathOf(snapshot.file), model);
}
