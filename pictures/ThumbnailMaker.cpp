// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ThumbnailMaker.h"

#include "BinaryFileReader.h"
#include "Companions.h"
#include "DrawnFrom.h"
#include "FilePictures.h"
#include "FileSearch.h"
#include "Files.h"
#include "KMat.h"
#include "Log.h"
#include "Memory.h"
#include "ModFiles.h"
#include "OffscreenScene.h"
#include "PictureThreads.h"
#include "StillPicture.h"

#include <QCoreApplication>
#include <QSet>
#include <QThread>

#include <algorithm>
#include <utility>

namespace {
/// A texture of more pixels is not read for a small picture.
constexpr qint64 MostTexturePixels = 8192 * 4096;
/// Of a material file so many textures are read, and so many are looked for.
constexpr int MostTexturesRead = 16;
constexpr int MostTexturesSought = 1000;
/// A picture of a model that names more files is not kept.
constexpr int MostDrawnFrom = 256;
/// So many pictures are kept before it is looked at how much they take.
constexpr int KeptBetween = 100;

QString sayOfThumbnail(const char *text)
{
    return QCoreApplication::translate("ThumbnailMaker", text);
}

KeptThumbnail smallPictureOf(const QString &path, int side)
{
    const QSize size = Files::pictureSize(path);
    if (size.isEmpty())
        return {{}, sayOfThumbnail(QT_TRANSLATE_NOOP("ThumbnailMaker", "The texture cannot be read."))};
    if (qint64(size.width()) * size.height() > MostTexturePixels)
        return {{}, sayOfThumbnail(QT_TRANSLATE_NOOP("ThumbnailMaker", "Too large for a small picture"))};
    const QImage image = Files::readPicture(path).image;
    if (image.isNull())
        return {{}, sayOfThumbnail(QT_TRANSLATE_NOOP("ThumbnailMaker", "The texture cannot be read."))};
    if (std::max(image.width(), image.height()) <= side)
        return {image, {}};
    return {image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation), {}};
}

/// That of its first texture that there is.
KeptThumbnail materialPictureOf(const QString &path, int side, const MaterialFolders &folders,
                                const ReadProgress &progress)
{
    MaterialTable table;
    const QString error = readKMat(path, table);
    if (!error.isEmpty())
        return {{}, error};
    const FileSearch search(folders.gamePath, folders.outputDir);
    QSet<QString> sought;
    int read = 0;
    for (const auto &[name, texture] : table) {
        if (progress.isCancelled || read == MostTexturesRead || sought.size() == MostTexturesSought)
            break;
        if (texture.isEmpty() || sought.contains(texture))
            continue;
        sought.insert(texture);
        const QString found = search.find(texture);
        if (found.isEmpty())
            continue;
        ++read;
        const KeptThumbnail picture = smallPictureOf(found, side);
        if (!picture.image.isNull())
            return picture;
    }
    return {{}, sayOfThumbnail(QT_TRANSLATE_NOOP("ThumbnailMaker", "None of its textures can be read."))};
}

/// Whether a file gives all its bytes, and is still as it was. One that another program holds does not, or
/// one on a share that is away: it may be a good one.
bool isReadWhole(const ThumbnailSubject &subject)
{
    const std::unique_ptr<QIODevice> device = Files::open(subject.path);
    if (!device || subject.stamp.size > ThumbnailMaker::MostModelBytes)
        return false;
    QByteArray bytes(1024 * 1024, '\0');
    qint64 count = 0;
    for (qint64 got = 1; got > 0; count += std::max<qint64>(got, 0))
        got = device->read(bytes.data(), bytes.size());
    return count == subject.stamp.size && FileStamp::of(subject.path) == subject.stamp;
}
} // namespace

ThumbnailMaker::ThumbnailMaker(ThumbnailCache cache, std::function<void(const MadeThumbnail &)> take)
    : m_cache(std::move(cache))
    , m_take(std::move(take))
    , m_progress(std::make_unique<ReadProgress>())
{}

ThumbnailMaker::~ThumbnailMaker()
{
    {
        const std::lock_guard lock(m_mutex);
        m_ends = true;
        m_progress->isCancelled = true;
        m_wished.notify_all();
    }
    if (m_thread)
        m_thread->wait();
}

void ThumbnailMaker::wish(std::vector<ThumbnailWish> wishes, int side, const MaterialFolders &folders)
{
    const auto isDrawn = [](const ThumbnailWish &wish) {
        const ModFileKind kind = modFileKind(wish.path);
        return kind != ModFileKind::Picture && kind != ModFileKind::Material;
    };
    const bool needsSurface = std::any_of(wishes.begin(), wishes.end(), isDrawn);
    const std::lock_guard lock(m_mutex);
    if (needsSurface && !m_surface && PictureThreads::arePossible())
        m_surface = OffscreenScene::makeSurface();
    m_isNew = m_isNew || std::any_of(wishes.begin(), wishes.end(),
                                     [](const ThumbnailWish &wish) { return wish.known.exists(); });
    std::reverse(wishes.begin(), wishes.end());
    const auto isMaking = [this](const ThumbnailWish &wish) {
        return wish.path == m_making.path && wish.round == m_making.round;
    };
    if (side == m_side)
        wishes.erase(std::remove_if(wishes.begin(), wishes.end(), isMaking), wishes.end());
    m_wishes = std::move(wishes);
    m_side = side;
    m_folders = folders;
    if (!m_thread && !m_wishes.empty()) {
        m_thread.reset(QThread::create([this] { work(); }));
        m_thread->start(QThread::LowPriority);
    }
    m_wished.notify_all();
}

