// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Finding.h"
#include "KMat.h"
#include "ReferenceIds.h"

/// Where materials and their textures are looked for, in this order; see MaterialFiles. Without a game folder
/// nothing is looked for, because most materials are the game's.
struct MaterialFolders
{
    QString gamePath;
    QString outputDir;

    bool operator==(const MaterialFolders &other) const
    {
        return gamePath == other.gamePath && outputDir == other.outputDir;
    }
};

/// How many findings of one rule are listed before the rest is only counted.
inline constexpr int ListedFindings = 20;

/// What is wrong with a model, rule by rule. The time is linear in the model's size, however broken it is.
/// Only materials make it read files.
std::vector<Finding> validate(const SkinnedMesh &mesh, const MaterialFolders &folders = {},
                              const ReferenceIds &ids = {}, int listed = ListedFindings);
/// `mesh`: the one that the animations are for, if it is known.
std::vector<Finding> validate(const AnimFile &file, const SkinnedMesh *mesh, const ReferenceIds &ids,
                              int listed = ListedFindings);
std::vector<Finding> validate(const StaticMesh &mesh, const MaterialFolders &folders = {},
                              int listed = ListedFindings);
class MaterialFaults;
/// The same, with materials that are looked up once for several models.
std::vector<Finding> validate(const SkinnedMesh &mesh, MaterialFaults &materials, const ReferenceIds &ids,
                              int listed = ListedFindings);
std::vector<Finding> validate(const StaticMesh &mesh, MaterialFaults &materials, int listed = ListedFindings);

/// The textures of a material file. There is no record for a place.
std::vector<Finding> validate(const MaterialTable &materials, const MaterialFolders &folders,
                              int listed = ListedFindings);

/// Where in the model a rule's findings can be repaired, at most `most` places.
std::vector<RecordRef> repairablePlaces(Rule rule, const SkinnedMesh &mesh, int most);
std::vector<RecordRef> repairablePlaces(Rule rule, const AnimFile &file, int most);
std::vector<RecordRef> repairablePlaces(Rule rule, const StaticMesh &mesh, int most);
