// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

#include <QObject>

class DocumentFiles;
class DocumentPanes;
class FileOpener;
class StructureActions;

namespace Ui {
class MainWindow;
}

/// Has the dock of who names what asked, in menus of trees and number fields too, and opens what it lists.
class WhereUsed : public QObject
{
    Q_OBJECT

public:
    /// Everything outlives this.
    WhereUsed(const Ui::MainWindow &ui, DocumentFiles &files, DocumentPanes &panes,
              SkinnedMeshDocument &skinnedMesh, AnimDocument &anim, StaticMeshDocument &staticMesh,
              const StructureActions &structure, QWidget *window);

private:
    void openUsedBy();
    void lead(DocumentType type, const RecordRef &record);

    const Ui::MainWindow &m_ui;
    DocumentPanes &m_panes;
    FileOpener *m_opener;
};
