// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SkinnedMeshVertPage.h"

#include "IndexTargets.h"
#include "SkinnedMeshCommands.h"

using namespace Parts;

SkinnedMeshVertPage::SkinnedMeshVertPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                         QWidget *parent)
    : RecordPage(document, tree, parent)
{
    m_ui.setupUi(this);
    for (FloatSpinBox *editor : {m_ui.sbSMVertNormalX, m_ui.sbSMVertNormalY, m_ui.sbSMVertNormalZ,
                                 m_ui.sbSMVertUVX, m_ui.sbSMVertUVY})
        editor->setSingleStep(0.01f);

    using Page = SkinnedMeshVertPage;
    bind<UC_SkinnedMeshVertPosition>(m_ui.sbSMVertPositionX, X, tr("Vertex Position X"),
                                     &Page::OnSkinMeshVertPositionXChanged);
    bind<UC_SkinnedMeshVertPosition>(m_ui.sbSMVertPositionY, Y, tr("Vertex Position Y"),
                                     &Page::OnSkinMeshVertPositionYChanged);
    bind<UC_SkinnedMeshVertPosition>(m_ui.sbSMVertPositionZ, Z, tr("Vertex Position Z"),
                                     &Page::OnSkinMeshVertPositionZChanged);
    bind<UC_SkinnedMeshVertNormal>(m_ui.sbSMVertNormalX, X, tr("Vertex Normal X"),
                                   &Page::OnSkinMeshVertNormalXChanged);
    bind<UC_SkinnedMeshVertNormal>(m_ui.sbSMVertNormalY, Y, tr("Vertex Normal Y"),
                                   &Page::OnSkinMeshVertNormalYChanged);
    bind<UC_SkinnedMeshVertNormal>(m_ui.sbSMVertNormalZ, Z, tr("Vertex Normal Z"),
                                   &Page::OnSkinMeshVertNormalZChanged);
    bind<UC_SkinnedMeshVertUV>(m_ui.sbSMVertUVX, X, tr("Vertex UV X"), &Page::OnSkinMeshVertUVXChanged);
    bind<UC_SkinnedMeshVertUV>(m_ui.sbSMVertUVY, Y, tr("Vertex UV Y"), &Page::OnSkinMeshVertUVYChanged);
    bind<UC_SkinnedMeshVertNodeIndex>(m_ui.sbSMVertNodeIndex, Whole, tr("Vertex Bone Index"),
                                      &Page::OnSkinMeshVertNodeIndexChanged);
}

QString SkinnedMeshVertPage::title() const
{
    return tr("Vertex %1 Properties").arg(index()[0]);
}

void SkinnedMeshVertPage::recordShown()
{
    if (const SkinnedMeshVertex *vertex = record())
        m_ui.hintSMVertNodeIndex->setTarget(IndexTargets::bone(model(), vertex->nodeIndex));
}
