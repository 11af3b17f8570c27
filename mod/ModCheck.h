// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CheckSettings.h"
#include "ModFiles.h"

#include <QSet>

#include <memory>

/// One thing that is wrong with a mod.
struct ModFinding : FileFinding
{
    QString name; ///< of the file or the folder, the path below the mod's
    bool isSilenced = false;
    QString why{}; ///< it is silenced, where the settings say that

    /// Whether it keeps a mod from being packed.
    bool isError() const { return rule.severity == Severity::Error && !isSilenced; }
};

/// What is wrong with a mod, by files.
struct ModReport
{
    qint64 files = 0;    ///< that were looked at
    QStringList checked; ///< the paths of those whose contents were read
    std::vector<ModFinding> findings;
    CheckSettings settings;
};

/// Checks all files of a mod: each by itself, and those rules that take several. Reads each file of the mod
/// once, but for those that have the size of the game's of their name, and what belongs to them outside of
/// the mod.
class ModCheck
{
    Q_DECLARE_TR_FUNCTIONS(ModCheck)

public:
    /// Hears how many of the files are done; the check ends, with what it has found, when that returns false.
    using Progress = std::function<bool(qint64 done, qint64 all)>;

    /// The mod is what stands in `folders.outputDir`. Rules that need the game are left out without its
    /// folder.
    ModCheck(const MaterialFolders &folders, const ReferenceIds &ids, int listed = ListedFindings,
             Progress progress = {});

    ModReport run();

private:
    bool goesOn() const;
    void add(const QString &name, const FileFinding &finding);
    void add(const QString &name, ModRule rule, const QString &text) { add(name, {wordsOf(rule), text}); }

    void checkFile(const ModFile &file);
    void checkNames();
    void checkClash(const QString &name);
    void checkGame(const ModFile &file);
    void checkPicture(const ModFile &file);
    void checkAnimation(const ModFile &file);
    void checkMaterials(const ModFile &file);
    bool isNamed(const QString &key);

    Progress m_progress;
    qint64 m_done = 0;
    qint64 m_all = 0; ///< none while the folders are read
    FileCheck m_check;
    ModFiles m_files;
    ModFiles m_game; ///< none where it is not known
    ModReport m_report;
    QHash<QString, FileFacts> m_facts; ///< by the file's name
    QHash<QString, QString> m_names;   ///< by what they are in one case
    QSet<QString> m_animated;          ///< the paths of meshes that animations of the mod belong to
    QSet<QString> m_materials;         ///< that meshes name, as materialKey() has them
    QSet<QString> m_textures;          ///< that materials name, in one case
    std::unique_ptr<QSet<QString>> m_gameMaterials; ///< once they are asked for
    bool m_hasUnreadMesh = false;
};
