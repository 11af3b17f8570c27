// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SceneMarks.h"

#include "PosedVertices.h"
#include "SkinnedMesh.h"

#include <algorithm>
#include <cmath>

namespace {
// In pixels.
constexpr float LineWidth = 2.0f;
constexpr float JointRadius = 3.5f;
constexpr float HotPointRadius = 5.5f;
constexpr float VertexRadius = 2.5f;
constexpr float Outline = 1.5f;
constexpr double Reach = 9.0; // of the mouse

constexpr QRgb OutlineColor = 0x90000000;
constexpr QRgb BoneColor = 0xffe8eaf0;
constexpr QRgb HotPointColor = 0xffffe14d;
constexpr QRgb SelectedColor = 0xffff8c00;
constexpr QRgb DamageColor = 0xffff3b30;
constexpr QRgb EventColor = 0xffffffff;
constexpr float EventRadius = 4.0f;
constexpr float FlashRadius = 9.0f; // more, as it happens
constexpr int CircleSides = 48;

QRgb withAlpha(QRgb color, float alpha)
{
    return (color & 0x00ffffff) | QRgb(std::lround(255.0f * alpha)) << 24;
}

/// A model may say anything; more than this cannot be told apart.
constexpr size_t MostMarks = 4096;

bool contains(const std::vector<int> &ascending, int number)
{
    return std::binary_search(ascending.begin(), ascending.end(), number);
}
} // namespace

void SceneMarks::place(const MarkedRecords &records, const std::vector<GLVertex> &vertices,
                       const ScreenMap &map, const BonePalette &palette)
{
    m_vertices.clear();
    for (const int vertex : records.vertices) {
        if (size_t(vertex) >= vertices.size() || m_vertices.size() == MostMarks)
            break;
        const QVector3D inEye = map.toEye(posedPlace(vertices[size_t(vertex)], palette));
        if (map.isVisible(inEye))
            m_vertices.push_back(map.pixel(inEye));
    }
    m_bones.clear();
    m_lines.clear();
    m_hotPoints.clear();
    m_events.clear();
    m_rims.clear();
    if (records.mesh && records.showsBones())
        placeBones(records, map, palette);
    if (records.mesh && records.showsHotPoints())
        placeHotPoints(records, map, palette);
    if (records.mesh && !records.bonesAlone)
        placeEvents(records, map, palette);
}

SceneMarks::Mark SceneMarks::markAt(int record, const std::vector<int> &selection, const QVector3D &inEye,
                                    const ScreenMap &map)
{
    const bool visible = map.isVisible(inEye);
    return {record, contains(selection, record), visible, inEye, visible ? map.pixel(inEye) : QPointF()};
}

void SceneMarks::placeBones(const MarkedRecords &records, const ScreenMap &map, const BonePalette &palette)
{
    m_skeleton.follow(*records.mesh, std::min(palette.size(), MostMarks));
    for (const Skeleton::Bone &bone : m_skeleton.bones()) {
        const QVector3D joint = palette[size_t(bone.index)].column(3).toVector3D();
        m_bones.push_back(markAt(bone.index, records.selectedBones, map.toEye(joint), map));
        if (bone.parent == Skeleton::NoParent)
            continue;
        // The line from a bone to its child moves with the bone.
        const Mark &parent = m_bones[size_t(bone.parent)];
        QVector3D from = parent.inEye, to = m_bones.back().inEye;
        if (map.clip(from, to))
            m_lines.push_back({map.pixel(from), map.pixel(to), parent.selected});
    }
}

void SceneMarks::placeHotPoints(const MarkedRecords &records, const ScreenMap &map,
                                const BonePalette &palette)
{
    const auto &points = records.mesh->hotPoints;
    for (size_t i = 0; i < std::min(points.size(), MostMarks); ++i) {
        const bool isDragged = records.draggedPoint && contains(records.selectedHotPoints, int(i));
        const QVector3D origin = isDragged ? records.draggedPoint->place : points[i].origin;
        const size_t bone = isDragged ? size_t(records.draggedPoint->bone) : points[i].nodeId;
        const QVector3D place = bone < palette.size() ? palette[bone].map(origin) : origin;
        m_hotPoints.push_back(markAt(int(i), records.selectedHotPoints, map.toEye(place), map));
    }
}

