// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileRun.h"

#include "FolderLock.h"
#include "OwnFolders.h"
#include "WholeFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace {
constexpr int Version = 1;
constexpr std::array<const char *, 4> StateWords{"applying", "applied", "undoing", "undone"};
const QString ListFile = QStringLiteral("run.json");
const QString CopiesFile = QStringLiteral("copies");
const QString LockFile = QStringLiteral("lock");

QByteArray hashOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

/// The bytes of a file; nothing when it is not there. `reason` says why it cannot be read.
std::optional<QByteArray> bytesOf(const QString &path, QString &reason)
{
    QFile file(path);
    if (!file.exists())
        return std::nullopt;
    if (!file.open(QIODevice::ReadOnly)) {
        reason = file.errorString();
        return std::nullopt;
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        reason = file.errorString();
    return bytes;
}

void removeFolder(const QString &folder, std::unique_ptr<FolderLock> lock)
{
    QDir dir(folder);
    // Without its list it is no run any more, whatever else stays.
    dir.remove(ListFile);
    for (const QString &name : dir.entryList(QDir::Files | QDir::Hidden)) {
        if (name != LockFile)
            dir.remove(name);
    }
    lock->removeFile();
    QDir().rmdir(folder);
}
} // namespace

QString FileRun::defaultRoot()
{
    return OwnFolders::local() + QStringLiteral("/runs");
}

std::vector<FileRun> FileRun::all(const QString &root)
{
    std::vector<FileRun> runs;
    const QStringList names =
        QDir(root).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::SortFlags(QDir::Name | QDir::Reversed));
    int finished = 0;
    for (const QString &name : names) {
        FileRun run(root + QLatin1Char('/') + name);
        const bool isRun = run.read();
        finished += isRun && !run.isBrokenOff() ? 1 : 0;
        const bool isHalf = !isRun && !QFileInfo::exists(run.pathOf(ListFile));
        const bool isOld = isRun && !run.isBrokenOff() && finished > MostKept;
        if ((isHalf || isOld) && run.hold())
            run.forget();
        else if (isRun)
            runs.push_back(std::move(run));
    }
    return runs;
}

FileRun::FileRun(const QString &root, const QString &title)
    : m_title(title)
    , m_time(QDateTime::currentDateTimeUtc())
{
    const QString stem =
        root + QLatin1Char('/') + m_time.toString(QStringLiteral("yyyyMMdd-HHmmss-zzz")) + QLatin1Char('-');
    QDir().mkpath(root);
    for (int i = 0; i < 100 && !m_lock; ++i) {
        m_folder = stem + QString::number(i);
        if (QDir().mkdir(m_folder))
            hold();
    }
    if (!m_lock)
        m_lack = tr("The copies of the files cannot be kept in '%1'.").arg(QDir::toNativeSeparators(root));
}

FileRun::FileRun(const QString &folder)
    : m_folder(folder)
{}

FileRun::~FileRun() = default;
FileRun::FileRun(FileRun &&) noexcept = default;
FileRun &FileRun::operator=(FileRun &&) noexcept = default;

QString FileRun::id() const
{
    return QFileInfo(m_folder).fileName();
}

QStringList FileRun::paths() const
{
    QStringList paths;
    for (const File &file : m_files)
        paths += file.path;
    return paths;
}

bool FileRun::hold()
{
    if (m_lock)
        return true;
    auto lock = std::make_unique<FolderLock>(pathOf(LockFile));
    if (!lock->isHeld())
        return false;
    m_lock = std::move(lock);
    return true;
}

void FileRun::forget()
{
    if (hold())
        removeFolder(m_folder, std::move(m_lock));
}

QString FileRun::add(const QString &path, const std::optional<QByteArray> &before, const QByteArray &after)
{
    if (!m_lack.isEmpty())
        return m_lack;
    if (!m_copies)
        m_copies = std::make_unique<WholeFile>(pathOf(CopiesFile));
    File file{path, before ? hashOf(*before) : QByteArray(), hashOf(after)};
    file.at = m_files.empty() ? 0 : m_files.back().at + m_files.back().beforeSize + m_files.back().afterSize;
    file.beforeSize = before ? before->size() : 0;
    file.afterSize = after.size();
    if ((before && m_copies->write(before->constData(), file.beforeSize)) ||
        m_copies->write(after.constData(), file.afterSize))
        return m_lack = m_copies->reason();
    m_files.push_back(file);
    return {};
}

QByteArray FileRun::copyOf(const File &file, bool isBefore) const
{
    QFile copies(pathOf(CopiesFile));
    if (!copies.open(QIODevice::ReadOnly) || !copies.seek(isBefore ? file.at : file.at + file.beforeSize))
        return {};
    return copies.read(isBefore ? file.beforeSize : file.afterSize);
}

// --- The list ----------------------------------------------------------------------------------------------

