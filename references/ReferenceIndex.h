// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileNaming.h"
#include "Validation.h"

#include <QHash>
#include <QSet>

#include <atomic>
#include <functional>

/// A file that names a thing, or that has a material by which it comes to it.
struct NamedUse
{
    FileNamingPtr file;
    NamedInFile named; ///< in the file; of a use by a material, that material
    QString via;       ///< the material by which a model uses a texture; empty when the file names it itself
};

/// How far the making of an index is; any thread may look.
struct IndexProgress
{
    std::atomic_int files{0}; ///< how many there are; 0 as long as they are looked for
    std::atomic_int done{0};
    std::atomic_int read{0}; ///< of these, how many were not known as they are
};

/// What all models, animations and materials of game and mod name. Never changes once it is made, so any
/// number of threads may ask; questions take a walk through all names, which are few.
class ReferenceIndex
{
public:
    /// `files` ascend by their paths. `gaps` and `isCut` are as in FolderListing.
    ReferenceIndex(MaterialFolders folders, std::vector<FileNamingPtr> files, QStringList gaps = {},
                   bool isCut = false);

    const MaterialFolders &folders() const { return m_folders; }
    /// By path; pictures, which name nothing, are among them.
    const std::vector<FileNamingPtr> &files() const { return m_files; }
    /// Null for a file that is not known.
    FileNamingPtr file(const QString &path) const;
    /// The same of one that is spelled just so, which is quick.
    FileNamingPtr fileAt(const QString &path) const;
    /// The files that could not be read.
    const std::vector<FileNamingPtr> &unreadable() const { return m_unreadable; }
    /// The folders of which something is missing, each with why.
    const QStringList &gaps() const { return m_gaps; }
    /// Whether there are files beyond all that is looked through.
    bool isCut() const { return m_isCut; }

    /// Who names the thing, in the order of the paths. Of a texture the materials come first, and then the
    /// models that have one of these. A material file of the mod counts as much as the game's of the same
    /// name, since the mod may be meant to take its place.
    std::vector<NamedUse> usesOf(const NamedThing &thing) const;
    /// The textures of all samplers of a material, each once.
    QStringList texturesOf(const QString &materialPath) const;
    /// The materials, or the pictures, of the index that no model, or no material, names: relative to the
    /// folders, with the file that has each.
    struct Unused
    {
        FileNamingPtr file;
        QString path;
    };
    std::vector<Unused> unusedMaterials() const;
    std::vector<Unused> unusedTextures() const;
    /// The paths of the pictures that no material names, and of the material files that have materials of
    /// which no model names one.
    QSet<QString> unusedFiles() const;
    /// The numbers of a kind that some file names.
    QSet<int> numbersNamed(NamedKind kind) const;

private:
    QSet<QString> keysNamed(NamedKind kind) const;

    MaterialFolders m_folders;
    std::vector<FileNamingPtr> m_files;
    std::vector<FileNamingPtr> m_unreadable;
    QStringList m_gaps;
    bool m_isCut;
};

using ReferenceIndexPtr = std::shared_ptr<const ReferenceIndex>;

/// Makes the index of the folders, in so many threads. Files that `known`, which may give null, has with the
/// same stamp are taken over and not read; it is asked once, when all files are listed. Null when
/// `isCancelled` became true. Any thread may call it; it returns when it is done.
ReferenceIndexPtr makeReferenceIndex(const MaterialFolders &folders,
                                     const std::function<ReferenceIndexPtr()> &known,
                                     const std::atomic_bool &isCancelled, IndexProgress &progress,
                                     int threads);
