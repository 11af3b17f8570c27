// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PropertyPages.h"

#include "AnimBlockPage.h"
#include "PageStack.h"
#include "SkinnedMeshNodePage.h"
#include "SkinnedMeshPage.h"
#include "StaticMeshSurfacePage.h"

namespace {
template <typename... Pages, typename Document>
void add(PageStack &stack, Document &document, const KVTreeView &tree)
{
    (stack.addPage(new Pages(document, tree)), ...);
}
} // namespace

void addPages(PageStack &stack, SkinnedMeshDocument &document, const KVTreeView &tree)
{
    add<SkinnedMeshPage, SkinnedMeshNodePage>(stack, document, tree);
}

void addPages(PageStack &stack, AnimDocument &document, const KVTreeView &tree)
{
    add<AnimBlockPage>(stack, document, tree);
}

void addPages(PageStack &stack, StaticMeshDocument &document, const KVTreeView &tree)
{
    add<StaticMeshSurfacePage>(stack, document, tree);
}
