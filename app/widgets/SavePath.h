// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

class QWidget;

/// Lets the user choose the file that something is saved to, beginning in `folder` with `name`. A name
/// without the extension gets it; what is replaced was asked about. Empty when the user thought better of it.
QString chooseSavePath(QWidget *window, const QString &title, const QString &folder, const QString &filter,
                       const QString &extension, const QString &name);

/// Asks whether a file that is there already may be replaced.
[[nodiscard]] bool mayReplace(QWidget *window, const QString &title, const QString &path);

/// A file that was not written, and why.
struct FailedSave
{
    QString path;
    QString reason;
};

/// Says so in a box, if there are any.
void warnOfFailedSaves(QWidget *window, const QVector<FailedSave> &failures);
