// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileStamp.h"

#include <QDateTime>
#include <QString>

/// What is known of kept work without reading it.
struct Snapshot
{
    QString file;       ///< its name in the store's folder
    QString extension;  ///< of the kind of work, see UnsavedWork
    QString sourcePath; ///< the document's file; empty when it was never saved
    QString name;       ///< the document's file name, also of one without a file
    QDateTime time;
    /// Grows from one snapshot to the next, also of another program and when the clock is set back: the time
    /// in milliseconds since 1970, or one more than the last.
    qint64 sequence = 0;
    /// The document's file as it was when the model was last the file's; none in snapshots of older programs.
    FileStamp stamp{};
};
