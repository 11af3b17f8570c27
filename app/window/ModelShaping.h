// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

class DocumentPanes;
class QWidget;
class StructureActions;

namespace Ui {
class MainWindow;
}

/// Wires what shapes a model to view, trees, pages and menus.
class ModelShaping : public QObject
{
    Q_OBJECT

public:
    /// All of it outlives this.
    ModelShaping(const Ui::MainWindow &ui, DocumentPanes &panes, SkinnedMeshDocument &skinned,
                 AnimDocument &anim, StaticMeshDocument &rigid, const StructureActions &structure,
                 QWidget *window);
};
