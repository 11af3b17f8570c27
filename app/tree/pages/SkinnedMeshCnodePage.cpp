// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SkinnedMeshCnodePage.h"

#include "IndexTargets.h"
#include "SkinnedMeshCommands.h"

using namespace Parts;

SkinnedMeshCnodePage::SkinnedMeshCnodePage(ModelDocument<Model> &document, const KVTreeView &tree,
                                           QWidget *parent)
    : RecordPage(document, tree, tr("Bone %1 - Child Bone Index %2 Properties"), parent)
{
    m_ui.setupUi(this);

    using Page = SkinnedMeshCnodePage;
    bind<UC_SkinnedMeshCnode>(m_ui.sbCNIIndex, Whole, tr("Child Bone Index"), &Page::OnSkinMeshCnodeChanged);
}

void SkinnedMeshCnodePage::recordShown()
{
    if (const quint16 *child = record())
        m_ui.hintCNIIndex->setTarget(IndexTargets::bone(model(), *child));
}
