// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileWatch.h"

#include "Files.h"
#include "WatchedPaths.h"

#include <QGuiApplication>
#include <QSet>

FileWatch::FileWatch(const std::array<Document *, 3> &documents, QObject *parent)
    : QObject(parent)
{
    for (size_t i = 0; i < documents.size(); ++i) {
        Track &track = m_tracks[i];
        track.document = documents[i];
        track.rest.setSingleShot(true);
        track.rest.setInterval(RestMs);
        connect(&track.rest, &QTimer::timeout, this, [this, &track] {
            track.ahead.read({track.document->path()}, [this, &track] { lookAgain(track); });
        });
        connect(track.document, &Document::replaced, this, [this, &track] { startAnew(track); });
        connect(track.document, &Document::saved, this, [this, &track] { startAnew(track); });
        connect(track.document, &Document::restored, this, [&track] {
            // What became of the file before, perhaps by this program, is what saving asks about.
            track.told = FileStamp::of(track.document->path());
            track.isTold = true;
        });
    }
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FileWatch::check);
    // A file that is replaced by another of its name is seen in its folder only.
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatch::check);
    // Folders of other machines notify nobody.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &FileWatch::check);
}

void FileWatch::watchPaths()
{
    QSet<QString> wanted;
    for (const Track &track : m_tracks) {
        if (!track.document->path().isEmpty())
            wanted.insert(track.document->path());
    }
    watchFiles(m_watcher, wanted);
}

void FileWatch::startAnew(Track &track)
{
    track.rest.stop();
    track.isTold = false;
    watchPaths();
    emit settled(track.document->kind().type);
}

void FileWatch::check()
{
    watchPaths();
    QStringList paths;
    for (const Track &track : m_tracks)
        paths.append(track.document->path());
    m_ahead.read(paths, [this] {
        for (Track &track : m_tracks) {
            if (!track.document->path().isEmpty())
                look(track);
        }
    });
}

void FileWatch::look(Track &track)
{
    const FileStamp now = FileStamp::of(track.document->path());
    if (now == track.document->fileStamp()) {
        if (track.isTold || track.rest.isActive())
            startAnew(track);
    } else if (!track.rest.isActive() && !(track.isTold && now == track.told)) {
        track.seen = now;
        track.rest.start();
    }
}

void FileWatch::lookAgain(Track &track)
{
    const FileStamp now = FileStamp::of(track.document->path());
    if (now != track.seen) {
        track.seen = now;
        track.rest.start();
        return;
    }
    watchPaths();
    // Whoever writes an archive in place comes to its directory last.
    if (!now.exists() && !Files::archiveProblem(Files::archiveOf(track.document->path())).isEmpty())
        return;
    if (now == track.document->fileStamp())
        return startAnew(track);
    track.told = now;
    track.isTold = true;
    if (now.exists())
        emit changed(track.document->kind().type);
    else
        emit removed(track.document->kind().type);
}
