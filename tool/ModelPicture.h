// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Framing.h"
#include "MeshSource.h"
#include "Playback.h"
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
    float lens = UsualStillLens;
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
    /// Draws what was read; what textures are missing is logged. A null picture comes with what went wrong.
    [[nodiscard]] QImage paint(OffscreenScene &scene, const MaterialFolders &folders, QString &error) const;
    /// The same, and writes the picture in one step. Returns what went wrong.
    [[nodiscard]] QString draw(OffscreenScene &scene, const MaterialFolders &folders) const;

private:
    const PictureWishes &m_wishes;
    QString m_path;
    PosedModel m_subject;
};

/// What a copy on the graphics card is made of, and the state that poses the model.
MeshSource sourceOf(const PosedModel &model, const MaterialFolders &folders);
Playback stateOf(const PosedModel &model, const PictureWishes &wishes);

/// Where the corners of a posed model stand, without the few that stand far away from all others; how many
/// those are goes into `strays`, if they are more.
std::vector<QVector3D> visibleCorners(const OffscreenScene &scene, const SceneFrame &frame, int &strays);
/// Warns of them, if there are any.
void warnOfStrays(const QString &path, int strays);
/// Says that the driver failed at the picture at `path`.
QString tooBig(const QString &path);
/// Says that the picture at `path` could not be written.
QString unwritten(const QString &path, const QString &reason);
