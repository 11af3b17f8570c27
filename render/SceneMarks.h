// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "OverlayCanvas.h"
#include "Pose.h"
#include "ScreenMap.h"
#include "Skeleton.h"

#include <vector>

struct SkinnedMesh;

/// What is marked over the model, and how.
struct MarkedRecords
{
    const SkinnedMesh *mesh = nullptr; ///< whose bones and hot points; null: nobody's
    bool skeleton = false;
    bool hotPoints = false;
    std::vector<int> selectedBones; ///< ascending
    std::vector<int> selectedHotPoints;
    bool bonesAlone = false; ///< bones, and nothing that would lie over them, whatever else is wanted

    bool showsBones() const { return skeleton || bonesAlone; }
    bool showsHotPoints() const { return hotPoints && !bonesAlone; }
};

/// The bones and hot points of a picture: where they stand in it, and which of them is under the mouse. Keeps
/// its memory; knows no OpenGL.
class SceneMarks
{
public:
    static constexpr int None = -1;

    /// Finds the places of what `records` wants marked.
    void place(const MarkedRecords &records, const ScreenMap &map, const BonePalette &palette);
    void draw(OverlayCanvas &canvas) const;

    /// The bone (hot point) whose mark lies nearest around a pixel; None where there is none.
    int boneAt(const QPointF &pixel) const { return nearest(m_bones, pixel); }
    int hotPointAt(const QPointF &pixel) const { return nearest(m_hotPoints, pixel); }

private:
    struct Mark
    {
        int record;
        bool selected;
        bool visible;
        QVector3D inEye;
        QPointF pixel;
    };
    struct Line
    {
        QPointF from;
        QPointF to;
        bool selected;
    };

    void placeBones(const MarkedRecords &records, const ScreenMap &map, const BonePalette &palette);
    void placeHotPoints(const MarkedRecords &records, const ScreenMap &map, const BonePalette &palette);
    static Mark markAt(int record, const std::vector<int> &selection, const QVector3D &inEye,
                       const ScreenMap &map);
    static int nearest(const std::vector<Mark> &marks, const QPointF &pixel);

    Skeleton m_skeleton;
    std::vector<Mark> m_bones;
    std::vector<Line> m_lines;
    std::vector<Mark> m_hotPoints;
};
