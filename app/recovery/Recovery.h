// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentKind.h"
#include "SnapshotStore.h"

#include <QTimer>

#include <memory>
#include <vector>

class DocumentFiles;
class UnsavedWork;

/// Keeps snapshots of the three documents, and of other work that it is told of, while they differ from their
/// files: some seconds after a change, when one is replaced, and when the window closes. A save takes a
/// snapshot away, and so does undoing all changes. A report of a crash is written beside the snapshots.
class Recovery : public QObject
{
    Q_OBJECT

public:
    /// From the first change after a snapshot to the next one.
    static constexpr int DelayMs = 5000;

    enum class Outcome { Restored, Damaged, GivenUp };

    /// Watches the documents until `window` closes.
    Recovery(DocumentFiles &files, const QString &root, QWidget *window);
    ~Recovery() override;

    /// Has `work` kept, too. It goes after this, or with it.
    void add(UnsavedWork &work);
    void setDelay(int milliseconds);
    SnapshotStore &store() { return m_store; }
    /// All that is kept beside what is open now, the newest first.
    QVector<Snapshot> snapshots();
    /// What the user calls such a thing as this one is of.
    QString label(const Snapshot &snapshot) const;
    /// Opens a snapshot as a modified document, after asking about the one that it replaces; from then on it
    /// is that document's. What is damaged is set aside, with a line in the log.
    Outcome restore(const Snapshot &snapshot);
    void remove(const QVector<Snapshot> &snapshots);

    /// Takes what is being typed to the documents and brings their snapshots up to date, on disk.
    void keepAll();

signals:
    /// One of the three documents was.
    void restored(DocumentType type);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Track
    {
        explicit Track(UnsavedWork &kept)
            : work(kept)
        {}

        UnsavedWork &work;
        QString file;         ///< where it is kept
        bool isKept = false;  ///< whether there is such a file, or will be
        bool isDirty = false; ///< changed since it was kept
        QTimer timer;
    };

    Track *trackOf(const Snapshot &snapshot) const;
    void startAnew(Track &track);
    void noteChange(Track &track);
    void keep(Track &track);
    void keepDue(Track &track);
    void forget(Track &track);
    void onFailed(const QString &file, const QString &reason);

    QWidget *m_window;
    SnapshotStore m_store;
    std::vector<std::unique_ptr<Track>> m_tracks;
    bool m_failureSaid = false;
};
