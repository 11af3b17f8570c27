// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialTextures.h"

#include "Log.h"
#include "TextureImages.h"

#include <QCoreApplication>

MaterialTextures::MaterialTextures(const QString &gamePath, const QString &outputDir, const QString &logTag)
    : m_materials(gamePath, outputDir)
    , m_logTag(logTag)
    , m_blank(resourceImage(QStringLiteral(":/Images/textures/blank.png")))
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
            image = TextureImages::load(paths[i]);
        known = m_images.insert(name, image);
    }
    if (!known->isNull())
        return *known;
    warn(QCoreApplication::translate("Viewport", "Failed to load texture '%1' using blank texture instead")
             .arg(paths.isEmpty() ? name : paths.last()));
    return m_blank;
}

void MaterialTextures::warn(const QString &text) const
{
    Log::warning(QStringLiteral("[%1] %2").arg(m_logTag, text));
}
