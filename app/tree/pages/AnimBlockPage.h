// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_AnimBlockPage.h"

/// The fields of an animation block.
class AnimBlockPage : public RecordPage<Records::Block>
{
    Q_OBJECT

public:
    AnimBlockPage(ModelDocument<Model> &document, const KVTreeView &tree, const SkinnedMeshDocument &mesh,
                  QWidget *parent = nullptr);

protected:
    void recordShown() override;

private slots:
    void OnAnimBlockAnimIDChanged() { commit(m_ui.sbAnimAnimID); }
    void OnAnimBlockSpeedChanged() { commit(m_ui.sbAnimSpeed); }
    void OnAnimBlockLoopFrameChanged() { commit(m_ui.sbAnimLoopFrame); }
    void OnAnimBlockFrameScaleChanged() { commit(m_ui.sbAnimFrameScale); }
    void OnAnimBlockBlendLengthChanged() { commit(m_ui.sbAnimBlendLength); }
    void OnAnimBlockBlendStartChanged() { commit(m_ui.sbAnimBlendStart); }
    void OnAnimBlockBlendEndChanged() { commit(m_ui.sbAnimBlendEnd); }

private:
    const SkinnedMeshDocument &m_mesh;
    Ui::AnimBlockPage m_ui;
};
