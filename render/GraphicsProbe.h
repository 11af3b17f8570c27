// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

/// Whether the system offers OpenGL. Only trying tells, and the first try loads the driver, which takes about
/// as long as building the main window: so a thread of its own tries, once in a process.
namespace GraphicsProbe {
/// Begins, after the application and its default surface format are there.
void start();
/// Begins unless that was done, and waits.
bool hasOpenGL();
} // namespace GraphicsProbe
