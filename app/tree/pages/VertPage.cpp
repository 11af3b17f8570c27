// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "VertPage.h"

SkinnedMeshVertPage::SkinnedMeshVertPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                         QWidget *parent)
    : VertPage(document, tree, tr("Place of the vertex in the space of its bone, in game units"), parent)
{
    using Page = SkinnedMeshVertPage;
    bindVector<UC_SkinnedMeshVertPosition, 3, Page>(
        Fields::SkinnedPosition, {{{m_ui.sbVertPositionX, &Page::OnSkinMeshVertPositionXChanged},
                                   {m_ui.sbVertPositionY, &Page::OnSkinMeshVertPositionYChanged},
                                   {m_ui.sbVertPositionZ, &Page::OnSkinMeshVertPositionZChanged}}});
    bindVector<UC_SkinnedMeshVertNormal, 3, Page>(
        Fields::SkinnedNormal, {{{m_ui.sbVertNormalX, &Page::OnSkinMeshVertNormalXChanged},
                                 {m_ui.sbVertNormalY, &Page::OnSkinMeshVertNormalYChanged},
                                 {m_ui.sbVertNormalZ, &Page::OnSkinMeshVertNormalZChanged}}});
    bindVector<UC_SkinnedMeshVertUV, 2, Page>(Fields::SkinnedUV,
                                              {{{m_ui.sbVertUVX, &Page::OnSkinMeshVertUVXChanged},
                                                {m_ui.sbVertUVY, &Page::OnSkinMeshVertUVYChanged}}});
    bind(m_ui.sbVertNodeIndex, Fields::VertexBone, &Page::OnSkinMeshVertNodeIndexChanged);
}

StaticMeshVertPage::StaticMeshVertPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                       QWidget *parent)
    : VertPage(document, tree, tr("Place of the vertex in the model, in game units (z is up)"), parent)
{
    // What does not bend has no bones.
    delete m_ui.gbVertNode;

    using Page = StaticMeshVertPage;
    bindVector<UC_StaticMeshVertPos, 3, Page>(Fields::StaticPosition,
                                              {{{m_ui.sbVertPositionX, &Page::OnStaticMeshVertPosXChanged},
                                                {m_ui.sbVertPositionY, &Page::OnStaticMeshVertPosYChanged},
                                                {m_ui.sbVertPositionZ, &Page::OnStaticMeshVertPosZChanged}}});
    bindVector<UC_StaticMeshVertNormal, 3, Page>(
        Fields::StaticNormal, {{{m_ui.sbVertNormalX, &Page::OnStaticMeshVertNormalXChanged},
                                {m_ui.sbVertNormalY, &Page::OnStaticMeshVertNormalYChanged},
                                {m_ui.sbVertNormalZ, &Page::OnStaticMeshVertNormalZChanged}}});
    bindVector<UC_StaticMeshVertUV, 2, Page>(Fields::StaticUV,
                                             {{{m_ui.sbVertUVX, &Page::OnStaticMeshVertUVXChanged},
                                               {m_ui.sbVertUVY, &Page::OnStaticMeshVertUVYChanged}}});
}
