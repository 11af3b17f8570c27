// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

/// The about dialog's sound as a WAV file: a soft two-note bell of 0.6 s, 22050 Hz, 16 bit, mono.
QByteArray makeChime();
