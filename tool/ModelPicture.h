// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PosedModel.h"
#include "SceneFrame.h"

#include <QColor>
#include <QSize>

class OffscreenScene;
struct MaterialFolders;

/// What is wanted of a picture.
struct PictureWishes
{
    QSize size;
    QColor background;
    float yaw = 0.0f;   ///< degrees
    float pitch = 0.0f; ///< degrees
    SurfaceLook look = SurfaceLook::Textured;
    QString anim; ///< the file to pose by; empty for the one that belongs to the mesh
    int block = 0;
    int frame = 0;
    bool isPoseNamed = false; ///< a model without an animation has no such pose
};

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
    /// Draws what was read and writes the picture in one step; what textures are missing is logged. Returns
    /// what went wrong.
    [[nodiscard]] QString draw(OffscreenScene &scene, const MaterialFolders &folders) const;

private:
    QString write(const QImage &image) const;

    const PictureWishes &m_wishes;
    QString m_path;
    PosedModel m_subject;
};
