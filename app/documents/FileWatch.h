// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ArchivesAhead.h"
#include "Document.h"

#include <QFileSystemWatcher>
#include <QTimer>

#include <array>

/// Tells when another program has changed the file of an open document. What the documents write themselves
/// is theirs and does not count.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    /// A file counts as written when its size and time have rested for this long.
    static constexpr int RestMs = 500;

    /// `documents` in the order of documentKinds().
    explicit FileWatch(const std::array<Document *, 3> &documents, QObject *parent = nullptr);

    /// Looks at all files, for changes that no notification tells of: now, or when their archives are read.
    void check();

signals:
    void changed(DocumentType type);
    void removed(DocumentType type);
    /// The file is the document's again: it was saved or replaced, or the file came back as it was.
    void settled(DocumentType type);

private:
    struct Track
    {
        Document *document = nullptr;
        FileStamp seen; ///< at the last look
        FileStamp told; ///< what was last told of
        bool isTold = false;
        QTimer rest;
        ArchivesAhead ahead;
    };

    void watchPaths();
    void startAnew(Track &track);
    void look(Track &track);
    void lookAgain(Track &track);

    std::array<Track, 3> m_tracks;
    QFileSystemWatcher m_watcher;
    ArchivesAhead m_ahead;
};
