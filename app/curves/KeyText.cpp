// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KeyText.h"

#include <QCoreApplication>

QString keyText(const CurveData &data, const CurveKey &key, const QString &bone)
{
    if (key.isNone())
        return {};
    const CurveChannel channel = data.curves()[size_t(key.curve)].channel;
    const QString name = channelName(channel);
    return QCoreApplication::translate("CurveView", "%1, frame %2: %3")
        .arg(bone.isEmpty() ? name : bone + QStringLiteral(", ") + name, QString::number(key.frame),
             curveNumber(data.value(key.curve, key.frame), unitOf(channel)));
}

QString keyMoveText(const CurveData &data, const CurveKey &key, double by, int others)
{
    const CurveUnit unit = unitOf(data.curves()[size_t(key.curve)].channel);
    QString text = QStringLiteral(" \u2192 ") + curveNumber(data.value(key.curve, key.frame) + by, unit);
    if (others > 0)
        text += QLatin1Char('\n') + QCoreApplication::translate("CurveView", "and %n more", nullptr, others);
    return text;
}
