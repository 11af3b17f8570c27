// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

class QObject;
class QString;

/// Plays a short sound of the resources, such as ":/sounds/test.wav", where there is something to play it
/// with. It may end with its owner.
void playSound(const QString &resource, QObject *owner);
