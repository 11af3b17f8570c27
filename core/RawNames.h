// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The first name in a folder that is no text in the encoding of the system, as far as it can be shown: the
/// toolkit leaves such files out of its lists without a word. Empty where there is none. Hidden ones are not
/// looked at.
QString nameWithoutText(const QString &folder);
