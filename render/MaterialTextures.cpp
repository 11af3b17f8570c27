// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialTextures.h"

#include "Log.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace {
// A picture's header is not to be trusted with more memory than this, in pixels (256 MiB as RGBA).
constexpr qint64 PixelLimit = 64 * 1024 * 1024;

QString withoutTrailingSeparators(QString folder)
{
    while (folder.endsWith(QLatin1Char('/')) || folder.endsWith(QLatin1Char('\\')))
        folder.chop(1);
    return folder;
}

QImage loadImage(const QString &path)
{
    // Opening a pipe would wait for a writer for ever.
    if (!QFileInfo(path).isFile())
        return {};
    QImageReader reader(path);
    const QSize size = reader.size();
    if (size.isValid() && qint64(size.width()) * size.height() > PixelLimit)
        return {};
    return reader.read().convertToFormat(QImage::Format_RGBA8888);
}
} // namespace

MaterialTextures::MaterialTextures(const QString &gamePath, const QString &outputDir, const QString &logTag)
    : m_logTag(logTag)
    , m_blank(resourceImage(QStringLiteral(":/Images/textures/blank.png")))
{
    for (const QString &folder : {gamePath, outputDir}) {
        if (!folder.isEmpty())
            m_folders.append(withoutTrailingSeparators(folder));
    }
}

QImage MaterialTextures::resourceImage(const QString &path)
{
    const QImage image = loadImage(path);
    if (!image.isNull())
        return image;
    QImage white(1, 1, QImage::Format_RGBA8888);
    white.fill(Qt::white);
    return white;
}

QStringList MaterialTextures::candidates(const QString &relativePath) const
{
    QStringList paths;
    for (const QString &folder : m_folders)
        paths.append(folder + QLatin1Char('/') + relativePath);
    return paths;
}

MaterialTextures::MaterialFile &MaterialTextures::materialFile(const QString &relativePath)
{
    const auto known = m_files.find(relativePath);
    if (known != m_files.end())
        return *known;

    MaterialFile file;
    const QStringList paths = candidates(relativePath);
    if (paths.isEmpty()) {
        file.error = QStringLiteral("Unable to read .kMat file at %1").arg(relativePath);
    } else {
        file.error = readKMat(paths, file.table);
        const auto found = std::find_if(paths.begin(), paths.end(),
                                        [](const QString &path) { return QFileInfo(path).isFile(); });
        file.path = found != paths.end() ? *found : paths.last();
    }
    return *m_files.insert(relativePath, file);
}

QImage MaterialTextures::image(const QString &materialPath)
{
    const QFileInfo parts(materialPath);
    const QString material = parts.fileName();
    MaterialFile &file = materialFile(parts.path() + QStringLiteral(".kmat"));

    const auto entry = file.table.find(material);
    if (entry == file.table.end()) {
        // Imported surfaces without a texture and the program's own meshes are named so and have no file.
        if (material.endsWith(QLatin1String("_white")))
            return m_blank;
        if (!file.path.isEmpty() && file.error.isEmpty())
            warn(QStringLiteral("No material '%1' in '%2'").arg(material, file.path));
    }
    if (!file.error.isEmpty()) {
        Log::error(QStringLiteral("[%1] %2").arg(m_logTag, file.error));
        file.error.clear();
        file.path.clear();
    }

    const QString name = entry != file.table.end() ? entry->second : QString();
    return name == QLatin1String("_white") ? m_blank : texture(name);
}

QImage MaterialTextures::texture(const QString &name)
{
    const QStringList paths = candidates(name);
    auto known = m_images.find(name);
    if (known == m_images.end()) {
        QImage image;
        for (int i = 0; i < paths.size() && image.isNull(); ++i)
            image = loadImage(paths[i]);
        known = m_images.insert(name, image);
    }
    if (!known->isNull())
        return *known;
    warn(QStringLiteral("Failed to load texture '%1' using blank texture instead")
             .arg(paths.isEmpty() ? name : paths.last()));
    return m_blank;
}

void MaterialTextures::warn(const QString &text) const
{
    Log::warning(QStringLiteral("[%1] %2").arg(m_logTag, text));
}
