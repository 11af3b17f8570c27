// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Shape.h"

#include <QQuaternion>
#include <QString>

#include <functional>
#include <vector>

/// The symbol types of BoneSymbol.
enum class BoneType { Body, Head, Arm, Leg };

struct Bone
{
    int parent; ///< -1: the root
    QVector3D position;
    QQuaternion rotation;
    BoneType type;
    int part; ///< of bonePartNames()
    bool right = false;
    quint8 impactType = 2; ///< metal
};

/// A colour with how it takes the light.
struct Surfacing
{
    QVector3D colour;   ///< red, green, blue, 0 to 1
    float gloss = 0.0f; ///< strength of the highlight
    float glow = 0.0f;  ///< 1: not shaded at all
};

struct PaintPoint
{
    QVector3D position; ///< in the part's bone's space
    QVector3D normal;   ///< in model space
    QVector2D uv;
    int chart;
};
using Paint = std::function<Surfacing(const PaintPoint &)>;

/// A shape on a bone.
struct Part
{
    int bone;
    Shape shape;
    Paint paint;
    int material = 0;
    float detail = 1.0f; ///< texels per unit, relative to the rest of its texture
    int twin = -1;       ///< shares the charts of that part
};

/// What a sample model is made of. A static model has one bone at the origin.
struct Figure
{
    std::vector<Bone> bones;
    std::vector<Part> parts;

    /// Adds a part and returns its index.
    int add(int bone, Shape shape, Paint paint, float detail = 1.0f, int material = 0);
    /// Adds the part's mirror image on another bone, sharing its charts.
    void addTwin(int bone, int part);

    /// The matrices of all bones in model space, at rest.
    std::vector<QMatrix4x4> restMatrices() const;
};

/// Evenly coloured.
Paint plain(const QVector3D &colour, float gloss = 0.0f);
/// 8-bit components.
QVector3D rgb(int red, int green, int blue);
QVector3D mixed(const QVector3D &from, const QVector3D &to, float weight);
/// 0 below `from`, 1 above `to`, smooth between.
float smoothStep(float from, float to, float value);
