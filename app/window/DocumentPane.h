// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

#include <array>

class Document;
class FolderExplorer;
class KVOpenGLWidget;
class KVTreeView;
class PageStack;

/// What belongs to one document in the window.
struct DocumentPane
{
    Document *document;
    KVTreeView *tree;
    PageStack *pages;
    FolderExplorer *explorer;
    KVOpenGLWidget *viewport;
    RecordRef shown; ///< what the viewport marks
};

/// In the order of DocumentType.
using DocumentPanes = std::array<DocumentPane, 3>;
