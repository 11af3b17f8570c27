// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Pose.h"

#include <QVector3D>

#include <vector>

class GLMesh;

/// Where the middles of a model's surfaces stand in a pose: the means of their corners. What the pose moves
/// is one place for each bone of a surface, so a frame costs little.
class SurfaceMiddles
{
public:
    /// Follows the model where it has changed.
    void update(const GLMesh &model);
    /// In the model's own space, as its palette poses it; the origin where it is nowhere.
    QVector3D middle(const GLMesh &model, int surface) const;

private:
    /// What a surface has of one bone.
    struct Part
    {
        int bone;
        QVector3D middle; ///< in the bone's space
        float share;      ///< of the surface's corners
    };

    int m_revision = 0;
    std::vector<std::vector<Part>> m_parts; ///< by surface
};
