// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

class KVTreeView;
class MaterialCatalog;
class PageStack;

/// Adds the property pages of each kind of document, in the order of their page numbers. The catalog outlives
/// them.
void addPages(PageStack &stack, SkinnedMeshDocument &document, const KVTreeView &tree,
              MaterialCatalog &materials);
/// `mesh` is the mesh beside the animation: it names the bones and the animations.
void addPages(PageStack &stack, AnimDocument &document, const KVTreeView &tree, SkinnedMeshDocument &mesh);
void addPages(PageStack &stack, StaticMeshDocument &document, const KVTreeView &tree,
              MaterialCatalog &materials);
