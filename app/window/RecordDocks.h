// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

class DocumentFiles;
class DocumentPanes;
class Problems;
class QMainWindow;

namespace Ui {
class MainWindow;
}

/// Lets the docks that list records of the documents have these, and the panes show what is picked there.
void wireRecordDocks(const Ui::MainWindow &ui, DocumentPanes &panes, Problems &problems, DocumentFiles &files,
                     QMainWindow &window);
