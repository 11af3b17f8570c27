// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

/// Has the title bars of all windows, those too that come later, be dark or light as what is in them, where
/// the desktop leaves that to the program.
void showTitleBars(bool dark);
