// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector3D>

/// The camera's position as the status bar shows it, about ten times a second.
class PositionReadOut
{
public:
    /// `dt` seconds went by. True when the text has to be shown anew, which only a view is asked for that
    /// `shows` it.
    bool tick(float dt, bool shows, const QVector3D &position);
    /// "X: 0.000000 Y: ... Z: ...".
    const QString &text() const { return m_text; }
    const QVector3D &shown() const { return m_shown; }

private:
    float m_since = 0.0f; ///< seconds
    QVector3D m_shown;
    QString m_text;
};
