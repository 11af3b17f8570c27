// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Figure.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <QStringList>

/// The game's records of a baked figure, one surface per material path. Boxes: each bone's over its own
/// vertices, the model's over the figure at rest.
SkinnedMesh toSkinnedMesh(const Figure &figure, const QStringList &materialPaths);
/// For a figure of one bone at the origin.
StaticMesh toStaticMesh(const Figure &figure, const QStringList &materialPaths);
