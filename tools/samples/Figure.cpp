// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Figure.h"

#include <algorithm>
#include <utility>

int Figure::add(int bone, Shape shape, Paint paint, float detail, int material)
{
    parts.push_back({bone, std::move(shape), std::move(paint), material, detail, -1});
    return int(parts.size()) - 1;
}

void Figure::addTwin(int bone, int part)
{
    Part twin = parts[size_t(part)];
    twin.bone = bone;
    twin.shape = twin.shape.mirrored();
    twin.twin = part;
    parts.push_back(std::move(twin));
}

std::vector<QMatrix4x4> Figure::restMatrices() const
{
    std::vector<QMatrix4x4> matrices;
    for (const Bone &bone : bones) {
        // Parents come before their children.
        QMatrix4x4 matrix = bone.parent < 0 ? QMatrix4x4() : matrices[size_t(bone.parent)];
        matrix.translate(bone.position);
        matrix.rotate(bone.rotation);
        matrices.push_back(matrix);
    }
    return matrices;
}

Paint plain(const QVector3D &colour, float gloss)
{
    return [=](const PaintPoint &) { return Surfacing{colour, gloss, 0.0f}; };
}

QVector3D rgb(int red, int green, int blue)
{
    return QVector3D(float(red), float(green), float(blue)) / 255.0f;
}

QVector3D mixed(const QVector3D &from, const QVector3D &to, float weight)
{
    return from + (to - from) * weight;
}

float smoothStep(float from, float to, float value)
{
    const float t = std::clamp((value - from) / (to - from), 0.0f, 1.0f);
    return t * t * (3.0f - 2.0f * t);
}
