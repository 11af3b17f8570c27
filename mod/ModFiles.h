// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/// What a file of a mod is, by its name.
enum class ModFileKind { SkinnedMesh, Anim, StaticMesh, Material, Picture, Other };
ModFileKind modFileKind(const QString &path);

struct ModFile
{
    QString path;
    QString name; ///< the path below the mod's folder
    ModFileKind kind;
};

/// The files of a mod, or of the game, in a folder or in an archive, as one walk comes by them. Hidden ones
/// are none of them, and of a mod's neither what is left out of its archive.
class ModFiles
{
public:
    enum class Whose { Game, Mod };

    ModFiles() = default; ///< none
    /// A walk ends early, with what it has, when `goesOn` returns false.
    ModFiles(Whose whose, const QString &folder, const std::function<bool()> &goesOn = {});

    const QString &folder() const { return m_folder; }
    /// Ascending by name.
    const std::vector<ModFile> &files() const { return m_files; }
    /// The folders below the mod's, by their paths below it, ascending.
    const QStringList &folders() const { return m_folders; }
    /// Folders of a mod of which something is missing here, by their paths below it, and why.
    const QMap<QString, QString> &gaps() const { return m_gaps; }
    /// The path of the file of a name in any case; empty when there is none.
    QString find(const QString &name) const { return m_paths.value(name.toCaseFolded()); }

private:
    QString m_folder;
    std::vector<ModFile> m_files;
    QStringList m_folders;
    QMap<QString, QString> m_gaps;
    QHash<QString, QString> m_paths; ///< by the names in one case
};
