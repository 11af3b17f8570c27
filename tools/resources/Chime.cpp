// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Chime.h"

#include <QBuffer>
#include <QDataStream>

#include <algorithm>
#include <cmath>

namespace {
constexpr int SampleRate = 22050;
constexpr int SampleCount = SampleRate * 6 / 10;

/// A struck bar: its overtones lie near 4 and 9.2 times the ground note and die away sooner.
double bell(double hertz, double seconds)
{
    if (seconds < 0.0)
        return 0.0;
    const double attack = std::min(1.0, seconds / 0.006);
    const double phase = 2.0 * M_PI * hertz * seconds;
    return attack * (std::sin(phase) * std::exp(-7.0 * seconds) +
                     0.25 * std::sin(4.0 * phase) * std::exp(-18.0 * seconds) +
                     0.05 * std::sin(9.2 * phase) * std::exp(-40.0 * seconds));
}
} // namespace

QByteArray makeChime()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    constexpr quint32 DataSize = SampleCount * 2;
    out.writeRawData("RIFF", 4);
    out << quint32(36 + DataSize);
    out.writeRawData("WAVEfmt ", 8);
    out << quint32(16) << quint16(1) << quint16(1); // PCM, one channel
    out << quint32(SampleRate) << quint32(SampleRate * 2) << quint16(2) << quint16(16);
    out.writeRawData("data", 4);
    out << DataSize;
    for (int i = 0; i < SampleCount; ++i) {
        const double seconds = double(i) / SampleRate;
        // A fifth upwards, A5 to E6.
        const double sum = 0.8 * bell(880.0, seconds) + bell(1318.51, seconds - 0.11);
        const double fadeOut = std::min(1.0, (0.6 - seconds) / 0.06);
        out << qint16(std::lround(sum * fadeOut * 0.32 * 32767.0));
    }
    return bytes;
}
