// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TextureImages.h"

#include <QCache>
#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>
#include <QMutex>

#include <memory>
#include <mutex>

namespace {
// A picture's header is not to be trusted with more memory than this, in pixels (256 MiB as RGBA).
constexpr qint64 PixelLimit = 64 * 1024 * 1024;
constexpr int Room = 64 * 1024; // KiB, 16 textures of 1024 by 1024

struct Texture
{
    QDateTime changed;
    qint64 size = 0;
    std::once_flag decoded;
    QImage image;
};

struct Kept
{
    QMutex mutex;
    QCache<QString, std::shared_ptr<Texture>> textures{Room};
};

Kept &kept()
{
    static Kept all;
    return all;
}

QImage decode(const QString &path)
{
    QImageReader reader(path);
    const QSize size = reader.size();
    if (size.isValid() && qint64(size.width()) * size.height() > PixelLimit)
        return {};
    return reader.read().convertToFormat(QImage::Format_RGBA8888);
}

/// The entry of this state of the file, which has no image until somebody decodes it.
std::shared_ptr<Texture> textureOf(const QFileInfo &file)
{
    const QMutexLocker lock(&kept().mutex);
    const std::shared_ptr<Texture> *known = kept().textures.object(file.filePath());
    if (known && (*known)->changed == file.lastModified() && (*known)->size == file.size())
        return *known;
    const auto made = std::make_shared<Texture>();
    made->changed = file.lastModified();
    made->size = file.size();
    kept().textures.insert(file.filePath(), new std::shared_ptr<Texture>(made));
    return made;
}

/// Counts the memory of a decoded image, unless the file has changed meanwhile.
void weigh(const QString &path, const std::shared_ptr<Texture> &texture)
{
    const QMutexLocker lock(&kept().mutex);
    const std::shared_ptr<Texture> *known = kept().textures.object(path);
    if (known && *known == texture) {
        kept().textures.insert(path, new std::shared_ptr<Texture>(texture),
                               int(texture->image.sizeInBytes() / 1024) + 1);
    }
}
} // namespace

QImage TextureImages::load(const QString &path)
{
    const QFileInfo file(path);
    // Opening a pipe would wait for a writer for ever.
    if (!file.isFile())
        return {};
    const std::shared_ptr<Texture> texture = textureOf(file);
    std::call_once(texture->decoded, [&] {
        texture->image = decode(path);
        weigh(path, texture);
    });
    return texture->image;
}
