// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "StatusReadOut.h"

#include "KVOpenGLWidget.h"

#include <QStatusBar>

StatusReadOut::StatusReadOut(const Viewports &viewports, QStatusBar *statusBar)
    : QObject(statusBar)
    , m_statusBar(statusBar)
{
    for (KVOpenGLWidget *viewport : viewports)
        connect(viewport, &KVOpenGLWidget::positionReadOut, this, &StatusReadOut::show);
}

void StatusReadOut::show(const QString &text)
{
    // Tips and notes of others are left to be read.
    const QString message = m_statusBar->currentMessage();
    if (message.isEmpty() || message == m_shown)
        m_statusBar->showMessage(text);
    m_shown = text;
}
