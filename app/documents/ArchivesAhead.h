// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "Files.h"

#include <QStringList>

#include <algorithm>
#include <functional>

/// Reads the directories of archives in another thread before this one asks for what is in them.
class ArchivesAhead
{
public:
    /// Calls `next` when those that the paths lead into are read: at once where they are. Another call takes
    /// the place of one that waits.
    void read(QStringList paths, const std::function<void()> &next)
    {
        m_reading.cancel();
        const auto isRead = [](const QString &path) { return !Files::isUnread(path); };
        paths.erase(std::remove_if(paths.begin(), paths.end(), isRead), paths.end());
        if (paths.isEmpty())
            return next();
        m_reading.start(
            [paths](const Background::Cancelled &cancelled) {
                for (const QString &path : paths) {
                    if (!cancelled)
                        (void)Files::archiveProblem(Files::archiveOf(path)); // tells nobody
                }
                return true;
            },
            [next](bool) { next(); });
    }

private:
    Background m_reading;
};
