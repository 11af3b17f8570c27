// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Terminal.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>

namespace {
UINT codePageBefore = 0; // none without a console
} // namespace

void Terminal::prepare()
{
    // The console outlives the program.
    codePageBefore = GetConsoleOutputCP();
    if (codePageBefore != 0 && SetConsoleOutputCP(CP_UTF8))
        std::atexit(restore);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

void Terminal::restore()
{
    SetConsoleOutputCP(codePageBefore);
}

void Terminal::prepareToDraw() {}

QString Terminal::advice()
{
    return QStringLiteral(
        "Look for a driver of the graphics card. With QT_OPENGL=software in the environment "
        "the processor draws, where opengl32sw.dll lies beside the program.");
}

QString Terminal::drawingNeeds()
{
    return QStringLiteral("Needs a graphics driver with OpenGL.");
}
