// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Whether this user may list a folder and look at what is in it, as far as the system tells.
bool mayBeWalked(const QString &folder);

/// The first name in a folder that is no text in the encoding of the system, as far as it can be shown: the
/// toolkit leaves such files out of its lists without a word. Empty where there is none. Hidden ones are not
/// looked at.
QString nameWithoutText(const QString &folder);
