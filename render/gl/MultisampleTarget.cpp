// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MultisampleTarget.h"

#include "Log.h"

#include <QCoreApplication>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

MultisampleTarget::MultisampleTarget()
    : m_gl(*QOpenGLContext::currentContext()->extraFunctions())
{}

bool MultisampleTarget::make(const QSize &size)
{
    if (m_samples && m_samples->size() == size)
        return true;
    QOpenGLFramebufferObjectFormat format;
    format.setAttachment(QOpenGLFramebufferObject::CombinedDepthStencil);
    format.setSamples(Samples);
    m_samples = std::make_unique<QOpenGLFramebufferObject>(size, format);
    return m_samples->isValid() && m_samples->format().samples() > 0;
}

bool MultisampleTarget::begin()
{
    if (m_failed)
        return false;
    GLint port[4] = {};
    m_gl.glGetIntegerv(GL_VIEWPORT, port);
    m_gl.glGetIntegerv(GL_FRAMEBUFFER_BINDING, &m_owner);
    m_failed = !make({port[2], port[3]});
    if (m_failed) {
        m_samples.reset();
        Log::warning(QCoreApplication::translate(
            "Viewport", "[Viewport] The graphics driver cannot smooth edges; they are drawn as usual"));
        m_gl.glBindFramebuffer(GL_FRAMEBUFFER, GLuint(m_owner));
        return false;
    }
    m_origin[0] = port[0];
    m_origin[1] = port[1];
    m_gl.glBindFramebuffer(GL_FRAMEBUFFER, m_samples->handle());
    m_gl.glViewport(0, 0, port[2], port[3]);
    return true;
}

void MultisampleTarget::end()
{
    const QSize size = m_samples->size();
    m_gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, m_samples->handle());
    m_gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, GLuint(m_owner));
    m_gl.glBlitFramebuffer(0, 0, size.width(), size.height(), m_origin[0], m_origin[1],
                           m_origin[0] + size.width(), m_origin[1] + size.height(), GL_COLOR_BUFFER_BIT,
                           GL_NEAREST);
    m_gl.glBindFramebuffer(GL_FRAMEBUFFER, GLuint(m_owner));
    m_gl.glViewport(m_origin[0], m_origin[1], size.width(), size.height());
}
