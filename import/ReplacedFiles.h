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

/// Whether anything stands there, a link to nowhere too.
bool isTaken(const QString &path);

/// Whether other content stands at `path`: it would be lost if these bytes took its place.
bool wouldReplace(const QByteArray &bytes, const QString &path);
/// The same for a copy. A file onto itself loses nothing, and one that is not there is not copied.
bool wouldReplace(const FileCopy &copy);

/// The targets of those copies that would replace something, each once.
QStringList replacedTargets(const std::vector<FileCopy> &copies);

/// The first of "steel.png", "steel_2.png", "steel_3.png" … at which nothing stands, nor would with `taken`.
QString freePath(const QString &path, const QStringList &taken = {});

/// Gives those copies that would replace something another target.
void useFreeTargets(std::vector<FileCopy> &copies);
