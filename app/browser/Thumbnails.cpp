// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Thumbnails.h"

#include "OwnFolders.h"
#include "Settings.h"
#include "SharedThumbnails.h"

#include <algorithm>

namespace {
constexpr int SmallSide = 128; ///< that thumbnails have, as the next
constexpr int LargeSide = 256;
constexpr int LeastCost = 256; ///< of one that is none

ThumbnailCache thumbnailCache()
{
    return {sharedThumbnails(), OwnFolders::cache() + QStringLiteral("/thumbnails")};
}
} // namespace

Thumbnails::Thumbnails(QObject *parent)
    : QObject(parent)
    , m_cache(MostBytes)
{}

Thumbnails::~Thumbnails()
{
    m_maker.reset(); // it tells this of what it makes
}

void Thumbnails::setSide(int pixels)
{
    if (pixels == m_side)
        return;
    m_side = pixels;
    m_cache.clear();
}

void Thumbnails::want(const QStringList &paths)
{
    std::vector<ThumbnailWish> wishes;
    for (const QString &path : paths) {
        const Thumbnail *known = find(path);
        if (!known || known->round != m_round)
            wishes.push_back({path, known ? known->stamp : FileStamp(), m_round});
    }
    if (!m_maker && wishes.empty())
        return;
    if (!m_maker)
        m_maker = std::make_unique<ThumbnailMaker>(thumbnailCache(), [this](const MadeThumbnail &made) {
            QMetaObject::invokeMethod(
                this, [this, made] { take(made); }, Qt::QueuedConnection);
        });
    m_maker->wish(std::move(wishes), m_side > SmallSide ? LargeSide : SmallSide,
                  {Settings::GamePath.value(), Settings::OutputDir.value()});
}

void Thumbnails::take(const MadeThumbnail &made)
{
    if (made.isSame) {
        if (Thumbnail *known = m_cache.object(made.path))
            known->round = made.round;
        return;
    }
    auto *thumbnail = new Thumbnail{{}, made.error, made.stamp, made.round};
    if (!made.image.isNull()) {
        QImage image = made.image;
        if (std::max(image.width(), image.height()) > m_side)
            image = image.scaled(m_side, m_side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        thumbnail->picture = QPixmap::fromImage(image);
    }
    const QSize size = thumbnail->picture.size();
    m_cache.insert(made.path, thumbnail, LeastCost + size.width() * size.height() * 4);
    emit this->made(made.path);
}
