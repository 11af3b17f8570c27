// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>
#include <QString>

class QWidget;

/// How the program looks.
enum class Look { Desktop, Light, Dark };

/// The looks that can be chosen.
inline constexpr Look allLooks[] = {Look::Desktop, Look::Light, Look::Dark};

/// The name of a look in the settings.
QString lookKey(Look look);
/// Its name for the user.
QString lookName(Look look);

/// The look that the settings hold.
Look chosenLook();
/// Keeps a look in the settings and shows it, in every window that is open.
void chooseLook(Look look);
/// Shows the look that the settings hold, and goes on following the desktop where it is the desktop's.
void showChosenLook();

/// Our own colours, light or dark.
QPalette ourPalette(bool dark);
/// Whether text is lighter than what it stands on.
bool isDark(const QPalette &palette);
/// The colour of a text that warns, on the windows of a palette.
QColor warningColor(const QPalette &palette);
