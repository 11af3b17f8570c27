// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"

#include <QStringList>
#include <QTimer>

#include <atomic>
#include <future>

/// Decodes the textures of models on a thread of its own, so that they are ready when the window that shall
/// show them is. Tells nothing: whoever opens the files does.
class TexturesAhead
{
public:
    /// Of files of one kind only the last stays open, so only its textures are decoded.
    explicit TexturesAhead(const QStringList &paths);
    /// Gives up what is not decoded yet.
    ~TexturesAhead();
    TexturesAhead(const TexturesAhead &) = delete;
    TexturesAhead &operator=(const TexturesAhead &) = delete;

    void wait() { m_done.wait(); }

private:
    std::atomic<bool> m_stopped = false;
    std::future<void> m_done;
};

/// Decodes the textures of models that may be opened next, when nothing has been opened for a moment: who
/// goes through a folder file by file then waits for none of them.
class NeighboursAhead : public QObject
{
    Q_OBJECT

public:
    static constexpr int DelayMs = 200;
    /// Files that are larger are left out, in bytes: they are read to know their materials.
    static constexpr qint64 MostBytes = 16 * 1024 * 1024;

    explicit NeighboursAhead(QObject *parent);

public slots:
    /// The likeliest first; those that were expected before are not any more.
    void expect(const QStringList &paths);

signals:
    void done();

private:
    void load();

    QStringList m_paths;
    QTimer m_delay;
    Background m_loading;
};
