// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TriIndexPage.h"

SkinnedMeshTriIndexPage::SkinnedMeshTriIndexPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                                 QWidget *parent)
    : TriIndexPage(document, tree, parent)
{
    bind(m_ui.sbTIIndex, Fields::SkinnedTriangleIndex, &SkinnedMeshTriIndexPage::OnSkinMeshTriIndexChanged);
    tellRange();
}

StaticMeshTriIndexPage::StaticMeshTriIndexPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                               QWidget *parent)
    : TriIndexPage(document, tree, parent)
{
    bind(m_ui.sbTIIndex, Fields::StaticTriangleIndex, &StaticMeshTriIndexPage::OnStaticMeshTriIndexChanged);
    tellRange();
}
