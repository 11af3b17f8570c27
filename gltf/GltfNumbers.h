// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QJsonValue>
#include <QVector3D>

/// The fewest digits that read back to the same float. It has to be finite; minus zero becomes zero.
double shortestNumber(float value);

/// A JSON number for what is written into a glTF file's own properties.
inline QJsonValue gltfNumber(float value)
{
    return shortestNumber(value);
}

inline QJsonArray gltfVector(const QVector3D &vector)
{
    return {gltfNumber(vector.x()), gltfNumber(vector.y()), gltfNumber(vector.z())};
}
