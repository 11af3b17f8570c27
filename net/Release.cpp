// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Release.h"

#include <QByteArray>
#include <QStringList>

#include <algorithm>

Release readRelease(const QByteArray &document)
{
    QStringList lines = QString::fromUtf8(document).split(QLatin1Char('\n'));
    for (QString &line : lines) {
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
    }
    // What follows the last line end is no line.
    if (lines.last().isEmpty())
        lines.removeLast();

    Release release;
    const auto start = std::find(lines.cbegin(), lines.cend(), QLatin1String("!start!"));
    if (start == lines.cend())
        return release;
    for (auto line = start + 1; line != lines.cend() && *line != QLatin1String("!end!"); ++line) {
        if (*line == QLatin1String("msg")) {
            const auto end = std::find(line + 1, lines.cend(), QLatin1String("!msg!"));
            release.message = QStringList(line + 1, end).join(QLatin1Char(' '));
            line = end;
        } else if (*line == QLatin1String("version") || *line == QLatin1String("link")) {
            QString &value = *line == QLatin1String("version") ? release.version : release.link;
            if (++line != lines.cend())
                value = *line;
        }
        if (line == lines.cend())
            break;
    }
    return release;
}

std::array<int, 3> versionNumbers(const QString &version)
{
    std::array<int, 3> numbers{};
    const QStringList parts = version.split(QLatin1Char('.'));
    for (size_t i = 0; i < std::min(numbers.size(), size_t(parts.size())); ++i)
        numbers[i] = parts[int(i)].toInt();
    return numbers;
}

bool isOlderVersion(const QString &a, const QString &b)
{
    return versionNumbers(a) < versionNumbers(b);
}
