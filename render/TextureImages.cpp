// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TextureImages.h"

#include "PictureFile.h"

#include <QCache>
#include <QDateTime>
#include <QFileInfo>
#include <QMutex>

#include <memory>
#include <mutex>

namespace {
constexpr qint64 CostUnit = 1024; // bytes

struct Texture
{
    QDateTime changed;
    qint64 size = 0;
    std::once_flag decoded;
    QImage image;
};

using TexturePointer = std::shared_ptr<Texture>;

struct Kept
{
    QMutex mutex;
    QCache<QString, TexturePointer> textures{int(TextureImages::Room / CostUnit)};
};

/// Never destroyed: a thread may still decode when the window system ends the program.
Kept &kept()
{
    static auto *all = new Kept;
    return *all;
}

QImage decode(const QString &path)
{
    return readPicture(path).image.convertToFormat(QImage::Format_RGBA8888);
}

/// The entry of this state of the file, which has no image until somebody decodes it.
TexturePointer textureOf(const QFileInfo &file)
{
    const QMutexLocker lock(&kept().mutex);
    const TexturePointer *known = kept().textures.object(file.filePath());
    if (known && (*known)->changed == file.lastModified() && (*known)->size == file.size())
        return *known;
    const auto made = std::make_shared<Texture>();
    made->changed = file.lastModified();
    made->size = file.size();
    kept().textures.insert(file.filePath(), new TexturePointer(made));
    return made;
}

/// Counts the memory of what was decoded. What cannot be decoded is tried again the next time: the reason may
/// be gone without a trace in the file.
void settle(const QString &path, const TexturePointer &texture)
{
    const QMutexLocker lock(&kept().mutex);
    const TexturePointer *known = kept().textures.object(path);
    if (!known || *known != texture)
        return; // The file has changed meanwhile.
    if (texture->image.isNull())
        kept().textures.remove(path);
    else
        kept().textures.insert(path, new TexturePointer(texture),
                               int(texture->image.sizeInBytes() / CostUnit));
}
} // namespace

QImage TextureImages::load(const QString &path)
{
    const QFileInfo file(path);
    // Opening a pipe would wait for a writer for ever.
    if (!file.isFile())
        return {};
    const TexturePointer texture = textureOf(file);
    std::call_once(texture->decoded, [&] {
        texture->image = decode(path);
        settle(path, texture);
    });
    return texture->image;
}
