// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewportAction.h"

#include <QObject>
#include <QString>

class QStatusBar;

/// Shows in the status bar where the camera of the current viewport stands.
class PositionReadOut : public QObject
{
    Q_OBJECT

public:
    PositionReadOut(const Viewports &viewports, QStatusBar *statusBar);

private:
    void show(const QString &text);

    QStatusBar *m_statusBar;
    QString m_shown;
};
