// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ImportMessages.h"
#include "ImportSteps.h"
#include "KMat.h"
#include "ReplacedFiles.h"

#include <QHash>

/// What an import has written, by path, with a hash of its content.
struct WrittenFiles
{
    QHash<QString, QByteArray> hashes;
    bool keptOthers = false; ///< see ImportedFiles::keepOtherMaterials()
};

/// The files that an import puts into the mod folder: textures and materials, as far as they were chosen.
class ImportedFiles
{
public:
    /// `textures` are those of the surfaces that have one, in their order.
    template <typename Mesh>
    ImportedFiles(const ImportChoices &choices, const Mesh &mesh, const QStringList &textures);

    /// Those whose content would be lost, the material file first.
    QStringList replaced() const;
    /// The materials of the file that would be replaced which the import does not have.
    QStringList otherMaterials() const;

    /// Whether nothing else would be replaced than what an import before has written, as it wrote it.
    bool replaceOnly(const WrittenFiles &written) const;

    /// What would replace something gets a name at which nothing stands. Surfaces have to be named anew then.
    void useFreeNames();
    /// The materials that a replaced file has beside the new ones stay in it.
    void keepOtherMaterials() { m_keepsOthers = true; }

    /// Makes the surfaces refer to the material file.
    template <typename Mesh>
    void nameMaterials(Mesh &mesh) const;
    /// Writes them; gives the lines that say how that ended.
    [[nodiscard]] QString write(ImportMessages &messages) const;
    /// What stands where it has written.
    WrittenFiles written() const;

private:
    QString kmatFile() const { return m_choices.modFolder + QLatin1Char('/') + m_choices.kmatPath; }
    MaterialTable materials() const;

    ImportChoices m_choices;
    QStringList m_materialNames; ///< of the surfaces
    std::vector<FileCopy> m_textures;
    bool m_keepsOthers = false;
};
