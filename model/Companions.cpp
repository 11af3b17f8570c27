// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Companions.h"

#include "Files.h"
#include "Validation.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace {
constexpr int MostOthers = 12;
/// Somebody may have named a whole disk.
constexpr int MostEntries = 500000;

bool isSame(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// The candidates of one place, by what fits.
struct Fitting
{
    bool isEmpty() const { return both.isEmpty() && byName.isEmpty() && byFolder.isEmpty(); }

    QStringList both;
    QStringList byName;
    QStringList byFolder;
};

/// What the search compares of a file; `path` is absolute.
Companions::Candidate candidateOf(const QString &path)
{
    const int name = path.lastIndexOf(QLatin1Char('/')) + 1;
    const int dot = std::max(path.lastIndexOf(QLatin1Char('.')), name);
    const int folder = path.lastIndexOf(QLatin1Char('/'), name - 2) + 1;
    return {path, path.mid(folder, std::max(name - 1 - folder, 0)), path.mid(name, dot - name),
            path.mid(dot + 1)};
}

/// A folder by its name in any case; the exact one first, and empty where there is none.
QString folderIn(const QString &parent, const QString &name)
{
    const QDir dir(parent);
    if (Files::isFolder(dir.filePath(name)))
        return dir.filePath(name);
    for (const QString &each : Files::names(parent, Files::Kind::Folder)) {
        if (isSame(each, name))
            return dir.filePath(each);
    }
    return {};
}

/// Where the other kind stands: ".../models/a/b" becomes ".../anims".
QString folderApart(const QString &folder, const QString &here, const QString &there)
{
    QStringList parts = folder.split(QLatin1Char('/'));
    while (!parts.isEmpty() && !isSame(parts.last(), here))
        parts.removeLast();
    if (parts.isEmpty())
        return {};
    parts.last() = there;
    return parts.join(QLatin1Char('/'));
}
} // namespace

Companions::Companions(const MaterialFolders &folders, QStringList listed, std::function<bool()> isCancelled)
    : m_listed(std::move(listed))
    , m_isCancelled(std::move(isCancelled))
{
    for (const QString &folder : {folders.gamePath, folders.outputDir}) {
        if (!folder.isEmpty())
            m_roots += QDir(folder).absolutePath();
    }
}

const Companions::Below &Companions::filesBelow(const QString &folder)
{
    const auto known = m_files.constFind(folder);
    if (known != m_files.constEnd())
        return *known;
    QStringList paths;
    int entries = 0;
    Files::walk(folder, [&](const FolderEntry &entry) {
        if (!entry.isFolder && (entry.path.endsWith(QLatin1String(".anim"), Qt::CaseInsensitive) ||
                                entry.path.endsWith(QLatin1String(".skinnedmesh"), Qt::CaseInsensitive)))
            paths += entry.path;
        return ++entries < MostEntries && (!m_isCancelled || !m_isCancelled());
    });
    paths.sort(Qt::CaseInsensitive);
    Below files;
    for (const QString &path : qAsConst(paths)) {
        files.all += candidateOf(path);
        files.byName[files.all.last().base.toCaseFolded()] += files.all.size() - 1;
        files.byFolder[files.all.last().folder.toCaseFolded()] += files.all.size() - 1;
    }
    return *m_files.insert(folder, files);
}

const QVector<Companions::Candidate> &Companions::filesIn(const QString &folder)
{
    const auto known = m_beside.constFind(folder);
    if (known != m_beside.constEnd())
        return *known;
    QVector<Candidate> files;
    for (const QString &name : Files::names(folder, Files::Kind::File))
        files += candidateOf(QDir(folder).filePath(name));
    return *m_beside.insert(folder, files);
}

QVector<Companions::Candidate> Companions::alikeBelow(const QString &folder, const Candidate &known)
{
    const Below &files = filesBelow(folder);
    QVector<int> places =
        files.byName.value(known.base.toCaseFolded()) + files.byFolder.value(known.folder.toCaseFolded());
    std::sort(places.begin(), places.end());
    QVector<Candidate> alike;
    for (const int place : qAsConst(places))
        alike += files.all[place];
    return alike;
}

