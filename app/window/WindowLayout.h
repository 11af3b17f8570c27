// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

class QMainWindow;

/// Gives the docks and splitters of the main window the places that they have until the user moves them.
void setDefaultLayout(QMainWindow &window);
/// Stores the places of a window's docks, tool bars and splitters, which are told apart by object name.
void storeLayout(const QMainWindow &window);
/// Puts them where they were; what was never stored stays as it is.
void restoreLayout(QMainWindow &window);
