// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SkinnedMeshHPPage.h"

#include "EventArguments.h"
#include "IndexTargets.h"
#include "Questions.h"
#include "SkinnedMeshCommands.h"

using namespace Parts;

namespace {
constexpr Component Effect1{0};
constexpr Component Effect2{1};

/// Whether the pair of effects stands for damage. Effect 1 is lost to the mark; undo brings it back.
struct DamageMark
{
    static constexpr quint16 Marked = 0xFFFF;

    bool get(const HotPointEffects::Pair &effects) const { return effects[0] == Marked; }
    void set(HotPointEffects::Pair &effects, bool on) const { effects[0] = on ? Marked : quint16(0); }
};
constexpr DamageMark DealDamage;
} // namespace

SkinnedMeshHPPage::SkinnedMeshHPPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent)
    : RecordPage(document, tree, tr("Hot Point %1 Properties"), parent)
{
    m_ui.setupUi(this);
    Questions::set(m_ui.sbHPEffect1, {Question::Particle});

    using Page = SkinnedMeshHPPage;
    bindVector<UC_SkinnedMeshHPOrigin, Page>(tr("Hot Point Origin %1"),
                                             {{m_ui.sbHPOriginX, &Page::OnSkinMeshHPOriginXChanged},
                                              {m_ui.sbHPOriginY, &Page::OnSkinMeshHPOriginYChanged},
                                              {m_ui.sbHPOriginZ, &Page::OnSkinMeshHPOriginZChanged}});
    bind<UC_SkinnedMeshHPNodeID>(m_ui.sbHPNodeID, Whole, tr("Hot Point BoneID"),
                                 &Page::OnSkinMeshHPNodeIDChanged);
    bind<UC_SkinnedMeshHPEffect>(m_ui.cbHPDealDamage, DealDamage, tr("Hot Point Particle Effect 1"),
                                 &Page::OnSkinMeshHPDealDamageChanged);
    bind<UC_SkinnedMeshHPEffect>(m_ui.sbHPEffect1, Effect1, tr("Hot Point Particle Effect 1"),
                                 &Page::OnSkinMeshHPEffect1Changed);
    bind<UC_SkinnedMeshHPEffect>(m_ui.sbHPEffect2, Effect2, tr("Hot Point Particle Effect 2"),
                                 &Page::OnSkinMeshHPEffect2Changed);
    bind<UC_SkinnedMeshHPFlags>(m_ui.flagsHP, Whole, tr("Hot Point Flags"), &Page::OnSkinMeshHPFlagsChanged);
}

void SkinnedMeshHPPage::recordShown()
{
    const SkinnedMeshHotPoint *point = record();
    if (!point)
        return;
    m_ui.hintHPNodeID->setTarget(IndexTargets::bone(model(), point->nodeId));
    const bool damages = DealDamage.get(HotPointEffects::get(*point));
    m_ui.sbHPEffect1->setEnabled(!damages);
    m_ui.lblHPEffect2->setText(damages ? tr("Damage") : tr("Particle Effect &2 ID"));
    Questions::set(m_ui.sbHPEffect2, {damages ? Question::Damage : Question::Particle});
}
