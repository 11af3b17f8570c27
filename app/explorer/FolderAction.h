// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QAction;
class QWidget;

/// What the object names of an explorer and its parts have in common, such as "SkinnedMesh".
struct FolderNames
{
    QString prefix;

    /// The name of a part: `pattern` with the prefix for its "%1".
    QString of(const char *pattern) const { return QString::fromLatin1(pattern).arg(prefix); }
};

/// An action of an explorer, with keys that work within it; those of all explorers share their keys.
QAction *addFolderAction(QWidget &explorer, const FolderNames &names, const char *name, const char *icon,
                         const QString &text, const QString &toolTip);
