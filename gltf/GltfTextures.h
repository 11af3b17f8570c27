// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MaterialFiles.h"

#include <QHash>

class GltfWriter;
class ImportMessages;

/// Brings the textures that materials name into a glTF file, each once: as they are where they are PNG or
/// JPEG, which are the formats that it knows, as PNG where they are another picture.
class GltfTextures
{
public:
    struct Texture
    {
        int index = -1; ///< in the file's list of textures; -1: none
        bool hasHoles = false;
    };

    /// An empty folder is not searched.
    GltfTextures(const QString &gamePath, const QString &outputDir, GltfWriter &writer,
                 ImportMessages &messages);

    /// The texture of "FOLDER/FILE/MATERIAL". Warns, once for each, of what cannot be found or read.
    Texture find(const QString &materialPath);

private:
    Texture add(const QString &name);

    MaterialFiles m_materials;
    GltfWriter &m_writer;
    ImportMessages &m_messages;
    QHash<QString, Texture> m_textures; ///< by the name in the materials
};
