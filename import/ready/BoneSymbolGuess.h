// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

/// The symbol flags of the bone that people call so: side, and which part of arm, leg, head or body it is.
/// None for a name that says nothing of it, or that of a bone which controls others.
std::optional<qint8> guessedSymbolFlags(const QString &name);
