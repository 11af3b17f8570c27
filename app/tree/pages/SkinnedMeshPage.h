// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_SkinnedMeshPage.h"

/// The fields of a skinned mesh that belong to no record.
class SkinnedMeshPage : public RecordPage<Records::SkinnedMeshRoot>
{
    Q_OBJECT

public:
    SkinnedMeshPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

protected:
    void recordShown() override;

private slots:
    void OnSkinMeshBBMinXChanged() { commit(m_ui.sbSMBBMinX); }
    void OnSkinMeshBBMinYChanged() { commit(m_ui.sbSMBBMinY); }
    void OnSkinMeshBBMinZChanged() { commit(m_ui.sbSMBBMinZ); }
    void OnSkinMeshBBMaxXChanged() { commit(m_ui.sbSMBBMaxX); }
    void OnSkinMeshBBMaxYChanged() { commit(m_ui.sbSMBBMaxY); }
    void OnSkinMeshBBMaxZChanged() { commit(m_ui.sbSMBBMaxZ); }
    void OnSkinMeshHTStartChanged() { commit(m_ui.sbSMHTStart); }
    void OnSkinMeshHTEndChanged() { commit(m_ui.sbSMHTEnd); }
    void OnSkinMeshHTFactorChanged() { commit(m_ui.sbSMHTFactor); }

private:
    Ui::SkinnedMeshPage m_ui;
};
