// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CaseOnDisk.h"

#include "FileSystem.h"

#include <QCache>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QMutex>

namespace {
constexpr int MostListings = 512;
/// A folder that has changed a moment ago may change again without another time.
constexpr qint64 RestMs = 2000;

/// The names in a folder by what they are in one case.
struct Listing
{
    qint64 modified = 0;
    bool isRested = false; ///< the folder had not changed for RestMs when it was listed
    QHash<QString, QString> names;
};

struct Listings
{
    QMutex mutex;
    QCache<QString, Listing> byFolder{MostListings};
};

/// Never destroyed: a thread may still look when the window system ends the program.
Listings &listings()
{
    static auto *all = new Listings;
    return *all;
}

/// What a folder calls a name that is given in any case; empty when nothing there is called so.
QString nameIn(const QString &folder, const QString &name)
{
    const qint64 modified = QFileInfo(folder).lastModified().toMSecsSinceEpoch();
    Listings &all = listings();
    const QMutexLocker lock(&all.mutex);
    const Listing *known = all.byFolder.object(folder);
    const bool rests = QDateTime::currentMSecsSinceEpoch() - modified > RestMs;
    if (known && known->modified == modified && known->isRested)
        return known->names.value(name.toCaseFolded());
    auto *made = new Listing{modified, rests, {}};
    const QStringList there = QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &each : there)
        made->names.insert(each.toCaseFolded(), each);
    const QString found = made->names.value(name.toCaseFolded());
    all.byFolder.insert(folder, made);
    return found;
}
} // namespace

QString caseOnDisk(const QString &path, int from)
{
    // Where the system finds all of them, that one is there says nothing of how it is called.
    static const bool takesAnyCase = FileSystem::isSamePath(QStringLiteral("a"), QStringLiteral("A"));
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    const bool isGiven = slash <= 0 || slash < from;
    if (!takesAnyCase || isGiven) {
        if (QFileInfo::exists(path))
            return path;
        if (isGiven)
            return {};
    }
    const QString folder = caseOnDisk(path.left(slash), from);
    const QString name = folder.isEmpty() ? QString() : nameIn(folder, path.mid(slash + 1));
    return name.isEmpty() ? QString() : folder + QLatin1Char('/') + name;
}
