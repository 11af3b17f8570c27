// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QString>
#include <QVector>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

class FolderLock;
class WholeFile;

/// One run in which many files get other bytes, each as a whole. What every file held and what it gets lie in
/// a folder of the run's own before the first is touched: a run that was broken off, however that came about,
/// is finished or taken back later, and a finished one undone and done again. A file that holds neither any
/// more is somebody's work, and left alone.
class FileRun
{
    Q_DECLARE_TR_FUNCTIONS(FileRun)

public:
    static constexpr int MostKept = 20;

    /// Applying and Undoing were broken off, or are under way.
    enum class State { Applying, Applied, Undoing, Undone };

    struct Problem
    {
        QString path;
        QString reason;
    };
    struct Outcome
    {
        int files = 0; ///< that are as they were to become
        QVector<Problem> problems;
        bool isWhole = true; ///< else it was cancelled, or a file could not be written
    };
    /// What a run looks at and tells while it works; both may be null.
    struct Course
    {
        const std::atomic_bool *cancelled = nullptr;
        std::atomic_int *percent = nullptr;
    };

    /// Where the runs of this user lie, beside the unsaved work.
    static QString defaultRoot();
    /// Those that are kept, the newest first. What ended while it was being prepared, with no file touched,
    /// is cleared away, and the oldest of more than MostKept are that are not broken off.
    static std::vector<FileRun> all(const QString &root);

    /// A new run, below `root`. It holds the run against other programs until it goes.
    explicit FileRun(const QString &root, const QString &title);
    ~FileRun();
    FileRun(FileRun &&) noexcept;
    FileRun &operator=(FileRun &&) noexcept;

    /// Takes a file into a new run: what it holds, nothing where it is not there, and what it gets. Returns
    /// why that cannot be kept; empty when it is.
    [[nodiscard]] QString add(const QString &path, const std::optional<QByteArray> &before,
                              const QByteArray &after);

    /// Gives the files what they are to get; of a run that was broken off, those that do not have it yet.
    /// Cancelled in between it stays broken off.
    Outcome apply(const Course &course);
    /// Gives them back what they held.
    Outcome undo(const Course &course);
    /// Whether this program may do either: no other one does.
    bool hold();
    /// Takes the copies away. The files stay as they are.
    void forget();

    QString id() const;
    const QString &title() const { return m_title; }
    const QDateTime &time() const { return m_time; }
    State state() const { return m_state; }
    bool isBrokenOff() const { return m_state == State::Applying || m_state == State::Undoing; }
    int count() const { return int(m_files.size()); }
    QStringList paths() const;

private:
    struct File
    {
        QString path;
        QByteArray before; ///< the hash of its bytes; empty where there is no file
        QByteArray after;
        qint64 at = 0;         ///< where in the file of copies those begin, the ones of after behind them
        qint64 beforeSize = 0; ///< of bytes
        qint64 afterSize = 0;
    };

    explicit FileRun(const QString &folder);
    bool read();
    QString write(State state);
    Outcome exchange(State during, State done, const Course &course);
    QString give(const File &file, bool isBack, bool &isFinal) const;
    QByteArray copyOf(const File &file, bool isBefore) const;
    QString pathOf(const QString &name) const { return m_folder + QLatin1Char('/') + name; }

    QString m_folder;
    QString m_title;
    QDateTime m_time;
    State m_state = State::Applying;
    std::vector<File> m_files;
    std::unique_ptr<FolderLock> m_lock;
    std::unique_ptr<WholeFile> m_copies; ///< of a new run, until the first file is touched
    QString m_lack;                      ///< why nothing can be kept
};
