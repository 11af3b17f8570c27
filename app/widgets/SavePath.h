// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

/// Lets the user choose the file that something is saved to, beginning in `folder` with `name`. A name
/// without the extension gets it; what is replaced was asked about. Empty when the user thought better of it.
QString chooseSavePath(QWidget *window, const QString &title, const QString &folder, const QString &filter,
                       const QString &extension, const QString &name);

/// Says in a box that a file was not written, and why.
void warnOfFailedSave(QWidget *window, const QString &path, const QString &reason);
