// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVector3D>

#include <utility>
#include <vector>

/// What a foreign file holds, before anything is taken of it.
struct SceneSummary
{
    struct Clip
    {
        QString name;
        double seconds = 0.0; ///< from the first key to the last
        double rate = 0.0;    ///< ticks a second as the source says it; 0 when it does not
    };

    struct Texture
    {
        QString name; ///< as the source names it
        QString file; ///< where it was found; empty for one that is missing or in the model itself
        bool isEmbedded = false;
    };

    qint32 objects = 0; ///< nodes of the scene that show something
    qint32 vertices = 0;
    qint32 triangles = 0;
    qint32 bones = 0; ///< nodes that a skin names
    QVector3D size;   ///< of the whole at rest, in the source's units, in the game's axes: z is the height
    float proposedScale = 1.0f;
    float otherScale = 1.0f; ///< what is proposed if the other axis is up
    bool proposesZUp =
        false; ///< the format has z up, and the reading library leaves it so; `size` is then too
    std::vector<Clip> clips;
    std::vector<Texture> textures;
    QStringList losses; ///< what of it cannot come along, a sentence each

    /// The same with the other axis up.
    SceneSummary turned() const
    {
        SceneSummary turned = *this;
        turned.size = QVector3D(size.x(), size.z(), size.y());
        std::swap(turned.proposedScale, turned.otherScale);
        turned.proposesZUp = !proposesZUp;
        return turned;
    }
};
