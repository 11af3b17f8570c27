// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TextureImages.h"

#include "FilePictures.h"
#include "FileStamp.h"

#include <QCache>
#include <QMutex>

#include <algorithm>
#include <memory>
#include <mutex>

namespace {
constexpr qint64 CostUnit = 1024; // bytes

struct Texture
{
    FileStamp stamp;
    int cost = 1; ///< for the caches, and as them behind their lock
    std::once_flag decoded;
    QImage image;
};

using TexturePointer = std::shared_ptr<Texture>;

struct Kept
{
    QMutex mutex;
    QCache<QString, TexturePointer> textures{int(TextureImages::Room / CostUnit)};
    QCache<QString, TexturePointer> ahead{int(TextureImages::AheadRoom / CostUnit)}; ///< not asked for yet
};

/// Never destroyed: a thread may still decode when the window system ends the program.
Kept &kept()
{
    static auto *all = new Kept;
    return *all;
}

QImage decode(const QString &path)
{
    return Files::readPicture(path).image.convertToFormat(QImage::Format_RGBA8888);
}

using TextureCache = QCache<QString, TexturePointer>;

/// What is kept of this state of the file; null when nothing is.
TexturePointer keptIn(const TextureCache &cache, const QString &path, const FileStamp &stamp)
{
    const TexturePointer *found = cache.object(path);
    return found && (*found)->stamp == stamp ? *found : nullptr;
}

/// The entry of this state of the file, which has no image until somebody decodes it.
TexturePointer textureOf(const QString &path, const FileStamp &stamp, bool isAhead)
{
    const QMutexLocker lock(&kept().mutex);
    if (TexturePointer texture = keptIn(kept().textures, path, stamp))
        return texture;
    TexturePointer texture = keptIn(kept().ahead, path, stamp);
    if (texture && isAhead)
        return texture;
    if (!texture) {
        texture = std::make_shared<Texture>();
        texture->stamp = stamp;
    }
    kept().ahead.remove(path);
    TextureCache &cache = isAhead ? kept().ahead : kept().textures;
    cache.insert(path, new TexturePointer(texture), texture->cost);
    return texture;
}

/// Counts the memory of what was decoded. What cannot be decoded is tried again the next time: the reason may
/// be gone without a trace in the file.
void settle(const QString &path, const TexturePointer &texture)
{
    const QMutexLocker lock(&kept().mutex);
    texture->cost = std::max(1, int(texture->image.sizeInBytes() / CostUnit));
    for (TextureCache *cache : {&kept().textures, &kept().ahead}) {
        const TexturePointer *found = cache->object(path);
        if (!found || *found != texture)
            continue; // The file has changed meanwhile.
        if (texture->image.isNull())
            cache->remove(path);
        else
            cache->insert(path, new TexturePointer(texture), texture->cost);
    }
}

QImage loadInto(const QString &path, bool isAhead)
{
    const FileStamp stamp = FileStamp::of(path);
    if (!stamp.exists())
        return {};
    const TexturePointer texture = textureOf(path, stamp, isAhead);
    std::call_once(texture->decoded, [&] {
        texture->image = decode(path);
        settle(path, texture);
    });
    return texture->image;
}
} // namespace

QImage TextureImages::load(const QString &path)
{
    return loadInto(path, false);
}

qint64 TextureImages::loadAhead(const QString &path)
{
    return loadInto(path, true).sizeInBytes();
}
