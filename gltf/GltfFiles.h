// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "GltfWriter.h"

class ImportMessages;

/// The files that a glTF export puts somewhere: one .glb, or a .gltf with a .bin and the textures beside it.
class GltfFiles
{
public:
    /// Makes the bytes of the files, which takes a while for large ones. `path` ends in .glb or .gltf.
    GltfFiles(const GltfWriter &content, const QString &path);

    /// Whether a file of this name can be written.
    static bool isName(const QString &path);

    /// Those whose content would be lost.
    QStringList replaced() const;
    /// What would replace something gets a name at which nothing stands.
    void useFreeNames();

    /// The file that all is about.
    QString path() const { return m_path; }
    /// Puts them there. Returns true on failure, after an error line.
    [[nodiscard]] bool write(ImportMessages &messages) const;

private:
    struct File
    {
        QString path;
        QByteArray bytes;
    };
    bool isBinary() const;
    QString beside(const QString &name) const;
    std::vector<File> files() const;

    QString m_path;
    QByteArray m_bytes; ///< of the .glb, or the .gltf's without the names of the others
    QByteArray m_buffer;
    std::vector<GltfImage> m_images;
    QStringList m_imageNames;
};
