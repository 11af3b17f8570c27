// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector3D>

#include <vector>

/// Around the middle of a box. What is seen of a sphere is the same from all sides.
struct BoundingSphere
{
    /// Around points of which at least one is finite; the others do not count.
    static BoundingSphere of(const std::vector<QVector3D> &points);

    QVector3D middle;
    float radius = -1.0f; ///< negative where there is no finite point
};

/// Takes the few points out that are no places or stand so far from all others that nothing could be seen of
/// these in a picture of all. Returns how many.
int dropStrays(std::vector<QVector3D> &points);
