// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReplacedFiles.h"

#include <QFile>
#include <QFileInfo>

namespace {
/// False when either cannot be read.
bool haveSameBytes(const QString &one, const QString &other)
{
    QFile a(one);
    QFile b(other);
    // Opening a pipe would wait for a writer for ever.
    return QFileInfo(one).isFile() && QFileInfo(other).isFile() && a.size() == b.size() &&
           a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly) && a.readAll() == b.readAll();
}
} // namespace

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
    return QFileInfo(copy.source).isFile() && isTaken(copy.target) &&
           !haveSameBytes(copy.source, copy.target);
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

QString freePath(const QString &path, const QStringList &taken)
{
    const QFileInfo parts(path);
    const QString base = parts.path() + QLatin1Char('/') + parts.completeBaseName();
    const QString suffix = parts.suffix().isEmpty() ? QString() : QLatin1Char('.') + parts.suffix();
    QString free = path;
    for (int number = 2; isTaken(free) || taken.contains(free); ++number)
        free = base + QLatin1Char('_') + QString::number(number) + suffix;
    return free;
}

void useFreeTargets(std::vector<FileCopy> &copies)
{
    QStringList taken;
    for (const FileCopy &copy : copies)
        taken += copy.target;
    for (FileCopy &copy : copies) {
        if (!wouldReplace(copy))
            continue;
        copy.target = freePath(copy.target, taken);
        taken += copy.target;
    }
}
