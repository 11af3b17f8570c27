// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MaterialFiles.h"
#include "PictureFile.h"

#include <QHash>
#include <QImage>

/// Finds the texture images of one model's surfaces through their materials, in the game folder and then in
/// the mod folder. Lives as long as one build of a mesh: decoded images are kept, the failures too.
/// Those that would bring them beyond MostPixels together count as failures.
class MaterialTextures
{
public:
    static constexpr qint64 MostPixels = 2 * ::MostPixels;

    /// An empty folder is not searched. `logTag` names the build in the log, as in "[tag] text".
    MaterialTextures(const QString &gamePath, const QString &outputDir, const QString &logTag,
                     qint64 mostPixels = MostPixels);

    /// The image for "FOLDER/FILE/MATERIAL", RGBA, row 0 at the top. Whatever is missing is logged and the
    /// blank image returned, never a null one.
    QImage image(const QString &materialPath);

    /// An image of the program's own resources; one white pixel if there is none.
    static QImage resourceImage(const QString &path);

private:
    QImage texture(const QString &name);
    QImage load(const QString &path);
    void warn(const QString &text) const;

    MaterialFiles m_materials;
    QString m_logTag;
    QHash<QString, QImage> m_images; ///< by texture name; null images are failures
    QImage m_blank;
    const qint64 m_mostPixels;
    qint64 m_pixels = 0; ///< of all images
};
