// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"

#include <QString>
#include <QVector>

/// One thing that an update of an open model would do, or would not.
struct UpdateLine
{
    enum Kind { Changed, New, Missing, Note };

    Kind kind = Note;
    QString text;
};

/// What the update of an open model from a file comes to, before anything is changed.
struct UpdateAccount
{
    QString model;                 ///< that the file was exported from; empty when it does not say
    QVector<UpdateLine> lines;     ///< in the order in which they are to be read
    QVector<qint32> missingBlocks; ///< of the animation file, which the file has no clip of
    bool changesMesh = false;
    bool changesAnim = false;

    void add(UpdateLine::Kind kind, const QString &text) { lines.append({kind, text}); }
    /// Takes the blocks that are missing out of the animation, unless none would be left.
    void dropMissing(AnimFile &anim) const
    {
        if (size_t(missingBlocks.size()) >= anim.blocks.size())
            return;
        for (auto block = missingBlocks.rbegin(); block != missingBlocks.rend(); ++block)
            anim.blocks.erase(anim.blocks.begin() + *block);
    }
};
