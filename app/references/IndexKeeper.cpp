// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "IndexKeeper.h"

#include "IndexCache.h"
#include "Settings.h"

#include <QThread>

#include <algorithm>
#include <utility>

namespace {
constexpr int TickMs = 100;
} // namespace

IndexKeeper::IndexKeeper(QObject *parent)
    : QObject(parent)
{
    m_tick.setInterval(TickMs);
    connect(&m_tick, &QTimer::timeout, this, &IndexKeeper::progressed);
}

void IndexKeeper::refresh()
{
    const MaterialFolders folders{Settings::GamePath.value(), Settings::OutputDir.value()};
    const bool isSame = folders == m_folders;
    if (m_reader.isRunning() && isSame) {
        m_isStale = true;
        return;
    }
    m_isStale = false;
    m_isGivenUp = false;
    if (!isSame)
        Background::discard(std::exchange(m_index, nullptr));
    m_folders = folders;
    m_progress = std::make_shared<IndexProgress>();
    if (folders.gamePath.isEmpty() && folders.outputDir.isEmpty()) {
        m_reader.cancel();
        m_tick.stop();
        emit changed();
        return;
    }
    m_tick.start();
    // One core is the window's.
    const int threads = std::max(QThread::idealThreadCount() - 1, 1);
    const auto read = [folders, known = m_index, progress = m_progress,
                       threads](const Background::Cancelled &cancelled) {
        return IndexCache::bringUpToDate(folders, known, cancelled, *progress, threads);
    };
    m_reader.start(read, [this](ReferenceIndexPtr made) {
        m_tick.stop();
        if (made != m_index)
            Background::discard(std::exchange(m_index, std::move(made)));
        emit changed();
        if (std::exchange(m_isStale, false))
            refresh();
    });
    emit changed();
}

void IndexKeeper::giveUp()
{
    m_reader.cancel();
    m_tick.stop();
    m_isStale = false;
    m_isGivenUp = true;
    emit changed();
}
