// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct aiScene;

/// Gives the skins of a scene that was read from a glTF file, and not changed since, the weights that stand
/// in the file. The library takes whole numbers, as which a file may store them and as which ours are, for
/// the bits of others, and leaves out those beyond four a vertex. What cannot be found stays as it is.
void readGltfWeights(const QString &modelPath, const aiScene &scene);
