// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MarkedEvents.h"
#include "MeshSource.h"
#include "OverlayCanvas.h"
#include "Pose.h"
#include "ScreenMap.h"
#include "Skeleton.h"
#include "Transform.h"

#include <optional>
#include <vector>

struct SkinnedMesh;

/// What the one hot point that is selected would become.
struct DraggedPoint
{
    QVector3D place;
    int bone;
};

/// What is marked over the model, and how.
struct MarkedRecords
{
    const SkinnedMesh *mesh = nullptr; ///< whose bones and hot points; null: nobody's
    bool skeleton = false;
    bool hotPoints = false;
    bool boxes = false;
    std::optional<Box> box; ///< the model's own as it is stored, where boxes are shown
    static constexpr int NoBox = -2, ModelBox = -1;
    int handledBox = NoBox;        ///< whose faces can be dragged, ModelBox or a bone
    int hoveredFace = -1;          ///< of that one
    std::optional<Box> draggedBox; ///< what that one would become
    bool handlesPoint = false;     ///< the highlighted point can be dragged
    std::optional<DraggedPoint> draggedPoint;
    std::vector<int> selectedBones; ///< ascending
    std::vector<int> selectedHotPoints;
    std::vector<int> vertices; ///< of whatever model is shown, ascending
    MarkedEvents events;
    bool bonesAlone = false; ///< bones, and nothing that would lie over them, whatever else is wanted

    bool showsBones() const { return skeleton || bonesAlone; }
    bool showsHotPoints() const { return hotPoints && !bonesAlone; }
    bool showsBoxes() const { return boxes && !bonesAlone; }
};

/// The bones, hot points and events of a picture: where they stand in it, and which of them is under the
/// mouse. Keeps its memory; knows no OpenGL.
class SceneMarks
{
public:
    static constexpr int None = -1;

    /// Finds the places of what `records` wants marked, of a model with these vertices.
    void place(const MarkedRecords &records, const std::vector<GLVertex> &vertices, const ScreenMap &map,
               const BonePalette &palette);
    void draw(OverlayCanvas &canvas) const;

    /// Where an event stands that the picture shows.
    struct EventPlace
    {
        MarkedEvent event;
        QPointF pixel;
    };
    const std::vector<EventPlace> &events() const { return m_events; }

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

    /// A piece of the circles that show how far damage goes.
    struct RimPiece
    {
        QPointF from;
        QPointF to;
        QRgb color;
    };

    void placeBones(const MarkedRecords &records, const ScreenMap &map, const BonePalette &palette);
    void placeHotPoints(const MarkedRecords &records, const ScreenMap &map, const BonePalette &palette);
    void placeEvents(const MarkedRecords &records, const ScreenMap &map, const BonePalette &palette);
    void drawEvents(OverlayCanvas &canvas) const;
    static Mark markAt(int record, const std::vector<int> &selection, const QVector3D &inEye,
                       const ScreenMap &map);
    static int nearest(const std::vector<Mark> &marks, const QPointF &pixel);

    Skeleton m_skeleton;
    std::vector<Mark> m_bones;
    std::vector<Line> m_lines;
    std::vector<Mark> m_hotPoints;
    std::vector<EventPlace> m_events;
    std::vector<RimPiece> m_rims;
    std::vector<QPointF> m_vertices; ///< pixels
};
