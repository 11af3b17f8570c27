// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "StillPicture.h"

class Companions;
class OffscreenScene;
struct MaterialFolders;

/// A model on its way from its files into the file of a picture.
class ModelPicture
{
public:
    /// `path` says by its extension which format it has; PNG where it says none.
    ModelPicture(const PictureWishes &wishes, const QString &path)
        : m_wishes(wishes)
        , m_path(path)
    {}

    /// Reads what is to be drawn. Returns why there is nothing.
    [[nodiscard]] QString read(const QString &file, Companions &companions);
    /// Draws what was read; what textures are missing is logged. A null picture comes with what went wrong.
    [[nodiscard]] QImage paint(OffscreenScene &scene, const MaterialFolders &folders, QString &error) const;
    /// The same, and writes the picture in one step. Returns what went wrong.
    [[nodiscard]] QString draw(OffscreenScene &scene, const MaterialFolders &folders) const;

private:
    const PictureWishes &m_wishes;
    QString m_path;
    PosedModel m_subject;
};

/// Warns of vertices that stand far away from all others, if there are any.
void warnOfStrays(const QString &path, int strays);
/// Says that the driver failed at the picture at `path`.
QString tooBig(const QString &path);
/// Says that the picture at `path` could not be written.
QString unwritten(const QString &path, const QString &reason);
