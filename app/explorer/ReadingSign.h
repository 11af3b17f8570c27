// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWidget>

/// Tells that a folder is being read, when that takes longer than one would notice, and lets the user stop
/// it.
class ReadingSign : public QWidget
{
    Q_OBJECT

public:
    ReadingSign();

    void begin() { m_delay.start(); }
    void end();

signals:
    void stopped();

private:
    QTimer m_delay;
};
