// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "GltfBytes.h"
#include "GltfScene.h"

/// Opens a glTF 2.0 file with the files that it names. Returns true on failure; `reason` then says why,
/// without the file's name.
[[nodiscard]] bool openGltf(const QString &path, GltfBytes &bytes, QString &reason);

/// Reads a glTF 2.0 file: nodes, skins, triangles, materials and animations of nodes. Returns true on
/// failure; `reason` then says why, without the file's name.
[[nodiscard]] bool readGltf(const QString &path, GltfScene &scene, QString &reason);
[[nodiscard]] bool readGltf(const QByteArray &file, const GltfBytes::FileReader &readFile, GltfScene &scene,
                            QString &reason);
