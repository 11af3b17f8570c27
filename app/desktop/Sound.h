// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

class QObject;
class QString;

/// Plays a short sound of the resources, such as ":/sounds/test.wav", where there is something to play it
/// with. It may end with its owner.
void playSound(const QString &resource, QObject *owner);

/// Plays a file of the user's, a `.wav` or, not on Windows, an `.ogg`, too, where there is something to play
/// it with. One that plays already begins anew.
void playSoundFile(const QString &path, QObject *owner);
