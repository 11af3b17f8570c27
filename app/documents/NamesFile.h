// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ModelNames.h"

/// The file beside a mesh that holds the names of its bones and animations, as it is known to a document.
class NamesFile
{
public:
    /// Gives the names that stand beside the model to it. Damaged ones are left out, with a line in the log.
    void read(const QString &modelPath, SkinnedMesh &mesh);
    /// Takes note of what stands there, for a mesh that has its names from elsewhere.
    void note(const QString &modelPath);

    /// The file that write() would put in the place of one that was not read from here, nor written; empty
    /// when there is none.
    QString replaced(const QString &modelPath, const SkinnedMesh &mesh) const;
    /// Writes the mesh's names where they are not those that stand there: no file where nothing has a name,
    /// but an empty one where names were, this model's or another one's. Returns what went wrong.
    [[nodiscard]] QString write(const QString &modelPath, const SkinnedMesh &mesh);

private:
    bool isWritten(const QString &modelPath, const SkinnedMesh &mesh) const;

    QString m_modelPath;
    ModelNames m_known; ///< that stood beside the model
};
