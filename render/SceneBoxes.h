// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SceneMarks.h"

#include <array>
#include <optional>

/// The boxes of a picture, of the bones as they are posed and of the model, as the edges that they have
/// there. Keeps its memory; knows no OpenGL.
class SceneBoxes
{
public:
    /// Finds the edges of what `records` wants shown.
    void place(const MarkedRecords &records, const ScreenMap &map, const BonePalette &palette);
    void draw(OverlayCanvas &canvas) const;

private:
    enum class Look { Bone, Model, Selected };
    struct Grip
    {
        QPointF pixel;
        bool isHovered;
    };
    struct Edge
    {
        QPointF from;
        QPointF to;
        Look look;
        bool isBehind; ///< the box itself would hide it
    };

    void addHandles(const MarkedRecords &records, const Box &box, const QMatrix4x4 &toModel,
                    const ScreenMap &map);
    void add(const Box &box, const QMatrix4x4 &toModel, const ScreenMap &map, Look look);

    Skeleton m_skeleton;
    std::vector<Edge> m_edges;
    std::vector<Grip> m_grips;
    std::optional<std::array<QPointF, 4>> m_hovered; ///< the corners of that face
};
