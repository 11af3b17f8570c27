// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Recovery.h"

#include "CrashReport.h"
#include "DocumentFiles.h"
#include "Log.h"
#include "TypingField.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWidget>

#include <algorithm>

Recovery::Recovery(DocumentFiles &files, const QString &root, QWidget *window)
    : QObject(window)
    , m_files(files)
    , m_window(window)
    , m_store(root)
{
    for (const DocumentKind &kind : documentKinds()) {
        Track &track = m_tracks[size_t(kind.type)];
        track.document = files.document(kind.type);
        watch(track);
    }
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

void Recovery::watch(Track &track)
{
    track.file = m_store.newFile(track.document->kind().type);
    track.timer.setSingleShot(true);
    track.timer.setInterval(DelayMs);
    const Document *document = track.document;
    connect(&track.timer, &QTimer::timeout, this, [this, &track] { keepDue(track); });
    connect(document, &Document::aboutToBeReplaced, this, [this, &track] { startAnew(track); });
    connect(document, &Document::replaced, this, [this, &track] { noteChange(track); });
    connect(document, &Document::recordsChanged, this, [this, &track] { noteChange(track); });
    connect(document, &Document::structuresChanged, this, [this, &track] { noteChange(track); });
    // Unless it was changed while it was written.
    connect(document, &Document::saved, this, [this, &track] { noteChange(track); });
    connect(track.document->undoStack(), &QUndoStack::cleanChanged, this,
            [this, &track] { noteChange(track); });
}

void Recovery::setDelay(int milliseconds)
{
    for (Track &track : m_tracks)
        track.timer.setInterval(milliseconds);
}

void Recovery::noteChange(Track &track)
{
    if (!track.document->differsFromFile())
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
    track.file = m_store.newFile(track.document->kind().type);
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
    Document &document = *track.document;
    if (!track.isDirty || !document.differsFromFile())
        return;
    // An animation file without animations, which many imports leave, holds nothing worth keeping.
    if (document.kind().type == DocumentType::Anim && !document.refusal().isEmpty())
        return;
    track.isDirty = false;
    track.isKept = true;
    QSet<QString> open;
    for (const Track &each : m_tracks)
        open.insert(each.file);
    Snapshot snapshot{track.file, document.kind().type, document.path(), document.fileName(),
                      QDateTime::currentDateTime()};
    snapshot.stamp = document.fileStamp();
    m_store.keep(snapshot, document.drafter(), open);
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
    for (Track &track : m_tracks) {
        // It is tried again: a disk may be full for a moment only.
        if (track.file == file && track.document->differsFromFile())
            noteChange(track);
    }
    if (!m_failureSaid)
        Log::error(tr("[Recovery] Unsaved work cannot be kept: %1").arg(reason));
    m_failureSaid = true;
}

QVector<Snapshot> Recovery::snapshots()
{
    QVector<Snapshot> all = m_store.snapshots();
    all.erase(std::remove_if(all.begin(), all.end(),
                             [this](const Snapshot &snapshot) {
                                 return snapshot.file == m_tracks[size_t(snapshot.type)].file;
                             }),
              all.end());
    return all;
}

Recovery::Outcome Recovery::restore(const Snapshot &snapshot)
{
    if (!m_files.promptUnsaved(snapshot.type))
        return Outcome::GivenUp;
    QByteArray bytes;
    Track &track = m_tracks[size_t(snapshot.type)];
    if (m_store.read(snapshot, &bytes) ||
        track.document->restore(bytes, snapshot.sourcePath, snapshot.name, snapshot.stamp)) {
        Log::warning(tr("[Recovery] What was kept of '%1' is damaged").arg(snapshot.name));
        m_store.setAside(snapshot);
        return Outcome::Damaged;
    }
    // Its file stays where it is, so that nothing is ever without one.
    track.file = snapshot.file;
    track.isKept = true;
    track.isDirty = false;
    track.timer.stop();
    emit restored(snapshot.type);
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
    for (Track &track : m_tracks)
        keep(track);
    m_store.waitForDone();
}

bool Recovery::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::Close)
        keepAll();
    return QObject::eventFilter(watched, event);
}
