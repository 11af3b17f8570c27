// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_AnimNodePage.h"

/// The fields of a bone of an animation block.
class AnimNodePage : public RecordPage<Records::BlockBone>
{
    Q_OBJECT

public:
    /// `mesh` names the bones; it outlives the page.
    AnimNodePage(ModelDocument<Model> &document, const KVTreeView &tree, const SkinnedMeshDocument &mesh,
                 QWidget *parent = nullptr);

protected:
    void recordShown() override;

private slots:
    void OnAnimNodeTransIndexChanged() { commit(m_ui.sbAnimNodeTransIndex); }
    void OnAnimNodeRotIndexChanged() { commit(m_ui.sbAnimNodeRotIndex); }
    void OnAnimNodeInitTransXChanged() { commit(m_ui.sbAnimNodeInitTransX); }
    void OnAnimNodeInitTransYChanged() { commit(m_ui.sbAnimNodeInitTransY); }
    void OnAnimNodeInitTransZChanged() { commit(m_ui.sbAnimNodeInitTransZ); }
    void OnAnimNodeInitRotXChanged() { commit(m_ui.sbAnimNodeInitRotX); }
    void OnAnimNodeInitRotYChanged() { commit(m_ui.sbAnimNodeInitRotY); }
    void OnAnimNodeInitRotZChanged() { commit(m_ui.sbAnimNodeInitRotZ); }
    void OnAnimNodeInitRotWChanged() { commit(m_ui.sbAnimNodeInitRotW); }

private:
    const SkinnedMeshDocument &m_mesh;
    Ui::AnimNodePage m_ui;
};
