// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Where the program keeps what is its own: in the user's folders, as the system has them, or all of it in a
/// folder "data" beside the program, when a file "portable.txt" lies there, for one that is carried around.
namespace OwnFolders {
/// Has the settings store be a file there, on systems too that would keep settings elsewhere. To be called
/// before the first setting is read, when the application and its names are there.
void useForSettings();
/// What belongs to this computer, such as unsaved work.
QString local();
/// What can be made again at any time.
QString cache();
/// What the user puts there.
QString data();
} // namespace OwnFolders
