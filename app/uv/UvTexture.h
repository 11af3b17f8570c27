// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

/// The texture of a material, found as the view finds it.
struct UvTexture
{
    QImage image; ///< row 0 at the top; null where there is none
    QString name; ///< relative to the folders; empty where the material names none

    /// Looks it up in the two folders, of which an empty one is not searched. In any thread; logs nothing:
    /// the view has said what is missing.
    static UvTexture of(const QString &materialPath, const QString &gamePath, const QString &outputDir);
};
