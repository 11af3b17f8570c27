// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PropertyPages.h"

#include "AnimActionPage.h"
#include "AnimBlockPage.h"
#include "AnimFilePage.h"
#include "AnimFramePage.h"
#include "AnimNodePage.h"
#include "AnimRotationPage.h"
#include "AnimTranslationPage.h"
#include "PageStack.h"
#include "SkinnedMeshCnodePage.h"
#include "SkinnedMeshHPPage.h"
#include "SkinnedMeshNodePage.h"
#include "SkinnedMeshPage.h"
#include "StaticMeshPage.h"
#include "SurfacePage.h"
#include "TriIndexPage.h"
#include "VertPage.h"

namespace {
template <typename Page, typename... Arguments>
void add(PageStack &stack, Arguments &...arguments)
{
    stack.addPage(new Page(arguments...));
}
} // namespace

void addPages(PageStack &stack, SkinnedMeshDocument &document, const KVTreeView &tree,
              MaterialCatalog &materials)
{
    add<SkinnedMeshPage>(stack, document, tree);
    add<SkinnedMeshCnodePage>(stack, document, tree);
    add<SkinnedMeshHPPage>(stack, document, tree);
    add<SkinnedMeshNodePage>(stack, document, tree);
    add<SkinnedMeshSurfacePage>(stack, document, tree, materials);
    add<SkinnedMeshTriIndexPage>(stack, document, tree);
    add<SkinnedMeshVertPage>(stack, document, tree);
}

void addPages(PageStack &stack, AnimDocument &document, const KVTreeView &tree, SkinnedMeshDocument &mesh)
{
    document.setNamingMesh(&mesh.model());
    add<AnimFilePage>(stack, document, tree);
    add<AnimBlockPage>(stack, document, tree, mesh);
    add<AnimNodePage>(stack, document, tree, mesh);
    add<AnimFramePage>(stack, document, tree);
    add<AnimTranslationPage>(stack, document, tree);
    add<AnimRotationPage>(stack, document, tree);
    add<AnimActionPage>(stack, document, tree, mesh);
}

void addPages(PageStack &stack, StaticMeshDocument &document, const KVTreeView &tree,
              MaterialCatalog &materials)
{
    add<StaticMeshPage>(stack, document, tree);
    add<StaticMeshSurfacePage>(stack, document, tree, materials);
    add<StaticMeshTriIndexPage>(stack, document, tree);
    add<StaticMeshVertPage>(stack, document, tree);
}
