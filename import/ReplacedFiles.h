// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

/// A file, and where it is to be copied.
struct FileCopy
{
    QString source;
    QString target;
};

/// The copies of these files into a folder, one for each. A name is kept; of several files of one name the
/// others get names at which nothing else stands, and those of equal content are one.
std::vector<FileCopy> copiesInto(const QString &folder, const QStringList &files);

/// Whether both are one file, by whatever way.
bool isOneFile(const QString &path, const QString &other);

/// Whether anything stands there, a link to nowhere too.
bool isTaken(const QString &path);

/// Whether other content stands at `path`: it would be lost if these bytes took its place.
bool wouldReplace(const QByteArray &bytes, const QString &path);
/// The same for a copy. A file onto itself loses nothing, and one that is not there is not copied.
bool wouldReplace(const FileCopy &copy);

/// The targets of those copies that would replace something, each once.
QStringList replacedTargets(const std::vector<FileCopy> &copies);

/// The first of "steel.png", "steel_2.png", "steel_3.png" … at which nothing stands.
QString freePath(const QString &path);

/// Gives those copies that would replace something another target, at which nothing else stands.
void useFreeTargets(std::vector<FileCopy> &copies);
