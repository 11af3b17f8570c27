// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Log.h"

#include <QSize>
#include <QString>
#include <QVector>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class OffscreenScene;
class QOffscreenSurface;

/// What a driver can draw.
struct DrawingLimits
{
    QString failure; ///< why nothing; empty when nothing is wrong
    int longestSide = 0;

    explicit DrawingLimits(const OffscreenScene &scene);
    bool allow(const QSize &size) const;
};

/// What became of a picture.
struct DrawnPicture
{
    QString error; ///< empty when nothing went wrong
    QVector<LogLine> lines;
};

/// Draws many pictures at once, in threads that have a scene each: as many as there are cores, and as memory
/// has room for pictures of their size. None runs far ahead of the one that is told of next.
class PictureThreads
{
public:
    /// Draws the picture of this number; says what went wrong.
    using Draw = std::function<QString(size_t picture)>;
    /// Makes a thread's Draw, which goes before the scene does.
    using MakeDraw = std::function<Draw(OffscreenScene &scene)>;

    /// In the GUI thread, since the system makes there what is painted on.
    PictureThreads(size_t pictures, const QSize &size);
    ~PictureThreads();
    PictureThreads(const PictureThreads &) = delete;
    PictureThreads &operator=(const PictureThreads &) = delete;

    /// Whether the system's OpenGL can be used elsewhere than in the GUI thread. Without that, run() draws in
    /// the thread that calls it, which then has to be this one.
    static bool arePossible();

    /// Draws all; in any thread, which waits, and hears what became of them in the order of their numbers:
    /// where `told` says false, or as soon as `cancelled`, no others are begun. A lack of memory is what went
    /// wrong with a picture. Gives limits, and nothing else, where these do not allow such pictures.
    std::optional<DrawingLimits> run(const MakeDraw &makeDraw,
                                     const std::function<bool(size_t picture, const DrawnPicture &)> &told,
                                     const std::atomic_bool &cancelled);

private:
    size_t m_pictures;
    QSize m_size;
    std::vector<std::unique_ptr<QOffscreenSurface>> m_surfaces; ///< one for each thread
};
