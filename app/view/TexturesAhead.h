// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

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
    void load(const QStringList &materialPaths, const QString &gamePath, const QString &outputDir) const;

    std::atomic<bool> m_stopped = false;
    std::future<void> m_done;
};