bool FileRun::read()
{
    QString reason;
    const auto bytes = bytesOf(pathOf(ListFile), reason);
    const QJsonObject object = QJsonDocument::fromJson(bytes.value_or(QByteArray())).object();
    const auto word = std::find(StateWords.begin(), StateWords.end(),
                                object.value(QStringLiteral("state")).toString().toStdString());
    if (object.value(QStringLiteral("version")).toInt() != Version || word == StateWords.end())
        return false;
    m_state = State(word - StateWords.begin());
    m_title = object.value(QStringLiteral("title")).toString();
    m_time = QDateTime::fromString(object.value(QStringLiteral("time")).toString(), Qt::ISODateWithMs);
    const QJsonArray files = object.value(QStringLiteral("files")).toArray();
    for (const QJsonValue &each : files) {
        const QJsonObject file = each.toObject();
        m_files.push_back({file.value(QStringLiteral("path")).toString(),
                           file.value(QStringLiteral("before")).toString().toLatin1(),
                           file.value(QStringLiteral("after")).toString().toLatin1(),
                           qint64(file.value(QStringLiteral("at")).toDouble()),
                           qint64(file.value(QStringLiteral("beforeSize")).toDouble()),
                           qint64(file.value(QStringLiteral("afterSize")).toDouble())});
    }
    return !m_files.empty();
}

QString FileRun::write(State state)
{
    QJsonArray files;
    for (const File &file : m_files)
        files.append(QJsonObject{{QStringLiteral("path"), file.path},
                                 {QStringLiteral("before"), QString::fromLatin1(file.before)},
                                 {QStringLiteral("after"), QString::fromLatin1(file.after)},
                                 {QStringLiteral("at"), double(file.at)},
                                 {QStringLiteral("beforeSize"), double(file.beforeSize)},
                                 {QStringLiteral("afterSize"), double(file.afterSize)}});
    const QJsonObject object{{QStringLiteral("version"), Version},
                             {QStringLiteral("title"), m_title},
                             {QStringLiteral("time"), m_time.toString(Qt::ISODateWithMs)},
                             {QStringLiteral("state"), QLatin1String(StateWords.at(size_t(state)))},
                             {QStringLiteral("files"), files}};
    const QString reason = writeWholeFile(pathOf(ListFile), QJsonDocument(object).toJson());
    if (reason.isEmpty())
        m_state = state;
    return reason;
}

// --- The files ---------------------------------------------------------------------------------------------

FileRun::Outcome FileRun::apply(const Course &course)
{
    return exchange(State::Applying, State::Applied, course);
}

FileRun::Outcome FileRun::undo(const Course &course)
{
    return exchange(State::Undoing, State::Undone, course);
}

/// Returns why the file does not get its bytes; empty when it has them. `isFinal` says that it never will.
QString FileRun::give(const File &file, bool isBack, bool &isFinal) const
{
    isFinal = false;
    const QByteArray &wanted = isBack ? file.before : file.after;
    const QByteArray &expected = isBack ? file.after : file.before;
    QString reason;
    const auto there = bytesOf(file.path, reason);
    if (!reason.isEmpty())
        return reason;
    const QByteArray found = there ? hashOf(*there) : QByteArray();
    if (found == wanted)
        return {};
    isFinal = found != expected;
    if (isFinal)
        return there ? tr("It was changed since, and is left as it is.") : tr("It is not there any more.");
    if (wanted.isEmpty())
        return QFile::remove(file.path) ? QString() : tr("It cannot be removed.");
    const QByteArray bytes = copyOf(file, isBack);
    return hashOf(bytes) == wanted ? writeWholeFile(file.path, bytes)
                                   : tr("The copy that was kept is damaged.");
}

FileRun::Outcome FileRun::exchange(State during, State done, const Course &course)
{
    Outcome outcome;
    if (m_lack.isEmpty() && m_copies && m_copies->commit())
        m_lack = m_copies->reason();
    m_copies.reset();
    const QString lack = !m_lack.isEmpty() ? m_lack
                         : !hold()         ? tr("Another program is at work on it.")
                                           : write(during);
    if (!lack.isEmpty()) {
        outcome.isWhole = false;
        outcome.problems.append({m_folder, lack});
        return outcome;
    }
    for (int i = 0; i < count(); ++i) {
        if (course.cancelled && *course.cancelled) {
            outcome.isWhole = false;
            return outcome;
        }
        const File &file = m_files[size_t(i)];
        bool isFinal = false;
        const QString reason = give(file, during == State::Undoing, isFinal);
        if (reason.isEmpty())
            ++outcome.files;
        else
            outcome.problems.append({file.path, reason});
        outcome.isWhole = outcome.isWhole && (reason.isEmpty() || isFinal);
        if (course.percent)
            *course.percent = 100 * (i + 1) / count();
    }
    // What could not be written may be tried again.
    if (!outcome.isWhole)
        return outcome;
    const QString reason = write(done);
    if (!reason.isEmpty()) {
        outcome.isWhole = false;
        outcome.problems.append({m_folder, reason});
    }
    return outcome;
}
