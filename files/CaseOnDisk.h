// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A path on the disk in the case that it has there from its character `from` on; empty when there is nothing
/// of that name in any case. What folders hold is kept until they change. Any thread may call it.
QString caseOnDisk(const QString &path, int from);
