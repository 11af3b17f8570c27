// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QWidget;

/// Asks for a folder: parent, title, start folder. Empty when the user cancels. What asks for folders holds
/// one, so that a test can answer in the user's place.
using FolderChooser = std::function<QString(QWidget *, const QString &, const QString &)>;

/// The desktop's folder chooser, folders only. A start folder that is gone is replaced by its nearest parent.
QString chooseFolder(QWidget *parent, const QString &title, const QString &startFolder);

/// A folder as the settings store it: forward slashes, no redundant parts, nothing behind the last name.
/// An empty one stays empty.
QString normalizedFolder(const QString &folder);
