// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

class KVOpenGLWidget;
class QBoxLayout;

/// Says why a viewport shows nothing, in its place in `layout`, as soon as it cannot draw.
void showViewportFailure(KVOpenGLWidget *viewport, QBoxLayout *layout);
