// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct AnimAction;

/// "Action 2: 00: Play Sound, Sound ID 10 (Ambient Explosion 1)": the arguments that mean something or are
/// set.
QString actionText(int index, const AnimAction &action);
/// "00: Play Sound", or the number of an event that has no name.
QString eventText(int eventType);
/// What is told while an action, with so many `others`, is dragged from its frame to another one.
QString moveText(int index, const AnimAction &action, int to, int others);
