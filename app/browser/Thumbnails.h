// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ThumbnailMaker.h"

#include <QCache>
#include <QObject>
#include <QPixmap>
#include <QStringList>

#include <memory>

/// The small picture of a file.
struct Thumbnail
{
    QPixmap picture; ///< null where there is none
    QString error;   ///< why not
    FileStamp stamp; ///< of the file that it is of
    int round = 0;   ///< when it was looked for
};

/// Small pictures of the files that are in sight, made by another thread. So many bytes of them are kept.
class Thumbnails : public QObject
{
    Q_OBJECT

public:
    static constexpr int MostBytes = 32 * 1024 * 1024;

    explicit Thumbnails(QObject *parent);
    ~Thumbnails() override;

    /// How large pictures can be, in pixels of the screen; those that are shown smaller are scaled then. Of
    /// another size they are made anew.
    void setSide(int pixels);
    /// Null where none was made yet.
    const Thumbnail *find(const QString &path) const { return m_cache.object(path); }
    /// These are in sight, the first ones first, and nothing else is. What is there as its file is, is not
    /// made again.
    void want(const QStringList &paths);
    /// Files may be others: those that are wanted are looked at once more.
    void lookAgain() { ++m_round; }
    /// See ThumbnailMaker.
    int drawnCount() const { return m_maker ? m_maker->drawnCount() : 0; }

signals:
    void made(const QString &path);

private:
    void take(const MadeThumbnail &made);

    QCache<QString, Thumbnail> m_cache;
    int m_side = 0;
    int m_round = 0;
    std::unique_ptr<ThumbnailMaker> m_maker;
};
