// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SceneBoxes.h"

#include "BoxFaces.h"
#include "SkinnedMesh.h"

#include <algorithm>
#include <array>

namespace {
// In pixels.
constexpr float ThinEdge = 1.4f;
constexpr float BoldEdge = 2.6f;
constexpr float EdgeShadow = 1.5f; // on both sides

constexpr QRgb ShadowColor = 0x60000000;
constexpr QRgb BoneBoxColor = 0xff7fd4e8;
constexpr QRgb ModelBoxColor = 0xffd7b5f0;
constexpr QRgb SelectedBoxColor = 0xffff8c00;
constexpr QRgb HoveredFaceColor = 0x50ff8c00;
constexpr QRgb GripColor = 0xffffffff;
constexpr float GripRadius = 4.5f;
constexpr float HoveredGripRadius = 6.0f;

/// A model may say anything; more than this cannot be told apart.
constexpr size_t MostBoxes = 4096;

QRgb faint(QRgb color)
{
    return qRgba(qRed(color), qGreen(color), qBlue(color), qAlpha(color) / 3);
}
} // namespace

void SceneBoxes::place(const MarkedRecords &records, const ScreenMap &map, const BonePalette &palette)
{
    m_edges.clear();
    m_grips.clear();
    m_hovered.reset();
    if (!records.showsBoxes())
        return;
    const auto show = [&](int number, const Box &held, const QMatrix4x4 &toModel, Look look) {
        const bool isHandled = records.handledBox == number;
        const Box box = isHandled ? records.draggedBox.value_or(held) : held;
        add(box, toModel, map, look);
        if (isHandled)
            addHandles(records, box, toModel, map);
    };
    if (records.box)
        show(MarkedRecords::ModelBox, boxBetween(records.box->min, records.box->max), {},
             records.handledBox == MarkedRecords::ModelBox ? Look::Selected : Look::Model);
    if (!records.mesh)
        return;
    m_skeleton.follow(*records.mesh, std::min(palette.size(), MostBoxes));
    for (const Skeleton::Bone &bone : m_skeleton.bones()) {
        const SkinnedMeshNode &node = records.mesh->nodes[size_t(bone.index)];
        const bool isSelected =
            std::binary_search(records.selectedBones.begin(), records.selectedBones.end(), bone.index);
        show(bone.index, boxBetween(node.bbMin, node.bbMax), palette[size_t(bone.index)],
             isSelected ? Look::Selected : Look::Bone);
    }
}

void SceneBoxes::addHandles(const MarkedRecords &records, const Box &box, const QMatrix4x4 &toModel,
                            const ScreenMap &map)
{
    for (int face = 0; face < BoxFaces::Count; ++face) {
        const bool isHovered = face == records.hoveredFace;
        if (const auto pixel = BoxFaces::grip(box, face, toModel, map))
            m_grips.push_back({*pixel, isHovered});
        if (!isHovered)
            continue;
        const int axis = BoxFaces::axisOf(face), one = (axis + 1) % 3, other = (axis + 2) % 3;
        std::array<QPointF, 4> corners;
        bool isVisible = true;
        for (size_t corner = 0; corner < corners.size(); ++corner) {
            QVector3D place = BoxFaces::middle(box, face);
            place[one] = (corner == 1 || corner == 2 ? box.max : box.min)[one];
            place[other] = (corner >= 2 ? box.max : box.min)[other];
            const QVector3D inEye = map.toEye(toModel.map(place));
            isVisible = isVisible && map.isVisible(inEye);
            corners[corner] = map.pixel(inEye);
        }
        if (isVisible)
            m_hovered = corners;
    }
}

void SceneBoxes::add(const Box &box, const QMatrix4x4 &toModel, const ScreenMap &map, Look look)
{
    if (box.min == box.max)
        return; // it was never given one
    const auto isUpper = [](size_t corner, int axis) { return (corner >> axis & 1) != 0; };
    std::array<QVector3D, 8> corners;
    for (size_t corner = 0; corner < corners.size(); ++corner) {
        QVector3D place;
        for (int axis = 0; axis < 3; ++axis)
            place[axis] = (isUpper(corner, axis) ? box.max : box.min)[axis];
        corners[corner] = map.toEye(toModel.map(place));
    }
    // A face is seen from where the eye is on its outer side.
    bool isSeen[3][2];
    for (int axis = 0; axis < 3; ++axis) {
        const QVector3D outwards = corners[size_t(1) << axis] - corners[0];
        isSeen[axis][0] = QVector3D::dotProduct(outwards, map.sightTo(corners[0])) > 0.0f;
        isSeen[axis][1] = QVector3D::dotProduct(outwards, map.sightTo(corners[7])) < 0.0f;
    }
    for (int axis = 0; axis < 3; ++axis) {
        const int one = (axis + 1) % 3, other = (axis + 2) % 3;
        for (size_t corner = 0; corner < corners.size(); ++corner) {
            if (isUpper(corner, axis))
                continue;
            QVector3D from = corners[corner], to = corners[corner | size_t(1) << axis];
            if (map.clip(from, to))
                m_edges.push_back(
                    {map.pixel(from), map.pixel(to), look,
                     !isSeen[one][isUpper(corner, one)] && !isSeen[other][isUpper(corner, other)]});
        }
    }
}

void SceneBoxes::draw(OverlayCanvas &canvas) const
{
    for (const bool isSelected : {false, true}) {
        const float width = isSelected ? BoldEdge : ThinEdge;
        for (const Edge &edge : m_edges) {
            if ((edge.look == Look::Selected) == isSelected && !edge.isBehind)
                canvas.line(edge.from, edge.to, width + EdgeShadow, ShadowColor);
        }
        for (const Edge &edge : m_edges) {
            if ((edge.look == Look::Selected) != isSelected)
                continue;
            const QRgb color = isSelected                 ? SelectedBoxColor
                               : edge.look == Look::Model ? ModelBoxColor
                                                          : BoneBoxColor;
            canvas.line(edge.from, edge.to, width, edge.isBehind ? faint(color) : color);
        }
    }
    if (m_hovered)
        canvas.face(*m_hovered, HoveredFaceColor);
    for (const Grip &grip : m_grips) {
        const float radius = grip.isHovered ? HoveredGripRadius : GripRadius;
        canvas.disc(grip.pixel, radius + EdgeShadow, ShadowColor);
        canvas.disc(grip.pixel, radius, grip.isHovered ? SelectedBoxColor : GripColor);
    }
}
