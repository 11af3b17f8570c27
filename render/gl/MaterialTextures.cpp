// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialTextures.h"

#include "FilePictures.h"
#include "Files.h"
#include "Log.h"
#include "TextureImages.h"

#include <QCoreApplication>

MaterialTextures::MaterialTextures(const QString &gamePath, const QString &outputDir, const QString &logTag,
                                   qint64 mostPixels)
    : m_materials(gamePath, outputDir)
    , m_logTag(logTag)
    , m_blank(resourceImage(QStringLiteral(":/Images/textures/blank.png")))
    , m_mostPixels(mostPixels)
{}

QImage MaterialTextures::resourceImage(const QString &path)
{
    const QImage image = TextureImages::load(path);
    if (!image.isNull())
        return image;
    QImage white(1, 1, QImage::Format_RGBA8888);
    white.fill(Qt::white);
    return white;
}

QImage MaterialTextures::image(const QString &materialPath)
{
    const MaterialFiles::Lookup found = m_materials.find(materialPath);
    if (!found.error.isEmpty())
        Log::error(QStringLiteral("[%1] %2").arg(m_logTag, found.error));
    if (!found.warning.isEmpty())
        warn(found.warning);
    return found.texture == MaterialFiles::Blank ? m_blank : texture(found.texture);
}

QImage MaterialTextures::texture(const QString &name)
{
    const QStringList paths = m_materials.candidates(name);
    auto known = m_images.find(name);
    if (known == m_images.end()) {
        QImage image;
        for (int i = 0; i < paths.size() && image.isNull(); ++i)
            image = load(paths[i]);
        known = m_images.insert(name, image);
    }
    if (!known->isNull())
        return *known;
    warn(QCoreApplication::translate("Viewport", "Failed to load texture '%1' using blank texture instead")
             .arg(paths.isEmpty() ? name : paths.last()));
    return m_blank;
}

QImage MaterialTextures::load(const QString &path)
{
    const auto pixelsOf = [](const QSize &size) { return qint64(size.width()) * size.height(); };
    if (m_pixels > m_mostPixels - ::MostPixels &&
        m_pixels + pixelsOf(Files::pictureSize(path)) > m_mostPixels) {
        warn(QCoreApplication::translate(
                 "Viewport", "'%1' is left out: the model's textures have more than %2 million pixels")
                 .arg(path, QString::number(m_mostPixels / 1000000)));
        return {};
    }
    const QImage image = TextureImages::load(path);
    m_pixels += pixelsOf(image.size());
    if (!image.isNull() || !Files::isFile(path))
        return image;
    const QSize size = Files::pictureSize(path);
    if (size.isEmpty()) {
        warn(QCoreApplication::translate("Viewport", "'%1' is no picture of a kind that is read: %2")
                 .arg(path, QLatin1String(PictureKinds)));
    } else if (pixelsOf(size) > ::MostPixels) {
        warn(QCoreApplication::translate("Viewport",
                                         "'%1' has %2 × %3 pixels: more than %4 million are not read")
                 .arg(path, QString::number(size.width()), QString::number(size.height()),
                      QString::number(::MostPixels / 1000000)));
    }
    return image;
}

void MaterialTextures::warn(const QString &text) const
{
    Log::warning(QStringLiteral("[%1] %2").arg(m_logTag, text));
}
