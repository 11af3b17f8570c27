// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Lets this process write below one folder only. Whatever the monkey types, clicks and drops, the system
/// calls by which Qt writes, makes, renames and removes files are refused outside, as to a user without the
/// right to.
namespace WriteGuard {
/// From now on, for good; `folder` is a canonical path.
void confineTo(const QString &folder);
/// How often something was refused.
int refusals();
} // namespace WriteGuard
