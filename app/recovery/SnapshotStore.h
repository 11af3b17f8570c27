// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Snapshot.h"

#include <QObject>
#include <QSet>
#include <QThreadPool>
#include <QVector>

#include <atomic>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

class FolderLock;

/// Models kept on disk, each a file of its own: a small header, the bytes of the model's own format, a hash
/// of both. A file is there whole or not at all.
///
/// Every running program has a folder of its own below the root, which nobody else touches while it runs.
/// What programs that ended have left is taken over when a store is made, by the first that comes.
///
/// Files are written and removed one after another by a thread of the store; all else is for the GUI thread.
class SnapshotStore : public QObject
{
    Q_OBJECT

public:
    static constexpr int MostKept = 20;

    /// Says so in the log when nothing can be kept below `root`.
    explicit SnapshotStore(const QString &root, QObject *parent = nullptr);
    ~SnapshotStore() override;

    /// Where a program of this user keeps its snapshots.
    static QString defaultRoot();
    /// Where a report of a crash is to be written.
    QString crashReportPath() const;
    /// Reports of programs that crashed since the last start, the newest first.
    const QStringList &crashReports() const { return m_crashReports; }

    /// A name that no snapshot of any program has.
    QString newFile(const QString &extension);
    /// Keeps a model, whose bytes `model` gives in another thread, under `snapshot.file`, in place of what is
    /// kept there, with the next sequence. Then the oldest of more than MostKept snapshots go, those of
    /// `spared` aside.
    void keep(const Snapshot &snapshot, std::function<std::vector<uchar>()> model,
              const QSet<QString> &spared);
    void remove(const QString &file);
    /// Whether files wait to be written.
    bool isBusy() const { return m_jobs > 0; }
    void waitForDone();

    /// All that are kept, the newest first by their sequence. Damaged ones are set aside, each once and with
    /// a line in the log.
    QVector<Snapshot> snapshots();
    /// The model's bytes. Returns true when the file is not what was kept.
    [[nodiscard]] bool read(const Snapshot &snapshot, QByteArray *model);

    /// A file that cannot be opened any more.
    struct Damaged
    {
        QString name; ///< of the document, where that can be read
        QString path;
    };
    /// Moves a snapshot to where none is listed. MostKept stay there, too, when the next program starts. One
    /// that cannot be moved stays where it is.
    void setAside(const Snapshot &snapshot);
    /// What was set aside and nobody was told of.
    const QVector<Damaged> &damaged() const { return m_damaged; }
    QVector<Damaged> takeDamaged() { return std::exchange(m_damaged, {}); }

signals:
    /// A snapshot could not be written.
    void failed(const QString &file, const QString &reason);

private:
    bool createFolder();
    void takeOver();
    /// Returns whether no program has the folder.
    bool takeOver(const QString &folder);
    void takeOverReport(const QString &report);
    void keepNewest(const QString &pattern, int count);
    void findLast();
    void run(const std::function<void()> &job);
    QString pathOf(const QString &file) const { return m_folder + QLatin1Char('/') + file; }

    const QString m_root;
    QString m_folder; ///< empty when nothing can be kept
    std::unique_ptr<FolderLock> m_lock;
    QStringList m_crashReports;
    QVector<Damaged> m_damaged;
    QSet<QString> m_stuck; ///< damaged files that cannot be moved, and are known
    int m_files = 0;
    qint64 m_last = 0; ///< the newest snapshot's sequence
    std::atomic<int> m_jobs{0};
    QThreadPool m_thread;
};