void ThumbnailMaker::work()
{
    MaterialFolders folders;
    for (int count = 0;; ++count) {
        ThumbnailWish wish;
        int side = 0;
        {
            std::unique_lock lock(m_mutex);
            m_wished.wait(lock, [this] { return m_ends || !m_wishes.empty(); });
            if (m_ends)
                break;
            wish = std::move(m_wishes.back());
            m_wishes.pop_back();
            m_making = wish;
            side = m_side;
            const bool areSame = m_folders == folders;
            folders = m_folders;
            if (std::exchange(m_isNew, false) || !areSame)
                m_companions.reset();
        }
        MadeThumbnail made;
        // What it says of missing textures is for who opens the model.
        const HeldLog held;
        const QString noMemory = withinMemory([&] { made = make(wish, side, folders); });
        if (!noMemory.isEmpty())
            made = {wish.path, FileStamp::of(wish.path), {}, noMemory};
        made.round = wish.round;
        m_take(made);
        {
            const std::lock_guard lock(m_mutex);
            m_making = {};
        }
        if (count % KeptBetween == 0)
            m_cache.tidy();
    }
    m_scene.reset();
}

MadeThumbnail ThumbnailMaker::make(const ThumbnailWish &wish, int side, const MaterialFolders &folders)
{
    const ThumbnailSubject subject{wish.path, FileStamp::of(wish.path), side};
    MadeThumbnail made{wish.path, subject.stamp, {}, {}};
    // What a material shows are other files; a model shows those that it names beside itself.
    const ModFileKind kind = modFileKind(wish.path);
    const bool isKept = kind != ModFileKind::Material;
    const bool isModel = isKept && kind != ModFileKind::Picture;
    if (isKept && !isModel && wish.known.exists() && wish.known == subject.stamp) {
        made.isSame = true;
        return made;
    }
    KeptThumbnail thumbnail = isKept ? m_cache.find(subject) : KeptThumbnail();
    if (isModel && !thumbnail.isEmpty() &&
        thumbnail.state != DrawnFrom::state(thumbnail.drawnFrom, companionOf(wish.path, folders), folders))
        thumbnail = {};
    if (thumbnail.isEmpty()) {
        ++m_drawn;
        thumbnail = draw(subject, folders);
        // That there is no mesh for an animation may be otherwise soon.
        const bool isLasting = thumbnail.image.isNull() ? kind != ModFileKind::Anim && isReadWhole(subject)
                                                        : thumbnail.drawnFrom.size() <= MostDrawnFrom;
        if (isKept && !thumbnail.isEmpty() && isLasting && !m_progress->isCancelled)
            m_cache.keep(subject, thumbnail);
    }
    made.image = std::move(thumbnail.image);
    made.error = std::move(thumbnail.error);
    return made;
}

KeptThumbnail ThumbnailMaker::draw(const ThumbnailSubject &subject, const MaterialFolders &folders)
{
    switch (modFileKind(subject.path)) {
    case ModFileKind::Picture:
        return smallPictureOf(subject.path, subject.side);
    case ModFileKind::Material:
        return materialPictureOf(subject.path, subject.side, folders, *m_progress);
    default:
        return drawModel(subject, folders);
    }
}

Companions &ThumbnailMaker::companions(const MaterialFolders &folders)
{
    if (!m_companions)
        m_companions = std::make_unique<Companions>(folders, QStringList(),
                                                    [this] { return m_progress->isCancelled.load(); });
    return *m_companions;
}

QString ThumbnailMaker::companionOf(const QString &path, const MaterialFolders &folders)
{
    return modFileKind(path) == ModFileKind::StaticMesh ? QString() : companions(folders).find(path).path;
}

KeptThumbnail ThumbnailMaker::drawModel(const ThumbnailSubject &subject, const MaterialFolders &folders)
{
    if (subject.stamp.size > MostModelBytes)
        return {{}, sayOfThumbnail(QT_TRANSLATE_NOOP("ThumbnailMaker", "Too large for a small picture"))};
    const QString companion = companionOf(subject.path, folders);
    PosedModel model;
    const QString error = model.read(subject.path, {}, companions(folders));
    if (!error.isEmpty())
        return {{}, error, {}, DrawnFrom::state({}, companion, folders)};
    if (model.animFile()) {
        const QString problem = model.problem(0, 0);
        if (!problem.isEmpty() && modFileKind(subject.path) == ModFileKind::Anim)
            return {{}, problem};
        if (!problem.isEmpty())
            model.anim = std::monostate();
    }
    OffscreenScene *canvas = scene();
    if (!canvas)
        return {};
    PictureWishes wishes;
    wishes.size = QSize(subject.side, subject.side);
    int strays = 0;
    // Before the files are read: what changes meanwhile is drawn anew the next time.
    const QStringList names = DrawnFrom::names(model, folders, *m_progress);
    const QString state = DrawnFrom::state(names, companion, folders);
    MeshSource source = sourceOf(model, folders, m_progress.get());
    return {paintStill(*canvas, std::move(source), model, wishes, strays), {}, names, state};
}

OffscreenScene *ThumbnailMaker::scene()
{
    if (!m_scene) {
        QOffscreenSurface *surface = nullptr;
        {
            const std::lock_guard lock(m_mutex);
            surface = m_surface.get();
        }
        if (surface)
            m_scene = std::make_unique<OffscreenScene>(*surface);
    }
    return m_scene && m_scene->failure().isEmpty() ? m_scene.get() : nullptr;
}
