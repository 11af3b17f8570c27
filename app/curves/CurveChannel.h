// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

/// What of an animation is drawn as a curve: of a bone, or of the whole model.
enum class CurveChannel {
    TranslationX,
    TranslationY,
    TranslationZ,
    RotationX,
    RotationY,
    RotationZ,
    Yaw,
};
inline constexpr int CurveChannelCount = int(CurveChannel::Yaw) + 1;

enum class CurveKind { Translation, Rotation, Yaw };
/// What the values of a curve are; each has an axis of its own.
enum class CurveUnit { Degrees, Units };
inline constexpr int CurveUnitCount = 2;

constexpr CurveKind kindOf(CurveChannel channel)
{
    return CurveKind(int(channel) / 3);
}
constexpr CurveUnit unitOf(CurveChannel channel)
{
    return kindOf(channel) == CurveKind::Translation ? CurveUnit::Units : CurveUnit::Degrees;
}
/// 0 to 2; of the yaw 0.
constexpr int axisOf(CurveChannel channel)
{
    return int(channel) % 3;
}

QString channelName(CurveChannel channel);
/// Red along x, green along y, blue along z, as the axes of the view are; readable on the palette's base.
QColor channelColor(CurveChannel channel, const QPalette &palette);
/// "12.5", with a sign for degrees.
QString curveNumber(double value, CurveUnit unit);
