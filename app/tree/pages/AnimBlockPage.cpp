// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimBlockPage.h"

#include "AnimCommands.h"
#include "EventArguments.h"
#include "FrameChoice.h"
#include "IndexTargets.h"
#include "Questions.h"

using namespace Parts;

AnimBlockPage::AnimBlockPage(ModelDocument<Model> &document, const KVTreeView &tree,
                             const SkinnedMeshDocument &mesh, QWidget *parent)
    : RecordPage(document, tree, tr("Anim %1 Properties"), parent)
    , m_mesh(mesh)
{
    m_ui.setupUi(this);
    Questions::set(m_ui.sbAnimAnimID, {Question::Animation});
    m_ui.sbAnimFrameScale->setSingleStep(0.1);

    using Page = AnimBlockPage;
    bind<UC_AnimBlockAnimID>(m_ui.sbAnimAnimID, Whole, tr("Animation AnimID"),
                             &Page::OnAnimBlockAnimIDChanged);
    bind<UC_AnimBlockAnimSpeed>(m_ui.sbAnimSpeed, Whole, tr("Animation Speed"),
                                &Page::OnAnimBlockSpeedChanged);
    bind<UC_AnimBlockLoopFrame>(m_ui.sbAnimLoopFrame, Whole, tr("Animation Loop Frame"),
                                &Page::OnAnimBlockLoopFrameChanged);
    bind<UC_AnimBlockFrameScale>(m_ui.sbAnimFrameScale, Whole, tr("Animation Frame Scale"),
                                 &Page::OnAnimBlockFrameScaleChanged);
    bind<UC_AnimBlockBlendLength>(m_ui.sbAnimBlendLength, Whole, tr("Animation Blend Length"),
                                  &Page::OnAnimBlockBlendLengthChanged);
    bind<UC_AnimBlockBlendStart>(m_ui.sbAnimBlendStart, Whole, tr("Animation Blend Start"),
                                 &Page::OnAnimBlockBlendStartChanged);
    bind<UC_AnimBlockBlendEnd>(m_ui.sbAnimBlendEnd, Whole, tr("Animation Blend End"),
                               &Page::OnAnimBlockBlendEndChanged);
}

void AnimBlockPage::recordShown()
{
    const AnimBlock *block = record();
    if (!block)
        return;
    m_ui.hintAnimAnimID->setTarget(IndexTargets::animation(m_mesh.model(), block->animId));
    m_ui.hintAnimLoopFrame->setTarget(IndexTargets::loopFrame(*block, block->loopFrame));
    m_ui.lblAnimFrames->setNum(block->frameCount());
    m_ui.lblAnimBones->setNum(int(block->nodes.size()));
    const float seconds = std::max(playDuration(*block), 0.0f);
    m_ui.lblAnimDuration->setText(tr("%1 s").arg(double(seconds), 0, 'f', 2));
}
