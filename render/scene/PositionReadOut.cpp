// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PositionReadOut.h"

namespace {
constexpr float ReadOutInterval = 0.1f; // seconds

QString coordinate(float value)
{
    return QString::number(double(value), 'f', 6);
}
} // namespace

bool PositionReadOut::tick(float dt, bool shows, const QVector3D &position)
{
    m_since += dt;
    if (!shows || !(m_since > ReadOutInterval))
        return false;
    m_since = 0.0f;
    m_shown = position;
    // Shown in the game's order, with z up.
    m_text = QStringLiteral("X: %1 Y: %2 Z: %3")
                 .arg(coordinate(position.x()), coordinate(position.z()), coordinate(position.y()));
    return true;
}
