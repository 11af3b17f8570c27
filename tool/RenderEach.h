// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PictureThreads.h"

#include <QStringList>

#include <functional>
#include <variant>
#include <vector>

class QImage;
struct MaterialFolders;
struct PictureWishes;

/// One picture of many.
struct PictureJob
{
    QString model;
    QString picture;
    QString refusal; ///< why there will be none; empty when nothing speaks against it
};

/// Whether a picture there would take the place of a model or a material, as it does through a link; and what
/// to say then. That is never meant, even where something is to be replaced.
bool isGameFile(const QString &path);
QString gameFileText(const QString &picture);

/// The pictures of the models that `paths` name, and of the meshes in the folders among them: NAME.png in
/// `target`, those of a folder in the folders there that they stand in here; NAME.staticmesh.png where a mesh
/// of the other kind has the name. None takes the place of another, and of another file only with `replaces`.
std::vector<PictureJob> picturesOf(const QStringList &paths, const QString &target, bool replaces);

/// The same, whose pictures go into no files of their own.
std::vector<PictureJob> thumbnailsOf(const QStringList &paths);

/// Takes the picture of a job without a file; null where it could not be drawn.
using TakePicture = std::function<void(size_t job, const QImage &picture)>;

/// Draws them, on all cores, and tells of each in their order. `chosen` are the folders of materials. Gives
/// the exit code; or nothing but limits, which do not allow these pictures.
std::variant<int, DrawingLimits> renderEach(const std::vector<PictureJob> &jobs, const PictureWishes &wishes,
                                            const MaterialFolders &chosen, const TakePicture &take = {});
