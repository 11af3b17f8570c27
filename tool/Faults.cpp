// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Faults.h"

#include "Companions.h"
#include "ModelFile.h"
#include "Validation.h"

namespace {
struct Name
{
    const char *name;
    int indexes;
};

/// By the kind's code.
constexpr Name kindNames[] = {
    {"", 0},
    {"skinnedMesh", 0},
    {"childBone", 2},
    {"childBones", 1},
    {"hotPoint", 1},
    {"hotPoints", 0},
    {"bone", 1},
    {"bones", 0},
    {"surface", 1},
    {"surfaces", 0},
    {"triangleIndex", 2},
    {"triangleIndexes", 1},
    {"vertex", 1},
    {"vertices", 0},
    {"animFile", 0},
    {"block", 1},
    {"blockBone", 2},
    {"blockBones", 1},
    {"frame", 2},
    {"frames", 1},
    {"translation", 3},
    {"translations", 1},
    {"translationTrack", 2},
    {"rotation", 3},
    {"rotations", 1},
    {"rotationTrack", 2},
    {"action", 2},
    {"actions", 1},
    {"staticMesh", 0},
    {"surface", 1},
    {"surfaces", 0},
    {"triangleIndex", 2},
    {"triangleIndexes", 1},
    {"vertex", 1},
    {"vertices", 0},
};
static_assert(sizeof kindNames / sizeof kindNames[0] == size_t(RecordKind::StaticVertices) + 1,
              "every kind has its name");

struct Validator
{
    const QString &file;
    const MaterialFolders &folders;
    const CheckBasis &basis;

    std::vector<Finding> operator()(const SkinnedMesh &mesh) const
    {
        return validate(mesh, folders, basis.ids, basis.listed);
    }
    std::vector<Finding> operator()(const MaterialTable &materials) const
    {
        return validate(materials, folders, basis.listed);
    }
    std::vector<Finding> operator()(const StaticMesh &mesh) const
    {
        return validate(mesh, folders, basis.listed);
    }
    std::vector<Finding> operator()(const AnimFile &anim) const
    {
        FileContent companion;
        const QString path = basis.companions.find(file).path;
        // One that cannot be read has faults of its own, and says nothing about the animation.
        const bool readable = !path.isEmpty() && readFile(path, companion).isEmpty();
        return validate(anim, readable ? std::get_if<SkinnedMesh>(&companion) : nullptr, basis.ids,
                        basis.listed);
    }
    template <typename Other>
    std::vector<Finding> operator()(const Other &) const
    {
        return {};
    }
};
} // namespace

std::vector<Fault> faultsOf(const QString &file, const MaterialFolders &folders, const CheckBasis &basis)
{
    FileContent content;
    const QString error = readFile(file, content);
    if (!error.isEmpty())
        return {{QStringLiteral("error"), QStringLiteral("unreadable"), error, {}}};
    std::vector<Fault> faults;
    for (const Finding &finding : std::visit(Validator{file, folders, basis}, content)) {
        faults.push_back({severityId(severityOf(finding.rule)), ruleId(finding.rule), finding.text,
                          finding.place, finding.notListed});
    }
    return faults;
}

QString recordName(RecordKind kind)
{
    return QLatin1String(kindNames[size_t(kind)].name);
}

int indexCount(RecordKind kind)
{
    return kindNames[size_t(kind)].indexes;
}
