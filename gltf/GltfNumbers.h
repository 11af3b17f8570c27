// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>

#include <array>
#include <vector>

/// The fewest digits that read back to the same float. It has to be finite; minus zero becomes zero.
double shortestNumber(float value);

/// For a list of the file's own properties.
template <size_t Count>
QJsonArray gltfNumbers(const std::array<float, Count> &values)
{
    QJsonArray array;
    for (const float value : values)
        array.append(shortestNumber(value));
    return array;
}

inline QJsonArray gltfIndexes(const std::vector<int> &indexes)
{
    QJsonArray array;
    for (const int index : indexes)
        array.append(index);
    return array;
}
