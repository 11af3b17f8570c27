// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SkinnedMeshCnodePage.h"

SkinnedMeshCnodePage::SkinnedMeshCnodePage(ModelDocument<Model> &document, const KVTreeView &tree,
                                           QWidget *parent)
    : RecordPage(document, tree, tr("Bone %1 - Child Bone Index %2 Properties"), parent)
{
    m_ui.setupUi(this);

    using Page = SkinnedMeshCnodePage;
    bind(m_ui.sbCNIIndex, Fields::ChildBone, &Page::OnSkinMeshCnodeChanged);
}
