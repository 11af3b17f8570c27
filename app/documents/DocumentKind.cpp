// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentKind.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {
struct Names
{
    Q_DECLARE_TR_FUNCTIONS(DocumentKind)
};
} // namespace

const std::array<DocumentKind, 3> &documentKinds()
{
    static const std::array<DocumentKind, 3> kinds{{
        {DocumentType::SkinnedMesh, Names::tr("Skinned Mesh"), Names::tr("Open Skinned Mesh"),
         Names::tr("Save Skinned Mesh"), Names::tr("Skinned Mesh (*.skinnedmesh)"),
         QStringLiteral("skinnedmesh"), Names::tr("Skinned Mesh Folder"), QStringLiteral("models"),
         Settings::SkinnedMeshLoadPath, Settings::SkinnedMeshSavePath, Settings::SkinnedMeshExplorePath,
         Settings::SkinnedMeshExploreOther, Settings::SkinnedMeshQuickSelect,
         Settings::SkinnedMeshRecentFiles},
        {DocumentType::Anim, Names::tr("Animation"), Names::tr("Open Animation"), Names::tr("Save Animation"),
         Names::tr("Animation (*.anim)"), QStringLiteral("anim"), Names::tr("Animation Folder"),
         QStringLiteral("anims"), Settings::AnimationLoadPath, Settings::AnimationSavePath,
         Settings::AnimationExplorePath, Settings::AnimationExploreOther, Settings::AnimationQuickSelect,
         Settings::AnimationRecentFiles},
        {DocumentType::StaticMesh, Names::tr("Static Mesh"), Names::tr("Open Static Mesh"),
         Names::tr("Save Static Mesh"), Names::tr("Static Mesh (*.staticmesh)"), QStringLiteral("staticmesh"),
         Names::tr("Static Mesh Folder"), QStringLiteral("models"), Settings::StaticMeshLoadPath,
         Settings::StaticMeshSavePath, Settings::StaticMeshExplorePath, Settings::StaticMeshExploreOther,
         Settings::StaticMeshQuickSelect, Settings::StaticMeshRecentFiles},
    }};
    return kinds;
}

const DocumentKind &documentKind(DocumentType type)
{
    return documentKinds()[size_t(type)];
}

const DocumentKind *documentKindOfFile(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix();
    for (const DocumentKind &kind : documentKinds()) {
        if (suffix.compare(kind.extension, Qt::CaseInsensitive) == 0)
            return &kind;
    }
    return nullptr;
}

bool isMaterialFile(const QString &path)
{
    return path.endsWith(QLatin1String(".kmat"), Qt::CaseInsensitive);
}
