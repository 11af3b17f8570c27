// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MaterialFiles.h"

#include <QHash>
#include <QImage>

/// Finds the texture images of one model's surfaces through their materials, in the game folder and then in
/// the mod folder. Lives as long as one build of a mesh: decoded images are kept, the failures too.
class MaterialTextures
{
public:
    /// An empty folder is not searched. `logTag` names the build in the log, as in "[tag] text".
    MaterialTextures(const QString &gamePath, const QString &outputDir, const QString &logTag);

    /// The image for "FOLDER/FILE/MATERIAL", RGBA, row 0 at the top. Whatever is missing is logged and the
    /// blank image returned, never a null one.
    QImage image(const QString &materialPath);

    /// An image of the program's own resources; one white pixel if there is none.
    static QImage resourceImage(const QString &path);

private:
    QImage texture(const QString &name);
    void warn(const QString &text) const;

    MaterialFiles m_materials;
    QString m_logTag;
    QHash<QString, QImage> m_images; ///< by texture name; null images are failures
    QImage m_blank;
};