void SceneMarks::placeEvents(const MarkedRecords &records, const ScreenMap &map, const BonePalette &palette)
{
    for (const MarkedEvent &event : records.events.shown()) {
        // What is dragged is a hot point where one is selected.
        const bool isDragged = records.draggedPoint && event.selected && records.selectedHotPoints.empty();
        const DraggedPoint at = isDragged ? *records.draggedPoint : DraggedPoint{event.offset, event.bone};
        const bool hasBone = at.bone >= 0 && size_t(at.bone) < palette.size();
        const QVector3D place = hasBone ? palette[size_t(at.bone)].map(at.place) : at.place;
        const QVector3D inEye = map.toEye(place);
        if (map.isVisible(inEye))
            m_events.push_back({event, map.pixel(inEye)});
        if (!(event.damageRadius > 0.0f))
            continue;
        // The outline of the sphere, and its circle along the ground.
        const QRgb color =
            withAlpha(event.selected ? SelectedColor : DamageColor, event.selected ? 1.0f : event.strength);
        for (const bool upright : {true, false}) {
            const auto onRim = [&](int side) {
                const double angle = 2.0 * M_PI * (side % CircleSides) / CircleSides;
                const QVector3D out(float(std::cos(angle)), float(std::sin(angle)), 0.0f);
                return upright ? inEye + out * event.damageRadius
                               : map.toEye(place + out * event.damageRadius);
            };
            for (int side = 0; side < CircleSides; ++side) {
                QVector3D from = onRim(side), to = onRim(side + 1);
                if (map.clip(from, to))
                    m_rims.push_back({map.pixel(from), map.pixel(to), color});
            }
        }
    }
}

void SceneMarks::drawEvents(OverlayCanvas &canvas) const
{
    for (const RimPiece &rim : m_rims)
        canvas.line(rim.from, rim.to, LineWidth, rim.color);
    for (const EventPlace &each : m_events) {
        const MarkedEvent &event = each.event;
        const QRgb color = event.damageRadius > 0.0f ? DamageColor : EventColor;
        if (event.strength > 0.0f)
            canvas.disc(each.pixel, EventRadius + FlashRadius * event.strength,
                        withAlpha(color, 0.4f * event.strength));
        canvas.disc(each.pixel, EventRadius + Outline, OutlineColor);
        canvas.disc(each.pixel, EventRadius, event.selected ? SelectedColor : color);
    }
}

void SceneMarks::draw(OverlayCanvas &canvas) const
{
    for (const QPointF &vertex : m_vertices)
        canvas.disc(vertex, VertexRadius + Outline, OutlineColor);
    for (const QPointF &vertex : m_vertices)
        canvas.disc(vertex, VertexRadius, SelectedColor);
    drawEvents(canvas);
    // What is selected lies on top.
    for (const bool selected : {false, true}) {
        const auto drawn = [selected](const Mark &mark) { return mark.visible && mark.selected == selected; };
        for (const Line &line : m_lines) {
            if (line.selected == selected)
                canvas.line(line.from, line.to, LineWidth + 2.0f * Outline, OutlineColor);
        }
        for (const Line &line : m_lines) {
            if (line.selected == selected)
                canvas.line(line.from, line.to, LineWidth, selected ? SelectedColor : BoneColor);
        }
        for (const Mark &bone : m_bones) {
            if (!drawn(bone))
                continue;
            canvas.disc(bone.pixel, JointRadius + Outline, OutlineColor);
            canvas.disc(bone.pixel, JointRadius, selected ? SelectedColor : BoneColor);
        }
        for (const Mark &point : m_hotPoints) {
            if (!drawn(point))
                continue;
            canvas.diamond(point.pixel, HotPointRadius + Outline, OutlineColor);
            canvas.diamond(point.pixel, HotPointRadius, selected ? SelectedColor : HotPointColor);
        }
    }
}

int SceneMarks::nearest(const std::vector<Mark> &marks, const QPointF &pixel)
{
    const Mark *best = nullptr;
    double bestDistance = Reach;
    for (const Mark &mark : marks) {
        if (!mark.visible)
            continue;
        const double distance = std::hypot(mark.pixel.x() - pixel.x(), mark.pixel.y() - pixel.y());
        // Of joints in one place the one nearer to the eye, as it is drawn, or else the first.
        if (distance < bestDistance ||
            (best && distance == bestDistance && mark.inEye.z() > best->inEye.z())) {
            best = &mark;
            bestDistance = distance;
        }
    }
    return best ? best->record : None;
}
