// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PositionReadOut.h"

#include "KVOpenGLWidget.h"

#include <QStatusBar>

PositionReadOut::PositionReadOut(const Viewports &viewports, QStatusBar *statusBar)
    : QObject(statusBar)
    , m_statusBar(statusBar)
{
    for (KVOpenGLWidget *viewport : viewports)
        connect(viewport, &KVOpenGLWidget::positionReadOut, this, &PositionReadOut::show);
}

void PositionReadOut::show(const QString &text)
{
    // Tips and notes of others are left to be read.
    const QString message = m_statusBar->currentMessage();
    if (message.isEmpty() || message == m_shown)
        m_statusBar->showMessage(text);
    m_shown = text;
}
