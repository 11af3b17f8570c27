// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileStamp.h"
#include "Log.h"
#include "NamesFile.h"

#include <any>

/// A file as it was read for a document, which shows nothing of it yet.
struct LoadedFile
{
    virtual ~LoadedFile() = default;

    QString path;
    FileStamp stamp;
    bool isFailed = false;
    QString reason;         ///< of a failure; empty when the file could not be opened
    QVector<LogLine> lines; ///< what there is to say of it
    std::any prepared;      ///< see Document::takePrepared()
};

/// A file as it was written of a document, which does not know of it yet.
struct SavedFile
{
    QString path;
    FileStamp stamp;
    bool isFailed = false;
    QString reason;  ///< of a failure
    NamesFile names; ///< of a skinned mesh
    int change = 0;  ///< the document's last when it was copied
};
