// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SkinnedMeshPage.h"

#include "IndexTargets.h"
#include "SkinnedMeshCommands.h"

using namespace Parts;

SkinnedMeshPage::SkinnedMeshPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent)
    : RecordPage(document, tree, tr("Skinned Mesh"), parent)
{
    m_ui.setupUi(this);

    using Page = SkinnedMeshPage;
    bindVector<UC_SkinnedMeshBBMin, Page>({}, {{m_ui.sbSMBBMinX, &Page::OnSkinMeshBBMinXChanged},
                                               {m_ui.sbSMBBMinY, &Page::OnSkinMeshBBMinYChanged},
                                               {m_ui.sbSMBBMinZ, &Page::OnSkinMeshBBMinZChanged}});
    bindVector<UC_SkinnedMeshBBMax, Page>({}, {{m_ui.sbSMBBMaxX, &Page::OnSkinMeshBBMaxXChanged},
                                               {m_ui.sbSMBBMaxY, &Page::OnSkinMeshBBMaxYChanged},
                                               {m_ui.sbSMBBMaxZ, &Page::OnSkinMeshBBMaxZChanged}});
    bind<UC_SkinnedMeshHTStart>(m_ui.sbSMHTStart, Whole, {}, &Page::OnSkinMeshHTStartChanged);
    bind<UC_SkinnedMeshHTEnd>(m_ui.sbSMHTEnd, Whole, {}, &Page::OnSkinMeshHTEndChanged);
    bind<UC_SkinnedMeshHTFactor>(m_ui.sbSMHTFactor, Whole, {}, &Page::OnSkinMeshHTFactorChanged);
}

void SkinnedMeshPage::recordShown()
{
    const SkinnedMesh &mesh = model();
    m_ui.lblSMVersion->setNum(mesh.version);
    m_ui.lblSMUnknown->setText(QStringLiteral("%1, %2").arg(mesh.unknownA).arg(mesh.unknownB));
    m_ui.hintSMHTStart->setTarget(IndexTargets::bone(mesh, mesh.headTrackStart));
    m_ui.hintSMHTEnd->setTarget(IndexTargets::bone(mesh, mesh.headTrackEnd));
}
