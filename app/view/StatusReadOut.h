// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewportAction.h"

#include <QObject>
#include <QString>

class QStatusBar;

/// Shows in the status bar where the camera of the current viewport stands.
class StatusReadOut : public QObject
{
    Q_OBJECT

public:
    StatusReadOut(const Viewports &viewports, QStatusBar *statusBar);

private:
    void show(const QString &text);

    QStatusBar *m_statusBar;
    QString m_shown;
};
