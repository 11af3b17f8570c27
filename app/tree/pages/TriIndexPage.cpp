// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TriIndexPage.h"

#include "SkinnedMeshCommands.h"
#include "StaticMeshCommands.h"

using namespace Parts;

namespace {
// 65535 ends the list in the file of a skinned mesh.
constexpr int LastSkinnedIndex = 65534;
constexpr int LastStaticIndex = 65535;
} // namespace

SkinnedMeshTriIndexPage::SkinnedMeshTriIndexPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                                 QWidget *parent)
    : TriIndexPage(document, tree, LastSkinnedIndex, parent)
{
    bind<UC_SkinnedMeshTriIndex>(m_ui.sbTIIndex, Whole, tr("Triangle Index"),
                                 &SkinnedMeshTriIndexPage::OnSkinMeshTriIndexChanged);
}

StaticMeshTriIndexPage::StaticMeshTriIndexPage(ModelDocument<Model> &document, const KVTreeView &tree,
                                               QWidget *parent)
    : TriIndexPage(document, tree, LastStaticIndex, parent)
{
    bind<UC_StaticMeshTriIndex>(m_ui.sbTIIndex, Whole, tr("Triangle Index"),
                                &StaticMeshTriIndexPage::OnStaticMeshTriIndexChanged);
}
