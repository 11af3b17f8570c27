// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "ReferenceIndex.h"

#include <QTimer>

/// Has the index of the folders that the options name, brought up to date by other threads. Nothing is read
/// before somebody asks for it.
class IndexKeeper : public QObject
{
    Q_OBJECT

public:
    explicit IndexKeeper(QObject *parent);

    /// As it was read last; null as long as there is none, and without folders.
    const ReferenceIndexPtr &index() const { return m_index; }
    bool isRunning() const { return m_reader.isRunning(); }
    /// How far the reading is; as long as files are looked for, there are 0.
    int filesFound() const { return m_progress ? int(m_progress->files) : 0; }
    int filesDone() const { return m_progress ? int(m_progress->done) : 0; }
    /// Whether the last reading was given up.
    bool isGivenUp() const { return m_isGivenUp; }

    /// Looks for what has changed; once more where that is under way.
    void refresh();
    void giveUp();

signals:
    /// The index is another one, or the reading began or ended.
    void changed();
    /// The reading has come on.
    void progressed();

private:
    Background m_reader;
    QTimer m_tick;
    MaterialFolders m_folders; ///< of what is read, or was read last
    ReferenceIndexPtr m_index;
    std::shared_ptr<IndexProgress> m_progress;
    bool m_isStale = false; ///< what is being read may be as it was before
    bool m_isGivenUp = false;
};
