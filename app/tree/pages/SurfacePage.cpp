// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SurfacePage.h"

SkinnedMeshSurfacePage::SkinnedMeshSurfacePage(ModelDocument<Model> &document, const KVTreeView &tree,
                                               QWidget *parent)
    : SurfacePage(document, tree, parent)
{
    bind(m_ui.txtSurfaceMaterial, Fields::SkinnedMaterial,
         &SkinnedMeshSurfacePage::OnSkinMeshSurfaceMaterialChanged);
}

StaticMeshSurfacePage::StaticMeshSurfacePage(ModelDocument<Model> &document, const KVTreeView &tree,
                                             QWidget *parent)
    : SurfacePage(document, tree, parent)
{
    bind(m_ui.txtSurfaceMaterial, Fields::StaticMaterial,
         &StaticMeshSurfacePage::OnStaticMeshSurfaceMaterialChanged);
}