CompanionFile Companions::find(const QString &file)
{
    const Candidate known = candidateOf(QDir::cleanPath(QFileInfo(file).absoluteFilePath()));
    const bool isAnim = isSame(known.suffix, QStringLiteral("anim"));
    const QString suffix = isAnim ? QStringLiteral("skinnedmesh") : QStringLiteral("anim");
    const QString here = isAnim ? QStringLiteral("anims") : QStringLiteral("models");
    const QString there = isAnim ? QStringLiteral("models") : QStringLiteral("anims");
    const QString folder = QFileInfo(known.path).path();
    const QString apart = folderApart(folder, here, there);
    // The place of the file among its kind: "/a/b.anim".
    const QString place =
        (apart.isEmpty() ? QString() : folder.mid(apart.size() - there.size() + here.size())) +
        QLatin1Char('/') + known.base + QLatin1Char('.') + suffix;

    const QVector<Candidate> beside = filesIn(folder);
    const auto alike = std::count_if(beside.begin(), beside.end(), [&known](const Candidate &each) {
        return isSame(each.suffix, known.suffix);
    });
    QVector<Candidate> listed;
    for (const QString &path : qAsConst(m_listed))
        listed += candidateOf(path);
    QStringList roots{apart.isEmpty() ? QString() : folderIn(QFileInfo(apart).path(), there)};
    for (const QString &root : qAsConst(m_roots))
        roots += folderIn(root, there);
    roots.removeDuplicates();
    QVector<QVector<Candidate>> places{beside};
    for (const QString &root : qAsConst(roots))
        places += root.isEmpty() ? QVector<Candidate>() : alikeBelow(root, known);
    places.insert(2, listed);

    QVector<Fitting> fitting;
    QSet<QString> seen;
    const auto fit = [&](const QVector<Candidate> &files) {
        Fitting fits;
        for (const Candidate &each : files) {
            const bool nameFits = isSame(each.base, known.base);
            const bool folderFits = isSame(each.folder, known.folder);
            if (!(nameFits || folderFits) || !isSame(each.suffix, suffix) || seen.contains(each.path))
                continue;
            seen.insert(each.path);
            QStringList &list = nameFits && folderFits ? fits.both : nameFits ? fits.byName : fits.byFolder;
            if (nameFits && each.path.endsWith(place, Qt::CaseInsensitive))
                list.prepend(each.path);
            else
                list += each.path;
        }
        return fits;
    };
    for (const QVector<Candidate> &files : qAsConst(places))
        fitting += fit(files);
    if (std::all_of(fitting.begin(), fitting.end(), [](const Fitting &fits) { return fits.isEmpty(); })) {
        for (const QString &root : qAsConst(m_roots)) {
            fitting += fit(alikeBelow(root, known));
            fitting.last().byFolder.clear();
        }
    }

    CompanionFile found;
    const auto decide = [&found, &fitting](QStringList Fitting::*list, int first, bool takesFirst) {
        for (int i = first; i < fitting.size(); ++i) {
            const QStringList &files = fitting[i].*list;
            if (files.isEmpty())
                continue;
            if (takesFirst || files.size() == 1)
                found.path = files.first();
            return true;
        }
        return false;
    };
    if (!decide(&Fitting::both, 0, true) && !decide(&Fitting::byName, 0, false))
        decide(&Fitting::byFolder, alike == 1 ? 0 : 1, false);
    for (QStringList Fitting::*list : {&Fitting::both, &Fitting::byName, &Fitting::byFolder}) {
        for (const Fitting &fits : qAsConst(fitting))
            found.others += fits.*list;
    }
    found.others.removeAll(found.path);
    found.others = found.others.mid(0, MostOthers);
    return found;
}
