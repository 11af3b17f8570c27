// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

class KVOpenGLWidget;
class QBoxLayout;

/// Gives a viewport its place in `layout`. As soon as it cannot draw, a notice there says why instead.
void embedViewport(KVOpenGLWidget *viewport, QBoxLayout *layout);
