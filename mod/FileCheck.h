// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Companions.h"
#include "FileContent.h"
#include "MaterialFaults.h"
#include "ModRule.h"
#include "Validation.h"

/// One thing that is wrong with a file.
struct FileFinding
{
    RuleWords rule;
    QString text;
    RecordRef place{};    ///< of no kind where it is about the whole file
    qint64 notListed = 0; ///< in the line that closes a long list: how many more there are
};

/// What the checks of other files want to know of one.
struct FileFacts
{
    bool isRead = false;
    QStringList materials;  ///< that the surfaces of a mesh name, each once
    MaterialTable table;    ///< of a material file
    std::vector<int> bones; ///< of a skinned mesh one number, of an animation one for each block
    QString mesh; ///< the absolute path of the skinned mesh that an animation belongs to, if there is one
};

/// Says what is wrong with files one by one, and keeps what several of them ask for.
class FileCheck
{
public:
    /// Of one rule at most `listed` findings are listed for a file. A search through folders ends early when
    /// `isCancelled` says so.
    FileCheck(const MaterialFolders &folders, const ReferenceIds &ids, int listed = ListedFindings,
              const std::function<bool()> &isCancelled = {});

    const MaterialFolders &folders() const { return m_folders; }
    int listed() const { return m_listed; }
    /// Reads a file of the kind that its name says, and what belongs to it. An animation is compared with the
    /// mesh that belongs to it, if there is one.
    std::vector<FileFinding> check(const QString &path, FileFacts *facts = nullptr);
    /// The animation file of a skinned mesh, or the other way about; empty where there is none.
    QString companionOf(const QString &path) { return m_companions.find(path).path; }
    /// How many bones a skinned mesh has, or each block of an animation; none when it cannot be read.
    std::vector<int> bonesOf(const QString &path);

private:
    friend struct ContentCheck;

    MaterialFolders m_folders;
    ReferenceIds m_ids;
    int m_listed;
    Companions m_companions;
    MaterialFaults m_materials;
    QHash<QString, std::vector<int>> m_bones;
};
