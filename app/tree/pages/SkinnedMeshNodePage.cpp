// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SkinnedMeshNodePage.h"

#include "IndexTargets.h"
#include "NameTables.h"
#include "SkinnedMeshCommands.h"

using namespace Parts;

namespace {
// Bits 3 to 5 of the symbol carry no meaning and are kept.
constexpr Bits SymbolType{0, 2};
constexpr Bits SymbolSide{2, 1};
constexpr Bits SymbolPart{6, 2};
} // namespace

SkinnedMeshNodePage::SkinnedMeshNodePage(ModelDocument<Model> &document, const KVTreeView &tree,
                                         QWidget *parent)
    : RecordPage(document, tree, tr("Bone %1 Properties"), parent)
{
    m_ui.setupUi(this);
    m_ui.cbNodeSymbolType->setNames(boneTypeNames());
    m_ui.cbNodeSymbolSide->setNames({tr("Left"), tr("Right")});
    m_ui.cbNodeImpactType->setNames(impactTypeNames());
    m_ui.sbNodeDamageScale->setSingleStep(0.1);

    using Page = SkinnedMeshNodePage;
    bind<UC_SkinnedMeshNodeSFlags>(m_ui.cbNodeSymbolType, SymbolType, tr("Bone Symbol Flags"),
                                   &Page::OnSkinMeshNodeSFlagsTypeChanged);
    bind<UC_SkinnedMeshNodeSFlags>(m_ui.cbNodeSymbolSide, SymbolSide, tr("Bone Symbol Flags"),
                                   &Page::OnSkinMeshNodeSFlagsSideChanged);
    bind<UC_SkinnedMeshNodeSFlags>(m_ui.cbNodeSymbolPart, SymbolPart, tr("Bone Symbol Flags"),
                                   &Page::OnSkinMeshNodeSFlagsPartChanged);
    bind<UC_SkinnedMeshNodeName>(m_ui.txtNodeName, Whole, tr("Bone Name"), &Page::OnSkinMeshNodeNameChanged);
    bind<UC_SkinnedMeshNodeParentNode>(m_ui.sbNodeParentNode, Whole, tr("Parent Bone Index"),
                                       &Page::OnSkinMeshNodeParentNodeChanged);
    bind<UC_SkinnedMeshNodeImpactType>(m_ui.cbNodeImpactType, Whole, tr("Bone Impact Type"),
                                       &Page::OnSkinMeshNodeImpactTypeChanged);
    bind<UC_SkinnedMeshNodeDamageScale>(m_ui.sbNodeDamageScale, Whole, tr("Bone Damage Scale"),
                                        &Page::OnSkinMeshNodeDamageScaleChanged);
    bindVector<UC_SkinnedMeshNodeBBMin, Page>(tr("Bone Bounding Box Min %1"),
                                              {{m_ui.sbNodeBBMinX, &Page::OnSkinMeshNodeBBMinXChanged},
                                               {m_ui.sbNodeBBMinY, &Page::OnSkinMeshNodeBBMinYChanged},
                                               {m_ui.sbNodeBBMinZ, &Page::OnSkinMeshNodeBBMinZChanged}});
    bindVector<UC_SkinnedMeshNodeBBMax, Page>(tr("Bone Bounding Box Max %1"),
                                              {{m_ui.sbNodeBBMaxX, &Page::OnSkinMeshNodeBBMaxXChanged},
                                               {m_ui.sbNodeBBMaxY, &Page::OnSkinMeshNodeBBMaxYChanged},
                                               {m_ui.sbNodeBBMaxZ, &Page::OnSkinMeshNodeBBMaxZChanged}});
    bind<UC_SkinnedMeshNodeFlags>(m_ui.flagsNode, Whole, tr("Bone Flags"), &Page::OnSkinMeshNodeFlagsChanged);
}

void SkinnedMeshNodePage::recordShown()
{
    const SkinnedMeshNode *bone = record();
    if (!bone)
        return;
    m_ui.cbNodeSymbolPart->setNames(bonePartNames(boneSymbol(bone->symbolFlags).type));
    m_ui.hintNodeParentNode->setTarget(IndexTargets::parentBone(model(), bone->parentNode));
}
