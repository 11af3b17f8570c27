// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileCheck.h"

#include <QDir>
#include <QFileInfo>

namespace {
QString keyOf(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

std::vector<int> boneCounts(const FileContent &content)
{
    std::vector<int> counts;
    if (const auto *mesh = std::get_if<SkinnedMesh>(&content))
        counts.push_back(int(mesh->nodes.size()));
    if (const auto *anim = std::get_if<AnimFile>(&content)) {
        for (const AnimBlock &block : anim->blocks)
            counts.push_back(int(block.nodes.size()));
    }
    return counts;
}

template <typename Mesh>
QStringList materialsOf(const Mesh &mesh)
{
    QStringList materials;
    for (const auto &surface : mesh.surfaces)
        materials.append(surface.materialPath);
    materials.removeDuplicates();
    return materials;
}
} // namespace

/// What is wrong with what a file holds.
struct ContentCheck
{
    const QString &path;
    FileCheck &files;
    FileFacts &facts;

    std::vector<Finding> operator()(const SkinnedMesh &mesh) const
    {
        facts.materials = materialsOf(mesh);
        return validate(mesh, files.m_materials, files.m_ids, files.m_listed);
    }
    std::vector<Finding> operator()(const StaticMesh &mesh) const
    {
        facts.materials = materialsOf(mesh);
        return validate(mesh, files.m_materials, files.m_listed);
    }
    std::vector<Finding> operator()(const AnimFile &anim) const
    {
        facts.mesh = files.companionOf(path);
        // One that cannot be read has faults of its own, and says nothing about the animation. Of the mesh
        // the checks want to know how many bones it has.
        const std::vector<int> bones = facts.mesh.isEmpty() ? std::vector<int>() : files.bonesOf(facts.mesh);
        SkinnedMesh mesh;
        mesh.nodes.resize(bones.empty() ? 0 : size_t(bones.front()));
        return validate(anim, bones.empty() ? nullptr : &mesh, files.m_ids, files.m_listed);
    }
    std::vector<Finding> operator()(const MaterialTable &materials) const
    {
        facts.table = materials;
        return validate(materials, files.m_folders, files.m_listed);
    }
    std::vector<Finding> operator()(std::monostate) const { return {}; }
};

FileCheck::FileCheck(const MaterialFolders &folders, const ReferenceIds &ids, int listed,
                     const std::function<bool()> &isCancelled)
    : m_folders(folders)
    , m_ids(ids)
    , m_listed(listed)
    , m_companions(folders, {}, isCancelled)
    , m_materials(folders)
{}

std::vector<FileFinding> FileCheck::check(const QString &path, FileFacts *facts)
{
    FileFacts own;
    FileFacts &known = facts ? *facts : own;
    FileContent content;
    const QString error = readFile(path, content);
    known.isRead = error.isEmpty();
    known.bones = boneCounts(content);
    m_bones.insert(keyOf(path), known.bones);
    if (!known.isRead)
        return {{wordsOf(ModRule::Unreadable), error}};
    std::vector<FileFinding> found;
    for (const Finding &finding : std::visit(ContentCheck{path, *this, known}, content))
        found.push_back({wordsOf(finding.rule), finding.text, finding.place, finding.notListed});
    return found;
}

std::vector<int> FileCheck::bonesOf(const QString &path)
{
    const QString key = keyOf(path);
    const auto known = m_bones.constFind(key);
    if (known != m_bones.constEnd())
        return *known;
    FileContent content;
    const bool isRead = readFile(path, content).isEmpty();
    return *m_bones.insert(key, isRead ? boneCounts(content) : std::vector<int>());
}
