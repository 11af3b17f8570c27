// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QSurfaceFormat>

/// The application that is made next finds no OpenGL of the kind that it asks for.
inline void takeOpenGLAway()
{
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenVG);
    QSurfaceFormat::setDefaultFormat(format);
}
