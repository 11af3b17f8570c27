// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// The application that is made next finds no OpenGL.
inline void takeOpenGLAway()
{
    qputenv("QT_XCB_GL_INTEGRATION", "none");
}
