// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

class QMainWindow;

/// Stores the places of a window's docks, tool bars and splitters, which are told apart by object name.
void storeLayout(const QMainWindow &window);
/// Puts them where they were; what was never stored stays as it is.
void restoreLayout(QMainWindow &window);
