// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SkinnedMeshSurfacePage.h"

#include "SkinnedMeshCommands.h"

using namespace Parts;

SkinnedMeshSurfacePage::SkinnedMeshSurfacePage(ModelDocument<Model> &document, const KVTreeView &tree,
                                               QWidget *parent)
    : RecordPage(document, tree, parent)
{
    m_ui.setupUi(this);
    setUpMaterialEditor(m_ui.txtSMSurfaceMaterial);

    using Page = SkinnedMeshSurfacePage;
    bind<UC_SkinnedMeshSurfaceMaterial>(m_ui.txtSMSurfaceMaterial, Whole, tr("Surface Material"),
                                        &Page::OnSkinMeshSurfaceMaterialChanged);
}

QString SkinnedMeshSurfacePage::title() const
{
    return tr("Surface %1 Properties").arg(index()[0]);
}

void SkinnedMeshSurfacePage::recordShown()
{
    if (const SkinnedMeshSurface *surface = record())
        m_ui.lblSMSurfaceTriangles->setNum(int(surface->triangleIndexes.size() / 3));
}
