// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileContent.h"

#include <QCoreApplication>

class Companions;

/// A mesh, and for a skinned one the animation that poses it, of the files that are to be drawn or exported.
struct PosedModel
{
    Q_DECLARE_TR_FUNCTIONS(PosedModel)

public:
    FileContent mesh;
    QString meshPath;
    FileContent anim;
    QString animPath;

    const SkinnedMesh *skinned() const { return std::get_if<SkinnedMesh>(&mesh); }
    const StaticMesh *rigid() const { return std::get_if<StaticMesh>(&mesh); }
    const AnimFile *animFile() const { return std::get_if<AnimFile>(&anim); }

    /// Reads `file`, and the animation at `animPath`; if that is empty the one that belongs to the mesh, or
    /// the mesh that belongs to the animation. Returns why there is no model. An animation that nobody named
    /// and that does not fit is worth a warning in the log only.
    [[nodiscard]] QString read(const QString &file, const QString &animPath, Companions &companions);

    /// Why there is no such block or no such frame of it.
    QString problem(int block, int frame) const;
};
