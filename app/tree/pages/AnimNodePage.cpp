// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimNodePage.h"

#include "AxisAngle.h"
#include "IndexTargets.h"

AnimNodePage::AnimNodePage(ModelDocument<Model> &document, const KVTreeView &tree,
                           const SkinnedMeshDocument &mesh, QWidget *parent)
    : RecordPage(document, tree, tr("Anim %1 - Bone %2 Properties"), parent)
    , m_mesh(mesh)
{
    m_ui.setupUi(this);
    for (FloatSpinBox *editor :
         {m_ui.sbAnimNodeInitRotX, m_ui.sbAnimNodeInitRotY, m_ui.sbAnimNodeInitRotZ, m_ui.sbAnimNodeInitRotW})
        editor->setSingleStep(0.01);

    connect(&mesh, &Document::replaced, this, &AnimNodePage::recordShown);
    connect(&mesh, &Document::recordsChanged, this, &AnimNodePage::recordShown);

    using Page = AnimNodePage;
    bind(m_ui.sbAnimNodeTransIndex, Fields::BoneTranslationTrack, &Page::OnAnimNodeTransIndexChanged);
    bind(m_ui.sbAnimNodeRotIndex, Fields::BoneRotationTrack, &Page::OnAnimNodeRotIndexChanged);
    bindVector<UC_AnimNodeInitTrans, 3, Page>(
        Fields::BoneInitialPosition, {{{m_ui.sbAnimNodeInitTransX, &Page::OnAnimNodeInitTransXChanged},
                                       {m_ui.sbAnimNodeInitTransY, &Page::OnAnimNodeInitTransYChanged},
                                       {m_ui.sbAnimNodeInitTransZ, &Page::OnAnimNodeInitTransZChanged}}});
    bindVector<UC_AnimNodeInitRot, 4, Page>(Fields::BoneInitialRotation,
                                            {{{m_ui.sbAnimNodeInitRotX, &Page::OnAnimNodeInitRotXChanged},
                                              {m_ui.sbAnimNodeInitRotY, &Page::OnAnimNodeInitRotYChanged},
                                              {m_ui.sbAnimNodeInitRotZ, &Page::OnAnimNodeInitRotZChanged},
                                              {m_ui.sbAnimNodeInitRotW, &Page::OnAnimNodeInitRotWChanged}}});
}

void AnimNodePage::recordShown()
{
    const AnimNode *bone = record();
    if (!bone)
        return;
    const AnimBlock &block = model().blocks[size_t(index()[0])];
    m_ui.lblAnimNodeBone->setText(IndexTargets::blockBone(block, m_mesh.model(), index()[1]).text);
    m_ui.hintAnimNodeTransIndex->setTarget(IndexTargets::translationTrack(block, bone->translationIndex));
    m_ui.hintAnimNodeRotIndex->setTarget(IndexTargets::rotationTrack(block, bone->rotationIndex));
    const AxisAngle turn = axisAngle(bone->initialRotation);
    m_ui.lblAnimNodeInitRotTurn->setText(
        tr("%1\u00b0 about %2").arg(QString::number(double(turn.degrees), 'g', 4), axisText(turn)));
}
