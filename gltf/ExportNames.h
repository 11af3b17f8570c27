// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

// What an export puts around the names of bones and animations, and other programs behind those of copies.
// Names are taken in without it, or they would grow with every way out and back.

/// The number in the first pair of brackets that holds nothing else: "walk [12]" is 12. None for one that
/// does not fit.
std::optional<qint32> bracketedId(const QString &name);
/// "walk" of "walk [12]"; empty when nothing else is left.
QString bareClipName(const QString &name);
/// "head" of "bone_012 head"; a number alone is all that the bone is called.
QString bareBoneName(const QString &name);

/// Whether other programs call the copy of a thing so: "skin.001".
bool isCopyName(const QString &name);
/// "skin" of "skin.001".
QString withoutCopyNumber(const QString &name);
