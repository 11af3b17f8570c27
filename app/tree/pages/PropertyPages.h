// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

class KVTreeView;
class PageStack;

/// Adds the property pages of each kind of document, in the order of their page numbers.
void addPages(PageStack &stack, SkinnedMeshDocument &document, const KVTreeView &tree);
/// `mesh` is the mesh beside the animation: it names the bones and the animations.
void addPages(PageStack &stack, AnimDocument &document, const KVTreeView &tree, SkinnedMeshDocument &mesh);
void addPages(PageStack &stack, StaticMeshDocument &document, const KVTreeView &tree);
