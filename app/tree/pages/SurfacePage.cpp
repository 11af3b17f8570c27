// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SurfacePage.h"

SkinnedMeshSurfacePage::SkinnedMeshSurfacePage(ModelDocument<Model> &document, const KVTreeView &tree,
                                               MaterialCatalog &materials, QWidget *parent)
    : SurfacePage(document, tree, materials, parent)
{
    bind(m_ui.txtSurfaceMaterial, Fields::SkinnedMaterial,
         &SkinnedMeshSurfacePage::OnSkinMeshSurfaceMaterialChanged);
    chooseFor(Fields::SkinnedMaterial);
}

StaticMeshSurfacePage::StaticMeshSurfacePage(ModelDocument<Model> &document, const KVTreeView &tree,
                                             MaterialCatalog &materials, QWidget *parent)
    : SurfacePage(document, tree, materials, parent)
{
    bind(m_ui.txtSurfaceMaterial, Fields::StaticMaterial,
         &StaticMeshSurfacePage::OnStaticMeshSurfaceMaterialChanged);
    chooseFor(Fields::StaticMaterial);
}
