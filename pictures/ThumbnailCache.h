// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileStamp.h"

#include <QImage>
#include <QStringList>

/// A file as it is, and how large a small picture of it is wanted.
struct ThumbnailSubject
{
    QString path;
    FileStamp stamp;
    int side = 128; ///< pixels, of the square that has the picture in it: 128 or 256
};

/// What is kept of a file: a small picture, or why there is none.
struct KeptThumbnail
{
    QImage image;
    QString error;
    QStringList drawnFrom{}; ///< of a model, see DrawnFrom: the names
    QString state{};         ///< and the state of these, when it was drawn

    bool isEmpty() const { return image.isNull() && error.isEmpty(); }
};

/// Small pictures of files on the disk. Those of files in folders are kept the way that desktops have for it
/// (the Thumbnail Managing Standard of freedesktop.org), so file managers and this program have each other's.
/// Those of entries of archives, and all on other systems, stand in the program's own folder, of which the
/// oldest go when it grows. Nothing that is read there is believed to be a picture of the file as it is
/// before it names the file and its time, and its size where it says one; whether what else a model shows is
/// as it was, is for who asks. All functions may be called by any thread.
class ThumbnailCache
{
public:
    /// The program's own pictures may take so many bytes together.
    static constexpr qint64 MostOwnBytes = 256 * 1024 * 1024;

    /// `shared` is the folder of the desktop; where it is empty, nothing is shared.
    ThumbnailCache(QString shared, QString own, qint64 mostOwnBytes = MostOwnBytes);

    KeptThumbnail find(const ThumbnailSubject &subject) const;
    /// What cannot be written is not kept; it is made again.
    void keep(const ThumbnailSubject &subject, const KeptThumbnail &thumbnail) const;
    /// Removes the oldest of the program's own as long as they are too many bytes.
    void tidy() const;

    /// Where a picture would be, or the note that there is none.
    QString pathFor(const ThumbnailSubject &subject, bool isFailure) const;

private:
    bool isShared(const ThumbnailSubject &subject) const;

    QString m_shared;
    QString m_own;
    qint64 m_mostOwnBytes;
};

/// How desktops name a file in the folder on the disk: "file:///home/…", in ASCII.
QByteArray fileUri(const QString &path);
