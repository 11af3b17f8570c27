// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

class DocumentPanes;
class QMainWindow;

namespace Ui {
class MainWindow;
}

/// Lets the docks that list records of the documents have these, and the panes show what is picked there.
void wireRecordDocks(const Ui::MainWindow &ui, DocumentPanes &panes, QMainWindow &window);
