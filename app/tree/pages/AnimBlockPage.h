// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_AnimBlockPage.h"

#include <optional>

/// The fields of an animation block.
class AnimBlockPage : public RecordPage<Records::Block>
{
    Q_OBJECT

public:
    AnimBlockPage(ModelDocument<Model> &document, const KVTreeView &tree, SkinnedMeshDocument &mesh,
                  QWidget *parent = nullptr);

protected:
    void recordShown() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void OnAnimBlockNameChanged() { commit(m_ui.txtAnimName); }
    void OnAnimBlockAnimIDChanged() { commit(m_ui.sbAnimAnimID); }
    void OnAnimBlockSpeedChanged() { commit(m_ui.sbAnimSpeed); }
    void OnAnimBlockLoopFrameChanged() { commit(m_ui.sbAnimLoopFrame); }
    void OnAnimBlockFrameScaleChanged() { commit(m_ui.sbAnimFrameScale); }
    void OnAnimBlockBlendLengthChanged() { commit(m_ui.sbAnimBlendLength); }
    void OnAnimBlockBlendStartChanged() { commit(m_ui.sbAnimBlendStart); }
    void OnAnimBlockBlendEndChanged() { commit(m_ui.sbAnimBlendEnd); }

private:
    void bindName();
    QString nameOf(const AnimBlock *block) const;
    void nameSelected(const QString &name);
    bool isStepOfName(const QObject *watched, QEvent *event, std::optional<int> &step) const;

    AnimDocument &m_anim;
    const KVTreeView &m_tree;
    SkinnedMeshDocument &m_mesh; ///< which has the names
    Ui::AnimBlockPage m_ui;
};
