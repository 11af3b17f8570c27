// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ThumbnailCache.h"
#include "Validation.h"

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

class Companions;
class OffscreenScene;
class QOffscreenSurface;
class QThread;
struct ReadProgress;

/// A small picture of a file that is wanted.
struct ThumbnailWish
{
    QString path;
    FileStamp known; ///< as the file was when the picture that is there already was made
    int round = 0; ///< goes with it: what was made for one says nothing of what came between it and the next
};

/// What came of that.
struct MadeThumbnail
{
    QString path;
    FileStamp stamp;
    QImage image;        ///< null where there is none
    QString error;       ///< why not
    bool isSame = false; ///< the file is as it is known, and nothing was made
    int round = 0;       ///< of the wish
};

/// Makes small pictures of models, animations, materials and textures in a thread of its own, the way that
/// the command line draws models, unless they are kept already.
class ThumbnailMaker
{
public:
    /// A model of more bytes is not drawn so small.
    static constexpr qint64 MostModelBytes = 64 * 1024 * 1024;

    /// `take` is called in the other thread.
    ThumbnailMaker(ThumbnailCache cache, std::function<void(const MadeThumbnail &)> take);
    /// Waits for the picture that is being made.
    ~ThumbnailMaker();
    ThumbnailMaker(const ThumbnailMaker &) = delete;
    ThumbnailMaker &operator=(const ThumbnailMaker &) = delete;

    /// In the GUI thread. What was wished for before and is not begun is not made any more. Textures and
    /// animations are looked for in the folders; `side` is that of ThumbnailSubject.
    void wish(std::vector<ThumbnailWish> wishes, int side, const MaterialFolders &folders);
    /// How many were drawn or read from their files, and not found.
    int drawnCount() const { return m_drawn; }

private:
    void work();
    MadeThumbnail make(const ThumbnailWish &wish, int side, const MaterialFolders &folders);
    KeptThumbnail draw(const ThumbnailSubject &subject, const MaterialFolders &folders);
    Companions &companions(const MaterialFolders &folders);
    /// The file that belongs to a model and is drawn with it; empty for none.
    QString companionOf(const QString &path, const MaterialFolders &folders);
    KeptThumbnail drawModel(const ThumbnailSubject &subject, const MaterialFolders &folders);
    /// Null where nothing can be drawn.
    OffscreenScene *scene();

    const ThumbnailCache m_cache;
    const std::function<void(const MadeThumbnail &)> m_take;
    std::unique_ptr<QOffscreenSurface> m_surface; ///< which belongs to the GUI thread
    std::unique_ptr<QThread> m_thread;

    std::mutex m_mutex; ///< for what follows
    std::condition_variable m_wished;
    std::vector<ThumbnailWish> m_wishes; ///< the next one last
    ThumbnailWish m_making;              ///< what is being made
    int m_side = 0;
    MaterialFolders m_folders;
    bool m_isNew = false; ///< files beside others may be others since they were looked for
    bool m_ends = false;

    std::atomic_int m_drawn{0};
    std::unique_ptr<ReadProgress> m_progress; ///< ends a read
    std::unique_ptr<OffscreenScene> m_scene;  ///< of the other thread, as the next
    std::unique_ptr<Companions> m_companions;
};
