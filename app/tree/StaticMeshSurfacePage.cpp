// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "StaticMeshSurfacePage.h"

#include "StaticMeshCommands.h"

using namespace Parts;

StaticMeshSurfacePage::StaticMeshSurfacePage(ModelDocument<Model> &document, const KVTreeView &tree,
                                             QWidget *parent)
    : RecordPage(document, tree, parent)
{
    m_ui.setupUi(this);
    setUpMaterialEditor(m_ui.txtSTSurfaceMaterial);

    using Page = StaticMeshSurfacePage;
    bind<UC_StaticMeshSurfaceMaterial>(m_ui.txtSTSurfaceMaterial, Whole, tr("Surface Material"),
                                       &Page::OnStaticMeshSurfaceMaterialChanged);
}

QString StaticMeshSurfacePage::title() const
{
    return tr("Surface %1 Properties").arg(index()[0]);
}

void StaticMeshSurfacePage::recordShown()
{
    if (const StaticMeshSurface *surface = record())
        m_ui.lblSTSurfaceTriangles->setNum(int(surface->triangleIndexes.size() / 3));
}
