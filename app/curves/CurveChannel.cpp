// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CurveChannel.h"

#include "Look.h"

#include <QCoreApplication>

QString channelName(CurveChannel channel)
{
    const QLatin1Char axis("XYZ"[axisOf(channel)]);
    switch (kindOf(channel)) {
    case CurveKind::Translation:
        return QCoreApplication::translate("CurveChannel", "Translation %1").arg(axis);
    case CurveKind::Rotation:
        return QCoreApplication::translate("CurveChannel", "Rotation %1").arg(axis);
    case CurveKind::Yaw:
        break;
    }
    return QCoreApplication::translate("CurveChannel", "Yaw");
}

QColor channelColor(CurveChannel channel, const QPalette &palette)
{
    const bool dark = isDark(palette);
    if (channel == CurveChannel::Yaw)
        return dark ? QColor(0xf0, 0xb8, 0x4a) : QColor(0x9a, 0x62, 0x00);
    const QColor light[] = {{0xc6, 0x28, 0x28}, {0x2e, 0x7d, 0x32}, {0x1f, 0x5f, 0xd0}};
    const QColor onDark[] = {{0xff, 0x72, 0x72}, {0x6f, 0xd0, 0x73}, {0x7d, 0xae, 0xff}};
    return (dark ? onDark : light)[axisOf(channel)];
}

QString curveNumber(double value, CurveUnit unit)
{
    const QString number = QString::number(value, 'g', 6);
    return unit == CurveUnit::Degrees ? number + QChar(0xB0) : number;
}
