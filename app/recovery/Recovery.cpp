// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Recovery.h"

#include "CrashReport.h"
#include "DocumentWork.h"
#include "Log.h"
#include "TypingField.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>

#include <algorithm>

Recovery::Recovery(DocumentFiles &files, const QString &root, QWidget *window)
    : QObject(window)
    , m_window(window)
    , m_store(root)
{
    for (const DocumentKind &kind : documentKinds())
        add(*new DocumentWork(files, kind.type, this));
    connect(&m_store, &SnapshotStore::failed, this, &Recovery::onFailed);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &Recovery::keepAll);
    // The session's end waits for whom it has told, and for nobody afterwards.
    connect(qApp, &QGuiApplication::commitDataRequest, this, &Recovery::keepAll, Qt::DirectConnection);
    window->installEventFilter(this);
    CrashReport::install(m_store.crashReportPath());
}

Recovery::~Recovery()
{
    CrashReport::uninstall();
}

void Recovery::add(UnsavedWork &work)
{
    m_tracks.push_back(std::make_unique<Track>(work));
    Track &track = *m_tracks.back();
    track.file = m_store.newFile(work.extension());
    track.timer.setSingleShot(true);
    track.timer.setInterval(DelayMs);
    connect(&track.timer, &QTimer::timeout, this, [this, &track] { keepDue(track); });
    connect(&work, &UnsavedWork::aboutToBeReplaced, this, [this, &track] { startAnew(track); });
    connect(&work, &UnsavedWork::changed, this, [this, &track] { noteChange(track); });
}

void Recovery::setDelay(int milliseconds)
{
    for (const auto &track : m_tracks)
        track->timer.setInterval(milliseconds);
}

void Recovery::noteChange(Track &track)
{
    if (!track.work.differsFromFile())
        return forget(track);
    track.isDirty = true;
    if (!track.timer.isActive())
        track.timer.start();
}

/// The document that goes stays kept; what comes is another.
void Recovery::startAnew(Track &track)
{
    keep(track);
    track.timer.stop();
    track.file = m_store.newFile(track.work.extension());
    track.isKept = track.isDirty = false;
}

void Recovery::keepDue(Track &track)
{
    // On a slow disk the snapshots that wait must not pile up in memory.
    if (m_store.isBusy())
        track.timer.start();
    else
        keep(track);
}

void Recovery::keep(Track &track)
{
    UnsavedWork &work = track.work;
    if (!track.isDirty || !work.differsFromFile() || !work.canBeKept())
        return;
    track.isDirty = false;
    track.isKept = true;
    QSet<QString> open;
    for (const auto &each : m_tracks)
        open.insert(each->file);
    Snapshot snapshot{track.file, work.extension(), work.path(), work.fileName(),
                      QDateTime::currentDateTime()};
    snapshot.stamp = work.stamp();
    m_store.keep(snapshot, work.drafter(), open);
}

void Recovery::forget(Track &track)
{
    track.timer.stop();
    track.isDirty = false;
    if (track.isKept)
        m_store.remove(track.file);
    track.isKept = false;
}

void Recovery::onFailed(const QString &file, const QString &reason)
{
    for (const auto &track : m_tracks) {
        // It is tried again: a disk may be full for a moment only.
        if (track->file == file && track->work.differsFromFile())
            noteChange(*track);
    }
    if (!m_failureSaid)
        Log::error(tr("[Recovery] Unsaved work cannot be kept: %1").arg(reason));
    m_failureSaid = true;
}

Recovery::Track *Recovery::trackOf(const Snapshot &snapshot) const
{
    const auto track = std::find_if(m_tracks.begin(), m_tracks.end(), [&](const auto &each) {
        return each->work.extension() == snapshot.extension;
    });
    return track == m_tracks.end() ? nullptr : track->get();
}

QString Recovery::label(const Snapshot &snapshot) const
{
    const Track *track = trackOf(snapshot);
    return track ? track->work.label() : QString();
}

QVector<Snapshot> Recovery::snapshots()
{
    QVector<Snapshot> all = m_store.snapshots();
    all.erase(std::remove_if(all.begin(), all.end(),
                             [this](const Snapshot &snapshot) {
                                 // What a newer program has kept of another kind is left to it.
                                 const Track *track = trackOf(snapshot);
                                 return !track || snapshot.file == track->file;
                             }),
              all.end());
    return all;
}

Recovery::Outcome Recovery::restore(const Snapshot &snapshot)
{
    Track *track = trackOf(snapshot);
    if (!track || !track->work.mayBeReplaced())
        return Outcome::GivenUp;
    QByteArray bytes;
    if (m_store.read(snapshot, &bytes) ||
        track->work.restore(bytes, snapshot.sourcePath, snapshot.name, snapshot.stamp)) {
        Log::warning(tr("[Recovery] What was kept of '%1' is damaged").arg(snapshot.name));
        m_store.setAside(snapshot);
        return Outcome::Damaged;
    }
    // Its file stays where it is, so that nothing is ever without one.
    track->file = snapshot.file;
    track->isKept = true;
    track->isDirty = false;
    track->timer.stop();
    if (const DocumentKind *kind = documentKindOfFile(QLatin1Char('.') + snapshot.extension))
        emit restored(kind->type);
    return Outcome::Restored;
}

void Recovery::remove(const QVector<Snapshot> &snapshots)
{
    for (const Snapshot &snapshot : snapshots)
        m_store.remove(snapshot.file);
}

void Recovery::keepAll()
{
    finishTyping();
    for (const auto &track : m_tracks)
        keep(*track);
    m_store.waitForDone();
}

bool Recovery::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::Close)
        keepAll();
    return QObject::eventFilter(watched, event);
}
