// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SkinnedMeshHPPage.h"

SkinnedMeshHPPage::SkinnedMeshHPPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent)
    : RecordPage(document, tree, tr("Hot Point %1 Properties"), parent)
{
    m_ui.setupUi(this);

    using Page = SkinnedMeshHPPage;
    bindVector<UC_SkinnedMeshHPOrigin, 3, Page>(Fields::HotPointOrigin,
                                                {{{m_ui.sbHPOriginX, &Page::OnSkinMeshHPOriginXChanged},
                                                  {m_ui.sbHPOriginY, &Page::OnSkinMeshHPOriginYChanged},
                                                  {m_ui.sbHPOriginZ, &Page::OnSkinMeshHPOriginZChanged}}});
    bind(m_ui.sbHPNodeID, Fields::HotPointBone, &Page::OnSkinMeshHPNodeIDChanged);
    bind(m_ui.cbHPDealDamage, Fields::HotPointDamage, &Page::OnSkinMeshHPDealDamageChanged);
    bind(m_ui.sbHPEffect1, Fields::HotPointEffect1, &Page::OnSkinMeshHPEffect1Changed);
    bind(m_ui.sbHPEffect2, Fields::HotPointEffect2, &Page::OnSkinMeshHPEffect2Changed);
    bind(m_ui.flagsHP, Fields::HotPointFlags, &Page::OnSkinMeshHPFlagsChanged);
}

void SkinnedMeshHPPage::recordShown()
{
    const SkinnedMeshHotPoint *point = record();
    if (!point)
        return;
    const bool damages = Fields::HotPointDamage.part.get(HotPointEffects::get(*point));
    m_ui.sbHPEffect1->setEnabled(!damages);
    m_ui.lblHPEffect2->setText(damages ? tr("Damage") : tr("Particle Effect &2 ID"));
}
