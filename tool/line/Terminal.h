// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What differs from system to system of the place that the tool is called from.
namespace Terminal {
/// Before there is an application: file names and all that is written are UTF-8, with the line ends it has.
void prepare();

/// Before an end that runs nothing of what was to be done at the end.
void restore();

/// Before there is an application that draws: lets the toolkit begin where there is no display, if it can.
void prepareToDraw();

/// What to do where nothing can be drawn; a sentence.
QString advice();
/// The same for the help, where it is not known whether that is so.
QString drawingNeeds();
} // namespace Terminal
