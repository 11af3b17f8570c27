// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector2D>
#include <QVector3D>

#include <array>
#include <functional>
#include <vector>

/// A range of vertices.
struct PosesPart
{
    QString name;
    int first = 0;
    int count = 0;
};

struct PosesClip
{
    QString name;
    double rate = 30.0; ///< frames per second
    int frames = 0;
};

using Places = std::vector<QVector3D>;

/// A model whose vertices are posed, in the layout that poses.py tells of. Every vertex is a corner.
struct PosesFile
{
    std::vector<PosesPart> parts;
    Places rest;
    std::vector<QVector2D> uvs;
    Places normals;                               ///< at rest
    std::vector<quint8> solid;                    ///< 1: a single bone or node moves the vertex
    std::vector<std::array<qint32, 3>> triangles; ///< counter-clockwise seen from outside
    std::vector<PosesClip> clips;

    /// Writes it; `pose` gives the vertices of a clip at a frame. Returns why it failed.
    QString write(const QString &path, const std::function<Places(int clip, int frame)> &pose) const;

    /// The clips of such a file. Returns why it failed.
    static QString readClips(const QString &path, std::vector<PosesClip> &clips);
};
