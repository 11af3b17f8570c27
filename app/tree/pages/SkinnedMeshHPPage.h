// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_SkinnedMeshHPPage.h"

/// The fields of a hot point.
class SkinnedMeshHPPage : public RecordPage<Records::HotPoint>
{
    Q_OBJECT

public:
    SkinnedMeshHPPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

protected:
    void recordShown() override;

private slots:
    void OnSkinMeshHPOriginXChanged() { commit(m_ui.sbHPOriginX); }
    void OnSkinMeshHPOriginYChanged() { commit(m_ui.sbHPOriginY); }
    void OnSkinMeshHPOriginZChanged() { commit(m_ui.sbHPOriginZ); }
    void OnSkinMeshHPNodeIDChanged() { commit(m_ui.sbHPNodeID); }
    void OnSkinMeshHPDealDamageChanged() { commit(m_ui.cbHPDealDamage); }
    void OnSkinMeshHPEffect1Changed() { commit(m_ui.sbHPEffect1); }
    void OnSkinMeshHPEffect2Changed() { commit(m_ui.sbHPEffect2); }
    void OnSkinMeshHPFlagsChanged() { commit(m_ui.flagsHP); }

private:
    Ui::SkinnedMeshHPPage m_ui;
};
