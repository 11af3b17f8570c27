// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PictureThreads.h"

#include "Memory.h"
#include "OffscreenScene.h"

#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace {
constexpr std::chrono::milliseconds LookAgain{50}; // whether it was cancelled
constexpr size_t Lead = 8;                         // pictures that a thread may be ahead of the telling
constexpr qint64 MostBytes = 1024 * 1024 * 1024;   // of all pictures that are under way
/// Small pictures are painted larger, and each is there as the card's copy, as painted and as scaled.
constexpr qint64 PaintedSide = 4096;
constexpr qint64 BytesPerPixel = 4 * 3;

size_t threadsFor(const QSize &size)
{
    const qint64 side = std::max(size.width(), size.height());
    const qint64 factor = std::clamp(PaintedSide / std::max(side, qint64(1)), qint64(1), qint64(4));
    const qint64 bytes = qint64(size.width()) * size.height() * factor * factor * BytesPerPixel;
    return size_t(std::clamp(MostBytes / std::max(bytes, qint64(1)), qint64(1),
                             qint64(std::max(QThread::idealThreadCount(), 1))));
}

/// What the threads of a run share: they take pictures and add what became of them, and one tells of that in
/// the order of the pictures.
class PictureAccount
{
public:
    PictureAccount(size_t pictures, size_t threads, const std::atomic_bool &cancelled)
        : m_drawn(pictures)
        , m_lead(Lead * threads)
        , m_threads(threads)
        , m_cancelled(cancelled)
    {}

    /// The next picture to draw; none when there is nothing left to do.
    std::optional<size_t> take()
    {
        std::unique_lock lock(m_mutex);
        while (!m_stopped && !m_cancelled && m_next < m_drawn.size() && m_next >= m_told + m_lead)
            m_changed.wait_for(lock, LookAgain);
        if (m_stopped || m_cancelled || m_next == m_drawn.size())
            return {};
        return m_next++;
    }
    void add(size_t picture, DrawnPicture drawn)
    {
        const std::lock_guard lock(m_mutex);
        m_drawn[picture] = std::move(drawn);
        m_changed.notify_all();
    }
    /// A thread adds no more; with limits or for lack of memory, it could draw nothing.
    void leave(const std::optional<DrawingLimits> &limits, const QString &noMemory)
    {
        const std::lock_guard lock(m_mutex);
        --m_threads;
        if (limits)
            m_limits = limits;
        if (!noMemory.isEmpty())
            m_noMemory = noMemory;
        m_changed.notify_all();
    }
    /// Nobody is told any more.
    void stop()
    {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
        m_changed.notify_all();
    }
    /// Tells of what is there, in turn; waits for more where it is to. False when there is nothing to wait
    /// for.
    bool tell(const std::function<bool(size_t, const DrawnPicture &)> &told, bool waits)
    {
        std::unique_lock lock(m_mutex);
        if (m_stopped || m_told == m_drawn.size())
            return false;
        while (waits && !m_drawn[m_told] && m_threads > 0)
            m_changed.wait_for(lock, LookAgain);
        // Others may have done the work of a thread that had no memory.
        if (!m_drawn[m_told] && m_threads == 0 && !m_cancelled && !m_noMemory.isEmpty())
            m_drawn[m_told] = DrawnPicture{m_noMemory, {}};
        if (!m_drawn[m_told])
            return false;
        const DrawnPicture drawn = *std::exchange(m_drawn[m_told], DrawnPicture());
        const size_t picture = m_told++;
        const bool isLast = m_told == m_drawn.size();
        m_changed.notify_all();
        lock.unlock();
        const bool goesOn = told(picture, drawn);
        lock.lock();
        m_stopped = m_stopped || !goesOn;
        return goesOn && !isLast;
    }
    /// What kept all threads from drawing.
    const std::optional<DrawingLimits> &limits() const { return m_limits; }
    bool hasTold() const { return m_told > 0; }

private:
    std::mutex m_mutex; ///< for what follows
    std::condition_variable m_changed;
    std::vector<std::optional<DrawnPicture>> m_drawn;
    std::optional<DrawingLimits> m_limits;
    QString m_noMemory;
    size_t m_next = 0;
    size_t m_told = 0;
    size_t m_lead;
    size_t m_threads;
    bool m_stopped = false;
    const std::atomic_bool &m_cancelled;
};

/// Draws one picture after another; `drawn` is called after each. Gives limits that allow none.
std::optional<DrawingLimits> drawAll(QOffscreenSurface &surface, const QSize &size,
                                     const PictureThreads::MakeDraw &makeDraw, PictureAccount &account,
                                     const std::function<bool()> &drawn)
{
    OffscreenScene scene(surface);
    const DrawingLimits limits(scene);
    if (!limits.allow(size))
        return limits;
    const PictureThreads::Draw draw = makeDraw(scene);
    for (std::optional<size_t> picture = account.take(); picture; picture = account.take()) {
        DrawnPicture result;
        {
            HeldLog log;
            QString error;
            const QString noMemory = withinMemory([&] { error = draw(*picture); });
            result.error = noMemory.isEmpty() ? error : noMemory;
            result.lines = std::move(log.lines);
        }
        account.add(*picture, std::move(result));
        if (!drawn())
            break;
    }
    return {};
}

/// The same, for a thread that may leave nothing thrown behind.
void drawOn(QOffscreenSurface &surface, const QSize &size, const PictureThreads::MakeDraw &makeDraw,
            PictureAccount &account, const std::function<bool()> &drawn)
{
    std::optional<DrawingLimits> limits;
    const QString noMemory = withinMemory([&] { limits = drawAll(surface, size, makeDraw, account, drawn); });
    account.leave(limits, noMemory);
}
} // namespace

DrawingLimits::DrawingLimits(const OffscreenScene &scene)
    : failure(scene.failure())
    , longestSide(scene.longestSide())
{}

bool DrawingLimits::allow(const QSize &size) const
{
    return failure.isEmpty() && std::max(size.width(), size.height()) <= longestSide;
}

PictureThreads::PictureThreads(size_t pictures, const QSize &size)
    : m_pictures(pictures)
    , m_size(size)
    , m_surfaces(arePossible() ? std::min(threadsFor(size), pictures) : std::min(size_t(1), pictures))
{
    for (auto &surface : m_surfaces)
        surface = OffscreenScene::makeSurface();
}

PictureThreads::~PictureThreads() = default;

bool PictureThreads::arePossible()
{
    return QOpenGLContext::supportsThreadedOpenGL();
}

std::optional<DrawingLimits>
PictureThreads::run(const MakeDraw &makeDraw,
                    const std::function<bool(size_t picture, const DrawnPicture &)> &told,
                    const std::atomic_bool &cancelled)
{
    if (m_surfaces.empty())
        return {};
    PictureAccount account(m_pictures, m_surfaces.size(), cancelled);
    if (!arePossible()) {
        drawOn(*m_surfaces.front(), m_size, makeDraw, account, [&] { return account.tell(told, false); });
        account.tell(told, false);
    } else {
        QThreadPool threads;
        threads.setMaxThreadCount(int(m_surfaces.size()));
        try {
            for (auto &surface : m_surfaces) {
                threads.start([&, &surface = *surface] {
                    drawOn(surface, m_size, makeDraw, account, [] { return true; });
                });
            }
            while (account.tell(told, true)) {
            }
        } catch (...) {
            account.stop(); // the threads would wait for the telling
            throw;
        }
        threads.waitForDone();
    }
    return account.hasTold() ? std::nullopt : account.limits();
}
