// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <variant>
#include <vector>

class OffscreenScene;
class QSize;
struct MaterialFolders;
struct PictureWishes;

/// One picture of many.
struct PictureJob
{
    QString model;
    QString picture;
    QString refusal; ///< why there will be none; empty when nothing speaks against it
};

/// The pictures of the models that `paths` name, and of the meshes in the folders among them: NAME.png in
/// `target`, those of a folder in the folders there that they stand in here; NAME.staticmesh.png where a mesh
/// of the other kind has the name. None takes the place of another,
/// and of another file only with `replaces`.
std::vector<PictureJob> picturesOf(const QStringList &paths, const QString &target, bool replaces);

/// What a driver can draw.
struct DrawingLimits
{
    QString failure; ///< why nothing; empty when nothing is wrong
    int longestSide = 0;

    explicit DrawingLimits(const OffscreenScene &scene);
    bool allow(const QSize &size) const;
};

/// Draws them, on all cores, and tells of each in their order. `chosen` are the folders of materials. Gives
/// the exit code; or nothing but limits, which do not allow these pictures.
std::variant<int, DrawingLimits> renderEach(const std::vector<PictureJob> &jobs, const PictureWishes &wishes,
                                            const MaterialFolders &chosen);
