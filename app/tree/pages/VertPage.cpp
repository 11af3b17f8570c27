// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "VertPage.h"

#include "IndexTargets.h"
#include "SkinnedMeshCommands.h"
#include "StaticMeshCommands.h"

using namespace Parts;

SkinnedMeshVertPage::SkinnedMeshVertPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                         QWidget *parent)
    : VertPage(document, tree, tr("Place of the vertex in the space of its bone, in game units"), parent)
{
    using Page = SkinnedMeshVertPage;
    bindVector<UC_SkinnedMeshVertPosition, Page>(
        tr("Vertex Position %1"), {{m_ui.sbVertPositionX, &Page::OnSkinMeshVertPositionXChanged},
                                   {m_ui.sbVertPositionY, &Page::OnSkinMeshVertPositionYChanged},
                                   {m_ui.sbVertPositionZ, &Page::OnSkinMeshVertPositionZChanged}});
    bindVector<UC_SkinnedMeshVertNormal, Page>(tr("Vertex Normal %1"),
                                               {{m_ui.sbVertNormalX, &Page::OnSkinMeshVertNormalXChanged},
                                                {m_ui.sbVertNormalY, &Page::OnSkinMeshVertNormalYChanged},
                                                {m_ui.sbVertNormalZ, &Page::OnSkinMeshVertNormalZChanged}});
    bindVector<UC_SkinnedMeshVertUV, Page>(tr("Vertex UV %1"),
                                           {{m_ui.sbVertUVX, &Page::OnSkinMeshVertUVXChanged},
                                            {m_ui.sbVertUVY, &Page::OnSkinMeshVertUVYChanged}});
    bind<UC_SkinnedMeshVertNodeIndex>(m_ui.sbVertNodeIndex, Whole, tr("Vertex Bone Index"),
                                      &Page::OnSkinMeshVertNodeIndexChanged);
}

void SkinnedMeshVertPage::recordShown()
{
    if (const SkinnedMeshVertex *vertex = record())
        m_ui.hintVertNodeIndex->setTarget(IndexTargets::bone(model(), vertex->nodeIndex));
}

StaticMeshVertPage::StaticMeshVertPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                       QWidget *parent)
    : VertPage(document, tree, tr("Place of the vertex in the model, in game units (z is up)"), parent)
{
    // What does not bend has no bones.
    delete m_ui.gbVertNode;

    using Page = StaticMeshVertPage;
    bindVector<UC_StaticMeshVertPos, Page>(tr("Vertex Position %1"),
                                           {{m_ui.sbVertPositionX, &Page::OnStaticMeshVertPosXChanged},
                                            {m_ui.sbVertPositionY, &Page::OnStaticMeshVertPosYChanged},
                                            {m_ui.sbVertPositionZ, &Page::OnStaticMeshVertPosZChanged}});
    bindVector<UC_StaticMeshVertNormal, Page>(tr("Vertex Normal %1"),
                                              {{m_ui.sbVertNormalX, &Page::OnStaticMeshVertNormalXChanged},
                                               {m_ui.sbVertNormalY, &Page::OnStaticMeshVertNormalYChanged},
                                               {m_ui.sbVertNormalZ, &Page::OnStaticMeshVertNormalZChanged}});
    bindVector<UC_StaticMeshVertUV, Page>(tr("Vertex UV %1"),
                                          {{m_ui.sbVertUVX, &Page::OnStaticMeshVertUVXChanged},
                                           {m_ui.sbVertUVY, &Page::OnStaticMeshVertUVYChanged}});
}
