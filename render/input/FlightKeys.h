// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>
#include <QtGlobal>

/// What a key does to the camera: once, for ResetCamera, or as long as it is held.
enum class FlightMotion { Forward, Back, Left, Right, Fast, ResetCamera, Count };

struct FlightKey
{
    Qt::Key key;
    FlightMotion motion;
    const char *name; ///< for lists of keys, in the context "FlightKeys"; null: only changes what others do
};

/// All keys that the view takes itself.
inline constexpr FlightKey FlightKeys[] = {
    {Qt::Key_W, FlightMotion::Forward, QT_TRANSLATE_NOOP("FlightKeys", "Fly Forward")},
    {Qt::Key_S, FlightMotion::Back, QT_TRANSLATE_NOOP("FlightKeys", "Fly Back")},
    {Qt::Key_A, FlightMotion::Left, QT_TRANSLATE_NOOP("FlightKeys", "Fly Left")},
    {Qt::Key_D, FlightMotion::Right, QT_TRANSLATE_NOOP("FlightKeys", "Fly Right")},
    {Qt::Key_C, FlightMotion::ResetCamera, QT_TRANSLATE_NOOP("FlightKeys", "Reset the Camera")},
    {Qt::Key_Shift, FlightMotion::Fast, nullptr},
};
