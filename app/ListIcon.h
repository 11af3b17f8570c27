// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

/// The icon ":/Images/Icons/NAME.png" for the rows of lists and trees. A selected row shows it in the color
/// of the selected text: our icons are thin lines that vanish on the highlight.
QIcon listIcon(const QString &name);
