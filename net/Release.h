// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

class QByteArray;

/// What a release document says of the newest release. Nothing in it is trusted: the texts may hold markup,
/// the link any scheme.
struct Release
{
    QString version; ///< as written
    QString link;
    QString message; ///< its lines joined by a blank each
};

/// Reads a release document, UTF-8 text whose lines end with LF or CR LF:
/// - nothing counts before a line "!start!" or behind a line "!end!";
/// - the line behind "version" is the version, the one behind "link" the link;
/// - the lines between "msg" and "!msg!" are the message.
/// Keywords are whole lines, blanks included. Of two entries of a kind the last counts. What the document
/// does not say stays empty.
Release readRelease(const QByteArray &document);

/// Major, minor and patch number of a version text. A part that is missing or no number is 0, a fourth one is
/// cut off.
std::array<int, 3> versionNumbers(const QString &version);

/// Whether version `a` is older than version `b`, number by number.
bool isOlderVersion(const QString &a, const QString &b);
