// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "ImportMessages.h"
#include "ModelNames.h"
#include "ReadyChoices.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <QStringList>

struct TexturesElsewhere;

/// What an import needs to know of a foreign model that is to arrive ready for the game.
struct ReadySource
{
    const QString &modelPath;
    const QString &kmatPath; ///< the material file that the surfaces shall refer to
    QString textureFolder;   ///< takes the textures that are not there as .png files; is made if need be
    const ReadyChoices &choices;
    TexturesElsewhere *elsewhere = nullptr; ///< where it may be that not all files can be opened
};

/// Reads a model file of any format that the reading library knows into `mesh` and `anim`, both fresh, as the
/// game poses and draws them: upright, in game units, triangles clockwise, every mesh where it stands, each
/// vertex in the space of the bone that moves it most, clips sampled by time. It has succeeded when no error
/// line was added.
///
/// `textures` receives the texture files, one for each surface that has one, in their order; `names` what
/// bones and clips are called. `anim` has no blocks when nothing moves and there is no skeleton either.
///
/// Like any import, this may end the process.
void importReadySkinnedMesh(const ReadySource &source, QStringList &textures, SkinnedMesh &mesh,
                            AnimFile &anim, ModelNames &names, ImportMessages &messages);

/// The same for a rigid model, at rest. The choice of clips means nothing to it.
[[nodiscard]] StaticMesh importReadyStaticMesh(const ReadySource &source, QStringList &textures,
                                               ImportMessages &messages);
