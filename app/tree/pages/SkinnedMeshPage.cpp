// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SkinnedMeshPage.h"

SkinnedMeshPage::SkinnedMeshPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent)
    : RecordPage(document, tree, tr("Skinned Mesh"), parent)
{
    m_ui.setupUi(this);

    using Page = SkinnedMeshPage;
    bindVector<UC_SkinnedMeshBBMin, 3, Page>(Fields::MeshBoxMin,
                                             {{{m_ui.sbSMBBMinX, &Page::OnSkinMeshBBMinXChanged},
                                               {m_ui.sbSMBBMinY, &Page::OnSkinMeshBBMinYChanged},
                                               {m_ui.sbSMBBMinZ, &Page::OnSkinMeshBBMinZChanged}}});
    bindVector<UC_SkinnedMeshBBMax, 3, Page>(Fields::MeshBoxMax,
                                             {{{m_ui.sbSMBBMaxX, &Page::OnSkinMeshBBMaxXChanged},
                                               {m_ui.sbSMBBMaxY, &Page::OnSkinMeshBBMaxYChanged},
                                               {m_ui.sbSMBBMaxZ, &Page::OnSkinMeshBBMaxZChanged}}});
    bind(m_ui.sbSMHTStart, Fields::HeadTrackStart, &Page::OnSkinMeshHTStartChanged);
    bind(m_ui.sbSMHTEnd, Fields::HeadTrackEnd, &Page::OnSkinMeshHTEndChanged);
    bind(m_ui.sbSMHTFactor, Fields::HeadTrackFactor, &Page::OnSkinMeshHTFactorChanged);
}

void SkinnedMeshPage::recordShown()
{
    const SkinnedMesh &mesh = model();
    m_ui.lblSMVersion->setNum(mesh.version);
    m_ui.lblSMUnknown->setText(QStringLiteral("%1, %2").arg(mesh.unknownA).arg(mesh.unknownB));
}
