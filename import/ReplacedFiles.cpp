// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReplacedFiles.h"

#include "FileNames.h"
#include "FileSystem.h"
#include "Files.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

namespace {
/// "steel_2.png" of "steel.png".
QString numbered(const QString &path, int number)
{
    const QFileInfo parts(path);
    const QString suffix = parts.suffix().isEmpty() ? QString() : QLatin1Char('.') + parts.suffix();
    return parts.path() + QLatin1Char('/') + parts.completeBaseName() + QLatin1Char('_') +
           QString::number(number) + suffix;
}

/// False when either cannot be read.
bool haveSameBytes(const QString &one, const QString &other)
{
    const std::unique_ptr<QIODevice> a = Files::open(one);
    const std::unique_ptr<QIODevice> b = Files::open(other);
    return a && b && a->size() == b->size() && a->readAll() == b->readAll();
}
} // namespace

std::vector<FileCopy> copiesInto(const QString &folder, const QStringList &files)
{
    const auto ownTarget = [&folder](const QString &file) {
        return folder + QLatin1Char('/') + FileNames::portable(QFileInfo(file).fileName());
    };
    QHash<QString, QString> sources; // by their targets, as FileSystem compares them
    // What stands there already must not be replaced before it was copied.
    for (const QString &file : files) {
        if (isOneFile(file, ownTarget(file)))
            sources.insert(FileSystem::comparable(ownTarget(file)), file);
    }
    const auto fits = [&sources, &ownTarget](const FileCopy &copy) {
        const auto other = sources.constFind(FileSystem::comparable(copy.target));
        if (other != sources.constEnd())
            return *other == copy.source || haveSameBytes(*other, copy.source);
        return copy.target == ownTarget(copy.source) || !wouldReplace(copy);
    };
    std::vector<FileCopy> copies;
    for (const QString &file : files) {
        FileCopy copy{file, ownTarget(file)};
        // One that is not there keeps its name: what stands at another is none of its business.
        for (int number = 2; Files::isFile(file) && !fits(copy); ++number)
            copy.target = numbered(ownTarget(file), number);
        const QString target = FileSystem::comparable(copy.target);
        if (!sources.contains(target))
            sources.insert(target, file);
        copies.push_back(copy);
    }
    return copies;
}

bool isOneFile(const QString &path, const QString &other)
{
    const QString real = QFileInfo(path).canonicalFilePath();
    return !real.isEmpty() && FileSystem::isSamePath(real, QFileInfo(other).canonicalFilePath());
}

bool isTaken(const QString &path)
{
    return QFileInfo::exists(path) || QFileInfo(path).isSymLink();
}

bool wouldReplace(const QByteArray &bytes, const QString &path)
{
    if (!isTaken(path))
        return false;
    QFile file(path);
    return !QFileInfo(path).isFile() || file.size() != bytes.size() || !file.open(QIODevice::ReadOnly) ||
           file.readAll() != bytes;
}

bool wouldReplace(const FileCopy &copy)
{
    return Files::isFile(copy.source) && isTaken(copy.target) && !haveSameBytes(copy.source, copy.target);
}

QStringList replacedTargets(const std::vector<FileCopy> &copies)
{
    QStringList targets;
    for (const FileCopy &copy : copies) {
        if (!targets.contains(copy.target) && wouldReplace(copy))
            targets += copy.target;
    }
    return targets;
}

QString freePath(const QString &path)
{
    QString free = path;
    for (int number = 2; isTaken(free); ++number)
        free = numbered(path, number);
    return free;
}

void useFreeTargets(std::vector<FileCopy> &copies)
{
    QStringList taken;
    for (const FileCopy &copy : copies)
        taken += FileSystem::comparable(copy.target);
    QHash<QString, QString> moved; // copies of one target are of one content
    for (FileCopy &copy : copies) {
        const QString target = copy.target;
        const QString wanted = FileSystem::comparable(target);
        const auto known = moved.constFind(wanted);
        if (known != moved.constEnd()) {
            copy.target = *known;
            continue;
        }
        const auto isTakenByOther = [&taken, &wanted](const QString &path) {
            const QString comparable = FileSystem::comparable(path);
            return comparable != wanted && taken.contains(comparable);
        };
        for (int number = 2; wouldReplace(copy) || isTakenByOther(copy.target); ++number)
            copy.target = numbered(target, number);
        moved.insert(wanted, copy.target);
        taken += FileSystem::comparable(copy.target);
    }
}
