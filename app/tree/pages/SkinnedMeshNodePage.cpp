// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SkinnedMeshNodePage.h"

#include "NameTables.h"

SkinnedMeshNodePage::SkinnedMeshNodePage(ModelDocument<Model> &document, const KVTreeView &tree,
                                         QWidget *parent)
    : RecordPage(document, tree, tr("Bone %1 Properties"), parent)
{
    m_ui.setupUi(this);
    m_ui.cbNodeSymbolType->setNames(Fields::boneTypes());
    m_ui.cbNodeSymbolSide->setNames(Fields::sides());
    m_ui.cbNodeImpactType->setNames(Fields::impactTypes());
    m_ui.sbNodeDamageScale->setSingleStep(0.1);

    using Page = SkinnedMeshNodePage;
    bind(m_ui.cbNodeSymbolType, Fields::BoneSymbolType, &Page::OnSkinMeshNodeSFlagsTypeChanged);
    bind(m_ui.cbNodeSymbolSide, Fields::BoneSymbolSide, &Page::OnSkinMeshNodeSFlagsSideChanged);
    bind(m_ui.cbNodeSymbolPart, Fields::BoneSymbolPart, &Page::OnSkinMeshNodeSFlagsPartChanged);
    bind(m_ui.txtNodeName, Fields::BoneName, &Page::OnSkinMeshNodeNameChanged);
    bind(m_ui.sbNodeParentNode, Fields::BoneParent, &Page::OnSkinMeshNodeParentNodeChanged);
    bind(m_ui.cbNodeImpactType, Fields::BoneImpact, &Page::OnSkinMeshNodeImpactTypeChanged);
    bind(m_ui.sbNodeDamageScale, Fields::BoneDamageScale, &Page::OnSkinMeshNodeDamageScaleChanged);
    bindVector<UC_SkinnedMeshNodeBBMin, 3, Page>(Fields::BoneBoxMin,
                                                 {{{m_ui.sbNodeBBMinX, &Page::OnSkinMeshNodeBBMinXChanged},
                                                   {m_ui.sbNodeBBMinY, &Page::OnSkinMeshNodeBBMinYChanged},
                                                   {m_ui.sbNodeBBMinZ, &Page::OnSkinMeshNodeBBMinZChanged}}});
    bindVector<UC_SkinnedMeshNodeBBMax, 3, Page>(Fields::BoneBoxMax,
                                                 {{{m_ui.sbNodeBBMaxX, &Page::OnSkinMeshNodeBBMaxXChanged},
                                                   {m_ui.sbNodeBBMaxY, &Page::OnSkinMeshNodeBBMaxYChanged},
                                                   {m_ui.sbNodeBBMaxZ, &Page::OnSkinMeshNodeBBMaxZChanged}}});
    bind(m_ui.flagsNode, Fields::BoneFlags, &Page::OnSkinMeshNodeFlagsChanged);
}

void SkinnedMeshNodePage::recordShown()
{
    if (const SkinnedMeshNode *bone = record())
        m_ui.cbNodeSymbolPart->setNames(bonePartNames(boneSymbol(bone->symbolFlags).type));
}
