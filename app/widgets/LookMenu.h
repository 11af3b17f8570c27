// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

class QMenu;

/// Puts the submenu of looks at the end of a menu.
void addLookMenu(QMenu &menu);
