// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SkinnedMeshPage.h"

#include "IndexTargets.h"
#include "SkinnedMeshCommands.h"

using namespace Parts;

SkinnedMeshPage::SkinnedMeshPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent)
    : RecordPage(document, tree, parent)
{
    m_ui.setupUi(this);

    using Page = SkinnedMeshPage;
    bind<UC_SkinnedMeshBBMin>(m_ui.sbSMBBMinX, X, {}, &Page::OnSkinMeshBBMinXChanged);
    bind<UC_SkinnedMeshBBMin>(m_ui.sbSMBBMinY, Y, {}, &Page::OnSkinMeshBBMinYChanged);
    bind<UC_SkinnedMeshBBMin>(m_ui.sbSMBBMinZ, Z, {}, &Page::OnSkinMeshBBMinZChanged);
    bind<UC_SkinnedMeshBBMax>(m_ui.sbSMBBMaxX, X, {}, &Page::OnSkinMeshBBMaxXChanged);
    bind<UC_SkinnedMeshBBMax>(m_ui.sbSMBBMaxY, Y, {}, &Page::OnSkinMeshBBMaxYChanged);
    bind<UC_SkinnedMeshBBMax>(m_ui.sbSMBBMaxZ, Z, {}, &Page::OnSkinMeshBBMaxZChanged);
    bind<UC_SkinnedMeshHTStart>(m_ui.sbSMHTStart, Whole, {}, &Page::OnSkinMeshHTStartChanged);
    bind<UC_SkinnedMeshHTEnd>(m_ui.sbSMHTEnd, Whole, {}, &Page::OnSkinMeshHTEndChanged);
    bind<UC_SkinnedMeshHTFactor>(m_ui.sbSMHTFactor, Whole, {}, &Page::OnSkinMeshHTFactorChanged);
}

QString SkinnedMeshPage::title() const
{
    return tr("Skinned Mesh");
}

void SkinnedMeshPage::recordShown()
{
    const SkinnedMesh &mesh = model();
    m_ui.lblSMVersion->setNum(mesh.version);
    m_ui.lblSMUnknown->setText(QStringLiteral("%1, %2").arg(mesh.unknownA).arg(mesh.unknownB));
    m_ui.hintSMHTStart->setTarget(IndexTargets::bone(mesh, mesh.headTrackStart));
    m_ui.hintSMHTEnd->setTarget(IndexTargets::bone(mesh, mesh.headTrackEnd));
}
