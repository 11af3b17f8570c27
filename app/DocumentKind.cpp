// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DocumentKind.h"

#include <QCoreApplication>
#include <QFileInfo>

const std::array<DocumentKind, 3> &documentKinds()
{
    const auto tr = [](const char *text) { return QCoreApplication::translate("DocumentKind", text); };
    static const std::array<DocumentKind, 3> kinds{{
        {DocumentType::SkinnedMesh, tr("Skinned Mesh"), tr("Open Skinned Mesh"), tr("Save Skinned Mesh"),
         tr("Skinned Mesh (*.skinnedmesh)"), QStringLiteral("skinnedmesh"), tr("Skinned Mesh Folder"),
         Settings::SkinnedMeshLoadPath, Settings::SkinnedMeshSavePath, Settings::SkinnedMeshExplorePath,
         Settings::SkinnedMeshQuickSelect, Settings::SkinnedMeshRecentFiles},
        {DocumentType::Anim, tr("Animation"), tr("Open Animation"), tr("Save Animation"),
         tr("Animation (*.anim)"), QStringLiteral("anim"), tr("Animation Folder"),
         Settings::AnimationLoadPath, Settings::AnimationSavePath, Settings::AnimationExplorePath,
         Settings::AnimationQuickSelect, Settings::AnimationRecentFiles},
        {DocumentType::StaticMesh, tr("Static Mesh"), tr("Open Static Mesh"), tr("Save Static Mesh"),
         tr("Static Mesh (*.staticmesh)"), QStringLiteral("staticmesh"), tr("Static Mesh Folder"),
         Settings::StaticMeshLoadPath, Settings::StaticMeshSavePath, Settings::StaticMeshExplorePath,
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
