// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_SkinnedMeshVertPage.h"

/// The fields of a skinned mesh vertex.
class SkinnedMeshVertPage : public RecordPage<Records::SkinnedVertex>
{
    Q_OBJECT

public:
    SkinnedMeshVertPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

    QString title() const override;

protected:
    void recordShown() override;

private slots:
    void OnSkinMeshVertPositionXChanged() { commit(m_ui.sbSMVertPositionX); }
    void OnSkinMeshVertPositionYChanged() { commit(m_ui.sbSMVertPositionY); }
    void OnSkinMeshVertPositionZChanged() { commit(m_ui.sbSMVertPositionZ); }
    void OnSkinMeshVertNormalXChanged() { commit(m_ui.sbSMVertNormalX); }
    void OnSkinMeshVertNormalYChanged() { commit(m_ui.sbSMVertNormalY); }
    void OnSkinMeshVertNormalZChanged() { commit(m_ui.sbSMVertNormalZ); }
    void OnSkinMeshVertUVXChanged() { commit(m_ui.sbSMVertUVX); }
    void OnSkinMeshVertUVYChanged() { commit(m_ui.sbSMVertUVY); }
    void OnSkinMeshVertNodeIndexChanged() { commit(m_ui.sbSMVertNodeIndex); }

private:
    Ui::SkinnedMeshVertPage m_ui;
};
