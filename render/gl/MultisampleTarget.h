// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QOpenGLFramebufferObject>

#include <memory>

class QOpenGLExtraFunctions;

/// Has a frame drawn with several samples a pixel, which makes its edges smooth, before it goes where it
/// belongs. It is as large as the view port. Made with the context current.
class MultisampleTarget
{
public:
    static constexpr int Samples = 4;

    MultisampleTarget();

    /// What is drawn from now on goes here. False, once with a line in the log, where the driver has no such
    /// thing: it goes where it belongs.
    bool begin();
    /// Brings it there, after a begin() that was true.
    void end();

private:
    bool make(const QSize &size);

    QOpenGLExtraFunctions &m_gl;
    std::unique_ptr<QOpenGLFramebufferObject> m_samples;
    int m_origin[2] = {};  ///< of the view port
    int m_owner = 0;       ///< the framebuffer where it belongs
    bool m_failed = false; ///< not tried again
};
