// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
// What the camera is aimed at, and what the mouse hits.
#include "KVOpenGLWidget.h"

void KVOpenGLWidget::resetCamera()
{
    m_camera.reset();
    playbackChanged();
    update();
}
