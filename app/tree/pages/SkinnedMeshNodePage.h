// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_SkinnedMeshNodePage.h"

/// The fields of a bone.
class SkinnedMeshNodePage : public RecordPage<Records::Bone>
{
    Q_OBJECT

public:
    SkinnedMeshNodePage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

protected:
    void recordShown() override;

private slots:
    void OnSkinMeshNodeSFlagsTypeChanged() { commit(m_ui.cbNodeSymbolType); }
    void OnSkinMeshNodeSFlagsSideChanged() { commit(m_ui.cbNodeSymbolSide); }
    void OnSkinMeshNodeSFlagsPartChanged() { commit(m_ui.cbNodeSymbolPart); }
    void OnSkinMeshNodeNameChanged() { commit(m_ui.txtNodeName); }
    void OnSkinMeshNodeParentNodeChanged() { commit(m_ui.sbNodeParentNode); }
    void OnSkinMeshNodeImpactTypeChanged() { commit(m_ui.cbNodeImpactType); }
    void OnSkinMeshNodeDamageScaleChanged() { commit(m_ui.sbNodeDamageScale); }
    void OnSkinMeshNodeBBMinXChanged() { commit(m_ui.sbNodeBBMinX); }
    void OnSkinMeshNodeBBMinYChanged() { commit(m_ui.sbNodeBBMinY); }
    void OnSkinMeshNodeBBMinZChanged() { commit(m_ui.sbNodeBBMinZ); }
    void OnSkinMeshNodeBBMaxXChanged() { commit(m_ui.sbNodeBBMaxX); }
    void OnSkinMeshNodeBBMaxYChanged() { commit(m_ui.sbNodeBBMaxY); }
    void OnSkinMeshNodeBBMaxZChanged() { commit(m_ui.sbNodeBBMaxZ); }
    void OnSkinMeshNodeFlagsChanged() { commit(m_ui.flagsNode); }

private:
    Ui::SkinnedMeshNodePage m_ui;
};
