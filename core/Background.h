// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <memory>
#include <utility>

/// Work that a thread of its own does for the GUI thread, one at a time: who starts another, cancels what is
/// under way. Belongs to the thread that made it; when it goes, it waits for the work to notice.
class Background : public QObject
{
public:
    /// What the work looks at while it runs: true as soon as nobody wants its result.
    using Cancelled = std::atomic_bool;

    explicit Background(QObject *parent = nullptr)
        : QObject(parent)
    {}
    ~Background() override
    {
        cancel();
        m_threads.waitForDone();
    }

    /// Calls `work(cancelled)` in another thread and `done` with its result in this one, unless cancel() or
    /// start() was called by then.
    template <typename Work, typename Done>
    void start(Work work, Done done)
    {
        cancel();
        m_current = std::make_shared<Cancelled>(false);
        m_threads.start([this, work = std::move(work), done = std::move(done), cancelled = m_current] {
            using Result = decltype(work(*cancelled));
            auto result = std::make_shared<Result>(work(*cancelled));
            const auto deliver = [this, result, done, cancelled] {
                if (*cancelled)
                    return;
                m_current.reset();
                done(std::move(*result));
            };
            QMetaObject::invokeMethod(this, deliver, Qt::QueuedConnection);
        });
    }
    void cancel()
    {
        if (m_current)
            *std::exchange(m_current, nullptr) = true;
    }
    bool isRunning() const { return m_current != nullptr; }
    /// Gives the work some time, in which this thread does nothing else. If it is done by then, `done` is
    /// called here and now.
    void wait(int milliseconds)
    {
        if (m_current && m_threads.waitForDone(milliseconds))
            QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    }

    /// Lets go of something large in another thread: that takes its time, too.
    template <typename Garbage>
    static void discard(Garbage garbage)
    {
        auto kept = std::make_shared<Garbage>(std::move(garbage));
        QThreadPool::globalInstance()->start([kept = std::move(kept)]() mutable { kept.reset(); });
    }

private:
    QThreadPool m_threads;
    std::shared_ptr<Cancelled> m_current;
};
