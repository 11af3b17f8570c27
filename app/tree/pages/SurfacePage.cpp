// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SurfacePage.h"

#include "SkinnedMeshCommands.h"
#include "StaticMeshCommands.h"

using namespace Parts;

SkinnedMeshSurfacePage::SkinnedMeshSurfacePage(ModelDocument<Model> &document, const KVTreeView &tree,
                                               QWidget *parent)
    : SurfacePage(document, tree, parent)
{
    bind<UC_SkinnedMeshSurfaceMaterial>(m_ui.txtSurfaceMaterial, Whole, tr("Surface Material"),
                                        &SkinnedMeshSurfacePage::OnSkinMeshSurfaceMaterialChanged);
}

StaticMeshSurfacePage::StaticMeshSurfacePage(ModelDocument<Model> &document, const KVTreeView &tree,
                                             QWidget *parent)
    : SurfacePage(document, tree, parent)
{
    bind<UC_StaticMeshSurfaceMaterial>(m_ui.txtSurfaceMaterial, Whole, tr("Surface Material"),
                                       &StaticMeshSurfacePage::OnStaticMeshSurfaceMaterialChanged);
}
